#include "datamanagerbase.h"
#include "meter/cmeasurementcontext.h"
#include "models/electrodesetupmodel.h"
#include "models/methodmodel.h"
#include "models/sysinfomodel.h"
#include "models/titrationcyclemodel.h"
#include "models/titrationmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationsetupmodel.h"
#include "reports/logmanager.h"
#include "testdatalayer.h"

#include <QDirIterator>
#include <QSignalSpy>
#include <QSqlQuery>
#include <gtest/gtest.h>

#include <memory>


namespace {

int saveMethod(const QString &name)
{
    MethodModel m;
    m.saveMethodValues(name, QString());
    EXPECT_EQ(m.success(), 1);
    return m.id();
}

class DataManager : public DataLayerTest
{
};

TEST_F(DataManager, MethodListsAndRunCyclesDoNotPileUpObjects)
{
    auto dm = start();
    saveMethod(QStringLiteral("Acidity"));
    saveMethod(QStringLiteral("Hardness"));
    const auto methodObjects = [&] {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return dm->findChildren<MethodModel *>().size();
    };
    dm->getMethodsFromDB();
    const int once = methodObjects();
    for (int i = 0; i < 100; ++i)
        dm->getMethodsFromDB();
    EXPECT_EQ(methodObjects(), once);
    EXPECT_EQ(dm->methodCount(), 2);
    ASSERT_EQ(dm->methods()->count(), 2);
    QStringList names;
    for (int i = 0; i < dm->methods()->count(); ++i)
        names << qobject_cast<MethodModel *>(dm->methods()->get(i))->methodName();
    names.sort();
    EXPECT_EQ(names, QStringList({QStringLiteral("Acidity"), QStringLiteral("Hardness")}));

    // The points of a cycle stay on it, whatever its number says.
    TitrationModel *run = dm->titrationModel();
    dm->titrationSetupModel()->setDisplayUnits(QStringLiteral("mV"));
    for (int cycleNo : {0, 1}) {
        run->setCycleno(cycleNo);
        dm->engine()->beginRunRecords();
        for (int p = 0; p < 5; ++p)
            dm->engine()->recordRunPoint(0.1f * p);
    }
    ASSERT_EQ(run->titrationCycles().size(), 2);
    for (TitrationCycleModel *cycle : run->titrationCycles())
        EXPECT_EQ(cycle->graphPoints().count(QLatin1Char('(')), 5) << "cycle " << cycle->cycleNo();
    // A cycle started again replaces its unfinished attempt.
    dm->engine()->beginRunRecords();
    dm->engine()->recordRunPoint(0.0f);
    ASSERT_EQ(run->titrationCycles().size(), 2);
    EXPECT_EQ(run->titrationCycles().last()->graphPoints().count(QLatin1Char('(')), 1);

    // A stored run's cycles stay shown, however often they are read, until
    // the screens go back to the run.
    const auto shown = [&] {
        QQmlListProperty<TitrationCycleModel> list = dm->titrationcycles();
        return list.count(&list);
    };
    for (int c = 1; c <= 3; ++c)
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral("INSERT INTO titrationCycleTable (titrationId, cycleNo, inclInAvg) VALUES (77, %1, 1)").arg(c)));
    dm->getTitrationCycleLogFromDb(77);
    EXPECT_EQ(shown(), 3);
    EXPECT_EQ(shown(), 3);
    dm->initializeTitration();
    EXPECT_EQ(shown(), 0);
}

