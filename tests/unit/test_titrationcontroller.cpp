// The run controller without an instrument: runs through the simulation
// path (curve files), the stop inside the completed signal, rinse, manual
// doses, the stirrer and the chart feed. The slave link writes into a
// buffer, so every command the controller sends can be read back.

#include "algorithmdriver.h"
#include "beaker.h"
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgmillivolt.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "controller/burettecontroller.h"
#include "controller/enginedatastandin.h"
#include "controller/mspcontroller.h"
#include "reports/logmanager.h"
#include "system/clock.h"
#include "testsupport.h"
#include "titrationcontrollerbase.h"

#include <QBuffer>
#include <QDir>
#include <QPointF>
#include <QPointer>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace {

QString simFile(int index)
{
    return Platform::path(QStringLiteral("/var/Kestrum/log/simdata/data-%1.txt").arg(index));
}

// 5 mL of 0.1 mol/L acetic acid in 50 mL, 0.1 mol/L NaOH: the algorithm run
// in-process on a manual clock as the controller drives it, its curve
// written as a simulation file. Answers the end-point volume found.
double inProcessRun(EngineDataStandIn &dm, ManualClock &clock, const QString &curveFile)
{
    AcidBaseBeaker::Params p;
    p.volumeMl = 50;
    p.concentration = 0.01;
    const AcidBaseBeaker beaker(p);
    TemporalDataStore temporal;
    VolumetricDataStore volumetric;
    TitrationAlgMillivolt algorithm(&temporal, &volumetric);
    AlgorithmDriver driver(clock, dm);
    const AlgorithmDriver::Outcome out =
        driver.run(algorithm, temporal, [&](double ml) { return beaker.potentialMv(ml); });
    EXPECT_TRUE(out.finished);
    QString text = QStringLiteral("volume uL, mV\n");
    for (int i = 0; i < volumetric.size(); ++i)
        text += QStringLiteral("%1,%2\n").arg(volumetric.volumeAt(i), 0, 'f', 0).arg(volumetric.dataAt(i), 0, 'g', 17);
    writeTextFile(curveFile, text);
    return out.results[0];
}

class RunController : public ::testing::Test
{
protected:
    void SetUp() override
    {
        Clock::setSource(&clock);
        EngineData::set(&data);
        data.maxVolmL = 20.f;
        msp = std::make_unique<mspController>(Platform::path(QStringLiteral("/dev/ttynone")));
        wire.open(QIODevice::ReadWrite);
        msp->msp->setSerialPort(&wire);
        bc = std::make_unique<BuretteController>(msp.get());
        tc = std::make_unique<TitrationControllerBase>(msp.get(), bc.get(), nullptr);
    }
    void TearDown() override
    {
        tc.reset();
        bc.reset();
        msp.reset();
        EngineData::set(nullptr);
        Clock::setSource(nullptr);
    }

    // Commands sent since the last call.
    QStringList sent()
    {
        const QStringList out = QString::fromLatin1(wire.data()).split(QStringLiteral("\r\n"), Qt::SkipEmptyParts);
        wire.buffer().clear();
        wire.seek(0);
        return out;
    }

    // Plays the simulation clock's ticks until the run has ended.
    int playUntilEnd(int limit = 10000)
    {
        int ticks = 0;
        while (tc->state() != TitrationController::TITRATION_STATE_IDLE && ticks < limit) {
            tc->simTimerUpdate();
            ++ticks;
        }
        return ticks;
    }

    int reasonLines() const
    {
        QDir dir(LogManager::logRoot() + QStringLiteral("titrations"));
        int n = 0;
        for (const QString &f : dir.entryList({QStringLiteral("titrationParameters*")}, QDir::Files))
            n += readTextFile(dir.filePath(f)).count(QStringLiteral("Reason for end: "));
        return n;
    }

