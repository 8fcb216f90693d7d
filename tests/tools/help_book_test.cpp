#include "tests/tools/sample_ppd.h"
#include "tests/tools/string_table.h"

#include "tests/support/print_to.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>
#include <QSet>
#include <QTextDocument>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <span>

namespace {

using test::q;

QString bookOf(const QString &language)
{
    return q(KORVANE_BUNDLE_DIR "/Contents/Resources/help/%1").arg(language);
}

QString read(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList pagesOf(const QString &language)
{
    return QDir(bookOf(language)).entryList({q("*.html")}, QDir::Files, QDir::Name);
}

/// Targets of links and pictures.
QStringList targetsOf(const QString &html)
{
    static const QRegularExpression target(QStringLiteral("(?:href|src)=\"([^\"]*)\""));
    QStringList targets;
    for (const QRegularExpressionMatch &match : target.globalMatch(html))
        targets.append(match.captured(1));
    return targets;
}

QStringList brokenTargets(const QString &directory, const QString &html)
{
    QStringList broken;
    for (const QString &target : targetsOf(html)) {
        if (!QFile::exists(directory + QLatin1Char('/') + target))
            broken.append(target);
    }
    return broken;
}

QString titleOf(const QString &html)
{
    static const QRegularExpression title(QStringLiteral("<title>([^<]*)</title>"));
    return title.match(html).captured(1);
}

class HelpBook : public testing::TestWithParam<QString>
{
};

INSTANTIATE_TEST_SUITE_P(Languages, HelpBook, testing::ValuesIn(strings::languages),
                         [](const auto &instance) { return instance.param.toStdString(); });

TEST_P(HelpBook, HasAPageForEachSetting)
{
    const QStringList settings{q("color-output.html"),   q("color-preferences.html"),
                               q("conflicts.html"),      q("dry-time.html"),
                               q("halftone.html"),       q("icc-test-chart.html"),
                               q("improve-output.html"), q("index.html"),
                               q("ink-to-use.html"),     q("mirror.html"),
                               q("paper-source.html"),   q("paper-type.html"),
                               q("print-quality.html"),  q("sharpening.html"),
                               q("threshold.html"),      q("toner-save.html")};
    EXPECT_EQ(pagesOf(GetParam()), settings);
}

TEST_P(HelpBook, HasNoBrokenLink)
{
    for (const QString &page : pagesOf(GetParam())) {
        EXPECT_EQ(brokenTargets(bookOf(GetParam()), read(bookOf(GetParam()) + q("/") + page)),
                  QStringList())
            << qPrintable(page);
    }
}

TEST_P(HelpBook, LeadsFromItsIndexToEveryPageAndBack)
{
    QStringList listed = targetsOf(read(bookOf(GetParam()) + q("/index.html")));
    listed.append(q("index.html"));
    listed.sort();
    EXPECT_EQ(listed, pagesOf(GetParam()));
    for (const QString &page : pagesOf(GetParam())) {
        if (page != q("index.html")) {
            EXPECT_TRUE(
                targetsOf(read(bookOf(GetParam()) + q("/") + page)).contains(q("index.html")))
                << qPrintable(page);
        }
    }
}

TEST_P(HelpBook, IsWellFormedWithATitleAndTextOnEachPage)
{
    QSet<QString> titles;
    for (const QString &page : pagesOf(GetParam())) {
        const QString html = read(bookOf(GetParam()) + q("/") + page);
        QXmlStreamReader xml(
            QString(html).remove(q("<!DOCTYPE html>\n")).replace(q("8\">"), q("8\"/>")));
        while (!xml.atEnd())
            xml.readNext();
        EXPECT_FALSE(xml.hasError()) << qPrintable(page) << ": " << qPrintable(xml.errorString());

        QTextDocument document;
        document.setHtml(html);
        EXPECT_GT(document.toPlainText().size(), 60) << qPrintable(page);
        titles.insert(titleOf(html));
    }
    EXPECT_EQ(titles.size(), pagesOf(GetParam()).size());
    EXPECT_FALSE(titles.contains(QString()));
}

TEST_P(HelpBook, ShowsAPictureOnEachPageOfASetting)
{
    for (const QString &page : pagesOf(GetParam())) {
        if (page == q("index.html"))
            continue;
        const QString html = read(bookOf(GetParam()) + q("/") + page);
        static const QRegularExpression picture(q("<img src=\"([^\"]+)\" alt=\"([^\"]+)\"/>"));
        const QRegularExpressionMatch found = picture.match(html);
        EXPECT_SAME(found.captured(2), titleOf(html)) << qPrintable(page);
        EXPECT_FALSE(QImage(bookOf(GetParam()) + q("/") + found.captured(1)).isNull())
            << qPrintable(page);
    }
}

TEST_P(HelpBook, IsWrittenInItsLanguage)
{
    for (const QString &page : pagesOf(GetParam())) {
        const QString html = read(bookOf(GetParam()) + q("/") + page);
        EXPECT_TRUE(
            html.contains(q("<html lang=\"%1\">").arg(QString(GetParam()).replace(u'_', u'-'))))
            << qPrintable(page);
        EXPECT_EQ(titleOf(html) == titleOf(read(bookOf(q("en")) + q("/") + page)),
                  GetParam() == q("en"))
            << qPrintable(page);
    }
}

struct PageOfSetting
{
    const char *page;
    const char *option;
};

// clang-format off
constexpr PageOfSetting inkPages[] = {
    {"print-quality",     "PrintQuality"},
    {"paper-type",        "MediaType"},
    {"paper-source",      "PaperSource"},
    {"color-output",      "ColorOutput"},
    {"color-preferences", "ColorPreferences"},
    {"ink-to-use",        "InkToUse"},
    {"dry-time",          "DupDryTime"},
    {"sharpening",        "Sharpen"},
    {"mirror",            "Mirror"},
    {"icc-test-chart",    "ICCTestChartProcess"},
};
constexpr PageOfSetting tonerPages[] = {
    {"toner-save", "TonerSave"},
    {"halftone",   "HalftoneLevel"},
    {"threshold",  "Threshold"},
};
// clang-format on

void expectTitlesOfOptions(const char *language, const char *edition,
                           std::span<const PageOfSetting> pages)
{
    const sample::Ppd ppd = sample::open(edition);
    ASSERT_NE(ppd, nullptr);
    for (const PageOfSetting &entry : pages) {
        const QString html = read(bookOf(q(language)) + q("/%1.html").arg(q(entry.page)));
        EXPECT_SAME(titleOf(html), q(ppdFindOption(ppd.get(), entry.option)->text)) << language;
    }
}

TEST(HelpTitles, AreThoseOfThePrintersOptions)
{
    expectTitlesOfOptions("en", "Korvane-S300", inkPages);
    expectTitlesOfOptions("de", "Korvane-S300-de", inkPages);
    expectTitlesOfOptions("ja", "Korvane-S300-ja", inkPages);
    expectTitlesOfOptions("en", "Korvane-T500", tonerPages);
}

TEST(HelpLinks, AreFoundBrokenWhereThePageIsMissing)
{
    EXPECT_EQ(
        brokenTargets(bookOf(q("en")), q("<a href=\"mirror.html\">a</a><img src=\"no.png\">")),
        QStringList{q("no.png")});
}

} // namespace
