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
#include "testdatabase.h"

#include <QDirIterator>
#include <QSignalSpy>
#include <QSqlQuery>
#include <gtest/gtest.h>

#include <memory>

namespace {

// A method whose titration and titrant parts differ in every engine
// parameter, so that an answer from the wrong part shows.
int saveDistinctMethod(const QString &name, const QString &titrationType = QStringLiteral("Direct Titration"))
{
    MethodModel m;
    ElectrodeSetupModel *e = m.electrodeSetupModel();
    e->setElectrodeType(QStringLiteral("pH"));
    e->setResolution(0.01f);
    TitrationSetupModel *s = m.titrationSetupModel();
    s->setTitrationTechnique(QStringLiteral("Preset End Pt."));
    s->setNoOfEndPoints(3);
    s->setEndPointValues(4.5f);
    s->setEndPointValues_Second(8.2f);
    s->setEndPointValues_Third(9.1f);
    s->setTitrationType(titrationType);
    s->setTitrationProcessControl(QStringLiteral("Quick"));
    s->setMkaProcessControl(QStringLiteral("User Defined"));
    s->setDeltaE(11.f);
    s->setDeltaVmin(0.02f);
    s->setDeltaVmax(0.3f);
    s->setStablityCriteria(4.f);
    s->setTMin(3);
    s->setTMax(30);
    s->setThreshold(150);
    s->setPreDoseTitrantVolume(1.5f);
    s->setMaxTotalTitrantVolume(12.f);
    s->setPreStirDuration(20.f);
    s->setStirSpeed(QStringLiteral("Fast"));
    s->setDisplayUnits(QStringLiteral("pH"));
    TitrantSetupModel *t = m.titrantSetupModel();
    t->setStandTechnique(QStringLiteral("Equivalence Pt."));
    t->setNoOfEndPoints(2);
    t->setEndPointsValues(7.0f);
    t->setEndPointsValueSecond(5.5f);
    t->setStandProcessControl(QStringLiteral("User Defined"));
    t->setDeltaE(22.f);
    t->setDeltaVmin(0.05f);
    t->setDeltaVmax(0.4f);
    t->setStablityCriteria(6.f);
    t->setTMin(5);
    t->setTMax(50);
    t->setThreshold(250);
    t->setPreDoseTitrantVolume(0.7f);
    t->setMaxTotalVolume(9.f);
    t->setPreStirDuration(15.f);
    t->setStirSpeed(QStringLiteral("Very Slow"));
    m.saveMethodValues(name, QString());
    EXPECT_EQ(m.success(), 1);
    return m.id();
}

struct Expected {
    int endpoints;
    float ep1, ep2, ep3;
    int technique, processCtrl;
    float deltaE, dVmin, dVmax, stability, tMin, tMax, threshold, preDose;
    int preStir;
    float maxVol;
    int stir;
};

void expectEngineSees(const DataManagerBase &dm, const Expected &x)
{
    EXPECT_EQ(dm.getNoOfEndpoints(), x.endpoints);
    EXPECT_FLOAT_EQ(dm.getEndpointValue_First(), x.ep1);
    EXPECT_FLOAT_EQ(dm.getEndpointValue_Second(), x.ep2);
    EXPECT_FLOAT_EQ(dm.getEndpointValue_Third(), x.ep3);
    EXPECT_EQ(dm.getTitrationTechnique(), x.technique);
    EXPECT_EQ(dm.getTitrationProcessCtrl(), x.processCtrl);
    EXPECT_FLOAT_EQ(dm.getDeltaE(), x.deltaE);
    EXPECT_FLOAT_EQ(dm.getDeltaVmin(), x.dVmin);
    EXPECT_FLOAT_EQ(dm.getDeltaVmax(), x.dVmax);
    EXPECT_FLOAT_EQ(dm.getStabilityCriteria(), x.stability);
    EXPECT_FLOAT_EQ(dm.gettMin(), x.tMin);
    EXPECT_FLOAT_EQ(dm.gettMax(), x.tMax);
    EXPECT_FLOAT_EQ(dm.getThreshold(), x.threshold);
    EXPECT_FLOAT_EQ(dm.getPreDoseTitrantVolume(), x.preDose);
    EXPECT_EQ(dm.getTitratrationOrStandardardizationPreStir(), x.preStir);
    EXPECT_FLOAT_EQ(dm.getTitratrationOrStandardardizationMaxVolmL(), x.maxVol);
    EXPECT_EQ(dm.getIndexOfStirSpeed(), x.stir);
}

const Expected kTitration{3, 4.5f, 8.2f, 9.1f, 0, 1, 11.f, 0.02f, 0.3f, 4.f, 3.f, 30.f, 150.f, 1.5f, 20, 12.f, 4};
const Expected kTitrant{2, 7.0f, 5.5f, 5.5f, 1, 3, 22.f, 0.05f, 0.4f, 6.f, 5.f, 50.f, 250.f, 0.7f, 15, 9.f, 1};

class DataManager : public ::testing::Test
{
protected:
    TestDatabase db;

