#pragma once

#include "controller/mspdriver.h"

#include <QObject>
#include <QString>

class QTimer;
class serialPort;

// The one object the application calls for the slave: owns the driver and
// the UART, polls the measurement every 250 ms, forwards every sample and
// mirrors every reply to the remote port.
class mspController : public QObject
{
    Q_OBJECT
public:
    static mspController *mspcPtr();

    // The singleton uses the slave's device; tests make their own on a pty.
    explicit mspController(const QString &device, QObject *parent = nullptr);

    enum DaqState { DaqStart = 0, DaqStopped = 1, DaqRunning = 2 };
    int daqState() const { return m_daqState; }

    void setStirSpeed(int speed);
    void stopStirrer();
    void setBacklight(int brightness);
    void stopAndHomeBurette();
    void sendRemoteCommand(const QString &text);

    // Tests run the instrument's clock faster and shorten these to match.
    void setPollInterval(int ms);
    void setReadInterval(int ms);
    bool portIsOpen() const;

    mspDriver *msp = nullptr;

public slots:
    int parseMspPacket();
    void execute();
    void parseRmtCmdPacket(const QString &remoteCommand);
    void mspStopDAQ();
    void mspStartDAQ();
    void storeData();

signals:
    void mspNewDataSignal(long timeStamp, double data);
    void mirrorFromMSP(const QString &cmdAnswer);
    void mspErrorOccured(const QString &mes);

private:
    int m_daqState = DaqStart;
    int m_pollsWaited = 0;
    static constexpr int MaxPollsWaited = 3;
    QTimer *m_pollTimer = nullptr;
    serialPort *m_serial = nullptr;
};
