#include "models/mkaadditionmodel.h"

#include "models/dbutil.h"
#include "system/clock.h"

#include <QDebug>
#include <QSqlQuery>
#include <QSqlRecord>

const QString MKAadditionModel::tableName = QStringLiteral("mkaAdditionTable");

const ColumnTable &MKAadditionModel::columnTable()
{
    static const ColumnTable table({
        {"id", "integer primary key AUTOINCREMENT", "id", ColumnSpec::AsIs},
        {"additionNo", "integer", "additionNo", ColumnSpec::AsIs},
        {"cycleNo", "integer", "cycleno", ColumnSpec::AsIs},
        {"titrationID", "integer", "titrationID", ColumnSpec::AsIs},
        {"volume", "float", "volume", ColumnSpec::AsNumber},
        {"mVvalue", "float", "mVvalue", ColumnSpec::AsNumber},
        {"calConc", "float", "calConc", ColumnSpec::AsNumber},
        {"precision", "float", "precision", ColumnSpec::AsNumber},
        {"mcreatedAt", "DATETIME", "mcreatedAt", ColumnSpec::AsIs},
        {"mupdatedAt", "DATETIME", "mupdatedAt", ColumnSpec::AsIs},
        {"drift", "float", "drift", ColumnSpec::AsNumber},
        {"slope", "float", "slope", ColumnSpec::AsNumber},
        {"E0", "float", "e0", ColumnSpec::AsNumber},
    });
    return table;
}

MKAadditionModel::MKAadditionModel(QObject *parent)
    : QObject(parent)
{
}

bool MKAadditionModel::createTable()
{
    return DbUtil::execText(columnTable().createSql(tableName, true));
}

MKAadditionModel *MKAadditionModel::fromJson(const QJsonObject &o, QObject *parent)
{
    if (!o.contains(QStringLiteral("additionNo")) || !o.contains(QStringLiteral("cycleno"))) {
        qDebug() << "MKAadditionModel: an addition without its numbers is dropped";
        return nullptr;
    }
    auto *addition = new MKAadditionModel(parent);
    auto number = [&o](const char *key) { return static_cast<float>(o.value(QLatin1String(key)).toDouble()); };
    addition->setAdditionNo(o.value(QStringLiteral("additionNo")).toInt());
    addition->setCycleno(o.value(QStringLiteral("cycleno")).toInt());
    addition->setVolume(number("volume"));
    addition->setMVvalue(number("mVvalue"));
    addition->setCalConc(number("calConc"));
    addition->setPrecision(number("precision"));
    addition->setDrift(number("drift"));
    addition->setSlope(number("slope"));
    addition->setE0(number("E0"));
    return addition;
}

MKAadditionModel *MKAadditionModel::fromRecord(const QSqlRecord &record, QObject *parent)
{
    auto *addition = new MKAadditionModel(parent);
    columnTable().loadInto(addition, record);
    return addition;
}

bool MKAadditionModel::setMKAadditionValues(int id)
{
    const QDateTime now = Clock::now();
    setMcreatedAt(now);
    setMupdatedAt(now);
    setTitrationID(id);
    const int newId = columnTable().insertRowWithNewId(this, tableName);
    if (newId < 0)
        return false;
    setId(newId);
    return true;
}
