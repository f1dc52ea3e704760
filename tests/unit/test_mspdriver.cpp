// The slave driver: commands on the wire, the seven parsed replies, the
// records it keeps, and what junk and hostile bytes do to it.

#include "controller/mspdriver.h"

#include <QBuffer>
#include <QSignalSpy>
#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace {

const QByteArray kFullMg = "MG 101.5 24.8 0.02 123456 1 0.03 100.25 7.5 8.5 3\r";

struct Driver {
    QBuffer port;
    mspDriver msp;
    QSignalSpy probe{&msp, &mspDriver::mspProbeDataSignal};
    Driver() { port.open(QIODevice::ReadWrite); }
    mspProbeRecord record() const
    {
        mspProbeRecord r;
        msp.getProbeRecord(r);
        return r;
    }
    mspInfoRecord info() const
    {
        mspInfoRecord i;
        msp.getInfo(i);
        return i;
    }
    QByteArray written()
    {
        const QByteArray all = port.data();
        port.buffer().clear();
        port.seek(0);
        return all;
    }
};

} // namespace

TEST(MspDriverCommands, SetPortAsksForTheVersionAndCommandsEndInCrLf)
{
    Driver d;
    d.msp.setSerialPort(&d.port);
    EXPECT_EQ(d.written(), "SYSTEM\r\n");
    d.msp.dispense(1250);
    d.msp.setStirSpeed(3);
    d.msp.setBuretteSize(20);
    d.msp.queryBurette();
    d.msp.stopAndHomeBurette();
    EXPECT_EQ(d.written(), "BDS 1250\r\nSSS 3\r\nBSS 20\r\nBBG\r\nSH\r\n");
    QString last;
    d.msp.getLastCommand(last);
    EXPECT_EQ(last, "SH");
}

TEST(MspDriverCommands, ClosedPortSendsNothing)
{
    Driver d;
    d.port.close();
    d.msp.setSerialPort(&d.port);
    d.msp.requestProbeData();
    QString last;
    d.msp.getLastCommand(last);
    EXPECT_TRUE(last.isEmpty());
    EXPECT_TRUE(d.port.data().isEmpty());
}

TEST(MspDriverCommands, DoseClearsTheDispenseStatusUntilTheSlaveSaysSo)
{
    Driver d;
    d.msp.setSerialPort(&d.port);
    d.msp.parsePacket(kFullMg);
    EXPECT_TRUE(d.msp.isDispenseDone());
    d.msp.dispense(100);
    EXPECT_FALSE(d.msp.isDispenseDone());
    d.msp.parsePacket(kFullMg);
    EXPECT_TRUE(d.msp.isDispenseDone());
}

TEST(MspDriverReplies, FullProbeReply)
{
    Driver d;
    d.msp.parsePacket(kFullMg);
    ASSERT_EQ(d.probe.count(), 1);
    const mspProbeRecord r = d.record();
    EXPECT_TRUE(r.valid);
    EXPECT_FLOAT_EQ(r.rawMillivolts, 101.5f);
    EXPECT_FLOAT_EQ(r.temperature, 24.8f);
    EXPECT_EQ(r.timestamp, 123456);
    EXPECT_EQ(r.dispenseStatus, 1);
    EXPECT_FLOAT_EQ(r.millivolts, 100.25f);
    EXPECT_FLOAT_EQ(r.spareValue2, 8.5f);
    EXPECT_EQ(r.spareStatus, 3);
    EXPECT_EQ(d.info().lastErrorText(), "   ");
}

TEST(MspDriverReplies, NineValuesAreEnoughEightAreNot)
{
    Driver d;
    d.msp.parsePacket("MG 1 2 3 4 5 6 7 8 9\r");
    EXPECT_EQ(d.probe.count(), 1);
    EXPECT_TRUE(d.record().valid);
    d.msp.parsePacket("MG 11 12 13 14 15 16 17 18\r");
    EXPECT_EQ(d.probe.count(), 1);
    const mspProbeRecord r = d.record();
    EXPECT_FALSE(r.valid);
    EXPECT_FLOAT_EQ(r.millivolts, 7.f); // the cut reply left the values alone
    EXPECT_EQ(r.timestamp, 4);
    EXPECT_EQ(d.info().lastErrorText(), "UND");
}

TEST(MspDriverReplies, TwoRepliesInOnePacketUpdateBoth)
{
    Driver d;
    EXPECT_FALSE(d.msp.isBuretteAtLoad());
    d.msp.parsePacket("BBG 1 2\r\n" + kFullMg);
    EXPECT_TRUE(d.msp.isBuretteAtLoad());
    EXPECT_TRUE(d.msp.isBuretteBusy());
    EXPECT_EQ(d.probe.count(), 1);
    d.msp.parsePacket(kFullMg + "BBG 0 1\r");
    EXPECT_FALSE(d.msp.isBuretteBusy());
    EXPECT_FALSE(d.msp.isBuretteAtLoad());
}

