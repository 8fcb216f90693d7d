#include "tests/endtoend/covered_settings.h"

#include "dialog/printers/ppd_document.h"
#include "tests/support/covering_array.h"
#include "tests/support/print_to.h"

#include <algorithm>

namespace test {

using dialog::Choice;
using dialog::Choices;

namespace {

enum class Panel { Quality, Other };

/// A control's turn in a story.
struct Turn
{
    const char *name;
    const char *option;
    Panel panel;
    const char *typed = nullptr; ///< the choices, where they are not the PPD's
};

// From top to bottom. Colour output and improving have a second turn at the end of their panels,
// where they meet what has been chosen after the first one.
// clang-format off
constexpr Turn kTurns[] = {
    {"PrintQuality",        "PrintQuality",        Panel::Quality},
    {"MediaType",           "MediaType",           Panel::Quality},
    {"PaperSource",         "PaperSource",         Panel::Quality},
    {"ColorOutput",         "ColorOutput",         Panel::Quality},
    {"InkToUse",            "InkToUse",            Panel::Quality},
    {"TonerSave",           "TonerSave",           Panel::Quality},
    {"Sharpen",             "Sharpen",             Panel::Quality},
    {"Mirror",              "Mirror",              Panel::Quality},
    {"ColorPreferences",    "ColorPreferences",    Panel::Quality},
    {"typed Threshold",     "Threshold",           Panel::Quality, kTypedThreshold},
    {"Threshold",           "Threshold",           Panel::Quality},
    {"HalftoneLevel",       "HalftoneLevel",       Panel::Quality},
    {"ICCTestChartProcess", "ICCTestChartProcess", Panel::Quality},
    {"DupDryTime",          "DupDryTime",          Panel::Quality},
    {"ImprovementSettings", "ImprovementSettings", Panel::Other},
    {"ImprovePrintQuality", "ImprovePrintQuality", Panel::Other},
    {"ReduceGhosting",      "ReduceGhosting",      Panel::Other},
    {"PrintDensity",        "PrintDensity",        Panel::Other},
};
constexpr Turn kSecondTurns[] = {
    {"ColorOutput again",         "ColorOutput",         Panel::Quality},
    {"ImprovementSettings again", "ImprovementSettings", Panel::Other},
};

// What a story is beside its choices.
constexpr int kVersions[] = {kSystem104, kSystem105, kSystem106};
constexpr const char *kVersion = "system";
constexpr const char *kOldestVersion = "0x1049";
constexpr const char *kNewestVersion = "0x1060";
constexpr const char *kOrder = "order";
constexpr const char *kDown = "down";
constexpr const char *kUp = "up";
constexpr const char *kAnswer = "answer";
constexpr const char *kFirst = "first";
constexpr const char *kSecond = "second";
constexpr const char *kLeft = "left alone";

/// Of each pair the one that a printer with both hides.
struct SharedPlace
{
    const char *hidden;
    const char *shown;
};
constexpr SharedPlace kSharedPlaces[] = {
    {"ColorPreferences",    "Threshold"},
    {"ICCTestChartProcess", "HalftoneLevel"},
    {"InkToUse",            "TonerSave"},
};

/// A null choice stands for each one.
struct NamedChoice
{
    const char *factor;
    const char *choice;
};

/// A control that cannot be used beside one or two other choices.
struct Closed
{
    NamedChoice control;
    NamedChoice beside;
    NamedChoice andBeside;
    const char *reason;
    const char *onlyWith = nullptr; ///< an option, on whose printers alone this is so
};

constexpr Closed kClosed[] = {
    {{"Mirror", nullptr},              {kVersion, kNewestVersion},     {},              "the job mirrors there"},
    {{"InkToUse", "BlackOnly"},        {"ColorOutput", kLeft},         {},              "is black output's"},
    {{"InkToUse", "BlackOnly"},        {"ColorOutput", "Color"},       {},              "is black output's"},
    {{"InkToUse", "BlackOnly"},        {kOrder, kUp},                  {},              "is black output's, which comes later"},
    {{"InkToUse", "BlackColor"},       {"ColorOutput", kLeft},         {},              "is black output's"},
    {{"InkToUse", "BlackColor"},       {"ColorOutput", "Color"},       {},              "is black output's"},
    {{"InkToUse", "BlackColor"},       {kOrder, kUp},                  {},              "is black output's, which comes later"},
    {{"InkToUse", "ColorOnly"},        {"ColorOutput", "Black"},       {kOrder, kDown}, "is colour output's"},
    {{"InkToUse", "ColorBlack"},       {"ColorOutput", "Black"},       {kOrder, kDown}, "is colour output's"},
    {{"ColorPreferences", nullptr},    {"ColorOutput", "Black"},       {kOrder, kDown}, "black has none"},
    {{"ICCTestChartProcess", nullptr}, {"ColorOutput", "Black"},       {kOrder, kDown}, "charts are in colour"},
    {{"TonerSave", nullptr},           {"ColorOutput", kLeft},         {},              "colour output opens it", "InkToUse"},
    {{"TonerSave", nullptr},           {kOrder, kUp},                  {},              "colour output, which comes later, opens it", "InkToUse"},
    {{"typed Threshold", nullptr},     {"ColorOutput", kLeft},         {},              "grey has none"},
    {{"typed Threshold", nullptr},     {"ColorOutput", "Gray"},        {},              "grey has none"},
    {{"typed Threshold", nullptr},     {kOrder, kUp},                  {},              "black, which comes later, opens it"},
    {{"Threshold", nullptr},           {"ColorOutput", kLeft},         {},              "grey has none"},
    {{"Threshold", nullptr},           {"ColorOutput", "Gray"},        {},              "grey has none"},
    {{"Threshold", nullptr},           {kOrder, kUp},                  {},              "black, which comes later, opens it"},
    {{"HalftoneLevel", nullptr},       {"ColorOutput", "Mono"},        {kOrder, kDown}, "black has none"},
    {{"HalftoneLevel", nullptr},       {"ColorOutput", "Black"},       {kOrder, kDown}, "black has none"},
    {{"ImprovePrintQuality", nullptr}, {"ImprovementSettings", kLeft}, {},              "nothing is improved"},
    {{"ImprovePrintQuality", nullptr}, {"ImprovementSettings", "Off"}, {},              "nothing is improved"},
    {{"ImprovePrintQuality", nullptr}, {kOrder, kUp},                  {},              "improving is switched on later"},
};

/// More than two choices that have a meaning together, beside the pairs.
const std::vector<NamedChoice> kTogether[] = {
    // Conflict windows that need another turn after the choices that contradict each other.
    {{kVersion, kOldestVersion}, {kOrder, kDown}, {"PrintQuality", "Draft"}, {"MediaType", "IronOn"}, {kAnswer, kFirst}},
    {{kVersion, kOldestVersion}, {kOrder, kDown}, {"PrintQuality", "Draft"}, {"MediaType", "IronOn"}, {kAnswer, kSecond}},
    {{kVersion, kOldestVersion}, {kOrder, kUp},   {"PrintQuality", "Draft"}, {"MediaType", "IronOn"}, {"Mirror", "On"}, {kAnswer, kFirst}},
    {{kVersion, kOldestVersion}, {kOrder, kUp},   {"PrintQuality", "Draft"}, {"MediaType", "IronOn"}, {"Mirror", "On"}, {kAnswer, kSecond}},
    {{kVersion, kOldestVersion}, {kOrder, kUp},   {"InkToUse", "ColorBlack"}, {"ColorOutput", kLeft}, {"MediaType", "PremiumGlossy"}, {"ColorOutput again", kLeft}, {kAnswer, kFirst}},
    {{kVersion, kOldestVersion}, {kOrder, kUp},   {"InkToUse", "ColorBlack"}, {"ColorOutput", kLeft}, {"MediaType", "PremiumGlossy"}, {"ColorOutput again", kLeft}, {kAnswer, kSecond}},
    {{kVersion, kOldestVersion}, {kOrder, kDown}, {"InkToUse", "BlackOnly"},  {"ColorOutput", "Black"}, {"MediaType", "PremiumGlossy"}, {"Mirror", "On"}, {"ColorOutput again", kLeft}, {kAnswer, kFirst}},
    {{kVersion, kOldestVersion}, {kOrder, kDown}, {"InkToUse", "BlackColor"}, {"ColorOutput", "Black"}, {"MediaType", "PremiumGlossy"}, {"Mirror", "On"}, {"ColorOutput again", kLeft}, {kAnswer, kSecond}},
    {{kVersion, kOldestVersion}, {"MediaType", "Envelope"}, {"PrintQuality", "Best"}, {kAnswer, kFirst}},
    {{kVersion, kOldestVersion}, {"MediaType", "Envelope"}, {"PrintQuality", "Best"}, {kAnswer, kSecond}},
    // What is typed and what is refused comes to the dialog with colour output's second turn.
    {{kVersion, kNewestVersion}, {"typed Threshold", "5"}, {"Threshold", kLeft}, {"ColorOutput again", "Gray"}},
    {{kVersion, kNewestVersion}, {"TonerSave", "On"}, {kOrder, kDown}, {"PrintQuality", "Best"}, {"ColorOutput again", "Gray"}},
    // What the panel hands over though the dialog has refused it, and what it does not.
    {{kVersion, kNewestVersion}, {kOrder, kDown}, {"PrintQuality", "Draft"}, {"HalftoneLevel", "Smooth"}, {"ColorOutput again", kLeft}},
    {{kVersion, kNewestVersion}, {kOrder, kUp},   {"MediaType", "IronOn"}, {"PrintQuality", "Draft"}},
    {{kVersion, kNewestVersion}, {kOrder, kDown}, {"MediaType", "PremiumGlossy"}, {"ColorOutput", "Black"}, {"InkToUse", "BlackOnly"}, {"ColorOutput again", kLeft}},
    {{kVersion, kNewestVersion}, {kOrder, kDown}, {"ImprovementSettings", "On"}, {"ImprovePrintQuality", "ImproveTonerFixing"}, {"ImprovementSettings again", "Off"}},
};
// clang-format on

QString hex(int version)
{
    return q("0x") + QString::number(version, 16);
}

struct Factor
{
    QString name;
    QStringList choices;
    const Turn *turn = nullptr; ///< null for what is no setting
};

/// What can differ between the stories of a printer.
class Factors
{
public:
    explicit Factors(const dialog::PpdDocument &printer) : printer_(printer)
    {
        QStringList versions;
        for (const int version : kVersions)
            versions.append(hex(version));
        all_ = {{q(kVersion), versions},
                {q(kOrder), {q(kDown), q(kUp)}},
                {q(kAnswer), {q(kFirst), q(kSecond)}}};
        for (const Turn &turn : kTurns)
            add(turn);
        for (const Turn &turn : kSecondTurns)
            add(turn);
    }

