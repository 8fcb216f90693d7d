#include "tests/tools/sample_ppd.h"

#include <QSet>

#include <algorithm>
#include <numeric>

namespace sample {
namespace {

/// One choice for each of the constrained options, by index.
using Combination = std::vector<int>;

class Space
{
public:
    explicit Space(const ppd_file_t *ppd) : pairs_(pairs(ppd))
    {
        for (const ppd_option_t *option : optionsOf(ppd)) {
            const QByteArray keyword = option->keyword;
            if (std::ranges::any_of(pairs_,
                                    [&](const auto &pair) { return pair.first.first == keyword; }))
                options_.push_back(option);
        }
    }

    [[nodiscard]] const std::vector<const ppd_option_t *> &options() const { return options_; }

    [[nodiscard]] Combination defaults() const
    {
        Combination combination;
        for (const ppd_option_t *option : options_)
            combination.push_back(indexOf(option, option->defchoice));
        return combination;
    }

    [[nodiscard]] bool allowed(const Combination &combination) const
    {
        for (std::size_t a = 0; a < options_.size(); ++a) {
            for (std::size_t b = a + 1; b < options_.size(); ++b) {
                if (pairs_.contains({choice(a, combination), choice(b, combination)}))
                    return false;
            }
        }
        return true;
    }

    /// Every combination in which one option differs.
    [[nodiscard]] std::vector<Combination> neighbours(const Combination &from) const
    {
        std::vector<Combination> result;
        for (std::size_t option = 0; option < options_.size(); ++option) {
            for (int index = 0; index < options_[option]->num_choices; ++index) {
                result.push_back(from);
                result.back()[option] = index;
            }
        }
        return result;
    }

    [[nodiscard]] qsizetype number(const Combination &combination) const
    {
        qsizetype number = 0;
        for (std::size_t option = 0; option < options_.size(); ++option)
            number = number * options_[option]->num_choices + combination[option];
        return number;
    }

    [[nodiscard]] Combination combination(qsizetype number) const
    {
        Combination result(options_.size());
        for (std::size_t option = options_.size(); option-- > 0;) {
            result[option] = static_cast<int>(number % options_[option]->num_choices);
            number /= options_[option]->num_choices;
        }
        return result;
    }

    [[nodiscard]] qsizetype size() const
    {
        return std::accumulate(options_.begin(), options_.end(), qsizetype{1},
                               [](qsizetype product, const ppd_option_t *option) {
                                   return product * option->num_choices;
                               });
    }

private:
    using Choice = std::pair<QByteArray, QByteArray>;
    using Pairs = QSet<std::pair<Choice, Choice>>;

    static Pairs pairs(const ppd_file_t *ppd)
    {
        Pairs result;
        for (int i = 0; i < ppd->num_consts; ++i) {
            const ppd_const_t &rule = ppd->consts[i];
            result.insert({{rule.option1, rule.choice1}, {rule.option2, rule.choice2}});
            result.insert({{rule.option2, rule.choice2}, {rule.option1, rule.choice1}});
        }
        return result;
    }

    static int indexOf(const ppd_option_t *option, const QByteArray &keyword)
    {
        const ppd_choice_t *begin = option->choices;
        const ppd_choice_t *end = begin + option->num_choices;
        const auto isWanted = [&](const ppd_choice_t &choice) { return choice.choice == keyword; };
        return static_cast<int>(std::find_if(begin, end, isWanted) - begin);
    }

    [[nodiscard]] Choice choice(std::size_t option, const Combination &combination) const
    {
        return {options_[option]->keyword, options_[option]->choices[combination[option]].choice};
    }

    Pairs pairs_;
    std::vector<const ppd_option_t *> options_;
};

std::vector<bool> allowedNumbers(const Space &space)
{
    std::vector<bool> allowed(static_cast<std::size_t>(space.size()));
    for (std::size_t number = 0; number < allowed.size(); ++number)
        allowed[number] = space.allowed(space.combination(static_cast<qsizetype>(number)));
    return allowed;
}

std::vector<Combination> reachedCombinations(const Space &space, const std::vector<bool> &allowed)
{
    std::vector<bool> seen(allowed.size());
    std::vector<Combination> reached{space.defaults()};
    seen[static_cast<std::size_t>(space.number(reached.front()))] = true;
    for (std::size_t next = 0; next < reached.size(); ++next) {
        for (const Combination &neighbour : space.neighbours(Combination(reached[next]))) {
            const auto number = static_cast<std::size_t>(space.number(neighbour));
            if (seen[number] || !allowed[number])
                continue;
            seen[number] = true;
            reached.push_back(neighbour);
        }
    }
    return reached;
}

} // namespace

QString pathOf(const char *edition)
{
    return QStringLiteral(KORVANE_ROOT_DIR "/Library/Printers/Korvane/PPDs/%1.ppd")
        .arg(QString::fromLatin1(edition));
}

Ppd open(const char *edition)
{
    Ppd ppd(ppdOpenFile(pathOf(edition).toLocal8Bit().constData()));
    if (ppd)
        ppdMarkDefaults(ppd.get());
    return ppd;
}

std::vector<const ppd_option_t *> optionsOf(const ppd_file_t *ppd)
{
    std::vector<const ppd_option_t *> result;
    for (int group = 0; group < ppd->num_groups; ++group) {
        const ppd_group_t &members = ppd->groups[group];
        for (int option = 0; option < members.num_options; ++option) {
            if (QByteArray(members.options[option].keyword) != "PageRegion")
                result.push_back(&members.options[option]);
        }
    }
    return result;
}

QString choiceText(ppd_file_t *ppd, const char *option, const char *choice)
{
    const ppd_choice_t *found = ppdFindChoice(ppdFindOption(ppd, option), choice);
    return found ? QString::fromUtf8(found->text) : QString();
}

QList<QByteArray> constraintsOf(const ppd_file_t *ppd)
{
    QList<QByteArray> result;
    for (int i = 0; i < ppd->num_consts; ++i) {
        const ppd_const_t &rule = ppd->consts[i];
        result.append(QByteArray(rule.option1) + ' ' + rule.choice1 + ' ' + rule.option2 + ' ' +
                      rule.choice2);
    }
    return result;
}

Reach reachFromDefaults(const ppd_file_t *ppd)
{
    const Space space(ppd);
    const std::vector<bool> allowed = allowedNumbers(space);
    const std::vector<Combination> reached = reachedCombinations(space, allowed);

    Reach reach{.unreachedChoices = {},
                .conflictFree = std::ranges::count(allowed, true),
                .reached = static_cast<qsizetype>(reached.size())};
    for (std::size_t option = 0; option < space.options().size(); ++option) {
        for (int index = 0; index < space.options()[option]->num_choices; ++index) {
            const auto chosen = [&](const Combination &c) { return c[option] == index; };
            if (std::ranges::none_of(reached, chosen)) {
                const ppd_option_t *record = space.options()[option];
                reach.unreachedChoices.append(QByteArray(record->keyword) + ' ' +
                                              record->choices[index].choice);
            }
        }
    }
    return reach;
}

} // namespace sample
