#include "tests/endtoend/expected_job.h"

#include "tests/support/print_to.h"

#include <algorithm>
#include <set>

namespace test {

using dialog::Choice;
using dialog::Choices;

namespace {

/// A null choice stands for each one.
struct KeywordPair
{
    const char *option;
    const char *choice;
};

struct Excluded
{
    KeywordPair one;
    KeywordPair other;
    const char *reason;
    const char *onlyWith = nullptr; ///< an option, on whose printers alone this is so
};

/// One setting that a choice of another one changes.
struct Follower
{
    enum class Turn { Ahead, Behind }; ///< of the choice itself
    KeywordPair picked;
    KeywordPair changed;
    Turn turn;
    const char *reason;
};

struct NamedRule
{
    const char *option;
    const char *reason;
};

/// A window that asks about two settings; the first of its answers, and the second where that is
/// more than instructions.
struct Conflict
{
    const char *window;
    KeywordPair one;
    KeywordPair other;
    std::vector<KeywordPair> first;
    std::vector<KeywordPair> second;
};

// These tables are every difference between what a person chooses and what the job carries.
// clang-format off

// From 10.5 on the dialog refuses the one that comes last. Where both are in a job all the same,
// the dialog asks before it prints.
constexpr Excluded kExcluded[] = {
    {{"PrintQuality", "Draft"},  {"MediaType", "IronOn"},               "needs a full layer of ink"},
    {{"PrintQuality", "Draft"},  {"MediaType", "Transparency"},         "needs a full layer of ink", "InkToUse"},
    {{"PageSize", "Letter"},     {"MediaType", "Envelope"},             "no envelope has that size"},
    {{"PageSize", "EnvelopeDL"}, {"MediaType", "Plain"},                "envelopes only"},
    {{"PageSize", "EnvelopeDL"}, {"MediaType", "IronOn"},               "envelopes only"},
    {{"PageSize", "EnvelopeDL"}, {"MediaType", "Transparency"},         "envelopes only"},
    {{"PageSize", "EnvelopeDL"}, {"MediaType", "Greeting"},             "envelopes only"},
    {{"PageSize", "EnvelopeDL"}, {"MediaType", "PremiumGlossy"},        "envelopes only"},
    {{"PageSize", "EnvelopeDL"}, {"MediaType", "InkjetGlossyBrochure"}, "envelopes only"},
    {{"PageSize", "EnvelopeDL"}, {"MediaType", "InkjetGlossyLight"},    "envelopes only"},
    {{"InkToUse", "BlackOnly"},  {"MediaType", "PremiumGlossy"},        "black ink does not dry there"},
    {{"InkToUse", "ColorBlack"}, {"MediaType", "PremiumGlossy"},        "black ink does not dry there"},
    {{"InkToUse", "BlackColor"}, {"MediaType", "PremiumGlossy"},        "black ink does not dry there"},
    {{"InkToUse", "BlackOnly"},  {"ColorOutput", "Color"},              "begins with the other output's ink"},
    {{"InkToUse", "BlackColor"}, {"ColorOutput", "Color"},              "begins with the other output's ink"},
    {{"InkToUse", "ColorOnly"},  {"ColorOutput", "Black"},              "begins with the other output's ink"},
    {{"InkToUse", "ColorBlack"}, {"ColorOutput", "Black"},              "begins with the other output's ink"},
    {{"TonerSave", "On"},        {"PrintQuality", "Best"},              "best quality takes toner"},
    {{"HalftoneLevel", "Smooth"}, {"PrintQuality", "Draft"}, "the printer with everything: to be refused", "InkToUse"},
    {{"Threshold", "5"},  {"PrintQuality", "Draft"}, "the printer with everything: to be refused", "InkToUse"},
    {{"Mirror", "On"},    {"MediaType", "Transparency"}, "the printer with everything: to be refused", "TonerSave"},
    {{"Sharpen", "High"}, {"Mirror", "On"}, "the printer with everything: to be refused", "TonerSave"},
    {{"PaperSource", "Tray2"}, {"MediaType", "Greeting"}, "the printer with everything: to be refused", "TonerSave"},
    {{"TonerSave", "On"},        {"PrintDensity", "On"},                "density takes toner"},
};

// Refused, these stay as they were. Every other choice stays in its panel, which hands it over when
// the job is made, refused or not.
constexpr NamedRule kUndone[] = {
    {"PrintQuality",  "asks before it takes the choice"},
    {"HalftoneLevel", "asks before it takes the choice"},
    {"MediaType",     "takes the choice back"},
    {"Mirror",        "takes the choice back"},
};

constexpr Follower kFollowers[] = {
    {{"ColorOutput", nullptr}, {"InkToUse", "Automatic"},         Follower::Turn::Ahead,  "each output has inks of its own"},
    {{"ColorOutput", nullptr}, {"ColorPreferences", "Automatic"}, Follower::Turn::Behind, "preferences are an output's own"},
    {{"ColorOutput", "Black"}, {"ICCTestChartProcess", "Off"},    Follower::Turn::Behind, "test charts are in colour"},
    {{"ColorOutput", "Gray"},  {"ICCTestChartProcess", "Off"},    Follower::Turn::Behind, "test charts are in colour"},
};

// After each choice of colour output the panel offers these once more, as it holds them.
constexpr NamedRule kOfferedAgain[] = {
    {"ICCTestChartProcess", "depends on colour output"},
    {"Threshold",           "depends on colour output; what was typed is offered here only"},
    {"TonerSave",           "depends on colour output"},
    {"HalftoneLevel",       "depends on colour output"},
};

// The dialog hears of these when the job is made, not when they are chosen.
constexpr NamedRule kNeverOffered[] = {
    {kTypedThreshold,       "a typed one stays in the panel"},
    {"ImprovementSettings", "the second panel offers nothing"},
    {"ImprovePrintQuality", "the second panel offers nothing"},
    {"ReduceGhosting",      "the second panel offers nothing"},
    {"PrintDensity",        "the second panel offers nothing"},
};

// After these the panel looks for conflicts itself, on systems before 10.5.
constexpr const char *kChecked[] = {"PrintQuality", "MediaType", "ColorOutput", "Mirror", "HalftoneLevel"};

const Conflict kConflicts[] = {
    {"ibMsgOneWindow",  {"PrintQuality", "Draft"},  {"MediaType", "IronOn"},
     {{"PrintQuality", "Normal"}}, {{"MediaType", "Plain"}}},
    {"ibMsgFiveWindow", {"InkToUse", "BlackOnly"},  {"MediaType", "PremiumGlossy"}, {{"InkToUse", "Automatic"}},  {}},
    {"ibMsgFiveWindow", {"InkToUse", "ColorBlack"}, {"MediaType", "PremiumGlossy"}, {{"InkToUse", "Automatic"}},  {}},
    {"ibMsgFiveWindow", {"InkToUse", "BlackColor"}, {"MediaType", "PremiumGlossy"}, {{"InkToUse", "Automatic"}},  {}},
    {"ibMsgFiveWindow", {"PageSize", "Letter"},     {"MediaType", "Envelope"},      {{"MediaType", "Automatic"}}, {}},
};
// clang-format on

constexpr const char *kInstructions = "ibInstructionWindow";

Choice choiceOf(const KeywordPair &pair)
{
    return choice(pair.option, pair.choice);
}

bool matches(const KeywordPair &pattern, const Choice &picked)
{
    return picked.option == q(pattern.option) &&
           (!pattern.choice || picked.choice == q(pattern.choice));
}

template <class Rules>
bool names(const Rules &rules, const QString &option)
{
    return std::any_of(std::begin(rules), std::end(rules),
                       [&](const auto &rule) { return option == q(rule.option); });
}

bool isChecked(const QString &option)
{
    return std::any_of(std::begin(kChecked), std::end(kChecked),
                       [&](const char *checked) { return option == q(checked); });
}

bool holds(const Values &values, const Choice &pair)
{
    const auto found = values.find(pair.option);
    return found != values.end() && found->second == pair.choice;
}

bool isExcluded(const Choice &picked, const Values &marks)
{
    return std::any_of(std::begin(kExcluded), std::end(kExcluded), [&](const Excluded &rule) {
        const Choice one = choiceOf(rule.one);
        const Choice other = choiceOf(rule.other);
        if (rule.onlyWith && !marks.contains(q(rule.onlyWith)))
            return false;
        return (one == picked && holds(marks, other)) || (other == picked && holds(marks, one));
    });
}

bool hasConflict(const Values &marks)
{
    return std::any_of(marks.begin(), marks.end(), [&](const auto &mark) {
        return isExcluded({mark.first, mark.second}, marks);
    });
}

bool isOnOff(const Choice &picked)
{
    static const std::set<QString> words{q("On"), q("Off"), q("True"), q("False")};
    return words.contains(picked.choice) && picked.option != q("Sharpen");
}

QString opposite(const QString &word)
{
    static const std::map<QString, QString> opposites{
        {q("On"), q("Off")}, {q("Off"), q("On")}, {q("True"), q("False")}, {q("False"), q("True")}};
    return opposites.at(word);
}

/// The dialog with what it has marked, and the panels with what they hold.
class Desk
{
public:
    Desk(const Choices &defaults, const Story &story) : story_(story)
    {
        for (const Choice &marked : defaults)
            defaults_[marked.option] = marked.choice;
        marked_ = defaults_;
        for (const Choice &marked : story.preset)
            marked_[marked.option] = marked.choice;
        for (const auto &[option, keyword] : marked_) {
            if (keyword != defaults_.at(option))
                chosen_[option] = keyword;
        }
        held_ = marked_;
        const bool wasMirrored = holds(held_, choice("Mirror", "On"));
        if (wasMirrored || isIronOn())
            setMirror(true);
    }

