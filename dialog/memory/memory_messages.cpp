#include "dialog/memory/memory_messages.h"

namespace dialog {

QStringList MemoryMessages::of(const Recollection &recollection)
{
    if (!recollection.isInTime)
        return {tr("Your home folder does not answer, so that your last settings could not be "
                   "read. The printer's default settings are shown.")};
    QStringList texts{ofWindow(recollection.windowResult), ofSettings(recollection.settingsResult)};
    texts.removeDuplicates(); // both are in the same folder
    texts.removeAll(QString());
    return texts;
}

QString MemoryMessages::ofWindow(const StoreResult &result)
{
    if (result.setAside.isNull())
        return fault(result);
    return tr("The file with the size of this window was damaged. It is kept as “%1”. Correct the "
              "file and give it back its old name, or delete it.")
        .arg(result.setAside);
}

QString MemoryMessages::ofSettings(const StoreResult &result)
{
    if (result.setAside.isNull())
        return fault(result);
    return tr("The file with your last settings for this printer was damaged, so that the "
              "printer's default settings are shown. It is kept as “%1”. Correct the file and "
              "give it back its old name, or delete it.")
        .arg(result.setAside);
}

QString MemoryMessages::fault(const StoreResult &result)
{
    switch (result.fault) {
    case StoreFault::None:
        return {};
    case StoreFault::NotAllowed:
        return tr("What this dialog remembers could not be read, because “%1” may not be read or "
                  "written. Allow it, and open the dialog again.")
            .arg(result.path);
    case StoreFault::Untrusted:
        return tr("What this dialog remembers was not read, because “%1” is a link, belongs to "
                  "somebody else, or others may write to it. Replace it by a folder that only you "
                  "may write to.")
            .arg(result.path);
    case StoreFault::Newer:
        return tr("What this dialog remembers in “%1” is of a newer version of this program. "
                  "Update the program, or move the file away to begin anew.")
            .arg(result.path);
    default:
        return tr("What this dialog remembers could not be read from “%1”: %2.")
            .arg(result.path, result.detail);
    }
}

} // namespace dialog
