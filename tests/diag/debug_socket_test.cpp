#include "diag/debug_log.h"
#include "tests/support/debug_log_fixture.h"
#include "tests/support/print_to.h"
#include "tests/support/stderr_capture.h"

#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

using test::DebugLog;
using test::q;

constexpr int kTimestampEnd = 23; // of "ADxxxx000000\t[hh:mm:ss.mmm]", without the bracket

/// A debug viewer at the other end of a socket. The log's end is the log's to close.
class Viewer
{
public:
    explicit Viewer(int type)
    {
        std::array<int, 2> ends{-1, -1};
        EXPECT_EQ(::socketpair(AF_UNIX, type, 0, ends.data()), 0);
        logClientFD = ends[0];
        logEnd_ = ends[0];
        viewerEnd_ = ends[1];
    }
    ~Viewer()
    {
        if (logClientFD == logEnd_)
            ::close(logEnd_);
        hangUp();
    }
    Viewer(const Viewer &) = delete;
    Viewer &operator=(const Viewer &) = delete;

    /// What has arrived; of a datagram socket, the next datagram.
    [[nodiscard]] QByteArray received() const
    {
        QByteArray bytes(1 << 20, '\0');
        const ssize_t count =
            ::recv(viewerEnd_, bytes.data(), std::size_t(bytes.size()), MSG_DONTWAIT);
        bytes.truncate(std::max<ssize_t>(count, 0));
        return bytes;
    }
    void hangUp() { ::close(std::exchange(viewerEnd_, -1)); }
    [[nodiscard]] int descriptor() const { return viewerEnd_; }

private:
    int logEnd_ = -1;
    int viewerEnd_ = -1;
};

class DebugSocket : public testing::Test
{
protected:
    void setUp(int level) const
    {
        const test::StderrCapture capture;
        log.switchOn(level);
        setupDebug();
    }
    /// As after a set-up by hand.
    static void setUpWithoutList(int level)
    {
        logDoneSetup = true;
        logDebugLevel = level;
        logModuleID = 65;
        logCurrentPID = 4711;
    }
    [[nodiscard]] static QStringList briefs(const QByteArray &bytes)
    {
        QStringList texts;
        for (const test::LogRecord &record : test::parseLogRecords(bytes))
            texts.append(record.brief());
        return texts;
    }

    const DebugLog log;
};

TEST_F(DebugSocket, Log_14_ADumpRecordCarriesItsLengthInFourBytes)
{
    const Viewer viewer(SOCK_STREAM);
    setUpWithoutList(0);
    const std::string message(100, 'm');
    LogFormatAndSend("op", 1, 'D', message.c_str());

    const QByteArray bytes = viewer.received();
    ASSERT_EQ(bytes.size(), 129);
    EXPECT_EQ(bytes.left(13), QByteArray("AD\0\0\0\x81"
                                         "004711\t",
                                         13));
    EXPECT_TRUE(QRegularExpression(q("^\\[\\d\\d:\\d\\d:\\d\\d\\.\\d{3}\\]\\t$"))
                    .match(QString::fromLatin1(bytes.mid(13, 15)))
                    .hasMatch());
    EXPECT_EQ(bytes.mid(28), QByteArray::fromStdString(message) + '\n');
}

TEST_F(DebugSocket, TheLengthIsBigEndian)
{
    const Viewer viewer(SOCK_STREAM);
    setUpWithoutList(0);
    LogFormatAndSend("op", 1, 'D', std::string(0x10203 - 29, 'm').c_str());
    const QByteArray bytes = viewer.received();
    EXPECT_EQ(bytes.mid(2, 4), QByteArray("\0\x01\x02\x03", 4));
    EXPECT_EQ(bytes.size(), 0x10203);
}

TEST_F(DebugSocket, ALongProcessIdCostsADumpRecordItsLastByte)
{
    const Viewer viewer(SOCK_STREAM);
    setUpWithoutList(0);
    logCurrentPID = 1234567;
    LogFormatAndSend("op", 1, 'D', "message");
    const QByteArray bytes = viewer.received();
    EXPECT_EQ(bytes.size(), 36);
    EXPECT_TRUE(bytes.startsWith(QByteArray("AD\0\0\0\x24"
                                            "1234567\t[",
                                            15)));
    EXPECT_TRUE(bytes.endsWith("]\tmessage"));
}

