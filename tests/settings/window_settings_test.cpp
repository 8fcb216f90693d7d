#include "dialog/panels/layout_panel.h"
#include "dialog/print_dialog.h"
#include "dialog/printers/standard_options.h"
#include "dialog/replay/input.h"
#include "dialog/window/conflict_sheet.h"
#include "dialog/window/print_window.h"
#include "platform/controls/pop_up_button.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/layout_check.h"
#include "tests/support/print_to.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

/// The controls of the dialog's own in its window, on a printer with two sides and a constraint.
class WindowSettings : public testing::Test
{
protected:
    WindowSettings()
    {
        test::PpdText ppd = test::constrained();
        ppd.withAttribute("APDialogExtension", test::StagedDriver::bundleName().toUtf8());
        ppd.add({"Duplex",
                 "Two-Sided",
                 test::PpdUi::PickOne,
                 {{"None", "Off"}, {"DuplexNoTumble", "Book"}},
                 "None"});
        for (const char *option : {"Collate", "Glue"})
            ppd.add({option,
                     option,
                     test::PpdUi::PickOne,
                     {{"False", "No"}, {"True", "Yes"}},
                     "False"});
        ppd.withLine("*UIConstraints: *Duplex DuplexNoTumble *PageSize EnvelopeDL");
        PrintCase printCase;
        printCase.ppd = driver.write(q("two-sided.ppd"), ppd.bytes());
        printCase.root = driver.root();
        auto opened = PrintDialog::open(printCase);
        dialog = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
        dialog->showPanels();
    }
    template <class Control>
    Control *control(const char *name)
    {
        return dialog->window()->findChild<Control *>(q(name));
    }
    void choose(const char *name, int index)
    {
        EXPECT_NULL(replay::input::choose(control<PopUpButton>(name), index));
        QCoreApplication::processEvents();
    }
    void click(const char *name)
    {
        EXPECT_NULL(replay::input::click(control<QAbstractButton>(name)));
        QCoreApplication::processEvents();
    }
    void type(const QString &text)
    {
        EXPECT_NULL(replay::input::type(control<QLineEdit>("pageRanges"), text));
        QCoreApplication::processEvents();
    }
    QString setting(const char *key) { return dialog->host().settings().value(q(key)).toString(); }
    QString marked(const char *option) { return dialog->printer().marked(q(option)); }

    test::StagedDriver driver;
    std::unique_ptr<PrintDialog> dialog;
};

TEST_F(WindowSettings, MarkPaperAndSidesInThePpd)
{
    choose("paperSize", 1);
    EXPECT_TEXT(marked("PageSize"), "EnvelopeDL");
    EXPECT_TEXT(dialog->host().ledger().chosen().at(q("PageSize")), "EnvelopeDL");
    choose("paperSize", 0);
    choose("twoSided", 1);
    EXPECT_TEXT(marked("Duplex"), "DuplexNoTumble");
    EXPECT_TRUE(dialog->host().settings().all().empty());
}

TEST_F(WindowSettings, GoBackWhereTheDialogRefusesAChoice)
{
    choose("twoSided", 1);
    choose("paperSize", 1);
    EXPECT_TEXT(marked("PageSize"), "Letter");
    EXPECT_EQ(control<PopUpButton>("paperSize")->currentIndex(), 0);
    QCoreApplication::processEvents();
    EXPECT_TRUE(dialog->window()->conflictSheet().isVisible()) << "which says why";
}

TEST_F(WindowSettings, AreAPersonsLastWord)
{
    dialog->host().setPaperName(q("B5JIS"));
    dialog->host().setSetting(q("media"), q("A4Banner"));
    dialog->host().setSetting(q("sides"), q("one-sided"));
    QCoreApplication::processEvents();
    EXPECT_TEXT(control<PopUpButton>("paperSize")->currentText(), "A4 Banner");
    choose("paperSize", 1);
    EXPECT_NULL(dialog->host().explicitPaperName());
    EXPECT_NULL(setting("media"));
    EXPECT_TEXT(setting("sides"), "one-sided");
    EXPECT_TEXT(control<PopUpButton>("paperSize")->currentText(), "DL Envelope");
}

