#include "dialog/queue_list_command.h"

#include "dialog/printers/queue_list.h"
#include "dialog/printers/user_files.h"
#include "dialog/texts.h"
#include "dialog/usage.h"
#include "dialog/window/printer_words.h"
#include "platform/values.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace dialog {
namespace {

class QueueListCommand
{
    Q_DECLARE_TR_FUNCTIONS(QueueListCommand)
};

constexpr int kNoServer = 1;

// For programs; the same in every language.
constexpr std::array kStateWords = {"unreachable", "paused",   "rejecting",
                                    "offline",     "printing", "idle"};
static_assert(kStateWords.size() == static_cast<std::size_t>(QueueState::Idle) + 1);

QJsonObject jsonOf(const Queue &queue)
{
    const auto state = static_cast<std::size_t>(queue.state);
    return {{QStringLiteral("name"), queue.name},
            {QStringLiteral("default"), queue.isDefault},
            {QStringLiteral("state"), QLatin1String(kStateWords[state])},
            {QStringLiteral("stateText"), stateText(queue)},
            {QStringLiteral("info"), queue.info},
            {QStringLiteral("location"), queue.location},
            {QStringLiteral("model"), queue.model}};
}

int sayAsJson(const std::vector<Queue> &queues)
{
    QJsonArray list;
    for (const Queue &queue : queues)
        list.append(jsonOf(queue));
    return writeOut(QJsonDocument(list).toJson()) ? 0 : kNoServer;
}

/// "NAME  STATE  INFO, LOCATION (default)"
QString lineOf(const Queue &queue, qsizetype nameWidth)
{
    QStringList words{queue.info, queue.location};
    words.removeAll(QString());
    QString line = queue.name.leftJustified(nameWidth) + QStringLiteral("  ") + stateText(queue);
    if (!words.isEmpty())
        line += QStringLiteral("  ") + words.join(QStringLiteral(", "));
    return queue.isDefault
               ? QueueListCommand::tr("%1 (%2)").arg(line, QueueListCommand::tr("default"))
               : line;
}

int sayAsLines(const std::vector<Queue> &queues)
{
    qsizetype nameWidth = 0;
    for (const Queue &queue : queues)
        nameWidth = std::max(nameWidth, queue.name.size());
    for (const Queue &queue : queues)
        say(lineOf(queue, nameWidth));
    return 0;
}

} // namespace

int runQueueListCommand(const QStringList &words)
{
    QByteArray name("korvane-print");
    char *arguments[] = {name.data(), nullptr};
    int count = 1;
    const QCoreApplication application(count, arguments); // translations belong to one
    QCommandLineParser parser;
    parser.addOptions({flagOption("json", "Write the queues as JSON."),
                       valueOption("language", "Language of the states, such as de.", "L"),
                       helpOption()});
    if (!parser.parse(words) || !parser.positionalArguments().isEmpty())
        return refuse(parser.positionalArguments().isEmpty()
                          ? parser.errorText()
                          : QStringLiteral("--list takes no other words"));
    if (parser.isSet(QStringLiteral("help"))) {
        say(helpText(parser));
        return 0;
    }
    if (parser.isSet(QStringLiteral("language")))
        platform::setPreferredLanguages({given(parser, "language")});
    installTexts();
    const QueueListing listing = listQueues({});
    if (listing.problem) {
        complain(problemText(listing.problem));
        return kNoServer;
    }
    const std::vector<Queue> queues = inOrderOfUse(listing.queues, lastUsedQueue());
    return parser.isSet(QStringLiteral("json")) ? sayAsJson(queues) : sayAsLines(queues);
}

} // namespace dialog
