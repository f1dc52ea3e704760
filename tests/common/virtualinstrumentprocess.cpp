#include "virtualinstrumentprocess.h"

#include "testsupport.h"

#include <QFileInfo>

VirtualInstrumentProcess::VirtualInstrumentProcess() = default;

VirtualInstrumentProcess::~VirtualInstrumentProcess()
{
    stop();
}

QString VirtualInstrumentProcess::device() const
{
    return Platform::path(QStringLiteral("/dev/ttymxc2"));
}

bool VirtualInstrumentProcess::start(const QString &scenarioJson, double speed, const QStringList &extra)
{
    stop();
    const QString scenario = m_dir.filePath(QStringLiteral("scenario.json"));
    writeTextFile(scenario, scenarioJson);
    QStringList args{QStringLiteral("--device"), device(),
                     QStringLiteral("--scenario"), scenario,
                     QStringLiteral("--speed"), QString::number(speed),
                     QStringLiteral("--trace"), m_dir.filePath(QStringLiteral("trace.txt"))};
    args += extra;
    m_process.setProgram(QStringLiteral(KESTRUM_BIN_DIR "/virtual-instrument"));
    m_process.setArguments(args);
    m_process.start();
    if (!m_process.waitForStarted(5000))
        return false;
    return waitUntil([this] {
        return QFileInfo(device()).isSymLink() && QFileInfo::exists(device())
               && m_process.state() == QProcess::Running;
    }, 5000);
}

void VirtualInstrumentProcess::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(5000)) {
        m_process.kill();
        m_process.waitForFinished(2000);
    }
    m_errors += QString::fromLocal8Bit(m_process.readAllStandardError());
}

bool VirtualInstrumentProcess::isRunning() const
{
    return m_process.state() == QProcess::Running;
}

QString VirtualInstrumentProcess::traceText() const
{
    return readTextFile(m_dir.filePath(QStringLiteral("trace.txt")));
}

QString VirtualInstrumentProcess::errorText()
{
    m_errors += QString::fromLocal8Bit(m_process.readAllStandardError());
    return m_errors;
}

QStringList VirtualInstrumentProcess::traceLines(char kind) const
{
    QStringList out;
    const QString marker = QStringLiteral(" %1 ").arg(QLatin1Char(kind));
    const QStringList lines = traceText().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &l : lines) {
        const int at = l.indexOf(QLatin1Char(' '));
        if (at > 0 && l.mid(at, 3) == marker)
            out << l;
    }
    return out;
}

QString VirtualInstrumentProcess::command(const QString &line)
{
    m_process.write(line.toUtf8() + '\n');
    if (!waitUntil([this] { return m_process.canReadLine(); }, 5000))
        return QStringLiteral("no answer");
    const QString answer = QString::fromUtf8(m_process.readLine()).trimmed();
    return answer == QLatin1String("ok") ? QString() : answer;
}
