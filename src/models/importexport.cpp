#include "models/importexport.h"

#include "models/dbtransaction.h"
#include "models/dbutil.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

namespace {

// Role suffixes: a key of a document always names the live table.
const QStringList kRoleSuffixes{QStringLiteral("_import"), QStringLiteral("_temp"),
                                QStringLiteral("_migrate"), QStringLiteral("_backup")};

// A key of a document names an existing table. Staging into a suffixed twin
// takes live names only: a twin of a twin is never made.
bool isImportableTable(const QString &table, const QString &suffix)
{
    if (!DbUtil::isPlainIdentifier(table) || table.startsWith(QLatin1String("sqlite_"), Qt::CaseInsensitive))
        return false;
    if (!suffix.isEmpty()) {
        for (const QString &s : kRoleSuffixes) {
            if (table.endsWith(s))
                return false;
        }
    }
    return DbUtil::tableExists(table);
}

} // namespace

const QMap<int, QString> ImportExport::modeString{{Ignore, QStringLiteral("IGNORE")}, {Replace, QStringLiteral("REPLACE")}};
const QString ImportExport::blobKey = QStringLiteral("blob_base64");

ImportExport::ImportExport(QObject *parent)
    : QObject(parent)
{
}

ImportExport::ImportExport(const QString &fileName, QObject *parent)
    : QObject(parent)
    , m_fileName(fileName)
{
}

bool ImportExport::isValidSuffix(const QString &suffix)
{
    static const QRegularExpression re(QStringLiteral("^_[A-Za-z0-9]{1,31}$"));
    return re.match(suffix).hasMatch();
}

QJsonObject ImportExport::rowToJson(const QSqlRecord &record) const
{
    QJsonObject row;
    for (int i = 0; i < record.count(); ++i) {
        const QVariant v = record.value(i);
        if (v.isNull())
            row.insert(record.fieldName(i), QJsonValue(QJsonValue::Null));
        else if (v.type() == QVariant::ByteArray)
            row.insert(record.fieldName(i), QJsonObject{{blobKey, QString::fromLatin1(v.toByteArray().toBase64())}});
        else
            row.insert(record.fieldName(i), QJsonValue::fromVariant(v));
    }
    return row;
}

bool ImportExport::exportQueries(const QStringList &queries, const QStringList &tableNames, const QString &suffix)
{
    QJsonObject document;
    bool result = true;
    if (queries.size() != tableNames.size()) {
        qDebug() << "ImportExport: queries and table names differ in number";
        result = false;
    } else {
        for (int i = 0; i < queries.size(); ++i) {
            QSqlQuery query;
            query.setForwardOnly(true);
            if (!DbUtil::exec(query, queries.at(i))) {
                result = false;
                continue;
            }
            QJsonObject rows;
            while (query.next()) {
                const QSqlRecord record = query.record();
                rows.insert(record.value(m_primaryKey).toString(), rowToJson(record));
            }
            if (query.lastError().isValid()) {
                qDebug() << "ImportExport: reading" << tableNames.at(i) << "failed:" << query.lastError().text();
                result = false;
            }
            QString name = tableNames.at(i);
            if (!suffix.isEmpty())
                name.replace(suffix, QString());
            document.insert(name, rows);
        }
    }
    if (!result) {
        // Only a complete export replaces the file: a copy with tables
        // missing must never stand in for the last good one.
        qDebug() << "ImportExport: export incomplete;" << m_fileName << "left as it was";
        return false;
    }

    // Written whole to a temporary file and renamed over the old one, so a
    // reader (or a power loss) sees the old file or the new one, never a part.
    const QFileInfo info(m_fileName);
    QDir().mkpath(info.absolutePath());
    QSaveFile file(m_fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        qDebug() << "ImportExport: cannot write" << m_fileName << file.errorString();
        return false;
    }
    file.write(QJsonDocument(document).toJson());
    if (!file.commit()) {
        qDebug() << "ImportExport: cannot write" << m_fileName << file.errorString();
        return false;
    }
    return result;
}

bool ImportExport::exportTables(const QStringList &tableNames, const QString &suffix)
{
    QStringList queries;
    QStringList names;
    for (const QString &t : tableNames) {
        if (!DbUtil::isPlainIdentifier(t)) {
            qDebug() << "ImportExport: not a table name:" << t << "; nothing exported";
            return false;
        }
        queries << QStringLiteral("SELECT * FROM %1").arg(t);
        names << t;
    }
    return exportQueries(queries, names, suffix);
}

bool ImportExport::exportAll()
{
    QStringList names;
    QSqlQuery query;
    if (!DbUtil::exec(query, QStringLiteral("SELECT tbl_name FROM sqlite_master WHERE type='table'")))
        return false;
    while (query.next())
        names << query.value(0).toString();
    if (names.isEmpty()) {
        // A file with no tables (or one that could not be read) has nothing
        // to save, and its empty copy must not replace the last good one.
        qDebug() << "ImportExport: no tables to export;" << m_fileName << "left as it was";
        return false;
    }
    return exportTables(names, QString());
}