TEST_F(DebugSocket, AllOtherKindsHaveTheFormOfTheFile)
{
    const Viewer viewer(SOCK_STREAM);
    setUpWithoutList(7);
    LogInfoBody("op", 1, "i");
    LogErrorBody("op", 2, "e");
    logNote("n");
    LogFormatAndSend("op", 3, 'A', "a");
    LogFormatAndSend("op", 4, 'Z', "z");
    const QByteArray bytes = viewer.received();
    EXPECT_EQ(briefs(bytes), QStringList({q("I op L1 i"), q("E op L2 e"), q("N logger L0 n"),
                                          q("A op L3 a"), q("Z op L4 z")}));
    EXPECT_TRUE(bytes.startsWith("AI004711\t["));
}

TEST_F(DebugSocket, DumpsGoOutInTheLengthForm)
{
    const Viewer viewer(SOCK_STREAM);
    setUpWithoutList(4);
    dumpBytesBody("op", 10, "buf", "\xAB", 1);
    const QByteArray message = "op L10: buf 1b\n{AB}";
    const QByteArray bytes = viewer.received();
    EXPECT_EQ(bytes.size(), message.size() + 29);
    EXPECT_EQ(bytes.at(5), char(message.size() + 29));
    EXPECT_TRUE(bytes.endsWith("]\t" + message + '\n'));
}

TEST_F(DebugSocket, SetUpReportsTheSocketAndOpensNoFile)
{
    const Viewer viewer(SOCK_STREAM);
    const test::StderrCapture capture;
    log.switchOn(3);
    setupDebug();
    EXPECT_EQ(briefs(viewer.received()),
              QStringList({q("A logger L0 DEBUG GO"), q("N logger L0 socket OK"),
                           q("N logger L0 bID   \"PDE-REFRESH\""), q("N logger L0 level 3"),
                           q("N logger L0 mID   65"), q("N logger L0 I OK"), q("N logger L0 E OK"),
                           q("N logger L0 setup OK")}));
    EXPECT_EQ(capture.text(),
              "tmp at " + log.directory().toUtf8() + "//Debug/.DebugPlist/kvDebug.plist \n");
    EXPECT_TRUE(log.bytes().isNull());
}

TEST_F(DebugSocket, SetUpDumpsTheListInTheLengthForm)
{
    const Viewer viewer(SOCK_STREAM);
    setUp(4);
    const QByteArray bytes = viewer.received();
    const qsizetype dump = bytes.indexOf("\nAD") + 1;
    ASSERT_GT(dump, 0);
    EXPECT_TRUE(bytes.mid(dump + kTimestampEnd).contains("\tsetupDebug L519: debugPlist\n<?xml"));
    const quint32 length = quint32(quint8(bytes.at(dump + 4))) << 8 | quint8(bytes.at(dump + 5));
    EXPECT_GE(bytes.size() - dump, qsizetype(length) - 1);
    EXPECT_LE(bytes.size() - dump, qsizetype(length));
}

TEST_F(DebugSocket, WithoutAListNothingIsSent)
{
    const Viewer viewer(SOCK_STREAM);
    const test::StderrCapture capture;
    logDebugLevel = 7;
    setupDebug();
    EXPECT_EQ(viewer.received(), QByteArray());
    EXPECT_EQ(logDebugLevel, 0);
}

TEST_F(DebugSocket, ARecordWithoutAModuleLetterIsSentWhole)
{
    const Viewer viewer(SOCK_STREAM);
    setUpWithoutList(1);
    logModuleID = 0;
    LogInfoBody("op", 1, "hi");
    const QByteArray bytes = viewer.received();
    EXPECT_TRUE(bytes.startsWith(QByteArray("\0I004711\t", 9)));
    EXPECT_TRUE(bytes.endsWith("\top\tL1\thi\n"));
}

TEST_F(DebugSocket, DescriptorsBelow2AreNoSocket)
{
    for (const int descriptor : {-1, 0, 1}) {
        logClientFD = descriptor;
        EXPECT_FALSE(diag::isSocketMode()) << descriptor;
    }
    logClientFD = 2;
    EXPECT_TRUE(diag::isSocketMode());
    logClientFD = 0;
}

