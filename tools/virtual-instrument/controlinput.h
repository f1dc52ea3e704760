#pragma once

#include <QByteArray>
#include <QObject>
#include <functional>

class QSocketNotifier;

// Commands to the virtual instrument on its standard input, one a line, so a
// test or a person can act on the bench while it runs:
//   beaker {"kind":"buffer","pH":4.01}   the electrode goes into another beaker
// Each line is answered on standard output with "ok" or "error: <why>".
// Lines are bounded; a longer one is dropped whole.
class ControlInput : public QObject
{
    Q_OBJECT
public:
    using Handler = std::function<QString(const QByteArray &command, const QByteArray &argument)>;
    explicit ControlInput(Handler handler, QObject *parent = nullptr);

    static constexpr int MaxLineBytes = 64 * 1024;

    // Splits one line into its command word and the rest; answers through the handler.
    QByteArray handleLine(const QByteArray &line) const;

private:
    void onReadable();

    Handler m_handler;
    QSocketNotifier *m_notifier;
    QByteArray m_buffer;
    bool m_discarding = false;
};