    TempSandbox sandbox;
    ManualClock clock;
    EngineDataStandIn data;
    QBuffer wire;
    std::unique_ptr<mspController> msp;
    std::unique_ptr<BuretteController> bc;
    std::unique_ptr<TitrationControllerBase> tc;
};

TEST_F(RunController, ReplayOfAnInProcessCurveFindsTheSameEndPoint)
{
    const double inProcess = inProcessRun(data, clock, simFile(1));
    EXPECT_NEAR(inProcess, 5000.0, 25.0);
    data.dispenseInProgress = false;
    sent();

    QObject::connect(tc.get(), &TitrationController::titrationCompletedSignal, tc.get(),
                     [this] { tc->qmlStopTitration(); });
    tc->qmlStartTitration();
    ASSERT_TRUE(tc->inSimulation());
    EXPECT_EQ(tc->state(), TitrationController::TITRATION_STATE_STARTUP) << "no homing, no pre-stir";
    EXPECT_FALSE(data.stirrerOn);
    for (int i = 0; i < 3; ++i)
        tc->simTimerUpdate();
    EXPECT_EQ(tc->temporalStore()->size(), 3);
    EXPECT_EQ(tc->volumetricStore()->size(), 0) << "the first three samples stop at the temporal store";
    long stamp = 0;
    double volume = 0, mv = 0;
    tc->temporalStore()->getLastPoint(stamp, volume, mv);
    EXPECT_EQ(stamp, 42);
    EXPECT_DOUBLE_EQ(mv, 42.42);

    playUntilEnd();
    EXPECT_NEAR(data.results[0], inProcess, 0.5);
    EXPECT_EQ(data.completedCount, 1);
    EXPECT_EQ(tc->lastRun().reasonForEnd, QStringLiteral("Reached final equivalence point at count: 1"));
    for (const QString &c : sent())
        EXPECT_FALSE(c.startsWith(QLatin1String("BDS")) || c == QLatin1String("BHS") || c.startsWith(QLatin1String("SSS 3")))
            << c.toStdString();
    EXPECT_EQ(tc->simDataReader().index(), 2) << "the next run takes the next file";
}

TEST_F(RunController, SimulationFilesPlayInTurnAndWrapRound)
{
    writeTextFile(simFile(1), QStringLiteral("0,100\n1000,90\n"));
    writeTextFile(simFile(2), QStringLiteral("# header\n0,50\nbad line\n"));
    QSignalSpy completed(tc.get(), &TitrationController::titrationCompletedSignal);
    // The first file reaches the limit; the second ends early, and at the
    // end of its file whatever the limit, with no made-up point.
    const struct { int file; float maxMl; } runs[] = {{1, 1.f}, {2, 1.f}, {1, 100.f}, {2, 100.f}};
    for (const auto &r : runs) {
        data.maxVolmL = r.maxMl;
        tc->qmlStartTitration();
        ASSERT_TRUE(tc->inSimulation());
        EXPECT_EQ(tc->simDataReader().index(), r.file);
        EXPECT_LT(playUntilEnd(), 20) << "file " << r.file << ", " << r.maxMl << " mL";
        if (r.maxMl > 50.f) { // the file ran out
            EXPECT_TRUE(tc->lastRun().reasonForEnd.startsWith(QLatin1String("end of data;"))) << tc->lastRun().reasonForEnd.toStdString();
        }
    }
    EXPECT_EQ(completed.count(), 4);
    EXPECT_EQ(tc->simDataReader().index(), 3) << "the next run wraps round to the first";
    QFile::remove(simFile(1));
    QFile::remove(simFile(2));
    tc->qmlStartTitration();
    EXPECT_FALSE(tc->inSimulation()) << "no file: a real run";
    tc->qmlStopTitration();
}

