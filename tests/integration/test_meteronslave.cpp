// The meter against the virtual instrument on a pseudo-terminal: direct
// measurement of a buffer with an electrode of known offset and slope, and
// three-point pH calibrations at 10, 25 and 40 degrees with the electrode
// moved from buffer to buffer, stored, and read back after a restart.

#include "controller/metercontroller.h"
#include "controller/mspcontroller.h"
#include "datamanagerbase.h"
#include "models/calibrationcyclemodel.h"
#include "models/calibrationmodel.h"
#include "models/measurementmodel.h"
#include "testdatabase.h"
#include "testdatalayer.h"
#include "logrecords.h"
#include "testsupport.h"
#include "virtualinstrumentprocess.h"

#include <QFile>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QTemporaryDir>
#include <QSignalSpy>
#include <QSqlQuery>
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

namespace {

constexpr double kSpeed = 50;
constexpr double kSlopePct = 97.0;
constexpr double kOffsetMv = 12.0;

QString scenario(double celsius, double pH)
{
    return QStringLiteral(R"({"temperature_C":%1,"seed":3,"temperature_probe":true,
        "electrode":{"E0_mV":%2,"slope_pct":%3,"tau_s":0.5,"noise_mV":0.02},
        "beaker":{"kind":"buffer","pH":%4}})")
        .arg(celsius)
        .arg(kOffsetMv)
        .arg(kSlopePct)
        .arg(pH, 0, 'f', 2);
}

double electrodeMv(double pH, double celsius)
{
    return kOffsetMv - kSlopePct / 100.0 * 59.16 * (celsius + 273.15) / 298.15 * (pH - 7.0);
}

class MeterOnSlave : public ::testing::Test
{
protected:
    void TearDown() override
    {
        mc.reset();
        msp.reset();
        dm.reset();
        vi.stop();
    }

    void start(double celsius, double pH)
    {
        m_celsius = celsius;
        makeDataManager();
        ASSERT_TRUE(vi.start(scenario(celsius, pH), kSpeed)) << vi.errorText().toStdString();
        msp = std::make_unique<mspController>(vi.device());
        msp->setPollInterval(int(250 / kSpeed));
        msp->setReadInterval(1);
        QObject::connect(msp.get(), &mspController::mspNewDataSignal, [this](long, double mv) { lastMv = mv; });
        mc = std::make_unique<MeterController>(msp.get(), dm.get());
        ASSERT_TRUE(waitUntil([&] { return dm->engine()->isTemperatureProbePresent(); }, 10000)) << "no samples";
        ASSERT_TRUE(settleAt(pH));
    }

    // The data manager of a (re)started application on the same file.
    void makeDataManager()
    {
        auto fresh = startedDataManager();
        dm = std::move(fresh);
    }

    void restart()
    {
        mc.reset();
        db.reopen();
        makeDataManager();
        mc = std::make_unique<MeterController>(msp.get(), dm.get());
        ASSERT_TRUE(waitUntil([&] { return dm->engine()->isTemperatureProbePresent(); }, 10000));
    }

    // Moves the electrode into a buffer and waits until it reads it.
    bool moveTo(double pH)
    {
        const QString answer = vi.command(QStringLiteral("beaker {\"kind\":\"buffer\",\"pH\":%1}").arg(pH, 0, 'f', 2));
        EXPECT_TRUE(answer.isEmpty()) << answer.toStdString();
        return settleAt(pH);
    }

    bool settleAt(double pH)
    {
        const double target = electrodeMv(pH, m_celsius);
        return waitUntil([&] { return std::fabs(lastMv - target) < 0.2; }, 20000);
    }

    // Samples until the meter reports a stable reading (0 on a time-out).
    int samplesToStable()
    {
        QSignalSpy stable(mc.get(), &MeterController::qmlStableCalibration);
        QSignalSpy unstable(mc.get(), &MeterController::qmlUnStableCalibration);
        if (!waitUntil([&] { return stable.count() > 0; }, 30000))
            return 0;
        return unstable.count() + 1;
    }

