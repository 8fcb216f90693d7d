#include "dialog/conflict_desk.h"

#include "dialog/host/undo_history.h"
#include "dialog/printers/ppd_document.h"
#include "dialog/window/conflict_sheet.h"
#include "platform/controls/modal_session.h"
#include "tests/support/print_to.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPushButton>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace dialog;
using test::q;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A panel that shows for the fold what is marked when it is told to look, or what a person picked;
/// it keeps what is refused, and hands over what it shows.
class FoldPanel : public PDEPanel
{
public:
    explicit FoldPanel(DialogHost &host, PpdDocument &printer) : host_(host), printer_(printer) {}

    QWidget *panelView() override { return nullptr; }
    QString panelName() override { return q("Fold"); }
    QString panelKind() override { return q("fold"); }
    bool shouldShowHelp() override { return true; }
    QStringList supportedPPDOptionKeys() override { return {q("Fold")}; }
    void willShow() override {}
    bool shouldHide() override { return true; }
    bool restoreValuesAndReturnError(QString *) override
    {
        shown = printer_.marked(q("Fold"));
        return true;
    }
    bool saveValuesAndReturnError(QString *) override
    {
        host_.willChangePPDOptionKeyValue(q("Fold"), shown);
        return true;
    }
    SummaryInfo summaryInfo() override { return {}; }
    void PPDOptionKeyValueDidChange(const QString &, const QString &) override {}

    QString shown;

private:
    DialogHost &host_;
    PpdDocument &printer_;
};

/// A printer on which a booklet goes with neither heavy paper, nor two staples, nor holes.
class ConflictDesks : public testing::Test
{
protected:
    ConflictDesks()
    {
        desk.setSheet(&sheet);
        host.setPanels({panel});
        host.setFrontPanel(panel.get());
        panel->restoreValuesAndReturnError(nullptr);
        QObject::connect(&desk, &ConflictDesk::noticed,
                         [this](const Notice &notice) { notices[notice.key] = notice; });
        QObject::connect(&desk, &ConflictDesk::dismissed, [this](const QString &prefix) {
            std::erase_if(notices,
                          [&](const auto &notice) { return notice.first.startsWith(prefix); });
        });
        mark("MediaWeight", "Heavy");
    }
    static std::unique_ptr<PpdDocument> finisher()
    {
        PpdDocument::Opened opened =
            PpdDocument::open(q(KORVANE_SOURCE_DIR "/tests/scenarios/printers/finisher.ppd"));
        return std::move(std::get<std::unique_ptr<PpdDocument>>(opened));
    }
    static void settle() { QCoreApplication::processEvents(); }

    void mark(const char *option, const char *choice)
    {
        host.changeFromElsewhere({q(option), q(choice)});
        settle();
    }
    /// In a control of the dialog's own.
    void choose(const char *option, const char *choice)
    {
        host.switchChoice({q(option), q(choice)}, Switch::On);
        settle();
    }
    /// In the panel, whose action makes these offers, and which may tell what the person used.
    void chooseInPanel(const Choices &offers, const std::optional<Choice> &used = std::nullopt)
    {
        for (const Choice &offer : offers) {
            host.willChangePPDOptionKeyValue(offer.option, offer.choice);
            if (offer.option == q("Fold"))
                panel->shown = offer.choice; // whatever the answer
        }
        if (used)
            host.recordPersonsChoice(*used);
        settle();
    }
    void press(const char *button)
    {
        sheet.findChild<QPushButton *>(q(button))->click();
        settle();
    }
    [[nodiscard]] QString problem() const { return sheet.question().problem; }
    [[nodiscard]] QString marked(const char *option) const { return printer->marked(q(option)); }
    [[nodiscard]] QStringList told() const
    {
        QStringList texts;
        for (const auto &[key, notice] : notices)
            texts.append(notice.text);
        return texts;
    }

    std::unique_ptr<PpdDocument> printer = finisher();
    DialogHost host{*printer};
    UndoHistory history{host};
    ConflictSheet sheet;
    ConflictDesk desk{*printer, host, history};
    std::shared_ptr<FoldPanel> panel = std::make_shared<FoldPanel>(host, *printer);
    std::map<QString, Notice> notices;
};

const Choice kBooklet{QStringLiteral("Fold"), QStringLiteral("Booklet")};

} // namespace

// What is asked

TEST_F(ConflictDesks, NameBothSettingsAndBothChoicesAndChangeNothingBeforeAPersonHas)
{
    const Choices before = printer->marks();
    choose("Fold", "Booklet");
    EXPECT_TEXT(problem(),
                "“Fold: As a Booklet” cannot be used together with “Paper Weight: Heavy”.");
    EXPECT_EQ(printer->marks(), before);
    EXPECT_THAT(told(), IsEmpty());
}

