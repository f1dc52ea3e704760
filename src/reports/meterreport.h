#pragma once

#include "reports/reportrows.h"

#include <QDateTime>
#include <QList>
#include <QObject>

// The reports of the meter: a measurement, and a calibration (electrode or
// temperature probe "ATC") with its points. Each row carries its place on the
// PDF page; the sources are read by property name.
class MeterReport
{
public:
    struct Settings
    {
        QString buildNumber;
        int dateFormat = 0;
        int timeFormat = 0;
        int temperatureFormat = 0;
    };

    static QVector<MeterReportRow> measurement(const QObject *reading, const QDateTime &createdAt, const Settings &settings);
    static QVector<MeterReportRow> calibration(const QObject *calibration, const QList<const QObject *> &points,
                                               const Settings &settings);

private:
    static QVector<MeterReportRow> atcCalibration(const QObject *calibration, const QList<const QObject *> &points,
                                                  const Settings &settings);
};
