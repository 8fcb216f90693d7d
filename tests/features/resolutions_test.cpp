#include "dialog/printers/ppd_document.h"
#include "dialog/printers/resolutions.h"
#include "tests/dialog/staged_driver.h"
#include "tests/features/random_printer.h"
#include "tests/support/print_to.h"

#include <cups/ppd.h>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace dialog {

static void PrintTo(const ChoiceChange &change, std::ostream *out)
{
    *out << (change.option + u' ' + change.from + u'>' + change.to).toStdString();
}

} // namespace dialog

using namespace dialog;
using test::q;

namespace {

PrinterOption pickOne(const char *keyword, const QStringList &choices)
{
    PrinterOption option{q(keyword), q(keyword), OptionKind::PickOne, {}, {choices.first()}};
    for (const QString &choice : choices)
        option.choices.push_back({choice, choice});
    return option;
}

/// Paper, quality, two-sidedness and holes; a second tray is built in or not.
ResolutionQuestion question(const QStringList &constraints)
{
    PrinterOption holes = pickOne("Holes", {q("None"), q("Left"), q("Top")});
    holes.kind = OptionKind::PickMany;
    Constraints parsed;
    for (const QString &constraint : constraints)
        parsed.push_back(parseConstraint(constraint));
    return {{{q("General"),
              {},
              GroupKind::Usual,
              {pickOne("PageSize", {q("A4"), q("A3"), q("A5")}),
               pickOne("Media", {q("Auto"), q("Plain"), q("Film")}),
               pickOne("Quality", {q("Normal"), q("Draft"), q("Best")}),
               pickOne("Duplex", {q("None"), q("Long"), q("Short")}), holes}},
             {q("InstallableOptions"),
              {},
              GroupKind::Installable,
              {pickOne("Tray", {q("False"), q("True")})}}},
            ConstraintTable(parsed),
            {{q("PageSize"), q("A4")},
             {q("Media"), q("Plain")},
             {q("Quality"), q("Draft")},
             {q("Duplex"), q("Long")},
             {q("Holes"), q("Left")},
             {q("Holes"), q("Top")},
             {q("Tray"), q("False")}},
            {}};
}

std::vector<Resolution> waysTo(const Choice &wanted, const QStringList &constraints)
{
    ResolutionQuestion asked = question(constraints);
    asked.wanted = wanted;
    return findResolutions(asked);
}

const Choice kFilm{q("Media"), q("Film")};

TEST(Resolutions, OfOneConstraintBeginWithTheDefaultOfTheOtherOption)
{
    EXPECT_EQ(waysTo(kFilm, {q("*Media Film *Quality Draft")}),
              (std::vector<Resolution>{{{q("Quality"), q("Draft"), q("Normal")}},
                                       {{q("Quality"), q("Draft"), q("Best")}}}));
}

TEST(Resolutions, OfTwoConstraintsChangeBothOptions)
{
    const auto ways = waysTo(kFilm, {q("*Media Film *Quality Draft"), q("*Duplex *Media Film")});
    ASSERT_FALSE(ways.empty());
    EXPECT_EQ(ways.front(), (Resolution{{q("Quality"), q("Draft"), q("Normal")},
                                        {q("Duplex"), q("Long"), q("None")}}));
}

TEST(Resolutions, OfThreePartsOfferEachOtherOptionBeforeASecondChoiceOfOne)
{
    const auto ways = waysTo(kFilm, {q("*Media Film *Quality Draft *Duplex Long")});
    EXPECT_EQ(ways, (std::vector<Resolution>{{{q("Quality"), q("Draft"), q("Normal")}},
                                             {{q("Duplex"), q("Long"), q("None")}},
                                             {{q("Quality"), q("Draft"), q("Best")}},
                                             {{q("Duplex"), q("Long"), q("Short")}}}));
}

TEST(Resolutions, ChangeTheSizeOfThePaperLast)
{
    const auto ways = waysTo(kFilm, {q("*Media Film *PageRegion A4 *Quality Draft")});
    ASSERT_GE(ways.size(), 2U);
    EXPECT_EQ(ways[0], (Resolution{{q("Quality"), q("Draft"), q("Normal")}}));
    EXPECT_EQ(ways[1], (Resolution{{q("PageSize"), q("A4"), q("A3")}}));
}

TEST(Resolutions, TakeSingleChoicesAwayWhereSeveralCanStand)
{
    EXPECT_EQ(waysTo(kFilm, {q("*Media Film *Holes Top")}),
              (std::vector<Resolution>{{{q("Holes"), q("Top"), {}}}}));
    EXPECT_EQ(waysTo(kFilm, {q("*Media Film *Holes")}),
              (std::vector<Resolution>{{{q("Holes"), q("Left"), {}}, {q("Holes"), q("Top"), {}}}}));
}

TEST(Resolutions, KeepTheOtherChoicesOfAnOptionThatTakesSeveral)
{
    ResolutionQuestion asked = question({q("*Holes Right *Quality Draft")});
    asked.groups.front().options.back().choices.push_back({q("Right"), {}});
    asked.wanted = {q("Holes"), q("Right")};
    const auto ways = findResolutions(asked);
    ASSERT_FALSE(ways.empty());
    const Choices marks = marksWith(asked, ways.front());
    EXPECT_EQ(std::count_if(marks.begin(), marks.end(),
                            [](const Choice &mark) { return mark.option == q("Holes"); }),
              3);
}

TEST(Resolutions, NeverChangeWhatIsBuiltIn)
{
    EXPECT_TRUE(waysTo(kFilm, {q("*Media Film *Tray False")}).empty());
}

TEST(Resolutions, AvoidConflictsThatAChangeWouldMake)
{
    EXPECT_EQ(waysTo(kFilm, {q("*Media Film *Quality Draft"), q("*Quality Normal *Duplex Long")}),
              (std::vector<Resolution>{{{q("Quality"), q("Draft"), q("Best")}}}));
}

TEST(Resolutions, NeedNoneWithoutAConflict)
{
    EXPECT_TRUE(waysTo(kFilm, {q("*Media Film *Quality Best")}).empty());
}

TEST(Resolutions, AreFewAndEachOfferedOnce)
{
    ResolutionQuestion asked =
        question({q("*Media Film *Quality Draft *Duplex Long *PageSize A4")});
    asked.wanted = kFilm;
    asked.proposals = {{{q("Quality"), q("Normal")}, {q("Media"), q("Film")}}};
    const auto ways = findResolutions(asked);
    EXPECT_EQ(ways.size(), static_cast<std::size_t>(kMostResolutions));
    EXPECT_EQ(
        std::count(ways.begin(), ways.end(), Resolution{{q("Quality"), q("Draft"), q("Normal")}}),
        1);
}

TEST(Resolutions, TakeAProposalThatNeedsMoreChangesWithoutItsNeedlessOnes)
{
    ResolutionQuestion asked = question({q("*Media Film *Quality Draft")});
    asked.wanted = kFilm;
    asked.proposals = {{{q("Quality"), q("Best")}, {q("Duplex"), q("None")}}};
    EXPECT_EQ(findResolutions(asked).size(), 2U);
}

TEST(Resolutions, RefuseProposalsThatTouchWhatMustStay)
{
    ResolutionQuestion asked = question({q("*Media Film *Tray False")});
    asked.wanted = kFilm;
    asked.proposals = {{{q("Tray"), q("True")}},
                       {{q("Media"), q("Auto")}},
                       {{q("Nothing"), q("True")}},
                       {{q("Holes"), q("Top")}}};
    EXPECT_TRUE(findResolutions(asked).empty());
}

TEST(Resolutions, IncludeWhatThePpdSaysOfAConflict)
{
    test::StagedDriver driver;
    const auto opened = PpdDocument::open(driver.write(
        q("resolver.ppd"),
        test::constrained()
            .withLine("*cupsUIConstraints films: \"*MediaType IronOn *PrintQuality Draft\"")
            .withLine("*cupsUIResolver films: \"*PrintQuality Best\"")
            .bytes()));
    const auto &printer = std::get<std::unique_ptr<PpdDocument>>(opened);
    printer->mark({q("PrintQuality"), q("Draft")});
    const ResolutionQuestion asked = resolutionQuestion(*printer, {q("MediaType"), q("IronOn")});
    ASSERT_EQ(asked.proposals.size(), 1U);
    const auto ways = findResolutions(asked);
    EXPECT_NE(
        std::find(ways.begin(), ways.end(), Resolution{{q("PrintQuality"), q("Draft"), q("Best")}}),
        ways.end());
}

// Random printers

std::unique_ptr<PpdDocument> randomPrinter(const test::RandomPrinter &kind, std::mt19937 &random)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(q("random.ppd")));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(test::randomPpd(kind, random));
    file.close();
    PpdDocument::Opened opened = PpdDocument::open(file.fileName());
    return std::move(std::get<std::unique_ptr<PpdDocument>>(opened));
}