TEST_F(DataManager, VersionsIdentityAndTheRunStateSignals)
{
    auto dm = start();
    EXPECT_EQ(dm->getMfgSerialNum(), QStringLiteral("Unknown"));
    EXPECT_EQ(dm->engine()->getMspVersion(), QStringLiteral("Unknown Version"));
    EXPECT_EQ(dm->titratorModelNo(), QStringLiteral("V400"));
    EXPECT_EQ(dm->titrationQMLVersion(), QStringLiteral("10.08.17.1"));
    EXPECT_EQ(dm->sysInfoModel()->appVersion(), DataManagerBase::buildString());

    QSignalSpy msp(dm.get(), &DataManagerBase::mspVersionUpdated);
    dm->engine()->setMspVersion(QStringLiteral("2.14"));
    EXPECT_EQ(msp.count(), 1);
    dm->getLoadedMspVersion();
    EXPECT_EQ(dm->mspQmlVersion(), QStringLiteral("2.14"));
    dm->setMfgSerialNum(QStringLiteral("VP-0042"));
    EXPECT_EQ(dm->getMfgSerialNum(), QStringLiteral("VP-0042"));

    dm->setBuildNumber(QStringLiteral("V3.2.0-14-gdeadbeef"));
    EXPECT_EQ(dm->appVersionNumber(), QStringLiteral("V3.2.0-14"));

    dm->updateProdType(QStringLiteral("Redox"));
    EXPECT_EQ(dm->titratorModelString(), QStringLiteral("Vantor Pro V420 Redox"));
    EXPECT_EQ(dm->titratorModelNo(), QStringLiteral("V420"));
    EXPECT_EQ(dm->sysInfoModel()->productType(), QStringLiteral("Redox"));
    dm->updateProdType(QStringLiteral("Gadget"));
    EXPECT_EQ(dm->titratorModelString(), QStringLiteral("Vantor Pro V440 All-in-One"));
    EXPECT_EQ(dm->titratorModelNo(), QStringLiteral("V440"));

    QSignalSpy fresh(dm.get(), &DataManagerBase::freshDataAvailable);
    dm->setMillivolts(-12.5f);
    EXPECT_EQ(fresh.count(), 1);
    EXPECT_FLOAT_EQ(dm->engine()->millivolts(), -12.5f);

    // The port's changes reach the screens through dm's signals.
    QSignalSpy changed(dm.get(), &DataManagerBase::valueChanged);
    QSignalSpy rinse(dm.get(), &DataManagerBase::rinseCyclesChanged);
    dm->setQmlStirSpeed(5);
    dm->setRinseCycles(1);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(rinse.count(), 1);
}

class Standardisation : public DataManager
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral(
            "CREATE TABLE titrationTable (id integer primary key autoincrement, methodId int, titrationType "
            "varchar(30), titrantConcentration float, mcreatedAt DATETIME, mupdatedAt DATETIME)")));
    }
    static void addRun(int methodId, const char *type, double conc, const char *created, const char *updated)
    {
        QSqlQuery q;
        q.prepare(QStringLiteral("INSERT INTO titrationTable (methodId, titrationType, titrantConcentration, "
                                 "mcreatedAt, mupdatedAt) VALUES (?, ?, ?, ?, ?)"));
        q.addBindValue(methodId);
        q.addBindValue(QString::fromLatin1(type));
        q.addBindValue(conc);
        q.addBindValue(QString::fromLatin1(created));
        q.addBindValue(QString::fromLatin1(updated));
        ASSERT_TRUE(q.exec());
    }
    static void setTitrantChanged(int methodId, const char *when)
    {
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral("UPDATE titrantSetupTable SET mupdatedAt='%1' WHERE methodId=%2")
                                           .arg(QString::fromLatin1(when))
                                           .arg(methodId)));
    }
};

TEST_F(Standardisation, NewestStandardisationCountsOnlyWhenNewerThanTheTitrant)
{
    const int id = saveMethod(QStringLiteral("Acid"));
    auto dm = start();
    EXPECT_FALSE(dm->getStandardizedFetch(id)) << "never standardised";

    addRun(id, "Titration", 0.5, "2024-03-01T10:00:00", "2024-03-05T10:00:00");
    setTitrantChanged(id, "2024-01-01T00:00:00");
    EXPECT_FALSE(dm->getStandardizedFetch(id)) << "a titration is no standardisation";

    addRun(id, "Standardization", 0.101, "2024-02-01T10:00:00", "2024-02-01T10:05:00");
    EXPECT_TRUE(dm->getStandardizedFetch(id));
    EXPECT_TRUE(dm->isStandardizedVal());

    setTitrantChanged(id, "2024-02-02T00:00:00");
    EXPECT_FALSE(dm->getStandardizedFetch(id)) << "the titrant changed after it";
    EXPECT_FALSE(dm->isStandardizedVal());

    // The newest by creation decides, even if an older one was touched later.
    addRun(id, "Standardization", 0.099, "2024-02-03T10:00:00", "2024-02-03T10:00:00");
    addRun(id, "Standardization", 0.098, "2024-01-15T10:00:00", "2024-06-01T10:00:00");
    EXPECT_TRUE(dm->getStandardizedFetch(id));
    setTitrantChanged(id, "2024-02-04T00:00:00");
    EXPECT_FALSE(dm->getStandardizedFetch(id));

    // A method without a titrant row counts as standardised once it has a run.
    addRun(4242, "Standardization", 0.1, "2024-02-01T10:00:00", "2024-02-01T10:00:00");
    EXPECT_TRUE(dm->getStandardizedFetch(4242));
}

