#pragma once

#include "dialog/printers/print_server.h"

#include <QString>

#include <memory>
#include <optional>

namespace dialog {

class Memory;

/// What the dialog is opened with. Null means "not given".
struct PrintCase
{
    QString ppd;
    QString root; ///< driver root; given explicitly where it is not null
    std::optional<int> systemVersion;
    QString language;
    QString queue;
    QString document;
    QString jobFolder;
    bool showsConsole = false;
    ServerLimits serverLimits = {};
    ServerTimes serverTimes = {};
    std::shared_ptr<Memory> memory = {}; ///< null: nothing is remembered
};

} // namespace dialog
