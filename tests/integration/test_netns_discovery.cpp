// Network discovery on loopback, inside a network namespace that the test
// runner makes for this program (in-netns.sh): one answer per request, with
// the instrument's fields; no storm from its own replies, other instruments'
// replies, over-long datagrams or a flood.

#include "system/clock.h"
#include "system/networkdiscovery.h"
#include "testsupport.h"

#include <QDir>
#include <QJsonDocument>
#include <QNetworkInterface>
#include <QProcess>
#include <QSignalSpy>
#include <QUdpSocket>
#include <gtest/gtest.h>

namespace {

DiscoveryFields fields()
{
    return {QStringLiteral("Vantor Pro V440 All-in-One"), QStringLiteral("All-in-one"), QStringLiteral("VP400-0001234"),
            QStringLiteral("10.0.0.7"), QStringLiteral("Lab 3"), QStringLiteral("1.4.2"), QStringLiteral("1.7"),
            QStringLiteral("Wed Nov 25 14:00:00 2026")};
}

class Discovery : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (qgetenv("KESTRUM_NETNS") != "1")
            GTEST_SKIP() << "runs only inside its own network namespace (in-netns.sh; unshare -rn was not available)";
    }
};

// A host on loopback that asks the group from a port of its own.
struct Asker {
    QUdpSocket socket;
    Asker()
    {
        socket.bind(QHostAddress(QHostAddress::AnyIPv4), 0);
        socket.setMulticastInterface(QNetworkInterface::interfaceFromName(QStringLiteral("lo")));
    }
    void send(const QByteArray &datagram)
    {
        socket.writeDatagram(datagram, QHostAddress(QString::fromLatin1(NetworkDiscovery::Group)), NetworkDiscovery::Port);
    }
};

} // namespace

TEST_F(Discovery, ARequestGetsOneReplyWithTheFieldsAndTheInfoFileHoldsThem)
{
    NetworkDiscovery discovery(fields);
    QSignalSpy answered(&discovery, &NetworkDiscovery::answered);
    QProcess cli;
    cli.start(QStringLiteral(KESTRUM_BIN_DIR "/vantor-cli"), {QStringLiteral("discover"), QStringLiteral("--timeout"), QStringLiteral("1")});
    ASSERT_TRUE(waitUntil([&] { return cli.state() == QProcess::NotRunning; }, 10000));
    const QStringList lines = QString::fromUtf8(cli.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    EXPECT_EQ(cli.exitCode(), 0) << cli.readAllStandardError().constData();
    EXPECT_EQ(answered.count(), 1);
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines.first(), QStringLiteral("model=\"Vantor Pro V440 All-in-One\" type=\"All-in-one\" serial=\"VP400-0001234\" "
                                            "ip=\"10.0.0.7\" name=\"Lab 3\" version=\"1.4.2\" dbVersion=\"1.7\" "
                                            "dbModTime=\"Wed Nov 25 14:00:00 2026\" from=127.0.0.1"));

    QDir().mkpath(Platform::path(QStringLiteral("/opt/www")));
    discovery.updateJSONDiscoveryFile();
    QJsonObject expected = discovery.description(true);
    expected.remove(QStringLiteral("dbModTime"));
    EXPECT_EQ(QJsonDocument::fromJson(readTextFile(Platform::path(QString::fromLatin1(NetworkDiscovery::InfoFile))).toUtf8()).object(),
              expected);
    EXPECT_EQ(expected.size(), 7);
}

TEST_F(Discovery, OwnRepliesOtherInstrumentsLongDatagramsAndAFloodMakeNoStorm)
{
    ManualClock clock;
    Clock::setSource(&clock);
    NetworkDiscovery discovery(fields);
    QStringList outcomes; // "answered" or why not, in the order of arrival
    QObject::connect(&discovery, &NetworkDiscovery::answered, [&] { outcomes << QStringLiteral("answered"); });
    QObject::connect(&discovery, &NetworkDiscovery::ignored, [&](const QString &why) { outcomes << why; });
    Asker host;
    const QByteArray otherInstrument = QJsonDocument(QJsonObject{{QStringLiteral("model"), QStringLiteral("V410")},
                                                                 {QStringLiteral("serial"), QStringLiteral("X")}}).toJson();
    // Nothing listens at 127.0.0.1:4646 but the instrument: each of its
    // replies comes back to it as an "own datagram".
    const struct { QByteArray datagram; qint64 advanceMs; QStringList expected; } cases[] = {
        {QByteArray(), 0, {QStringLiteral("answered"), QStringLiteral("own datagram")}},
        {"again", 999, {QStringLiteral("answered less than a second ago")}},
        {"again", 1, {QStringLiteral("answered"), QStringLiteral("own datagram")}},
        {otherInstrument, 5000, {QStringLiteral("a reply")}},
        {QByteArray(513, 'x'), 0, {QStringLiteral("too long")}},
        {QByteArray(512, 'x'), 0, {QStringLiteral("answered"), QStringLiteral("own datagram")}},
    };
    for (const auto &c : cases) {
        outcomes.clear();
        clock.advance(c.advanceMs);
        host.send(c.datagram);
        EXPECT_TRUE(waitUntil([&] { return outcomes.size() >= c.expected.size(); }));
        EXPECT_EQ(outcomes, c.expected) << c.datagram.left(20).constData();
    }

    // A thousand requests within one second of the instrument's clock: one
    // answer, and its own reply the only other thing that comes back.
    clock.advance(1000);
    outcomes.clear();
    for (int batch = 0; batch < 20; ++batch) {
        for (int i = 0; i < 50; ++i)
            host.send("discover");
        ASSERT_TRUE(waitUntil([&] { return outcomes.size() >= (batch + 1) * 50 + 1; })) << outcomes.size();
        clock.advance(40);
    }
    EXPECT_EQ(outcomes.count(QStringLiteral("answered")), 1);
    EXPECT_EQ(outcomes.count(QStringLiteral("own datagram")), 1);
    EXPECT_EQ(outcomes.count(QStringLiteral("answered less than a second ago")), 999);
    Clock::setSource(nullptr);
}
