#include "slavesession.h"

#include "pseudoterminal.h"
#include "virtualslave.h"

#include <QTimer>

SlaveSession::SlaveSession(PseudoTerminal *pty, VirtualSlave *slave, QObject *parent)
    : QObject(parent)
    , m_pty(pty)
    , m_slave(slave)
{
    connect(m_pty, &PseudoTerminal::received, this, &SlaveSession::onReceived);
    m_slave->onEvent = [this](const QString &text) { trace('*', text.toUtf8()); };
}

bool SlaveSession::setTraceFile(const QString &fileName)
{
    m_trace.setFileName(fileName);
    return m_trace.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text);
}

void SlaveSession::trace(char kind, const QByteArray &text)
{
    if (!m_trace.isOpen())
        return;
    m_trace.write(QByteArray::number(m_slave->now()) + ' ' + kind + ' ' + text.trimmed() + '\n');
    m_trace.flush();
}

void SlaveSession::onReceived(const QByteArray &bytes)
{
    for (const char c : bytes) {
        if (c == '\r' || c == '\n') {
            if (!m_discarding && !m_line.isEmpty()) {
                // The instrument's time is the polls': one period passes
                // with each measurement asked for, whatever the wall clock
                // did meanwhile.
                if (m_line == "MG")
                    m_slave->advanceTo(m_slave->now() + PollPeriodMs);
                trace('>', m_line);
                const QByteArray answer = m_slave->handle(m_line);
                if (!answer.isEmpty()) {
                    trace('<', answer);
                    m_pty->write(answer);
                }
            }
            m_line.clear();
            m_discarding = false;
            continue;
        }
        if (m_discarding)
            continue;
        if (m_line.size() >= MaxLineBytes) {
            trace('*', "command line too long, dropped");
            m_line.clear();
            m_discarding = true;
            continue;
        }
        m_line.append(c);
    }
}
