#include "remoteportcommand.h"

#include <QElapsedTimer>
#include <QSerialPort>
#include <QTextStream>

namespace {

// What one command's reply may be at most; the rest is dropped.
constexpr int kMaxReplyBytes = 64 * 1024;
// A reply that never stops (a mirror of the poll) is cut after this.
constexpr int kMaxReplyMs = 10000;

QByteArray collectReply(QSerialPort &port, int quietMs)
{
    QByteArray reply;
    QElapsedTimer total;
    total.start();
    while (total.elapsed() < kMaxReplyMs && port.waitForReadyRead(quietMs)) {
        const QByteArray bytes = port.readAll();
        reply += bytes.left(kMaxReplyBytes - reply.size());
    }
    return reply;
}

} // namespace

QString RemotePortCommand::usage()
{
    return QStringLiteral("usage: vantor-cli remote --port DEVICE [--wait MS] COMMAND...\n"
                          "  Sends each COMMAND (one argument each, e.g. \"rtcset 2026-3-9 7:05:00\") to the\n"
                          "  instrument's remote port and prints its reply.\n"
                          "  --port DEVICE    the serial device of the remote port (e.g. /dev/ttyACM0)\n"
                          "  --wait MS        how long the line must stay quiet to end a reply (default 500)\n");
}

int RemotePortCommand::run(const QStringList &args, QTextStream &out, QTextStream &err)
{
    QString device;
    int waitMs = 500;
    QStringList commands;
    for (int i = 0; i < args.size(); ++i) {
        const QString &a = args.at(i);
        if (a == QLatin1String("--port") && i + 1 < args.size()) {
            device = args.at(++i);
        } else if (a == QLatin1String("--wait") && i + 1 < args.size()) {
            bool ok = false;
            waitMs = args.at(++i).toInt(&ok);
            if (!ok || waitMs < 10 || waitMs > 60000) {
                err << "vantor-cli remote: --wait takes milliseconds from 10 to 60000\n";
                return 2;
            }
        } else if (a.startsWith(QLatin1String("--"))) {
            err << "vantor-cli remote: unknown option \"" << a << "\"\n" << usage();
            return 2;
        } else if (a.contains(QLatin1Char('\r')) || a.contains(QLatin1Char('\n')) || a.size() > 60) {
            err << "vantor-cli remote: a command is one line of at most 60 characters\n";
            return 2;
        } else {
            commands << a;
        }
    }
    if (device.isEmpty() || commands.isEmpty()) {
        err << "vantor-cli remote: --port and at least one command are needed\n" << usage();
        return 2;
    }
    QSerialPort port(device);
    if (!port.open(QIODevice::ReadWrite)) {
        err << "vantor-cli remote: cannot open " << device << ": " << port.errorString() << "\n";
        return 2;
    }
    port.setBaudRate(QSerialPort::Baud115200);
    port.setDataBits(QSerialPort::Data8);
    port.setParity(QSerialPort::NoParity);
    port.setStopBits(QSerialPort::OneStop);
    port.setFlowControl(QSerialPort::NoFlowControl);
    for (const QString &command : qAsConst(commands)) {
        port.write(command.toLocal8Bit() + '\r');
        if (!port.waitForBytesWritten(waitMs)) {
            err << "vantor-cli remote: cannot write to " << device << ": " << port.errorString() << "\n";
            return 2;
        }
        const QByteArray reply = collectReply(port, waitMs);
        out << "> " << command << "\n" << QString::fromLocal8Bit(reply);
        if (!reply.isEmpty() && !reply.endsWith('\n'))
            out << "\n";
        out.flush();
    }
    return 0;
}
