#include "datamanagerbase.h"
#include "enginedataport.h"
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
    EXPECT_EQ(dm.engine()->getNoOfEndpoints(), x.endpoints);
    EXPECT_FLOAT_EQ(dm.engine()->getEndpointValue_First(), x.ep1);
    EXPECT_FLOAT_EQ(dm.engine()->getEndpointValue_Second(), x.ep2);
    EXPECT_FLOAT_EQ(dm.engine()->getEndpointValue_Third(), x.ep3);
    EXPECT_EQ(dm.engine()->getTitrationTechnique(), x.technique);
    EXPECT_EQ(dm.engine()->getTitrationProcessCtrl(), x.processCtrl);
    EXPECT_FLOAT_EQ(dm.engine()->getDeltaE(), x.deltaE);
    EXPECT_FLOAT_EQ(dm.engine()->getDeltaVmin(), x.dVmin);
    EXPECT_FLOAT_EQ(dm.engine()->getDeltaVmax(), x.dVmax);
    EXPECT_FLOAT_EQ(dm.engine()->getStabilityCriteria(), x.stability);
    EXPECT_FLOAT_EQ(dm.engine()->gettMin(), x.tMin);
    EXPECT_FLOAT_EQ(dm.engine()->gettMax(), x.tMax);
    EXPECT_FLOAT_EQ(dm.engine()->getThreshold(), x.threshold);
    EXPECT_FLOAT_EQ(dm.engine()->getPreDoseTitrantVolume(), x.preDose);
    EXPECT_EQ(dm.engine()->getTitratrationOrStandardardizationPreStir(), x.preStir);
    EXPECT_FLOAT_EQ(dm.engine()->getTitratrationOrStandardardizationMaxVolmL(), x.maxVol);
    EXPECT_EQ(dm.engine()->getIndexOfStirSpeed(), x.stir);
}

const Expected kTitration{3, 4.5f, 8.2f, 9.1f, 0, 1, 11.f, 0.02f, 0.3f, 4.f, 3.f, 30.f, 150.f, 1.5f, 20, 12.f, 4};
const Expected kTitrant{2, 7.0f, 5.5f, 5.5f, 1, 3, 22.f, 0.05f, 0.4f, 6.f, 5.f, 50.f, 250.f, 0.7f, 15, 9.f, 1};

class EnginePort : public DataLayerTest
{
};

TEST_F(EnginePort, EngineAsksTheTitrationPartInTitrationAndTheTitrantPartInStandardization)
{
    const int id = saveDistinctMethod(QStringLiteral("Acid"));
    auto dm = start();
    EXPECT_EQ(EngineData::get(), dm->engine()) << "the engine uses the data port";
    dm->reInitializeMethodModel(id);

    dm->setDeviceMode(QStringLiteral("Titration"));
    expectEngineSees(*dm, kTitration);
    dm->setDeviceMode(QStringLiteral("Standardization"));
    expectEngineSees(*dm, kTitrant);

    // Not tied to the mode.
    EXPECT_EQ(dm->engine()->getElectrode(), 0);
    EXPECT_FLOAT_EQ(dm->engine()->getEndPoint(), 7.0f);
    EXPECT_EQ(dm->engine()->getResolution(), 2);
    EXPECT_EQ(dm->engine()->getMKAProcessCtrl(), 3);
    EXPECT_EQ(dm->engine()->displayUnits(), QStringLiteral("pH"));
    EXPECT_FLOAT_EQ(dm->engine()->buretteSize(), 20.f);

    const EngineDataInterface *was = dm->engine();
    dm.reset();
    EXPECT_NE(EngineData::get(), was) << "a destroyed data layer is dropped";
    EXPECT_EQ(EngineData::get()->deviceMode(), QStringLiteral("Titration")) << "the stand-in is back";
}

TEST_F(EnginePort, BlankRunTakesOneCarefulEndPointWithoutPreDoseExceptInBackTitration)
{
    const int direct = saveDistinctMethod(QStringLiteral("Direct"));
    const int back = saveDistinctMethod(QStringLiteral("Back"), QStringLiteral("Back Titration"));
    auto dm = start();
    dm->setDeviceMode(QStringLiteral("Titration"));
    dm->setBlankTitrationMode(true);

    dm->reInitializeMethodModel(direct);
    EXPECT_EQ(dm->engine()->getNoOfEndpoints(), 1);
    EXPECT_EQ(dm->engine()->getTitrationProcessCtrl(), 2);
    EXPECT_FLOAT_EQ(dm->engine()->getPreDoseTitrantVolume(), 0.f);
    EXPECT_FLOAT_EQ(dm->engine()->getEndpointValue_First(), 4.5f) << "the rest is the titration part's";
    EXPECT_FLOAT_EQ(dm->engine()->getDeltaE(), 11.f);

    dm->reInitializeMethodModel(back);
    EXPECT_EQ(dm->engine()->getNoOfEndpoints(), 1);
    EXPECT_EQ(dm->engine()->getTitrationProcessCtrl(), 1) << "a back blank keeps its own process control";
    EXPECT_FLOAT_EQ(dm->engine()->getPreDoseTitrantVolume(), 1.5f) << "and its pre-dose";

    // One end point in a blank whatever the mode; the titrant part keeps its own.
    dm->setDeviceMode(QStringLiteral("Standardization"));
    EXPECT_EQ(dm->engine()->getNoOfEndpoints(), 1);
    EXPECT_EQ(dm->engine()->getTitrationProcessCtrl(), 3);
    EXPECT_FLOAT_EQ(dm->engine()->getPreDoseTitrantVolume(), 0.7f);
}