TEST_F(ConflictDesks, ListExactlyWhatThePickedWayThenChanges)
{
    mark("Stitch", "Twice");
    choose("Fold", "Booklet");
    const QStringList ways = sheet.question().ways;
    for (int i = 0; i < static_cast<int>(ways.size()); ++i) {
        SCOPED_TRACE(ways[i].toStdString());
        Choices before = printer->marks();
        if (!sheet.isAsking())
            choose("Fold", "Booklet");
        Q_EMIT sheet.wayPicked(i);
        settle();
        QStringList lines{q("Fold: “As a Booklet” instead of “None”")};
        for (const QString &line : ways[i].split(u'\n'))
            lines.append(line);
        QStringList changed;
        for (const Choice &mark : before) {
            const Choice now{mark.option, printer->marked(mark.option)};
            if (now != mark)
                changed.append(q("%1: “%2” instead of “%3”")
                                   .arg(printer->optionText(mark.option), printer->choiceText(now),
                                        printer->choiceText(mark)));
        }
        lines.sort();
        changed.sort();
        EXPECT_EQ(changed, lines);
        history.undo();
        settle();
        EXPECT_EQ(printer->marks(), before);
    }
}

TEST_F(ConflictDesks, NeverChangeTheChoiceThatWasJustMadeOnAnyWayOut)
{
    mark("Stitch", "Twice");
    choose("Fold", "Booklet");
    const auto ways = findResolutions(resolutionQuestion(*printer, kBooklet));
    ASSERT_EQ(static_cast<qsizetype>(ways.size()), sheet.question().ways.size());
    ASSERT_FALSE(ways.empty());
    for (const Resolution &way : ways) {
        for (const ChoiceChange &change : way)
            EXPECT_NE(change.option, q("Fold"));
    }
    press("applyResolution");
    EXPECT_TEXT(marked("Fold"), "Booklet");
    EXPECT_TRUE(printer->conflicts().empty());
}

TEST_F(ConflictDesks, RankTheWaysByHowMuchTheyChange)
{
    choose("Fold", "Booklet");
    EXPECT_THAT(sheet.question().ways, ElementsAre(q("Paper Weight: “Normal” instead of “Heavy”"),
                                                   q("Paper Weight: “Light” instead of “Heavy”")))
        << "the default first";
    const auto ways = findResolutions(resolutionQuestion(*printer, kBooklet));
    for (std::size_t i = 1; i < ways.size(); ++i)
        EXPECT_LE(ways[i - 1].size(), ways[i].size());
}

// The ways out of it

TEST_F(ConflictDesks, MakeAWayOutThatCanBeTakenBackAndMadeAgain)
{
    choose("Fold", "Booklet");
    press("applyResolution");
    EXPECT_TEXT(marked("Fold"), "Booklet");
    EXPECT_TEXT(marked("MediaWeight"), "Normal");
    history.undo();
    settle();
    EXPECT_TEXT(marked("Fold"), "None");
    EXPECT_TEXT(marked("MediaWeight"), "Heavy");
    EXPECT_THAT(told(), IsEmpty());
    history.redo();
    settle();
    EXPECT_TEXT(marked("Fold"), "Booklet");
    EXPECT_TEXT(marked("MediaWeight"), "Normal");
    EXPECT_FALSE(sheet.isAsking());
}

TEST_F(ConflictDesks, KeepWhatWasSetAndLeaveNothingToSayOrToUndo)
{
    const Choices before = printer->marks();
    chooseInPanel({kBooklet}, kBooklet);
    ASSERT_TRUE(sheet.isAsking());
    press("keepChoice");
    EXPECT_EQ(printer->marks(), before);
    EXPECT_TEXT(panel->shown, "None") << "the panel shows it, too";
    EXPECT_THAT(told(), IsEmpty());
    EXPECT_FALSE(history.canUndo());
    EXPECT_TRUE(host.commitPanels().isClean());
}

TEST_F(ConflictDesks, KeepWhatWasSetAlsoAfterAJobThatWasAboutToBeMadeHasMarkedTheChoice)
{
    const Choices before = printer->marks();
    chooseInPanel({kBooklet}, kBooklet);
    EXPECT_FALSE(host.commitPanels().isClean());
    EXPECT_TEXT(marked("Fold"), "Booklet") << "the panel has handed it over";
    press("keepChoice");
    EXPECT_EQ(printer->marks(), before);
    EXPECT_TEXT(panel->shown, "None");
}