TEST_F(Standardisation, CopyMakesTheNewMethodStandardised)
{
    const int original = saveMethod(QStringLiteral("Acid"));
    const int copy = saveMethod(QStringLiteral("Acid copy"));
    addRun(original, "Standardization", 0.097, "2024-02-01T10:00:00", "2024-02-01T10:00:00");
    addRun(original, "Standardization", 0.1013, "2024-02-03T10:00:00", "2024-02-03T10:00:00");
    setTitrantChanged(original, "2024-01-01T00:00:00");
    auto dm = start();
    EXPECT_FALSE(dm->getStandardizedFetch(copy));

    EXPECT_TRUE(dm->copyStandardization(original, copy));
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("titrationTable"), QStringLiteral("methodId=%1").arg(copy)), 1);
    QSqlQuery q;
    ASSERT_TRUE(q.exec(QStringLiteral("SELECT titrantConcentration, mcreatedAt, titrationType FROM titrationTable "
                                      "WHERE methodId=%1")
                           .arg(copy)));
    ASSERT_TRUE(q.next());
    EXPECT_NEAR(q.value(0).toDouble(), 0.1013, 1e-9) << "the newest one is copied";
    EXPECT_EQ(q.value(1).toString(), QStringLiteral("2024-02-03T10:00:00")) << "with its creation time";
    EXPECT_EQ(q.value(2).toString(), QStringLiteral("Standardization"));
    EXPECT_TRUE(dm->getStandardizedFetch(copy)) << "stamped now, after the new titrant row";
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("titrationTable"), QStringLiteral("methodId=%1").arg(original)), 2);

    EXPECT_FALSE(dm->copyStandardization(copy + 1000, original)) << "nothing to copy";
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("titrationTable")), 3);
}

} // namespace

namespace {

class LogDeletion : public DataManager
{
protected:
    void SetUp() override
    {
        for (const char *table : {"titrationLogTable", "standardisationLogTable"})
            make(table, "titration_Id int, electrodeSetup_Type varchar(30)");
        make("titrationTable", "titrationType varchar(30)");
        make("titrationCycleTable", "titrationId int, cycleNo int");
        make("reportSetupTable", "reportType varchar(30)");
        for (const char *table : {"mkaAdditionTable", "mkaTitrationCycleTable", "calibrationLogTable",
                                  "calibrationTable", "calibrationCycleTable", "measurementLogTable"})
            make(table, "note varchar(30)");

        // Runs 1 to 5: titration, direct blank, standardisation, an ion
        // titration by known addition, back blank.
        for (const char *type : {"Titration", "Direct Blank", "Standardization", "Titration", "Back Blank"})
            insert("titrationTable", "titrationType", QString::fromLatin1(type));
        const std::pair<int, int> cycles[] = {{1, 1}, {1, 2}, {2, 1}, {3, 1}, {3, 2}, {4, 1}, {5, 1}};
        for (const auto &c : cycles)
            ASSERT_TRUE(TestDatabase::exec(QStringLiteral("INSERT INTO titrationCycleTable (titrationId, cycleNo) "
                                                          "VALUES (%1, %2)").arg(c.first).arg(c.second)));
        for (const auto &row : {std::make_pair(1, "pH"), std::make_pair(2, "pH"), std::make_pair(4, "ISE-MKA"),
                                std::make_pair(5, "pH")})
            ASSERT_TRUE(TestDatabase::exec(QStringLiteral("INSERT INTO titrationLogTable (titration_Id, "
                                                          "electrodeSetup_Type) VALUES (%1, '%2')")
                                               .arg(row.first)
                                               .arg(QString::fromLatin1(row.second))));
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral(
            "INSERT INTO standardisationLogTable (titration_Id, electrodeSetup_Type) VALUES (3, 'pH')")));
        for (const char *type : {"Titration", "Titration", "Standardization", "Calibration", "calibration",
                                 "Measurement", "titration"})
            insert("reportSetupTable", "reportType", QString::fromLatin1(type));
        for (const char *table : {"mkaAdditionTable", "mkaTitrationCycleTable", "calibrationLogTable",
                                  "calibrationTable", "calibrationCycleTable", "measurementLogTable"}) {
            insert(table, "note", QStringLiteral("a"));
            insert(table, "note", QStringLiteral("b"));
        }
    }
    static void make(const char *table, const char *columns)
    {
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral("CREATE TABLE %1 (id integer primary key autoincrement, %2)")
                                           .arg(QString::fromLatin1(table), QString::fromLatin1(columns))));
    }
    static int insert(const char *table, const char *column, const QString &value)
    {
        QSqlQuery q;
        q.prepare(QStringLiteral("INSERT INTO %1 (%2) VALUES (?)").arg(QString::fromLatin1(table),
                                                                        QString::fromLatin1(column)));
        q.addBindValue(value);
        EXPECT_TRUE(q.exec());
        return q.lastInsertId().toInt();
    }
    static QStringList column(const QString &sql)
    {
        QStringList out;
        QSqlQuery q;
        q.exec(sql);
        while (q.next())
            out << q.value(0).toString();
        return out;
    }
};