TEST(MspDriverReplies, CutReplyDoesNotSwallowTheNextOne)
{
    Driver d;
    d.msp.parsePacket("MG 1 2 3\rMG 5 25 0.1 777 0 0.1 42 0 0\r");
    EXPECT_EQ(d.probe.count(), 1);
    EXPECT_EQ(d.record().timestamp, 777);
    EXPECT_FLOAT_EQ(d.record().millivolts, 42.f);
    d.msp.parsePacket("MG 5 25 0.1 888 0 0.1 43 0 0 BBG 0 2\r");
    EXPECT_TRUE(d.msp.isBuretteAtLoad());
}

TEST(MspDriverReplies, VersionAndSerial)
{
    Driver d;
    d.msp.parsePacket("SYSTEM VANTOR MSP430 1.07 BUILD 0 SN VP400-0001234\r");
    const mspInfoRecord i = d.info();
    EXPECT_TRUE(i.versionValid);
    EXPECT_TRUE(i.newVersion);
    EXPECT_EQ(i.versionText(), "1.07");
    EXPECT_EQ(i.serialText(), "VP400-0001234");
    d.msp.clearVersionFlag();
    EXPECT_FALSE(d.info().newVersion);
}

// A version reply cut short, or holding another command's words, leaves
// the version unknown: never "MSP430" or "SSS" with serial "0".
TEST(MspDriverReplies, CutShortOrForeignVersionRepliesAreRefused)
{
    for (const char *reply : {"SYSTEM A B 2.00 C\r", "SYSTEM VANTOR MSP430\r", "SYSTEM\rMG 1 25 0.1 5 1 0.1 7 0 0\r",
                              "SYSTEM VANTOR SSS 3 BUILD 0 SN 0\r", "SYSTEM VANTOR MSP430 1.07 BUILD 0 SN\rBSG 20\r",
                              "SYSTEM VANTOR MSP430 1.07 BUILD 0 SN ERROR\r", "SYSTEM a b 1.0$ c d e 7\r"}) {
        Driver d;
        d.msp.parsePacket(reply);
        const mspInfoRecord i = d.info();
        EXPECT_FALSE(i.versionValid) << reply;
        EXPECT_FALSE(i.newVersion) << reply;
        EXPECT_EQ(i.versionText(), QString(32, QLatin1Char('x'))) << reply;
    }
}

TEST(MspDriverReplies, OverlongWordsAreCutToTheirFields)
{
    Driver d;
    const QString longWord(200, QLatin1Char('v'));
    d.msp.parsePacket(QStringLiteral("SYSTEM a b %1 c d e %2\r").arg(longWord, longWord).toLatin1());
    const mspInfoRecord i = d.info();
    EXPECT_EQ(i.versionText(), QString(32, QLatin1Char('v')));
    EXPECT_EQ(i.serialText(), QString(15, QLatin1Char('v')));
}

TEST(MspDriverReplies, ReadBacksAndBadNumbers)
{
    Driver d;
    d.msp.parsePacket("SSG 4.0\rBLG 3\rVG 1\rBSG 20\r");
    mspInfoRecord i = d.info();
    EXPECT_EQ(i.stirSpeed, 4);
    EXPECT_EQ(i.backlight, 3);
    EXPECT_EQ(i.valve, 1);
    EXPECT_EQ(i.buretteSize, 20);
    d.msp.parsePacket("BSG twenty\rMG x nan inf 99999999999999999999 1e99 - -- 1e50 ?\r");
    i = d.info();
    EXPECT_EQ(i.buretteSize, 0);
    // Readings that are not numbers make no sample, never one of 0 mV.
    EXPECT_EQ(d.probe.count(), 0);
    EXPECT_FALSE(d.record().valid);
    EXPECT_EQ(d.info().lastErrorText(), "UND");
}

TEST(MspDriverReplies, ErrorWordsOfTheSlave)
{
    Driver d;
    d.msp.parsePacket("BSG ERROR OOR\r");
    EXPECT_EQ(d.info().lastErrorText(), "OOR");
    d.msp.parsePacket("BBG ERROR CIPXYZ\r");
    EXPECT_EQ(d.info().lastErrorText(), "CIP");
    d.msp.parsePacket("MG ERROR\r");
    EXPECT_EQ(d.info().lastErrorText(), "UND");
    EXPECT_EQ(d.probe.count(), 0);
    d.msp.parsePacket("VG 1\r");
    EXPECT_EQ(d.info().lastErrorText(), "   ");
    // Replies of commands that are not parsed are passed over.
    d.msp.parsePacket("BDS ERROR NSC\r" + kFullMg);
    EXPECT_EQ(d.probe.count(), 1);
}

