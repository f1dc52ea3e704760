// Titrations back to back in one console-runner process (`--runs`), as the
// long soak of scripts/soak does them, kept to a few runs: every run reports
// its result and the process's resources, the descriptors of a finished run
// are all given back, and each run writes its own files into the one
// sandbox's log rings.
#include "testsupport.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QStringList titrate(const QStringList &extra)
{
    return QStringList{QStringLiteral("titrate"), QStringLiteral("--scenario"),
                       QStringLiteral(KESTRUM_SOURCE_DIR "/tools/virtual-instrument/scenarios/acetic-acid-10ml.json"),
                       QStringLiteral("--technique"), QStringLiteral("Equivalence Pt."), QStringLiteral("--speed"),
                       QStringLiteral("100")}
        + extra;
}

int filesIn(const QString &dir)
{
    QStringList names = QDir(dir).entryList({QStringLiteral("*.txt")}, QDir::Files);
    names.removeAll(QStringLiteral("nextFileNum.txt"));
    return names.size();
}

TEST(Soak, ThreeRunsInOneProcessEachRightWithTheirDescriptorsGivenBack)
{
    QTemporaryDir sandbox;
    ASSERT_TRUE(sandbox.isValid());
    int code = -1;
    const QString text = runVantorCli(titrate({QStringLiteral("--runs"), QStringLiteral("3"), QStringLiteral("--sandbox"), sandbox.path()}), &code);
    ASSERT_EQ(code, 0) << text.toStdString();

    const QRegularExpression ep(QStringLiteral("End Point 1 Volume Dispensed \\(ul\\):([0-9.]+)\n"));
    // Within 0.1 %, and the same to the last digit: one scenario, one seed.
    QStringList results;
    for (auto it = ep.globalMatch(text); it.hasNext();)
        results << it.next().captured(1);
    ASSERT_EQ(results.size(), 3) << text.toStdString();
    EXPECT_NEAR(results.first().toDouble(), 10000.0, 10.0);
    EXPECT_EQ(results.count(results.first()), 3) << text.toStdString();
    EXPECT_EQ(text.count(QStringLiteral("Reason for end: Reached final equivalence point at count: 1\n")), 3);

    const QRegularExpression resources(
        QStringLiteral("Run ([0-9]+) of 3: peak resident kB ([0-9]+), heap kB ([0-9]+), open files ([0-9]+), log files ([0-9]+)\n"));
    QList<int> runs;
    QList<int> files;
    QList<int> logFiles;
    for (auto it = resources.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        runs << m.captured(1).toInt();
        EXPECT_GT(m.captured(2).toInt(), 0);
        EXPECT_GT(m.captured(3).toInt(), 0);
        files << m.captured(4).toInt();
        logFiles << m.captured(5).toInt();
    }
    ASSERT_EQ(runs, (QList<int>{1, 2, 3})) << text.toStdString();
    // Slave link, pseudo-terminal and logs of a run are closed with it.
    EXPECT_EQ(files.at(1), files.at(0));
    EXPECT_EQ(files.at(2), files.at(0));

    // Every run adds the same files to the rings of the one sandbox.
    EXPECT_GT(logFiles.at(0), 0);
    EXPECT_EQ(logFiles.at(1), 2 * logFiles.at(0));
    EXPECT_EQ(logFiles.at(2), 3 * logFiles.at(0));
    // One file per run in each ring of the run.
    const QString logs = sandbox.path() + QStringLiteral("/var/Kestrum/log/logFiles/");
    EXPECT_EQ(filesIn(logs + QStringLiteral("titrationLogs")), 3);
    EXPECT_EQ(filesIn(logs + QStringLiteral("rawTitrationLogs")), 3);
}

TEST(Soak, ACountOfRunsThatIsNotAWholePositiveNumberIsRefused)
{
    for (const QString &n : {QStringLiteral("0"), QStringLiteral("-2"), QStringLiteral("1.5"), QStringLiteral("x")}) {
        int code = 0;
        const QString text = runVantorCli(titrate({QStringLiteral("--runs"), n}), &code);
        EXPECT_EQ(code, 2) << n.toStdString();
        EXPECT_TRUE(text.contains(QStringLiteral("--runs"))) << text.toStdString();
        EXPECT_FALSE(text.contains(QStringLiteral("Titration Summary")));
    }
}

} // namespace
