#pragma once

#include <QString>

#include <vector>

namespace conflict {

/// Everything that detection looks at, gathered before the first test.
struct Situation
{
    // Tickets, null where the setting has none.
    QString paperType;
    QString printQuality;
    QString inkToUse;
    QString colorOutput;

    // Classes of the paper type and of the paper size.
    bool photoMedia = false;
    bool envelopeMedia = false;
    bool automaticMedia = false;
    bool bannerSize = false;
    bool envelopeSize = false;

    // Installed cartridges.
    bool colorCartridgeOnly = false;
    bool photoCartridge = false;

    quint16 productYear = 65535; ///< 65535 is unknown

    // What a person has already been told or has decided.
    bool ironOnDraftIgnored = false;
    bool paperSizeInstructed = false;
    bool inkToUseInstructed = false;
    bool cartridgeInstructed = false;
};

/// Case numbers of all conflicts that hold, in the order of the tests: 0, 1, 2, 4, 5, 7, 14, 9, 11,
/// 12, 13 (14 stands before 9). Cases 3, 6, 8 and 10 have windows, but no test finds them.
[[nodiscard]] std::vector<int> findConflicts(const Situation &situation);

} // namespace conflict
