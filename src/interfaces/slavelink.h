#pragma once

#include <QObject>
#include <QString>

// The last MG reply of the slave, one field per word of the reply.
struct mspProbeRecord {
    float rawMillivolts = 0.f;    // 1
    float temperature = 0.f;      // 2, degrees Celsius; 125 or more: no probe
    float firstDeviation = 0.f;   // 3
    long timestamp = 0;           // 4, ms on the slave's clock
    int dispenseStatus = 0;       // 5, 0 while a BDS dose is delivered
    float secondDeviation = 0.f;  // 6
    float millivolts = 0.f;       // 7, the probe reading
    float spareValue1 = 0.f;      // 8
    float spareValue2 = 0.f;      // 9
    int spareStatus = 0;          // 10, may be absent
    bool valid = false;           // fields 1 to 9 were present
};

// Everything else the slave reported; copied out in one piece.
struct mspInfoRecord {
    char version[32];
    int backlight = 0;
    int stirSpeed = 0;
    int buretteSize = 0;          // mL
    int valve = 0;
    bool versionValid = false;
    char lastError[3];
    char serialNumber[16];        // 15 characters and a terminator
    bool newVersion = false;

    mspInfoRecord();
    QString versionText() const;
    QString serialText() const;
    QString lastErrorText() const;
};

// What the controllers (burette, meter, titration run, the run's clock) ask
// of the slave: its samples, burette motions and state, stirrer and
// backlight. The serial link to the slave serves it on the instrument (and
// against the virtual instrument on a pseudo-terminal); unit tests use an
// in-process fake that records what was asked.
class SlaveLink : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;
    ~SlaveLink() override = default;

    // Burette.
    virtual void dispense(int microlitres) = 0;
    virtual void setHomeBurette() = 0;
    virtual void setEndBurette() = 0;
    virtual void queryBurette() = 0;
    // Marks the piston busy until the slave's next burette reply says otherwise.
    virtual void setBuretteBusy() = 0;
    virtual void stopAndHomeBurette() = 0;
    virtual void setBuretteSize(int millilitres) = 0;
    virtual void getBuretteSize() = 0;
    virtual bool isBuretteAtLoad() const = 0;
    virtual bool isBuretteBusy() const = 0;
    virtual bool isDispenseDone() const = 0;

    // The slave's last reports.
    virtual void getInfo(mspInfoRecord &record) const = 0;
    virtual void getProbeRecord(mspProbeRecord &record) const = 0;

    // Stirrer (0 stops it) and backlight.
    virtual void setStirSpeed(int speed) = 0;
    virtual void stopStirrer() = 0;
    virtual void setBacklight(int brightness) = 0;

signals:
    // One sample of the slave: its clock in ms and the probe's millivolts.
    void mspNewDataSignal(long timeStamp, double data);
};
