#include "system/platform.h"
#include "testsupport.h"

#include <QDateTime>
#include <QFile>
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

} // namespace
