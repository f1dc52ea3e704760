#pragma once

#include <QByteArray>
#include <QHash>
#include <QHostAddress>
#include <QJsonObject>
#include <QObject>
#include <QString>
#include <QUdpSocket>

#include <functional>

// What an instrument says about itself to a host that looks for it.
struct DiscoveryFields {
    QString model;      // the model it is sold as
    QString type;       // the product type of the system information
    QString serial;
    QString ip;         // the instrument's addresses, comma separated
    QString name;       // the name the user gave it
    QString version;    // the application's version
    QString dbVersion;
    QString dbModTime;  // last change of the database file; not in the info file
};

// Network discovery: a host sends any datagram to the multicast group
// 239.255.255.116, UDP port 4646, and the instrument answers with a JSON
// description of itself to port 4646, at the broadcast address of the
// subnet the request came from (or at the sender). The same description,
// without the database's time, is kept in "/opt/www/info.json" for the web
// server.
//
// No storms: replies (its own or another instrument's) are never answered,
// each sender gets at most one answer a second, and datagrams over 512 bytes
// are dropped. The host profile joins the group on loopback only and answers
// only loopback senders; the target joins on every interface that is up.
class NetworkDiscovery : public QObject
{
    Q_OBJECT
public:
    static constexpr quint16 Port = 4646;
    static constexpr int MaxDatagramBytes = 512;
    static constexpr qint64 MinAnswerIntervalMs = 1000;
    static constexpr int MaxSendersRemembered = 256;
    static const char *const Group;
    static const char *const InfoFile;

    using Describe = std::function<DiscoveryFields()>;
    explicit NetworkDiscovery(Describe describe, QObject *parent = nullptr);

    // The reply's object; `withModTime` false gives the info file's.
    QJsonObject description(bool withModTime) const;
    // A datagram that is an instrument's reply (a JSON object with a model and a serial).
    static bool isReply(const QByteArray &datagram);

public slots:
    void setupNetworkInterfaces();
    void updateJSONDiscoveryFile();

signals:
    void answered(const QString &to);
    void ignored(const QString &why);

private slots:
    void handleMulticastPackets();

private:
    QString whyNotAnswer(const QHostAddress &sender, quint16 senderPort);
    QHostAddress answerAddress(const QHostAddress &sender) const;

    QUdpSocket udpSocket;
    QHostAddress groupAddress;
    QByteArray datagram;
    Describe m_describe;
    QHash<QString, qint64> m_lastAnswerMs;
};
