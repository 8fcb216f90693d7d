#include "tests/support/private_cupsd.h"

#include "tests/support/print_to.h"

#include <cups/cups.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QThread>

#include <gtest/gtest.h>

#include <iostream>

#include <grp.h>
#include <netinet/in.h>
#include <pwd.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace test {
namespace {

constexpr const char *kOrdinaryUser = "nobody";
constexpr const char *kServerVariable = "CUPS_SERVER";
// Another program may take the port between its choice and its use.
constexpr int kStarts = 5;
constexpr int kPatienceMilliseconds = 20'000;
constexpr int kPollMilliseconds = 2;

// Below the server's folder.
constexpr const char *kFolders[] = {"root",  "spool", "spool/tmp", "cache",
                                    "state", "log",   "bin",       "bin/filter",
                                    "out",   "home",  "files",     "bin/backend"};

// Arguments of a filter: job, user, title, copies, options and, for the first one, the file.
constexpr const char *kFilter = R"(#!/bin/sh
printf '%s' "$5" > "@FOLDER@/out/$1.options"
printf '%s' "$4" > "@FOLDER@/out/$1.copies"
exec cat ${6:+"$6"}
)";

// A document is there when its mark is.
constexpr const char *kBackend = R"(#!/bin/sh
if [ $# -eq 0 ]; then
    echo 'direct keep "Unknown" "Keep"'
    exit 0
fi
cat ${6:+"$6"} > "@FOLDER@/out/$1.document" && : > "@FOLDER@/out/$1.done" &&
    printf '%s\n' "$3" >> "@FOLDER@/out/printed"
)";

constexpr const char *kFiles = R"(ServerRoot @FOLDER@/root
RequestRoot @FOLDER@/spool
TempDir @FOLDER@/spool/tmp
CacheDir @FOLDER@/cache
StateDir @FOLDER@/state
ServerBin @FOLDER@/bin
DataDir /usr/share/cups
AccessLog @FOLDER@/log/access
ErrorLog @FOLDER@/log/error
PageLog @FOLDER@/log/page
)";

constexpr const char *kFilesOfRoot = R"(User lp
Group lp
SystemGroup root
)";

constexpr const char *kConfiguration = R"(Listen 127.0.0.1:@PORT@
Browsing No
WebInterface No
DefaultShared No
PreserveJobFiles No
MaxJobs 0
LogLevel info
<Location />
  Order allow,deny
  Allow all
</Location>
<Location /admin>
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
)";

void write(const QString &path, const QByteArray &bytes, mode_t mode)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    ASSERT_EQ(file.write(bytes), bytes.size());
    file.close();
    ASSERT_EQ(chmod(QFile::encodeName(path).constData(), mode), 0);
}

QByteArray read(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

/// A port of loopback that nobody uses now; 0 when there is none.
int freePort()
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    const int socketHandle = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool isBound =
        ::bind(socketHandle, reinterpret_cast<sockaddr *>(&address), size) == 0 &&
        ::getsockname(socketHandle, reinterpret_cast<sockaddr *>(&address), &size) == 0;
    ::close(socketHandle);
    return isBound ? ntohs(address.sin_port) : 0;
}

bool answersAt(int port)
{
    http_t *http = httpConnect2("127.0.0.1", port, nullptr, AF_INET, HTTP_ENCRYPTION_IF_REQUESTED,
                                1, kPatienceMilliseconds, nullptr);
    httpClose(http);
    return http;
}

/// Between fork and exec of the server: it ends when the thread that started it does.
void dieWithTest()
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

/// Writing beyond it fails, instead of ending the server.
void limitFilesTo(qint64 bytes)
{
    if (bytes < 0)
        return;
    const rlimit limit{static_cast<rlim_t>(bytes), static_cast<rlim_t>(bytes)};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    ::signal(SIGXFSZ, SIG_IGN);
}

/// The same, for a server without root's rights. Every call here is allowed between fork and exec.
void becomeUser(uid_t user, gid_t group)
{
    if (::setgroups(0, nullptr) != 0 || ::setgid(group) != 0 || ::setuid(user) != 0)
        ::_exit(1);
    dieWithTest();
}

void giveTo(const passwd &user, const QString &folder)
{
    const auto give = [&](const QString &path) {
        EXPECT_EQ(::lchown(QFile::encodeName(path).constData(), user.pw_uid, user.pw_gid), 0)
            << path.toStdString();
    };
    give(folder);
    for (const char *name : kFolders)
        give(folder + u'/' + QLatin1String(name));
}