    [[nodiscard]] std::vector<int> choiceCounts() const
    {
        std::vector<int> counts;
        for (const Factor &factor : all_)
            counts.push_back(static_cast<int>(factor.choices.size()));
        return counts;
    }

    [[nodiscard]] std::vector<Assignments> exclusions() const
    {
        std::vector<Assignments> exclusions;
        for (const Closed &closed : kClosed) {
            if (closed.onlyWith && !printer_.hasOption(q(closed.onlyWith)))
                continue;
            for (Assignments &exclusion : expanded(closed))
                exclusions.push_back(std::move(exclusion));
        }
        return exclusions;
    }

    /// Those whose choices the printer has.
    [[nodiscard]] std::vector<Assignments> together() const
    {
        std::vector<Assignments> all;
        for (const std::vector<NamedChoice> &choices : kTogether) {
            Assignments found;
            for (const NamedChoice &named : choices) {
                const Assignments one = assignments(named);
                found.insert(found.end(), one.begin(), one.end());
            }
            if (found.size() == choices.size())
                all.push_back(found);
        }
        return all;
    }

    /// A row with nothing chosen but this.
    [[nodiscard]] CoveringRow rowWith(const Assignments &assignments) const
    {
        CoveringRow row(all_.size(), 0);
        for (const Assignment &assignment : assignments)
            row[static_cast<std::size_t>(assignment.factor)] = assignment.choice;
        return row;
    }

