#include "dialog/host/dialog_host.h"
#include "dialog/printers/ppd_document.h"
#include "tests/dialog/staged_driver.h"
#include "tests/support/print_to.h"

#include <cups/ppd.h>

#include <QCoreApplication>

#include <gtest/gtest.h>

using namespace dialog;
using test::q;

namespace {

/// A panel that writes down what it is told, and saves what the test gives it.
class RecordingPanel : public PDEPanel
{
public:
    QWidget *panelView() override { return nullptr; }
    QString panelName() override { return q("Recording"); }
    QString panelKind() override { return q("recording"); }
    bool shouldShowHelp() override { return true; }
    QStringList supportedPPDOptionKeys() override { return {}; }
    void willShow() override { ++shown; }
    bool shouldHide() override { return true; }
    bool restoreValuesAndReturnError(QString *) override
    {
        ++restored;
        return true;
    }
    bool saveValuesAndReturnError(QString *) override
    {
        for (const Choice &pair : saved)
            answers.push_back(host->willChangePPDOptionKeyValue(pair.option, pair.choice));
        return true;
    }
    SummaryInfo summaryInfo() override { return {}; }
    void PPDOptionKeyValueDidChange(const QString &option, const QString &choice) override
    {
        told.push_back({option, choice});
        if (!answersWith.option.isNull())
            host->willChangePPDOptionKeyValue(answersWith.option, answersWith.choice);
    }

    PDEPlugInCallback *host = nullptr;
    Choices saved;
    Choices told;
    Choice answersWith; ///< offered whenever it is told something
    std::vector<bool> answers;
    int restored = 0;
    int shown = 0;
};

std::unique_ptr<PpdDocument> openPpd(const QString &path)
{
    auto opened = PpdDocument::open(path);
    auto *printer = std::get_if<std::unique_ptr<PpdDocument>>(&opened);
    if (printer)
        return std::move(*printer);
    ADD_FAILURE() << std::get<PpdError>(opened).message().toStdString();
    return nullptr;
}

class Host : public testing::Test
{
protected:
    Host()
    {
        front->host = &host;
        other->host = &host;
        host.setPanels({front, other});
        host.setFrontPanel(front.get());
        QObject::connect(&host, &DialogHost::judged,
                         [this](const OfferOutcome &outcome) { outcomes.push_back(outcome); });
    }

    bool offer(const char *option, const char *choice)
    {
        return host.willChangePPDOptionKeyValue(q(option), q(choice));
    }
    QString marked(const char *option) { return printer->marked(q(option)); }
    /// Long enough for what is told in answer to what was told.
    static void runEventLoop()
    {
        for (int turn = 0; turn < 3; ++turn)
            QCoreApplication::processEvents();
    }

