#include "controller/serialport.h"

#include <QDebug>
#include <QFileInfo>
#include <QSerialPort>
#include <QTimer>

namespace {
// The device is looked at again (presence, reopen) every this many ticks.
constexpr int kCheckTicks = 25;
} // namespace

void setInstrumentLine(QSerialPort &port)
{
    port.setBaudRate(QSerialPort::Baud115200);
    port.setDataBits(QSerialPort::Data8);
    port.setParity(QSerialPort::NoParity);
    port.setStopBits(QSerialPort::OneStop);
    port.setFlowControl(QSerialPort::NoFlowControl);
}

serialPort::serialPort(const QString &device, QObject *parent)
    : QObject(parent)
    , m_device(device)
    , m_port(new QSerialPort(this))
    , m_readTimer(new QTimer(this))
{
    m_port->setPortName(device);
    if (!openPort())
        qDebug() << "serialPort: cannot open" << device << m_port->errorString();
    connect(m_readTimer, &QTimer::timeout, this, &serialPort::onReadyRead);
    m_readTimer->start(40);
}

QIODevice *serialPort::device() const
{
    return m_port;
}

bool serialPort::isOpen() const
{
    return m_port->isOpen();
}

void serialPort::setReadInterval(int ms)
{
    m_readTimer->setInterval(ms);
}

bool serialPort::openPort()
{
    if (!m_port->open(QIODevice::ReadWrite))
        return false;
    setInstrumentLine(*m_port);
    m_openedNode = QFileInfo(m_device).canonicalFilePath();
    buffer.clear();
    if (m_everOpened)
        qDebug() << "serialPort: reopened" << m_device;
    m_everOpened = true;
    return true;
}

void serialPort::closePort(const char *why)
{
    qDebug() << "serialPort: closing" << m_device << why;
    m_port->close();
    m_port->clearError();
    buffer.clear();
}

bool serialPort::deviceStillThere() const
{
    const QString node = QFileInfo(m_device).canonicalFilePath();
    return !node.isEmpty() && node == m_openedNode;
}

void serialPort::onReadyRead()
{
    const bool check = (++m_ticks % kCheckTicks) == 0;
    if (!m_port->isOpen()) {
        if (check && QFileInfo::exists(m_device) && openPort())
            emit portReopened();
        return;
    }
    if (m_port->error() == QSerialPort::ResourceError || (check && !deviceStillThere())) {
        closePort("(device gone)");
        return;
    }
    if (m_port->bytesAvailable() <= 0)
        return;
    const QByteArray bytes = m_port->readAll();
    if (buffer.size() + bytes.size() > MaxBufferBytes) {
        // The packet in the making is too long: it is dropped up to its CR,
        // and what follows that CR is kept as far as it fits.
        qDebug() << "serialPort: dropped" << buffer.size() + bytes.size()
                 << "bytes of an over-long packet";
        buffer.clear();
        const int cr = bytes.indexOf('\r');
        if (cr < 0)
            return;
        QByteArray rest = bytes.mid(cr + 1);
        while (rest.size() > MaxBufferBytes) {
            const int next = rest.indexOf('\r');
            rest = next < 0 ? QByteArray() : rest.mid(next + 1);
        }
        buffer = rest;
        if (buffer.contains('\r'))
            emit packetReady();
        return;
    }
    buffer.append(bytes);
    if (bytes.contains('\r'))
        emit packetReady();
}
