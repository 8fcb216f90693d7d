#include "dialog/choice_words.h"

#include "dialog/printers/ppd_document.h"

#include <QCoreApplication>

namespace dialog {
namespace {

struct ChoiceWords
{
    Q_DECLARE_TR_FUNCTIONS(ChoiceWords)
};

QString pair(const QString &sentence, const PpdDocument &printer, const Choice &one,
             const Choice &other)
{
    return sentence.arg(printer.optionText(one.option), printer.choiceText(one),
                        printer.optionText(other.option), printer.choiceText(other));
}

} // namespace

QString conflictWords(const PpdDocument &printer, const Conflict &conflict)
{
    return pair(ChoiceWords::tr("“%1: %2” and “%3: %4” do not go together."), printer, conflict.one,
                conflict.other);
}

QString differenceWords(const PpdDocument &printer, const Difference &difference)
{
    const auto &[option, chosen, marked] = difference;
    return ChoiceWords::tr("%1: you chose “%2”, the job has “%3”.")
        .arg(printer.optionText(option), printer.choiceText({option, chosen}),
             printer.choiceText({option, marked}));
}

QString forbiddenWords(const PpdDocument &printer, const Choice &offered, const Choice &inTheWay)
{
    return pair(ChoiceWords::tr("“%1: %2” cannot be used together with “%3: %4”."), printer,
                offered, inTheWay);
}

QString refusedWords(const PpdDocument &printer, const Choice &offered)
{
    return ChoiceWords::tr("“%1: %2” cannot be chosen now.")
        .arg(printer.optionText(offered.option), printer.choiceText(offered));
}

} // namespace dialog
