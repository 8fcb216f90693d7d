#include "dialog/jobs/job_journal.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QSaveFile>

#include <algorithm>

namespace dialog {
namespace {

constexpr int kVersion = 1;
constexpr qint64 kLongestEntry = 64 * 1024;
constexpr QFile::Permissions kOwnerOnly = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions kOwnersFolder = kOwnerOnly | QFile::ExeOwner;

// clang-format off
const QString kVersionKey = QStringLiteral("version");
const QString kToken      = QStringLiteral("token");
const QString kServer     = QStringLiteral("server");
const QString kQueue      = QStringLiteral("queue");
const QString kTitle      = QStringLiteral("title");
const QString kJobId      = QStringLiteral("jobId");
const QString kStage      = QStringLiteral("stage");
const QString kTime       = QStringLiteral("time");
// clang-format on

QByteArray written(const JournalEntry &entry)
{
    return QJsonDocument(QJsonObject{
                             {kVersionKey, kVersion},
                             {kToken, entry.trace.token},
                             {kServer, entry.server},
                             {kQueue, entry.trace.queue},
                             {kTitle, entry.title},
                             {kJobId, entry.trace.jobId},
                             {kStage, static_cast<int>(entry.trace.stage)},
                             {kTime, entry.time.toUTC().toString(Qt::ISODateWithMs)},
                         })
        .toJson();
}

/// Without a token when the file is no entry.
JournalEntry readEntry(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QJsonObject json = QJsonDocument::fromJson(file.read(kLongestEntry)).object();
    const int stage = json[kStage].toInt(-1);
    if (json[kVersionKey].toInt() != kVersion || stage < 0 ||
        stage > static_cast<int>(SendStage::Sent))
        return {};
    return {{json[kToken].toString(), json[kQueue].toString(), json[kJobId].toInt(),
             static_cast<SendStage>(stage)},
            json[kServer].toString(),
            json[kTitle].toString(),
            QDateTime::fromString(json[kTime].toString(), Qt::ISODateWithMs)};
}

} // namespace

QString journalFolder()
{
    const QString given = QFile::decodeName(qgetenv("XDG_STATE_HOME"));
    const QString base =
        QDir::isAbsolutePath(given) ? given : QDir::homePath() + QStringLiteral("/.local/state");
    return base + QStringLiteral("/korvane-print/jobs");
}

JobJournal::JobJournal(QString folder) : folder_(std::move(folder)) {}

JobJournal::~JobJournal() = default;

/// Colons have no place in a file's name.
QString JobJournal::pathOf(const QString &token) const
{
    return folder_ + u'/' + QString(token).replace(u':', u'-').replace(u'/', u'-') +
           QStringLiteral(".json");
}

bool JobJournal::lock(const QString &token)
{
    std::unique_ptr<QLockFile> &held = locks_[token];
    if (held)
        return true;
    auto wanted = std::make_unique<QLockFile>(pathOf(token) + QStringLiteral(".lock"));
    wanted->setStaleLockTime(0); // only a program that has ended gives its entry up
    if (!wanted->tryLock(0))
        return false;
    held = std::move(wanted);
    return true;
}

bool JobJournal::write(const JournalEntry &entry)
{
    const std::lock_guard guard(mutex_);
    if (forgotten_.count(entry.trace.token) > 0 || !QDir().mkpath(folder_) ||
        !QFile::setPermissions(folder_, kOwnersFolder) || !lock(entry.trace.token))
        return false;
    QSaveFile file(pathOf(entry.trace.token));
    const QByteArray bytes = written(entry);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.setPermissions(kOwnerOnly) &&
                           file.write(bytes) == bytes.size() && file.commit();
    // Who could not write a later stage still has the earlier one to find the job by.
    if (isWritten)
        written_[entry.trace.token] = entry.trace;
    return isWritten;
}

std::optional<JobTrace> JobJournal::find(const QString &token)
{
    const std::lock_guard guard(mutex_);
    const auto found = written_.find(token);
    return found == written_.end() ? std::nullopt : std::optional(found->second);
}

void JobJournal::forget(const QString &token)
{
    const std::lock_guard guard(mutex_);
    QFile::remove(pathOf(token));
    locks_.erase(token);
    written_.erase(token);
    forgotten_.insert(token);
}

std::vector<JournalEntry> JobJournal::takeOver(const QString &server)
{
    const std::lock_guard guard(mutex_);
    std::vector<JournalEntry> entries;
    for (const QString &name :
         QDir(folder_).entryList({QStringLiteral("*.json")}, QDir::Files | QDir::NoSymLinks)) {
        const JournalEntry entry = readEntry(folder_ + u'/' + name);
        const bool isWhole =
            !entry.trace.token.isEmpty() && pathOf(entry.trace.token) == folder_ + u'/' + name;
        if (isWhole && entry.server == server && locks_.count(entry.trace.token) == 0 &&
            lock(entry.trace.token))
            entries.push_back(entry);
    }
    std::sort(entries.begin(), entries.end(),
              [](const JournalEntry &a, const JournalEntry &b) { return a.time < b.time; });
    return entries;
}

} // namespace dialog