    /// A control that is so already is clicked away from it first.
    void pick(const Choice &picked)
    {
        if (picked.option == q("Threshold")) {
            stepTo(picked.choice.toInt());
            return;
        }
        const bool isBox = isOnOff(picked);
        if (isBox && holds(held_, picked))
            act({picked.option, opposite(picked.choice)});
        if (!isBox || !holds(held_, picked))
            act(picked);
    }

    [[nodiscard]] ExpectedJob job() const
    {
        ExpectedJob job;
        job.marked = marksOfJob();
        job.printSettings = printSettings_;
        job.windows = windows_;
        for (const auto &[option, keyword] : chosen_) {
            if (job.marked.at(option) != keyword)
                job.refused[option] = keyword;
        }
        job.isReviewed = !job.refused.empty() || hasConflict(job.marked);
        replace(job);
        job.options = optionsOf(job);
        return job;
    }

private:
    /// Each step is a choice, so that a refused one leaves the mark of the step before.
    void stepTo(int target)
    {
        constexpr int kHighest = 5;
        const QString option = q("Threshold");
        int value = held_.at(option).toInt();
        if (value == target)
            act({option, QString::number(value += value < kHighest ? 1 : -1)});
        while (value != target)
            act({option, QString::number(value += value < target ? 1 : -1)});
    }

