#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QLocalSocket;
class QTextStream;

// vantor-cli ui: runs a UI driver script against the running application's
// socket. One command a line, a line starting with # is a comment. sleep,
// beaker and include (the lines of another script file, in place) run here;
// every other command goes to the application.
// A failing line prints "FAIL line N: COMMAND: what was seen" and stops the
// script with status 1; a passing script ends with "OK N commands".
class UiScript
{
public:
    struct Options {
        QString socketPath;  // default: the sandbox's /run/ui.sock
        QString controlPath; // the virtual instrument's control input (a FIFO)
        QString scriptFile;  // "-" or empty: standard input
        int connectTimeoutMs = 20000;
    };

    static QString usage();
    // Parses the arguments after "ui"; false with a message on bad input.
    static bool parse(const QStringList &args, Options *options, QString *error);

    explicit UiScript(const Options &options);
    // Runs the script; 0 all passed, 1 a command failed, 2 the script or the
    // socket could not be used.
    int run(QTextStream &out, QTextStream &err);

    static constexpr int MaxScriptBytes = 1024 * 1024;
    static constexpr int MaxIncludeDepth = 4;

private:
    struct Line {
        QString file; // empty: the script itself
        int number;
        QString text;
    };
    // The command lines of `script`, includes read from beside it; false
    // when an include could not be read (its line is the last, `why` says).
    static bool expand(const QByteArray &script, const QString &dir, const QString &file, int depth,
                       QVector<Line> *lines, QString *why);

    bool connect(QLocalSocket *socket, QTextStream &err) const;
    // Sends one line and waits for its answer.
    bool remote(QLocalSocket *socket, const QString &line, int timeoutMs, QString *text) const;
    bool beaker(const QString &json, QString *why) const;

    Options m_options;
};
