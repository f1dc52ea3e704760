// The application's slave link against the virtual instrument on a
// pseudo-terminal, with the instrument's clock running faster than real time
// and the link's timers shortened by the same factor.

#include "beaker.h"
#include "controller/mspcontroller.h"
#include "testdatalayer.h"
#include "testsupport.h"
#include "virtualinstrumentprocess.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {

const char *kAcetic = R"({"seed":3,
  "slave":{"version":"1.07","serial":"VP400-0042"},
  "electrode":{"E0_mV":0,"slope_pct":100,"tau_s":1.0,"noise_mV":0.05},
  "beaker":{"kind":"acid-base","volume_mL":50,
            "analyte":{"pKa":[4.76],"conc_mol_L":0.1,"form":"acid"},
            "titrant":{"kind":"strong-base","conc_mol_L":0.1}}})";

struct Samples {
    std::vector<long> t;
    std::vector<double> mv;
};

class SlaveLink : public ::testing::Test
{
protected:

    std::unique_ptr<mspController> connect(double speed)
    {
        auto msp = std::make_unique<mspController>(vi.device());
        msp->setPollInterval(int(250 / speed));
        msp->setReadInterval(std::max(1, int(40 / speed)));
        QObject::connect(msp.get(), &mspController::mspNewDataSignal, [this](long t, double mv) {
            samples.t.push_back(t);
            samples.mv.push_back(mv);
        });
        return msp;
    }

    TestDataLayer data;
    VirtualInstrumentProcess vi;
    Samples samples;
};

} // namespace

TEST_F(SlaveLink, VersionAndSerialArrive)
{
    ASSERT_TRUE(vi.start(kAcetic, 5)) << vi.errorText().toStdString();
    auto msp = connect(5);
    ASSERT_TRUE(waitUntil([&] { return data.dm.engine()->getMspVersion() == QLatin1String("1.07"); }));
    EXPECT_EQ(data.dm.getMfgSerialNum(), QStringLiteral("VP400-0042"));
}

TEST_F(SlaveLink, PollRunsEveryQuarterSecondOnTheInstrumentsClock)
{
    ASSERT_TRUE(vi.start(kAcetic, 4)) << vi.errorText().toStdString();
    auto msp = connect(4);
    ASSERT_TRUE(waitUntil([&] { return samples.t.size() >= 25; }, 20000));
    std::vector<long> gaps;
    for (size_t i = 1; i < samples.t.size(); ++i) {
        ASSERT_GT(samples.t[i], samples.t[i - 1]);
        gaps.push_back(samples.t[i] - samples.t[i - 1]);
    }
    std::nth_element(gaps.begin(), gaps.begin() + long(gaps.size() / 2), gaps.end());
    EXPECT_NEAR(double(gaps[gaps.size() / 2]), 250.0, 30.0);
    // Every poll of the trace is one sample: none is lost on the line.
    EXPECT_GE(vi.traceLines('<').filter(QStringLiteral(" < MG ")).size(), int(samples.t.size()));
    // Initial reading: 0.1 mol/L acetic acid, pH 2.88.
    EXPECT_NEAR(samples.mv.back(), -59.16 * (2.88 - 7.0), 0.8);
}