TEST_F(LogDeletion, EachLogGoesWithItsRunsCyclesAndReportsAndNumberingRestarts)
{
    auto dm = start();
    EXPECT_TRUE(dm->checkDB());
    EXPECT_EQ(dm->logMethods(1), 4);
    EXPECT_EQ(dm->logMethods(2), 1);
    EXPECT_EQ(dm->logMethods(9), 1) << "another number gives the last count";
    EXPECT_EQ(dm->logMethods(3), 2);

    dm->deleteTitrationLog();
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("titrationLogTable")), 0);
    EXPECT_EQ(column(QStringLiteral("SELECT id FROM titrationTable")), QStringList{QStringLiteral("3")});
    EXPECT_EQ(column(QStringLiteral("SELECT titrationId FROM titrationCycleTable ORDER BY id")),
              (QStringList{QStringLiteral("3"), QStringLiteral("3"), QStringLiteral("4")}))
        << "the standardisation's cycles stay, and so do any under a known-addition run";
    EXPECT_EQ(column(QStringLiteral("SELECT reportType FROM reportSetupTable ORDER BY id")),
              (QStringList{QStringLiteral("Standardization"), QStringLiteral("Calibration"),
                           QStringLiteral("calibration"), QStringLiteral("Measurement"), QStringLiteral("titration")}));
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("mkaAdditionTable")), 0);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("mkaTitrationCycleTable")), 0);
    EXPECT_EQ(insert("titrationTable", "titrationType", QStringLiteral("Titration")), 4) << "after the highest left";
    EXPECT_EQ(insert("titrationLogTable", "electrodeSetup_Type", QStringLiteral("pH")), 1);
    EXPECT_EQ(insert("mkaAdditionTable", "note", QStringLiteral("c")), 1);
    EXPECT_EQ(dm->logMethods(1), 1);

    dm->deleteTitrantLog();
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("standardisationLogTable")), 0);
    EXPECT_EQ(column(QStringLiteral("SELECT titrationType FROM titrationTable")), QStringList{QStringLiteral("Titration")});
    EXPECT_EQ(column(QStringLiteral("SELECT titrationId FROM titrationCycleTable")), QStringList{QStringLiteral("4")});
    EXPECT_EQ(insert("standardisationLogTable", "electrodeSetup_Type", QStringLiteral("pH")), 1);
    EXPECT_EQ(column(QStringLiteral("SELECT reportType FROM reportSetupTable WHERE reportType LIKE 'Stand%'")),
              QStringList());
    EXPECT_EQ(insert("titrationCycleTable", "titrationId", QStringLiteral("4")), 7)
        << "cycle numbering carries on after the highest left";

    dm->deleteCalibrationLog();
    for (const char *t : {"calibrationLogTable", "calibrationTable", "calibrationCycleTable"})
        EXPECT_EQ(TestDatabase::rowCount(QString::fromLatin1(t)), 0) << t;
    EXPECT_EQ(insert("calibrationTable", "note", QStringLiteral("c")), 1) << "the next calibration is 1 again";
    EXPECT_EQ(column(QStringLiteral("SELECT reportType FROM reportSetupTable ORDER BY id")),
              (QStringList{QStringLiteral("Measurement"), QStringLiteral("titration")}));

    dm->deleteMeasurementLog();
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("measurementLogTable")), 0);
    EXPECT_EQ(column(QStringLiteral("SELECT reportType FROM reportSetupTable ORDER BY id")),
              QStringList{QStringLiteral("titration")});
    EXPECT_EQ(insert("measurementLogTable", "note", QStringLiteral("c")), 1);

    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("DELETE FROM titrationLogTable")));
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("DELETE FROM standardisationLogTable")));
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("DELETE FROM measurementLogTable")));
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("DELETE FROM calibrationLogTable")));
    EXPECT_FALSE(dm->checkDB());
}

TEST_F(DataManager, LogCountsAndDeletionsOnAFreshDatabaseDoNothing)
{
    auto dm = start();
    EXPECT_FALSE(dm->checkDB());
    EXPECT_EQ(dm->logMethods(1), 0);
    const QString before = db.dump();
    dm->deleteTitrationLog();
    dm->deleteTitrantLog();
    dm->deleteCalibrationLog();
    dm->deleteMeasurementLog();
    EXPECT_EQ(db.dump(), before);
}

} // namespace
