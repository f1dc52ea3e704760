#include "system/beeper.h"
#include "system/platform.h"
#include "testsupport.h"

#include <QDateTime>
#include <QFile>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

TEST(Platform, HostPathsLiveInTheSandbox)
{
    TempSandbox sandbox;
    ASSERT_FALSE(Platform::isTarget());
    EXPECT_EQ(Platform::path(QStringLiteral("/var/KestrumDB")), sandbox.root() + QStringLiteral("/var/KestrumDB"));
    EXPECT_EQ(Platform::path(QStringLiteral("/dev/ttymxc2")), sandbox.root() + QStringLiteral("/dev/ttymxc2"));
    EXPECT_EQ(Platform::path(QStringLiteral("/var/Kestrum/log/")), sandbox.root() + QStringLiteral("/var/Kestrum/log/"));
    EXPECT_EQ(Platform::path(QStringLiteral("relative/name")), QStringLiteral("relative/name"));
}

// A host build asked to reboot, restart the service, set the clock or mount
// records the command and does not run it. Each of these would fail loudly
// or change the machine if it ran: the simulated answer is exit 0 and the
// system time stays where it was.
TEST(Platform, HostRecordsDestructiveCommandsWithoutRunningThem)
{
    TempSandbox sandbox;
    const QDateTime before = QDateTime::currentDateTime();
    const struct { const char *program; QStringList args; } commands[] = {
        {"/sbin/reboot", {}},
        {"systemctl", {QStringLiteral("restart"), QStringLiteral("b2qt")}},
        {"date", {QStringLiteral("-s"), QStringLiteral("2001-01-01 00:00:00")}},
        {"/sbin/hwclock", {QStringLiteral("-w")}},
        {"mount", {QStringLiteral("/dev/sda1"), QStringLiteral("/media/usb")}},
        {"umount", {QStringLiteral("/media/usb")}},
        {"/usr/bin/connmanctl", {QStringLiteral("enable"), QStringLiteral("gadget")}},
        {"bash", {QStringLiteral("-c"), QStringLiteral("touch /tmp/should-not-exist-kestrum")}},
    };
    for (const auto &c : commands) {
        const Platform::Result r = Platform::run(QString::fromLatin1(c.program), c.args, 1000);
        EXPECT_TRUE(r.simulated) << c.program;
        EXPECT_TRUE(r.ok()) << c.program;
        EXPECT_TRUE(Platform::startDetached(QString::fromLatin1(c.program), c.args));
    }
    EXPECT_FALSE(QFile::exists(QStringLiteral("/tmp/should-not-exist-kestrum")));
    EXPECT_LT(qAbs(QDateTime::currentDateTime().secsTo(before)), 60) << "the clock was not set";

    const QStringList recorded = Platform::recordedCommands();
    ASSERT_EQ(recorded.size(), 16);
    EXPECT_EQ(recorded[0], QStringLiteral("/sbin/reboot"));
    EXPECT_EQ(recorded[2], QStringLiteral("systemctl restart b2qt"));
    EXPECT_EQ(recorded[4], QStringLiteral("date -s 2001-01-01 00:00:00"));
    const QString log = readTextFile(sandbox.path(QStringLiteral("/var/Kestrum/platform-commands.log")));
    EXPECT_TRUE(log.contains(QStringLiteral("systemctl restart b2qt")));
    EXPECT_TRUE(log.contains(QStringLiteral("/sbin/reboot")));
}

TEST(Platform, SimulatedAnswersAndHarmlessCommandsRunForReal)
{
    TempSandbox sandbox;
    Platform::Result notMounted;
    notMounted.exitCode = 32;
    notMounted.standardError = "umount: /media/usb: not mounted.";
    Platform::setSimulatedResult(QStringLiteral("umount"), notMounted);
    const Platform::Result r = Platform::run(QStringLiteral("umount"), {QStringLiteral("/media/usb")}, 1000);
    EXPECT_TRUE(r.simulated);
    EXPECT_EQ(r.exitCode, 32);
    EXPECT_TRUE(r.standardError.contains("not mounted"));
    Platform::setSimulatedResult(QStringLiteral("umount"), Platform::Result{true, true, 0, {}, {}});
    EXPECT_EQ(Platform::recordedCommands(), QStringList{QStringLiteral("umount /media/usb")});
    Platform::clearRecordedCommands();

    // mkdir is harmless and runs, on a sandboxed path; an argument holding
    // shell syntax stays one argument.
    const QString dir = Platform::path(QStringLiteral("/media/usb/a; touch b"));
    const Platform::Result made = Platform::run(QStringLiteral("mkdir"), {QStringLiteral("-p"), dir}, 5000);
    EXPECT_FALSE(made.simulated);
    EXPECT_TRUE(made.ok());
    EXPECT_TRUE(QFile::exists(dir));
    EXPECT_FALSE(QFile::exists(Platform::path(QStringLiteral("/media/usb/b"))));
    EXPECT_TRUE(Platform::recordedCommands().isEmpty());

    const Platform::Result missing = Platform::run(QStringLiteral("find"), {QStringLiteral("/nonexistent-kestrum")}, 5000);
    EXPECT_TRUE(missing.started);
    EXPECT_NE(missing.exitCode, 0);
}

