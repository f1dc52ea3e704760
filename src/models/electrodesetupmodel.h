#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include <QDateTime>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

// The electrode part of a method: one row of `electrodeSetupTable` per method.
// The electrode type decides which titrant and titration fields mean
// anything; `electrodeIndex` (pH 0, redox 1, ion of one charge 2, of two
// charges 3) is derived from the type and the ISE type.
class ElectrodeSetupModel : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int id READ id WRITE setId NOTIFY idChanged)
    KESTRUM_MODEL_PROPERTY(QString, electrodeName, setElectrodeName)
    Q_PROPERTY(QString electrodeType READ electrodeType WRITE setElectrodeType NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(QString, bufferGroup, setBufferGroup)
    KESTRUM_MODEL_PROPERTY(float, resolution, setResolution)
    Q_PROPERTY(QString iseType READ iseType WRITE setIseType NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(int, significantDigits, setSignificantDigits)
    KESTRUM_MODEL_PROPERTY(int, methodId, setMethodId)
    Q_PROPERTY(QString directMeasureUnit READ directMeasureUnit WRITE setDirectMeasureUnit NOTIFY valueChanged)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    KESTRUM_MODEL_PROPERTY(bool, isElectrodeChanged, setIsElectrodeChanged)

public:
    static const QString tableName;
    static QStringList noMigrateList;
    static const QMap<QString, int> electrodeIndexMap;
    static const QMap<QString, int> directMeasureUnitIndexMap;
    static const ColumnTable &columnTable();

    explicit ElectrodeSetupModel(QObject *parent = nullptr);

    static bool createTables();
    static bool migrate(const QString &fromVersion);
    // Index of a name in a map, looked up by the text before its first "(".
    static int lookupIndex(const QMap<QString, int> &map, const QString &name);

    int id() const { return m_id; }
    void setId(int id);
    QString electrodeType() const { return m_electrodeType; }
    void setElectrodeType(const QString &type);
    QString iseType() const { return m_iseType; }
    void setIseType(const QString &type);
    QString directMeasureUnit() const { return m_directMeasureUnit; }
    void setDirectMeasureUnit(const QString &unit);
    int electrodeIndex() const { return m_electrodeIndex; }
    int directMeasureUnitIndex() const { return m_directMeasureUnitIndex; }

    // Loads the row of a method from the table of that suffix; without a row
    // the defaults stand. False when no row was found.
    bool updateElectrodeSetupModel(int methodId, const QString &suffix = QString());
    // Writes every column into a staging table (`_import`, `_temp`).
    bool insertStaged(const QString &suffix);
    // Lifts `id` until no row of the live table has it.
    int makeIdUnique();

public slots:
    // Writes the row; false (logged) when it was not written.
    bool setElectrodeSetupValues();
    void resetElectrodeValues();

signals:
    void idChanged();
    void valueChanged();

private:
    int m_id = 0;
    QString m_electrodeType;
    QString m_iseType;
    QString m_directMeasureUnit;
    int m_electrodeIndex = 0;
    int m_directMeasureUnitIndex = 0;
};
