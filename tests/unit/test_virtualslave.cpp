// The virtual slave on its own clock: the piston, the dispense status, the
// electrode's lag and noise, and the replies to bad commands.

#include "scenario.h"
#include "virtualslave.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

std::unique_ptr<VirtualSlave> makeSlave(const char *json = "{\"electrode\":{\"noise_mV\":0}}")
{
    Scenario s;
    QString error;
    EXPECT_TRUE(Scenario::parse(json, &s, &error)) << error.toStdString();
    return std::make_unique<VirtualSlave>(s.config, std::move(s.beaker));
}

QStringList words(const QByteArray &reply)
{
    return QString::fromLatin1(reply).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

// Runs the clock until the burette stands still; returns the time it took.
qint64 runUntilStill(VirtualSlave &s, qint64 limitMs = 600000)
{
    const qint64 start = s.now();
    while (s.busy() && s.now() - start < limitMs)
        s.advanceTo(s.now() + 50);
    return s.now() - start;
}

} // namespace

TEST(VirtualSlave, DoseTakesTimeAndReportsItsStatus)
{
    auto s = makeSlave();
    EXPECT_EQ(s->positionCode(), 2);
    EXPECT_TRUE(s->handle("BDS 1000").isEmpty());
    EXPECT_TRUE(s->busy());
    EXPECT_EQ(words(s->handle("MG")).value(5), "0");
    EXPECT_EQ(s->handle("BBG"), "BBG 1 0\r\n");
    s->advanceTo(1500);
    EXPECT_TRUE(s->busy());
    EXPECT_NEAR(s->dosedUl(), 500.0, 10.0); // 20 mL/min is a third of a µL per ms
    const qint64 took = runUntilStill(*s);
    EXPECT_NEAR(1500 + took, 3000, 60);
    EXPECT_EQ(words(s->handle("MG")).value(5), "1");
    EXPECT_DOUBLE_EQ(s->dosedUl(), 1000.0);
    EXPECT_DOUBLE_EQ(s->contentUl(), 19000.0);
    EXPECT_EQ(s->handle("BBG"), "BBG 0 0\r\n");
}

TEST(VirtualSlave, DoseBeyondTheCylinderStopsAtItsEnd)
{
    auto s = makeSlave();
    s->handle("BDS 25000");
    runUntilStill(*s);
    EXPECT_DOUBLE_EQ(s->dosedUl(), 20000.0);
    EXPECT_EQ(s->positionCode(), 1);
    EXPECT_EQ(s->dispenseStatus(), 1);
    // Refill through the valve brings it back to the load position.
    s->handle("BHS");
    EXPECT_EQ(s->handle("BBG"), "BBG 1 0\r\n");
    runUntilStill(*s);
    EXPECT_EQ(s->handle("BBG"), "BBG 0 2\r\n");
    EXPECT_DOUBLE_EQ(s->contentUl(), 20000.0);
}

TEST(VirtualSlave, StopAndHomeEndsADoseAndRefills)
{
    auto s = makeSlave();
    s->handle("BDS 10000");
    s->advanceTo(3000);
    s->handle("SH");
    EXPECT_EQ(s->dispenseStatus(), 1);
    EXPECT_TRUE(s->busy());
    const double dosed = s->dosedUl();
    EXPECT_NEAR(dosed, 1000.0, 10.0);
    runUntilStill(*s);
    EXPECT_EQ(s->positionCode(), 2);
    EXPECT_DOUBLE_EQ(s->dosedUl(), dosed);
}

TEST(VirtualSlave, EmptyingTheCylinderCountsApartFromDoses)
{
    auto s = makeSlave();
    s->handle("BES");
    runUntilStill(*s);
    EXPECT_DOUBLE_EQ(s->expelledUl(), 20000.0);
    EXPECT_DOUBLE_EQ(s->dosedUl(), 0.0);
    EXPECT_EQ(s->positionCode(), 1);
}

TEST(VirtualSlave, MotionCommandsWhileMovingAreRefused)
{
    auto s = makeSlave();
    s->handle("BES");
    EXPECT_EQ(s->handle("BDS 100"), "BDS ERROR CIP\r\n");
    EXPECT_EQ(s->handle("BHS"), "BHS ERROR CIP\r\n");
    EXPECT_EQ(s->handle("BSS 10"), "BSS ERROR CIP\r\n");
}

TEST(VirtualSlave, BadCommandsGetErrorWords)
{
    auto s = makeSlave();
    EXPECT_EQ(s->handle("NOPE"), "NOPE ERROR NSC\r\n");
    EXPECT_EQ(s->handle("BDS"), "BDS ERROR CE\r\n");
    EXPECT_EQ(s->handle("BDS ten"), "BDS ERROR CE\r\n");
    EXPECT_EQ(s->handle("BDS 0"), "BDS ERROR OOR\r\n");
    EXPECT_EQ(s->handle("SSS 6"), "SSS ERROR OOR\r\n");
    EXPECT_TRUE(s->handle("").isEmpty());
    EXPECT_FALSE(s->busy());
}

TEST(VirtualSlave, ReadBacksAndVersion)
{
    auto s = makeSlave("{\"slave\":{\"version\":\"2.10\",\"serial\":\"SN42\"}}");
    s->handle("SSS 3");
    s->handle("BLS 4");
    s->handle("VS 1");
    s->handle("BSS 10");
    EXPECT_EQ(s->handle("SSG"), "SSG 3\r\n");
    EXPECT_EQ(s->handle("BLG"), "BLG 4\r\n");
    EXPECT_EQ(s->handle("VG"), "VG 1\r\n");
    EXPECT_EQ(s->handle("BSG"), "BSG 10\r\n");
    const QStringList v = words(s->handle("SYSTEM").trimmed());
    ASSERT_EQ(v.size(), 8);
    EXPECT_EQ(v.at(3), "2.10");
    EXPECT_EQ(v.at(7), "SN42");
}

