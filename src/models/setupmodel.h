#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"
#include "system/beeper.h"

#include <QDateTime>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QVariant>

// The instrument's own settings: language, formats, name, brightness,
// burette, temperature input, the method in use and the notification
// switches. One object, one row (id 101) of `setupTable`, read by position.
class SetupModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int id READ id WRITE setId NOTIFY idChanged)
    KESTRUM_MODEL_PROPERTY(QString, language, setLanguage)
    KESTRUM_MODEL_PROPERTY(QDateTime, date, setDate)
    KESTRUM_MODEL_PROPERTY(int, dateFormat_Index, setDateFormat_Index)
    KESTRUM_MODEL_PROPERTY(QString, time, setTime)
    KESTRUM_MODEL_PROPERTY(int, timeFormat_Index, setTimeFormat_Index)
    KESTRUM_MODEL_PROPERTY(int, temperatureFormat_Index, setTemperatureFormat_Index)
    KESTRUM_MODEL_PROPERTY(QString, instrumentName, setInstrumentName)
    KESTRUM_MODEL_PROPERTY(int, displayBrightness, setDisplayBrightness)
    KESTRUM_MODEL_PROPERTY(int, tempDisplayBrightness, setTempDisplayBrightness)
    Q_PROPERTY(float temperatureInput READ temperatureInput WRITE setTemperatureInput NOTIFY valueChanged)
    Q_PROPERTY(float temperatureInputAtc READ temperatureInputAtc WRITE setTemperatureInputAtc NOTIFY valueChanged)
    Q_PROPERTY(float temperatureOffset READ getTemperatureOffset WRITE setTemperatureOffset NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(QString, screenSensitivity, setScreenSensitivity)
    KESTRUM_MODEL_PROPERTY(QString, screenSaverTime, setScreenSaverTime)
    Q_PROPERTY(int buretteSize READ buretteSize WRITE setBuretteSize NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(QString, installationDate, setInstallationDate)
    KESTRUM_MODEL_PROPERTY(int, currentMethodId, setCurrentMethodId)
    KESTRUM_MODEL_PROPERTY(bool, isDataUpdated, setIsDataUpdated)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    Q_PROPERTY(bool titrationCycleCompleteNotification READ titrationCycleCompleteNotification WRITE setTitrationCycleCompleteNotification NOTIFY valueChanged)
    Q_PROPERTY(bool maxTitrantVolumeNotification READ maxTitrantVolumeNotification WRITE setMaxTitrantVolumeNotification NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(bool, isDatalogFullNotifOn, setIsDatalogFullNotifOn)
    KESTRUM_MODEL_PROPERTY(bool, isMaintainanceDueNotifOn, setIsMaintainanceDueNotifOn)
    KESTRUM_MODEL_PROPERTY(bool, isPhCalibrationNotifOn, setIsPhCalibrationNotifOn)
    KESTRUM_MODEL_PROPERTY(bool, isRedoxCalibrationNotifOn, setIsRedoxCalibrationNotifOn)
    KESTRUM_MODEL_PROPERTY(bool, isIseCalibrationNotifOn, setIsIseCalibrationNotifOn)
    KESTRUM_MODEL_PROPERTY(int, phCalibrationDue, setPhCalibrationDue)
    KESTRUM_MODEL_PROPERTY(int, redoxCalibrationDue, setRedoxCalibrationDue)
    KESTRUM_MODEL_PROPERTY(int, iseCalibrationDue, setIseCalibrationDue)
    KESTRUM_MODEL_PROPERTY(int, maintainanceDue, setMaintainanceDue)
    KESTRUM_MODEL_PROPERTY(QDateTime, maintainanceScheduledAt, setMaintainanceScheduledAt)
    KESTRUM_MODEL_PROPERTY(bool, isSetupLoaded, setIsSetupLoaded)
    Q_PROPERTY(QString mfgSerialNo READ mfgSerialNo WRITE setMfgSerialNo NOTIFY mfgSerialNoChanged)
    Q_PROPERTY(QDateTime pHLastCalibrationTime READ pHLastCalibrationTime NOTIFY valueChanged)
    Q_PROPERTY(QDateTime redoxLastCalibrationTime READ redoxLastCalibrationTime NOTIFY valueChanged)
    Q_PROPERTY(QDateTime iseLastCalibrationTime READ iseLastCalibrationTime NOTIFY valueChanged)
    Q_PROPERTY(float pHLastCalibrationAvg READ pHLastCalibrationAvg NOTIFY valueChanged)
    Q_PROPERTY(float redoxLastCalibrationAvg READ redoxLastCalibrationAvg NOTIFY valueChanged)
    Q_PROPERTY(float iseLastCalibrationAvg READ iseLastCalibrationAvg NOTIFY valueChanged)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const ColumnTable &columnTable();
    static constexpr int rowId = 101;

    // Sets the defaults, then loads the row, or writes the defaults as the
    // row when there is none.
    explicit SetupModel(QObject *parent = nullptr);

    static bool migrate(const QString &fromVersion);
    // The argument of `date -s` for a date and a time, and for a date and a
    // time typed as text: "14 Mar 2026 21:05:00" in every language.
    static QString clockText(const QDateTime &newDate, const QDateTime &newTime);
    static QString clockText2(const QString &sysTime, const QDateTime &newTime);
    // Whether a kind calibrated at `last` is due at `now`: once in each full
    // period of `hours` after the calibration, in its first minute too.
    static bool isCalibrationDue(const QDateTime &last, const QDateTime &now, int hours);
    static constexpr int dueCheckIntervalMs = 60000;
    static constexpr int notificationToneHz = 440;
    static constexpr int notificationToneMs = 1000;
    // At start-up, with the maintenance switch on: on the day the schedule
    // names, the schedule moves on, a tone sounds and etype 9 leaves.
    void startMaintainanceNotification();
    Beeper &beeper() { return m_beeper; }
    // The accelerated host clock checks as often in the instrument's time.
    void setDueCheckInterval(int ms) { m_dueTimer.setInterval(ms); }

    int id() const { return m_id; }
    void setId(int id);
    float temperatureInput() const { return m_temperatureInput; }
    void setTemperatureInput(float value);
    float temperatureInputAtc() const { return m_temperatureInputAtc; }
    void setTemperatureInputAtc(float value);
    int buretteSize() const { return m_buretteSize; }
    void setBuretteSize(int value);
    bool titrationCycleCompleteNotification() const { return m_cycleCompleteNotification; }
    void setTitrationCycleCompleteNotification(bool on);
    bool maxTitrantVolumeNotification() const { return m_maxVolumeNotification; }
    void setMaxTitrantVolumeNotification(bool on);
    QString mfgSerialNo() const { return m_mfgSerialNo; }
    void setMfgSerialNo(const QString &serial);
    QDateTime pHLastCalibrationTime() const { return m_lastTime[0]; }
    QDateTime redoxLastCalibrationTime() const { return m_lastTime[1]; }
    QDateTime iseLastCalibrationTime() const { return m_lastTime[2]; }
    float pHLastCalibrationAvg() const { return m_lastAvg[0]; }
    float redoxLastCalibrationAvg() const { return m_lastAvg[1]; }
    float iseLastCalibrationAvg() const { return m_lastAvg[2]; }

public slots:
    bool setSetupValues();
    // The system clock: `date -s` with the C-locale text of clockText or
    // clockText2 as one argument, then the hardware clock. A failure is
    // logged and the clock stays as it was.
    void setupSysDateTime(const QDateTime &newDate, const QDateTime &newTime);
    void setupSysDateTime2(const QString &sysTime, const QDateTime &newTime);
    void saveHardwareClock();
    void resetSetupValues();
    float getTemperatureOffset() const { return m_temperatureOffset; }
    void setTemperatureOffset(float offset);
    void updatePhCalibrationDue(int hour);
    void updateredoxCalibrationDue(int hour);
    void updateiseCalibrationDue(int hour);
    void updateMaintainanceDue(int hour);
    void updatePhCalibrationNotifOn(bool value);
    void updateRedoxCalibrationNotifOn(bool value);
    void updateIseCalibrationNotifOn(bool value);
    void updateDatalogFullNotifOn(bool value);
    void updateMaintainanceNotifOn(bool value);
    void updatemaintainanceScheduledAt();
    void getLastCalibrationTime();
    // The due check of the three kinds: at most one notification, pH first.
    void calibrationDueNotificationSlot();
    // The tone of a notification: 440 Hz for one second.
    void startBeep();

signals:
    void idChanged();
    void valueChanged();
    void mfgSerialNoChanged();
    void notificationSignal(const QVariant &etype);

private:
    void applyDefaults();
    void load();
    bool insertRow();
    bool updateColumn(const char *column, const QVariant &value);
    static void runClockCommand(const QString &program, const QStringList &arguments);

    int m_id = rowId;
    float m_temperatureInput = 25.0f;
    float m_temperatureInputAtc = 0.0f;
    float m_temperatureOffset = 0.0f;
    int m_buretteSize = 20;
    bool m_cycleCompleteNotification = true;
    bool m_maxVolumeNotification = true;
    bool m_loading = false;
    QString m_mfgSerialNo;
    QTimer m_dueTimer;
    Beeper m_beeper;
    QDateTime m_lastTime[3];
    float m_lastAvg[3] = {0.0f, 0.0f, 0.0f};
};
