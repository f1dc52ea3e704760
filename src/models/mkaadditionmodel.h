#pragma once

#include "models/columnspec.h"
#include "models/modelproperty.h"

#include <QDateTime>
#include <QJsonObject>
#include <QObject>
#include <QString>

class QSqlRecord;

// One addition of a multiple known addition cycle.
class MKAadditionModel : public QObject
{
    Q_OBJECT
    KESTRUM_MODEL_PROPERTY(int, id, setId)
    KESTRUM_MODEL_PROPERTY(int, additionNo, setAdditionNo)
    KESTRUM_MODEL_PROPERTY(int, cycleno, setCycleno)
    KESTRUM_MODEL_PROPERTY(int, titrationID, setTitrationID)
    KESTRUM_MODEL_PROPERTY(float, volume, setVolume)
    KESTRUM_MODEL_PROPERTY(float, mVvalue, setMVvalue)
    KESTRUM_MODEL_PROPERTY(float, calConc, setCalConc)
    KESTRUM_MODEL_PROPERTY(float, precision, setPrecision)
    KESTRUM_MODEL_PROPERTY(QDateTime, mcreatedAt, setMcreatedAt)
    KESTRUM_MODEL_PROPERTY(QDateTime, mupdatedAt, setMupdatedAt)
    KESTRUM_MODEL_PROPERTY(float, drift, setDrift)
    KESTRUM_MODEL_PROPERTY(float, slope, setSlope)
    KESTRUM_MODEL_PROPERTY(float, e0, setE0)

public:
    static const QString tableName;
    static const ColumnTable &columnTable();

    explicit MKAadditionModel(QObject *parent = nullptr);

    // Only made when missing; the table has no migration.
    static bool createTable();
    // nullptr for an element without addition and cycle numbers.
    static MKAadditionModel *fromJson(const QJsonObject &object, QObject *parent = nullptr);
    static MKAadditionModel *fromRecord(const QSqlRecord &record, QObject *parent = nullptr);

public slots:
    bool setMKAadditionValues(int id);

signals:
    void valueChanged();
};