TEST(VirtualSlave, SizeCommandsCanBeLost)
{
    auto s = makeSlave("{\"burette_mL\":10,\"faults\":{\"ignore_size_commands\":2}}");
    s->handle("BSS 20");
    s->handle("BSS 20");
    EXPECT_EQ(s->handle("BSG"), "BSG 10\r\n");
    s->handle("BSS 20");
    EXPECT_EQ(s->handle("BSG"), "BSG 20\r\n");
}

TEST(VirtualSlave, ProbeReplyHasTenFieldsAndTheInstrumentClock)
{
    auto s = makeSlave();
    s->advanceTo(12345);
    const QStringList w = words(s->handle("MG").trimmed());
    ASSERT_EQ(w.size(), 11);
    EXPECT_EQ(w.at(0), "MG");
    EXPECT_EQ(w.at(4), "12345");
    EXPECT_NEAR(w.at(7).toDouble(), -59.16 * (2.88 - 7.0), 0.7);
    EXPECT_NEAR(w.at(2).toDouble(), 25.0, 1e-9);
    auto noProbe = makeSlave("{\"temperature_probe\":false}");
    EXPECT_NEAR(words(noProbe->handle("MG")).at(2).toDouble(), 125.0, 1e-9);
}

TEST(VirtualSlave, ElectrodeLagsWithItsTimeConstant)
{
    auto s = makeSlave("{\"electrode\":{\"noise_mV\":0,\"tau_s\":2}}");
    const double before = s->electrodeMv();
    s->handle("BDS 10000"); // to half neutralisation in 30 s
    runUntilStill(*s);
    const AcidBaseBeaker b{AcidBaseBeaker::Params{}};
    const double target = b.potentialMv(10.0);
    EXPECT_GT(std::fabs(target - s->electrodeMv()), 0.5); // still behind
    const qint64 t = s->now();
    const double gap = target - s->electrodeMv();
    s->advanceTo(t + 2000); // one time constant
    EXPECT_NEAR((target - s->electrodeMv()) / gap, std::exp(-1.0), 0.02);
    s->advanceTo(t + 30000);
    EXPECT_NEAR(s->electrodeMv(), target, 0.01);
    EXPECT_LT(s->electrodeMv(), before); // more base, lower potential
}

TEST(VirtualSlave, NoiseIsRepeatableFromTheSeed)
{
    const char *json = "{\"seed\":7,\"electrode\":{\"noise_mV\":0.5}}";
    auto a = makeSlave(json);
    auto b = makeSlave(json);
    auto c = makeSlave("{\"seed\":8,\"electrode\":{\"noise_mV\":0.5}}");
    double sum = 0, sumSq = 0;
    bool differs = false;
    for (int i = 0; i < 400; ++i) {
        const QByteArray ra = a->handle("MG");
        EXPECT_EQ(ra, b->handle("MG"));
        differs |= ra != c->handle("MG");
        const double v = words(ra).at(7).toDouble() - a->electrodeMv();
        sum += v;
        sumSq += v * v;
    }
    EXPECT_TRUE(differs);
    EXPECT_NEAR(sum / 400, 0.0, 0.1);
    EXPECT_NEAR(std::sqrt(sumSq / 400), 0.5, 0.1);
}

TEST(VirtualSlave, NewSizeKeepsThePistonWhereItIs)
{
    auto s = makeSlave("{\"burette_mL\":10}");
    s->handle("BSS 20");
    EXPECT_EQ(s->positionCode(), 2);
    EXPECT_DOUBLE_EQ(s->contentUl(), 20000.0);
    s->handle("BDS 5000");
    runUntilStill(*s);
    s->handle("BSS 10");
    EXPECT_DOUBLE_EQ(s->contentUl(), 7500.0);
}

// Whatever arrives on the line, the piston stays inside its cylinder and
// every reply is one line.
TEST(VirtualSlave, HostileCommandLines)
{
    auto s = makeSlave("{\"burette_mL\":5}");
    std::mt19937 rng(99);
    const char *tokens[] = {"BDS", "BES", "BHS", "SH", "STP", "BSS", "SSS", "BLS", "VS", "MG",
                            "BBG", "REBOOT", "-1", "99999999999", "0", "250", "1e3", "\xff", ""};
    for (int i = 0; i < 5000; ++i) {
        QByteArray line;
        const int n = int(rng() % 4);
        for (int k = 0; k < n; ++k) {
            line += tokens[rng() % (sizeof tokens / sizeof tokens[0])];
            line += (rng() % 5) ? " " : "\t";
        }
        if (rng() % 7 == 0)
            line += QByteArray(int(rng() % 300), char(rng() % 256));
        const QByteArray reply = s->handle(line);
        ASSERT_TRUE(reply.isEmpty() || (reply.endsWith("\r\n") && reply.count('\n') == 1));
        s->advanceTo(s->now() + qint64(rng() % 2000));
        ASSERT_GE(s->contentUl(), -1e-6);
        ASSERT_LE(s->contentUl(), s->buretteSizeMl() * 1000.0 + 1e-6);
        ASSERT_GE(s->buretteSizeMl(), 1);
    }
}
