#include "diag/debug_log.h"
#include "diag/guarded_file.h"
#include "platform/property_list.h"
#include "platform/strings.h"
#include "platform/values.h"

#include <QFile>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <thread>
#include <utility>

#include <unistd.h>

namespace {

constexpr char kModuleKey[] = "PDE-REFRESH";
constexpr char kListName[] = "/Debug/.DebugPlist/kvDebug.plist";
/// The longest path of list and log file, with its NUL.
constexpr std::size_t kPathSize = 512;

diag::PollSleep &pollSleep()
{
    static diag::PollSleep sleep;
    return sleep;
}

/// A file below the temporary directory.
struct LogPath
{
    std::string folder;
    std::string name;

    [[nodiscard]] std::string whole() const { return folder + '/' + name; }
    [[nodiscard]] bool fits() const { return whole().size() < kPathSize; }
    /// What a buffer of that size holds.
    [[nodiscard]] std::string text() const { return whole().substr(0, kPathSize - 1); }
};

LogPath inTemporaryDirectory(const std::string &name)
{
    return {.folder = QFile::encodeName(platform::temporaryDirectory()).toStdString(),
            .name = name};
}

QVariant valueOfType(const QVariant &dictionary, const char *key, QMetaType::Type type)
{
    const QVariant value = platform::valueForKey(dictionary, QString::fromLatin1(key));
    return value.typeId() == type ? value : QVariant();
}

/// Invalid when there is no entry of this module.
QVariant moduleEntry(const QVariant &list)
{
    return valueOfType(list, kModuleKey, QMetaType::QVariantMap);
}

/// A whole number that fits; booleans, reals and texts are none.
std::optional<std::int32_t> integerOf(const QVariant &entry, const char *key)
{
    using Limits = std::numeric_limits<std::int32_t>;
    const QVariant value = valueOfType(entry, key, QMetaType::LongLong);
    const qlonglong number = value.toLongLong();
    if (!value.isValid() || number < Limits::min() || number > Limits::max())
        return {};
    return std::int32_t(number);
}

/// Empty when there is no such text, or when it is not ASCII.
std::string asciiOf(const QVariant &entry, const char *key)
{
    const QString text = valueOfType(entry, key, QMetaType::QString).toString();
    const auto isAscii = [](QChar c) { return c.unicode() > 0 && c.unicode() < 128; };
    return std::all_of(text.cbegin(), text.cend(), isAscii) ? text.toStdString() : std::string();
}

/// Invalid when the file is missing, is not to be trusted, or holds no dictionary.
QVariant readDebugList(const LogPath &path)
{
    if (!path.fits())
        return {};
    const auto bytes =
        diag::readGuardedFile(path.folder, path.name, platform::property_list_limits::bytes);
    const QVariant list = bytes ? platform::parsePropertyList(*bytes) : QVariant();
    return list.typeId() == QMetaType::QVariantMap ? list : QVariant();
}

/// Asks the debug viewer to add this module's entry and waits for it, about a second at most.
QVariant requestModuleEntry(const LogPath &path)
{
    const std::string request = std::string("\xFF") + kModuleKey;
    sendToDebugApp(request.data(), request.size());
    QVariant list;
    for (int attempt = 0; attempt < 5; ++attempt) {
        list = readDebugList(path);
        if (moduleEntry(list).isValid())
            break;
        constexpr std::chrono::microseconds pause(200'000);
        if (pollSleep())
            pollSleep()(pause);
        else
            std::this_thread::sleep_for(pause);
    }
    return list;
}

bool shouldRequestModuleEntry(const QVariant &list)
{
    return diag::isSocketMode() && !moduleEntry(list).isValid() &&
           platform::booleanValue(platform::valueForKey(list, QStringLiteral("traceAll")));
}

void readLevelAndModule(const QVariant &entry)
{
    const auto level = integerOf(entry, "debugLevel");
    logDebugLevel = std::max(level.value_or(0), 0);
    if (const auto number = integerOf(entry, "moduleNumber"); level && number)
        logModuleID = std::int32_t(qint64(*number) + 64);
}

std::FILE *openLogFile(const LogPath &path)
{
    if (path.fits())
        return diag::openGuardedLog(path.folder, path.name);
    errno = ENAMETOOLONG;
    return nullptr;
}

void setUpFile(const QVariant &entry)
{
    const LogPath path = inTemporaryDirectory(asciiOf(entry, "debugFile"));
    std::fprintf(stderr, "debugFilePath %s\n", path.text().c_str());
    if (logDebugLevel < 1)
        return;
    logDebugFilePtr = openLogFile(path);
    if (!logDebugFilePtr)
        std::fprintf(stderr, "ERROR: Unable to open log file (errno %d %s)\n", errno,
                     std::strerror(errno));
}

void writeSetupRecords()
{
    LogFormatAndSend("logger", 0, 'A', "DEBUG GO");
    logNote(diag::isSocketMode() ? "socket OK" : "file OK");
    logNote("bID   \"%s\"", kModuleKey);
    logNote("level %d", logDebugLevel);
    logNote("mID   %d", logModuleID);
    if (logDebugLevel & diag::kInfoLevel)
        logNote("I OK");
    if (logDebugLevel & diag::kErrorLevel)
        logNote("E OK");
    if (logDebugLevel & diag::kDumpLevel)
        logNote("D OK");
    logNote("setup OK");
}

/// Level, module letter and file by the list, in this order.
QVariant setUpByList()
{
    const LogPath path = inTemporaryDirectory(kListName);
    std::fprintf(stderr, "tmp at %s \n", path.text().c_str());
    QVariant list = readDebugList(path);
    if (!list.isValid())
        return {};
    if (shouldRequestModuleEntry(list))
        list = requestModuleEntry(path);
    const QVariant entry = moduleEntry(list);
    readLevelAndModule(entry);
    if (!diag::isSocketMode())
        setUpFile(entry);
    return list;
}

} // namespace

void setupDebug()
{
    if (logDoneSetup)
        return;
    logDoneSetup = true;
    logCurrentPID = ::getpid();
    logDebugLevel = 0;
    const QVariant list = setUpByList();
    if (!diag::isSocketMode() && !logDebugFilePtr)
        logDebugLevel = 0;
    if (logDebugLevel != 0)
        writeSetupRecords();
    dumpDictBody("setupDebug", 519, "debugPlist", list);
}

void diag::setPollSleep(PollSleep sleep)
{
    pollSleep() = std::move(sleep);
}