TEST_F(RunController, SimulationKeepsFractionsOfAMicrolitre)
{
    writeTextFile(simFile(1), QStringLiteral("0.25, 1\n10.5, 2\n20.75, 3\n"));
    tc->qmlStartTitration();
    ASSERT_TRUE(tc->inSimulation());
    while (tc->volumetricStore()->size() < 2)
        tc->simTimerUpdate();
    EXPECT_EQ(tc->volumetricStore()->volumeAt(0), 0.25);
    EXPECT_EQ(tc->volumetricStore()->volumeAt(1), 10.5);
    tc->qmlStopTitration();
    QFile::remove(simFile(1));
}

TEST_F(RunController, StopInsideTheCompletedSignalReleasesTheRunAfterTheEmit)
{
    writeTextFile(simFile(1), QStringLiteral("0,100\n500,98\n1000,96\n"));
    data.maxVolmL = 1.f;
    QPointer<QObject> algorithm, temporal, volumetric;
    bool aliveInsideEmit = false;
    QObject::connect(tc.get(), &TitrationController::titrationCompletedSignal, tc.get(), [&] {
        EXPECT_EQ(data.completedCount, 1) << "the data layer hears of the end first";
        tc->qmlStopTitration();
        // Released later, so the code on the stack may still finish.
        aliveInsideEmit = !algorithm.isNull() && !temporal.isNull() && !volumetric.isNull();
    });
    tc->qmlStartTitration();
    algorithm = tc->algorithm();
    temporal = tc->temporalStore();
    volumetric = tc->volumetricStore();
    playUntilEnd();
    EXPECT_TRUE(aliveInsideEmit);
    EXPECT_TRUE(data.cancelled);
    EXPECT_EQ(tc->algorithm(), nullptr);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(algorithm.isNull());
    EXPECT_TRUE(temporal.isNull());
    EXPECT_TRUE(volumetric.isNull());
    EXPECT_EQ(reasonLines(), 1) << "written at the stop; the algorithm is gone at the summary";
    EXPECT_TRUE(data.console.contains(QStringLiteral("-------------------- TITRATION END")));
}

TEST_F(RunController, WithoutAStopFromTheScreensTheRunTearsItselfDown)
{
    writeTextFile(simFile(1), QStringLiteral("0,100\n1000,96\n"));
    data.maxVolmL = 1.f;
    data.noOfEndpoints = 2;
    data.mode = QStringLiteral("Standardization");
    tc->qmlStartTitration();
    playUntilEnd();
    EXPECT_EQ(data.completedCount, 1);
    EXPECT_EQ(reasonLines(), 2) << "at the summary and at the tear-down";
    EXPECT_TRUE(data.console.contains(QStringLiteral("\r\nTitration Summary\r\nTotal Vol Dispensed (ul):0\r\n"
                                                     "End Point 1 Volume Dispensed (ul):")));
    EXPECT_TRUE(data.console.contains(QStringLiteral("End Point 2 Volume Dispensed (ul):")));
    EXPECT_FALSE(data.console.contains(QStringLiteral("End Point 3")));
    EXPECT_FALSE(data.cancelled) << "only a stop sets the cancelled flag";
}

TEST_F(RunController, ParameterLogHasTheRecordsWords)
{
    writeTextFile(simFile(1), QStringLiteral("0,100\n"));
    data.preDose = 1.5f;
    data.processCtrl = 2;
    tc->qmlStartTitration();
    tc->qmlStopTitration();
    QDir dir(LogManager::logRoot() + QStringLiteral("titrations"));
    const QStringList files = dir.entryList({QStringLiteral("titrationParameters*")}, QDir::Files);
    ASSERT_EQ(files.size(), 1);
    const QString text = readTextFile(dir.filePath(files.first()));
    EXPECT_TRUE(text.contains(QStringLiteral("\nTitration Technique: Equivalence Pt.\nDisplay Units: mV\n"
                                             "Predose (ul): 1500\nMax Disp Vol (ul)20000\nNum endpoints: 1\n"
                                             "Process Control: Careful")))
        << text.toStdString();
}

