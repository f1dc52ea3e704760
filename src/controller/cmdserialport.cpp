#include "controller/cmdserialport.h"

#include "controller/remotecommand.h"
#include "controller/serialport.h"
#include "interfaces/remoteporthost.h"
#include "system/clock.h"
#include "system/platform.h"

#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSerialPort>
#include <QTimer>

const char *const cmdSerialPort::ReplyTooLong = "ERROR line too long\r\n";
const char *const cmdSerialPort::ReplyBadClock = "ERROR invalid date or time\r\n";
const char *const cmdSerialPort::ReplyRunning = "ERROR titration running\r\n";

namespace {
constexpr int kSystemTimeoutMs = 10000;
}

cmdSerialPort::cmdSerialPort(RemotePortHost *host, const QString &device, QObject *parent)
    : QObject(parent)
    , m_host(host)
    , m_device(device.isEmpty() ? Platform::path(QStringLiteral("/dev/ttyMFG")) : device)
    , m_port(new QSerialPort(this))
    , m_readTimer(new QTimer(this))
    , m_watcher(new QFileSystemWatcher(this))
{
    m_port->setPortName(m_device);
    // The driver stops taking bytes from the line when this much is unread,
    // so a host that never ends its line can't grow the process.
    m_port->setReadBufferSize(MaxReadBytes);
    m_readTimer->setInterval(40);
    connect(m_readTimer, &QTimer::timeout, this, &cmdSerialPort::onReadyRead);
    connect(this, &cmdSerialPort::remoteCmdPacketReady, this, &cmdSerialPort::cmdHandler);
    m_watcher->addPath(QFileInfo(m_device).absolutePath());
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &cmdSerialPort::onPortAddedOrRemoved);
    onPortAddedOrRemoved();
}

bool cmdSerialPort::isOpen() const
{
    return m_port->isOpen();
}

void cmdSerialPort::setReadInterval(int ms)
{
    m_readTimer->setInterval(ms);
}

