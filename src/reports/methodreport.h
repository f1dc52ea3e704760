#pragma once

#include <QHash>
#include <QJsonObject>
#include <QString>

#include <functional>

// A method's settings as a text report. The screens give the method's five
// parts as JSON objects and the rows to print: keys "1" to "103", each with
// `index` (the part the value comes from: 1 electrode, 2 titrant,
// 3 titration, 5 setup, 6 custom; 0 filled in by the report), `heading`,
// `value` (the key in that part), `digit` (decimals; 4 four significant
// figures, 7 the electrode's decimals; none for text) and `unitValue`.
// A row is printed only when the method uses what it shows.
namespace MethodReport {
struct Parts
{
    QJsonObject electrode;
    QJsonObject titrant;
    QJsonObject titration;
    QJsonObject setup;
    QJsonObject custom;
};
using SigFigs = std::function<QString(double value, int digits)>;

// Whether the row `key` (its heading `heading`) applies to the method.
bool applies(const QJsonObject &rows, int key, const Parts &parts);
// "      Method Report", then "heading : value unit" a line; `filled` holds
// the values of the report's own rows by heading.
QString text(const QJsonObject &rows, const Parts &parts, const QHash<QString, QString> &filled, const SigFigs &sigFigs);
} // namespace MethodReport
