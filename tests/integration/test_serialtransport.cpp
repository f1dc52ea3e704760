// The serial transport and the slave controller on a real pseudo-terminal,
// with the test playing the slave byte by byte.

#include "controller/burettecontroller.h"
#include "controller/mspcontroller.h"
#include "controller/serialport.h"
#include "pseudoterminal.h"
#include "testdatalayer.h"
#include "testsupport.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace {

// The test's end of the line: what the application sent, and a way to answer.
struct FakeSlave {
    PseudoTerminal pty;
    QByteArray received;
    FakeSlave()
    {
        QObject::connect(&pty, &PseudoTerminal::received, [this](const QByteArray &b) { received += b; });
    }
    bool open() { return pty.open(Platform::path(QStringLiteral("/dev/ttymxc2"))); }
    bool got(const QByteArray &line) const { return received.contains(line); }
};

using Link = TestDataLayer;

} // namespace

TEST(SerialTransport, AsksForTheVersionAndStoresIt)
{
    Link link;
    FakeSlave slave;
    ASSERT_TRUE(slave.open()) << slave.pty.errorString().toStdString();
    mspController msp(Platform::path(QStringLiteral("/dev/ttymxc2")));
    msp.setReadInterval(5);
    ASSERT_TRUE(msp.portIsOpen());
    ASSERT_TRUE(waitUntil([&] { return slave.received.count("SYSTEM\r\n") == 2; }));
    // A reply cut short leaves the version unknown; the whole one is taken.
    const QString before = link.dm.engine()->getMspVersion();
    QSignalSpy mirror(&msp, &mspController::mirrorFromMSP);
    slave.pty.write("SYSTEM VANTOR MSP430\r\n");
    ASSERT_TRUE(waitUntil([&] { return mirror.count() == 1; }));
    EXPECT_EQ(link.dm.engine()->getMspVersion(), before);
    EXPECT_NE(link.dm.getMfgSerialNum(), QStringLiteral("0"));
    slave.pty.write("SYSTEM VANTOR MSP430 1.09 BUILD 0 SN VP400-7\r\n");
    ASSERT_TRUE(waitUntil([&] { return link.dm.engine()->getMspVersion() == QLatin1String("1.09"); }));
    EXPECT_EQ(link.dm.getMfgSerialNum(), QStringLiteral("VP400-7"));
    mspInfoRecord info;
    msp.msp->getInfo(info);
    EXPECT_FALSE(info.newVersion); // handed over once
}

TEST(SerialTransport, FirstPollWaitsOneTickAndCarriesTheSlaveClock)
{
    Link link;
    FakeSlave slave;
    ASSERT_TRUE(slave.open());
    mspController msp(Platform::path(QStringLiteral("/dev/ttymxc2")));
    msp.setReadInterval(5);
    msp.setPollInterval(30);
    QSignalSpy data(&msp, &mspController::mspNewDataSignal);
    EXPECT_EQ(msp.daqState(), mspController::DaqStart);
    ASSERT_TRUE(waitUntil([&] { return msp.daqState() == mspController::DaqRunning; }));
    QCoreApplication::processEvents();
    EXPECT_FALSE(slave.got("MG\r\n")); // nothing polled on the first tick
    ASSERT_TRUE(waitUntil([&] { return slave.got("MG\r\n"); }));
    slave.pty.write("MG 1 31.5 0.1 987654321 1 0.1 -42.5 0 0 0\r");
    ASSERT_TRUE(waitUntil([&] { return data.count() >= 1; }));
    EXPECT_EQ(data.first().at(0).value<long>(), 987654321L);
    EXPECT_DOUBLE_EQ(data.first().at(1).toDouble(), -42.5);
    EXPECT_FLOAT_EQ(link.dm.engine()->temperatureRawCelcius(), 31.5f);
}

TEST(SerialTransport, ReplySplitOverTwoReads)
{
    FakeSlave slave;
    ASSERT_TRUE(slave.open());
    serialPort port(Platform::path(QStringLiteral("/dev/ttymxc2")));
    port.setReadInterval(5);
    QSignalSpy ready(&port, &serialPort::packetReady);
    slave.pty.write("MG 1 25 0.1 10");
    ASSERT_TRUE(waitUntil([&] { return port.buffer.size() == 14; }));
    EXPECT_EQ(ready.count(), 0);
    slave.pty.write("0 1 0.1 5 0 0\rBBG");
    ASSERT_TRUE(waitUntil([&] { return ready.count() == 1; }));
    EXPECT_EQ(port.buffer, QByteArray("MG 1 25 0.1 100 1 0.1 5 0 0\rBBG"));
}

