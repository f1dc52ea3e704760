#include "reports/methodreport.h"

#include <QSet>

namespace {
QString heading(const QJsonObject &rows, int key)
{
    return rows.value(QString::number(key)).toObject().value(QLatin1String("heading")).toString();
}

// The key of the first row with this heading, 0 when none.
int keyOf(const QJsonObject &rows, const QString &wanted)
{
    for (int key = 1; key < 104; ++key) {
        if (heading(rows, key) == wanted)
            return key;
    }
    return 0;
}

bool inBlock(const QJsonObject &rows, int key, const char *first, const char *last)
{
    const int from = keyOf(rows, QLatin1String(first));
    const int to = keyOf(rows, QLatin1String(last));
    return from > 0 && to >= from && key >= from && key <= to;
}

int electrodeDecimals(const QJsonObject &electrode)
{
    const double resolution = electrode.value(QLatin1String("resolution")).toVariant().toDouble();
    if (qFuzzyCompare(resolution, 0.1))
        return 1;
    if (qFuzzyCompare(resolution, 0.01))
        return 2;
    return 3;
}
} // namespace

bool MethodReport::applies(const QJsonObject &rows, int key, const Parts &parts)
{
    static const QSet<QString> phOnly{"Calibrate Log #", "Calibrate Date", "Calibrate Time", "Slope Value", "Offset Value",
                                      "Buffer Group"};
    static const QSet<QString> iseOnly{"ISE Type", "Measure Units"};
    static const QSet<QString> manualOnly{"Titrant Conc.", "Titrant In Date", "Titrant In Time"};
    static const QSet<QString> blankOnly{"Blank Value", "Blank In Date", "Blank In Time"};
    static const QSet<QString> backOnly{"Rgnt Rxn Ratio", "Ttrnt Rxn Ratio", "Reagent Amount", "Reagent Amount Value",
                                        "Reagent MW", "Reagent Purity", "Reagent Weight", "Reagent Volume", "Reagent Conc."};
    const QString h = heading(rows, key);
    const QString electrodeType = parts.electrode.value(QLatin1String("electrodeType")).toString();
    const bool mka = electrodeType == QLatin1String("ISE-MKA");
    const bool standardised = parts.titrant.value(QLatin1String("concInputMode")).toString() == QLatin1String("Standardization");
    if (phOnly.contains(h))
        return electrodeType == QLatin1String("pH");
    if (iseOnly.contains(h))
        return electrodeType.startsWith(QLatin1String("ISE"));
    if (manualOnly.contains(h))
        return !standardised;
    if (h == QLatin1String("Conc. Value") || h == QLatin1String("Titer Ratio") || h.startsWith(QLatin1String("Standardize"))
        || inBlock(rows, key, "Stdz Technique", "Stdz Stir Speed"))
        return standardised;
    if (blankOnly.contains(h)) {
        const QString blank = parts.titration.value(QLatin1String("blankRequired")).toString();
        return !blank.isEmpty() && blank != QLatin1String("No");
    }
    if (backOnly.contains(h))
        return parts.titration.value(QLatin1String("titrationType")).toString() == QLatin1String("Back Titration");
    // Known addition has its own settings in place of the dosing control.
    if (inBlock(rows, key, "Constant Increment", "Precision Level"))
        return mka;
    if (inBlock(rows, key, "Process Control", "Titrate Prestir") || inBlock(rows, key, "Titration EP#", "Titrate Display"))
        return !mka;
    return true;
}

QString MethodReport::text(const QJsonObject &rows, const Parts &parts, const QHash<QString, QString> &filled,
                           const SigFigs &sigFigs)
{
    const QJsonObject sources[7] = {QJsonObject(), parts.electrode, parts.titrant, parts.titration,
                                    QJsonObject(), parts.setup, parts.custom};
    QString text = QStringLiteral("      Method Report\n");
    for (int key = 1; key < 104; ++key) {
        const QJsonObject row = rows.value(QString::number(key)).toObject();
        const QString h = row.value(QLatin1String("heading")).toString();
        if (h.isEmpty() || !applies(rows, key, parts))
            continue;
        const int index = row.value(QLatin1String("index")).toInt();
        const QJsonObject source = index > 0 && index < 7 ? sources[index] : QJsonObject();
        QString value = filled.value(h);
        if (!filled.contains(h)) {
            const QJsonValue v = source.value(row.value(QLatin1String("value")).toString());
            const int digit = row.value(QLatin1String("digit")).toInt(-1);
            if (v.isDouble() && (index == 1 || digit < 0))
                value = QString::number(v.toDouble(), 'g', 6);
            else if (v.isDouble() && digit == 4)
                value = sigFigs(v.toDouble(), 4);
            else if (v.isDouble())
                value = QString::number(v.toDouble(), 'f', digit == 7 ? electrodeDecimals(parts.electrode) : digit);
            else
                value = v.toVariant().toString();
            const QString unit = source.value(row.value(QLatin1String("unitValue")).toString()).toVariant().toString();
            if (!value.isEmpty() && !unit.isEmpty())
                value += QLatin1Char(' ') + unit;
        }
        if (value.isEmpty())
            continue;
        text += h.leftJustified(15, QLatin1Char(' ')) + QStringLiteral(" : ") + value + QLatin1Char('\n');
    }
    return text;
}
