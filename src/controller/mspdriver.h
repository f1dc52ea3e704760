#pragma once

#include "interfaces/slavelink.h"

#include <QByteArray>
#include <QFile>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTextStream>

class QIODevice;

// Builds the commands of the slave's ASCII protocol, parses its replies and
// keeps the last known state of the slave. Bytes go out through the device
// given to setSerialPort(); whole received packets come in via parsePacket().
class mspDriver : public QObject
{
    Q_OBJECT
public:
    explicit mspDriver(QObject *parent = nullptr);

    void setSerialPort(QIODevice *port);
    void sendCommand(const QString &text);
    int parsePacket(const QByteArray &bytes);

    int getProbeRecord(mspProbeRecord &record) const;
    int getInfo(mspInfoRecord &record) const;
    void clearVersionFlag();
    void getLastCommand(QString &text) const;

    bool isBuretteAtLoad() const { return m_position == 2; }
    bool isBuretteBusy() const { return m_busy; }
    // A measurement poll was sent and its reply has not come yet.
    bool probeInFlight() const { return m_probesAnswered < m_probesSent; }
    int setBuretteBusy();
    bool isDispenseDone() const { return m_probe.dispenseStatus != 0; }

    // Commands.
    void requestProbeData();
    void requestVersion();
    void dispense(int microlitres);
    void setStirSpeed(int step);
    void setBacklight(int brightness);
    void setValve(int state);
    void getValve();
    void setBuretteSize(int millilitres);
    void getBuretteSize();
    void setEndBurette();
    void setHomeBurette();
    void queryBurette();
    void stopBurette();
    void stopAndHomeBurette();
    void rebootSlave();

    // The software double of the slave, for use without hardware.
    void enableVirtualMsp();
    void enableVirtualMsp(const QString &fileName);

    // Longest packet that is parsed; anything longer is dropped whole.
    static constexpr int MaxPacketBytes = 4096;

signals:
    void mspProbeDataSignal();

private:
    using Handler = void (mspDriver::*)(QStringList &);

    void parseProbeData(QStringList &words);
    void parseVersion(QStringList &words);
    void parseStirSpeed(QStringList &words);
    void parseGetValve(QStringList &words);
    void parseGetBuretteSize(QStringList &words);
    void parseBacklight(QStringList &words);
    void parseGetBuretteBusy(QStringList &words);
    void handleError(QStringList &words);
    bool takeWord(QStringList &words, QString &word);
    void setLastError(const char *word);

    void virtualCommand(const QString &text);
    void virtualProbeRecord();

    bool m_virtual = false;
    QFile m_dataFile;
    QTextStream m_dataStream;
    bool m_dataFileOpen = false;
    QIODevice *m_port = nullptr;
    bool m_connected = true;
    mspProbeRecord m_probe;
    mspInfoRecord m_info;
    QString m_lastCommand;
    bool m_busy = false;
    int m_position = 99;
    // Polls sent and answered. An MG reply that was asked for before a dose
    // went out still shows the old dispense status; it is not taken.
    quint64 m_probesSent = 0;
    quint64 m_probesAnswered = 0;
    quint64 m_staleProbes = 0;
    int m_simTime = 25;
    float m_simValue = 1.0f;
    int m_simIndex = 0;

    struct Dispatch {
        const char *tag;
        Handler handler;
    };
    static const Dispatch s_dispatch[7];
};