// A reply that begins in the read that ended another keeps its start; a
// reading that is not a finite number makes no sample at all.
TEST(SerialTransport, RepliesCutAnywhereAndReadingsThatAreNotNumbers)
{
    Link link;
    FakeSlave slave;
    ASSERT_TRUE(slave.open());
    mspController msp(Platform::path(QStringLiteral("/dev/ttymxc2")));
    msp.setReadInterval(5);
    QSignalSpy data(&msp, &mspController::mspNewDataSignal);
    slave.pty.write("MG 1 25 0.1 100 1 0.1 5 0 0\r\nMG 1 25 0.1 20");
    ASSERT_TRUE(waitUntil([&] { return data.count() == 1; }));
    slave.pty.write("0 1 0.1 6 0 0\r\n");
    ASSERT_TRUE(waitUntil([&] { return data.count() == 2; }));
    EXPECT_EQ(data.at(1).at(0).value<long>(), 200L);
    EXPECT_DOUBLE_EQ(data.at(1).at(1).toDouble(), 6.0);

    for (const char *bad : {"MG 1 25 0.1 300 1 0.1 nan 0 0\r", "MG 1 25 0.1 300 1 0.1 inf 0 0\r",
                            "MG 1 25 0.1 300 1 0.1 1e300 0 0\r", "MG nan 25 0.1 300 1 0.1 7 0 0\r",
                            "MG 1 -inf 0.1 300 1 0.1 7 0 0\r", "MG 1 25 0.1 x300 1 0.1 7 0 0\r"})
        slave.pty.write(bad);
    slave.pty.write("MG 1 25 0.1 400 1 0.1 7 0 0\r");
    ASSERT_TRUE(waitUntil([&] { return data.count() == 3; }));
    EXPECT_EQ(data.at(2).at(0).value<long>(), 400L) << "no sample from the replies that are not numbers";
}

TEST(SerialTransport, EndlessBytesWithoutLineEndAreDropped)
{
    Link link;
    FakeSlave slave;
    ASSERT_TRUE(slave.open());
    mspController msp(Platform::path(QStringLiteral("/dev/ttymxc2")));
    msp.setReadInterval(5);
    QSignalSpy data(&msp, &mspController::mspNewDataSignal);
    QSignalSpy mirror(&msp, &mspController::mirrorFromMSP);
    const QByteArray junk(3000, 'Z');
    for (int i = 0; i < 4; ++i) {
        slave.pty.write(junk);
        QCoreApplication::processEvents();
    }
    slave.pty.write("\rMG 1 25 0.1 4242 1 0.1 7.5 0 0\r");
    ASSERT_TRUE(waitUntil([&] { return data.count() == 1; }));
    EXPECT_EQ(data.first().at(0).value<long>(), 4242L);
    for (const QList<QVariant> &m : mirror)
        EXPECT_LE(m.at(0).toString().size(), serialPort::MaxBufferBytes);
}

TEST(SerialTransport, PassThroughWhileTheMeasurementIsStopped)
{
    Link link;
    FakeSlave slave;
    ASSERT_TRUE(slave.open());
    mspController msp(Platform::path(QStringLiteral("/dev/ttymxc2")));
    msp.setReadInterval(5);
    msp.setPollInterval(10);
    msp.mspStopDAQ();
    QSignalSpy mirror(&msp, &mspController::mirrorFromMSP);
    msp.parseRmtCmdPacket(QStringLiteral("BSG\r"));
    ASSERT_TRUE(waitUntil([&] { return slave.got("BSG\r\n"); }));
    slave.pty.write("BSG 15\r");
    ASSERT_TRUE(waitUntil([&] { return mirror.count() == 1; }));
    EXPECT_EQ(mirror.first().at(0).toString(), "BSG 15\r");
    mspInfoRecord info;
    msp.msp->getInfo(info);
    EXPECT_EQ(info.buretteSize, 15);
    EXPECT_FALSE(slave.got("MG\r\n"));
    msp.mspStartDAQ();
    EXPECT_TRUE(waitUntil([&] { return slave.got("MG\r\n"); }));
}