    [[nodiscard]] Story story(const CoveringRow &row) const
    {
        const bool goesUp = row[1] != 0;
        Story story{{}, {}, kVersions[row[0]], row[2] == 0 ? Answer::First : Answer::Second};
        const Choices quality = choicesIn(Panel::Quality, row, goesUp);
        const Choices other = choicesIn(Panel::Other, row, goesUp);
        story.chosen = goesUp ? other : quality;
        const Choices &last = goesUp ? quality : other;
        story.chosen.insert(story.chosen.end(), last.begin(), last.end());
        return story;
    }

    [[nodiscard]] Choice choiceOf(const Assignment &assignment) const
    {
        const Factor &factor = all_[static_cast<std::size_t>(assignment.factor)];
        const Turn &turn = *factor.turn;
        return {q(turn.typed ? turn.typed : turn.option), factor.choices.at(assignment.choice)};
    }

    [[nodiscard]] QStringList hidden() const
    {
        QStringList hidden;
        for (const SharedPlace &place : kSharedPlaces) {
            if (printer_.hasOption(q(place.hidden)) && printer_.hasOption(q(place.shown)))
                hidden.append(q(place.hidden));
        }
        return hidden;
    }

private:
    void add(const Turn &turn)
    {
        const QString option = q(turn.option);
        if (printer_.hasOption(option) && !hidden().contains(option))
            all_.push_back({q(turn.name), QStringList{q(kLeft)} + printer_.choices(option), &turn});
    }

