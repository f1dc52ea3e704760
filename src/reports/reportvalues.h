#pragma once

#include <QDateTime>
#include <QString>

// How a report writes its numbers, dates and temperatures: the same texts the
// screens show (NumberFormat.js, DateFormat.js, Temperature.js), made once
// when the report is stored.
namespace ReportValues {
// `value` to `decimals` places.
QString fixed(double value, int decimals);
// `significant` figures, or `decimals` places below 10^(significant - decimals);
// whole numbers at or above 10^significant.
QString sigFigsDec(double value, int significant = 4, int decimals = 5);
// Decimals of a resolution setting: 1 for 0.1, 2 for 0.01, otherwise 3.
int resolutionDecimals(double resolution);

// By the instrument's date setting (0 "MM/dd/yyyy", 1 "dd/MM/yyyy",
// 2 "MMM-dd-yyyy", 3 "dd-MMM-yyyy") and time setting (0 "hh:mm AP", 1 "hh:mm").
QString date(const QDateTime &value, int dateFormat);
QString time(const QDateTime &value, int timeFormat);
QString dateTime(const QDateTime &value, int dateFormat, int timeFormat);
// A duration as "hh:mm:ss".
QString duration(int seconds);

// A Celsius temperature in the unit of the setting (0 Celsius, else Fahrenheit).
double temperature(double celsius, int temperatureFormat);
QString temperatureUnit(int temperatureFormat);
} // namespace ReportValues
