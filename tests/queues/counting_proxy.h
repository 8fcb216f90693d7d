#pragma once

#include <QByteArray>
#include <QStringList>
#include <QTcpServer>
#include <QThread>

#include <memory>
#include <mutex>

namespace test {

/// Stands before a print server and keeps the first line of every request. While it lives, it is
/// the print server of this process.
class CountingProxy
{
public:
    explicit CountingProxy(const QString &serverAddress);
    ~CountingProxy();
    CountingProxy(const CountingProxy &) = delete;
    CountingProxy &operator=(const CountingProxy &) = delete;

    /// Such as "POST / HTTP/1.1" or "GET /printers/ink.ppd HTTP/1.1".
    [[nodiscard]] QStringList requests() const;
    /// Answers with a PPD in them.
    [[nodiscard]] int downloads() const;
    void forget();

private:
    void relay(QTcpSocket *client, quint16 port);
    void note(const QByteArray &bytes);
    void noteAnswer(const QByteArray &bytes);

    mutable std::mutex mutex_;
    QStringList requests_;
    int downloads_ = 0;
    QByteArray former_;
    QThread thread_;
    QTcpServer *server_;
};

} // namespace test
