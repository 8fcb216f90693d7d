// Print quality, paper type and paper source, from a person's choice to the printer's filter: every
// combination, restored and chosen, in two languages. What arrives is what was chosen, but for the
// table of rules in expected_job.cpp.

#include "tests/endtoend/printing.h"
#include "tests/support/print_to.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

using namespace test;
using dialog::Choice;
using dialog::Choices;

namespace {

const QStringList kOptions{q("PrintQuality"), q("MediaType"), q("PaperSource")};

/// Every combination of the choices of these options, as the PPD has them.
std::vector<Choices> combinations(const dialog::PpdDocument &printer, const QStringList &options)
{
    std::vector<Choices> all{{}};
    for (const QString &option : options) {
        std::vector<Choices> longer;
        for (const Choices &shorter : all) {
            for (const QString &keyword : printer.choices(option)) {
                longer.push_back(shorter);
                longer.back().push_back({option, keyword});
            }
        }
        all = std::move(longer);
    }
    return all;
}

std::vector<Choices> everyCombination(const Printing &printing)
{
    std::vector<Choices> all = combinations(printing.open()->dialog().printer(), kOptions);
    EXPECT_EQ(all.size(), 4U * 9U * 2U) << "qualities, paper types, sources";
    return all;
}

/// The half of them that prints from one tray: no rule knows trays.
std::vector<Choices> everyCombinationFrom(const char *tray, const Printing &printing)
{
    std::vector<Choices> all = everyCombination(printing);
    std::erase_if(all, [&](const Choices &combination) {
        return combination.back() != choice("PaperSource", tray);
    });
    EXPECT_EQ(all.size(), 4U * 9U);
    return all;
}

std::vector<Choices> everyPaperType(const Printing &printing)
{
    return combinations(printing.open()->dialog().printer(), {q("MediaType")});
}

Choices reversed(Choices choices)
{
    std::reverse(choices.begin(), choices.end());
    return choices;
}

class Slice : public testing::TestWithParam<Edition>
{
};

} // namespace

TEST_P(Slice, CarriesEveryCombinationThatAPersonChooses)
{
    Printing printing(GetParam());
    for (const Choices &chosen : everyCombination(printing))
        printing.play({{}, chosen});
}

TEST_P(Slice, CarriesEveryCombinationThatAPersonChoosesInTheOppositeOrder)
{
    Printing printing(GetParam());
    for (const Choices &chosen : everyCombinationFrom("Tray2", printing))
        printing.play({{}, reversed(chosen)});
}

TEST_P(Slice, CarriesEveryCombinationThatAPersonChoosesForEnvelopes)
{
    Printing printing(GetParam());
    for (const Choices &chosen : everyCombinationFrom("Tray1", printing))
        printing.play({{choice("PageSize", "EnvelopeDL")}, chosen});
}

TEST_P(Slice, CarriesEveryCombinationThatAPresetRestores)
{
    Printing printing(GetParam());
    for (const Choices &preset : everyCombination(printing))
        printing.play({preset, {}});
}

TEST_P(Slice, CarriesEachPaperTypeChosenAfterIronOnPaper)
{
    Printing printing(GetParam());
    const Choice ironOn = choice("MediaType", "IronOn");
    for (const int version : {kSystem105, kSystem106}) {
        for (const Choices &next : everyPaperType(printing)) {
            printing.play({{}, {ironOn, next.front()}, version});
            printing.play({{ironOn}, next, version});
        }
    }
}

TEST_P(Slice, CarriesMirrorAsOneOptionWhereverItComesFrom)
{
    Printing printing(GetParam());
    const Choice mirror = choice("Mirror", "On");
    for (const int version : {kSystem105, kSystem106}) {
        for (const Choices &paper : everyPaperType(printing)) {
            printing.play({{mirror}, paper, version});
            printing.play({{mirror, paper.front()}, {}, version});
        }
    }
}

TEST_P(Slice, LetsTheJobsMirrorReplaceThePrinters)
{
    Printing printing(GetParam());
    const auto run = printing.open();
    ExpectedJob expected = expectedJob(run->dialog().printer().defaults(), {});
    expected.replaced.insert(expected.marked.extract(q("Mirror")));
    expected.printSettings[q("mirror")] = q("true");
    expected.options = expected.printSettings;
    run->showPanels();
    run->dialog().host().printSettings()->setValue(q("mirror"), q("true"));
    printing.print(*run, expected, q("a print setting"));
    const OptionPairs onlyMirror{{q("mirror"), q("true")}};
    EXPECT_EQ(printing.expectArrivals(), std::vector<OptionPairs>(1, onlyMirror));
}

