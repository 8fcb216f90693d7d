#include "dialog/printers/resolutions.h"

#include "dialog/printers/ppd_document.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <tuple>

namespace dialog {
namespace {

using OptionsByKey = QHash<QString, const PrinterOption *>;

OptionsByKey optionsOf(const OptionGroups &groups)
{
    OptionsByKey options;
    for (const OptionGroup &group : groups) {
        for (const PrinterOption &option : group.options)
            options.insert(option.keyword.toCaseFolded(), &option);
    }
    return options;
}

QSet<QString> keysOf(const QStringList &options)
{
    QSet<QString> keys;
    for (const QString &option : options)
        keys.insert(constraintKey(option));
    return keys;
}

QStringList keywordsOf(const Choices &marks)
{
    QStringList keywords;
    for (const Choice &mark : marks)
        keywords.append(mark.choice);
    return keywords;
}

bool isSame(const QString &a, const QString &b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

/// A printer's marks that can be changed on trial, one change at a time and back again.
class Trial
{
public:
    explicit Trial(const ResolutionQuestion &question)
        : rules_(question.constraints), options_(optionsOf(question.groups)),
          fixed_(keysOf(installableOptions(question.groups))), marks_(question.marks)
    {
        take({question.wanted.option, {}, question.wanted.choice});
        fixed_.insert(constraintKey(question.wanted.option));
    }

    [[nodiscard]] const MarkTable &marks() const { return marks_; }
    [[nodiscard]] bool isFixed(const QString &option) const
    {
        return fixed_.contains(constraintKey(option));
    }
    /// Null for an option that the printer does not have.
    [[nodiscard]] const PrinterOption *option(const QString &keyword) const
    {
        return options_.value(keyword.toCaseFolded());
    }

    /// Makes a change and answers what was marked of its option, to be given to put().
    Choices take(const ChoiceChange &change)
    {
        return marks_.exchange(change.option, marksAfter(change));
    }
    void put(const QString &option, const Choices &former) { marks_.exchange(option, former); }

    [[nodiscard]] std::vector<int> broken() const { return rules_.broken(marks_); }
    [[nodiscard]] Choices breaking(int rule) const { return rules_.breaking(rule, marks_); }
    /// What is broken after a change of an option, where these were broken before.
    [[nodiscard]] std::vector<int> brokenAfter(const std::vector<int> &before,
                                               const QString &changed) const;

private:
    [[nodiscard]] Choices marksAfter(const ChoiceChange &change) const;

    const ConstraintTable &rules_;
    OptionsByKey options_;
    QSet<QString> fixed_; ///< options that no way out may change
    MarkTable marks_;
};

Choices Trial::marksAfter(const ChoiceChange &change) const
{
    const PrinterOption *changed = option(change.option);
    if (!changed || changed->kind != OptionKind::PickMany)
        return {{change.option, change.to}};
    const bool isOn = !change.to.isNull();
    Choices marks;
    for (const QString &choice :
         marksAfterSwitching(*changed, keywordsOf(marks_.of(change.option)),
                             isOn ? change.to : change.from, isOn ? Switch::On : Switch::Off))
        marks.push_back({change.option, choice});
    return marks;
}

std::vector<int> Trial::brokenAfter(const std::vector<int> &before, const QString &changed) const
{
    std::vector<int> after;
    const auto keepBroken = [&](int rule) {
        if (!rules_.breaking(rule, marks_).empty())
            after.push_back(rule);
    };
    std::for_each(before.begin(), before.end(), keepBroken);
    for (const int rule : rules_.naming(changed)) {
        if (std::find(before.begin(), before.end(), rule) == before.end())
            keepBroken(rule);
    }
    return after;
}

/// The changes of one option that take a mark away: its defaults first, then in the PPD's order.
Resolution changesAwayFrom(const Choice &mark, const PrinterOption &option)
{
    if (option.kind == OptionKind::PickMany)
        return switchesOn(mark.choice) ? Resolution{{mark.option, mark.choice, {}}} : Resolution();
    Resolution changes;
    for (const OptionChoice &choice : option.choices) {
        if (!isSame(choice.keyword, mark.choice))
            changes.push_back({mark.option, mark.choice, choice.keyword});
    }
    std::stable_partition(changes.begin(), changes.end(), [&](const ChoiceChange &change) {
        return option.defaults.contains(change.to);
    });
    return changes;
}

/// Tries changes of one option after another: of each broken constraint, one part has to go.
class Search
{
public:
    explicit Search(const ResolutionQuestion &question) : trial_(question) {}

    /// The ways with the fewest changes that there are.
    [[nodiscard]] std::vector<Resolution> run()
    {
        const std::vector<int> broken = trial_.broken();
        for (int most = 1; most <= kMostChanges && found_.empty() && !broken.empty(); ++most)
            dive(broken, most);
        return found_;
    }

private:
    void dive(const std::vector<int> &broken, int changesLeft)
    {
        for (const Choice &mark : trial_.breaking(broken.front())) {
            const PrinterOption *option = trial_.option(mark.option);
            if (!option || trial_.isFixed(mark.option) || isChanged(mark.option))
                continue;
            for (const ChoiceChange &change : changesAwayFrom(mark, *option)) {
                if (++trials_ > kMostTrials)
                    return;
                follow(change, broken, changesLeft - 1);
            }
        }
    }

    void follow(const ChoiceChange &change, const std::vector<int> &broken, int changesLeft)
    {
        const Choices former = trial_.take(change);
        path_.push_back(change);
        const std::vector<int> still = trial_.brokenAfter(broken, change.option);
        if (still.empty())
            found_.push_back(path_);
        else if (changesLeft > 0)
            dive(still, changesLeft);
        path_.pop_back();
        trial_.put(change.option, former);
    }

    /// Of an option with several choices, another one of them may still go.
    [[nodiscard]] bool isChanged(const QString &option) const
    {
        return std::any_of(path_.begin(), path_.end(), [&](const ChoiceChange &change) {
            return isSame(change.option, option) && !change.to.isNull();
        });
    }

    Trial trial_;
    Resolution path_;
    std::vector<Resolution> found_;
    int trials_ = 0;
};

/// Null for a proposal that touches what no way out may touch. Of options with several choices
/// libcups names one, whatever else is marked.
std::optional<Resolution> changesOf(const Choices &proposal, const Trial &trial,
                                    const Choice &wanted)
{
    Resolution changes;
    for (const Choice &choice : proposal) {
        if (constraintKey(choice.option) == constraintKey(wanted.option))
            continue;
        const PrinterOption *option = trial.option(choice.option);
        const Choices &marks = trial.marks().of(choice.option);
        if (!option || option->kind == OptionKind::PickMany || trial.isFixed(choice.option))
            return std::nullopt;
        const QString from = marks.empty() ? QString() : marks.front().choice;
        if (!isSame(from, choice.choice))
            changes.push_back({option->keyword, from, choice.choice});
    }
    return changes;
}

bool isClean(const ResolutionQuestion &question, const Resolution &changes)
{
    return question.constraints.conflicts(MarkTable(marksWith(question, changes))).empty();
}

/// Without the changes that nothing depends on.
Resolution reduced(const ResolutionQuestion &question, Resolution changes)
{
    for (std::size_t i = changes.size(); i-- > 0;) {
        Resolution fewer = changes;
        fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(i));
        if (isClean(question, fewer))
            changes = fewer;
    }
    return changes;
}

void addProposals(std::vector<Resolution> &found, const ResolutionQuestion &question)
{
    const Trial trial(question);
    for (const Choices &proposal : question.proposals) {
        const auto changes = changesOf(proposal, trial, question.wanted);
        if (changes && !changes->empty() && isClean(question, *changes))
            found.push_back(reduced(question, *changes));
    }
}

/// What makes one way a greater change than another.
std::tuple<std::size_t, int, int> weight(const Resolution &changes, const Trial &trial)
{
    int withoutDefault = 0;
    int sizes = 0;
    for (const ChoiceChange &change : changes) {
        withoutDefault += trial.option(change.option)->defaults.contains(change.to) ? 0 : 1;
        sizes += constraintKey(change.option) == constraintKey(QStringLiteral("PageSize")) ? 1 : 0;
    }
    return {changes.size(), withoutDefault, sizes};
}

QStringList optionsOf(const Resolution &changes)
{
    QStringList options;
    for (const ChoiceChange &change : changes)
        options.append(change.option);
    options.sort();
    return options;
}

/// Least change first, but ways that change other options before a second way to change the same.
std::vector<Resolution> ranked(std::vector<Resolution> found, const Trial &trial)
{
    std::stable_sort(found.begin(), found.end(), [&](const Resolution &a, const Resolution &b) {
        return weight(a, trial) < weight(b, trial);
    });
    QHash<QStringList, int> waysOf;
    std::vector<std::pair<int, Resolution>> byTurn;
    for (const Resolution &changes : found)
        byTurn.emplace_back(waysOf[optionsOf(changes)]++, changes);
    std::stable_sort(byTurn.begin(), byTurn.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::transform(byTurn.begin(), byTurn.end(), found.begin(),
                   [](const auto &entry) { return entry.second; });
    return found;
}

/// Equal for ways of the same changes, in whatever order.
QString keyOf(const Resolution &changes)
{
    QStringList keys;
    for (const ChoiceChange &change : changes)
        keys.append(change.option + u'=' + change.from + u'=' + change.to);
    keys.sort();
    return keys.join(u'\n');
}

void removeRepetitions(std::vector<Resolution> &found)
{
    QSet<QString> known;
    std::erase_if(found, [&](const Resolution &changes) {
        const qsizetype before = known.size();
        known.insert(keyOf(changes));
        return known.size() == before;
    });
}

} // namespace

Choices marksWith(const ResolutionQuestion &question, const Resolution &changes)
{
    Trial trial(question);
    for (const ChoiceChange &change : changes)
        trial.take(change);
    return trial.marks().all();
}

std::vector<Resolution> findResolutions(const ResolutionQuestion &question)
{
    std::vector<Resolution> found = Search(question).run();
    addProposals(found, question);
    removeRepetitions(found);
    std::vector<Resolution> offered;
    for (const Resolution &changes : ranked(found, Trial(question))) {
        if (offered.size() < kMostResolutions && isClean(question, changes))
            offered.push_back(changes);
    }
    return offered;
}

ResolutionQuestion resolutionQuestion(const PpdDocument &printer, const Choice &wanted)
{
    return {printer.groups(),
            printer.rules(),
            printer.marks(),
            wanted,
            {printer.libcupsResolution(wanted)}};
}

} // namespace dialog
