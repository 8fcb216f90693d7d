#include "tests/queues/counting_proxy.h"

#include <QRegularExpression>
#include <QTcpSocket>

#include <cups/cups.h>

namespace test {

CountingProxy::CountingProxy(const QString &serverAddress)
    : former_(qgetenv("CUPS_SERVER")), server_(new QTcpServer)
{
    const auto port = static_cast<quint16>(serverAddress.section(u':', -1).toUInt());
    server_->listen(QHostAddress::LocalHost);
    const QByteArray address = "127.0.0.1:" + QByteArray::number(server_->serverPort());
    server_->moveToThread(&thread_);
    QObject::connect(server_, &QTcpServer::newConnection, server_, [this, port] {
        while (QTcpSocket *client = server_->nextPendingConnection())
            relay(client, port);
    });
    QObject::connect(&thread_, &QThread::finished, server_, &QObject::deleteLater);
    thread_.start();
    qputenv("CUPS_SERVER", address);
    cupsSetServer(address.constData());
}

CountingProxy::~CountingProxy()
{
    qputenv("CUPS_SERVER", former_);
    cupsSetServer(former_.constData());
    thread_.quit();
    thread_.wait();
}

void CountingProxy::relay(QTcpSocket *client, quint16 port)
{
    auto *upstream = new QTcpSocket(client);
    upstream->connectToHost(QHostAddress::LocalHost, port);
    QObject::connect(client, &QTcpSocket::readyRead, upstream, [this, client, upstream] {
        const QByteArray bytes = client->readAll();
        note(bytes);
        upstream->write(bytes);
    });
    QObject::connect(upstream, &QTcpSocket::readyRead, client, [this, client, upstream] {
        const QByteArray bytes = upstream->readAll();
        noteAnswer(bytes);
        client->write(bytes);
    });
    QObject::connect(upstream, &QTcpSocket::disconnected, client, &QTcpSocket::disconnectFromHost);
    QObject::connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
}

void CountingProxy::note(const QByteArray &bytes)
{
    static const QRegularExpression line(
        QStringLiteral("(?:GET|POST|PUT|OPTIONS|HEAD) [^ ]+ HTTP/1\\.1(?=\r\n)"));
    const std::lock_guard lock(mutex_);
    auto matches = line.globalMatch(QString::fromLatin1(bytes));
    while (matches.hasNext())
        requests_.append(matches.next().captured());
}

void CountingProxy::noteAnswer(const QByteArray &bytes)
{
    const std::lock_guard lock(mutex_);
    downloads_ += static_cast<int>(bytes.count("*PPD-Adobe:"));
}

QStringList CountingProxy::requests() const
{
    const std::lock_guard lock(mutex_);
    return requests_;
}

int CountingProxy::downloads() const
{
    const std::lock_guard lock(mutex_);
    return downloads_;
}

void CountingProxy::forget()
{
    const std::lock_guard lock(mutex_);
    requests_.clear();
    downloads_ = 0;
}

} // namespace test
