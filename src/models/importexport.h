#pragma once

#include <QJsonObject>
#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

// Writes the result of SQL queries to one JSON file and reads such a file
// back into tables. The document is {table: {id: {column: value}}}; it knows
// nothing of what a table means.
//
// Everything read from a file is untrusted: a table or column key is used
// only when it is a plain identifier naming a table or column that exists,
// and values reach the database only as bound values. Files, values and
// documents are bounded in size.
class ImportExport : public QObject
{
    Q_OBJECT
public:
    enum Mode { Ignore = 0, Replace = 1 };
    static const QMap<int, QString> modeString;

    static constexpr qint64 maxFileBytes = 64 * 1024 * 1024;
    static constexpr int maxTextChars = 1024 * 1024;
    static constexpr int maxBlobBytes = 16 * 1024 * 1024;
    // The key of the object that carries a BLOB value (base64) in a document.
    static const QString blobKey;

    explicit ImportExport(QObject *parent = nullptr);
    explicit ImportExport(const QString &fileName, QObject *parent = nullptr);

    void setFileName(const QString &fileName) { m_fileName = fileName; }
    QString fileName() const { return m_fileName; }
    QString primaryKey() const { return m_primaryKey; }

    bool exportQueries(const QStringList &queries, const QStringList &tableNames, const QString &suffix);
    bool exportTables(const QStringList &tableNames, const QString &suffix);
    bool exportAll();
    bool importAll(int mode, const QString &suffix);
    bool clearTables(const QString &suffix);
    bool dropTables(const QString &suffix);
    bool removeFile();

    // A suffix that may name a role table: "_" followed by letters or digits.
    static bool isValidSuffix(const QString &suffix);

private:
    QJsonObject rowToJson(const class QSqlRecord &record) const;
    bool readDocument(QJsonObject *root, bool *isArray) const;
    bool insertRow(const QString &table, const QJsonObject &row, const QString &suffix, int mode);
    static bool jsonToVariant(const QJsonValue &value, QVariant *out);
    bool forEachSuffixedTable(const QString &suffix, const QString &statement);

    QString m_primaryKey = QStringLiteral("id");
    QString m_fileName;
};
