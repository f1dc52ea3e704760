#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>

class SetupModel;

// What home says about the electrode's calibration: the time and the average
// slope of the newest pH calibration, shown only while the electrode in use
// is a pH electrode and a calibration exists.
class HomeCalibrationState : public QObject
{
    Q_OBJECT
public:
    explicit HomeCalibrationState(QObject *parent = nullptr)
        : QObject(parent)
    {
    }

    QDateTime time() const { return m_time; }
    QString averageText() const { return m_average; }
    bool visible() const { return m_visible; }

    // Reads the newest calibration times of `setup` again for an electrode
    // of `electrodeType` ("pH", "Redox", "ISE-...").
    void refresh(SetupModel *setup, const QString &electrodeType);

signals:
    void changed();

private:
    QDateTime m_time;
    QString m_average;
    bool m_visible = false;
};