Choice randomChoice(const PpdDocument &printer, std::mt19937 &random)
{
    const QStringList options = printer.options();
    const QString option = options[static_cast<int>(random() % options.size())];
    const QStringList choices = printer.choices(option);
    return {option, choices[static_cast<int>(random() % choices.size())]};
}

/// Marks what can be marked without a conflict, and answers a choice that cannot; none when all
/// can.
std::optional<Choice> walkIntoConflict(PpdDocument &printer, std::mt19937 &random)
{
    for (int i = 0; i < 200; ++i) {
        const Choice choice = randomChoice(printer, random);
        if (!printer.conflictsWith(choice).empty())
            return choice;
        printer.mark(choice);
    }
    return std::nullopt;
}

bool isMarked(const PpdDocument &printer, const Choice &choice)
{
    const Choices marks = printer.marks();
    return std::find(marks.begin(), marks.end(), choice) != marks.end();
}

void expectSound(PpdDocument &printer, const ResolutionQuestion &asked, const Resolution &way)
{
    const QStringList builtIn = installableOptions(asked.groups);
    for (const ChoiceChange &change : way) {
        EXPECT_NE(change.option, asked.wanted.option);
        EXPECT_FALSE(builtIn.contains(change.option));
        EXPECT_TRUE(isMarked(printer, {change.option, change.from}));
        EXPECT_NE(change.from, change.to);
    }
    const Choices before = printer.marks();
    printer.setMarks(marksWith(asked, way));
    EXPECT_TRUE(isMarked(printer, asked.wanted));
    EXPECT_EQ(ppdConflicts(printer.handle()), 0) << testing::PrintToString(way);
    for (const ChoiceChange &change : way)
        EXPECT_EQ(isMarked(printer, {change.option, change.to}), !change.to.isNull());
    printer.setMarks(before);
}

