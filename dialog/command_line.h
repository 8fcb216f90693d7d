#pragma once

#include "dialog/batch/request.h"
#include "dialog/print_case.h"
#include "dialog/replay/player.h"

#include <QString>
#include <QStringList>

#include <variant>

namespace dialog {

/// What the program was asked to do.
struct CommandLine
{
    enum class Command { OpenDialog, Print, Replay, ShowHelp, ShowVersion };

    Command command = Command::OpenDialog;
    PrintCase printCase;
    batch::Request request; ///< of Print
    QString scenario;
    QString report;      ///< null: none; "-": standard output
    QString record;      ///< null: none
    bool isDark = false; ///< of a replay: in the colours of a dark desktop
    replay::PlayerOptions player;
    QString person; ///< folder with what the person of the scenario has kept; null: nothing
    QString helpText;
};

/// Why the words make no command, in one line.
struct UsageError
{
    QString message;
};

/// @p words begins with the program's name.
[[nodiscard]] std::variant<CommandLine, UsageError> parseCommandLine(const QStringList &words);

} // namespace dialog
