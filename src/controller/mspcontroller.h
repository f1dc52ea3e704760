#pragma once

#include "controller/mspdriver.h"
#include "interfaces/slavelink.h"

#include <QObject>
#include <QString>

class QTimer;
class serialPort;

// The serial link to the slave: owns the driver and the UART, polls the
// measurement every 250 ms, forwards every sample and mirrors every reply to
// the remote port.
class mspController : public SlaveLink
{
    Q_OBJECT
public:
    static mspController *mspcPtr();

    // The singleton uses the slave's device; tests make their own on a pty.
    explicit mspController(const QString &device, QObject *parent = nullptr);

    enum DaqState { DaqStart = 0, DaqStopped = 1, DaqRunning = 2 };
    int daqState() const { return m_daqState; }

    void setStirSpeed(int speed) override;
    void stopStirrer() override;
    void setBacklight(int brightness) override;
    void stopAndHomeBurette() override;
    void dispense(int microlitres) override { msp->dispense(microlitres); }
    void setHomeBurette() override { msp->setHomeBurette(); }
    void setEndBurette() override { msp->setEndBurette(); }
    void queryBurette() override { msp->queryBurette(); }
    void setBuretteBusy() override { msp->setBuretteBusy(); }
    void setBuretteSize(int millilitres) override { msp->setBuretteSize(millilitres); }
    void getBuretteSize() override { msp->getBuretteSize(); }
    bool isBuretteAtLoad() const override { return msp->isBuretteAtLoad(); }
    bool isBuretteBusy() const override { return msp->isBuretteBusy(); }
    bool isDispenseDone() const override { return msp->isDispenseDone(); }
    void getInfo(mspInfoRecord &record) const override { msp->getInfo(record); }
    void getProbeRecord(mspProbeRecord &record) const override { msp->getProbeRecord(record); }
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
    void mirrorFromMSP(const QString &cmdAnswer);
    void mspErrorOccured(const QString &mes);

private:
    int m_daqState = DaqStart;
    int m_pollsWaited = 0;
    static constexpr int MaxPollsWaited = 3;
    QTimer *m_pollTimer = nullptr;
    serialPort *m_serial = nullptr;
};