void cmdSerialPort::onPortAddedOrRemoved()
{
    const QFileInfo info(m_device);
    const QStringList entries = info.dir().entryList({QStringLiteral("*ttyMFG*")},
                                                     QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    const bool present = entries.contains(info.fileName());
    // A device that went and came back between two looks is another line.
    const bool replaced = present && m_port->isOpen() && info.canonicalFilePath() != m_openedNode;
    if ((!present || replaced) && m_port->isOpen()) {
        m_port->close();
        m_port->clearError();
        m_input.clear();
        m_discarding = false;
        m_daqOffPending = false;
        emit daqOn();
        m_readTimer->stop();
        qDebug() << "Closed cmd interface";
    }
    if (present && !m_port->isOpen() && !m_openScheduled) {
        // The device node needs a moment to settle.
        m_openScheduled = true;
        QTimer::singleShot(m_settleMs, this, &cmdSerialPort::portOpen);
    }
}

void cmdSerialPort::portOpen()
{
    m_openScheduled = false;
    if (m_port->isOpen() || !m_port->open(QIODevice::ReadWrite))
        return;
    setInstrumentLine(*m_port);
    m_openedNode = QFileInfo(m_device).canonicalFilePath();
    m_input.clear();
    m_discarding = false;
    stopPoll();
    m_readTimer->start();
    qDebug() << "Opened cmd interface";
}

void cmdSerialPort::stopPoll()
{
    // A titration keeps its samples: the stop waits for the run's end.
    m_daqOffPending = m_host->runInProgress();
    if (m_daqOffPending) {
        qDebug() << "cmd interface: the poll stops when the titration has ended";
        return;
    }
    emit daqOff();
}

void cmdSerialPort::onReadyRead()
{
    if (m_daqOffPending && !m_host->runInProgress()) {
        m_daqOffPending = false;
        emit daqOff();
    }
    if (!m_port->isOpen() || m_port->bytesAvailable() <= 0)
        return;
    if (!takeBytes(m_port->readAll()))
        return;
    const QString text = QString::fromLocal8Bit(m_input);
    m_input.clear();
    qDebug() << "commandString: " << text;
    emit remoteCmdPacketReady(text);
}

// Adds what was read to the command in the making; true when a CR came with
// it. Everything up to then is one command, even with two CRs in one read.
// A command that passes MaxLineBytes is answered with an error and dropped up
// to its CR.
bool cmdSerialPort::takeBytes(QByteArray bytes)
{
    if (m_discarding) {
        const int cr = bytes.indexOf('\r');
        if (cr < 0)
            return false;
        m_discarding = false;
        bytes.remove(0, cr + 1);
    }
    if (m_input.size() + bytes.size() > MaxLineBytes) {
        qDebug() << "cmd interface: dropped a line longer than" << MaxLineBytes << "bytes";
        m_input.clear();
        m_discarding = !bytes.contains('\r');
        write(ReplyTooLong);
        return false;
    }
    m_input.append(bytes);
    m_peakBuffer = qMax(m_peakBuffer, m_input.size());
    return bytes.contains('\r');
}

void cmdSerialPort::write(const QByteArray &bytes)
{
    if (m_port->isOpen())
        m_port->write(bytes);
}

void cmdSerialPort::writeMspResponse(const QString &cmdAnswer)
{
    write(cmdAnswer.toLocal8Bit());
}

void cmdSerialPort::cmdHandler(const QString &cmd)
{
    const RemoteCommand c = RemoteCommand::parse(cmd);
    switch (c.kind) {
    case RemoteCommand::Daq:
        handleDaq(c);
        break;
    case RemoteCommand::Beep:
        handleBeep(c);
        break;
    case RemoteCommand::RtcGet:
        qDebug() << " --- rtc get ----";
        write(Clock::now().toUTC().toString(QStringLiteral("yyyy MM dd hh mm ss")).toLatin1() + "\r\n");
        break;
    case RemoteCommand::RtcSet:
        qDebug() << " --- rtc set ----";
        setClock(c);
        break;
    case RemoteCommand::SysReset:
        qDebug() << " --- sys_reset command ----";
        write("resetting...\r\n");
        m_port->flush();
        m_host->factoryReset();
        break;
    case RemoteCommand::AppVersion:
        qDebug() << " --- app_version command ----";
        write(m_host->appVersion().toLocal8Bit() + "\r\n");
        break;
    case RemoteCommand::ModelType:
        qDebug() << " --- model_type command ----";
        write(m_host->modelType().toLocal8Bit() + "\r\n");
        break;
    case RemoteCommand::Qdb:
        qDebug() << " --- qdb command ---";
        if (c.qdbHasWord)
            Platform::run(QStringLiteral("systemctl"),
                          {c.qdbOn ? QStringLiteral("start") : QStringLiteral("stop"), QStringLiteral("qdbd")},
                          kSystemTimeoutMs);
        break;
    case RemoteCommand::PassThrough:
        emit remoteMspCmdPacketReady(cmd);
        break;
    }
}

void cmdSerialPort::handleDaq(const RemoteCommand &c)
{
    if (c.daqOn) {
        qDebug() << " --- DAQ On ----";
        m_daqOffPending = false;
        emit daqOn();
        return;
    }
    qDebug() << " --- DAQ Off ----";
    if (m_host->runInProgress()) {
        write(ReplyRunning);
        return;
    }
    emit daqOff();
}

void cmdSerialPort::handleBeep(const RemoteCommand &c)
{
    switch (c.beep) {
    case RemoteCommand::BeepThreeSeconds:
        qDebug() << " --- beep 3 sec ----";
        m_host->beep(440, 3000);
        write("OK");
        break;
    case RemoteCommand::BeepOn:
        m_host->beep(440, 0);
        break;
    case RemoteCommand::BeepStop:
        m_host->stopBeep();
        break;
    case RemoteCommand::BeepTone:
        qDebug() << "Beeping at freq: " << c.frequencyHz << " for msec: " << c.durationMs;
        m_host->beep(c.frequencyHz, c.durationMs);
        break;
    }
}

// The clock is set with argument lists, never a shell line; a date or time
// that doesn't parse sets nothing.
void cmdSerialPort::setClock(const RemoteCommand &c)
{
    if (!c.clock.isValid()) {
        write(ReplyBadClock);
        return;
    }
    write(c.clock.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")).toLatin1() + "\r\n");
    Platform::run(QStringLiteral("date"), {QStringLiteral("-s"), c.clock.toString(QStringLiteral("MM/dd/yyyy hh:mm:ss"))},
                  kSystemTimeoutMs);
    Platform::run(QStringLiteral("/sbin/hwclock"), {QStringLiteral("-w")}, kSystemTimeoutMs);
}
