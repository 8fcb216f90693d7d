#pragma once

#include "platform/panel_protocol.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// What the Other panel will make of a printer, told to whoever writes its PPD.
namespace other {

/// What the findings about one option depend on: its choices' keywords, and whether several of them
/// can stand at a time.
struct PrinterOption
{
    QStringList keywords = {};
    bool isPickMany = false;
};

/// Of the option with that keyword; nothing stands for a printer that lacks it.
[[nodiscard]] std::vector<PDEFinding> findings(const char *keyword,
                                               const std::optional<PrinterOption> &option);

/// Of all options of the panel.
[[nodiscard]] std::vector<PDEFinding> findings(ppd_file_t *ppd);

} // namespace other
