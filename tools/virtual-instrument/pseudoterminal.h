#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class QSocketNotifier;

// A pseudo-terminal whose slave side is reachable through a symbolic link
// (for example the sandbox's "/dev/ttymxc2"): what a program writes to the
// link arrives here as received(); write() sends to it. The serial ports of
// the instrument (slave, remote port, printer) are all stood in for this way.
class PseudoTerminal : public QObject
{
    Q_OBJECT
public:
    explicit PseudoTerminal(QObject *parent = nullptr);
    ~PseudoTerminal() override;

    // Opens the terminal in raw mode and puts the link at linkPath
    // (replacing an old link). False with errorString() on failure.
    bool open(const QString &linkPath);
    void close();
    bool isOpen() const { return m_master >= 0; }
    QString slaveName() const { return m_slaveName; }
    QString linkPath() const { return m_linkPath; }
    QString errorString() const { return m_error; }

    // Queues the bytes and writes them as fast as the other end takes them.
    qint64 write(const QByteArray &bytes);
    // Bytes written but not yet taken by the terminal.
    int pendingBytes() const { return m_out.size(); }
    static constexpr int MaxPendingBytes = 1 << 20;

signals:
    void received(const QByteArray &bytes);

private:
    void onReadable();
    void flushOut();

    int m_master = -1;
    int m_slaveKeepAlive = -1;  // keeps the terminal up while no one has it open
    QString m_slaveName;
    QString m_linkPath;
    QString m_error;
    QSocketNotifier *m_notifier = nullptr;
    QSocketNotifier *m_writeNotifier = nullptr;
    QByteArray m_out;
};
