// The burette controller against the virtual instrument's piston on a
// pseudo-terminal, every clock running twenty times faster than real time.
// After each scenario the volume the instrument delivered is compared with
// the controller's own count.

#include "controller/burettecontroller.h"
#include "controller/mspcontroller.h"
#include "models/setupmodel.h"
#include "testdatalayer.h"
#include "testsupport.h"
#include "virtualinstrumentprocess.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

constexpr double kSpeed = 20;

QString scenario(int buretteMl, int lostSizeCommands = 0)
{
    return QStringLiteral(R"({"burette_mL":%1,"faults":{"ignore_size_commands":%2},
        "burette":{"dose_mL_min":60,"refill_mL_min":120},
        "electrode":{"tau_s":0.5,"noise_mV":0.05}})")
        .arg(buretteMl)
        .arg(lostSizeCommands);
}

class Burette : public ::testing::Test
{
protected:
    void TearDown() override
    {
        bc.reset();
        msp.reset();
        vi.stop();
    }

    void start(int buretteMl, int configuredMl, int lostSizeCommands = 0)
    {
        data.dm.setupModel()->setBuretteSize(configuredMl);
        ASSERT_TRUE(vi.start(scenario(buretteMl, lostSizeCommands), kSpeed)) << vi.errorText().toStdString();
        msp = std::make_unique<mspController>(vi.device());
        msp->setPollInterval(int(250 / kSpeed));
        msp->setReadInterval(2);
        bc = std::make_unique<BuretteController>(msp.get());
        bc->setTickInterval(int(250 / kSpeed));
        completed = std::make_unique<QSignalSpy>(bc.get(), &BuretteController::backendDispenseCompleted);
        // The controller's first idle ticks settle the size with the slave.
        ASSERT_TRUE(waitUntil([&] { return slaveSize() == configuredMl; }, 10000));
    }

    int slaveSize() const
    {
        mspInfoRecord info;
        msp->msp->getInfo(info);
        return info.buretteSize;
    }

    // The instrument's own account, from its last event line.
    double instrumentTotal(const char *what) const
    {
        const QRegularExpression re(QStringLiteral("%1 ([0-9.]+) uL").arg(QLatin1String(what)));
        QRegularExpressionMatchIterator it = re.globalMatch(vi.traceText());
        double last = 0;
        while (it.hasNext())
            last = it.next().captured(1).toDouble();
        return last;
    }

    // The motion commands the controller sent, in order.
    QStringList motions() const
    {
        QStringList out;
        const QStringList lines = vi.traceLines('>');
        for (const QString &l : lines) {
            const QString cmd = l.section(QLatin1Char(' '), 2);
            if (cmd.startsWith(QLatin1String("BDS")) || cmd == QLatin1String("BES")
                || cmd == QLatin1String("BHS") || cmd == QLatin1String("SH"))
                out << cmd;
        }
        return out;
    }

    bool waitIdle(int completions)
    {
        return waitUntil([&] {
            return completed->count() == completions && bc->state() == BuretteController::BURETTE_IDLE;
        }, 20000);
    }

    TestDataLayer data;
    VirtualInstrumentProcess vi;
    std::unique_ptr<mspController> msp;
    std::unique_ptr<BuretteController> bc;
    std::unique_ptr<QSignalSpy> completed;
};

} // namespace

TEST_F(Burette, DoseLargerThanWhatIsLeftArrivesWholeAroundOneRefill)
{
    start(10, 10);
    bc->dispense_ul(7000);
    EXPECT_TRUE(data.dm.engine()->getDispenseInProgress());
    ASSERT_TRUE(waitIdle(1));
    EXPECT_FALSE(data.dm.engine()->getDispenseInProgress());

    bc->dispense_ul(6000); // 3000 left in the cylinder
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_LAST_PART);
    ASSERT_TRUE(waitUntil([&] { return bc->state() == BuretteController::BURETTE_REFILLING; }, 20000));
    EXPECT_TRUE(data.dm.engine()->getDispenseInProgress()); // the dose is not over during the refill
    EXPECT_EQ(completed->count(), 1);
    ASSERT_TRUE(waitIdle(2));
    EXPECT_EQ(completed->count(), 2); // one completion for the split dose

    EXPECT_EQ(motions(), (QStringList{"BDS 7000", "BDS 3000", "SH", "BDS 3000"}));
    EXPECT_EQ(bc->getTotalDispensed(), 13000);
    EXPECT_EQ(bc->position(), 3000);
    EXPECT_DOUBLE_EQ(instrumentTotal("dosed"), 13000.0);
    EXPECT_TRUE(data.console().contains(QStringLiteral("Dispensing(ul): 3000\r\n")));
}

