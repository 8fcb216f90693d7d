#pragma once

#include "dialog/host/choice_state.h"
#include "dialog/printers/job_options.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <map>
#include <vector>

namespace dialog {

class PpdDocument;

/// What a preset sets: all of ChoiceState but what belongs to one document or job, and without what
/// is as the printer has it anyway.
struct PresetContent
{
    OptionChoices choices = {};                ///< several of a pick-many option
    std::map<QString, QVariant> settings = {}; ///< print settings
    QString paperName = {};                    ///< null: the page size among the choices stands

    bool operator==(const PresetContent &) const = default;
    [[nodiscard]] bool isEmpty() const { return *this == PresetContent(); }
};

struct Preset
{
    QString name;
    QString printer; ///< the model that it was made for
    QString madeBy;  ///< version of the program that stored it; null for the printer's own
    PresetContent content;

    bool operator==(const Preset &) const = default;
};

/// The model by which presets are kept: the PPD's model name, else its nickname.
[[nodiscard]] QString modelOf(const PpdDocument &printer);

/// Whether presets keep a print setting. Copies, pages and whatever else names one document or one
/// job is left to the next document.
[[nodiscard]] bool isKeptInPresets(const QString &settingKey);

[[nodiscard]] PresetContent contentOf(const ChoiceState &state, const PpdDocument &printer);

} // namespace dialog
