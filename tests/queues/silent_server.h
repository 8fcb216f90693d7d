#pragma once

#include <QTcpServer>
#include <QTcpSocket>

#include <gtest/gtest.h>

#include <cups/cups.h>

namespace test {

/// The print server of this process while it lives: takes every connection and never says a word.
class SilentServer
{
public:
    SilentServer() : former_(qgetenv("CUPS_SERVER"))
    {
        EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
        qputenv("CUPS_SERVER", address());
        cupsSetServer(address().constData());
    }
    ~SilentServer()
    {
        former_.isNull() ? qunsetenv("CUPS_SERVER") : qputenv("CUPS_SERVER", former_);
        cupsSetServer(nullptr);
    }
    SilentServer(const SilentServer &) = delete;
    SilentServer &operator=(const SilentServer &) = delete;

    /// From now on nobody listens there.
    void die()
    {
        port_ = server_.serverPort();
        server_.close();
    }
    [[nodiscard]] QByteArray address() const
    {
        return "127.0.0.1:" + QByteArray::number(port_ ? port_ : server_.serverPort());
    }

private:
    QTcpServer server_;
    quint16 port_ = 0;
    QByteArray former_;
};

} // namespace test