TEST(SerialTransport, SurvivesTheDeviceGoingAndComingBack)
{
    Link link;
    auto slave = std::make_unique<FakeSlave>();
    ASSERT_TRUE(slave->open());
    mspController msp(Platform::path(QStringLiteral("/dev/ttymxc2")));
    msp.setReadInterval(2);
    msp.setPollInterval(10);
    ASSERT_TRUE(waitUntil([&] { return slave->got("MG\r\n"); }));
    slave.reset(); // the slave's end vanishes with its link
    ASSERT_TRUE(waitUntil([&] { return !msp.portIsOpen(); }));
    msp.msp->requestProbeData(); // nothing to write to: no harm

    slave = std::make_unique<FakeSlave>();
    ASSERT_TRUE(slave->open());
    ASSERT_TRUE(waitUntil([&] { return msp.portIsOpen(); }));
    ASSERT_TRUE(waitUntil([&] { return slave->got("SYSTEM\r\n"); })); // who is it now?
    slave->pty.write("SYSTEM a b 3.00 c d e SN9\r");
    ASSERT_TRUE(waitUntil([&] { return link.dm.engine()->getMspVersion() == QLatin1String("3.00"); }));
    ASSERT_TRUE(waitUntil([&] { return slave->got("MG\r\n"); }));
}

// The burette-size handshake with a slave that stays silent, or answers BSG
// with garbage: a bounded number of tries, each wait twice the one before,
// then one message that the slave does not answer. Ticks are the test's.
TEST(SerialTransport, BuretteSizeHandshakeBacksOffAndSaysTheSlaveDoesNotAnswer)
{
    for (const char *answer : {"", "BSG\r", "BSG twenty\r", "BSG 99999999999999\r", "BSG ERROR OOR\r"}) {
        SCOPED_TRACE(answer);
        Link link;
        FakeSlave slave;
        ASSERT_TRUE(slave.open());
        mspController msp(Platform::path(QStringLiteral("/dev/ttymxc2")));
        msp.setReadInterval(2);
        msp.mspStopDAQ(); // no poll in the way
        BuretteController bc(&msp);
        bc.setTickInterval(24 * 3600 * 1000);
        QSignalSpy said(&bc, &BuretteController::buretteErrorOccured);
        const int configured = int(link.dm.engine()->buretteSize());
        const QByteArray size = "BSS " + QByteArray::number(configured) + "\r\n";
        QSignalSpy replies(&msp, &mspController::mirrorFromMSP);
        QList<int> triedAt;
        for (int tick = 0; tick < 400; ++tick) {
            msp.msp->sendCommand(QStringLiteral("VG")); // marks the tick: a try ends with "BSG"
            bc.execute();
            QString last;
            msp.msp->getLastCommand(last);
            if (last != QLatin1String("BSG"))
                continue;
            triedAt << tick;
            if (*answer) {
                ASSERT_TRUE(waitUntil([&] { return slave.received.count(size) == triedAt.size(); }));
                const int before = replies.count();
                slave.pty.write(answer);
                ASSERT_TRUE(waitUntil([&] { return replies.count() > before; }));
            }
        }
        // 1, 2, 4, 8, 16 ticks between six tries, the message 32 ticks after
        // the last, then one try a minute (240 ticks).
        EXPECT_EQ(triedAt, (QList<int>{0, 2, 5, 10, 19, 36, 310}));
        EXPECT_TRUE(waitUntil([&] { return slave.received.count(size) == 7; }));
        ASSERT_EQ(said.count(), 1);
        EXPECT_TRUE(said.first().at(0).toString().contains(QStringLiteral("The slave does not answer")));
        // A slave that at last holds the size starts the handshake afresh.
        slave.pty.write("BSG " + QByteArray::number(configured) + "\r");
        ASSERT_TRUE(waitUntil([&] {
            mspInfoRecord info;
            msp.msp->getInfo(info);
            return info.buretteSize == configured;
        }));
        bc.execute();
        EXPECT_EQ(said.count(), 1);
    }
}
