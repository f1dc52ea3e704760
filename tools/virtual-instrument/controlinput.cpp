#include "controlinput.h"

#include <QSocketNotifier>

#include <unistd.h>

ControlInput::ControlInput(Handler handler, QObject *parent)
    : QObject(parent)
    , m_handler(std::move(handler))
    , m_notifier(new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this))
{
    connect(m_notifier, &QSocketNotifier::activated, this, &ControlInput::onReadable);
}

QByteArray ControlInput::handleLine(const QByteArray &line) const
{
    const QByteArray trimmed = line.trimmed();
    if (trimmed.isEmpty())
        return QByteArray();
    const int space = trimmed.indexOf(' ');
    const QByteArray command = space < 0 ? trimmed : trimmed.left(space);
    const QByteArray argument = space < 0 ? QByteArray() : trimmed.mid(space + 1).trimmed();
    const QString error = m_handler(command, argument);
    return error.isEmpty() ? QByteArray("ok\n") : "error: " + error.toUtf8() + '\n';
}

void ControlInput::onReadable()
{
    char chunk[4096];
    const ssize_t n = ::read(STDIN_FILENO, chunk, sizeof chunk);
    if (n <= 0) {
        // End of input (or an error): nobody will speak to us any more.
        m_notifier->setEnabled(false);
        return;
    }
    for (ssize_t i = 0; i < n; ++i) {
        const char c = chunk[i];
        if (c == '\n') {
            if (!m_discarding) {
                const QByteArray answer = handleLine(m_buffer);
                if (!answer.isEmpty() && ::write(STDOUT_FILENO, answer.constData(), size_t(answer.size())) < 0)
                    m_notifier->setEnabled(false);
            }
            m_buffer.clear();
            m_discarding = false;
        } else if (!m_discarding) {
            if (m_buffer.size() >= MaxLineBytes) {
                m_buffer.clear();
                m_discarding = true;
            } else {
                m_buffer.append(c);
            }
        }
    }
}