/// The PPD with one filter, which takes PDF files as they are.
QByteArray withKeepingFilter(const QByteArray &ppd)
{
    static const QByteArray filter = "*cupsFilter: \"application/pdf 0 keepoptions\"";
    QList<QByteArray> lines;
    for (const QByteArray &line : ppd.split('\n')) {
        if (!line.startsWith("*cupsFilter"))
            lines.append(line);
    }
    lines.insert(std::min<qsizetype>(1, lines.size()), filter);
    return lines.join('\n');
}

} // namespace

FilterOptions parseFilterOptions(const QByteArray &optionString)
{
    cups_option_t *list = nullptr;
    const int count = cupsParseOptions(optionString.constData(), 0, &list);
    FilterOptions options;
    for (int i = 0; i < count; ++i)
        options.emplace_back(QString::fromUtf8(list[i].name), QString::fromUtf8(list[i].value));
    cupsFreeOptions(count, list);
    return options;
}

PrivateCupsd::PrivateCupsd(User user)
    : gaveUpRights_(user == User::Ordinary && ::geteuid() == 0),
      folder_(QDir::tempPath() + QStringLiteral("/private-cupsd-XXXXXX")),
      formerServer_(qgetenv(kServerVariable))
{
    writeFiles();
    start();
    qputenv(kServerVariable, address().toLatin1());
    cupsSetServer(address().toLatin1().constData());
}

PrivateCupsd::~PrivateCupsd()
{
    stop();
    if (formerServer_.isNull())
        qunsetenv(kServerVariable);
    else
        qputenv(kServerVariable, formerServer_);
    cupsSetServer(nullptr);
    if (!testing::Test::HasFailure())
        return;
    folder_.setAutoRemove(false);
    std::cout << "the print server's files are kept in " << folder().toStdString() << std::endl;
}

/// Root's server demands that filters belong to root and nobody else may write them; they run as
/// another user, who must get at them and at the folder for what they keep.
void PrivateCupsd::writeFiles() const
{
    ASSERT_TRUE(folder_.isValid()) << folder_.errorString().toStdString();
    ASSERT_EQ(chmod(QFile::encodeName(folder()).constData(), 0755), 0);
    for (const char *name : kFolders) {
        const QString path = folder() + u'/' + QLatin1String(name);
        ASSERT_EQ(::mkdir(QFile::encodeName(path).constData(), 0755), 0) << name;
        ASSERT_EQ(chmod(QFile::encodeName(path).constData(), 0755), 0) << name;
    }
    ASSERT_EQ(chmod(QFile::encodeName(folder() + QStringLiteral("/out")).constData(), 01777), 0);
    ASSERT_TRUE(QFile::link(QStringLiteral("/usr/lib/cups/daemon"),
                            folder() + QStringLiteral("/bin/daemon")));
    const auto filled = [this](const char *text) {
        return QByteArray(text).replace("@FOLDER@", QFile::encodeName(folder()));
    };
    write(folder() + QStringLiteral("/bin/filter/keepoptions"), filled(kFilter), 0755);
    write(folder() + QStringLiteral("/bin/backend/keep"), filled(kBackend), 0755);
    const bool isRoots = ::geteuid() == 0 && !gaveUpRights_;
    write(folder() + QStringLiteral("/files.conf"), filled(kFiles) + (isRoots ? kFilesOfRoot : ""),
          0644);
    if (gaveUpRights_)
        giveTo(*::getpwnam(kOrdinaryUser), folder());
}

void PrivateCupsd::start()
{
    for (int i = 0; i < kStarts; ++i) {
        port_ = freePort();
        if (comesUp())
            return;
        stop();
    }
    FAIL() << "no print server comes up; its files are in " << folder().toStdString();
}

bool PrivateCupsd::comesUp()
{
    write(folder() + QStringLiteral("/server.conf"),
          QByteArray(kConfiguration).replace("@PORT@", QByteArray::number(port_)) +
              moreConfiguration_,
          0644);
    server_ = std::make_unique<QProcess>();
    server_->setStandardOutputFile(folder() + QStringLiteral("/log/output"));
    server_->setStandardErrorFile(folder() + QStringLiteral("/log/errors"));
    server_->setChildProcessModifier([largest = largestFile_] {
        limitFilesTo(largest);
        dieWithTest();
    });
    if (gaveUpRights_) {
        const passwd user = *::getpwnam(kOrdinaryUser);
        server_->setChildProcessModifier([user] { becomeUser(user.pw_uid, user.pw_gid); });
    }
    server_->start(QStringLiteral("/usr/sbin/cupsd"),
                   {QStringLiteral("-f"), QStringLiteral("-c"),
                    folder() + QStringLiteral("/server.conf"), QStringLiteral("-s"),
                    folder() + QStringLiteral("/files.conf")});
    QElapsedTimer timer;
    timer.start();
    while (!server_->waitForFinished(kPollMilliseconds) &&
           server_->state() != QProcess::NotRunning && timer.elapsed() < kPatienceMilliseconds) {
        if (answersAt(port_))
            return true;
    }
    return false;
}