TEST_P(Slice, LeavesTicketAndJobAsBeforeWhenAChoiceIsRefused)
{
    Printing printing(GetParam());
    const Choice draft = choice("PrintQuality", "Draft");
    const Story before{{}, {choice("PrintQuality", "Best"), choice("MediaType", "IronOn")}};
    const auto run = printing.open();
    ExpectedJob expected = expectedJob(run->dialog().printer().defaults(), before);
    run->showPanels();
    for (const Choice &picked : before.chosen)
        run->choose(picked);
    printing.print(*run, expected, q("before the refusal"));

    run->choose(draft);
    EXPECT_SAME(run->shown(draft.option), q("Best"));
    expected.refused[draft.option] = draft.choice;
    expected.isReviewed = true;
    printing.print(*run, expected, q("after the refusal"));
    const std::vector<OptionPairs> arrived = printing.expectArrivals();
    ASSERT_EQ(arrived.size(), 2U);
    EXPECT_EQ(arrived[0], arrived[1]);
}

TEST_P(Slice, HidesThePaperSourceOfAPrinterWithoutTheSecondTray)
{
    Printing printing(GetParam());
    const Story story{{choice("Tray2Option", "False")}, {choice("PrintQuality", "Best")}};
    const auto run = printing.open();
    const ExpectedJob expected = expectedJob(run->dialog().printer().defaults(), story);
    run->preset(story.preset);
    run->showPanels();
    EXPECT_TEXT(run->obstacleTo(choice("PaperSource", "Tray1")), "the control is hidden");
    run->choose(story.chosen.front());
    printing.print(*run, expected, described(story));
}

INSTANTIATE_TEST_SUITE_P(Editions, Slice, testing::Values(kEnglish, kGerman),
                         [](const auto &edition) { return edition.param.name; });

namespace {

struct LocalisedRows
{
    Edition edition;
    AnsweredOffer ink;
    AnsweredOffer colorOutput;
};

void PrintTo(const LocalisedRows &rows, std::ostream *out)
{
    *out << rows.edition.name;
}

class SavedWords : public testing::TestWithParam<LocalisedRows>
{
};

} // namespace

/// While it is saved the panel offers two words of its own language before the choices themselves.
/// A printer knows them as keywords only where that language is English.
TEST_P(SavedWords, ChangeNothingThatWasChosen)
{
    Printing printing(GetParam().edition);
    const Story story{{choice("ColorOutput", "Black"), choice("InkToUse", "BlackOnly")}, {}};
    const auto run = printing.open();
    const ExpectedJob expected = expectedJob(run->dialog().printer().defaults(), story);
    run->preset(story.preset);
    run->showPanels();
    printing.print(*run, expected, described(story));
    const auto isOffered = [&](const AnsweredOffer &offer) {
        return std::count(run->offers().begin(), run->offers().end(), offer) == 1;
    };
    EXPECT_TRUE(isOffered(GetParam().ink));
    EXPECT_TRUE(isOffered(GetParam().colorOutput));
}

INSTANTIATE_TEST_SUITE_P(Editions, SavedWords,
                         testing::Values(LocalisedRows{kEnglish,
                                                       {choice("InkToUse", "Automatic"), true},
                                                       {choice("ColorOutput", "Color"), true}},
                                         LocalisedRows{kGerman,
                                                       {choice("InkToUse", "Automatisch"), false},
                                                       {choice("ColorOutput", "Farbe"), false}}),
                         [](const auto &rows) { return rows.param.edition.name; });

TEST(SliceLanguages, SendTheSameKeywords)
{
    const auto printed = [](const Edition &edition) {
        Printing printing(edition);
        const std::vector<Choices> all = everyCombination(printing);
        for (std::size_t i = 0; i < all.size(); i += 5) // each choice of each option several times
            printing.play({{}, all[i]});
        return printing.expectArrivals();
    };
    const std::vector<OptionPairs> english = printed(kEnglish);
    EXPECT_EQ(english.size(), 15U);
    EXPECT_EQ(printed(kGerman), english);
}

TEST(SliceUsers, CanRunAnOrdinaryUsersServer)
{
    Printing printing(kEnglish, PrivateCupsd::User::Ordinary);
    printing.play({{}, {choice("MediaType", "IronOn"), choice("PrintQuality", "Best")}});
    printing.play({{choice("MediaType", "Plain")}, {choice("PaperSource", "Tray2")}});
    EXPECT_EQ(printing.expectArrivals().size(), 2U);
}

TEST(SliceJobFolder, HasTheOptionsOfTheQueue)
{
    const Choices chosen{choice("MediaType", "IronOn"), choice("PrintQuality", "Best")};
    dialog::PrintCase printCase;
    printCase.ppd = samplePpd(kEnglish.ppd);
    printCase.language = q(kEnglish.language);
    printCase.systemVersion = kSystem106;
    DialogRun run(printCase);
    const ExpectedJob expected = expectedJob(run.dialog().printer().defaults(), {{}, chosen});
    run.showPanels();
    for (const Choice &picked : chosen)
        run.choose(picked);
    const auto job = run.print();
    ASSERT_TRUE(job);
    EXPECT_EQ(job->id, 0);
    EXPECT_EQ(sorted(job->options), OptionPairs(expected.options.begin(), expected.options.end()));
}
