#include "tests/layout/desktop.h"

#include "platform/controls/dark_palette.h"
#include "platform/values.h"
#include "tests/support/print_to.h"

#include <QApplication>
#include <QDir>

namespace test {
namespace {

constexpr const char *kLanguages[] = {"en", "de", "fr", "es", "it", "pt", "ja", "zh_CN"};
constexpr double kDefaultFont = 1;
constexpr double kLargeFont = 1.5;

} // namespace

void PrintTo(const Look &look, std::ostream *out)
{
    *out << look.language << ", font x " << look.fontScale
         << (look.shade == Shade::Dark ? ", dark" : ", light");
}

std::vector<Look> allLooks()
{
    std::vector<Look> looks;
    for (const char *language : kLanguages)
        for (const double scale : {kDefaultFont, kLargeFont})
            for (const Shade shade : {Shade::Light, Shade::Dark})
                looks.push_back({language, scale, shade});
    return looks;
}

std::vector<Look> allLanguages()
{
    std::vector<Look> looks;
    for (const char *language : kLanguages)
        looks.push_back({language});
    return looks;
}

Desktop::Desktop(const Look &look) : font_(QApplication::font()), palette_(QApplication::palette())
{
    QFont font = font_;
    font.setPointSizeF(font.pointSizeF() * look.fontScale);
    QApplication::setFont(font);
    if (look.shade == Shade::Dark)
        QApplication::setPalette(darkPalette());
    platform::setPreferredLanguages({q(look.language)});
}

Desktop::~Desktop()
{
    QApplication::setFont(font_);
    QApplication::setPalette(palette_);
}

void keepPicture(QWidget *widget, const QString &name)
{
    const QString folder = qEnvironmentVariable("KORVANE_PICTURES");
    if (!folder.isEmpty())
        widget->grab().save(QDir(folder).filePath(name + QLatin1String(".png")));
}

} // namespace test
