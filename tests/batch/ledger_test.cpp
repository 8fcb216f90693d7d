#include "dialog/batch/control_use.h"
#include "dialog/print_dialog.h"
#include "tests/support/print_to.h"

#include <QApplication>

#include <gtest/gtest.h>

#include <map>

using namespace test;
using dialog::Choice;
using dialog::ChoiceLedger;
using dialog::Difference;
using dialog::PrintDialog;

namespace {

using Chosen = std::map<QString, QString>;

/// The dialog with the real panels, used as a person uses it.
class PersonsChoices : public testing::Test
{
protected:
    void open(const char *ppd)
    {
        QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false); // lists open at once
        dialog::PrintCase printCase;
        printCase.root = q(KORVANE_ROOT_DIR);
        printCase.ppd = printCase.root + q("/Library/Printers/Korvane/PPDs/") + q(ppd);
        printCase.language = q("en");
        PrintDialog::Opened opened = PrintDialog::open(printCase);
        ASSERT_TRUE(std::holds_alternative<std::unique_ptr<PrintDialog>>(opened));
        dialog_ = std::move(std::get<std::unique_ptr<PrintDialog>>(opened));
        dialog_->showPanels();
        QCoreApplication::processEvents();
    }
    /// With a control of that panel, and not another one's where a name is given.
    void choose(std::size_t panel, const Choice &choice, const QString &control = {})
    {
        const dialog::LoadedPanel &entry = dialog_->panels().loaded()[panel];
        dialog_->panels().bringForward(dialog_->panels().indexOf(entry.kind));
        QCoreApplication::processEvents();
        auto controls = entry.panel->diagnostics()->optionControls();
        std::erase_if(controls, [&](const PDEOptionControl &other) {
            return !control.isNull() && other.control != control;
        });
        EXPECT_EQ(dialog::batch::chooseWithControl(controls, entry.view, choice),
                  dialog::batch::Use::Acted);
        QCoreApplication::processEvents(); // what a person does next is another action
    }
    [[nodiscard]] const Chosen &chosen() const { return dialog_->host().ledger().chosen(); }

    std::unique_ptr<PrintDialog> dialog_;
};

} // namespace

TEST_F(PersonsChoices, AreNotTheInksThatColourOutputOffersFirst)
{
    open("Korvane-S300.ppd");
    choose(0, {q("ColorOutput"), q("Black")});
    EXPECT_EQ(chosen(), (Chosen{{q("ColorOutput"), q("Black")}}));
    choose(0, {q("InkToUse"), q("BlackOnly")});
    EXPECT_EQ(chosen(), (Chosen{{q("ColorOutput"), q("Black")}, {q("InkToUse"), q("BlackOnly")}}));
}

TEST_F(PersonsChoices, StayWhenAnotherControlTakesThemBack)
{
    open("Korvane-S300.ppd");
    choose(0, {q("ColorOutput"), q("Black")});
    choose(0, {q("InkToUse"), q("BlackOnly")});
    choose(0, {q("ColorOutput"), q("Color")});
    EXPECT_EQ(chosen(), (Chosen{{q("ColorOutput"), q("Color")}, {q("InkToUse"), q("BlackOnly")}}));
    const std::vector<Difference> expected{{q("InkToUse"), q("BlackOnly"), q("Automatic")}};
    EXPECT_EQ(dialog_->commit().differences, expected) << "so that the person is told";
}

TEST_F(PersonsChoices, AreKnownOfAPanelThatOffersNothing)
{
    open("Korvane-T500.ppd");
    choose(1, {q("ReduceGhosting"), q("On")});
    choose(1, {q("ImprovementSettings"), q("On")});
    choose(1, {q("ImprovePrintQuality"), q("ImproveTonerFixing")});
    EXPECT_EQ(chosen(), (Chosen{{q("ReduceGhosting"), q("On")},
                                {q("ImprovementSettings"), q("On")},
                                {q("ImprovePrintQuality"), q("ImproveTonerFixing")}}));
}

TEST_F(PersonsChoices, AThresholdThatIsTypedAndNeverHandedOverIsTold)
{
    open("Korvane-T500.ppd");
    choose(0, {q("ColorOutput"), q("Mono")});
    choose(0, {q("Threshold"), q("5")}, q("ibThresholdTextFeild"));
    EXPECT_TRUE(chosen().contains(q("Threshold")));
    const std::vector<Difference> expected{{q("Threshold"), q("5"), q("3")}};
    EXPECT_EQ(dialog_->commit().differences, expected);
}

TEST_F(PersonsChoices, AreStillToldWhenAllIsSetAtOnceAndThePanelLooksAnew)
{
    open("Korvane-T500.ppd");
    choose(0, {q("ColorOutput"), q("Mono")});
    choose(0, {q("Threshold"), q("5")}, q("ibThresholdTextFeild"));
    dialog_->host().setState(dialog_->host().state()); // as a way out of a conflict does
    const std::vector<Difference> expected{{q("Threshold"), q("5"), q("3")}};
    EXPECT_EQ(dialog_->commit().differences, expected);
}

TEST_F(PersonsChoices, OfAStepperAreWhereItEnds)
{
    open("Korvane-T500.ppd");
    choose(0, {q("ColorOutput"), q("Mono")});
    choose(0, {q("Threshold"), q("5")}, q("ibThresholdStepper"));
    EXPECT_EQ(chosen(), (Chosen{{q("ColorOutput"), q("Mono")}, {q("Threshold"), q("5")}}));
    EXPECT_TRUE(dialog_->commit().differences.empty());
}

TEST_F(PersonsChoices, StandAlsoWhenTheyAreRefused)
{
    open("Korvane-S300.ppd");
    choose(0, {q("MediaType"), q("IronOn")});
    choose(0, {q("PrintQuality"), q("Draft")});
    EXPECT_EQ(chosen(), (Chosen{{q("MediaType"), q("IronOn")}, {q("PrintQuality"), q("Draft")}}));
}

// The ledger by itself.

TEST(Ledger, TakesTheFirstOfferForThePersonsUntilItKnowsBetter)
{
    ChoiceLedger ledger;
    ledger.recordChosen({q("Ink"), q("Black")});
    ledger.beginAction();
    ledger.recordOffer({q("Ink"), q("Automatic")});
    ledger.recordOffer({q("Output"), q("Color")});
    EXPECT_EQ(ledger.chosen(), (Chosen{{q("Ink"), q("Automatic")}}));
    ledger.recordAction({q("Output"), q("Color")});
    EXPECT_EQ(ledger.chosen(), (Chosen{{q("Ink"), q("Black")}, {q("Output"), q("Color")}}));
}

TEST(Ledger, KeepsEveryActionOfOneTurnOfTheEventLoop)
{
    ChoiceLedger ledger;
    ledger.beginAction();
    ledger.recordAction({q("A"), q("1")});
    ledger.recordAction({q("B"), q("2")});
    EXPECT_EQ(ledger.chosen(), (Chosen{{q("A"), q("1")}, {q("B"), q("2")}}));
}
