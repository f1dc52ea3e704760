#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

class QSerialPort;

// The receipt printer on "/dev/ttyPOS" (ESC/POS, 115200 8N1). The port is
// opened half a second after the USB layer reports the printer, and closed
// when it goes. After each open the printer is set to its small font and to
// code page 1252; a report ends with a feed of nine lines and one cut.
// Text goes out in that code page: a character it lacks becomes "?", and
// control characters other than line ends never reach the printer.
class Printer : public QObject
{
    Q_OBJECT
public:
    static const QByteArray cmdInit; // ESC ! 1 (small font), ESC t 16 (code page 1252)
    static const QByteArray cmdFeed; // ESC d 9
    static const QByteArray cmdCut;  // GS V 1 (partial cut)
    static constexpr int openDelayMs = 500;
    static constexpr int writeTimeoutMs = 5000;

    explicit Printer(const QString &device = QStringLiteral("/dev/ttyPOS"), QObject *parent = nullptr);

    bool isReady() const { return m_ready; }
    // The bytes a text becomes on the printer.
    static QByteArray encode(const QString &text);

public slots:
    void printerAttached();
    void printerDetached();
    bool openPort();
    // Sends the text (encoded), or raw command bytes; false when the port
    // is not open or the bytes did not go out.
    bool write(const QString &text);
    bool writeBytes(const QByteArray &bytes);
    // A whole report: the text, the feed and the cut.
    bool printReport(const QString &text);

signals:
    void readyChanged();

private:
    void setReady(bool ready);

    QString m_device;
    QSerialPort *m_port;
    bool m_ready = false;
};
