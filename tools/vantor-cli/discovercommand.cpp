#include "discovercommand.h"

#include "system/networkdiscovery.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkInterface>
#include <QSet>
#include <QTextStream>
#include <QUdpSocket>

namespace {

constexpr int kMaxReplyBytes = 4096;
constexpr int kMaxValueChars = 100;

QString clean(const QString &value)
{
    QString v;
    for (const QChar c : value.left(kMaxValueChars))
        v += c.category() == QChar::Other_Control ? QChar(QLatin1Char('?')) : c;
    return v;
}

} // namespace

QString DiscoverCommand::usage()
{
    return QStringLiteral("usage: vantor-cli discover [--timeout S] [--interface IF]\n"
                          "  Sends one discovery request and lists the instruments that answer, one line each.\n"
                          "  --timeout S      seconds to listen for answers (default 2, at most 60)\n"
                          "  --interface IF   the network interface to ask on (default: lo, the loopback)\n");
}

QString DiscoverCommand::replyLine(const QByteArray &datagram, const QString &from)
{
    if (datagram.size() > kMaxReplyBytes || !NetworkDiscovery::isReply(datagram))
        return QString();
    const QJsonObject o = QJsonDocument::fromJson(datagram).object();
    QStringList fields;
    for (const char *key : {"model", "type", "serial", "ip", "name", "version", "dbVersion", "dbModTime"})
        fields << QStringLiteral("%1=\"%2\"").arg(QLatin1String(key), clean(o.value(QLatin1String(key)).toString()));
    fields << QStringLiteral("from=%1").arg(from);
    return fields.join(QLatin1Char(' '));
}

int DiscoverCommand::run(const QStringList &args, QTextStream &out, QTextStream &err)
{
    double timeoutS = 2.0;
    QString interfaceName = QStringLiteral("lo");
    for (int i = 0; i < args.size(); ++i) {
        const QString &a = args.at(i);
        const bool hasValue = i + 1 < args.size();
        if (a == QLatin1String("--timeout") && hasValue) {
            bool ok = false;
            timeoutS = args.at(++i).toDouble(&ok);
            if (!ok || !(timeoutS > 0 && timeoutS <= 60)) {
                err << "vantor-cli discover: --timeout takes seconds, above 0 and at most 60\n";
                return 2;
            }
        } else if (a == QLatin1String("--interface") && hasValue) {
            interfaceName = args.at(++i);
        } else {
            err << "vantor-cli discover: unknown option \"" << a << "\"\n" << usage();
            return 2;
        }
    }
    const QNetworkInterface itf = QNetworkInterface::interfaceFromName(interfaceName);
    if (!itf.isValid() || !itf.flags().testFlag(QNetworkInterface::IsUp)) {
        err << "vantor-cli discover: no interface \"" << interfaceName << "\" that is up\n";
        return 2;
    }
    // Answers come to port 4646 at the broadcast address of the asker's
    // subnet, which every socket of the port receives, also an instrument's
    // of this machine.
    QUdpSocket listener;
    if (!listener.bind(QHostAddress(QHostAddress::AnyIPv4), NetworkDiscovery::Port,
                       QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint)) {
        err << "vantor-cli discover: cannot listen on port " << NetworkDiscovery::Port << ": " << listener.errorString() << "\n";
        return 2;
    }
    QUdpSocket asker;
    asker.bind(QHostAddress(QHostAddress::AnyIPv4), 0);
    asker.setMulticastInterface(itf);
    if (asker.writeDatagram(QByteArrayLiteral("discover"), QHostAddress(QString::fromLatin1(NetworkDiscovery::Group)),
                            NetworkDiscovery::Port) < 0) {
        err << "vantor-cli discover: cannot send on " << interfaceName << ": " << asker.errorString() << "\n";
        return 2;
    }
    QSet<QString> seen;
    QElapsedTimer elapsed;
    elapsed.start();
    while (elapsed.elapsed() < qint64(timeoutS * 1000)) {
        listener.waitForReadyRead(50);
        while (listener.hasPendingDatagrams()) {
            QByteArray datagram(int(qBound<qint64>(0, listener.pendingDatagramSize(), kMaxReplyBytes + 1)), '\0');
            QHostAddress from;
            listener.readDatagram(datagram.data(), datagram.size(), &from);
            const QString line = replyLine(datagram, from.toString());
            if (!line.isEmpty() && !seen.contains(line)) {
                seen.insert(line);
                out << line << "\n";
                out.flush();
            }
        }
    }
    if (seen.isEmpty()) {
        err << "vantor-cli discover: no instrument answered on " << interfaceName << "\n";
        return 1;
    }
    return 0;
}