TEST(MspDriverReplies, TagsAreCaseSensitive)
{
    Driver d;
    d.msp.parsePacket("mg 1 2 3 4 5 6 7 8 9\rMg 1 2 3 4 5 6 7 8 9\r");
    EXPECT_EQ(d.probe.count(), 0);
}

TEST(MspDriverSoftwareDouble, TableAndDose)
{
    mspDriver msp;
    QSignalSpy spy(&msp, &mspDriver::mspProbeDataSignal);
    msp.enableVirtualMsp();
    mspInfoRecord i;
    msp.getInfo(i);
    EXPECT_EQ(i.versionText(), "0.30");
    msp.requestProbeData();
    msp.requestProbeData();
    mspProbeRecord r;
    msp.getProbeRecord(r);
    EXPECT_EQ(spy.count(), 2);
    EXPECT_EQ(r.timestamp, 5000);
    EXPECT_FLOAT_EQ(r.millivolts, 54.208f);
    QString last;
    msp.getLastCommand(last);
    EXPECT_EQ(last, "VirtualMSP: MG");
    msp.dispense(100);
    EXPECT_FALSE(msp.isDispenseDone());
    for (int k = 0; k < 15; ++k)
        msp.requestProbeData();
    msp.getProbeRecord(r);
    EXPECT_EQ(r.timestamp, 2500); // wrapped to the first row
}

// Random and hostile bytes: nothing crashes, a valid reply behind the junk
// is always read exactly, and the text fields never run past their ends.
TEST(MspDriverFuzz, RandomAndHostileBytes)
{
    std::mt19937 rng(20240611);
    const char *pieces[] = {"MG", "SYSTEM", "BBG", "BSG", "VG", "SSG", "BLG", "ERROR", "nan",
                            "-inf", "1e39", "99999999999999999999999", "\r", "\n", " ", "\t",
                            "\0", "\xff\xfe", "0x10", "-1", "3.5", "OOR", "  \r\r"};
    Driver d;
    long expected = 0;
    for (int round = 0; round < 3000; ++round) {
        QByteArray junk;
        const int parts = int(rng() % 40);
        for (int k = 0; k < parts; ++k) {
            if (rng() % 2) {
                const char *p = pieces[rng() % (sizeof pieces / sizeof pieces[0])];
                junk.append(p, p[0] ? int(strlen(p)) : 1);
            } else {
                const int n = int(rng() % 12);
                for (int b = 0; b < n; ++b)
                    junk.append(char(rng() % 256));
            }
        }
        d.msp.parsePacket(junk);
        const mspInfoRecord i = d.info();
        ASSERT_LE(i.versionText().toLatin1().size(), 32);
        ASSERT_LE(i.serialText().toLatin1().size(), 15);
        const mspProbeRecord r = d.record();
        ASSERT_TRUE(std::isfinite(r.millivolts) && std::isfinite(r.temperature)
                    && std::isfinite(r.rawMillivolts));

        // A clean reply after the junk, with a blank in front (a junk word
        // right before a tag must not eat it).
        ++expected;
        d.msp.parsePacket(" MG 1.5 25 0.1 " + QByteArray::number(qlonglong(expected))
                          + " 1 0.1 -12.25 0 0 0\r");
        ASSERT_EQ(d.record().timestamp, expected) << junk.toHex().toStdString();
        ASSERT_FLOAT_EQ(d.record().millivolts, -12.25f);
        ASSERT_TRUE(d.record().valid);
    }
    // Over-long packets are dropped whole.
    const int before = d.probe.count();
    d.msp.parsePacket(QByteArray(mspDriver::MaxPacketBytes + 1, 'M') + kFullMg);
    EXPECT_EQ(d.probe.count(), before);
}

TEST(MspDriverCommands, PollAnsweredAfterADoseWentOutKeepsTheDoseRunning)
{
    Driver d;
    d.msp.setSerialPort(&d.port);
    d.msp.requestProbeData();       // asked before the dose...
    d.msp.dispense(500);
    d.msp.parsePacket(kFullMg);     // ...answered after it: still the old status
    EXPECT_FALSE(d.msp.isDispenseDone());
    EXPECT_EQ(d.probe.count(), 1);
    d.msp.requestProbeData();
    d.msp.parsePacket(kFullMg);     // asked after the dose: the slave's word counts
    EXPECT_TRUE(d.msp.isDispenseDone());

    // A poll that was never answered is not waited for beyond one reply.
    d.msp.requestProbeData();
    d.msp.requestProbeData();
    d.msp.requestProbeData();
    d.msp.parsePacket(kFullMg);
    d.msp.dispense(500);
    d.msp.parsePacket(kFullMg);
    EXPECT_FALSE(d.msp.isDispenseDone());
    d.msp.requestProbeData();
    d.msp.parsePacket(kFullMg);
    EXPECT_TRUE(d.msp.isDispenseDone());
}