TEST_F(SlaveLink, DoseMovesThePistonAndTheMillivoltsFollowTheChemistry)
{
    const double speed = 25;
    ASSERT_TRUE(vi.start(kAcetic, speed)) << vi.errorText().toStdString();
    auto msp = connect(speed);
    ASSERT_TRUE(waitUntil([&] { return samples.t.size() >= 3; }));
    const double before = samples.mv.back();

    msp->msp->dispense(5000); // 5 mL: 15 s of piston travel
    msp->msp->setBuretteBusy();
    EXPECT_FALSE(msp->msp->isDispenseDone());
    size_t during = 0;
    ASSERT_TRUE(waitUntil([&] {
        if (!msp->msp->isDispenseDone())
            during = samples.t.size();
        return msp->msp->isDispenseDone() && samples.t.size() > during + 2;
    }, 20000));
    EXPECT_GT(during, 10u); // the slave said "still dispensing" for a while

    msp->msp->queryBurette();
    ASSERT_TRUE(waitUntil([&] { return !msp->msp->isBuretteBusy(); }));
    EXPECT_FALSE(msp->msp->isBuretteAtLoad());

    // After five time constants the electrode stands at the beaker's value.
    const long doneAt = samples.t.back();
    ASSERT_TRUE(waitUntil([&] { return samples.t.back() > doneAt + 6000; }, 20000));
    AcidBaseBeaker::Params p;
    const double expected = AcidBaseBeaker(p).potentialMv(5.0); // pH 3.81
    EXPECT_NEAR(samples.mv.back(), expected, 0.3);
    EXPECT_LT(samples.mv.back(), before - 50.0);
    EXPECT_TRUE(vi.traceText().contains(QStringLiteral("dose done 5000 uL")));

    // The refill brings it back to the load position.
    msp->msp->setHomeBurette();
    msp->msp->setBuretteBusy();
    ASSERT_TRUE(waitUntil([&] {
        msp->msp->queryBurette();
        return !msp->msp->isBuretteBusy() && msp->msp->isBuretteAtLoad();
    }, 20000));
}

TEST_F(SlaveLink, InstrumentGoneAndBack)
{
    ASSERT_TRUE(vi.start(kAcetic, 10)) << vi.errorText().toStdString();
    auto msp = connect(10);
    ASSERT_TRUE(waitUntil([&] { return samples.t.size() >= 2; }));
    vi.stop();
    ASSERT_TRUE(waitUntil([&] { return !msp->portIsOpen(); }));
    const size_t seen = samples.t.size();

    QString other = QString::fromLatin1(kAcetic);
    other.replace(QStringLiteral("\"1.07\""), QStringLiteral("\"2.00\""));
    ASSERT_TRUE(vi.start(other, 10)) << vi.errorText().toStdString();
    ASSERT_TRUE(waitUntil([&] { return data.dm.engine()->getMspVersion() == QLatin1String("2.00"); }, 10000));
    ASSERT_TRUE(waitUntil([&] { return samples.t.size() > seen + 2; }));
}

// The electrode goes from one buffer into another while the link runs: the
// millivolts settle at the new buffer's value with the electrode's lag, and
// a bad control line is refused without disturbing the instrument.
TEST_F(SlaveLink, ElectrodeMovesBetweenBuffers)
{
    const double speed = 20;
    ASSERT_TRUE(vi.start(QStringLiteral(R"({"seed":5,"temperature_C":25,
        "electrode":{"E0_mV":12,"slope_pct":97,"tau_s":1.0,"noise_mV":0.02},
        "beaker":{"kind":"buffer","pH":7.00}})"), speed)) << vi.errorText().toStdString();
    auto msp = connect(speed);
    ASSERT_TRUE(waitUntil([&] { return samples.t.size() >= 4; }));
    EXPECT_NEAR(samples.mv.back(), 12.0, 0.2);

    EXPECT_TRUE(vi.command(QStringLiteral("beaker {\"kind\":\"buffer\",\"pH\":4.01}")).isEmpty());
    const long movedAt = samples.t.back();
    ASSERT_TRUE(waitUntil([&] { return samples.t.back() > movedAt + 8000; }, 20000));
    EXPECT_NEAR(samples.mv.back(), 12.0 - 0.97 * 59.159 * (4.01 - 7.0), 0.3);

    EXPECT_FALSE(vi.command(QStringLiteral("beaker {\"kind\":\"lemonade\"}")).isEmpty());
    EXPECT_FALSE(vi.command(QStringLiteral("beaker not json")).isEmpty());
    EXPECT_FALSE(vi.command(QStringLiteral("dance")).isEmpty());
    const size_t before = samples.t.size();
    ASSERT_TRUE(waitUntil([&] { return samples.t.size() > before + 2; }));
    EXPECT_NEAR(samples.mv.back(), 12.0 - 0.97 * 59.159 * (4.01 - 7.0), 0.3);
    EXPECT_TRUE(vi.isRunning());
}