    test::StagedDriver driver;
    std::unique_ptr<PpdDocument> printer = openPpd(driver.writePrinter());
    DialogHost host{*printer};
    std::shared_ptr<RecordingPanel> front = std::make_shared<RecordingPanel>();
    std::shared_ptr<RecordingPanel> other = std::make_shared<RecordingPanel>();
    std::vector<OfferOutcome> outcomes;
};

TEST_F(Host, MarksAnAcceptedChoice)
{
    EXPECT_TRUE(offer("PrintQuality", "Best"));
    EXPECT_TEXT(marked("PrintQuality"), "Best");
}

TEST_F(Host, RefusesANullChoiceAndMarksNothing)
{
    const Choices before = printer->marks();
    EXPECT_FALSE(host.willChangePPDOptionKeyValue(q("PrintQuality"), QString()));
    EXPECT_EQ(outcomes.back().verdict, OfferVerdict::NullChoice);
    EXPECT_EQ(printer->marks(), before);
}

TEST_F(Host, RefusesUnknownOptionsAndChoicesAndMarksNothing)
{
    const Choices before = printer->marks();
    EXPECT_FALSE(offer("NoSuchOption", "Best"));
    EXPECT_EQ(outcomes.back().verdict, OfferVerdict::UnknownOption);
    EXPECT_FALSE(offer("PrintQuality", "NoSuchChoice"));
    EXPECT_EQ(outcomes.back().verdict, OfferVerdict::UnknownChoice);
    EXPECT_FALSE(offer("PrintQuality", ""));
    EXPECT_EQ(printer->marks(), before);
}

TEST_F(Host, RefusesWhatAConstraintForbidsAndNamesWhatIsInTheWay)
{
    ASSERT_TRUE(offer("PrintQuality", "Draft"));
    const Choices before = printer->marks();
    EXPECT_FALSE(offer("MediaType", "IronOn"));
    EXPECT_EQ(outcomes.back().verdict, OfferVerdict::Conflicts);
    EXPECT_EQ(outcomes.back().inTheWay, Choices({{q("PrintQuality"), q("Draft")}}));
    EXPECT_EQ(printer->marks(), before);
}

TEST_F(Host, RefusesAConstraintThatIsWrittenTheOtherWayRoundToo)
{
    ASSERT_TRUE(offer("Mirror", "On"));
    EXPECT_FALSE(offer("MediaType", "Transparency"));
    ASSERT_TRUE(offer("Mirror", "Off"));
    ASSERT_TRUE(offer("MediaType", "Transparency"));
    EXPECT_FALSE(offer("Mirror", "On"));
}

TEST_F(Host, AcceptsAChoiceBesideAConflictThatIsNotItsOwn)
{
    printer->mark({q("PrintQuality"), q("Draft")});
    printer->mark({q("MediaType"), q("IronOn")});
    EXPECT_TRUE(offer("Sharpen", "High"));
    EXPECT_TRUE(offer("PrintQuality", "Best")) << "the way out of a conflict is open";
}

TEST_F(Host, TellsTheOtherPanelsAfterTheOfferHasReturned)
{
    ASSERT_TRUE(offer("PrintQuality", "Best"));
    EXPECT_TRUE(other->told.empty()) << "the offer has not returned";
    runEventLoop();
    EXPECT_EQ(other->told, Choices({{q("PrintQuality"), q("Best")}}));
    EXPECT_TRUE(front->told.empty()) << "the panel that offered hears no echo";
}

TEST_F(Host, TellsNobodyOfARefusedOffer)
{
    EXPECT_FALSE(offer("PrintQuality", "NoSuchChoice"));
    runEventLoop();
    EXPECT_TRUE(other->told.empty());
    EXPECT_TRUE(front->told.empty());
}

TEST_F(Host, AnOfferOfAPanelThatIsBeingToldReachesTheOthersOnly)
{
    other->answersWith = {q("Sharpen"), q("High")};
    ASSERT_TRUE(offer("PrintQuality", "Best"));
    runEventLoop();
    EXPECT_EQ(front->told, Choices({{q("Sharpen"), q("High")}}));
    EXPECT_EQ(other->told, Choices({{q("PrintQuality"), q("Best")}}));
}

TEST_F(Host, MarksAnElsewhereChangeAndTellsEveryPanelTheWordAsItStands)
{
    host.changeFromElsewhere({q("PrintQuality"), q("best")});
    EXPECT_TEXT(marked("PrintQuality"), "Best");
    EXPECT_EQ(front->told, Choices({{q("PrintQuality"), q("best")}}));
    EXPECT_EQ(other->told, front->told);
}

TEST_F(Host, RefusesOnDemandAsOftenAsAsked)
{
    host.refuseOffers(q("PrintQuality"), 2);
    EXPECT_FALSE(offer("PrintQuality", "Best"));
    EXPECT_EQ(outcomes.back().verdict, OfferVerdict::Refused);
    EXPECT_TRUE(offer("Sharpen", "High"));
    EXPECT_FALSE(offer("PrintQuality", "Best"));
    EXPECT_TRUE(offer("PrintQuality", "Best"));
}

TEST_F(Host, RefusesOnDemandUntilToldToStop)
{
    host.refuseOffers(q("PrintQuality"), std::nullopt);
    for (int i = 0; i < 5; ++i)
        EXPECT_FALSE(offer("PrintQuality", "Best"));
    host.refuseOffers(q("PrintQuality"), 0);
    EXPECT_TRUE(offer("PrintQuality", "Best"));
}

TEST_F(Host, CommitMarksEveryKnownPairWithoutLookingAtConstraints)
{
    front->saved = {{q("InkToUse"), q("Automatisch")},
                    {q("MediaType"), q("IronOn")},
                    {q("PrintQuality"), q("Draft")},
                    {q("Sharpen"), QString()},
                    {q("NoSuchOption"), q("x")}};
    host.refuseOffers(q("MediaType"), std::nullopt);
    outcomes.clear();
    const CommitResult result = host.commitPanels();
    EXPECT_TEXT(marked("MediaType"), "IronOn");
    EXPECT_TEXT(marked("PrintQuality"), "Draft");
    EXPECT_EQ(front->answers, std::vector<bool>({false, true, true, false, false}));
    EXPECT_TRUE(outcomes.empty()) << "nothing is shown while panels commit";
    ASSERT_EQ(result.conflicts.size(), 1U) << "each pair once, though the PPD says it both ways";
    runEventLoop();
    EXPECT_TRUE(other->told.empty());
}

TEST_F(Host, CommitSaysWhereTheJobDiffersFromWhatAPersonChose)
{
    ASSERT_TRUE(offer("PrintQuality", "Best"));
    runEventLoop();
    front->saved = {{q("PrintQuality"), q("Normal")}};
    const CommitResult result = host.commitPanels();
    const Difference expected{q("PrintQuality"), q("Best"), q("Normal")};
    EXPECT_EQ(result.differences, std::vector<Difference>({expected}));
    EXPECT_FALSE(result.isClean());
}

TEST_F(Host, CommitSaysWhichChoicesOfAPresetOrAnotherPanelWereDropped)
{
    printer->mark({q("Sharpen"), q("High")});
    host.takeMarksAsChosen();
    host.changeFromElsewhere({q("PrintQuality"), q("Best")});
    host.changeFromElsewhere({q("PrintQuality"), q("NoSuchChoice")});
    front->saved = {{q("PrintQuality"), q("Normal")}, {q("Sharpen"), q("Off")}};
    const std::vector<Difference> expected{{q("PrintQuality"), q("Best"), q("Normal")},
                                           {q("Sharpen"), q("High"), q("Off")}};
    EXPECT_EQ(host.commitPanels().differences, expected);
}

TEST_F(Host, CommitFindsARefusedChoiceThatThePanelDropped)
{
    ASSERT_TRUE(offer("PrintQuality", "Draft"));
    runEventLoop();
    ASSERT_FALSE(offer("MediaType", "IronOn"));
    const Difference expected{q("MediaType"), q("IronOn"), q("Plain")};
    EXPECT_EQ(host.commitPanels().differences, std::vector<Difference>({expected}));
}

TEST_F(Host, CountsTheFollowingOffersOfAnActionAsTheRulesOnes)
{
    ASSERT_TRUE(offer("MediaType", "IronOn"));
    ASSERT_TRUE(offer("Mirror", "On"));
    runEventLoop();
    ASSERT_TRUE(offer("Sharpen", "High"));
    const std::map<QString, QString> expected{{q("MediaType"), q("IronOn")},
                                              {q("Sharpen"), q("High")}};
    EXPECT_EQ(host.ledger().chosen(), expected);
}

TEST_F(Host, OffersInsideAPanelsCallAreNobodysChoice)
{
    host.callPanel(front.get(), [&](PDEPanel &) { offer("PrintQuality", "Best"); });
    EXPECT_TRUE(host.ledger().chosen().empty());
    EXPECT_TEXT(marked("PrintQuality"), "Best");
}

TEST_F(Host, ThePaperFollowsTheMarkedPageSizeUnlessNamed)
{
    host.followPageSize();
    EXPECT_TEXT(host.pageFormat()->paper().ppdName, "Letter");
    ASSERT_TRUE(offer("PageSize", "EnvelopeDL"));
    EXPECT_TEXT(host.pageFormat()->paper().ppdName, "EnvelopeDL");
    host.setPaperName(q("B5JIS"));
    ASSERT_TRUE(offer("PageSize", "Letter"));
    EXPECT_TEXT(host.pageFormat()->paper().ppdName, "B5JIS");
}

TEST_F(Host, AChoiceOfTheDialogsOwnIsMarkedCountedAndToldToEveryPanel)
{
    EXPECT_EQ(host.choose({q("PrintQuality"), q("Best")}).verdict, OfferVerdict::Accepted);
    EXPECT_TEXT(marked("PrintQuality"), "Best");
    EXPECT_EQ(front->told, Choices({{q("PrintQuality"), q("Best")}}));
    EXPECT_EQ(other->told, front->told);
    EXPECT_EQ(host.ledger().chosen().at(q("PrintQuality")), q("Best"));
}

TEST_F(Host, AForbiddenChoiceOfTheDialogsOwnLeavesEverythingAsItWas)
{
    ASSERT_TRUE(offer("PrintQuality", "Draft"));
    runEventLoop();
    const ChoiceState before = host.state();
    EXPECT_EQ(host.choose({q("MediaType"), q("IronOn")}).verdict, OfferVerdict::Conflicts);
    EXPECT_EQ(host.state(), before);
    EXPECT_EQ(outcomes.back().inTheWay, Choices({{q("PrintQuality"), q("Draft")}}));
    EXPECT_TRUE(front->told.empty());
}

TEST_F(Host, GoesBackToAnEarlierStateAndHasThePanelsReadIt)
{
    host.setSetting(q("copies"), q("2"));
    host.setPaperName(q("B5JIS"));
    ASSERT_TRUE(offer("PrintQuality", "Best"));
    const ChoiceState before = host.state();
    host.setSetting(q("copies"), {});
    host.setSetting(q("number-up"), q("4"));
    host.setPaperName({});
    ASSERT_TRUE(offer("PrintQuality", "Draft"));
    ASSERT_TRUE(offer("Sharpen", "High"));
    front->told.clear();
    host.setState(before);
    EXPECT_EQ(host.state(), before);
    EXPECT_TEXT(host.pageFormat()->paper().ppdName, "B5JIS");
    EXPECT_EQ(front->restored, 1);
    EXPECT_EQ(other->restored, 1);
    EXPECT_EQ(front->shown, 1);
    EXPECT_EQ(other->shown, 0) << "only the panel in front shows anything";
    runEventLoop();
    EXPECT_TRUE(other->told.empty()) << "what was accepted before is past";
}

TEST_F(Host, SaysOnceForManyThatSomethingChanged)
{
    int changes = 0;
    QObject::connect(&host, &DialogHost::stateChanged, [&] { ++changes; });
    ASSERT_TRUE(offer("PrintQuality", "Best"));
    host.setSetting(q("copies"), q("2"));
    host.choose({q("Sharpen"), q("High")});
    EXPECT_EQ(changes, 0);
    runEventLoop();
    EXPECT_EQ(changes, 1);
    host.setSetting(q("copies"), q("3"));
    runEventLoop();
    EXPECT_EQ(changes, 2);
}

TEST_F(Host, GivesThePrinterAWordForItsEncoding)
{
    const auto bare =
        openPpd(driver.write(q("bare.ppd"), test::p1().withLanguageEncoding({}).bytes()));
    EXPECT_STREQ(bare->handle()->lang_encoding, "UTF-8");
}

} // namespace
