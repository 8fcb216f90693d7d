#pragma once

#include <QStringList>

namespace dialog::batch {

/// What is asked for beside printer and document.
struct Request
{
    enum class Output { Lines, Json };

    QStringList sets;       ///< "OPTION=CHOICE", in order
    bool sends = true;      ///< false: only tells what would be sent
    bool sendsLess = false; ///< also when values did not survive the rules
    Output output = Output::Lines;
};

} // namespace dialog::batch
