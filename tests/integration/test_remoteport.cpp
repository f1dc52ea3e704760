// The remote command port on a pseudo-terminal, with the test as the lab's
// PC: each command and its exact reply, the poll stopped while a host is
// attached, the pass-through to the virtual instrument, a line that never ends.

#include "controller/cmdserialport.h"
#include "controller/mspcontroller.h"
#include "interfaces/remoteporthost.h"
#include "pseudoterminal.h"
#include "system/clock.h"
#include "testdatalayer.h"
#include "testsupport.h"
#include "virtualinstrumentprocess.h"

#include <QFile>
#include <QProcess>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include <memory>

namespace {

// The instrument side the port asks; every call is written down.
struct RecordingHost : RemotePortHost {
    QStringList events;
    bool running = false;
    QString appVersion() const override { return QStringLiteral("9.9.9"); }
    QString modelType() const override { return QStringLiteral("Vantor Pro V440 All-in-One"); }
    void beep(int hz, int ms) override { events << QStringLiteral("beep %1 %2").arg(hz).arg(ms); }
    void stopBeep() override { events << QStringLiteral("beep stop"); }
    void factoryReset() override { events << QStringLiteral("factory reset"); }
    bool runInProgress() const override { return running; }
};

// The lab's PC on the other end of "/dev/ttyMFG".
struct LabPc {
    RecordingHost host;
    PseudoTerminal line;
    QByteArray received;
    cmdSerialPort port{&host, Platform::path(QStringLiteral("/dev/ttyMFG"))};
    QSignalSpy handled{&port, &cmdSerialPort::remoteCmdPacketReady};

    LabPc()
    {
        QObject::connect(&line, &PseudoTerminal::received, [this](const QByteArray &b) { received += b; });
        QObject::connect(&port, &cmdSerialPort::daqOn, [this] { host.events << QStringLiteral("daq on"); });
        QObject::connect(&port, &cmdSerialPort::daqOff, [this] { host.events << QStringLiteral("daq off"); });
        QObject::connect(&port, &cmdSerialPort::remoteMspCmdPacketReady,
                         [this](const QString &c) { host.events << QStringLiteral("slave ") + c.trimmed(); });
        port.setSettleInterval(0);
        port.setReadInterval(5);
    }
    bool attach() { return line.open(Platform::path(QStringLiteral("/dev/ttyMFG"))) && waitUntil([this] { return port.isOpen(); }); }
    // Sends a line, waits until the port has handled it, then asks for the
    // version so that "no reply" is seen as nothing before the version's.
    QByteArray exchange(const QByteArray &bytes)
    {
        received.clear();
        const int before = handled.count();
        line.write(bytes);
        waitUntil([&] { return handled.count() > before || received.contains("ERROR"); });
        line.write("app_version\r");
        waitUntil([&] { return received.endsWith("9.9.9\r\n"); });
        return received.left(received.size() - 7);
    }
};

qint64 residentKiB()
{
    QFile status(QStringLiteral("/proc/self/status"));
    status.open(QIODevice::ReadOnly);
    for (const QByteArray &l : status.readAll().split('\n'))
        if (l.startsWith("VmRSS:"))
            return l.mid(6).trimmed().split(' ').first().toLongLong();
    return -1;
}

} // namespace

TEST(RemotePort, EachCommandGivesItsExactReplyAndEffect)
{
    const struct { const char *line; const char *reply; const char *events; const char *recorded; } cases[] = {
        {"beep\r", "OK", "beep 440 3000", ""},
        {"BEEPER\r", "OK", "beep 440 3000", ""},
        {"beep on\r", "", "beep 440 0", ""},
        {"beep off\r", "", "beep stop", ""},
        {"beep 880 250\r", "", "beep 880 250", ""},
        {"rtcget\r", "2026 03 09 07 05 00\r\n", "", ""},
        {"rtcset 2024-3-9 7:05:00\r", "2024-03-09 07:05:00\r\n", "", "date -s 03/09/2024 07:05:00|/sbin/hwclock -w"},
        {"rtcset 2024-2-30 7:05:00\r", "ERROR invalid date or time\r\n", "", ""},
        {"rtcset `reboot`\r", "ERROR invalid date or time\r\n", "", ""},
        {"model_type\r", "Vantor Pro V440 All-in-One\r\n", "", ""},
        {"sys_reset\r", "resetting...\r\n", "factory reset", ""},
        {"qdb on\r", "", "", "systemctl start qdbd"},
        {"QDB off\r", "", "", "systemctl stop qdbd"},
        {"daq on\r", "", "daq on", ""},
        {"daq\r", "", "daq off", ""},
        {"qdb\r", "", "slave qdb", ""},
        {"SSG\r", "", "slave SSG", ""},
        {"this line is much longer than any command that the port knows of, so dropped\r",
         "ERROR line too long\r\n", "", ""},
    };
    ManualClock clock(QDateTime(QDate(2026, 3, 9), QTime(7, 5), Qt::UTC));
    Clock::setSource(&clock);
    LabPc pc;
    ASSERT_TRUE(pc.attach());
    pc.host.events.clear();
    for (const auto &c : cases) {
        Platform::clearRecordedCommands();
        EXPECT_EQ(pc.exchange(c.line), QByteArray(c.reply)) << c.line;
        EXPECT_EQ(pc.host.events.join(QLatin1Char('|')), QString::fromLatin1(c.events)) << c.line;
        EXPECT_EQ(Platform::recordedCommands().join(QLatin1Char('|')), QString::fromLatin1(c.recorded)) << c.line;
        pc.host.events.clear();
    }
    Clock::setSource(nullptr);
}