    std::unique_ptr<DataManagerBase> start()
    {
        auto dm = std::make_unique<DataManagerBase>();
        dm->DataManagerLegacyInit();
        return dm;
    }
};

TEST_F(DataManager, EngineAsksTheTitrationPartInTitrationAndTheTitrantPartInStandardization)
{
    const int id = saveDistinctMethod(QStringLiteral("Acid"));
    auto dm = start();
    EXPECT_EQ(EngineData::get(), dm.get()) << "the engine uses the data manager";
    dm->reInitializeMethodModel(id);

    dm->setDeviceMode(QStringLiteral("Titration"));
    expectEngineSees(*dm, kTitration);
    dm->setDeviceMode(QStringLiteral("Standardization"));
    expectEngineSees(*dm, kTitrant);

    // Not tied to the mode.
    EXPECT_EQ(dm->getElectrode(), 0);
    EXPECT_FLOAT_EQ(dm->getEndPoint(), 7.0f);
    EXPECT_EQ(dm->getResolution(), 2);
    EXPECT_EQ(dm->getMKAProcessCtrl(), 3);
    EXPECT_EQ(dm->displayUnits(), QStringLiteral("pH"));
    EXPECT_FLOAT_EQ(dm->buretteSize(), 20.f);

    const EngineDataInterface *was = dm.get();
    dm.reset();
    EXPECT_NE(EngineData::get(), was) << "a destroyed data layer is dropped";
    EXPECT_EQ(EngineData::get()->deviceMode(), QStringLiteral("Titration")) << "the stand-in is back";
}

TEST_F(DataManager, BlankRunTakesOneCarefulEndPointWithoutPreDoseExceptInBackTitration)
{
    const int direct = saveDistinctMethod(QStringLiteral("Direct"));
    const int back = saveDistinctMethod(QStringLiteral("Back"), QStringLiteral("Back Titration"));
    auto dm = start();
    dm->setDeviceMode(QStringLiteral("Titration"));
    dm->setBlankTitrationMode(true);

    dm->reInitializeMethodModel(direct);
    EXPECT_EQ(dm->getNoOfEndpoints(), 1);
    EXPECT_EQ(dm->getTitrationProcessCtrl(), 2);
    EXPECT_FLOAT_EQ(dm->getPreDoseTitrantVolume(), 0.f);
    EXPECT_FLOAT_EQ(dm->getEndpointValue_First(), 4.5f) << "the rest is the titration part's";
    EXPECT_FLOAT_EQ(dm->getDeltaE(), 11.f);

    dm->reInitializeMethodModel(back);
    EXPECT_EQ(dm->getNoOfEndpoints(), 1);
    EXPECT_EQ(dm->getTitrationProcessCtrl(), 1) << "a back blank keeps its own process control";
    EXPECT_FLOAT_EQ(dm->getPreDoseTitrantVolume(), 1.5f) << "and its pre-dose";

    // One end point in a blank whatever the mode; the titrant part keeps its own.
    dm->setDeviceMode(QStringLiteral("Standardization"));
    EXPECT_EQ(dm->getNoOfEndpoints(), 1);
    EXPECT_EQ(dm->getTitrationProcessCtrl(), 3);
    EXPECT_FLOAT_EQ(dm->getPreDoseTitrantVolume(), 0.7f);
}

TEST_F(DataManager, OtherModesAnswerMinus999ExceptPreStirVolumeAndStirSpeed)
{
    const int id = saveDistinctMethod(QStringLiteral("Acid"));
    auto dm = start();
    dm->reInitializeMethodModel(id);
    for (const char *mode : {"", "Calibration", "Measurement", "titration"}) {
        SCOPED_TRACE(mode);
        dm->setDeviceMode(QString::fromLatin1(mode));
        EXPECT_EQ(dm->getNoOfEndpoints(), -999);
        EXPECT_FLOAT_EQ(dm->getEndpointValue_First(), -999.f);
        EXPECT_FLOAT_EQ(dm->getEndpointValue_Second(), -999.f);
        EXPECT_FLOAT_EQ(dm->getEndpointValue_Third(), -999.f);
        EXPECT_EQ(dm->getTitrationTechnique(), -999);
        EXPECT_EQ(dm->getTitrationProcessCtrl(), -999);
        EXPECT_FLOAT_EQ(dm->getDeltaE(), -999.f);
        EXPECT_FLOAT_EQ(dm->getDeltaVmin(), -999.f);
        EXPECT_FLOAT_EQ(dm->getDeltaVmax(), -999.f);
        EXPECT_FLOAT_EQ(dm->getStabilityCriteria(), -999.f);
        EXPECT_FLOAT_EQ(dm->gettMin(), -999.f);
        EXPECT_FLOAT_EQ(dm->gettMax(), -999.f);
        EXPECT_FLOAT_EQ(dm->getThreshold(), -999.f);
        EXPECT_FLOAT_EQ(dm->getPreDoseTitrantVolume(), -999.f);
        EXPECT_EQ(dm->getTitratrationOrStandardardizationPreStir(), 0);
        EXPECT_FLOAT_EQ(dm->getTitratrationOrStandardardizationMaxVolmL(), 0.f);
        EXPECT_EQ(dm->getIndexOfStirSpeed(), 1) << "the titrant part's speed outside a titration";
    }
}

TEST_F(DataManager, MultipleKnownAdditionFollowsTheElectrodeInTitrationOnly)
{
    MethodModel m;
    m.electrodeSetupModel()->setElectrodeType(QStringLiteral("ISE-MKA"));
    m.titrationSetupModel()->setTitrationTechnique(QStringLiteral("Equivalence Pt."));
    m.titrantSetupModel()->setStandTechnique(QStringLiteral("Preset End Pt."));
    m.saveMethodValues(QStringLiteral("Ammonia"), QString());
    ASSERT_EQ(m.success(), 1);
    auto dm = start();
    dm->reInitializeMethodModel(m.id());
    dm->setDeviceMode(QStringLiteral("Titration"));
    EXPECT_EQ(dm->getTitrationTechnique(), 3);
    dm->setDeviceMode(QStringLiteral("Standardization"));
    EXPECT_EQ(dm->getTitrationTechnique(), 0);
}

TEST_F(DataManager, StirSpeedNamesAndResolutionDecimals)
{
    const char *names[] = {"No Stirring", "Very Slow", "Slow", "Medium", "Fast", "Very Fast"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(DataManagerBase::stirSpeedIndex(QString::fromLatin1(names[i])), i) << names[i];
    EXPECT_EQ(DataManagerBase::stirSpeedIndex(QStringLiteral("fast")), 0);
    EXPECT_EQ(DataManagerBase::stirSpeedIndex(QString()), 0);

    EXPECT_EQ(DataManagerBase::resolutionDecimals(1.f), 0);
    EXPECT_EQ(DataManagerBase::resolutionDecimals(0.1f), 1);
    EXPECT_EQ(DataManagerBase::resolutionDecimals(0.01f), 2);
    EXPECT_EQ(DataManagerBase::resolutionDecimals(0.001f), 3);
    EXPECT_EQ(DataManagerBase::resolutionDecimals(0.0001f), 2);
    EXPECT_EQ(DataManagerBase::resolutionDecimals(0.f), 2);
}

TEST_F(DataManager, StoredMethodIsWhatTheEngineSeesAfterARestart)
{
    const int id = saveDistinctMethod(QStringLiteral("Acid"));
    // The working method was changed long before; the saved one is the newest.
    ASSERT_TRUE(TestDatabase::exec(
        QStringLiteral("UPDATE methodSetupTable SET mupdatedAt='2001-01-01T00:00:00' WHERE id=99999")));
    ASSERT_TRUE(db.reopen());

    auto dm = start();
    EXPECT_EQ(dm->currentMethodId(), id);
    EXPECT_EQ(dm->methodModel()->id(), id);
    EXPECT_EQ(dm->methodModel()->methodName(), QStringLiteral("Acid"));
    dm->setDeviceMode(QStringLiteral("Titration"));
    expectEngineSees(*dm, kTitration);
    dm->setDeviceMode(QStringLiteral("Standardization"));
    expectEngineSees(*dm, kTitrant);

    ASSERT_EQ(dm->methodList().size(), 1) << "the working method is not listed";
    EXPECT_EQ(dm->methodList().first()->methodName(), QStringLiteral("Acid"));
    EXPECT_EQ(dm->methodCount(), 1);
}

TEST_F(DataManager, SetupRowGivesBuretteSizeAndTemperatures)
{
    {
        // The settings screen stores them; a restart reads them back.
        auto first = start();
        first->setupModel()->setBuretteSize(50);
        first->setupModel()->setTemperatureInput(21.5f);
        first->setupModel()->setTemperatureOffset(-0.5f);
        ASSERT_TRUE(first->setupModel()->setSetupValues());
    }
    auto dm = start();
    EXPECT_FLOAT_EQ(dm->buretteSize(), 50.f);

    QSignalSpy seen(dm.get(), &DataManagerBase::temperatureDataAvailable);
    QSignalSpy probe(dm.get(), &DataManagerBase::probeTempChanged);
    dm->setRawTemperatureCelcius(30.f);
    EXPECT_TRUE(dm->isProbePresent());
    EXPECT_FLOAT_EQ(dm->getTemperature(), 29.5f) << "the probe with its offset";
    ASSERT_EQ(seen.count(), 1);
    EXPECT_FLOAT_EQ(seen.at(0).at(0).toFloat(), 30.f) << "the screens get the raw value";
    EXPECT_FLOAT_EQ(dm->probeTemp(), 30.f);
    EXPECT_EQ(probe.count(), 1);

    dm->setRawTemperatureCelcius(125.f);
    EXPECT_FALSE(dm->isProbePresent());
    EXPECT_FLOAT_EQ(dm->getTemperature(), 21.5f) << "no probe: the manual temperature";
    EXPECT_FLOAT_EQ(dm->temperatureRawCelcius(), 125.f);
    EXPECT_EQ(seen.count(), 1);
}

TEST_F(DataManager, ScaledValueIsPhOnlyForAPhElectrodeShownInPh)
{
    const int id = saveDistinctMethod(QStringLiteral("Acid"));
    auto dm = start();
    dm->reInitializeMethodModel(id);
    dm->setDeviceMode(QStringLiteral("Titration"));
    CMeasurementContext meter;
    meter.SetActiveKind(CMeasurementContext::KindPh);
    meter.SetDisplayResolutionInFloat(0.01f);
    dm->setMeasurementContext(&meter);

    // An ideal electrode: 59.16 mV per pH at 25 degrees, 62.1 at 40.
    EXPECT_NEAR(dm->getScaledVal(-177.5f), 10.0f, 0.011f);
    EXPECT_NEAR(dm->getScaledVal(118.3f), 5.0f, 0.011f);
    dm->setRawTemperatureCelcius(40.f);
    EXPECT_NEAR(dm->getScaledVal(-186.3f), 10.0f, 0.011f);
    EXPECT_NEAR(dm->phToMillivolts(10.f), -186.3f, 0.2f);
    dm->setRawTemperatureCelcius(25.f);
    EXPECT_NEAR(dm->phToMillivolts(4.f), 177.5f, 0.2f);

    dm->titrationSetupModel()->setDisplayUnits(QStringLiteral("mV"));
    EXPECT_FLOAT_EQ(dm->getScaledVal(-177.5f), -177.5f);
    dm->titrationSetupModel()->setDisplayUnits(QStringLiteral("pH"));
    dm->electrodeSetupModel()->setElectrodeType(QStringLiteral("Redox"));
    EXPECT_FLOAT_EQ(dm->getScaledVal(-177.5f), -177.5f) << "a redox electrode reads mV";
}

TEST_F(DataManager, ConsolePipeHandsOverEachTextOnce)
{
    auto dm = start();
    QString out = QStringLiteral("> ");
    EXPECT_FALSE(dm->getConsoleMes(&out));
    dm->sendToConsole(QStringLiteral("Begin\n"));
    dm->sendToConsole(QStringLiteral("EP1 4.50 mL\n"));
    EXPECT_TRUE(dm->getConsoleMes(&out));
    EXPECT_EQ(out, QStringLiteral("> Begin\nEP1 4.50 mL\n"));
    EXPECT_FALSE(dm->getConsoleMes(&out));
    EXPECT_EQ(out, QStringLiteral("> Begin\nEP1 4.50 mL\n"));
    dm->sendToConsole(QString());
    QString empty;
    EXPECT_TRUE(dm->getConsoleMes(&empty)) << "an empty text is still news";
    EXPECT_TRUE(empty.isEmpty());

    // Nobody reading: only the newest text is kept.
    for (int i = 0; i < 3000; ++i)
        dm->sendToConsole(QStringLiteral("line %1 of a run nobody reads\n").arg(i, 4, 10, QLatin1Char('0')));
    QString kept;
    EXPECT_TRUE(dm->getConsoleMes(&kept));
    EXPECT_EQ(kept.size(), DataManagerBase::consoleLimit);
    EXPECT_TRUE(kept.endsWith(QStringLiteral("line 2999 of a run nobody reads\n")));
}

TEST_F(DataManager, MethodListsAndRunCyclesDoNotPileUpObjects)
{
    auto dm = start();
    saveDistinctMethod(QStringLiteral("Acidity"));
    saveDistinctMethod(QStringLiteral("Hardness"));
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
        dm->beginRunRecords();
        for (int p = 0; p < 5; ++p)
            dm->recordRunPoint(0.1f * p);
    }
    ASSERT_EQ(run->titrationCycles().size(), 2);
    for (TitrationCycleModel *cycle : run->titrationCycles())
        EXPECT_EQ(cycle->graphPoints().count(QLatin1Char('(')), 5) << "cycle " << cycle->cycleNo();
    // A cycle started again replaces its unfinished attempt.
    dm->beginRunRecords();
    dm->recordRunPoint(0.0f);
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

TEST_F(DataManager, RunStateVersionsAndIdentity)
{
    auto dm = start();
    EXPECT_EQ(dm->getMfgSerialNum(), QStringLiteral("Unknown"));
    EXPECT_EQ(dm->getMspVersion(), QStringLiteral("Unknown Version"));
    EXPECT_EQ(dm->titratorModelNo(), QStringLiteral("V400"));
    EXPECT_EQ(dm->titrationQMLVersion(), QStringLiteral("10.08.17.1"));
    EXPECT_EQ(dm->sysInfoModel()->appVersion(), DataManagerBase::buildString());

    QSignalSpy msp(dm.get(), &DataManagerBase::mspVersionUpdated);
    dm->setMspVersion(QStringLiteral("2.14"));
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

    // Results in µL, kept as given.
    dm->setMultipleEndPointVolumes({{4512.0, 9020.5, 0.0}});
    EXPECT_EQ(dm->getResultArray(), (std::array<double, 3>{{4512.0, 9020.5, 0.0}}));
    dm->setEpResult1(6.9f);
    dm->setEpResult2(9.8f);
    EXPECT_FLOAT_EQ(dm->epResult1(), 6.9f);
    EXPECT_FLOAT_EQ(dm->epResult2(), 9.8f);

    QSignalSpy fresh(dm.get(), &DataManagerBase::freshDataAvailable);
    dm->setMillivolts(-12.5f);
    EXPECT_EQ(fresh.count(), 1);
    EXPECT_FLOAT_EQ(dm->getMillivolts(), -12.5f);

    EXPECT_EQ(dm->rinseCycles(), 3);
    EXPECT_EQ(dm->qmlStirSpeed(), 3);
    EXPECT_FALSE(dm->qmlStirrerState());
    dm->setQmlStirrerState(true);
    dm->setQmlStirSpeed(5);
    dm->setLastStartRinseCycles(2);
    EXPECT_TRUE(dm->qmlStirrerState());
    EXPECT_EQ(dm->qmlStirSpeed(), 5);
    EXPECT_EQ(dm->lastStartRinseCycles(), 2);
}

TEST_F(DataManager, EngineLogsLieInTheirRingsAndExportTogether)
{
    auto dm = start();
    LogManager *log = dm->titrationLogFile();
    LogManager *raw = dm->rawTitrationLogFile();
    ASSERT_NE(log, raw);
    EXPECT_TRUE(log->directory().endsWith(QStringLiteral("logFiles/titrationLogs/"))) << qPrintable(log->directory());
    EXPECT_TRUE(raw->directory().endsWith(QStringLiteral("logFiles/rawTitrationLogs/")));
    log->newCyclicFile(100);
    raw->newCyclicFile(100);
    log->write(QStringLiteral("summary\n"));
    raw->write(QStringLiteral("raw\n"));

    const QString target = Platform::path(QStringLiteral("/media/usb/VantorPro/logs"));
    dm->exportLogs(target);
    QStringList found;
    for (const char *name : {"titration-001.txt", "rawTitration-001.txt"}) {
        QStringList deep;
        QDirIterator it(target, QStringList{QString::fromLatin1(name)}, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            deep << it.next();
        EXPECT_EQ(deep.size(), 1) << name;
        found += deep;
    }
    ASSERT_EQ(found.size(), 2);
    EXPECT_TRUE(readTextFile(found[0]).contains(QStringLiteral("summary")));
    EXPECT_TRUE(readTextFile(found[1]).contains(QStringLiteral("raw")));
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
    const int id = saveDistinctMethod(QStringLiteral("Acid"));
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
    const int original = saveDistinctMethod(QStringLiteral("Acid"));
    const int copy = saveDistinctMethod(QStringLiteral("Acid copy"));
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
