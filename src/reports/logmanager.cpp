#include "reports/logmanager.h"

#include "system/clock.h"
#include "system/platform.h"

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

LogManager::LogManager(QObject *parent)
    : QObject(parent)
    , m_directory(logRoot())
{
}

LogManager::~LogManager()
{
    m_stream.flush();
    m_file.close();
}

QString LogManager::logRoot()
{
    return Platform::path(QStringLiteral("/var/Kestrum/log/"));
}

int LogManager::setLogfileDir(const QString &dir)
{
    m_dirArgument = dir;
    m_directory = logRoot() + dir;
    if (!m_directory.endsWith(QLatin1Char('/')))
        m_directory += QLatin1Char('/');
    return prepareDirectory();
}

int LogManager::prepareDirectory()
{
    QDir directory(m_directory);
    if (!directory.exists())
        directory.mkpath(QStringLiteral("."));
    m_indexPath = m_directory + QStringLiteral("nextFileNum.txt");
    if (!QFile::exists(m_indexPath)) {
        QFile index(m_indexPath);
        if (!index.open(QIODevice::ReadWrite | QIODevice::Text))
            return kNotOpen;
        index.write("1\n");
    }
    return kOk;
}

int LogManager::setLogfileBasename(const QString &name)
{
    m_baseName = name;
    return kOk;
}

int LogManager::takeNextNumber(int maxFiles)
{
    if (m_indexPath.isEmpty() || !QFile::exists(m_indexPath)) {
        m_directory = logRoot() + m_dirArgument;
        if (!m_directory.endsWith(QLatin1Char('/')))
            m_directory += QLatin1Char('/');
        prepareDirectory();
    }

    int number = 1;
    QFile index(m_indexPath);
    if (!index.open(QIODevice::ReadOnly | QIODevice::Text)) {
        qDebug() << "Error opening index file";
    } else {
        const QString line = QString::fromUtf8(index.readLine()).trimmed();
        if (line.isEmpty()) {
            qDebug() << "Error index file is empty";
        } else {
            // A non-number reads as 0, as the index has always been read.
            number = line.toInt();
            if (number > maxFiles)
                number = 1;
        }
        index.close();
    }

    QFile::remove(m_indexPath);
    QFile fresh(m_indexPath);
    if (fresh.open(QIODevice::WriteOnly | QIODevice::Text)) {
        fresh.write(QByteArray::number(number + 1) + '\n');
    } else {
        qDebug() << "Error writing index file" << m_indexPath;
    }
    return number;
}

int LogManager::newCyclicFile(int maxFiles)
{
    qDebug() << "Create new cyclic logfile in: " << m_directory;
    const int number = takeNextNumber(maxFiles);
    const QString name = m_directory + m_baseName + QLatin1Char('-')
                         + QStringLiteral("%1").arg(number, 3, 10, QLatin1Char('0')) + QStringLiteral(".txt");

    m_stream.flush();
    if (m_file.isOpen())
        m_file.close();
    m_file.setFileName(name);
    QFile::remove(name);
    if (m_file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::Text))
        m_stream.setDevice(&m_file);
    else
        qDebug() << "Cannot open logfile" << name << m_file.errorString();
    writeStamped(QStringLiteral("Logfile started"));
    qDebug() << "Logfile: " << name;
    return kOk;
}

int LogManager::write(const QString &text)
{
    if (!m_file.isOpen())
        return kNotOpen;
    m_stream << text;
    m_stream.flush();
    return kOk;
}

int LogManager::write(const char *text, qint64 length)
{
    if (!m_file.isOpen())
        return kNotOpen;
    m_stream.flush();
    m_file.write(text, length);
    m_file.flush();
    return kOk;
}

int LogManager::writeStamped(const QString &text)
{
    if (!m_file.isOpen())
        return kNotOpen;
    m_stream << Clock::now().toString(QStringLiteral("[yy-MM-dd-hh-mm-ss] ")) << text << '\n';
    m_stream.flush();
    return kOk;
}

void LogManager::listFiles(QStringList &names) const
{
    QDirIterator it(m_directory, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        const QString name = it.fileName();
        if (name.startsWith(m_baseName, Qt::CaseSensitive) && name != QLatin1String("nextFileNum.txt"))
            names.append(name);
    }
}

void LogManager::exportLogs(QString dir) const
{
    if (!dir.endsWith(QLatin1Char('/')))
        dir += QLatin1Char('/');
    qDebug() << "Exporting logfiles to: " << dir;
    // The log's whole path as the instrument names it is rebuilt below dir.
    QString logical = m_directory;
    const QString sandbox = Platform::sandboxRoot();
    if (!sandbox.isEmpty() && logical.startsWith(sandbox))
        logical = logical.mid(sandbox.size());
    const QString target = dir + logical.mid(1);
    QDir().mkpath(target);
    QStringList names;
    listFiles(names);
    for (const QString &name : names)
        QFile::copy(m_directory + name, target + name);
}