TEST_F(EnginePort, OtherModesAnswerMinus999ExceptPreStirVolumeAndStirSpeed)
{
    const int id = saveDistinctMethod(QStringLiteral("Acid"));
    auto dm = start();
    dm->reInitializeMethodModel(id);
    for (const char *mode : {"", "Calibration", "Measurement", "titration"}) {
        SCOPED_TRACE(mode);
        dm->setDeviceMode(QString::fromLatin1(mode));
        EXPECT_EQ(dm->engine()->getNoOfEndpoints(), -999);
        EXPECT_FLOAT_EQ(dm->engine()->getEndpointValue_First(), -999.f);
        EXPECT_FLOAT_EQ(dm->engine()->getEndpointValue_Second(), -999.f);
        EXPECT_FLOAT_EQ(dm->engine()->getEndpointValue_Third(), -999.f);
        EXPECT_EQ(dm->engine()->getTitrationTechnique(), -999);
        EXPECT_EQ(dm->engine()->getTitrationProcessCtrl(), -999);
        EXPECT_FLOAT_EQ(dm->engine()->getDeltaE(), -999.f);
        EXPECT_FLOAT_EQ(dm->engine()->getDeltaVmin(), -999.f);
        EXPECT_FLOAT_EQ(dm->engine()->getDeltaVmax(), -999.f);
        EXPECT_FLOAT_EQ(dm->engine()->getStabilityCriteria(), -999.f);
        EXPECT_FLOAT_EQ(dm->engine()->gettMin(), -999.f);
        EXPECT_FLOAT_EQ(dm->engine()->gettMax(), -999.f);
        EXPECT_FLOAT_EQ(dm->engine()->getThreshold(), -999.f);
        EXPECT_FLOAT_EQ(dm->engine()->getPreDoseTitrantVolume(), -999.f);
        EXPECT_EQ(dm->engine()->getTitratrationOrStandardardizationPreStir(), 0);
        EXPECT_FLOAT_EQ(dm->engine()->getTitratrationOrStandardardizationMaxVolmL(), 0.f);
        EXPECT_EQ(dm->engine()->getIndexOfStirSpeed(), 1) << "the titrant part's speed outside a titration";
    }
}

TEST_F(EnginePort, MultipleKnownAdditionFollowsTheElectrodeInTitrationOnly)
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
    EXPECT_EQ(dm->engine()->getTitrationTechnique(), 3);
    dm->setDeviceMode(QStringLiteral("Standardization"));
    EXPECT_EQ(dm->engine()->getTitrationTechnique(), 0);
}

TEST_F(EnginePort, StirSpeedNamesAndResolutionDecimals)
{
    const char *names[] = {"No Stirring", "Very Slow", "Slow", "Medium", "Fast", "Very Fast"};
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(EngineDataPort::stirSpeedIndex(QString::fromLatin1(names[i])), i) << names[i];
    EXPECT_EQ(EngineDataPort::stirSpeedIndex(QStringLiteral("fast")), 0);
    EXPECT_EQ(EngineDataPort::stirSpeedIndex(QString()), 0);

    EXPECT_EQ(EngineDataPort::resolutionDecimals(1.f), 0);
    EXPECT_EQ(EngineDataPort::resolutionDecimals(0.1f), 1);
    EXPECT_EQ(EngineDataPort::resolutionDecimals(0.01f), 2);
    EXPECT_EQ(EngineDataPort::resolutionDecimals(0.001f), 3);
    EXPECT_EQ(EngineDataPort::resolutionDecimals(0.0001f), 2);
    EXPECT_EQ(EngineDataPort::resolutionDecimals(0.f), 2);
}

TEST_F(EnginePort, StoredMethodIsWhatTheEngineSeesAfterARestart)
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

