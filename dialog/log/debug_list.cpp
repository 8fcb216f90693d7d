#include "dialog/log/debug_list.h"

#include "dialog/log/private_folder.h"
#include "platform/property_list.h"

#include <QFile>

#include <algorithm>
#include <optional>

namespace dialog::debuglog {
namespace {

const QString kModule = QStringLiteral("PDE-REFRESH");
const QString kOuterFolder = QStringLiteral("Debug");
const QString kInnerFolder = QStringLiteral(".DebugPlist");
const QString kListName = QStringLiteral("kvDebug.plist");

constexpr qlonglong kModuleNumber = 1;
/// The longest path that the log opens, in bytes.
constexpr qsizetype kLongestPath = 511;

/// As the log puts its paths together.
bool fitsInto(const QString &temporaryDirectory, const QString &name)
{
    return QFile::encodeName(temporaryDirectory + u'/' + name).size() <= kLongestPath;
}

bool isPrintableAscii(QChar c)
{
    return c.unicode() >= 0x20 && c.unicode() < 0x7F;
}

QString listPath()
{
    return u'/' + kOuterFolder + u'/' + kInnerFolder + u'/' + kListName;
}

/// The list that is there. Nothing read means that there is none; a list that cannot be understood
/// is nobody's to replace.
using ReadList = std::variant<QVariantMap, Refusal>;
ReadList readList(const PrivateFolder &folder)
{
    if (const auto refused = folder.refusalOf(kListName))
        return *refused;
    if (!folder.hasFile(kListName))
        return QVariantMap();
    const auto bytes = folder.read(kListName, platform::property_list_limits::bytes);
    const QVariant list = bytes ? platform::parsePropertyList(*bytes) : QVariant();
    if (list.typeId() == QMetaType::QVariantMap)
        return list.toMap();
    return Refusal{folder.pathOf(kListName) +
                   QStringLiteral(": this is no property list of the debug log; remove it")};
}

std::optional<Refusal> writeList(const PrivateFolder &folder, const QVariantMap &list)
{
    return folder.replace(kListName, platform::propertyListXml(list));
}

QVariantMap entryOf(const LogSettings &settings)
{
    return {{QStringLiteral("debugLevel"), qlonglong(settings.level)},
            {QStringLiteral("moduleNumber"), kModuleNumber},
            {QStringLiteral("debugFile"), settings.file}};
}

/// Where the list belongs; made where it is missing.
PrivateFolder::Opened listFolder(const PrivateFolder &temporary)
{
    const auto outer = temporary.openOrMake(kOuterFolder);
    const auto *folder = std::get_if<PrivateFolder>(&outer);
    return folder ? folder->openOrMake(kInnerFolder)
                  : PrivateFolder::Opened(std::get<Refusal>(outer));
}

/// Nothing where it is missing.
std::optional<PrivateFolder::Opened> listFolderIfThere(const PrivateFolder &temporary)
{
    auto outer = temporary.openIfThere(kOuterFolder);
    const auto *folder = outer ? std::get_if<PrivateFolder>(&*outer) : nullptr;
    return folder ? folder->openIfThere(kInnerFolder) : std::move(outer);
}

ListOutcome writeEntry(const PrivateFolder &folder, const LogSettings &settings)
{
    const ReadList read = readList(folder);
    if (const auto *refused = std::get_if<Refusal>(&read))
        return NotDone{refused->message};
    QVariantMap list = std::get<QVariantMap>(read);
    list.insert(kModule, entryOf(settings));
    if (const auto refused = writeList(folder, list))
        return NotDone{refused->message};
    return Done{};
}

ListOutcome removeEntry(const PrivateFolder &folder)
{
    const ReadList read = readList(folder);
    if (const auto *refused = std::get_if<Refusal>(&read))
        return NotDone{refused->message};
    QVariantMap list = std::get<QVariantMap>(read);
    if (list.remove(kModule) == 0)
        return Done{QStringLiteral("The debug log was not on.")};
    const auto refused = list.isEmpty() ? folder.remove(kListName) : writeList(folder, list);
    if (refused)
        return NotDone{refused->message};
    return Done{QStringLiteral("The debug log is off for programs started from now on.")};
}

} // namespace

QString whyNoLogName(const QString &name, const QString &temporaryDirectory)
{
    if (name.isEmpty() || name == QLatin1String(".") || name == QLatin1String(".."))
        return QStringLiteral("\"%1\" is no name of a file").arg(name);
    if (name.contains(u'/'))
        return name + QStringLiteral(": the log lies in %1 itself; give a name without \"/\"")
                          .arg(temporaryDirectory);
    if (!std::all_of(name.begin(), name.end(), isPrintableAscii))
        return QStringLiteral("the log's name may have ASCII letters, digits and signs only");
    if (!fitsInto(temporaryDirectory, name))
        return QStringLiteral("the log's path would be longer than %1 bytes; give a shorter name")
            .arg(kLongestPath);
    return {};
}

ListOutcome switchLogOn(const LogSettings &settings, const QString &temporaryDirectory)
{
    const QString reason = whyNoLogName(settings.file, temporaryDirectory);
    if (!reason.isNull())
        return NotDone{reason};
    if (!fitsInto(temporaryDirectory, listPath()))
        return NotDone{temporaryDirectory +
                       QStringLiteral(": this path is too long; set TMPDIR to a shorter one")};
    const auto temporary = PrivateFolder::open(temporaryDirectory);
    if (const auto *refused = std::get_if<Refusal>(&temporary))
        return NotDone{refused->message};
    const auto &folder = std::get<PrivateFolder>(temporary);
    if (const auto refused = folder.refusalOfLog(settings.file))
        return NotDone{refused->message};
    const auto opened = listFolder(folder);
    if (const auto *refused = std::get_if<Refusal>(&opened))
        return NotDone{refused->message};
    ListOutcome outcome = writeEntry(std::get<PrivateFolder>(opened), settings);
    if (auto *done = std::get_if<Done>(&outcome))
        done->message = QStringLiteral("The debug log is on: programs started from now on write "
                                       "to %1/%2")
                            .arg(temporaryDirectory, settings.file);
    return outcome;
}

ListOutcome switchLogOff(const QString &temporaryDirectory)
{
    const auto temporary = PrivateFolder::open(temporaryDirectory);
    if (const auto *refused = std::get_if<Refusal>(&temporary))
        return NotDone{refused->message};
    const auto opened = listFolderIfThere(std::get<PrivateFolder>(temporary));
    if (!opened)
        return Done{QStringLiteral("The debug log was not on.")};
    if (const auto *refused = std::get_if<Refusal>(&*opened))
        return NotDone{refused->message};
    return removeEntry(std::get<PrivateFolder>(*opened));
}

} // namespace dialog::debuglog
