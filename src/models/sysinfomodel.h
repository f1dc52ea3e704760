#pragma once

#include <QDateTime>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>

// The identity of the installation: versions, serial number, product. Each
// start on which something changed adds one row to `systemInfo`; the newest
// row is the current state, and its `dbVersion` is the schema of the file.
class SysInfoModel : public QObject
{
    Q_OBJECT
public:
    static const QString tableName;
    static const QString currentDatabaseVersion;
    // Column name -> declared type; the table is created in the map's order.
    static const QMap<QString, QString> tableFields;
    static QStringList noMigrateList;

    explicit SysInfoModel(QObject *parent = nullptr);

    // Schema version of the file ("UNKNOWN" when the table, the row or the
    // value is missing).
    // `readable` (when given) is false only when the file could not answer:
    // not a database, unreadable, or a systemInfo table that can't be read.
    // A missing table, row or value is readable and answers "UNKNOWN".
    static QString readDbVersion(const QString &suffix = QString(), bool *readable = nullptr);
    // Creates `systemInfo` (and its `_import` twin) when missing.
    static bool createTables(bool withStaging = true);
    static bool migrate(const QString &fromVersion);

    int id() const { return m_id; }
    QDateTime timestamp() const { return m_timestamp; }
    QString appVersion() const { return m_fields.value(QStringLiteral("appVersion")); }
    QString dbVersion() const { return m_fields.value(QStringLiteral("dbVersion")); }
    QString osVersion() const { return m_fields.value(QStringLiteral("osVersion")); }
    QString mfgSerialNum() const { return m_fields.value(QStringLiteral("mfgSerialNum")); }
    QString mspVersion() const { return m_fields.value(QStringLiteral("mspVersion")); }
    QString osTreeHash() const { return m_fields.value(QStringLiteral("osTreeHash")); }
    QString productType() const { return m_fields.value(QStringLiteral("productType")); }

    void setAppVersion(const QString &v) { setField(QStringLiteral("appVersion"), v); }
    void setDbVersion(const QString &v) { setField(QStringLiteral("dbVersion"), v); }
    void setOsVersion(const QString &v) { setField(QStringLiteral("osVersion"), v); }
    void setMfgSerialNum(const QString &v) { setField(QStringLiteral("mfgSerialNum"), v); }
    void setMspVersion(const QString &v) { setField(QStringLiteral("mspVersion"), v); }
    // An empty hash (no OS image information) is ignored.
    void setOsTreeHash(const QString &v);
    void setProductType(const QString &v) { setField(QStringLiteral("productType"), v); }

private:
    static QString createStatement(const QString &suffix);
    static bool rebuildFromOldShape();
    void loadNewest();
    void setField(const QString &column, const QString &value);
    bool save();

    int m_id = -1;
    QDateTime m_timestamp;
    QMap<QString, QString> m_fields; // the seven text columns
};