    /// Nothing for a factor or choice that the printer does not have.
    [[nodiscard]] Assignments assignments(const NamedChoice &named) const
    {
        Assignments found;
        for (std::size_t i = 0; i < all_.size(); ++i) {
            if (all_[i].name != q(named.factor))
                continue;
            const QStringList &choices = all_[i].choices;
            for (int j = 0; j < static_cast<int>(choices.size()); ++j) {
                const bool isNamed =
                    named.choice ? choices.at(j) == q(named.choice) : choices.at(j) != q(kLeft);
                if (isNamed)
                    found.push_back({static_cast<int>(i), j});
            }
        }
        return found;
    }

    [[nodiscard]] std::vector<Assignments> expanded(const Closed &closed) const
    {
        std::vector<Assignments> exclusions;
        for (const Assignment &control : assignments(closed.control)) {
            for (const Assignment &beside : assignments(closed.beside)) {
                Assignments exclusion{control, beside};
                if (closed.andBeside.factor)
                    exclusion.push_back(assignments(closed.andBeside).front());
                exclusions.push_back(exclusion);
            }
        }
        return exclusions;
    }

    [[nodiscard]] Choices choicesIn(Panel panel, const CoveringRow &row, bool goesUp) const
    {
        Choices first;
        Choices second;
        for (std::size_t i = 0; i < all_.size(); ++i) {
            const Turn *turn = all_[i].turn;
            if (!turn || turn->panel != panel || row[i] == 0)
                continue;
            const bool isSecond = turn >= std::begin(kSecondTurns) && turn < std::end(kSecondTurns);
            (isSecond ? second : first).push_back(choiceOf({static_cast<int>(i), row[i]}));
        }
        if (goesUp)
            std::reverse(first.begin(), first.end());
        first.insert(first.end(), second.begin(), second.end());
        return first;
    }

    const dialog::PpdDocument &printer_;
    std::vector<Factor> all_;
};

} // namespace

CoveredSettings coverSettings(const dialog::PpdDocument &printer, unsigned seed)
{
    const Factors factors(printer);
    const CoveringArray array =
        coverPairs({factors.choiceCounts(), factors.exclusions(), factors.together(), seed});
    CoveredSettings covered{{}, array.covered.size(), array.impossible.size(), array.unmet.size()};
    for (const CoveringRow &row : array.rows)
        covered.stories.push_back(factors.story(row));
    return covered;
}

std::vector<ClosedChoice> closedChoices(const dialog::PpdDocument &printer)
{
    const Factors factors(printer);
    std::vector<ClosedChoice> closed;
    for (const Assignments &exclusion : factors.exclusions()) {
        const Choice choice = factors.choiceOf(exclusion.front());
        Story story = factors.story(factors.rowWith(exclusion));
        const auto turn = std::find(story.chosen.begin(), story.chosen.end(), choice);
        story.chosen.erase(turn, story.chosen.end());
        closed.push_back({story, choice});
    }
    return closed;
}

QStringList hiddenSettings(const dialog::PpdDocument &printer)
{
    return Factors(printer).hidden();
}

} // namespace test
