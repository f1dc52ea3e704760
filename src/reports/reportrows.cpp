#include "reports/reportrows.h"

#include <QJsonDocument>
#include <QJsonValue>

const QString ReportRows::notApplicable = QStringLiteral("NILL");

namespace {
const QString cyclesMark = QStringLiteral("+++++");
const QString cycleMark = QStringLiteral("=====");
const QString typeMark = QStringLiteral("*****");

QString compact(const QJsonArray &array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

// The end (one past the closing bracket) of the JSON array opening at
// `from`, or -1; brackets inside strings don't count.
int arrayEnd(const QString &text, int from)
{
    if (from >= text.size() || text.at(from) != QLatin1Char('['))
        return -1;
    int depth = 0;
    bool inString = false;
    bool escaped = false;
    for (int i = from; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (inString) {
            if (escaped)
                escaped = false;
            else if (c == QLatin1Char('\\'))
                escaped = true;
            else if (c == QLatin1Char('"'))
                inString = false;
        } else if (c == QLatin1Char('"')) {
            inString = true;
        } else if (c == QLatin1Char('[')) {
            ++depth;
        } else if (c == QLatin1Char(']') && --depth == 0) {
            return i + 1;
        }
    }
    return -1;
}

// Reads the array at `pos` and moves past it; false on anything else.
bool readArray(const QString &text, int &pos, QJsonArray &out)
{
    const int end = arrayEnd(text, pos);
    if (end < 0)
        return false;
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(text.mid(pos, end - pos).toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !doc.isArray())
        return false;
    out = doc.array();
    pos = end;
    return true;
}

bool skip(const QString &text, int &pos, const QString &mark)
{
    if (text.midRef(pos, mark.size()) != mark)
        return false;
    pos += mark.size();
    return true;
}
} // namespace

QString ReportRows::group(const QVector<RunReportRow> &rows)
{
    QJsonArray array;
    for (const RunReportRow &r : rows) {
        if (r.value.type() == QVariant::String && r.value.toString() == notApplicable)
            continue;
        array.append(QJsonArray{r.longHeading, r.shortHeading, QJsonValue::fromVariant(r.value), r.unit, r.longPosition,
                                r.shortPosition});
    }
    return compact(array);
}

QString ReportRows::runText(const QVector<RunReportRow> &method, const QVector<QVector<RunReportRow>> &cycles,
                            const QVector<RunReportRow> &summary, const QString &electrodeType)
{
    QStringList groups;
    for (const QVector<RunReportRow> &c : cycles)
        groups << group(c);
    return group(method) + cyclesMark + groups.join(cycleMark) + cyclesMark + group(summary) + typeMark + electrodeType;
}

QString ReportRows::meterText(const QVector<MeterReportRow> &rows)
{
    QJsonArray array;
    for (const MeterReportRow &r : rows)
        array.append(QJsonArray{r.heading, 72, r.y, r.value, 280, r.y, r.flag});
    return compact(array);
}

StoredRunReport ReportRows::parseRun(const QString &text)
{
    StoredRunReport report;
    int pos = 0;
    if (!readArray(text, pos, report.method) || !skip(text, pos, cyclesMark))
        return report;
    while (pos < text.size() && text.at(pos) == QLatin1Char('[')) {
        QJsonArray cycle;
        if (!readArray(text, pos, cycle))
            return report;
        report.cycles.append(cycle);
        if (!skip(text, pos, cycleMark))
            break;
    }
    if (!skip(text, pos, cyclesMark) || !readArray(text, pos, report.summary) || !skip(text, pos, typeMark))
        return report;
    report.electrodeType = text.mid(pos);
    report.ok = true;
    return report;
}

QJsonArray ReportRows::parseMeter(const QString &text)
{
    int pos = 0;
    QJsonArray rows;
    if (!readArray(text, pos, rows) || pos != text.size())
        return QJsonArray();
    return rows;
}