QString deviceFile(const char *path)
{
    return readTextFile(Platform::path(QString::fromLatin1(path))).trimmed();
}

// A tone writes duty cycle, period and enable, in this order, straight into
// the channel's files; its stop writes 0. A frequency of 0 (which would
// divide by zero) is refused before anything is written.
TEST(Beeper, TonesWriteTheChannelFilesAndStopAfterTheirDuration)
{
    TempSandbox sandbox;
    Beeper beeper;
    EXPECT_TRUE(Platform::recordedCommands().isEmpty()) << "nothing before the first tone";
    const struct { int hz, ms; const char *period, *duty; bool stopPending; } rows[] = {
        {440, 1000, "2272728", "1136364", true},
        {4000, 200, "250001", "125000", true}, // half a ns added, then rounded
        {1, 50, "1000000000", "500000000", true},
        {440, 0, "2272728", "1136364", false}, // sounds until stopped
    };
    for (const auto &r : rows) {
        Platform::clearRecordedCommands();
        ASSERT_TRUE(beeper.beep(r.hz, r.ms)) << r.hz;
        EXPECT_EQ(deviceFile(Beeper::periodPath), QString::fromLatin1(r.period)) << r.hz;
        EXPECT_EQ(deviceFile(Beeper::dutyCyclePath), QString::fromLatin1(r.duty)) << r.hz;
        EXPECT_EQ(deviceFile(Beeper::enablePath), QStringLiteral("1"));
        const QStringList written = Platform::recordedCommands().filter(QStringLiteral("/pwm0/"));
        ASSERT_EQ(written.size(), 3);
        EXPECT_TRUE(written[0].startsWith(QStringLiteral("write /sys/class/pwm/pwmchip0/pwm0/duty_cycle ")));
        EXPECT_TRUE(written[2].endsWith(QStringLiteral("enable 1")));
        EXPECT_EQ(beeper.isStopPending(), r.stopPending) << r.hz;
        if (r.stopPending) {
            EXPECT_EQ(beeper.stopDelayMs(), r.ms);
        }
    }
    EXPECT_EQ(deviceFile(Beeper::exportPath), QStringLiteral("0")) << "exported before the first tone";
    QSignalSpy complete(&beeper, &Beeper::beepComplete);
    beeper.stopBeeping();
    EXPECT_EQ(deviceFile(Beeper::enablePath), QStringLiteral("0"));
    EXPECT_EQ(complete.count(), 1);

    Platform::clearRecordedCommands();
    for (int hz : {0, -440})
        EXPECT_FALSE(beeper.beep(hz, 1000));
    EXPECT_TRUE(Platform::recordedCommands().isEmpty());
    EXPECT_FALSE(beeper.isStopPending());
}

// Each note's end starts the next; a tune's end leaves no connection, so a
// plain tone afterwards plays no further note.
TEST(Beeper, ATuneWalksItsNotesOnEachStopAndThenLetsGo)
{
    TempSandbox sandbox;
    Beeper beeper;
    beeper.playNotify();
    QStringList periods{deviceFile(Beeper::periodPath)};
    for (int i = 0; i < 3; ++i) {
        beeper.stopBeeping();
        periods << deviceFile(Beeper::periodPath);
    }
    EXPECT_EQ(periods.size(), 4);
    EXPECT_NE(periods[0], periods[1]);
    EXPECT_NE(periods[1], periods[2]);
    EXPECT_EQ(periods[2], periods[3]) << "no fourth note";
    EXPECT_EQ(deviceFile(Beeper::enablePath), QStringLiteral("0"));

    beeper.beep(440, 100);
    beeper.stopBeeping();
    EXPECT_EQ(deviceFile(Beeper::periodPath), QStringLiteral("2272728"));
    EXPECT_EQ(deviceFile(Beeper::enablePath), QStringLiteral("0"));
}

} // namespace
