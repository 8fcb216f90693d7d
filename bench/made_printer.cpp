#include "bench/made_printer.h"

namespace bench {

QByteArray optionText(const QByteArray &keyword, int choices)
{
    QByteArray text =
        "*OpenUI *" + keyword + "/" + keyword + ": PickOne\n*Default" + keyword + ": Automatic\n";
    text += "*" + keyword + " Automatic/Automatic: \"\"\n";
    for (int i = 1; i < choices; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "*" + keyword + " C" + number + "/Choice " + number + ": \"\"\n";
    }
    return text + "*CloseUI: *" + keyword + "\n";
}

QByteArray extraOptions(int first, int end, int choices)
{
    QByteArray text;
    for (int i = first; i < end; ++i)
        text += optionText("Extra" + QByteArray::number(i), choices);
    return text;
}

} // namespace bench