    [[nodiscard]] bool asksTheDialog() const { return story_.systemVersion >= kSystem105; }
    [[nodiscard]] bool mirrorsTheJob() const { return story_.systemVersion >= kSystem106; }
    [[nodiscard]] bool isIronOn() const { return holds(held_, choice("MediaType", "IronOn")); }
    [[nodiscard]] bool isMirrored() const
    {
        return mirrorsTheJob() ? printSettings_.contains(q("mirror"))
                               : holds(held_, choice("Mirror", "On"));
    }

    void act(const Choice &picked)
    {
        const bool isTyped = picked.option == q(kTypedThreshold);
        chosen_[isTyped ? q("Threshold") : picked.option] = picked.choice;
        if (isTyped)
            held_[q("Threshold")] = picked.choice;
        else if (names(kNeverOffered, picked.option))
            held_[picked.option] = picked.choice;
        else
            actAndOffer(picked);
    }

    void actAndOffer(const Choice &picked)
    {
        follow(picked, Follower::Turn::Ahead);
        if (picked.option == q("MediaType"))
            takePaper(picked);
        else
            take(picked);
        follow(picked, Follower::Turn::Behind);
        if (!asksTheDialog() && isChecked(picked.option))
            settleConflicts();
        if (picked.option != q("ColorOutput"))
            return;
        for (const NamedRule &again : kOfferedAgain)
            offerHeld(q(again.option));
    }

    void take(const Choice &picked)
    {
        const QString before = held_.at(picked.option);
        held_[picked.option] = picked.choice;
        if (picked.option == q("Mirror"))
            isMirroredByHand_ = picked.choice == q("On");
        if (!offer(picked) && names(kUndone, picked.option))
            held_[picked.option] = before;
    }

    /// Iron-on paper brings mirror with it, where that is not on yet, and takes it away again, also
    /// when it is left for a paper that is refused then.
    void takePaper(const Choice &picked)
    {
        const bool becomesIronOn = picked.choice == q("IronOn");
        if (becomesIronOn && !isMirrored())
            bringMirror(true);
        else if (!becomesIronOn && bringsMirror_)
            bringMirror(false);
        if (!offer(picked)) {
            if (bringsMirror_)
                bringMirror(false);
            return;
        }
        held_[picked.option] = picked.choice;
        if (bringsMirror_)
            offerHeld(q("Mirror"));
    }

    void bringMirror(bool isOn)
    {
        setMirror(isOn);
        bringsMirror_ = isOn;
    }

    void setMirror(bool isOn)
    {
        const QString option = q("Mirror");
        if (mirrorsTheJob() && isOn)
            printSettings_[q("mirror")] = q("true");
        else if (mirrorsTheJob())
            printSettings_.erase(q("mirror"));
        else if (held_.contains(option))
            held_[option] = isOn ? q("On") : q("Off");
    }

    void follow(const Choice &picked, Follower::Turn turn)
    {
        for (const Follower &rule : kFollowers) {
            const Choice changed = choiceOf(rule.changed);
            if (rule.turn != turn || !matches(rule.picked, picked) ||
                !held_.contains(changed.option))
                continue;
            held_[changed.option] = changed.choice;
            offer(changed);
        }
    }

