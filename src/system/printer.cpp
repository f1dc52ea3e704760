#include "system/printer.h"

#include "system/platform.h"

#include <QDebug>
#include <QSerialPort>
#include <QTextCodec>
#include <QTimer>

const QByteArray Printer::cmdInit = QByteArray("\x1b\x21\x01\x1b\x74\x10", 6);
const QByteArray Printer::cmdFeed = QByteArray("\x1b\x64\x09", 3);
const QByteArray Printer::cmdCut = QByteArray("\x1d\x56\x01", 3);

Printer::Printer(const QString &device, QObject *parent)
    : QObject(parent)
    , m_device(device)
    , m_port(new QSerialPort(this))
{
}

QByteArray Printer::encode(const QString &text)
{
    QString clean = text;
    for (QChar &c : clean) {
        const ushort u = c.unicode();
        if ((u < 0x20 && u != '\n' && u != '\r') || u == 0x7f || (u >= 0x80 && u < 0xa0))
            c = QLatin1Char('?');
    }
    static QTextCodec *codec = QTextCodec::codecForName("windows-1252");
    if (!codec)
        return clean.toLatin1();
    QTextCodec::ConverterState state(QTextCodec::DefaultConversion);
    QByteArray bytes = codec->fromUnicode(clean.constData(), clean.size(), &state);
    // Characters of the code page's free slots came out as NUL.
    bytes.replace('\0', '?');
    return bytes;
}

void Printer::printerAttached()
{
    QTimer::singleShot(openDelayMs, this, &Printer::openPort);
}

void Printer::printerDetached()
{
    setReady(false);
    m_port->close();
    qDebug() << "POS: Printer Port Closed";
}

bool Printer::openPort()
{
    if (m_port->isOpen()) {
        m_port->close();
        qDebug() << "POS: Closing already opened port";
    }
    m_port->setPortName(Platform::path(m_device));
    if (!m_port->open(QIODevice::ReadWrite)) {
        qDebug() << "POS: Failed to open" << m_port->errorString();
        return false;
    }
    m_port->setBaudRate(QSerialPort::Baud115200);
    m_port->setDataBits(QSerialPort::Data8);
    m_port->setParity(QSerialPort::NoParity);
    m_port->setStopBits(QSerialPort::OneStop);
    m_port->setFlowControl(QSerialPort::NoFlowControl);
    writeBytes(cmdInit);
    setReady(true);
    qDebug() << "POS: Printer Port Opened";
    return true;
}

bool Printer::write(const QString &text)
{
    return writeBytes(encode(text));
}

bool Printer::writeBytes(const QByteArray &bytes)
{
    if (!m_port->isOpen()) {
        qDebug() << "POS: Write failed, port not open";
        return false;
    }
    if (m_port->write(bytes) != bytes.size())
        return false;
    while (m_port->bytesToWrite() > 0) {
        if (!m_port->waitForBytesWritten(writeTimeoutMs)) {
            qDebug() << "POS: Write failed" << m_port->errorString();
            return false;
        }
    }
    return true;
}

bool Printer::printReport(const QString &text)
{
    if (!m_ready) {
        qDebug() << "POS: Report failed, printer not initialized.";
        return false;
    }
    return write(text) && writeBytes(cmdFeed) && writeBytes(cmdCut);
}

void Printer::setReady(bool ready)
{
    if (ready == m_ready)
        return;
    m_ready = ready;
    emit readyChanged();
}