    void measure(float resolution)
    {
        MeasurementModel *m = dm->measurementModel();
        m->setReadMode(QStringLiteral("pH"));
        m->setResolution(resolution);
        m->setBufferGroup(QStringLiteral("USA"));
        dm->setDeviceMode(QStringLiteral("Measurement"));
        mc->qmlStartMeasure();
    }

    TestDatabase db;
    VirtualInstrumentProcess vi;
    std::unique_ptr<DataManagerBase> dm;
    std::unique_ptr<mspController> msp;
    std::unique_ptr<MeterController> mc;
    double lastMv = 1e9;
    double m_celsius = 25.0;
};

TEST_F(MeterOnSlave, BufferSevenReadsTheElectrodeModelAndSettlesWithinTheCount)
{
    start(25.0, 7.00);
    measure(0.01f);
    const int samples = samplesToStable();
    // 38 samples at the least: 10 to fill the average, 3 more for the drift
    // ring, 26 small steps; a few more if the noise breaks a step.
    EXPECT_GE(samples, 38);
    EXPECT_LE(samples, 45);
    MeasurementModel *m = dm->measurementModel();
    // Without a calibration the meter reads the ideal electrode: 7 - 12 / 59.16.
    EXPECT_NEAR(m->scaledValue(), 6.80, 0.0051);
    EXPECT_NEAR(m->mV(), kOffsetMv, 0.1);
    EXPECT_NEAR(m->temp(), 25.0, 0.05);
    EXPECT_TRUE(m->isATC());
    EXPECT_TRUE(m->stability());
}

struct CalCase {
    double celsius;
    double buffers[3];   // the buffers' pH at that temperature, at 0.01
};

class CalibrationOnSlave : public MeterOnSlave, public ::testing::WithParamInterface<CalCase>
{
};

