#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class QFileSystemWatcher;
class QSerialPort;
class QTimer;
class RemotePortHost;
struct RemoteCommand;

// The remote command port: a second serial line ("/dev/ttyMFG") that exists
// only while a host is attached. When it appears the port opens and the
// measurement poll stops, so the host has the slave's line to itself; when it
// goes the poll starts again. The host gets a small text console: clock,
// beeper, poll on and off, versions, model, factory reset, debug bridge; every
// other line goes to the slave unchanged, and every reply of the slave is
// mirrored back.
//
// Safety: an input line is bounded (a longer one is dropped with an error
// reply), an invalid clock is refused, and the poll is never stopped while a
// titration runs (an attach waits for the run's end, "daq" is refused).
class cmdSerialPort : public QObject
{
    Q_OBJECT
public:
    // The device is the sandbox's "/dev/ttyMFG" unless a test names another.
    explicit cmdSerialPort(RemotePortHost *host, const QString &device = QString(), QObject *parent = nullptr);

    // The longest line of the console, with its line end; a longer line is dropped.
    static constexpr int MaxLineBytes = 64;
    // What the serial driver may hold between two reads.
    static constexpr int MaxReadBytes = 64 * 1024;

    static const char *const ReplyTooLong;
    static const char *const ReplyBadClock;
    static const char *const ReplyRunning;

    bool isOpen() const;
    // True while a titration holds back the stop of the poll after an attach.
    bool daqOffPending() const { return m_daqOffPending; }
    // The most bytes the input buffer ever held (it never passes MaxLineBytes).
    int peakBufferBytes() const { return m_peakBuffer; }
    // Tests shorten the read interval (40 ms) and the settle wait (500 ms).
    void setReadInterval(int ms);
    void setSettleInterval(int ms) { m_settleMs = ms; }

public slots:
    void onPortAddedOrRemoved();
    void onReadyRead();
    void cmdHandler(const QString &cmd);
    void portOpen();
    void writeMspResponse(const QString &cmdAnswer);

signals:
    void remoteCmdPacketReady(const QString &cmd);
    void remoteMspCmdPacketReady(const QString &cmd);
    void daqOff();
    void daqOn();

private:
    void write(const QByteArray &bytes);
    void stopPoll();
    void handleDaq(const RemoteCommand &c);
    void handleBeep(const RemoteCommand &c);
    void setClock(const RemoteCommand &c);
    bool takeBytes(QByteArray bytes);

    RemotePortHost *m_host;
    QString m_device;
    QString m_openedNode;
    QSerialPort *m_port;
    QTimer *m_readTimer;
    QFileSystemWatcher *m_watcher;
    QByteArray m_input;
    bool m_discarding = false;      // inside an over-long line, until its CR
    bool m_daqOffPending = false;
    bool m_openScheduled = false;
    int m_peakBuffer = 0;
    int m_settleMs = 500;
};
