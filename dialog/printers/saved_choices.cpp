#include "dialog/printers/saved_choices.h"

#include "platform/regular_file.h"
#include "platform/strings.h"

#include <cups/cups.h>

#include <QDir>
#include <QFile>

namespace dialog {
namespace {

constexpr qint64 kLargestFile = 1024 * 1024;

QString administratorsFile()
{
    const QByteArray folder = qgetenv("CUPS_SERVERROOT");
    return QFile::decodeName(folder.isEmpty() ? QByteArray("/etc/cups") : folder) +
           QStringLiteral("/lpoptions");
}

QString usersFile()
{
    return QDir::homePath() + QStringLiteral("/.cups/lpoptions");
}

/// "Dest NAME OPTIONS", or "Default" in the first place. Instances ("NAME/...") are other queues to
/// a user.
void takeLine(const QByteArray &line, const QString &queue, Choices &choices)
{
    const QByteArray words = line.simplified();
    const QByteArray kind = words.left(words.indexOf(' ')).toLower();
    const QByteArray rest = words.mid(kind.size() + 1);
    const QByteArray name = rest.left(rest.indexOf(' '));
    if ((kind != "dest" && kind != "default") || QString::fromUtf8(name) != queue)
        return;
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(rest.mid(name.size()).constData(), 0, &options);
    for (int i = 0; i < count; ++i)
        choices.push_back(
            {platform::decodedUtf8(options[i].name), platform::decodedUtf8(options[i].value)});
    cupsFreeOptions(count, options);
}

} // namespace

Choices savedChoices(const QString &queue)
{
    Choices choices;
    for (const QString &path : {administratorsFile(), usersFile()}) {
        const auto bytes = platform::readRegularFile(path, kLargestFile);
        for (const QByteArray &line : bytes.value_or(QByteArray()).split('\n'))
            takeLine(line, queue, choices);
    }
    return choices;
}

} // namespace dialog