TEST_F(ConflictDesks, MakeAWayOutAlsoAfterAJobThatWasAboutToBeMadeHasMarkedTheChoice)
{
    chooseInPanel({kBooklet}, kBooklet);
    static_cast<void>(host.commitPanels());
    press("applyResolution");
    EXPECT_TEXT(marked("Fold"), "Booklet");
    EXPECT_TEXT(marked("MediaWeight"), "Normal");
    EXPECT_TRUE(host.commitPanels().isClean());
}

TEST_F(ConflictDesks, AskAgainWhenSomethingElseHasBeenSetBeforeTheAnswer)
{
    choose("Fold", "Booklet");
    printer->mark({q("Stitch"), q("Twice")}); // nobody has been told so far
    press("applyResolution");
    EXPECT_TEXT(marked("Fold"), "None");
    ASSERT_TRUE(sheet.isAsking());
    EXPECT_TRUE(sheet.question().ways.first().contains(q("Staples")));
    press("applyResolution");
    EXPECT_TEXT(marked("Fold"), "Booklet");
    EXPECT_TRUE(printer->conflicts().empty());
}

TEST_F(ConflictDesks, KeepHoweverOftenTheyAreToldTo)
{
    choose("Fold", "Booklet");
    press("keepChoice");
    Q_EMIT sheet.kept();
    EXPECT_TEXT(marked("Fold"), "None");
}

// What happens meanwhile

TEST_F(ConflictDesks, AskAboutTheSecondOfTwoConflictsInARow)
{
    mark("Stitch", "Twice");
    choose("Fold", "Booklet");
    printer->mark({q("Fold"), q("Booklet")});
    choose("Holes", "Left");
    EXPECT_TRUE(problem().startsWith(q("“Holes: Left”"))) << problem().toStdString();
    press("keepChoice");
    EXPECT_TEXT(marked("Holes"), "None");
    EXPECT_FALSE(sheet.isAsking());
}

TEST_F(ConflictDesks, ClosesWhenAPersonTriesSomethingElse)
{
    choose("Fold", "Booklet");
    choose("Stitch", "Once");
    EXPECT_FALSE(sheet.isAsking());
    EXPECT_TEXT(marked("Stitch"), "Once");
    EXPECT_TEXT(marked("Fold"), "None");
}

TEST_F(ConflictDesks, CloseWhenEverythingIsSetAtOnce)
{
    const ChoiceState defaults{printer->defaults(), {}, {}, {}};
    choose("Fold", "Booklet");
    history.change(q("Reset to Defaults"), [&] { host.setState(defaults); });
    settle();
    EXPECT_FALSE(sheet.isAsking());
    EXPECT_EQ(printer->marks(), printer->defaults());
    history.undo();
    settle();
    EXPECT_TEXT(marked("MediaWeight"), "Heavy");
    EXPECT_FALSE(sheet.isAsking()) << "the question is past";
}

TEST_F(ConflictDesks, CloseWhenAPresetIsAppliedThatKeepsTheConflict)
{
    ChoiceState preset = host.state();
    preset.settings[q("mirror")] = q("true");
    choose("Fold", "Booklet");
    host.setState(preset);
    settle();
    EXPECT_FALSE(sheet.isAsking());
}

TEST_F(ConflictDesks, CloseWhenWhatIsInTheWayHasGone)
{
    choose("Fold", "Booklet");
    mark("MediaWeight", "Light");
    EXPECT_FALSE(sheet.isAsking());
}

TEST_F(ConflictDesks, TellAReviewWhatIsNotAnswered)
{
    choose("Fold", "Booklet");
    const std::vector<Difference> unanswered{{q("Fold"), q("Booklet"), q("None")}};
    EXPECT_EQ(host.commitPanels().differences, unanswered);
    press("keepChoice");
    EXPECT_TRUE(host.commitPanels().isClean());
    choose("Fold", "Booklet");
    press("applyResolution");
    EXPECT_TRUE(host.commitPanels().isClean());
    mark("Stitch", "Once");
    EXPECT_TRUE(host.commitPanels().isClean());
}

// What it is about

TEST_F(ConflictDesks, AskAboutTheControlThatWasUsedHoweverLateItsOfferCame)
{
    chooseInPanel({{q("Stitch"), q("Once")}, kBooklet}, kBooklet);
    EXPECT_TRUE(problem().startsWith(q("“Fold: As a Booklet”"))) << problem().toStdString();
    EXPECT_THAT(told(), IsEmpty());
}

TEST_F(ConflictDesks, TellWhatARuleWasRefusedInsteadOfAskingAboutIt)
{
    chooseInPanel({kBooklet, {q("Stitch"), q("Once")}}, Choice{q("Stitch"), q("Once")});
    EXPECT_FALSE(sheet.isAsking()) << "what the person chose stands";
    EXPECT_THAT(told(), ElementsAre(q("“Fold: As a Booklet” cannot be used together with "
                                      "“Paper Weight: Heavy”.")));
}

