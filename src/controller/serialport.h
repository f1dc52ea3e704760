#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class QIODevice;
class QSerialPort;
class QTimer;

// Sets an open port to the line of the slave and of the remote port:
// 115200 baud, 8 data bits, no parity, one stop bit, no flow control.
void setInstrumentLine(QSerialPort &port);

// Owns the slave's UART (115200 8N1, no flow control). A 40 ms timer polls
// the port and collects bytes into a packet; packetReady() fires when a read
// brought a CR. A device that vanishes is closed and opened again once it is
// back.
class serialPort : public QObject
{
    Q_OBJECT
public:
    explicit serialPort(const QString &device, QObject *parent = nullptr);

    QIODevice *device() const;
    bool isOpen() const;
    void setReadInterval(int ms);

    // Received bytes of the current packet; the controller empties it.
    QByteArray buffer;
    // A packet never grows beyond this; a longer run without CR is dropped.
    static constexpr int MaxBufferBytes = 4096;

public slots:
    void onReadyRead();

signals:
    void packetReady();
    void portReopened();

private:
    bool openPort();
    void closePort(const char *why);
    bool deviceStillThere() const;

    QString m_device;
    QString m_openedNode;
    QSerialPort *m_port = nullptr;
    QTimer *m_readTimer = nullptr;
    int m_ticks = 0;
    bool m_everOpened = false;
};
