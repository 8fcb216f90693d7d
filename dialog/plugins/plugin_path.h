#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace dialog {

/// Whose files may be loaded into the dialog beside root's.
enum class TrustedOwner { RootOnly, RootAndUser };

/// Why a path was refused.
struct PathRefusal
{
    enum class Reason { Outside, DotDot, Missing, Link, Owner, WritableByOthers, NotRegular };

    Reason reason;
    QString path; ///< the part of the path that is to blame

    [[nodiscard]] QString reasonText() const;

    Q_DECLARE_TR_FUNCTIONS(PathRefusal)
};

/// Folder below which plug-ins may lie, as a literal driver path.
inline constexpr QStringView kPlugInFolder = u"/Library/Printers";

/// Checks a literal driver path, down from the driver root: it lies below kPlugInFolder without
/// "..", no part is a link, and each part, the root's own folder included, belongs to a trusted
/// owner and can be written by nobody else. PPDs come from servers, so that what they name is not
/// trusted.
enum class PathKind { Directory, File };
[[nodiscard]] std::optional<PathRefusal> checkDriverPath(const QString &literalPath, PathKind kind,
                                                         TrustedOwner owner);

} // namespace dialog
