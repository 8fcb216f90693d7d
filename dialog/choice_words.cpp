#include "dialog/choice_words.h"

#include "dialog/printers/ppd_document.h"

#include <QCoreApplication>

namespace dialog {
namespace {

struct ChoiceWords
{
    Q_DECLARE_TR_FUNCTIONS(ChoiceWords)
};

QString listed(const QStringList &words)
{
    return words.join(ChoiceWords::tr(", "));
}

QString pair(const QString &sentence, const PpdDocument &printer, const Choice &one,
             const Choice &other)
{
    return sentence.arg(printer.optionText(one.option), printer.choiceText(one),
                        printer.optionText(other.option), printer.choiceText(other));
}

} // namespace

/// A choice with a comma in its own name is looked up first.
QString choicesText(const PpdDocument &printer, const Choice &choice)
{
    if (printer.hasChoice(choice) || !printer.isPickMany(choice.option))
        return printer.choiceText(choice);
    QStringList texts;
    for (const QString &keyword : choice.choice.split(u','))
        texts.append(printer.choiceText({choice.option, keyword}));
    return listed(texts);
}

QString namedChoice(const PpdDocument &printer, const Choice &choice)
{
    return ChoiceWords::tr("%1: %2").arg(printer.optionText(choice.option),
                                         choicesText(printer, choice));
}

QString conflictWords(const PpdDocument &printer, const Conflict &conflict)
{
    return pair(ChoiceWords::tr("“%1: %2” and “%3: %4” do not go together."), printer, conflict.one,
                conflict.other);
}

QString differenceWords(const PpdDocument &printer, const Difference &difference)
{
    const auto &[option, chosen, marked] = difference;
    return ChoiceWords::tr("%1: you chose “%2”, the job has “%3”.")
        .arg(printer.optionText(option), choicesText(printer, {option, chosen}),
             choicesText(printer, {option, marked}));
}

QString standingDifferenceWords(const PpdDocument &printer, const Difference &difference)
{
    const auto &[option, chosen, marked] = difference;
    return ChoiceWords::tr("%1: you chose “%2”, but “%3” is set.")
        .arg(printer.optionText(option), choicesText(printer, {option, chosen}),
             choicesText(printer, {option, marked}));
}

QString forbiddenWords(const PpdDocument &printer, const Choice &offered, const Choice &inTheWay)
{
    return pair(ChoiceWords::tr("“%1: %2” cannot be used together with “%3: %4”."), printer,
                offered, inTheWay);
}

QString forbiddenWords(const PpdDocument &printer, const Choice &wanted, const Choices &inTheWay)
{
    if (inTheWay.size() == 1)
        return forbiddenWords(printer, wanted, inTheWay.front());
    QStringList named;
    for (const Choice &choice : inTheWay)
        named.append(ChoiceWords::tr("“%1”").arg(namedChoice(printer, choice)));
    return ChoiceWords::tr("“%1” cannot be used together with %2.")
        .arg(namedChoice(printer, wanted), listed(named));
}

QString reasonWords(const PpdDocument &printer, const Choices &inTheWay)
{
    QStringList named;
    for (const Choice &choice : inTheWay)
        named.append(namedChoice(printer, choice));
    return ChoiceWords::tr("not with %1").arg(listed(named));
}

QString changeWords(const PpdDocument &printer, const ChoiceChange &change)
{
    const QString option = printer.optionText(change.option);
    const QString from = printer.choiceText({change.option, change.from});
    if (change.to.isNull())
        return ChoiceWords::tr("%1: without “%2”").arg(option, from);
    const QString to = printer.choiceText({change.option, change.to});
    return change.from.isNull() ? ChoiceWords::tr("%1: “%2”").arg(option, to)
                                : ChoiceWords::tr("%1: “%2” instead of “%3”").arg(option, to, from);
}

QString refusedWords(const PpdDocument &printer, const Choice &offered)
{
    return ChoiceWords::tr("“%1: %2” cannot be chosen now.")
        .arg(printer.optionText(offered.option), printer.choiceText(offered));
}

} // namespace dialog
