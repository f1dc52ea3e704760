#include "controller/mspcontroller.h"

#include "interfaces/enginedatainterface.h"
#include "controller/serialport.h"
#include "system/platform.h"

#include <QDebug>
#include <QTimer>

mspController *mspController::mspcPtr()
{
    static mspController *instance = new mspController(Platform::path(QStringLiteral("/dev/ttymxc2")));
    return instance;
}

mspController::mspController(const QString &device, QObject *parent)
    : SlaveLink(parent)
    , msp(new mspDriver(this))
    , m_serial(new serialPort(device, this))
{
    msp->setSerialPort(m_serial->device());
    connect(m_serial, &serialPort::packetReady, this, &mspController::parseMspPacket);
    // A device that came back may be a restarted slave: ask who it is.
    connect(m_serial, &serialPort::portReopened, msp, &mspDriver::requestVersion);

    msp->requestVersion();
    QString last;
    msp->getLastCommand(last);
    qDebug() << "MSP version " << last;

    m_pollTimer = new QTimer(this);
    connect(m_pollTimer, &QTimer::timeout, this, &mspController::execute);
    m_pollTimer->start(250);
    m_daqState = DaqStart;

    connect(msp, &mspDriver::mspProbeDataSignal, this, &mspController::storeData);
}

void mspController::setStirSpeed(int speed)
{
    msp->setStirSpeed(speed);
    qDebug() << "setStirSpeed:" << speed;
}

void mspController::stopStirrer()
{
    qDebug() << "mspController::stopStirrer";
    msp->setStirSpeed(0);
}

void mspController::setBacklight(int brightness)
{
    msp->setBacklight(brightness);
    qDebug() << "setBackLight:" << brightness;
}

void mspController::stopAndHomeBurette()
{
    msp->stopAndHomeBurette();
}

void mspController::sendRemoteCommand(const QString &text)
{
    msp->sendCommand(text);
}

void mspController::setPollInterval(int ms)
{
    m_pollTimer->setInterval(ms);
}

void mspController::setReadInterval(int ms)
{
    m_serial->setReadInterval(ms);
}

bool mspController::portIsOpen() const
{
    return m_serial->isOpen();
}

int mspController::parseMspPacket()
{
    // The packet is what came up to the last CR (and the LF after it); the
    // bytes behind it are the start of the next reply and stay.
    QByteArray &buffer = m_serial->buffer;
    int end = buffer.lastIndexOf('\r');
    if (end < 0)
        return 0;
    ++end;
    if (end < buffer.size() && buffer.at(end) == '\n')
        ++end;
    int begin = 0;
    while (begin < end && buffer.at(begin) == '\n')
        ++begin; // the LF of a reply whose CR came in the read before
    const QByteArray bytes = buffer.mid(begin, end - begin);
    buffer.remove(0, end);
    const int nul = bytes.indexOf('\0');
    emit mirrorFromMSP(QString::fromLocal8Bit(nul < 0 ? bytes : bytes.left(nul)));

    int result = msp->parsePacket(bytes);
    if (result != 0) {
        result = -1;
    } else {
        mspInfoRecord info;
        msp->getInfo(info);
        if (info.versionValid && info.newVersion) {
            EngineDataInterface *dm = EngineData::get();
            dm->setMspVersion(info.versionText());
            dm->setMfgSerialNum(info.serialText());
            msp->clearVersionFlag();
            qDebug() << "Writing dataManager SerialNum and Version";
        }
    }
    return result;
}

void mspController::execute()
{
    switch (m_daqState) {
    case DaqStart:
        m_daqState = DaqRunning; // the first poll goes out one tick later
        break;
    case DaqRunning:
        // One poll at a time: a tick finds the last poll unanswered only
        // when this process or the slave fell behind; it passes, for a few
        // ticks at most, so that a lost reply is not waited for.
        if (msp->probeInFlight() && m_pollsWaited < MaxPollsWaited) {
            ++m_pollsWaited;
            break;
        }
        m_pollsWaited = 0;
        msp->requestProbeData();
        break;
    default:
        break;
    }
}

void mspController::parseRmtCmdPacket(const QString &remoteCommand)
{
    QString text = remoteCommand;
    while (text.endsWith(QLatin1Char('\r')) || text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    msp->sendCommand(text);
}

void mspController::mspStopDAQ()
{
    m_daqState = DaqStopped;
}

void mspController::mspStartDAQ()
{
    m_daqState = DaqRunning;
}

void mspController::storeData()
{
    mspProbeRecord r;
    if (msp->getProbeRecord(r) != 0)
        return;
    emit mspNewDataSignal(r.timestamp, double(r.millivolts));
    EngineData::get()->setRawTemperatureCelcius(r.temperature);
}
