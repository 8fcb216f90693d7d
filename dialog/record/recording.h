#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <variant>

namespace dialog::record {

/// The file that a recording goes to, one line at a time. Each line is in the file when the call
/// returns. The last line may be tentative: it stands in the file too, but what follows may replace
/// it or take it back. After a failure nothing more is written.
class Recording
{
public:
    using Opened = std::variant<std::unique_ptr<Recording>, QString>;
    /// Makes the file, readable by the user alone. One that is there already is taken only if it is
    /// empty and the user's own; links are not followed. The alternative is what to tell a person.
    [[nodiscard]] static Opened create(const QString &path);
    ~Recording();
    Recording(const Recording &) = delete;
    Recording &operator=(const Recording &) = delete;

    [[nodiscard]] const QString &path() const { return path_; }

    /// Both put the line in the place of a tentative one.
    void add(const QString &line);
    void addTentative(const QString &line);
    void keep();
    void takeBack();

private:
    Recording(const QString &path, int descriptor) : path_(path), descriptor_(descriptor) {}
    void replaceEnd(const QByteArray &bytes);

    QString path_;
    int descriptor_;
    qint64 kept_ = 0;      ///< bytes of the file that stay
    qint64 tentative_ = 0; ///< bytes after them
    bool hasFailed_ = false;
};

} // namespace dialog::record