TEST(RemotePort, TheHostHasTheSlaveToItselfAndDetachingRestartsThePoll)
{
    TestDataLayer link;
    VirtualInstrumentProcess instrument;
    ASSERT_TRUE(instrument.start(QStringLiteral("{}"), 10.0)) << instrument.errorText().toStdString();
    mspController msp(instrument.device());
    msp.setReadInterval(5);
    msp.setPollInterval(25);
    LabPc pc;
    QObject::connect(&pc.port, &cmdSerialPort::remoteMspCmdPacketReady, &msp, &mspController::parseRmtCmdPacket);
    QObject::connect(&pc.port, &cmdSerialPort::daqOff, &msp, &mspController::mspStopDAQ);
    QObject::connect(&pc.port, &cmdSerialPort::daqOn, &msp, &mspController::mspStartDAQ);
    QObject::connect(&msp, &mspController::mirrorFromMSP, &pc.port, &cmdSerialPort::writeMspResponse);
    auto polls = [&] { return instrument.traceLines('>').filter(QStringLiteral("MG")).size(); };
    ASSERT_TRUE(waitUntil([&] { return polls() >= 2; }));

    ASSERT_TRUE(pc.attach());
    EXPECT_EQ(msp.daqState(), mspController::DaqStopped);
    // A poll sent just before the stop still has its reply mirrored: it is
    // through before the answer to an exchange of the port's own.
    ASSERT_TRUE(waitUntil([&] { return !msp.msp->probeInFlight(); }));
    pc.exchange("model_type\r");
    pc.received.clear();
    pc.line.write("SYSTEM\r");
    ASSERT_TRUE(waitUntil([&] { return pc.received.contains("\r"); })) << pc.received.constData();
    EXPECT_TRUE(pc.received.startsWith("SYSTEM VANTOR")) << pc.received.constData();
    const int pollsWhileAttached = polls();
    pc.line.write("BSG\r"); // one more exchange: no poll came in between
    ASSERT_TRUE(waitUntil([&] { return pc.received.contains("BSG"); })) << pc.received.constData();
    EXPECT_EQ(polls(), pollsWhileAttached);
    EXPECT_EQ(pc.received.count("MG"), 0);

    pc.line.close();
    ASSERT_TRUE(waitUntil([&] { return !pc.port.isOpen(); }));
    EXPECT_EQ(msp.daqState(), mspController::DaqRunning);
    EXPECT_TRUE(waitUntil([&] { return polls() > pollsWhileAttached + 2; }));
}

TEST(RemotePort, AnAttachDuringARunStopsThePollOnlyAtItsEndAndDaqIsRefused)
{
    LabPc pc;
    pc.host.running = true;
    ASSERT_TRUE(pc.attach());
    EXPECT_TRUE(pc.port.daqOffPending());
    EXPECT_EQ(pc.exchange("daq off\r"), QByteArray("ERROR titration running\r\n"));
    EXPECT_FALSE(pc.host.events.contains(QStringLiteral("daq off")));
    pc.host.running = false;
    ASSERT_TRUE(waitUntil([&] { return pc.host.events.contains(QStringLiteral("daq off")); }));
    EXPECT_FALSE(pc.port.daqOffPending());
}

TEST(RemotePort, AMegabyteWithoutLineEndKeepsMemoryFlatAndThePortAnswers)
{
    LabPc pc;
    ASSERT_TRUE(pc.attach());
    const QByteArray megabyte(1 << 20, 'x');
    ASSERT_EQ(pc.line.write(megabyte), megabyte.size());
    const qint64 before = residentKiB();
    ASSERT_TRUE(waitUntil([&] { return pc.line.pendingBytes() == 0; }, 20000));
    ASSERT_TRUE(waitUntil([&] { return pc.port.isOpen() && pc.received.contains("ERROR line too long\r\n"); }));
    EXPECT_LT(residentKiB() - before, 512);
    EXPECT_LE(pc.port.peakBufferBytes(), cmdSerialPort::MaxLineBytes);
    EXPECT_EQ(pc.received.count("ERROR"), 1);
    // The long line ends, and the next command is answered.
    EXPECT_EQ(pc.exchange("\rmodel_type\r"), QByteArray("Vantor Pro V440 All-in-One\r\n"));
}

TEST(RemotePort, TheConsoleSendsEachCommandAndPrintsItsReply)
{
    LabPc pc;
    ASSERT_TRUE(pc.attach());
    // The console's device, joined byte for byte to the PC's end of the line.
    PseudoTerminal console;
    ASSERT_TRUE(console.open(Platform::path(QStringLiteral("/dev/ttyACM0"))));
    QObject::connect(&console, &PseudoTerminal::received, &pc.line, &PseudoTerminal::write);
    QObject::connect(&pc.line, &PseudoTerminal::received, &console, &PseudoTerminal::write);
    QProcess cli;
    cli.start(QStringLiteral(KESTRUM_BIN_DIR "/vantor-cli"),
              {QStringLiteral("remote"), QStringLiteral("--port"), console.linkPath(), QStringLiteral("--wait"),
               QStringLiteral("300"), QStringLiteral("app_version"), QStringLiteral("beep 880 250"), QStringLiteral("beep")});
    ASSERT_TRUE(waitUntil([&] { return cli.state() == QProcess::NotRunning; }, 15000));
    EXPECT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().constData();
    EXPECT_EQ(cli.readAllStandardOutput(), QByteArray("> app_version\n9.9.9\r\n> beep 880 250\n> beep\nOK\n"));
    EXPECT_EQ(pc.host.events, QStringList({QStringLiteral("daq off"), QStringLiteral("beep 880 250"), QStringLiteral("beep 440 3000")}));
}
