#pragma once

#include "platform/panel_protocol.h"
#include "quality/interlocks.h"
#include "quality/setting.h"

#include <array>
#include <optional>
#include <vector>

/// What the Quality & Media panel will make of a printer, told to whoever writes its PPD.
namespace quality {

/// How many choices of an option can stand at a time.
enum class OptionType { Boolean, PickOne, PickMany };

struct PrinterOption
{
    OptionType type = OptionType::PickOne;
    ChoiceList choices = {};
};

/// All that the findings depend on.
struct Printer
{
    std::array<std::optional<PrinterOption>, kSettingCount> options = {}; ///< by setting
    quint16 productYear = 0;
    QString grayscale = {}; ///< the host's text

    [[nodiscard]] const std::optional<PrinterOption> &option(Setting setting) const
    {
        return options[static_cast<std::size_t>(setting)];
    }
    [[nodiscard]] SettingSet settings() const;
};

/// Setting by setting within each rule.
[[nodiscard]] std::vector<PDEFinding> findings(const Printer &printer);

[[nodiscard]] Printer printerOf(ppd_file_t *ppd, quint16 productYear, const QString &grayscale);

} // namespace quality