TEST_F(Burette, DoseOfMoreThanACylinderAndWhatIsLeftTakesAsManyRefills)
{
    start(10, 10);
    bc->dispense_ul(4000);
    ASSERT_TRUE(waitIdle(1));
    bc->dispense_ul(23000); // 6000 left, a full cylinder, then 7000
    ASSERT_TRUE(waitIdle(2));
    EXPECT_EQ(motions(), (QStringList{"BDS 4000", "BDS 6000", "SH", "BDS 10000", "SH", "BDS 7000"}));
    EXPECT_EQ(bc->getTotalDispensed(), 27000);
    EXPECT_EQ(bc->position(), 7000) << "never beyond the cylinder";
    EXPECT_DOUBLE_EQ(instrumentTotal("dosed"), 27000.0);
    EXPECT_FALSE(vi.traceText().contains(QStringLiteral("not delivered")));
}

TEST_F(Burette, DoseEndingExactlyAtCapacityIsNotSplit)
{
    start(10, 10);
    bc->dispense_ul(4000);
    ASSERT_TRUE(waitIdle(1));
    bc->dispense_ul(6000);
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_DOSE);
    ASSERT_TRUE(waitIdle(2));
    EXPECT_EQ(bc->position(), 10000);

    // The next dose finds the cylinder empty: refill first, no dose of nothing.
    bc->dispense_ul(2500);
    ASSERT_TRUE(waitIdle(3));
    EXPECT_EQ(motions(), (QStringList{"BDS 4000", "BDS 6000", "SH", "BDS 2500"}));
    EXPECT_EQ(bc->getTotalDispensed(), 12500);
    EXPECT_DOUBLE_EQ(instrumentTotal("dosed"), 12500.0);
}

TEST_F(Burette, FlushEmptiesAndRefillsTheCylinder)
{
    start(10, 10);
    bc->dispense_ul(3000); // piston away from the load position
    ASSERT_TRUE(waitIdle(1));
    msp->msp->queryBurette();
    ASSERT_TRUE(waitUntil([&] { return !msp->msp->isBuretteAtLoad() && !msp->msp->isBuretteBusy(); }));

    QSignalSpy flushed(bc.get(), &BuretteController::signal_flushComplete);
    bc->flush();
    ASSERT_TRUE(waitUntil([&] { return flushed.count() == 1; }, 20000));
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_READY);
    EXPECT_EQ(motions(), (QStringList{"BDS 3000", "BHS", "BES", "BHS"}));
    EXPECT_DOUBLE_EQ(instrumentTotal("expelled"), 10000.0); // one full cylinder
    EXPECT_TRUE(msp->msp->isBuretteAtLoad());

    // A second flush starts at the load position: straight to the end.
    bc->flush();
    ASSERT_TRUE(waitUntil([&] { return flushed.count() == 2; }, 20000));
    EXPECT_EQ(motions().mid(4), (QStringList{"BES", "BHS"}));
    EXPECT_DOUBLE_EQ(instrumentTotal("expelled"), 20000.0);
    EXPECT_EQ(bc->getTotalDispensed(), 3000);
    EXPECT_DOUBLE_EQ(instrumentTotal("dosed"), 3000.0);
}

TEST_F(Burette, StoppedRinseEndsAtTheLoadPosition)
{
    start(10, 10);
    QSignalSpy rinsed(bc.get(), &BuretteController::qmlRinseCompleted);
    QSignalSpy flushed(bc.get(), &BuretteController::signal_flushComplete);
    bc->flush();
    ASSERT_TRUE(waitUntil([&] { return motions().contains(QStringLiteral("BES")); }, 20000));
    bc->stopRinse();
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_RINSE_STOPPING);
    ASSERT_TRUE(waitUntil([&] { return rinsed.count() == 1; }, 20000));
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_IDLE);
    EXPECT_EQ(flushed.count(), 0);
    EXPECT_TRUE(msp->msp->isBuretteAtLoad());
}