bool ImportExport::readDocument(QJsonObject *root, bool *isArray) const
{
    *isArray = false;
    QFile file(m_fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        qDebug() << "ImportExport: cannot open" << m_fileName;
        qDebug() << "Decided file was empty\n";
        return false;
    }
    if (file.size() > maxFileBytes) {
        qDebug() << "ImportExport: file too large, refused:" << m_fileName << file.size();
        return false;
    }
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(file.read(maxFileBytes), &error);
    if (error.error != QJsonParseError::NoError)
        qDebug() << error.errorString() << " while parsing JSON";
    if (doc.isObject()) {
        qDebug() << "Found Object\n";
        *root = doc.object();
        return true;
    }
    if (doc.isArray()) {
        qDebug() << "Found Array\n";
        *isArray = true;
        return true;
    }
    qDebug() << "Decided file was empty\n";
    return false;
}

bool ImportExport::importAll(int mode, const QString &suffix)
{
    if (!modeString.contains(mode) || (!suffix.isEmpty() && !isValidSuffix(suffix))) {
        qDebug() << "ImportExport: refused import mode" << mode << "suffix" << suffix;
        return false;
    }
    QJsonObject root;
    bool isArray = false;
    if (!readDocument(&root, &isArray))
        return false;
    if (isArray)
        return true;

    bool result = true;
    DbTransaction unit;
    for (auto table = root.constBegin(); table != root.constEnd(); ++table) {
        if (!table.value().isObject())
            continue;
        // SQLite's own tables travel in a whole-file copy but are never written.
        if (table.key().startsWith(QLatin1String("sqlite_")))
            continue;
        if (!isImportableTable(table.key(), suffix)) {
            qDebug() << "ImportExport: unknown table in" << m_fileName << "skipped:" << table.key().left(80);
            result = false;
            continue;
        }
        const QJsonObject rows = table.value().toObject();
        for (auto row = rows.constBegin(); row != rows.constEnd(); ++row) {
            if (row.value().isObject())
                result = insertRow(table.key(), row.value().toObject(), suffix, mode) && result;
        }
    }
    if (!unit.commit())
        return false;
    return result;
}

bool ImportExport::jsonToVariant(const QJsonValue &value, QVariant *out)
{
    switch (value.type()) {
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        *out = QVariant();
        return true;
    case QJsonValue::Bool:
        *out = value.toBool() ? 1 : 0;
        return true;
    case QJsonValue::Double:
        *out = value.toDouble();
        return true;
    case QJsonValue::String:
        if (value.toString().size() > maxTextChars)
            return false;
        *out = value.toString();
        return true;
    case QJsonValue::Object: {
        const QJsonObject o = value.toObject();
        if (o.size() != 1 || !o.value(blobKey).isString())
            return false;
        const QByteArray encoded = o.value(blobKey).toString().toLatin1();
        if (encoded.size() / 4 * 3 > maxBlobBytes)
            return false;
        *out = QByteArray::fromBase64(encoded);
        return true;
    }
    case QJsonValue::Array:
        return false;
    }
    return false;
}

bool ImportExport::insertRow(const QString &table, const QJsonObject &row, const QString &suffix, int mode)
{
    if (!suffix.isEmpty()
        && !DbUtil::execText(QStringLiteral("CREATE TABLE IF NOT EXISTS %1%2 AS SELECT * FROM %1 WHERE 0").arg(table, suffix)))
        return false;

    const QStringList columns = DbUtil::columnNames(table);
    if (columns.isEmpty())
        return false;
    QStringList placeholders;
    QVariantList values;
    for (const QString &c : columns) {
        QVariant v;
        if (!jsonToVariant(row.value(c), &v)) {
            qDebug() << "ImportExport: row of" << table << "dropped, bad value for" << c;
            return false;
        }
        placeholders << QLatin1Char(':') + c;
        values << v;
    }
    QSqlQuery query;
    const QString sql = QStringLiteral("INSERT OR %1 INTO %2%3 (%4) VALUES (%5)")
                            .arg(modeString.value(mode), table, suffix, columns.join(QLatin1Char(',')),
                                 placeholders.join(QLatin1Char(',')));
    if (!query.prepare(sql)) {
        qDebug() << sql << "Results: " << false << query.lastError().text();
        return false;
    }
    for (int i = 0; i < columns.size(); ++i)
        query.bindValue(placeholders.at(i), values.at(i));
    const bool ok = query.exec();
    if (!ok)
        qDebug() << sql << "Results: " << ok << query.lastError().text();
    return ok;
}

bool ImportExport::forEachSuffixedTable(const QString &suffix, const QString &statement)
{
    // An empty suffix would name every live table: refused.
    if (!isValidSuffix(suffix)) {
        qDebug() << "ImportExport: refused table suffix" << suffix;
        return false;
    }
    QStringList names;
    for (const QString &name : DbUtil::tableNames()) {
        if (name.endsWith(suffix) && name.size() > suffix.size() && !name.startsWith(QLatin1String("sqlite_")))
            names << name;
    }
    DbTransaction unit;
    bool ok = true;
    for (const QString &name : names)
        ok = DbUtil::execText(statement + name) && ok;
    return unit.commit() && ok;
}

bool ImportExport::clearTables(const QString &suffix)
{
    return forEachSuffixedTable(suffix, QStringLiteral("DELETE from "));
}

bool ImportExport::dropTables(const QString &suffix)
{
    return forEachSuffixedTable(suffix, QStringLiteral("DROP TABLE "));
}

bool ImportExport::removeFile()
{
    return QFile::remove(m_fileName);
}
