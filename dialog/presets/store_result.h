#pragma once

#include "dialog/presets/preset.h"
#include "dialog/printers/user_files.h"

#include <optional>

namespace dialog {

/// Why a file that the dialog keeps for its user could not be read or written.
enum class StoreFault {
    None,
    NameTaken,   ///< another preset has the name
    Gone,        ///< the preset is no longer there
    TooMany,     ///< no more presets fit into the file
    Busy,        ///< another program holds the file
    NoRoom,      ///< the disk is full
    NotAllowed,  ///< file or folder may not be read or written
    Untrusted,   ///< file or folder is a link, is another user's, or others may write it
    Newer,       ///< written by a newer version of the program, and left alone
    SystemError, ///< any other, in the system's words
};

struct StoreResult
{
    StoreFault fault = StoreFault::None;
    QString path = {};     ///< of the file or folder that is to blame
    QString detail = {};   ///< the system's words, for SystemError
    QString setAside = {}; ///< where a damaged file lies now; null when none was found
    /// What an update or a removal replaced; what was added.
    std::optional<Preset> preset = {};

    [[nodiscard]] bool isOk() const { return fault == StoreFault::None; }
};

[[nodiscard]] StoreResult resultOf(const debuglog::Refusal &refused);

/// A file as it lies in its folder, before anybody has made sense of its bytes.
struct KeptFile
{
    enum class State {
        Missing,
        Read,
        Unusable, ///< too large, or no ordinary file of the user's alone: in the way, and kept
        Forbidden,
    };

    State state = State::Missing;
    QByteArray bytes = {};
};

[[nodiscard]] KeptFile readKept(const PrivateFolder &folder, const QString &name, qint64 limit);

} // namespace dialog