TEST_F(DebugSocket, AConnectedDatagramSocketGetsOneDatagramForARecord)
{
    const Viewer viewer(SOCK_DGRAM);
    setUpWithoutList(1);
    LogInfoBody("op", 1, "one");
    LogInfoBody("op", 2, "two");
    EXPECT_EQ(briefs(viewer.received()), QStringList(q("I op L1 one")));
    EXPECT_EQ(briefs(viewer.received()), QStringList(q("I op L2 two")));
}

/// A datagram socket under an address that fits 16 bytes.
class AddressedViewer
{
public:
    AddressedViewer()
    {
        address.sa_family = AF_UNIX;
        // An abstract name: a NUL and 13 characters of this process's own.
        std::snprintf(address.sa_data + 1, sizeof address.sa_data - 1, "kvlog%07d",
                      int(::getpid()));
        EXPECT_EQ(::bind(receiver, &address, sizeof address), 0);
        logClientFD = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
        logSocketFile = address;
    }
    ~AddressedViewer()
    {
        ::close(receiver);
        if (logClientFD >= 2)
            ::close(logClientFD);
    }
    AddressedViewer(const AddressedViewer &) = delete;
    AddressedViewer &operator=(const AddressedViewer &) = delete;

    [[nodiscard]] QByteArray received() const
    {
        QByteArray bytes(1 << 16, '\0');
        const ssize_t count =
            ::recv(receiver, bytes.data(), std::size_t(bytes.size()), MSG_DONTWAIT);
        bytes.truncate(std::max<ssize_t>(count, 0));
        return bytes;
    }

    sockaddr address{};
    int receiver = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
};

TEST_F(DebugSocket, WithADestinationEachRecordIsADatagramToIt)
{
    const AddressedViewer viewer;
    setUpWithoutList(5);
    LogInfoBody("op", 1, "one");
    dumpBytesBody("op", 2, "buf", "x", 1);
    EXPECT_EQ(briefs(viewer.received()), QStringList(q("I op L1 one")));
    const QByteArray dump = viewer.received();
    EXPECT_TRUE(dump.startsWith("AD")) << dump.toStdString();
    EXPECT_EQ(dump.size(), char(dump.at(5)));
    EXPECT_EQ(viewer.received(), QByteArray());
}

TEST_F(DebugSocket, TheDestinationsLengthIsTheOneThatIsSet)
{
    const AddressedViewer viewer;
    setUpWithoutList(1);
    EXPECT_EQ(logSocketFileSize, 16u);
    logSocketFileSize = 10; // a shorter name, where nobody listens
    LogInfoBody("op", 1, "one");
    EXPECT_EQ(viewer.received(), QByteArray());
    logSocketFileSize = 16;
    LogInfoBody("op", 2, "two");
    EXPECT_EQ(briefs(viewer.received()), QStringList(q("I op L2 two")));
}

TEST_F(DebugSocket, ClosingEndsTheSocketAndFallsBackToNoSocket)
{
    const Viewer viewer(SOCK_STREAM);
    setUpWithoutList(1);
    closeDebugSession();
    EXPECT_EQ(briefs(viewer.received()), QStringList(q("Z logger L0 DEBUG END fd")));
    EXPECT_EQ(logClientFD, 0);
    EXPECT_EQ(logDebugLevel, 1);
    char byte = 0;
    EXPECT_EQ(::recv(viewer.descriptor(), &byte, 1, MSG_DONTWAIT), 0) << "the socket is open still";
    LogInfoBody("op", 1, "late");
}

TEST_F(DebugSocket, ClosingEndsBothSocketAndFile)
{
    setUp(1);
    const Viewer viewer(SOCK_STREAM);
    LogInfoBody("op", 1, "to the socket");
    closeDebugSession();
    EXPECT_EQ(briefs(viewer.received()),
              QStringList({q("I op L1 to the socket"), q("Z logger L0 DEBUG END fd")}));
    EXPECT_EQ(log.records().last().brief(), q("Z logger L0 DEBUG END file"));
    EXPECT_EQ(logDebugFilePtr, nullptr);
}

TEST_F(DebugSocket, AViewerThatHungUpEndsNothing)
{
    Viewer viewer(SOCK_STREAM);
    setUpWithoutList(5);
    viewer.hangUp();
    LogInfoBody("op", 1, "one");
    dumpBytesBody("op", 2, "buf", "x", 1);
    closeDebugSession();
    EXPECT_EQ(logClientFD, 0);
}