TEST(Resolutions, OfRandomPrintersAreFreeOfConflictsToLibcupsToo)
{
    std::mt19937 random(20);
    int conflicts = 0;
    int ways = 0;
    for (int i = 0; i < 300; ++i) {
        const auto printer = randomPrinter({.options = 3 + i % 8,
                                            .choices = 2 + i % 5,
                                            .constraints = 2 + i % 40,
                                            .partsOfConstraint = 2 + i % 3},
                                           random);
        const auto wanted = walkIntoConflict(*printer, random);
        if (!wanted)
            continue;
        ++conflicts;
        const ResolutionQuestion asked = resolutionQuestion(*printer, *wanted);
        const auto found = findResolutions(asked);
        EXPECT_LE(found.size(), static_cast<std::size_t>(kMostResolutions));
        for (const Resolution &way : found)
            expectSound(*printer, asked, way);
        ways += static_cast<int>(found.size());
    }
    EXPECT_GT(conflicts, 200);
    EXPECT_GT(ways, conflicts);
}

/// Whether a single change of an option is enough, tried one by one.
bool hasSingleChange(const ResolutionQuestion &asked)
{
    const QStringList builtIn = installableOptions(asked.groups);
    for (const Choice &mark : asked.marks) {
        for (const OptionGroup &group : asked.groups) {
            for (const PrinterOption &option : group.options) {
                if (option.keyword != mark.option || option.kind == OptionKind::PickMany ||
                    option.keyword == asked.wanted.option || builtIn.contains(option.keyword))
                    continue;
                for (const OptionChoice &choice : option.choices) {
                    const Resolution way{{mark.option, mark.choice, choice.keyword}};
                    if (asked.constraints.conflicts(MarkTable(marksWith(asked, way))).empty())
                        return true;
                }
            }
        }
    }
    return false;
}

