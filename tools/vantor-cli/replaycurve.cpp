#include "replaycurve.h"

#include "beaker.h"
#include "controller/simdatareader.h"

#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace {

// The fields of one line, split at its separator; a decimal comma becomes
// a point where the separator is something else.
QStringList fieldsOf(const QString &line)
{
    QStringList fields;
    if (line.contains(QLatin1Char(';'))) {
        fields = line.split(QLatin1Char(';'));
    } else if (line.contains(QLatin1Char('\t'))) {
        fields = line.split(QLatin1Char('\t'));
    } else {
        // Blanks separate unless a field ends with a comma ("0.15, 7.25"),
        // there is only one field ("150,7.25") or a comma stands next to
        // something other than a digit ("Volume (uL),E (mV)"): then commas
        // do. A comma between digits of a blank-separated line ("0,15 7,25")
        // is a decimal mark.
        fields = line.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
        static const QRegularExpression listComma(QStringLiteral("(?<![0-9]),|,(?![0-9])"));
        bool commas = fields.size() < 2;
        for (const QString &f : fields)
            commas = commas || f.endsWith(QLatin1Char(',')) || f.contains(listComma);
        if (commas)
            return line.split(QLatin1Char(','));
    }
    for (QString &f : fields)
        f.replace(QLatin1Char(','), QLatin1Char('.'));
    return fields;
}

// Whether a header field names a unit: the letters stand alone ("Volume
// (mL)", "pH", "E_mV"), not inside a word.
bool names(const QString &field, const char *unit)
{
    return field.contains(QRegularExpression(QStringLiteral("(?<![a-z])%1(?![a-z])").arg(QLatin1String(unit))));
}

bool numberIn(const QStringList &fields, int column, double &value)
{
    bool ok = false;
    value = fields.value(column).trimmed().toDouble(&ok);
    return ok && std::isfinite(value);
}

} // namespace

bool ReplayCurve::readHeader(const QStringList &fields)
{
    bool named = false;
    for (int k = 0; k < fields.size(); ++k) {
        const QString f = fields[k].trimmed().toLower();
        const bool microlitres = f.contains(QStringLiteral("µl")) || f.contains(QStringLiteral("μl")) || names(f, "ul");
        const bool millilitres = names(f, "ml");
        if (microlitres || millilitres) {
            m_volumeColumn = k;
            m_volumeMl = millilitres && !microlitres;
            named = true;
        } else if (names(f, "ph")) {
            m_signalColumn = k;
            m_ph = true;
            named = true;
        } else if (names(f, "mv")) {
            m_signalColumn = k;
            m_ph = false;
            named = true;
        }
    }
    return named;
}

bool ReplayCurve::parse(const QByteArray &text, double temperatureC, QString *error)
{
    m_points.clear();
    const double nernst = Beaker::nernstSlope(temperatureC);
    bool headerRead = false;
    for (const QByteArray &raw : text.split('\n')) {
        if (raw.size() > MaxLineChars)
            continue;
        QString line = QString::fromUtf8(raw).trimmed();
        if (line.contains(QChar::ReplacementCharacter))
            line = QString::fromLatin1(raw).trimmed(); // "µL" written in Latin-1
        if (line.startsWith(QChar(0xFEFF)))
            line.remove(0, 1);
        if (line.isEmpty())
            continue;
        const QStringList fields = fieldsOf(line);
        double volume = 0.0, signal = 0.0;
        if (!numberIn(fields, m_volumeColumn, volume) || !numberIn(fields, m_signalColumn, signal)) {
            // A header names the units, once, before the data.
            if (m_points.empty() && !headerRead)
                headerRead = readHeader(fields);
            continue;
        }
        if (m_volumeMl)
            volume *= 1000.0;
        if (m_ph) {
            if (signal < -2.0 || signal > 16.0)
                continue;
            signal = (7.0 - signal) * nernst;
        }
        if (volume < 0.0 || volume > SimDataReader::EndOfFileVolume || std::abs(signal) > SimDataReader::MaxReading)
            continue;
        if (int(m_points.size()) >= MaxPoints) {
            *error = QStringLiteral("more than %1 points").arg(MaxPoints);
            return false;
        }
        m_points.push_back({volume, signal});
    }
    return true;
}

QByteArray ReplayCurve::simulationText() const
{
    QByteArray out;
    for (const Point &p : m_points)
        out += QByteArray::number(p.volumeUl, 'g', 12) + ", " + QByteArray::number(p.mv, 'g', 12) + "\n";
    return out;
}