    void offerHeld(const QString &option)
    {
        if (held_.contains(option))
            offer({option, held_.at(option)});
    }

    /// Whether the panel hears a yes.
    bool offer(const Choice &offered)
    {
        if (!asksTheDialog())
            return true;
        if (isExcluded(offered, marked_))
            return false;
        marked_[offered.option] = offered.choice;
        return true;
    }

    void settleConflicts()
    {
        std::set<QString> instructed; // silent for the rest
        for (const Conflict *conflict; (conflict = firstConflict(instructed));) {
            windows_.append(q(conflict->window));
            if (story_.answer == Answer::Third) {
                ignored_.insert(q(conflict->one.option));
                continue;
            }
            const auto &answer =
                story_.answer == Answer::First ? conflict->first : conflict->second;
            for (const KeywordPair &change : answer)
                held_[q(change.option)] = q(change.choice);
            if (answer.empty()) {
                windows_.append(q(kInstructions));
                instructed.insert(q(conflict->one.option));
            } else if (answer.front().option == std::string_view("MediaType")) {
                setMirror(isMirroredByHand_);
            }
        }
    }

    [[nodiscard]] const Conflict *firstConflict(const std::set<QString> &instructed) const
    {
        for (const Conflict &conflict : kConflicts) {
            if (holds(held_, choiceOf(conflict.one)) && holds(held_, choiceOf(conflict.other)) &&
                !instructed.contains(q(conflict.one.option)) &&
                !ignored_.contains(q(conflict.one.option)))
                return &conflict;
        }
        return nullptr;
    }

    /// The panels hand over everything they hold but the threshold, and the improvement only while
    /// improving is on.
    [[nodiscard]] Values marksOfJob() const
    {
        Values marks = held_;
        marks[q("Threshold")] = QString();
        if (!holds(held_, choice("ImprovementSettings", "On")))
            marks[q("ImprovePrintQuality")] = QString();
        for (auto &[option, keyword] : marks) {
            if (keyword.isNull() && marked_.contains(option))
                keyword = marked_.at(option);
        }
        std::erase_if(marks, [](const auto &mark) { return mark.second.isNull(); });
        return marks;
    }

    /// To CUPS names that differ in case only are one.
    static void replace(ExpectedJob &job)
    {
        for (const auto &[name, value] : job.printSettings) {
            const auto found =
                std::find_if(job.marked.begin(), job.marked.end(), [name = name](const auto &mark) {
                    return mark.first.compare(name, Qt::CaseInsensitive) == 0;
                });
            if (found != job.marked.end())
                job.replaced.insert(job.marked.extract(found));
        }
    }

    /// The choices that differ from the printer's defaults or were made, then the print settings.
    [[nodiscard]] Values optionsOf(const ExpectedJob &job) const
    {
        Values options = job.printSettings;
        for (const auto &[option, keyword] : job.marked) {
            if (keyword != defaults_.at(option) || chosen_.contains(option))
                options[option] = keyword;
        }
        return options;
    }

    const Story &story_;
    Values defaults_;
    Values marked_;
    Values held_;
    Values chosen_;
    Values printSettings_;
    QStringList windows_;
    std::set<QString> ignored_; ///< conflicts, by their first option
    bool bringsMirror_ = false;
    bool isMirroredByHand_ = false;
};

} // namespace

Choice choice(const char *option, const char *keyword)
{
    return {q(option), q(keyword)};
}

QString described(const Story &story)
{
    QStringList words{q("0x") + QString::number(story.systemVersion, 16)};
    for (const Choice &marked : story.preset)
        words << q("preset") << marked.option + u'=' + marked.choice;
    for (const Choice &picked : story.chosen)
        words << q("chosen") << picked.option + u'=' + picked.choice;
    words << q("with answer") << QString::number(static_cast<int>(story.answer) + 1);
    return words.join(u' ');
}

QString ExpectedJob::stands(const QString &option) const
{
    return (replaced.contains(option) ? replaced : marked).at(option);
}

ExpectedJob expectedJob(const Choices &defaults, const Story &story)
{
    Desk desk(defaults, story);
    for (const Choice &picked : story.chosen)
        desk.pick(picked);
    return desk.job();
}

QByteArray constraintLines()
{
    QByteArray lines;
    const auto add = [&](const KeywordPair &one, const KeywordPair &other) {
        lines += QByteArray("*UIConstraints: *") + one.option + ' ' + one.choice + " *" +
                 other.option + ' ' + other.choice + '\n';
    };
    for (const Excluded &rule : kExcluded) {
        add(rule.one, rule.other);
        add(rule.other, rule.one);
    }
    return lines;
}

} // namespace test