TEST(Resolutions, OfRandomPrintersMissNoSingleChange)
{
    std::mt19937 random(21);
    int single = 0;
    for (int i = 0; i < 150; ++i) {
        const auto printer = randomPrinter({.options = 6, .choices = 4, .constraints = 30}, random);
        const auto wanted = walkIntoConflict(*printer, random);
        if (!wanted)
            continue;
        const ResolutionQuestion asked = resolutionQuestion(*printer, *wanted);
        if (!hasSingleChange(asked))
            continue;
        ++single;
        const auto found = findResolutions(asked);
        ASSERT_FALSE(found.empty());
        EXPECT_EQ(found.front().size(), 1U);
    }
    EXPECT_GT(single, 50);
}

TEST(Resolutions, OfAPrinterWithTwoHundredOptionsOfFiftyChoicesEndInTime)
{
    std::mt19937 random(22);
    const auto printer = randomPrinter(
        {.options = 200, .choices = 50, .constraints = 10000, .partsOfConstraint = 3}, random);
    int conflicts = 0;
    for (int i = 0; i < 5; ++i) {
        const auto wanted = walkIntoConflict(*printer, random);
        if (!wanted)
            continue;
        ++conflicts;
        const ResolutionQuestion asked = resolutionQuestion(*printer, *wanted);
        for (const Resolution &way : findResolutions(asked))
            expectSound(*printer, asked, way);
    }
    EXPECT_GT(conflicts, 0);
}

/// Four constraints of ten options each are broken: three changes are never enough, and there are
/// more than a hundred million ways to try them.
TEST(Resolutions, EndWithoutAWayWhereTooMuchWouldHaveToChange)
{
    QStringList choices;
    for (int i = 0; i < 50; ++i)
        choices.append(q("c%1").arg(i));
    Constraints constraints(4, Constraint{{q("W"), q("on")}});
    ResolutionQuestion asked{
        {{q("General"), {}, GroupKind::Usual, {pickOne("W", {q("off"), q("on")})}}},
        {},
        {{q("W"), q("off")}},
        {q("W"), q("on")}};
    for (std::size_t i = 0; i < 40; ++i) {
        const QByteArray name = "O" + QByteArray::number(static_cast<int>(i));
        asked.groups.front().options.push_back(pickOne(name, choices));
        asked.marks.push_back({q(name), q("c0")});
        constraints[i / 10].push_back({q(name), q("c0")});
    }
    asked.constraints = ConstraintTable(constraints);
    EXPECT_TRUE(findResolutions(asked).empty());
    asked.constraints = ConstraintTable({constraints.front()});
    EXPECT_EQ(findResolutions(asked).size(), static_cast<std::size_t>(kMostResolutions));
}

/// Every choice of every option is looked at once in the panel of printer features.
TEST(Resolutions, ForbiddenChoicesAreThoseThatConflictOneByOne)
{
    std::mt19937 random(23);
    int forbidden = 0;
    for (int i = 0; i < 60; ++i) {
        const auto printer = randomPrinter(
            {.options = 8, .choices = 4, .constraints = 30, .partsOfConstraint = 3}, random);
        static_cast<void>(walkIntoConflict(*printer, random));
        const MarkTable marks(printer->marks());
        for (const QString &option : printer->options()) {
            const QStringList choices = printer->choices(option);
            const auto found = printer->rules().forbidden(option, choices, marks);
            for (const QString &choice : choices) {
                const Choices alone = printer->conflictsWith({option, choice});
                EXPECT_EQ(found.count(choice) > 0, !alone.empty());
                forbidden += alone.empty() ? 0 : 1;
            }
        }
    }
    EXPECT_GT(forbidden, 100);
}

} // namespace
