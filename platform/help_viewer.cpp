#include "platform/help_viewer.h"

#include "platform/bundle.h"

#include <QFileInfo>

#include <map>
#include <utility>

namespace {

platform::HelpOpener &currentOpener()
{
    static platform::HelpOpener opener;
    return opener;
}

/// Real paths of the registered books by their names.
std::map<QString, QString> &registeredBooks()
{
    static std::map<QString, QString> books;
    return books;
}

QString bookNameOf(const Bundle &bundle)
{
    const QVariant name = bundle.infoDictionary().value(QStringLiteral("CFBundleHelpBookName"));
    return name.typeId() == QMetaType::QString ? name.toString() : QString();
}

QString bookPath(const QString &bookName)
{
    const auto found = registeredBooks().find(bookName);
    return bookName.isNull() || found == registeredBooks().end() ? QString() : found->second;
}

} // namespace

platform::HelpOpener platform::setHelpOpener(HelpOpener opener)
{
    return std::exchange(currentOpener(), std::move(opener));
}

bool CFURLGetFSRef(const QString &literalPath, FSRef *reference)
{
    const QString realPath = platform::resolved(literalPath);
    if (realPath.isEmpty() || !QFileInfo::exists(realPath))
        return false;
    reference->realPath = realPath;
    return true;
}

OSStatus AHRegisterHelpBook(const FSRef &book)
{
    const std::unique_ptr<Bundle> bundle = Bundle::bundleWithPath(book.realPath);
    const QString name = bundle ? bookNameOf(*bundle) : QString();
    if (name.isNull())
        return paramErr;
    registeredBooks()[name] = book.realPath;
    return noErr;
}

OSStatus AHGotoPage(const QString &bookName, const QString &page, const QString &anchor)
{
    const platform::HelpOpener opener = currentOpener(); // a copy, for one that replaces itself
    if (opener)
        opener(
            {.bookName = bookName, .bookPath = bookPath(bookName), .page = page, .anchor = anchor});
    return noErr;
}
