#include "platform/property_list.h"
#include "platform/regular_file.h"
#include "tests/platform/binary_list.h"
#include "tests/support/print_to.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using platform::readRegularFile;
using test::q;

namespace {

constexpr qint64 kLimit = 1000;

class RegularFile : public testing::Test
{
protected:
    /// Ends the process when a read blocks, so that the test fails and does not hang.
    RegularFile() { ::alarm(20); }
    ~RegularFile() override { ::alarm(0); }

    [[nodiscard]] QString path(const char *name) const { return directory.filePath(q(name)); }
    [[nodiscard]] QByteArray name(const char *of) const { return QFile::encodeName(path(of)); }
    QString write(const char *name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return path(name);
    }

    QTemporaryDir directory;
};

TEST_F(RegularFile, IsReadWhole)
{
    const QByteArray bytes("a\0b\nc", 5);
    EXPECT_EQ(readRegularFile(write("file", bytes), kLimit), bytes);
    EXPECT_EQ(readRegularFile(write("empty", ""), kLimit), QByteArray(""));
}

TEST_F(RegularFile, IsReadUpToTheLimitAndNotBeyond)
{
    EXPECT_EQ(readRegularFile(write("full", QByteArray(kLimit, 'x')), kLimit)->size(), kLimit);
    EXPECT_FALSE(readRegularFile(write("over", QByteArray(kLimit + 1, 'x')), kLimit));
}

TEST_F(RegularFile, IsMeasuredWhileReadingToo)
{
    // Files of the process information say that they are empty.
    const auto status = readRegularFile(q("/proc/self/status"), 1024 * 1024);
    ASSERT_TRUE(status);
    EXPECT_TRUE(status->startsWith("Name:"));
    EXPECT_FALSE(readRegularFile(q("/proc/self/status"), 20));
}

TEST_F(RegularFile, IsNothingElse)
{
    EXPECT_FALSE(readRegularFile(path("missing"), kLimit));
    EXPECT_FALSE(readRegularFile(directory.path(), kLimit));
    EXPECT_FALSE(readRegularFile(q("/dev/null"), kLimit));
    EXPECT_FALSE(readRegularFile(q("/dev/zero"), kLimit));
    EXPECT_FALSE(readRegularFile(q("/dev/tty"), kLimit));
    EXPECT_FALSE(readRegularFile(q(""), kLimit));
    EXPECT_FALSE(readRegularFile(QString(), kLimit));
    EXPECT_FALSE(readRegularFile(-1, kLimit));
}

TEST_F(RegularFile, IsNoFifo)
{
    ASSERT_EQ(::mkfifo(name("fifo").constData(), 0600), 0);
    EXPECT_FALSE(readRegularFile(path("fifo"), kLimit)) << "without a writer";
    const int writer = ::open(name("fifo").constData(), O_RDWR);
    ASSERT_GE(writer, 0);
    EXPECT_EQ(::write(writer, "<plist>", 7), 7);
    EXPECT_FALSE(readRegularFile(path("fifo"), kLimit)) << "with a writer that never ends";
    ::close(writer);
}

TEST_F(RegularFile, IsNoSocket)
{
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    const QByteArray socketName = name("socket");
    ASSERT_LT(static_cast<size_t>(socketName.size()), sizeof address.sun_path);
    std::copy(socketName.begin(), socketName.end(), address.sun_path);
    const int server = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(server, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    EXPECT_FALSE(readRegularFile(path("socket"), kLimit));
    ::close(server);
}

TEST_F(RegularFile, IsFoundThroughLinks)
{
    write("file", "text");
    ASSERT_TRUE(QFile::link(path("file"), path("link")));
    ASSERT_TRUE(QFile::link(q("/dev/zero"), path("device")));
    ASSERT_TRUE(QFile::link(path("loop"), path("loop")));
    EXPECT_EQ(readRegularFile(path("link"), kLimit), QByteArray("text"));
    EXPECT_FALSE(readRegularFile(path("device"), kLimit));
    EXPECT_FALSE(readRegularFile(path("loop"), kLimit));
}

TEST_F(RegularFile, IsNotNamedByTheFirstPartOfAPathWithANul)
{
    write("file", "text");
    EXPECT_FALSE(readRegularFile(path("file") + QChar(u'\0') + q("/other"), kLimit));
}

TEST_F(RegularFile, IsReadFromADescriptorThatStaysOpen)
{
    const int descriptor =
        ::open(QFile::encodeName(write("file", "text")).constData(), O_RDONLY | O_NONBLOCK);
    EXPECT_EQ(readRegularFile(descriptor, kLimit), QByteArray("text"));
    EXPECT_EQ(::close(descriptor), 0);
}

class PropertyListFile : public RegularFile
{
};

TEST_F(PropertyListFile, IsReadInBothForms)
{
    const QVariant list = QVariantMap{{q("key"), q("text")}};
    EXPECT_EQ(platform::readPropertyList(write("xml", platform::propertyListXml(list))), list);
    EXPECT_EQ(platform::readPropertyList(write("binary", test::binaryList(list))), list);
    EXPECT_FALSE(platform::readPropertyList(write("empty", "")).isValid());
    EXPECT_FALSE(platform::readPropertyList(path("missing")).isValid());
    EXPECT_FALSE(platform::readPropertyList(directory.path()).isValid());
    EXPECT_FALSE(platform::readPropertyList(QString()).isValid());
}

TEST_F(PropertyListFile, MayHaveOneMebibyte)
{
    const QByteArray list = platform::propertyListXml(q("text"));
    const qint64 room = 1024 * 1024 - list.size();
    EXPECT_EQ(platform::readPropertyList(write("full", list + QByteArray(room, '\n'))), q("text"));
    EXPECT_FALSE(
        platform::readPropertyList(write("over", list + QByteArray(room + 1, '\n'))).isValid());
}

TEST_F(PropertyListFile, NeverBlocks)
{
    ASSERT_EQ(::mkfifo(name("fifo").constData(), 0600), 0);
    EXPECT_FALSE(platform::readPropertyList(path("fifo")).isValid());
    EXPECT_FALSE(platform::readPropertyList(q("/dev/zero")).isValid());
}

} // namespace
