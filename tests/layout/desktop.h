#pragma once

#include <QFont>
#include <QPalette>
#include <QString>
#include <QWidget>

#include <ostream>
#include <vector>

namespace test {

enum class Shade { Light, Dark };

/// What a person has chosen for the whole desktop.
struct Look
{
    const char *language = "en";
    double fontScale = 1;
    Shade shade = Shade::Light;
};
void PrintTo(const Look &look, std::ostream *out);

/// Every language with both font sizes and both shades.
[[nodiscard]] std::vector<Look> allLooks();
/// One for each language.
[[nodiscard]] std::vector<Look> allLanguages();

/// The look is in force while it lives; windows that are made meanwhile have it from the start.
class Desktop
{
public:
    explicit Desktop(const Look &look);
    ~Desktop();
    Desktop(const Desktop &) = delete;
    Desktop &operator=(const Desktop &) = delete;

private:
    QFont font_;
    QPalette palette_;
};

/// Writes a picture into the folder that the environment variable KORVANE_PICTURES names, if it is
/// set, for a person to look at.
void keepPicture(QWidget *widget, const QString &name);

} // namespace test