TEST_F(RunController, RinseCountsDownAndComesBackToItsStart)
{
    data.rinse = 3;
    QSignalSpy done(bc.get(), &BuretteController::qmlRinseCompleted);
    tc->qmlStartRinse();
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_FLUSHING);
    emit bc->signal_flushComplete();
    EXPECT_EQ(data.rinse, 2);
    emit bc->signal_flushComplete();
    EXPECT_EQ(data.rinse, 1);
    EXPECT_EQ(done.count(), 0);
    emit bc->signal_flushComplete();
    EXPECT_EQ(data.rinse, 3);
    EXPECT_EQ(done.count(), 1);
    emit bc->signal_flushComplete(); // not a rinse any more
    EXPECT_EQ(data.rinse, 3);

    tc->qmlStartRinse();
    emit bc->signal_flushComplete();
    tc->qmlStopRinse();
    EXPECT_EQ(data.rinse, 3);
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_RINSE_STOPPING);
}

TEST_F(RunController, ManualDosesAndStirrer)
{
    sent();
    tc->qmlStartDispense(0.29f);
    EXPECT_EQ(sent(), QStringList{QStringLiteral("BDS 290")});
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_MANUAL_DOSE);
    tc->qmlStartDispense(std::nanf(""));
    tc->qmlStartDispense(-1.f);
    EXPECT_TRUE(sent().isEmpty()) << "a dose of no sense is dropped";
    tc->qmlStartDispense();
    EXPECT_EQ(sent(), QStringList{QStringLiteral("BES")});
    tc->qmlStopDispense();
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_MANUAL_HOMING);
    sent();

    data.stirrerOn = false;
    tc->qmlSetStirSpeed(4);
    EXPECT_EQ(data.stirSpeed, 4);
    EXPECT_TRUE(sent().isEmpty()) << "the speed waits for the stirrer";
    tc->qmlStartStirrer();
    EXPECT_EQ(sent(), QStringList{QStringLiteral("SSS 4")});
    tc->qmlSetStirSpeed(2);
    EXPECT_EQ(sent(), QStringList{QStringLiteral("SSS 2")});
    tc->qmlSetStirSpeed(9);
    EXPECT_TRUE(sent().isEmpty());
    tc->qmlStopStirrer();
    EXPECT_EQ(sent(), QStringList{QStringLiteral("SSS 0")});
    EXPECT_EQ(data.stirSpeed, 2) << "the stored speed stays";
}

TEST_F(RunController, ChartPointsOnlyInTheRunModes)
{
    QSignalSpy points(tc.get(), &TitrationControllerBase::newPoint);
    data.millivolts = 120.f;
    data.mode = QStringLiteral("Measurement");
    tc->qmlNewGraphData(1500.f, 0.f);
    EXPECT_EQ(points.count(), 0);
    data.mode = QStringLiteral("Standardization");
    tc->qmlNewGraphData(1500.f, 0.f);
    ASSERT_EQ(points.count(), 1);
    const QPointF p = points.at(0).at(0).value<QVariant>().toPointF();
    EXPECT_FLOAT_EQ(float(p.x()), 1.5f);
    EXPECT_FLOAT_EQ(float(p.y()), 120.f);
    ASSERT_EQ(data.runPoints.size(), 1u);
}

TEST_F(RunController, MeasureAndBacklight)
{
    sent();
    data.brightness = 55;
    tc->qmlSetDisplayBrightness();
    EXPECT_EQ(sent(), QStringList{QStringLiteral("BLS 55")});
    tc->qmlStartMeasure();
    EXPECT_EQ(data.mode, QStringLiteral("Measurement"));
    data.stirrerOn = true;
    tc->qmlStopMeasure();
    EXPECT_EQ(data.mode, QString());
    EXPECT_FALSE(data.stirrerOn);
    EXPECT_EQ(sent(), QStringList{QStringLiteral("SSS 0")});
    EXPECT_EQ(data.coreVersion, QStringLiteral("1.0.0"));
}

} // namespace
