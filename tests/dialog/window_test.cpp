#include "dialog/window/help_window.h"
#include "dialog/window/notice_area.h"
#include "dialog/window/print_window.h"
#include "dialog/window/wrapped_label.h"
#include "platform/controls/pop_up_button.h"
#include "platform/values.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <QClipboard>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

Notice notice(const char *key, const char *words)
{
    return {q(key), Severity::Warning, q(words), {}};
}

class Window : public testing::Test
{
protected:
    Window()
    {
        for (const char *title : {"One & Two", "Three"}) {
            auto *view = new QLabel(q(title));
            view->setMinimumSize(460, 600); // higher than the preview
            window.addPanel(q(title), view);
        }
        window.bringForward(0);
        window.show();
    }
    template <class Button>
    Button *button(const char *name)
    {
        return window.findChild<Button *>(q(name));
    }

    PrintWindow window{q("A & B"), {}};
};

TEST_F(Window, ShowsOnePanelAtATimeAndPrinterNamesLiterally)
{
    EXPECT_TRUE(window.view(0)->isVisible());
    EXPECT_FALSE(window.view(1)->isVisible());
    window.bringForward(1);
    EXPECT_FALSE(window.view(0)->isVisible());
    EXPECT_TRUE(window.view(1)->isVisible());
    EXPECT_EQ(window.panelPopUp()->currentIndex(), 1);
    QStringList labels;
    for (const QLabel *label : window.findChildren<QLabel *>())
        labels.append(label->text());
    EXPECT_TRUE(labels.contains(q("A & B")));
    EXPECT_TRUE(labels.contains(q("None")));
}

TEST_F(Window, GrowsAndShrinksWithThePanel)
{
    const int before = window.height();
    window.view(0)->setMinimumHeight(650);
    window.fitContents();
    EXPECT_EQ(window.height(), before + 50);
    window.view(0)->setMinimumHeight(600);
    window.fitContents();
    EXPECT_EQ(window.height(), before);
}

TEST_F(Window, MakesRoomForNoticesAndTakesItBack)
{
    const int before = window.height();
    window.notices().show(notice("a", "Something"));
    EXPECT_GT(window.height(), before);
    QTest::mouseClick(button<QToolButton>("dismissNotice"), Qt::LeftButton);
    EXPECT_EQ(window.height(), before);
    EXPECT_TRUE(window.notices().texts().isEmpty());
}

TEST_F(Window, ReplacesANoticeOfTheSameKeyAndDismissesGroups)
{
    window.notices().show(notice("offer:A", "first"));
    window.notices().show(notice("offer:A", "second"));
    window.notices().show(notice("offer:B", "third"));
    window.notices().show(notice("other", "fourth"));
    EXPECT_EQ(window.notices().texts(), QStringList({q("second"), q("third"), q("fourth")}));
    window.notices().dismissGroup(q("offer:"));
    EXPECT_EQ(window.notices().texts(), QStringList({q("fourth")}));
}

TEST_F(Window, WrapsNamesThatAreTooLongForALineAndCopiesThemAsTheyAre)
{
    const QString name = q("a_rather_long_name_of_a_file_that_somebody_has_made_up-").repeated(3);
    window.notices().show(notice("a", qPrintable(q("Saved as /home/") + name)));
    auto *label = window.notices().findChild<WrappedLabel *>();
    ASSERT_TRUE(label);
    EXPECT_GT(label->height(), 2 * label->fontMetrics().lineSpacing());
    EXPECT_LT(label->minimumSizeHint().width(), label->fontMetrics().horizontalAdvance(name) / 3);
    EXPECT_EQ(label->accessibleName(), q("Saved as /home/") + name);
    EXPECT_EQ(window.notices().texts(), QStringList{q("Saved as /home/") + name});
    label->setFocus();
    label->setSelection(0, static_cast<int>(label->text().size()));
    QTest::keySequence(label, QKeySequence::Copy);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), q("Saved as /home/") + name);
}

TEST(TextsWithBreaks, AreAsTheyWereWhereLinesBreakAnyway)
{
    for (const QString &text :
         {QString(), q("/home/person/Documents/2026/report.pdf"), q("Druckerinstallation"),
          q("\u5370\u5237\u306e\u8a2d\u5b9a").repeated(9)})
        EXPECT_EQ(withBreaks(text), text) << text.toStdString();
}

TEST(TextsWithBreaks, BreakBehindThePartsOfANameElseAnywhere)
{
    EXPECT_EQ(withBreaks(q("scan_of_the_whole_book.pdf in/it")),
              q("scan_\u200bof_\u200bthe_\u200bwhole_\u200bbook.\u200bpdf in/it"));
    EXPECT_EQ(withBreaks(QString(26, u'w')), QString(24, u'w') + q("\u200bw\u200bw"));
    EXPECT_EQ(withBreaks(QString(24, u'w') + q("e\u0301\U0001d400")),
              QString(24, u'w') + q("\u200be\u0301\u200b\U0001d400"))
        << "what belongs together stays so";
}

TEST_F(Window, SurvivesAPanelsViewThatDies)
{
    delete window.view(0);
    window.bringForward(1);
    window.bringForward(0);
    EXPECT_EQ(window.view(0), nullptr);
    EXPECT_EQ(window.frontIndex(), 0);
}

TEST_F(Window, IsLeftOnceByCancelEscapeOrItsCloseButton)
{
    QSignalSpy left(&window, &PrintWindow::left);
    window.close();
    QTest::keyClick(&window, Qt::Key_Escape);
    QTest::mouseClick(button<QPushButton>("cancelButton"), Qt::LeftButton);
    EXPECT_EQ(left.count(), 1);
}

TEST_F(Window, PrintsByReturnButNotTwiceWhileSending)
{
    QSignalSpy printed(&window, &PrintWindow::printRequested);
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_EQ(printed.count(), 1);
    window.setSending(true);
    QTest::keyClick(&window, Qt::Key_Return);
    QTest::mouseClick(button<QPushButton>("printButton"), Qt::LeftButton);
    EXPECT_EQ(printed.count(), 1);
    window.setSending(false);
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_EQ(printed.count(), 2);
}

TEST(HelpPage, ComesInThePreferredLanguageElseInTheBooksOwn)
{
    test::StagedDriver driver;
    for (const char *language : {"en", "de"})
        ASSERT_TRUE(QDir().mkpath(driver.bundle() + q("/Contents/Resources/help/") + q(language)));
    const auto write = [&](const char *name, const QByteArray &bytes) {
        QFile file(driver.bundle() + q("/Contents/") + q(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    };
    write("Info.plist", "<plist version=\"1.0\"><dict><key>CFBundleHelpBookFolder</key>"
                        "<string>help</string><key>CFBundleDevelopmentRegion</key>"
                        "<string>en</string></dict></plist>");
    write("Resources/help/en/index.html", "<p>Help</p>");
    write("Resources/help/de/index.html", "<p>Hilfe</p>");
    write("Resources/help/en/more.html", "<p>More</p>");
    platform::setPreferredLanguages({q("de-AT")});
    EXPECT_TRUE(helpPagePath(driver.bundle(), {}).endsWith(q("/help/de/index.html")));
    EXPECT_TRUE(helpPagePath(driver.bundle(), q("more.html")).endsWith(q("/help/en/more.html")));
    EXPECT_NULL(helpPagePath(driver.bundle(), q("none.html")));
    EXPECT_NULL(helpPagePath(driver.path(q("nowhere")), {}));
}

} // namespace
