#include "tests/features/random_printer.h"

#include <QList>

#include <algorithm>

namespace test {
namespace {

int upTo(int bound, std::mt19937 &random)
{
    return static_cast<int>(random() % static_cast<unsigned>(bound));
}

QByteArray choiceName(int choice)
{
    return "c" + QByteArray::number(choice);
}

QByteArray optionText(int number, const char *kind, const QList<QByteArray> &choices)
{
    const QByteArray name = "O" + QByteArray::number(number);
    QByteArray text = "*OpenUI *" + name + "/Option " + name + ": " + kind + "\n*Default" + name +
                      ": " + choices.first() + "\n";
    for (const QByteArray &choice : choices)
        text += "*" + name + " " + choice + "/Choice " + choice + ": \"\"\n";
    return text + "*CloseUI: *" + name + "\n";
}

QByteArray option(int number, const RandomPrinter &printer, std::mt19937 &random)
{
    QList<QByteArray> choices;
    for (int i = 0; i < printer.choices; ++i)
        choices.append(choiceName(i));
    const int kind = upTo(6, random);
    return optionText(number, kind == 0 ? "PickMany" : "PickOne", choices);
}

/// "*O1 c2 *O5 c1 ...": of different options, the first choice of none of them.
QByteArray constraintParts(const RandomPrinter &printer, std::mt19937 &random)
{
    const int parts = std::min(printer.options, 2 + upTo(printer.partsOfConstraint - 1, random));
    QByteArray text;
    int number = upTo(printer.options, random);
    for (int i = 0; i < parts; ++i) {
        text += " *O" + QByteArray::number(number) + " " +
                choiceName(1 + upTo(printer.choices - 1, random));
        number = (number + 1 + upTo(printer.options / parts, random)) % printer.options;
    }
    return text.trimmed();
}

} // namespace

QByteArray randomPpd(const RandomPrinter &printer, std::mt19937 &random)
{
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*LanguageEncoding: UTF-8\n*NickName: \"Random\"\n";
    for (int i = 0; i < printer.constraints; ++i)
        text += "*cupsUIConstraints r" + QByteArray::number(i) + ": \"" +
                constraintParts(printer, random) + "\"\n";
    for (int i = 0; i + 1 < printer.options; ++i)
        text += option(i, printer, random);
    text += "*OpenGroup: InstallableOptions/Installed\n";
    text += option(printer.options - 1, printer, random);
    return text + "*CloseGroup: InstallableOptions\n";
}

} // namespace test