TEST_F(EnginePort, SetupRowGivesBuretteSizeAndTemperatures)
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
    EXPECT_FLOAT_EQ(dm->engine()->buretteSize(), 50.f);

    QSignalSpy seen(dm.get(), &DataManagerBase::temperatureDataAvailable);
    QSignalSpy probe(dm.get(), &DataManagerBase::probeTempChanged);
    dm->engine()->setRawTemperatureCelcius(30.f);
    EXPECT_TRUE(dm->isProbePresent());
    EXPECT_FLOAT_EQ(dm->getTemperature(), 29.5f) << "the probe with its offset";
    ASSERT_EQ(seen.count(), 1);
    EXPECT_FLOAT_EQ(seen.at(0).at(0).toFloat(), 30.f) << "the screens get the raw value";
    EXPECT_FLOAT_EQ(dm->probeTemp(), 30.f);
    EXPECT_EQ(probe.count(), 1);

    dm->engine()->setRawTemperatureCelcius(125.f);
    EXPECT_FALSE(dm->isProbePresent());
    EXPECT_FLOAT_EQ(dm->getTemperature(), 21.5f) << "no probe: the manual temperature";
    EXPECT_FLOAT_EQ(dm->engine()->temperatureRawCelcius(), 125.f);
    EXPECT_EQ(seen.count(), 1);

    // The backlight follows the brightness page's level before it is saved.
    dm->setupModel()->setTempDisplayBrightness(5);
    EXPECT_EQ(dm->engine()->displayBrightness(), 5);
    EXPECT_EQ(dm->setupModel()->displayBrightness(), 3);
}

TEST_F(EnginePort, ScaledValueIsPhOnlyForAPhElectrodeShownInPh)
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
    EXPECT_NEAR(dm->engine()->getScaledVal(-177.5f), 10.0f, 0.011f);
    EXPECT_NEAR(dm->engine()->getScaledVal(118.3f), 5.0f, 0.011f);
    dm->engine()->setRawTemperatureCelcius(40.f);
    EXPECT_NEAR(dm->engine()->getScaledVal(-186.3f), 10.0f, 0.011f);
    EXPECT_NEAR(dm->engine()->phToMillivolts(10.f), -186.3f, 0.2f);
    dm->engine()->setRawTemperatureCelcius(25.f);
    EXPECT_NEAR(dm->engine()->phToMillivolts(4.f), 177.5f, 0.2f);

    dm->titrationSetupModel()->setDisplayUnits(QStringLiteral("mV"));
    EXPECT_FLOAT_EQ(dm->engine()->getScaledVal(-177.5f), -177.5f);
    dm->titrationSetupModel()->setDisplayUnits(QStringLiteral("pH"));
    dm->electrodeSetupModel()->setElectrodeType(QStringLiteral("Redox"));
    EXPECT_FLOAT_EQ(dm->engine()->getScaledVal(-177.5f), -177.5f) << "a redox electrode reads mV";
}

TEST_F(EnginePort, ConsolePipeHandsOverEachTextOnce)
{
    auto dm = start();
    QString out = QStringLiteral("> ");
    EXPECT_FALSE(dm->engine()->getConsoleMes(&out));
    dm->engine()->sendToConsole(QStringLiteral("Begin\n"));
    dm->engine()->sendToConsole(QStringLiteral("EP1 4.50 mL\n"));
    EXPECT_TRUE(dm->engine()->getConsoleMes(&out));
    EXPECT_EQ(out, QStringLiteral("> Begin\nEP1 4.50 mL\n"));
    EXPECT_FALSE(dm->engine()->getConsoleMes(&out));
    EXPECT_EQ(out, QStringLiteral("> Begin\nEP1 4.50 mL\n"));
    dm->engine()->sendToConsole(QString());
    QString empty;
    EXPECT_TRUE(dm->engine()->getConsoleMes(&empty)) << "an empty text is still news";
    EXPECT_TRUE(empty.isEmpty());

    // Nobody reading: only the newest text is kept.
    for (int i = 0; i < 3000; ++i)
        dm->engine()->sendToConsole(QStringLiteral("line %1 of a run nobody reads\n").arg(i, 4, 10, QLatin1Char('0')));
    QString kept;
    EXPECT_TRUE(dm->engine()->getConsoleMes(&kept));
    EXPECT_EQ(kept.size(), DataManagerBase::consoleLimit);
    EXPECT_TRUE(kept.endsWith(QStringLiteral("line 2999 of a run nobody reads\n")));
}

TEST_F(EnginePort, EngineLogsLieInTheirRingsAndExportTogether)
{
    auto dm = start();
    LogManager *log = dm->engine()->titrationLogFile();
    LogManager *raw = dm->engine()->rawTitrationLogFile();
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

} // namespace