TEST_F(Burette, StoppedContinuousDispense)
{
    start(10, 10);
    QSignalSpy done(bc.get(), &BuretteController::qmlDispenseCompleted);
    QSignalSpy samples(msp.get(), &mspController::mspNewDataSignal);
    bc->startManualContinuousDispense();
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_MANUAL_CONTINUOUS);
    // Let the piston run for about three seconds of the instrument's time.
    ASSERT_TRUE(waitUntil([&] { return samples.count() >= 12; }, 20000));
    bc->stopManualDispense();
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_MANUAL_HOMING);
    ASSERT_TRUE(waitUntil([&] { return done.count() == 1; }, 20000));
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_READY);
    EXPECT_EQ(motions(), (QStringList{"BES", "SH"}));
    EXPECT_TRUE(vi.traceText().contains(QStringLiteral("stopped by SH")));
    const double expelled = instrumentTotal("expelled");
    EXPECT_GT(expelled, 1000.0);
    EXPECT_LT(expelled, 10000.0);
    EXPECT_TRUE(msp->msp->isBuretteAtLoad());
    EXPECT_EQ(bc->getTotalDispensed(), 0);
    EXPECT_DOUBLE_EQ(instrumentTotal("dosed"), 0.0);
}

TEST_F(Burette, ManualDoseIsCappedAtOneCylinderAndGoesHome)
{
    start(10, 10);
    QSignalSpy wait(bc.get(), &BuretteController::qmlDispenseWait);
    QSignalSpy done(bc.get(), &BuretteController::qmlDispenseCompleted);
    bc->dispense_manual_ul(25000);
    EXPECT_TRUE(data.dm.engine()->getDispenseInProgress());
    ASSERT_TRUE(waitUntil([&] { return wait.count() == 1; }, 20000));
    EXPECT_FALSE(data.dm.engine()->getDispenseInProgress());
    ASSERT_TRUE(waitUntil([&] { return done.count() == 1; }, 20000));
    EXPECT_EQ(motions(), (QStringList{"BDS 10000", "BHS"}));
    EXPECT_DOUBLE_EQ(instrumentTotal("dosed"), 10000.0);
    EXPECT_EQ(bc->getTotalDispensed(), 0); // manual doses are not the run's
    EXPECT_TRUE(msp->msp->isBuretteAtLoad());
}

TEST_F(Burette, RunEndHomesAndClearsTheCount)
{
    start(10, 10);
    bc->dispense_ul(2500);
    ASSERT_TRUE(waitIdle(1));
    bc->resetBurette();
    EXPECT_EQ(bc->getTotalDispensed(), 0);
    EXPECT_EQ(bc->state(), BuretteController::BURETTE_END_HOMING);
    ASSERT_TRUE(waitUntil([&] { return bc->state() == BuretteController::BURETTE_READY; }, 20000));
    EXPECT_TRUE(msp->msp->isBuretteAtLoad());
    EXPECT_DOUBLE_EQ(instrumentTotal("dosed"), 2500.0);
}

TEST_F(Burette, SizeHandshakeRepeatsUntilTheSlaveReportsTheConfiguredSize)
{
    start(10, 20, 3); // the slave loses the first three size commands
    const int sent = vi.traceLines('>').filter(QStringLiteral("> BSS 20")).size();
    EXPECT_GE(sent, 4);
    // Once the slave reports the size, the controller stops asking.
    QSignalSpy samples(msp.get(), &mspController::mspNewDataSignal);
    ASSERT_TRUE(waitUntil([&] { return samples.count() >= 10; }));
    EXPECT_EQ(vi.traceLines('>').filter(QStringLiteral("> BSS 20")).size(), sent);
    EXPECT_EQ(vi.traceLines('*').filter(QStringLiteral("size command lost")).size(), 3);

    // And the new size is the cylinder's: a 15 mL dose is not split.
    bc->dispense_ul(15000);
    ASSERT_TRUE(waitIdle(1));
    EXPECT_EQ(motions(), (QStringList{"BDS 15000"}));
    EXPECT_DOUBLE_EQ(instrumentTotal("dosed"), 15000.0);
}
