#include "system/networkdiscovery.h"

#include "system/clock.h"
#include "system/platform.h"

#include <QDebug>
#include <QJsonDocument>
#include <QNetworkInterface>
#include <QSaveFile>

const char *const NetworkDiscovery::Group = "239.255.255.116";
const char *const NetworkDiscovery::InfoFile = "/opt/www/info.json";

NetworkDiscovery::NetworkDiscovery(Describe describe, QObject *parent)
    : QObject(parent)
    , udpSocket(this)
    , m_describe(std::move(describe))
{
    setupNetworkInterfaces();
    datagram.clear();
}

void NetworkDiscovery::setupNetworkInterfaces()
{
    groupAddress = QHostAddress(QString::fromLatin1(Group));
    if (!Platform::mayUseNetwork()) {
        qDebug() << "Discovery: off on a development host outside a network namespace of its own";
        return;
    }
    if (udpSocket.state() != QAbstractSocket::BoundState)
        udpSocket.bind(QHostAddress::AnyIPv4, Port, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint);
    const auto interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &itf : interfaces) {
        qDebug() << "Interface " << ":" << itf.humanReadableName();
        const auto flags = itf.flags();
        // A development host keeps discovery on loopback: nothing leaves the machine.
        const bool wanted = Platform::isTarget() ? flags.testFlag(QNetworkInterface::CanMulticast)
                                                 : flags.testFlag(QNetworkInterface::IsLoopBack);
        if (flags.testFlag(QNetworkInterface::IsUp) && wanted) {
            udpSocket.joinMulticastGroup(groupAddress, itf); // fails harmlessly when joined already
            qDebug() << "Joined Multicast on interface:" << itf.humanReadableName();
        }
    }
    connect(&udpSocket, &QUdpSocket::readyRead, this, &NetworkDiscovery::handleMulticastPackets,
            Qt::UniqueConnection);
}

QJsonObject NetworkDiscovery::description(bool withModTime) const
{
    const DiscoveryFields f = m_describe();
    QJsonObject o{{QStringLiteral("model"), f.model},     {QStringLiteral("type"), f.type},
                  {QStringLiteral("serial"), f.serial},   {QStringLiteral("ip"), f.ip},
                  {QStringLiteral("name"), f.name},       {QStringLiteral("version"), f.version},
                  {QStringLiteral("dbVersion"), f.dbVersion}};
    if (withModTime)
        o.insert(QStringLiteral("dbModTime"), f.dbModTime);
    return o;
}

bool NetworkDiscovery::isReply(const QByteArray &datagram)
{
    const QJsonDocument doc = QJsonDocument::fromJson(datagram);
    return doc.isObject() && doc.object().contains(QStringLiteral("model"))
           && doc.object().contains(QStringLiteral("serial"));
}

void NetworkDiscovery::handleMulticastPackets()
{
    while (udpSocket.hasPendingDatagrams()) {
        QHostAddress sender;
        quint16 senderPort = 0;
        const qint64 size = udpSocket.pendingDatagramSize();
        if (size > MaxDatagramBytes) {
            char none;
            udpSocket.readDatagram(&none, 1, &sender, &senderPort);
            qDebug() << "Discovery: dropped a datagram of" << size << "bytes from" << sender.toString();
            emit ignored(QStringLiteral("too long"));
            continue;
        }
        datagram.resize(int(qMax<qint64>(size, 0)));
        udpSocket.readDatagram(datagram.data(), datagram.size(), &sender, &senderPort);
        qDebug() << "Got multicast!: " << datagram << " from: " << sender.toString();
        const QString why = whyNotAnswer(sender, senderPort);
        if (!why.isEmpty()) {
            emit ignored(why);
            continue;
        }
        const QHostAddress to = answerAddress(sender);
        udpSocket.writeDatagram(QJsonDocument(description(true)).toJson(), to, Port);
        emit answered(to.toString());
    }
}

// Empty when the datagram in hand gets an answer.
QString NetworkDiscovery::whyNotAnswer(const QHostAddress &sender, quint16 senderPort)
{
    if (senderPort == udpSocket.localPort() && QNetworkInterface::allAddresses().contains(sender))
        return QStringLiteral("own datagram");
    if (isReply(datagram))
        return QStringLiteral("a reply");
    if (!Platform::isTarget() && !sender.isLoopback())
        return QStringLiteral("not from loopback");
    const qint64 now = Clock::monotonicMs();
    const QString key = sender.toString();
    const auto last = m_lastAnswerMs.constFind(key);
    if (last != m_lastAnswerMs.constEnd() && now - last.value() < MinAnswerIntervalMs)
        return QStringLiteral("answered less than a second ago");
    if (m_lastAnswerMs.size() >= MaxSendersRemembered) {
        for (auto it = m_lastAnswerMs.begin(); it != m_lastAnswerMs.end();)
            it = now - it.value() >= MinAnswerIntervalMs ? m_lastAnswerMs.erase(it) : std::next(it);
        if (m_lastAnswerMs.size() >= MaxSendersRemembered)
            return QStringLiteral("too many senders");
    }
    m_lastAnswerMs.insert(key, now);
    return QString();
}

// The broadcast address of the local subnet that holds the sender, else the
// sender itself (also on a subnet without broadcast, such as loopback).
QHostAddress NetworkDiscovery::answerAddress(const QHostAddress &sender) const
{
    const auto interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface &itf : interfaces) {
        if (!itf.flags().testFlag(QNetworkInterface::IsUp))
            continue;
        const auto entries = itf.addressEntries();
        for (const QNetworkAddressEntry &e : entries) {
            const auto subnet = QHostAddress::parseSubnet(e.ip().toString() + QLatin1Char('/') + e.netmask().toString());
            if (sender.isInSubnet(subnet))
                return e.broadcast().isNull() ? sender : e.broadcast();
        }
    }
    return sender;
}

void NetworkDiscovery::updateJSONDiscoveryFile()
{
    // Written beside and renamed over: the web server never reads half a file.
    QSaveFile file(Platform::path(QString::fromLatin1(InfoFile)));
    if (!file.open(QIODevice::WriteOnly)
        || file.write(QJsonDocument(description(false)).toJson()) < 0 || !file.commit())
        qDebug() << "Discovery: cannot write" << file.fileName() << file.errorString();
}
