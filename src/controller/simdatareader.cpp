#include "controller/simdatareader.h"

#include "system/platform.h"

#include <QDebug>

#include <cmath>

SimDataReader::SimDataReader()
    : m_baseName(QStringLiteral("data"))
{
}

QString SimDataReader::fileName() const
{
    // The sandbox may be set after construction (tests), so the folder is
    // looked up each time.
    return Platform::path(QStringLiteral("/var/Kestrum/log/simdata/")) + m_baseName + QLatin1Char('-')
           + QString::number(m_index) + QStringLiteral(".txt");
}

bool SimDataReader::exists()
{
    if (QFile::exists(fileName()))
        return true;
    m_index = 1;
    return QFile::exists(fileName());
}

bool SimDataReader::next(double &data, double &volume)
{
    if (!m_file.isOpen()) {
        m_file.setFileName(fileName());
        if (!m_file.open(QIODevice::ReadOnly | QIODevice::Text))
            qDebug() << "Simulation file cannot be read:" << m_file.fileName();
        m_stream.setDevice(&m_file);
    }
    while (m_file.isOpen() && !m_stream.atEnd()) {
        const QString line = m_stream.readLine(MaxLineChars + 1);
        if (line.size() > MaxLineChars) {
            qDebug() << "Simulation line too long, dropped";
            QString rest;
            do
                rest = m_stream.readLine(MaxLineChars + 1);
            while (rest.size() > MaxLineChars);
            continue;
        }
        double v = 0.0, d = 0.0;
        if (!parseLine(line, v, d))
            continue;
        m_lastData = d;
        data = d;
        volume = v;
        return true;
    }
    data = m_lastData;
    volume = EndOfFileVolume;
    return false;
}

bool SimDataReader::parseLine(const QString &line, double &volume, double &data)
{
    const QStringList fields = line.split(QLatin1Char(','));
    bool volumeOk = false;
    const double v = fields.value(0).trimmed().toDouble(&volumeOk);
    if (!volumeOk || !std::isfinite(v) || v < 0.0 || v > EndOfFileVolume)
        return false;
    bool dataOk = false;
    const double d = fields.value(1).trimmed().toDouble(&dataOk);
    if (!dataOk || !std::isfinite(d) || std::abs(d) > MaxReading) {
        qDebug() << "Simulation line without a reading dropped:" << line.left(80);
        return false;
    }
    volume = v;
    data = d;
    return true;
}

void SimDataReader::closeAndAdvance()
{
    m_stream.setDevice(nullptr);
    m_file.close();
    ++m_index;
}