void PrivateCupsd::stop()
{
    if (!server_)
        return;
    server_->terminate();
    if (!server_->waitForFinished(kPatienceMilliseconds)) {
        server_->kill();
        server_->waitForFinished();
    }
    server_.reset();
}

void PrivateCupsd::restart()
{
    stop();
    ASSERT_TRUE(comesUp()) << "the print server does not come back";
}

void PrivateCupsd::configure(const QByteArray &lines)
{
    moreConfiguration_ = lines;
    restart();
}

void PrivateCupsd::crash() const
{
    ::kill(static_cast<pid_t>(server_->processId()), SIGKILL);
}

void PrivateCupsd::limitFiles(qint64 bytes)
{
    largestFile_ = bytes;
    restart();
}

QStringList PrivateCupsd::printedTitles() const
{
    QFile file(folder() + QStringLiteral("/out/printed"));
    return file.open(QIODevice::ReadOnly)
               ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
               : QStringList();
}

std::vector<qint64> PrivateCupsd::documentSizes() const
{
    std::vector<qint64> sizes;
    const QDir out(folder() + QStringLiteral("/out"));
    for (const QFileInfo &document : out.entryInfoList({QStringLiteral("*.document")}, QDir::Files))
        sizes.push_back(document.size());
    return sizes;
}

bool PrivateCupsd::isRunning() const
{
    return server_ && server_->state() == QProcess::Running;
}

QString PrivateCupsd::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(port_);
}

void PrivateCupsd::addQueue(const QString &name, const QByteArray &ppd)
{
    const QString file = folder() + QStringLiteral("/files/") + name + QStringLiteral(".ppd");
    write(file, withKeepingFilter(ppd), 0644);
    run(QStringLiteral("lpadmin"),
        {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
         QStringLiteral("keep:/") + name, QStringLiteral("-P"), file});
    ASSERT_TRUE(
        QFileInfo::exists(folder() + QStringLiteral("/root/ppd/") + name + QStringLiteral(".ppd")))
        << "the queue is on another server";
}

QByteArray PrivateCupsd::run(const QString &command, const QStringList &arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), folder() + QStringLiteral("/home"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(command, QStringList{QStringLiteral("-h"), address()} + arguments);
    const bool hasEnded = process.waitForFinished(kPatienceMilliseconds);
    const QByteArray output = process.readAll();
    EXPECT_TRUE(hasEnded && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        << command.toStdString() << ": " << output.toStdString()
        << process.errorString().toStdString();
    return output;
}

int PrivateCupsd::printPlainly(const QString &queue, const QString &file)
{
    const QString output = QString::fromUtf8(
        run(QStringLiteral("lp"), {QStringLiteral("-d"), queue, QStringLiteral("--"), file}));
    static const QRegularExpression number(QStringLiteral("-(\\d+) "));
    return number.match(output).captured(1).toInt();
}

bool PrivateCupsd::hasArrived(int id) const
{
    return QFileInfo::exists(kept(id, "done"));
}

bool PrivateCupsd::waitForJob(int id) const
{
    QElapsedTimer timer;
    timer.start();
    while (!hasArrived(id)) {
        if (timer.elapsed() > kPatienceMilliseconds) {
            ADD_FAILURE() << "job " << id << " has not reached the printer";
            return false;
        }
        QThread::msleep(kPollMilliseconds);
    }
    return true;
}

QString PrivateCupsd::kept(int id, const char *what) const
{
    return folder() + QStringLiteral("/out/%1.").arg(id) + QLatin1String(what);
}

QByteArray PrivateCupsd::optionString(int id) const
{
    return read(kept(id, "options"));
}

FilterOptions PrivateCupsd::options(int id) const
{
    return parseFilterOptions(optionString(id));
}

int PrivateCupsd::copies(int id) const
{
    return read(kept(id, "copies")).toInt();
}

QByteArray PrivateCupsd::document(int id) const
{
    return read(kept(id, "document"));
}

} // namespace test