TEST_P(CalibrationOnSlave, ThreeBuffersGiveTheElectrodesSlopeAndOffsetAndReadBackRight)
{
    const CalCase c = GetParam();
    start(c.celsius, c.buffers[0]);
    MeasurementModel *m = dm->measurementModel();
    m->setReadMode(QStringLiteral("pH"));
    m->setResolution(0.01f);
    m->setBufferGroup(QStringLiteral("USA"));
    m->setSensorName(QStringLiteral("pH-97"));
    dm->setDeviceMode(QStringLiteral("Calibration"));
    dm->initiateCalibrationModelFromMeasure();
    mc->qmlStartCalibration();
    const float nominal[3] = {4.01f, 7.00f, 10.01f};
    for (int i = 0; i < 3; ++i) {
        if (i > 0) {
            ASSERT_TRUE(moveTo(c.buffers[i]));
        }
        mc->qmlStartCalPoint();
        ASSERT_GT(samplesToStable(), 0) << "point " << i;
        EXPECT_NEAR(dm->calibrationCycleModel()->calValue(), c.buffers[i], 1e-4) << "recognised at temperature";
        mc->accptCalibration(false);
        ASSERT_FALSE(mc->isSlopeErrorOnAccept());
    }
    mc->qmlStopCalibration();
    QSignalSpy slopeError(mc.get(), &MeterController::showQmlSlopeError);
    mc->calDone();
    EXPECT_EQ(slopeError.count(), 0);
    dm->insertCalibrationValue();

    // Rounding a buffer to 0.01 moves a point by at most 0.005 pH: over the
    // 3 pH of a segment that is 0.17 % of slope and 0.3 mV of offset; the
    // noise and the held average add a little.
    const QList<CalibrationCycleModel *> &points = dm->calibrationCycleList();
    ASSERT_EQ(points.size(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_FLOAT_EQ(points[i]->buffer(), nominal[i]);
        EXPECT_NEAR(points[i]->voltage(), electrodeMv(c.buffers[i], c.celsius), 0.1);
        EXPECT_NEAR(points[i]->temperature(), c.celsius, 0.05);
        EXPECT_NEAR(points[i]->slope(), kSlopePct, 0.3);
        if (i < 2) {
            EXPECT_NEAR(points[i]->offset(), kOffsetMv, 0.5);
        }
    }
    EXPECT_NEAR(dm->calibrationModel()->avgSlope(), kSlopePct, 0.3);
    QSqlQuery stored;
    ASSERT_TRUE(stored.exec(QStringLiteral("SELECT count(*) FROM calibrationCycleTable")) && stored.next());
    EXPECT_EQ(stored.value(0).toInt(), 3);

    // The next start finds it: the buffers read right to 0.02 pH.
    restart();
    measure(0.001f);
    for (int i = 2; i >= 0; --i) {
        ASSERT_TRUE(moveTo(c.buffers[i]));
        mc->qmlStartMeasure();
        ASSERT_GT(samplesToStable(), 0);
        EXPECT_NEAR(dm->measurementModel()->scaledValue(), c.buffers[i], 0.02) << "buffer " << c.buffers[i];
    }
    ASSERT_NE(dm->calibrationModel(), nullptr);
    EXPECT_EQ(dm->calibrationModel()->electrodeName(), QStringLiteral("pH-97"));
}

INSTANTIATE_TEST_SUITE_P(Temperatures, CalibrationOnSlave,
                         ::testing::Values(CalCase{25.0, {4.01, 7.00, 10.01}}, CalCase{10.0, {4.00, 7.06, 10.18}},
                                           CalCase{40.0, {4.03, 6.97, 9.89}}),
                         [](const ::testing::TestParamInfo<CalCase> &info) {
                             return "At" + std::to_string(int(info.param.celsius)) + "C";
                         });

TEST_F(MeterOnSlave, AnElectrodeOfSeventyFivePercentIsRefused)
{
    // 75 % in place of 97 %: the same buffers, too flat a slope.
    vi.stop();
    m_celsius = 25.0;
    makeDataManager();
    ASSERT_TRUE(vi.start(QStringLiteral(R"({"temperature_C":25,"seed":3,"temperature_probe":true,
        "electrode":{"E0_mV":0,"slope_pct":75,"tau_s":0.5,"noise_mV":0.02},
        "beaker":{"kind":"buffer","pH":4.01}})"), kSpeed));
    msp = std::make_unique<mspController>(vi.device());
    msp->setPollInterval(int(250 / kSpeed));
    msp->setReadInterval(1);
    mc = std::make_unique<MeterController>(msp.get(), dm.get());
    ASSERT_TRUE(waitUntil([&] { return dm->engine()->isTemperatureProbePresent(); }, 10000));
    dm->measurementModel()->setReadMode(QStringLiteral("pH"));
    dm->setDeviceMode(QStringLiteral("Calibration"));
    dm->initiateCalibrationModelFromMeasure();
    mc->qmlStartCalibration();
    mc->qmlStartCalPoint();
    ASSERT_GT(samplesToStable(), 0);
    mc->accptCalibration(false);
    ASSERT_EQ(vi.command(QStringLiteral("beaker {\"kind\":\"buffer\",\"pH\":7.00}")), QString());
    ASSERT_TRUE(waitUntil([&] { return std::fabs(dm->engine()->millivolts()) < 0.2; }, 20000));
    mc->qmlStartCalPoint();
    ASSERT_GT(samplesToStable(), 0);
    mc->accptCalibration(false);
    QSignalSpy slopeError(mc.get(), &MeterController::showQmlSlopeError);
    mc->qmlStopCalibration();
    mc->calDone();
    EXPECT_EQ(slopeError.count(), 1);
    EXPECT_TRUE(dm->calibrationCycleList().isEmpty()) << "nothing to store";
}

// The console's meter commands as a user calls them, on one sandbox: a
// three-buffer calibration of the 97 % electrode with +12 mV at pH 7
// reports them within what rounding the buffers to 0.01 allows, and a
// measurement of buffer 7.00 then reads 7.00 to 0.02. A 75 % electrode is
// refused with exit status 1, a bad option with 2.
TEST(MeterCommands, CalibrateThreeBuffersThenMeasureBufferSeven)
{
    QTemporaryDir box;
    const QString file = box.filePath(QStringLiteral("electrode.json"));
    writeTextFile(file, scenario(25.0, 7.00));
    const QString sandbox = box.filePath(QStringLiteral("sandbox"));
    int code = -1;
    QString out = runVantorCli({QStringLiteral("calibrate"), QStringLiteral("--scenario"), file, QStringLiteral("--buffers"),
                                QStringLiteral("4.01,7.00,10.01"), QStringLiteral("--sandbox"), sandbox},
                               &code);
    ASSERT_EQ(code, 0) << out.toStdString();
    EXPECT_EQ(out.count(QRegularExpression(QStringLiteral("Point [123]: buffer [0-9.]+ \\(pH [0-9.]+\\), -?[0-9.]+ mV, 25.0 °C, slope [0-9.]+ %\n"))), 3)
        << out.toStdString();
    const QRegularExpressionMatch slope = QRegularExpression(QStringLiteral("\nSlope: ([0-9.]+) %\n")).match(out);
    const QRegularExpressionMatch offset = QRegularExpression(QStringLiteral("\nOffset: (-?[0-9.]+) mV\n")).match(out);
    ASSERT_TRUE(slope.hasMatch() && offset.hasMatch()) << out.toStdString();
    EXPECT_NEAR(slope.captured(1).toDouble(), kSlopePct, 0.3);
    EXPECT_NEAR(offset.captured(1).toDouble(), kOffsetMv, 0.5);

    out = runVantorCli({QStringLiteral("measure"), QStringLiteral("--scenario"), file, QStringLiteral("--sandbox"), sandbox}, &code);
    ASSERT_EQ(code, 0) << out.toStdString();
    const QRegularExpressionMatch value = QRegularExpression(QStringLiteral("^Value: ([0-9.]+) pH\n")).match(out);
    ASSERT_TRUE(value.hasMatch()) << out.toStdString();
    EXPECT_NEAR(value.captured(1).toDouble(), 7.00, 0.02);
    EXPECT_TRUE(out.contains(QStringLiteral("\nTemperature: 25.0 °C\n"))) << out.toStdString();
    EXPECT_TRUE(out.contains(QRegularExpression(QStringLiteral("\nStable after: [0-9]+\\.[0-9] s\n")))) << out.toStdString();
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("meter"));
        db.setDatabaseName(sandbox + QStringLiteral("/var/KestrumDB"));
        ASSERT_TRUE(db.open());
        // Each with its report row, as the meter screens store it.
        for (const char *table : {"calibrationTable", "calibrationLogTable", "measurementLogTable",
                                  "reportSetupTable WHERE reportType = 'Calibration' AND calibrationId = (SELECT id FROM calibrationTable)",
                                  "reportSetupTable WHERE reportType = 'Measurement' AND measurementId = (SELECT id FROM measurementLogTable)"}) {
            QSqlQuery q(db);
            ASSERT_TRUE(q.exec(QStringLiteral("SELECT count(*) FROM %1").arg(QLatin1String(table))) && q.next()) << table;
            EXPECT_EQ(q.value(0).toInt(), 1) << table;
        }
    }
    QSqlDatabase::removeDatabase(QStringLiteral("meter"));
    const QString database = sandbox + QStringLiteral("/var/KestrumDB");
    const QString calibrations = QStringLiteral("SELECT count(*) FROM calibrationTable");

    // A buffer recognised twice is refused as the screens refuse it, and
    // nothing of that calibration is stored.
    for (const char *buffers : {"4.01,4.01", "4.01,4.05"}) {
        out = runVantorCli({QStringLiteral("calibrate"), QStringLiteral("--scenario"), file, QStringLiteral("--buffers"),
                            QLatin1String(buffers), QStringLiteral("--sandbox"), sandbox},
                           &code);
        EXPECT_EQ(code, 1) << out.toStdString();
        EXPECT_TRUE(out.contains(QStringLiteral("Point 2 refused: the same buffer as another point"))) << out.toStdString();
        EXPECT_EQ(LogRecords::sqlite(database, calibrations), QStringLiteral("1")) << buffers;
    }

    // On a file that takes no writes: the figures, the reason, status 2,
    // and the file byte for byte as it was.
    auto bytesOf = [&] {
        QFile f(database);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    };
    const QByteArray bytesBefore = bytesOf();
    const QString before = LogRecords::sqlite(database, QStringLiteral("SELECT group_concat(id) FROM calibrationTable"));
    const struct {
        QStringList args;
        const char *figure;
        const char *notStored;
    } readOnly[] = {
        {{QStringLiteral("calibrate"), QStringLiteral("--scenario"), file, QStringLiteral("--buffers"), QStringLiteral("4.01,7.00")},
         "\nSlope: ", "the calibration was not stored"},
        {{QStringLiteral("measure"), QStringLiteral("--scenario"), file}, "Value: ", "the reading was not stored"},
        {{QStringLiteral("titrate"), QStringLiteral("--scenario"), QStringLiteral(KESTRUM_SOURCE_DIR "/tools/virtual-instrument/scenarios/acetic-acid-10ml.json")},
         "\nResult: ", "the run was not stored"},
    };
    for (const auto &c : readOnly) {
        out = runVantorCliReadOnly(database, c.args + QStringList{QStringLiteral("--sandbox"), sandbox}, &code);
        if (out.startsWith(QLatin1String("unshare:")))
            GTEST_SKIP() << "no mount namespace here: " << out.toStdString();
        EXPECT_EQ(code, 2) << out.toStdString();
        EXPECT_TRUE(out.contains(QStringLiteral("cannot be written"))) << out.toStdString();
        EXPECT_TRUE(out.contains(QLatin1String(c.figure))) << out.toStdString();
        EXPECT_TRUE(out.contains(QLatin1String(c.notStored))) << out.toStdString();
    }
    EXPECT_EQ(bytesOf(), bytesBefore);
    EXPECT_EQ(LogRecords::sqlite(database, QStringLiteral("SELECT group_concat(id) FROM calibrationTable")), before);

    const QString flat = box.filePath(QStringLiteral("flat.json"));
    writeTextFile(flat, scenario(25.0, 7.00).replace(QStringLiteral("\"slope_pct\":97"), QStringLiteral("\"slope_pct\":75")));
    out = runVantorCli({QStringLiteral("calibrate"), QStringLiteral("--scenario"), flat, QStringLiteral("--buffers"),
                        QStringLiteral("4.01,7.00")},
                       &code);
    EXPECT_EQ(code, 1) << out.toStdString();
    EXPECT_TRUE(out.contains(QStringLiteral("Calibration refused: "))) << out.toStdString();
    EXPECT_FALSE(out.contains(QStringLiteral("Slope: "))) << "nothing stored, nothing reported";
    const QList<QStringList> bad = {
        {QStringLiteral("calibrate")},
        {QStringLiteral("calibrate"), QStringLiteral("--scenario"), file},
        {QStringLiteral("calibrate"), QStringLiteral("--scenario"), file, QStringLiteral("--buffers"), QStringLiteral("4,x")},
        {QStringLiteral("calibrate"), QStringLiteral("--scenario"), file, QStringLiteral("--standards"), QStringLiteral("220")},
        {QStringLiteral("measure"), QStringLiteral("--scenario"), file, QStringLiteral("--mode"), QStringLiteral("Conductivity")},
        {QStringLiteral("measure"), QStringLiteral("--scenario"), box.filePath(QStringLiteral("missing.json"))},
    };
    for (const QStringList &args : bad) {
        runVantorCli(args, &code);
        EXPECT_EQ(code, 2) << args.join(QLatin1Char(' ')).toStdString();
    }
}

} // namespace
