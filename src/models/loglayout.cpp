#include "models/loglayout.h"

#include "models/electrodesetupmodel.h"
#include "models/methodmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationsetupmodel.h"

#include <QDateTime>
#include <QSqlField>
#include <QSqlQuery>

#include <deque>

namespace {

const QString kText = QStringLiteral("varchar(30)");
const QString kInteger = QStringLiteral("integer");
const QString kDate = QStringLiteral("DATETIME");
const QString kFloat = QStringLiteral("float");
const QString kKey = QStringLiteral("integer primary key AUTOINCREMENT");

// Text that a ColumnSpec points to must outlive every layout; the layouts
// are built once and never change, so their names are kept here for good.
const char *keep(const QString &text)
{
    static std::deque<QByteArray> pool;
    pool.push_back(text.toLatin1());
    return pool.back().constData();
}

QVector<ColumnSpec> specsOf(const QVector<LogColumn> &columns)
{
    QVector<ColumnSpec> specs;
    specs.reserve(columns.size());
    for (const LogColumn &c : columns) {
        const char *name = keep(c.name);
        specs.append({name, keep(c.declared), name, ColumnSpec::AsIs});
    }
    return specs;
}

// Copied columns are text, except row ids (integer) and dates.
QString copiedType(const QString &name)
{
    if (name.endsWith(QLatin1String("_Id")) || name == QLatin1String("methodId")
        || name.endsWith(QLatin1String("_MethodId")) || name.endsWith(QLatin1String("_methodId")))
        return kInteger;
    if (name.endsWith(QLatin1String("_CreatedAt")) || name.endsWith(QLatin1String("_UpdatedAt")))
        return kDate;
    return kText;
}

void add(QVector<LogColumn> &out, LogBlock block, const QString &name, const QString &source)
{
    out.append({name, copiedType(name), block, source});
}

void addPairs(QVector<LogColumn> &out, LogBlock block, const QString &prefix, std::initializer_list<std::pair<const char *, const char *>> pairs)
{
    for (const auto &p : pairs)
        add(out, block, prefix + QLatin1String(p.first), QLatin1String(p.second));
}

// The columns of a source table from `first` to `last`, in table order.
QStringList sourceRange(const ColumnTable &table, const char *first, const char *last)
{
    const QStringList all = table.names();
    const int from = all.indexOf(QLatin1String(first));
    const int to = all.indexOf(QLatin1String(last));
    Q_ASSERT(from >= 0 && to >= from);
    return all.mid(from, to - from + 1);
}

void addMethodAndElectrode(QVector<LogColumn> &c)
{
    c.append({QStringLiteral("id"), kKey, LogBlock::Own, QStringLiteral("id")});
    add(c, LogBlock::Method, QStringLiteral("methodId"), QStringLiteral("id"));
    add(c, LogBlock::Method, QStringLiteral("methodName"), QStringLiteral("methodName"));
    add(c, LogBlock::Method, QStringLiteral("methodPassword"), QStringLiteral("methodPassword"));
    add(c, LogBlock::Method, QStringLiteral("method_CreatedAt"), QStringLiteral("mcreatedAt"));
    add(c, LogBlock::Method, QStringLiteral("method_UpdatedAt"), QStringLiteral("mupdatedAt"));
    addPairs(c, LogBlock::Electrode, QStringLiteral("electrodeSetup_"),
             {{"Id", "id"}, {"Name", "electrodeName"}, {"Type", "electrodeType"}, {"BufferGroup", "bufferGroup"},
              {"Resolution", "resolution"}, {"IseType", "iseType"}, {"SignificantDigits", "significantDigits"},
              {"DirectMeasureUnit", "directMeasureUnit"}, {"MethodId", "methodId"}, {"CreatedAt", "mcreatedAt"},
              {"UpdatedAt", "mupdatedAt"}});
}

void addCalibration(QVector<LogColumn> &c)
{
    addPairs(c, LogBlock::Calibration, QStringLiteral("calibration_"),
             {{"Id", "id"}, {"ElectrodeSetup_Id", "electrodeSetupId"}, {"ElectrodeName", "electrodeName"},
              {"ElectrodeType", "electrodeType"}, {"BufferGroup", "bufferGroup"}, {"Resolution", "resolution"},
              {"IseType", "iseType"}, {"SignificantDigits", "significantDigits"},
              {"DirectMeasureUnit", "directMeasureUnit"}, {"MethodId", "methodId"}, {"CalNo", "calNo"},
              {"SampleId", "sampleId"}, {"StirSpeed", "stirSpeed"}, {"CreatedAt", "mcreatedAt"},
              {"UpdatedAt", "mupdatedAt"}});
    addPairs(c, LogBlock::CalibrationPoint, QStringLiteral("calibrationCycle_"),
             {{"Id", "id"}, {"Timestamp", "timestamp"}, {"Voltage", "voltage"}, {"Volume", "volume"}, {"Slope", "slope"},
              {"CalValue", "calValue"}, {"CreatedAt", "mcreatedAt"}, {"UpdatedAt", "mupdatedAt"}});
}

void addTitrantAndRun(QVector<LogColumn> &c)
{
    const QString prefix = QStringLiteral("titrantSetup_");
    add(c, LogBlock::Titrant, prefix + QLatin1String("Id"), QStringLiteral("id"));
    for (const QString &s : sourceRange(TitrantSetupModel::columnTable(), "titrantName", "titrantMolecularWeight_Unit")) {
        QString name = prefix + s;
        if (s == QLatin1String("mcreatedAt"))
            name = prefix + QLatin1String("CreatedAt");
        else if (s == QLatin1String("mupdatedAt"))
            name = prefix + QLatin1String("UpdatedAt");
        add(c, LogBlock::Titrant, name, s);
    }
    addPairs(c, LogBlock::Run, QStringLiteral("titration_"),
             {{"Id", "id"}, {"titrationType", "titrationType"}, {"titrationDateTime", "titrationDateTime"},
              {"methodName", "methodName"}, {"titrantName", "titrantName"}, {"titrantPercentage", "titrantPercentage"},
              {"sensorName", "sensorName"}, {"cycleno", "cycleno"}, {"methodId", "methodId"},
              {"CreatedAt", "mcreatedAt"}, {"UpdatedAt", "mupdatedAt"}});
}

void addTitrationSetup(QVector<LogColumn> &c)
{
    const QString prefix = QStringLiteral("titrationSetup_");
    add(c, LogBlock::TitrationSetup, prefix + QLatin1String("Id"), QStringLiteral("id"));
    for (const QString &s : sourceRange(TitrationSetupModel::columnTable(), "titrantName", "mkaProcessControlPrecision"))
        add(c, LogBlock::TitrationSetup, prefix + s.left(1).toUpper() + s.mid(1), s);
    addPairs(c, LogBlock::TitrationSetup, prefix,
             {{"MethodId", "methodId"}, {"CreatedAt", "mcreatedAt"}, {"UpdatedAt", "mupdatedAt"},
              {"blankConcentration", "blankConcentration"}});
}

void addOwn(QVector<LogColumn> &c, const char *name, const QString &declared)
{
    c.append({QLatin1String(name), declared, LogBlock::Own, QLatin1String(name)});
}

void addMeasured(QVector<LogColumn> &c, const char *name, const QString &declared)
{
    c.append({QLatin1String(name), declared, LogBlock::Measurement, QLatin1String(name)});
}

} // namespace

