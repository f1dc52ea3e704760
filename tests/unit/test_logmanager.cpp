#include "reports/logmanager.h"
#include "system/clock.h"
#include "testsupport.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

class LogRing : public ::testing::Test
{
protected:
    TempSandbox sandbox;
    QString dir() const { return LogManager::logRoot() + QStringLiteral("logFiles/titrationLogs/"); }
    QString index() const { return readTextFile(dir() + QStringLiteral("nextFileNum.txt")); }
    QString file(int n) const
    {
        return dir() + QStringLiteral("titration-%1.txt").arg(n, 3, 10, QLatin1Char('0'));
    }
    void open(LogManager &log)
    {
        ASSERT_EQ(log.setLogfileDir(QStringLiteral("logFiles/titrationLogs")), 0);
        ASSERT_EQ(log.setLogfileBasename(QStringLiteral("titration")), 0);
    }
};

TEST_F(LogRing, NewDirectoryStartsAtOne)
{
    LogManager log;
    open(log);
    EXPECT_TRUE(log.directory().startsWith(sandbox.root()));
    EXPECT_EQ(index(), QStringLiteral("1\n"));
    EXPECT_EQ(log.write(QStringLiteral("x")), LogManager::kNotOpen) << "no file before newCyclicFile";
    log.newCyclicFile(100);
    EXPECT_EQ(log.currentFileName(), file(1));
    EXPECT_EQ(index(), QStringLiteral("2\n"));
    EXPECT_TRUE(readTextFile(file(1)).contains(QStringLiteral("Logfile started")));
}

TEST_F(LogRing, WrapsFromHundredToOneAndDropsTheOldContent)
{
    LogManager log;
    open(log);
    log.newCyclicFile(100);
    log.write(QStringLiteral("first run, oldest content\n"));
    for (int i = 2; i <= 100; ++i)
        log.newCyclicFile(100);
    EXPECT_EQ(log.currentFileName(), file(100));
    EXPECT_EQ(index(), QStringLiteral("101\n"));
    EXPECT_EQ(QDir(dir()).entryList(QDir::Files).size(), 101); // 100 logs and the index

    log.newCyclicFile(100);
    EXPECT_EQ(log.currentFileName(), file(1));
    EXPECT_EQ(index(), QStringLiteral("2\n"));
    const QString content = readTextFile(file(1));
    EXPECT_FALSE(content.contains(QStringLiteral("oldest content")));
    EXPECT_TRUE(content.contains(QStringLiteral("Logfile started")));
    EXPECT_TRUE(QFile::exists(file(2))) << "the rest of the ring stays";
}

TEST_F(LogRing, LoweredMaximumWrapsAtOnce)
{
    LogManager log;
    open(log);
    for (int i = 0; i < 7; ++i)
        log.newCyclicFile(100);
    EXPECT_EQ(index(), QStringLiteral("8\n"));
    log.newCyclicFile(5);
    EXPECT_EQ(log.currentFileName(), file(1));
    EXPECT_EQ(index(), QStringLiteral("2\n"));
}

TEST_F(LogRing, CorruptOrMissingIndex)
{
    LogManager log;
    open(log);
    log.newCyclicFile(100);
    log.newCyclicFile(100);
    log.write(QStringLiteral("keep me\n"));

    // A non-number reads as 0.
    writeTextFile(dir() + QStringLiteral("nextFileNum.txt"), QStringLiteral("garbage\n"));
    log.newCyclicFile(100);
    EXPECT_EQ(log.currentFileName(), file(0));
    EXPECT_EQ(index(), QStringLiteral("1\n"));

    // An empty index restarts the ring at 1 and loses no other file.
    writeTextFile(dir() + QStringLiteral("nextFileNum.txt"), QString());
    log.newCyclicFile(100);
    EXPECT_EQ(log.currentFileName(), file(1));
    EXPECT_TRUE(readTextFile(file(2)).contains(QStringLiteral("keep me")));

    // A vanished index (or directory) is made again.
    QDir(dir()).removeRecursively();
    log.newCyclicFile(100);
    EXPECT_EQ(log.currentFileName(), file(1));
    EXPECT_EQ(index(), QStringLiteral("2\n"));
    EXPECT_EQ(log.write(QStringLiteral("after\n")), LogManager::kOk);
}

TEST_F(LogRing, StampedLinesCarryTheClockAndFlush)
{
    ManualClock clock(QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7)));
    Clock::setSource(&clock);
    LogManager log;
    open(log);
    log.newCyclicFile(100);
    clock.advance(2000);
    log.writeStamped(QStringLiteral("dose 250 uL"));
    log.write(QStringLiteral("raw"));
    Clock::setSource(nullptr);

    // Read while the file is still open: every write is flushed.
    const QStringList lines = readTextFile(file(1)).split(QLatin1Char('\n'));
    ASSERT_GE(lines.size(), 3);
    EXPECT_EQ(lines[0], QStringLiteral("[26-03-04-05-06-07] Logfile started"));
    EXPECT_EQ(lines[1], QStringLiteral("[26-03-04-05-06-09] dose 250 uL"));
    EXPECT_EQ(lines[2], QStringLiteral("raw")) << "write() adds no line end";
}

TEST_F(LogRing, ListAndExport)
{
    LogManager log;
    open(log);
    log.newCyclicFile(100);
    log.newCyclicFile(100);
    QStringList names;
    log.listFiles(names);
    names.sort();
    EXPECT_EQ(names, (QStringList{QStringLiteral("titration-001.txt"), QStringLiteral("titration-002.txt")}));

    const QString usb = sandbox.path(QStringLiteral("/media/usb"));
    writeTextFile(usb + QStringLiteral("/var/Kestrum/log/logFiles/titrationLogs/titration-001.txt"),
                  QStringLiteral("already there"));
    log.exportLogs(usb);
    const QString target = usb + QStringLiteral("/var/Kestrum/log/logFiles/titrationLogs/");
    EXPECT_TRUE(QFile::exists(target + QStringLiteral("titration-002.txt")));
    EXPECT_EQ(readTextFile(target + QStringLiteral("titration-001.txt")), QStringLiteral("already there"));
}

} // namespace
