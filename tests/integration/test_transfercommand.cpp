// The console's method export and import and its database copy: what one
// sandbox exports, another installs; the copy is a sound database.
#include "logrecords.h"
#include "models/methoddraft.h"
#include "testdatalayer.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(TransferCommand, MethodsTravelBetweenSandboxesAndTheCopyIsSound)
{
    QTemporaryDir from;
    QTemporaryDir to;
    QTemporaryDir folder;
    {
        TestDataLayer layer;
        QString error;
        for (const QString &name : {QStringLiteral("Acidity"), QStringLiteral("Base two")})
            ASSERT_GT(MethodDraft().save(name, &error), 0) << error.toStdString();
        layer.db.close();
        ASSERT_TRUE(QDir().mkpath(from.filePath(QStringLiteral("var"))));
        ASSERT_TRUE(QFile::copy(layer.db.path(), from.filePath(QStringLiteral("var/KestrumDB"))));
    }
    const QString copy = folder.filePath(QStringLiteral("KestrumDB"));
    const struct {
        QStringList args;
        int exitCode;
        const char *says;
    } steps[] = {
        {{"method", "export", "--out", folder.path(), "--sandbox", from.path()}, 0, "Exported 2 methods"},
        {{"method", "import", folder.path(), "--sandbox", to.path()}, 0, "Installed 2 of 2 methods"},
        {{"method", "import", to.path(), "--sandbox", to.path()}, 2, "Installed 0 of 0 methods"},
        {{"backup", "--out", copy, "--sandbox", from.path()}, 0, "Copied the database"},
        {{"backup", "--out", folder.filePath("no/such/KestrumDB"), "--sandbox", from.path()}, 2, "cannot write the copy"},
    };
    for (const auto &step : steps) {
        int exitCode = -1;
        const QString text = runVantorCli(step.args, &exitCode);
        EXPECT_EQ(exitCode, step.exitCode) << text.toStdString();
        EXPECT_TRUE(text.contains(QLatin1String(step.says))) << text.toStdString();
    }
    const QString names = QStringLiteral("SELECT group_concat(methodName, ',') FROM methodSetupTable WHERE id != 99999");
    EXPECT_EQ(LogRecords::sqlite(to.filePath(QStringLiteral("var/KestrumDB")), names), QStringLiteral("Acidity,Base two"));
    EXPECT_EQ(LogRecords::sqlite(copy, names), QStringLiteral("Acidity,Base two"));
    EXPECT_EQ(LogRecords::sqlite(copy, QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
}

TEST(TransferCommand, ReportExportSaysWhatItFoundAndRefusesWhatItCannotDo)
{
    QTemporaryDir sandbox;
    QTemporaryDir out;
    const struct {
        QStringList args;
        int exitCode;
        const char *says;
    } steps[] = {
        {{"--log", "titration"}, 0, "Records found: 0"},
        {{"--log", "measurement", "--format", "csv", "--form", "Short", "--from", "2026-01-01"}, 0, "Records found: 0"},
        {{"--log", "titrations"}, 2, "unknown log \"titrations\""},
        {{"--log", "calibration", "--format", "xls"}, 2, "--format is pdf or csv"},
        {{"--log", "calibration", "--to", "2026-13-01"}, 2, "dates are written yyyy-MM-dd"},
        {{"--out"}, 2, "--out needs a value"},
    };
    for (const auto &step : steps) {
        int exitCode = -1;
        const QStringList args = QStringList{"report", "export", "--sandbox", sandbox.path(), "--out", out.path()} + step.args;
        const QString text = runVantorCli(args, &exitCode);
        EXPECT_EQ(exitCode, step.exitCode) << text.toStdString();
        EXPECT_TRUE(text.contains(QLatin1String(step.says))) << text.toStdString();
    }
}
