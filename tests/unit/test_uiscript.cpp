// The script runner's own commands (sleep, beaker, include) and its
// verdicts: line numbers count comments and blank lines, a bad line stops the
// script, the beaker line reaches the virtual instrument's control FIFO whole.

#include "testsupport.h"
#include "uiscript.h"

#include <QFile>
#include <QMap>
#include <QTemporaryDir>
#include <QTextStream>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Outcome {
    int status;
    QString out;
};

// `besides`: further script files beside it, by name.
Outcome runScript(const QString &text, const QString &controlPath, const QMap<QString, QString> &besides = {})
{
    QTemporaryDir dir;
    for (auto it = besides.cbegin(); it != besides.cend(); ++it) {
        QFile part(dir.filePath(it.key()));
        part.open(QIODevice::WriteOnly);
        part.write(it.value().toUtf8());
    }
    QFile file(dir.filePath(QStringLiteral("script.ui")));
    file.open(QIODevice::WriteOnly);
    file.write(text.toUtf8());
    file.close();
    UiScript::Options options;
    QString error;
    UiScript::parse({QStringLiteral("--socket"), dir.filePath(QStringLiteral("none.sock")), QStringLiteral("--control"),
                     controlPath, file.fileName()},
                    &options, &error);
    options.connectTimeoutMs = 200;
    QString out, err;
    QTextStream outStream(&out), errStream(&err);
    const int status = UiScript(options).run(outStream, errStream);
    outStream.flush();
    return {status, out + err};
}

TEST(UiScript, LocalCommandsAndVerdicts)
{
    QTemporaryDir dir;
    const QString fifo = dir.filePath(QStringLiteral("vi-control"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    // The instrument's end: held open, as scripts/run holds it.
    const int reader = ::open(QFile::encodeName(fifo).constData(), O_RDONLY | O_NONBLOCK);
    ASSERT_GE(reader, 0);

    struct Row {
        const char *script;
        int status;
        const char *output;
    } rows[] = {
        {"# comment\n\nsleep 0\nbeaker {\"kind\":\"buffer\",\"pH\":4.01}\n", 0, "OK 2 commands"},
        {"sleep 0\n# two\n\nbeaker {\"kind\":\n", 1, "FAIL line 4: beaker {\"kind\":: not one JSON object"},
        {"sleep -1\n", 1, "FAIL line 1: sleep -1: sleep takes seconds"},
        {"beaker {\"kind\":\"nonsense\"}\n", 1, "FAIL line 1: beaker {\"kind\":\"nonsense\"}: unknown beaker kind"},
        {"sleep 0\nexpect Home\n", 2, "cannot reach the application"},
    };
    for (const Row &row : rows) {
        const Outcome o = runScript(QString::fromUtf8(row.script), fifo);
        EXPECT_EQ(o.status, row.status) << row.script;
        EXPECT_TRUE(o.out.contains(QString::fromUtf8(row.output))) << row.script << "\n" << o.out.toStdString();
    }
    char buffer[256] = {};
    const ssize_t n = ::read(reader, buffer, sizeof buffer - 1);
    ::close(reader);
    EXPECT_EQ(QByteArray(buffer, int(std::max<ssize_t>(n, 0))), QByteArray("beaker {\"kind\":\"buffer\",\"pH\":4.01}\n"));
}

TEST(UiScript, IncludedLinesRunInPlaceAndFailUnderTheirOwnName)
{
    const QMap<QString, QString> parts{{QStringLiteral("part.ui"), QStringLiteral("sleep 0\n# c\nsleep 0\n")},
                                       {QStringLiteral("bad.ui"), QStringLiteral("sleep 0\nsleep -1\n")},
                                       {QStringLiteral("self.ui"), QStringLiteral("include self.ui\n")}};
    struct Row {
        const char *script;
        int status;
        const char *output;
    } rows[] = {
        {"include part.ui\nsleep 0\n", 0, "OK 3 commands"},
        {"sleep 0\ninclude bad.ui\nsleep 0\n", 1, "FAIL bad.ui line 2: sleep -1: sleep takes seconds"},
        {"sleep 0\ninclude none.ui\n", 1, "FAIL line 2: include none.ui: cannot read"},
        {"include self.ui\n", 1, "include self.ui: includes nest deeper than 4"},
    };
    for (const Row &row : rows) {
        const Outcome o = runScript(QString::fromUtf8(row.script), QStringLiteral("/nonexistent"), parts);
        EXPECT_EQ(o.status, row.status) << row.script;
        EXPECT_TRUE(o.out.contains(QString::fromUtf8(row.output))) << row.script << "\n" << o.out.toStdString();
    }
}

TEST(UiScript, BeakerWithoutTheInstrumentFails)
{
    QTemporaryDir dir;
    const QString fifo = dir.filePath(QStringLiteral("vi-control"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    const Outcome o = runScript(QStringLiteral("beaker {\"kind\":\"buffer\",\"pH\":7}\n"), fifo);
    EXPECT_EQ(o.status, 1);
    EXPECT_TRUE(o.out.contains(QStringLiteral("is not open"))) << o.out.toStdString();
}

} // namespace
