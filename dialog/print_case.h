#pragma once

#include "dialog/printers/print_server.h"
#include "dialog/threads/background_work.h"

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
    /// Reads and writes presets and the like, in order. The last one who has the case waits for it.
    std::shared_ptr<BackgroundWork> files =
        std::make_shared<BackgroundWork>(std::chrono::seconds(1));
};

} // namespace dialog
