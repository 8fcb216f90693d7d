#pragma once

#include "platform/export.h"
#include "platform/values.h"

#include <QString>

#include <functional>

/// The help viewer: knows registered books and opens them by name. The dialog sets what opening
/// does.

namespace platform {

struct HelpRequest
{
    QString bookName; ///< null when the caller named none
    QString bookPath; ///< real path of the registered bundle of that name; null when none was
                      ///< registered
    QString page;     ///< null for the book's first page
    QString anchor;
};

using HelpOpener = std::function<void(const HelpRequest &)>;

/// Replaces what AHGotoPage does and returns the former opener. Without one, nothing opens.
PLATFORM_EXPORT HelpOpener setHelpOpener(HelpOpener opener);

} // namespace platform

/// Reference to a file that exists.
struct FSRef
{
    QString realPath;
};

/// Finds the file at a literal path under the driver root. False, with the reference untouched,
/// when there is none.
PLATFORM_EXPORT bool CFURLGetFSRef(const QString &literalPath, FSRef *reference);

/// Registers a help-book bundle under its "CFBundleHelpBookName", in place of an earlier one of
/// that name; paramErr when it has no name.
PLATFORM_EXPORT OSStatus AHRegisterHelpBook(const FSRef &book);

/// Opens a book by name (null allowed), at a page and an anchor where they are not null. Always
/// noErr.
PLATFORM_EXPORT OSStatus AHGotoPage(const QString &bookName, const QString &page,
                                    const QString &anchor);
