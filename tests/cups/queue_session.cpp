#include "tests/cups/queue_session.h"

#include "tests/support/ppd_fixtures.h"
#include "tests/support/print_to.h"

#include <cups/cups.h>

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <gtest/gtest.h>

namespace test {
namespace {

constexpr int kPatienceMilliseconds = 20'000;
constexpr int kTickMilliseconds = 10;

} // namespace

QueueSession::QueueSession() : faults_(server_.address())
{
    qputenv("XDG_STATE_HOME", stateFolder().toUtf8());
    QFile file(document());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("%PDF-1.4\n" + QByteArray(3000, 'x') + "\n%%EOF\n");
    server_.addQueue(queue(), p1().bytes());
}

QString QueueSession::copyOfDocument(const QString &name) const
{
    const QString path = files_.filePath(name);
    EXPECT_TRUE(QFile::copy(document(), path));
    return path;
}

void QueueSession::growDocument(qint64 bytes) const
{
    QFile file(document());
    EXPECT_TRUE(file.open(QIODevice::Append));
    EXPECT_EQ(file.write(QByteArray(bytes - file.size(), ' ')), bytes - file.size());
}

dialog::JobOptions QueueSession::options()
{
    return {
        {q("MediaType"), q("IronOn")}, {q("PrintQuality"), q("Best")}, {q("mirror"), q("true")}};
}

std::unique_ptr<dialog::QueuePrinting> QueueSession::printing(int limitMilliseconds)
{
    return printing(dialog::ServerLimits{limitMilliseconds});
}

std::unique_ptr<dialog::QueuePrinting> QueueSession::printing(const dialog::ServerLimits &limits)
{
    return std::make_unique<dialog::QueuePrinting>(queue(), limits);
}

QStringList QueueSession::journal() const
{
    return QDir(stateFolder() + q("/korvane-print/jobs")).entryList({q("*.json")}, QDir::Files);
}

Pressed QueueSession::press(dialog::QueuePrinting &printing, const QString &title) const
{
    return press(printing, {title, document(), options()});
}

Pressed QueueSession::press(dialog::QueuePrinting &printing,
                            const dialog::QueueDocument &what) const
{
    Pressed pressed;
    QEventLoop loop;
    QTimer ticks;
    QElapsedTimer since;
    QObject::connect(&ticks, &QTimer::timeout, &loop, [&] {
        ++pressed.ticks;
        pressed.longestGap = std::max(pressed.longestGap, static_cast<int>(since.restart()));
    });
    QObject::connect(&printing, &dialog::QueuePrinting::finished, &loop,
                     [&](const dialog::QueueJobResult &result) {
                         pressed.result = result;
                         pressed.hasEnded = true;
                         loop.quit();
                     });
    QTimer::singleShot(kPatienceMilliseconds, &loop, &QEventLoop::quit);
    ticks.start(kTickMilliseconds);
    since.start();
    printing.send(what);
    if (!pressed.hasEnded)
        loop.exec();
    EXPECT_TRUE(pressed.hasEnded) << "no end of the job";
    return pressed;
}

std::multimap<QString, QueueSession::KnownJob> QueueSession::jobs() const
{
    std::multimap<QString, KnownJob> known;
    http_t *http = httpConnect2("127.0.0.1", server_.address().section(u':', 1).toInt(), nullptr,
                                AF_INET, HTTP_ENCRYPTION_NEVER, 1, kPatienceMilliseconds, nullptr);
    cups_job_t *list = nullptr;
    const int count =
        cupsGetJobs2(http, &list, queue().toUtf8().constData(), 0, CUPS_WHICHJOBS_ALL);
    for (int i = 0; i < count; ++i)
        known.insert({QString::fromUtf8(list[i].title), {list[i].id, list[i].state}});
    cupsFreeJobs(count, list);
    httpClose(http);
    return known;
}

} // namespace test
