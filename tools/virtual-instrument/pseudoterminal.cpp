#include "pseudoterminal.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

PseudoTerminal::PseudoTerminal(QObject *parent)
    : QObject(parent)
{
}

PseudoTerminal::~PseudoTerminal()
{
    close();
}

bool PseudoTerminal::open(const QString &linkPath)
{
    close();
    m_master = ::posix_openpt(O_RDWR | O_NOCTTY);
    if (m_master < 0 || ::grantpt(m_master) != 0 || ::unlockpt(m_master) != 0) {
        m_error = QStringLiteral("cannot open a pseudo-terminal: %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
        close();
        return false;
    }
    const char *name = ::ptsname(m_master);
    m_slaveName = QString::fromLocal8Bit(name ? name : "");
    m_slaveKeepAlive = ::open(name, O_RDWR | O_NOCTTY);
    if (m_slaveKeepAlive >= 0) {
        termios t{};
        if (::tcgetattr(m_slaveKeepAlive, &t) == 0) {
            ::cfmakeraw(&t);
            ::cfsetispeed(&t, B115200);
            ::cfsetospeed(&t, B115200);
            ::tcsetattr(m_slaveKeepAlive, TCSANOW, &t);
        }
    }
    ::fcntl(m_master, F_SETFL, ::fcntl(m_master, F_GETFL) | O_NONBLOCK);

    QDir().mkpath(QFileInfo(linkPath).absolutePath());
    // A leftover link (or file) of an earlier run is replaced.
    QFile::remove(linkPath);
    if (!QFile::link(m_slaveName, linkPath)) {
        m_error = QStringLiteral("cannot make the link %1 to %2").arg(linkPath, m_slaveName);
        close();
        return false;
    }
    m_linkPath = linkPath;
    m_notifier = new QSocketNotifier(m_master, QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &PseudoTerminal::onReadable);
    m_writeNotifier = new QSocketNotifier(m_master, QSocketNotifier::Write, this);
    m_writeNotifier->setEnabled(false);
    connect(m_writeNotifier, &QSocketNotifier::activated, this, &PseudoTerminal::flushOut);
    return true;
}

void PseudoTerminal::close()
{
    delete m_notifier;
    m_notifier = nullptr;
    delete m_writeNotifier;
    m_writeNotifier = nullptr;
    m_out.clear();
    if (!m_linkPath.isEmpty() && QFileInfo(m_linkPath).symLinkTarget() == m_slaveName)
        QFile::remove(m_linkPath);
    m_linkPath.clear();
    if (m_slaveKeepAlive >= 0)
        ::close(m_slaveKeepAlive);
    if (m_master >= 0)
        ::close(m_master);
    m_slaveKeepAlive = m_master = -1;
}

qint64 PseudoTerminal::write(const QByteArray &bytes)
{
    if (m_master < 0 || m_out.size() + bytes.size() > MaxPendingBytes)
        return -1;
    m_out.append(bytes);
    flushOut();
    return bytes.size();
}

void PseudoTerminal::flushOut()
{
    while (!m_out.isEmpty()) {
        const ssize_t n = ::write(m_master, m_out.constData(), size_t(m_out.size()));
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;   // the terminal is full: go on when it is writable again
        m_out.remove(0, int(n));
    }
    if (m_writeNotifier)
        m_writeNotifier->setEnabled(!m_out.isEmpty());
}

void PseudoTerminal::onReadable()
{
    char buf[1024];
    for (;;) {
        const ssize_t n = ::read(m_master, buf, sizeof buf);
        if (n > 0) {
            emit received(QByteArray(buf, int(n)));
            continue;
        }
        if (n < 0 && errno == EINTR)
            continue;
        break;
    }
}