LogLayout::LogLayout(QVector<LogColumn> columns)
    : m_columns(std::move(columns))
    , m_table(specsOf(m_columns))
{
}

QStringList LogLayout::names() const
{
    return m_table.names();
}

QString LogLayout::createSql(const QString &table) const
{
    return m_table.createSql(table, true);
}

QString LogLayout::insertSql(const QString &table) const
{
    return m_table.insertSql(table, names().mid(1));
}

QVariant LogLayout::toDeclared(const QVariant &value, const QString &declared)
{
    if (!value.isValid() || value.isNull())
        return QVariant(QVariant::String);
    const int type = value.userType();
    if (declared == kText) {
        switch (type) {
        case QMetaType::Float:
        case QMetaType::Double:
            return QString::number(value.toFloat(), 'g', 6);
        case QMetaType::Bool:
            return QString::number(value.toBool() ? 1 : 0);
        case QMetaType::Int:
        case QMetaType::LongLong:
        case QMetaType::UInt:
        case QMetaType::ULongLong:
            return QString::number(value.toLongLong());
        default:
            return value.toString();
        }
    }
    if (declared == kInteger) {
        bool ok = false;
        const qlonglong n = value.toLongLong(&ok);
        return ok ? QVariant(n) : QVariant(QVariant::LongLong);
    }
    if (declared == kFloat) {
        bool ok = false;
        const double d = value.toDouble(&ok);
        return ok ? QVariant(d) : QVariant(QVariant::Double);
    }
    if (declared == kDate && type != QMetaType::QDateTime) {
        const QDateTime t = value.toDateTime();
        return t.isValid() ? QVariant(t) : QVariant(QVariant::DateTime);
    }
    return value;
}