TEST_F(ConflictDesks, AskAboutOneOfSeveralOptionsOfOneControl)
{
    host.willChangePPDOptionKeyValue(q("Fold"), q("Booklet"));
    host.willChangePPDOptionKeyValue(q("Stitch"), q("Once"));
    host.recordPersonsChoice(kBooklet);
    host.recordPersonsChoice({q("Stitch"), q("Once")});
    settle();
    EXPECT_TRUE(problem().startsWith(q("“Fold: As a Booklet”")));
}

TEST_F(ConflictDesks, LeaveTheMatterToAPanelThatHasAskedItself)
{
    QDialog window;
    host.willChangePPDOptionKeyValue(q("Fold"), q("Booklet"));
    QTimer::singleShot(0, [] { platform::stopModal(); });
    platform::runModalForWindow(&window);
    host.recordPersonsChoice(kBooklet);
    settle();
    EXPECT_FALSE(sheet.isAsking());
    EXPECT_THAT(told(), IsEmpty()) << "the panel may hold it, and hand it over later";
}

// What stands until it is resolved

TEST_F(ConflictDesks, TellWhatTheDialogRefusedAndARuleKeepsUntilItIsResolved)
{
    chooseInPanel({kBooklet}, kBooklet);
    chooseInPanel({{q("Stitch"), q("Once")}}, Choice{q("Stitch"), q("Once")});
    ASSERT_THAT(told(), ElementsAre(q("Fold: you chose “As a Booklet”, but “None” is set.")));
    mark("MediaWeight", "Normal");
    chooseInPanel({kBooklet}, kBooklet);
    EXPECT_THAT(told(), IsEmpty());
}

TEST_F(ConflictDesks, TellWhatARuleDropsOnceMoreBeforeTheJob)
{
    chooseInPanel({{q("Stitch"), q("Twice")}}, Choice{q("Stitch"), q("Twice")});
    EXPECT_THAT(told(), IsEmpty());
    chooseInPanel({{q("Fold"), q("Half")}, {q("Stitch"), q("None")}},
                  Choice{q("Fold"), q("Half")}); // the second is what a rule makes of it
    EXPECT_THAT(told(), ElementsAre(q("Staples: you chose “Two”, but “None” is set.")));
    const std::vector<Difference> dropped{{q("Stitch"), q("Twice"), q("None")}};
    EXPECT_EQ(host.commitPanels().differences, dropped);
}

TEST_F(ConflictDesks, TakeWhatIsSetForChosenWhenAPersonKeepsItThisWay)
{
    chooseInPanel({kBooklet}, kBooklet);
    chooseInPanel({{q("Stitch"), q("Once")}}, Choice{q("Stitch"), q("Once")});
    ASSERT_EQ(notices.size(), 1U);
    notices.begin()->second.actions.front().run();
    settle();
    EXPECT_TEXT(panel->shown, "None") << "the panel keeps it no longer";
    EXPECT_TEXT(marked("Stitch"), "Once");
    EXPECT_TRUE(host.commitPanels().isClean());
    EXPECT_TEXT(marked("Fold"), "None");
}

TEST_F(ConflictDesks, KeepThisWayOnlyWhatTheNoticeSaid)
{
    host.recordPersonsChoice({q("Holes"), q("Left")}); // typed, and never offered
    settle();
    chooseInPanel({kBooklet}, kBooklet);
    chooseInPanel({{q("Stitch"), q("Once")}}, Choice{q("Stitch"), q("Once")});
    ASSERT_THAT(told(), ElementsAre(q("Fold: you chose “As a Booklet”, but “None” is set.")));
    notices.begin()->second.actions.front().run();
    settle();
    const std::vector<Difference> untold{{q("Holes"), q("Left"), q("None")}};
    EXPECT_EQ(host.commitPanels().differences, untold) << "the review still tells it";
}

TEST_F(ConflictDesks, TellAgainWhatAWayOutOfAnotherConflictTookFromThePanel)
{
    chooseInPanel({kBooklet}, kBooklet);
    ASSERT_EQ(panel->shown, q("Booklet"));
    mark("StackerInstalled", "True");
    history.change(q("Something else"), [&] {
        ChoiceState state = host.state();
        state.settings[q("mirror")] = q("true");
        host.setState(state); // the panel looks at what is marked
    });
    settle();
    EXPECT_TEXT(panel->shown, "None");
    EXPECT_THAT(told(), ElementsAre(q("Fold: you chose “As a Booklet”, but “None” is set.")));
    EXPECT_EQ(host.commitPanels().differences.size(), 1U);
}