TEST_F(WindowSettings, HoldPrintBackWhileThePagesAreWrong)
{
    type(q("3-1"));
    const auto *print = control<QPushButton>("printButton");
    EXPECT_FALSE(print->isEnabled());
    EXPECT_TRUE(print->toolTip().contains(q("1-3"))) << print->toolTip().toStdString();
    type(q("1-3"));
    EXPECT_TRUE(print->isEnabled());
    EXPECT_TEXT(setting("page-ranges"), "1-3");
    type(q("x"));
    click("pagesAll");
    EXPECT_TRUE(print->isEnabled());
    EXPECT_NULL(setting("page-ranges"));
}

TEST_F(WindowSettings, MakeRoomForWhatIsSaidOfThePages)
{
    type(q("3")); // what else has come into the window by now has its room, too
    dialog->window()->fitContents();
    const int before = dialog->window()->height();
    type(q("3-1"));
    EXPECT_GT(dialog->window()->height(), before);
    click("pagesAll");
    EXPECT_EQ(dialog->window()->height(), before);
}

TEST_F(WindowSettings, FollowAStateThatIsSetAtOnce)
{
    const ChoiceState before = dialog->host().state();
    type(q("4"));
    type(q("4,y"));
    choose("twoSided", 1);
    dialog->host().setState(before);
    QCoreApplication::processEvents();
    EXPECT_TRUE(control<QRadioButton>("pagesAll")->isChecked());
    EXPECT_TRUE(control<QPushButton>("printButton")->isEnabled());
    EXPECT_EQ(control<PopUpButton>("twoSided")->currentIndex(), 0);
}

TEST_F(WindowSettings, OfTheLayoutFollowThePanels)
{
    dialog->host().printSettings()->setValue(q("mirror"), q("true")); // as a panel does it
    choose("panelPopUp", 0);
    EXPECT_TRUE(control<QCheckBox>("flipHorizontally")->isChecked());
    click("flipHorizontally");
    EXPECT_NULL(setting("mirror"));
}

TEST_F(WindowSettings, KeepThePanelsInStepWithPagesPerSheet)
{
    choose("panelPopUp", 0);
    choose("pagesPerSheet", 2);
    EXPECT_TEXT(setting("number-up"), "4");
    EXPECT_EQ(dialog->host().settings().value(columnsKey()), QVariant(q("2")));
    dialog->host().setSetting(q("number-up"), {});
    QCoreApplication::processEvents();
    EXPECT_FALSE(dialog->host().settings().all().contains(columnsKey()));
    EXPECT_EQ(control<PopUpButton>("pagesPerSheet")->currentIndex(), 0);
}

TEST_F(WindowSettings, AreNoFeaturesOfThePrinterBesides)
{
    dialog->panels().bringForward(dialog->panels().indexOf(q("features")));
    EXPECT_TRUE(control<QWidget>("feature:Glue"));
    for (const char *option : {"feature:PageSize", "feature:Duplex", "feature:Collate"})
        EXPECT_FALSE(control<QWidget>(option)) << option;
}

TEST_F(WindowSettings, AreToldByTheSummaryWhereThePrinterHasThemMarked)
{
    dialog->printer().mark({q("Collate"), q("True")});
    dialog->panels().bringForward(dialog->panels().count() - 1);
    QStringList read;
    const auto *rows = QAccessible::queryAccessibleInterface(control<QWidget>("summaryRows"));
    for (int cell = 0; cell < rows->childCount(); ++cell)
        read.append(rows->child(cell)->text(QAccessible::Name));
    const qsizetype collate = read.indexOf(q("Collate"));
    ASSERT_GE(collate, 0) << read.join(u'|').toStdString();
    EXPECT_TRUE(read.value(collate + 1).startsWith(q("Yes"))) << read[collate + 1].toStdString();
}

TEST_F(WindowSettings, LookRightInTheWindow)
{
    choose("panelPopUp", 0);
    EXPECT_THAT(test::layout::findings(*control<QWidget>("layoutPanel")), testing::IsEmpty());
    EXPECT_LE(dialog->window()->height(), 560);
}

} // namespace
