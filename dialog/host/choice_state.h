#pragma once

#include "dialog/printers/choice.h"

#include <QString>
#include <QVariant>

#include <map>

namespace dialog {

/// Everything that a person can set, at one moment: what presets, undo and remembered settings
/// keep.
struct ChoiceState
{
    Choices marks;                          ///< every marked choice of the PPD
    std::map<QString, QVariant> settings;   ///< the print settings
    QString paperName;                      ///< null: the marked page size stands
    std::map<QString, QString> chosen = {}; ///< what a person chose last, by option

    bool operator==(const ChoiceState &) const = default;
};

} // namespace dialog