TEST_F(DebugSocket, AStreamCarriesALongRecordWhole)
{
    const Viewer viewer(SOCK_STREAM);
    setUpWithoutList(1);
    qsizetype size = 0;
    // More than the socket holds: the viewer must read while the record is sent.
    std::thread reader([&] {
        std::vector<char> buffer(1 << 16);
        while (true) {
            const ssize_t count = ::recv(viewer.descriptor(), buffer.data(), buffer.size(), 0);
            if (count <= 0)
                break;
            size += count;
        }
    });
    const std::string message(4'000'000, 'm');
    LogInfoBody("op", 1, "%s", message.c_str());
    ::shutdown(logClientFD, SHUT_RDWR);
    reader.join();
    EXPECT_EQ(size, qsizetype(message.size() +
                              std::string("AI004711\t[hh:mm:ss.mmm]\top\tL1\t\n").size()));
}

/// Set-up that has to ask the viewer for the module entry, with a wait of the test's own.
class DebugRequest : public DebugSocket
{
protected:
    DebugRequest()
    {
        diag::setPollSleep([this](std::chrono::microseconds time) {
            waits.push_back(time.count());
            if (qsizetype(waits.size()) == answerAfter)
                log.switchOn(1);
        });
    }
    QByteArray setUpWith(const QVariantMap &list) const
    {
        const test::StderrCapture capture;
        log.writeList(list);
        setupDebug();
        return capture.text();
    }

    static constexpr char kRequest[] = "\xFFPDE-REFRESH";
    const QVariantMap traceAll{{q("traceAll"), true}};
    const Viewer viewer{SOCK_STREAM};
    std::vector<long> waits;
    qsizetype answerAfter = -1;
};

TEST_F(DebugRequest, AMissingEntryIsRequestedAndLookedForFiveTimes)
{
    setUpWith(traceAll);
    EXPECT_EQ(viewer.received(), QByteArray(kRequest));
    EXPECT_EQ(waits, std::vector<long>(5, 200'000));
    EXPECT_EQ(logDebugLevel, 0);
}

TEST_F(DebugRequest, AnEntryThatAppearsIsUsedAndEndsTheWait)
{
    answerAfter = 2;
    setUpWith(traceAll);
    EXPECT_EQ(waits.size(), 2u);
    EXPECT_EQ(logDebugLevel, 1);
    const QByteArray bytes = viewer.received();
    ASSERT_TRUE(bytes.startsWith(kRequest));
    EXPECT_EQ(briefs(bytes.mid(qsizetype(std::size(kRequest)) - 1)).first(),
              q("A logger L0 DEBUG GO"));
}

TEST_F(DebugRequest, AnEntryThatAppearsAfterTheLastLookIsTooLate)
{
    answerAfter = 5;
    setUpWith(traceAll);
    EXPECT_EQ(logDebugLevel, 0);
}

TEST_F(DebugRequest, AListThatVanishesMeanwhileLeavesTheLogOff)
{
    diag::setPollSleep([this](std::chrono::microseconds time) {
        waits.push_back(time.count());
        QFile::remove(log.listPath());
    });
    setUpWith(traceAll);
    EXPECT_EQ(waits.size(), 5u);
    EXPECT_EQ(logDebugLevel, 0);
}

TEST_F(DebugRequest, NothingIsRequestedWithoutTraceAll)
{
    setUpWith({{q("traceAll"), false}});
    EXPECT_EQ(viewer.received(), QByteArray());
    EXPECT_TRUE(waits.empty());
}

TEST_F(DebugRequest, NothingIsRequestedWhenTheEntryIsThere)
{
    setUpWith({{q("traceAll"), true}, {q("PDE-REFRESH"), QVariantMap{{q("debugLevel"), 0LL}}}});
    EXPECT_EQ(viewer.received(), QByteArray());
    EXPECT_TRUE(waits.empty());
}

TEST_F(DebugRequest, NothingIsRequestedInFileMode)
{
    ::close(std::exchange(logClientFD, 0));
    setUpWith(traceAll);
    EXPECT_EQ(viewer.received(), QByteArray());
    EXPECT_TRUE(waits.empty());
}

TEST_F(DebugRequest, TheRequestGoesToTheDestinationWhereThereIsOne)
{
    ::close(std::exchange(logClientFD, 0));
    const AddressedViewer addressed;
    setUpWith(traceAll);
    EXPECT_EQ(addressed.received(), QByteArray(kRequest));
}

} // namespace