void LogLayout::bind(QSqlQuery &query, const LogSourceRows &rows) const
{
    for (int i = 1; i < m_columns.size(); ++i) {
        const LogColumn &c = m_columns[i];
        const QVariant v = rows.value(c.block).value(c.source);
        query.bindValue(QLatin1Char(':') + c.name, toDeclared(v, c.declared));
    }
}

QSqlRecord LogLayout::blockRecord(const QSqlRecord &logRow, LogBlock block) const
{
    QSqlRecord record;
    for (const LogColumn &c : m_columns) {
        const int field = logRow.indexOf(c.name);
        if (c.block != block || field < 0)
            continue;
        record.append(QSqlField(c.source, logRow.field(field).type()));
        record.setValue(record.count() - 1, logRow.value(field));
    }
    return record;
}

QVariantMap LogLayout::rowOf(const QObject *model, const ColumnTable &table)
{
    QVariantMap row;
    for (const ColumnSpec &spec : table.columns())
        row.insert(QString::fromLatin1(spec.column), table.boundValue(model, spec));
    return row;
}

const LogLayout &LogLayout::titration()
{
    static const LogLayout layout([] {
        QVector<LogColumn> c;
        addMethodAndElectrode(c);
        addCalibration(c);
        addTitrantAndRun(c);
        addTitrationSetup(c);
        addOwn(c, "AvgConc", kText);
        addOwn(c, "RSD", kText);
        addOwn(c, "logCreatedAt", kDate);
        addOwn(c, "logUpdatedAt", kDate);
        addOwn(c, "standardizationId", kInteger);
        return c;
    }());
    return layout;
}

const LogLayout &LogLayout::standardisation()
{
    static const LogLayout layout([] {
        QVector<LogColumn> c;
        addMethodAndElectrode(c);
        addCalibration(c);
        addTitrantAndRun(c);
        addOwn(c, "AvgConc", kText);
        addOwn(c, "RSD", kText);
        addOwn(c, "logCreatedAt", kDate);
        addOwn(c, "logUpdatedAt", kDate);
        return c;
    }());
    return layout;
}

const LogLayout &LogLayout::calibration()
{
    static const LogLayout layout([] {
        QVector<LogColumn> c;
        addMethodAndElectrode(c);
        addCalibration(c);
        addOwn(c, "logCreatedAt", kDate);
        addOwn(c, "logUpdatedAt", kDate);
        return c;
    }());
    return layout;
}

const LogLayout &LogLayout::measurement()
{
    static const LogLayout layout([] {
        QVector<LogColumn> c;
        c.append({QStringLiteral("id"), kKey, LogBlock::Own, QStringLiteral("id")});
        addMeasured(c, "readMode", kText);
        addMeasured(c, "iseType", kText);
        addMeasured(c, "stirSpeed", kText);
        addMeasured(c, "sampleId", kText);
        addMeasured(c, "sampleIdValue", kText);
        addMeasured(c, "significantDigit", kInteger);
        addMeasured(c, "directMeasurementUnit", kText);
        addMeasured(c, "scaledValue", kFloat);
        addMeasured(c, "mv", kFloat);
        addMeasured(c, "sensorName", kText);
        addMeasured(c, "temperature", kText);
        addOwn(c, "isAtc", kInteger);
        addOwn(c, "isAlarmActive", kInteger);
        addOwn(c, "stabilizeState", kText);
        addOwn(c, "logCreatedAt", kDate);
        addOwn(c, "logUpdatedAt", kDate);
        addMeasured(c, "resolution", kFloat);
        addMeasured(c, "calLogId", kInteger);
        addMeasured(c, "calAvg", kFloat);
        addMeasured(c, "calDateTime", kDate);
        return c;
    }());
    return layout;
}
