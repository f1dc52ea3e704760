#include "uiscript.h"

#include "beaker.h"
#include "system/platform.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <QTextStream>
#include <QThread>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

// How long the application may take over a command beyond its own limit.
constexpr int AnswerMarginMs = 15000;

int waitLimitMs(const QString &command, const QString &argument)
{
    if (command == QLatin1String("tap") || command == QLatin1String("usb"))
        return 5000;
    if (command == QLatin1String("hold") || command == QLatin1String("swipe")) {
        // The item may take 5 s to show; then the seconds held, or the drags.
        const double last = argument.section(QLatin1Char(' '), -1).toDouble();
        return 5000 + int(std::min(std::max(last, 1.0), 60.0) * 1000);
    }
    if (command != QLatin1String("wait"))
        return 0;
    const int cut = argument.lastIndexOf(QLatin1Char(' '));
    bool ok = false;
    const double seconds = cut < 0 ? 0 : argument.mid(cut + 1).toDouble(&ok);
    return ok && seconds > 0 ? int(std::min(seconds, 3600.0) * 1000) : 10000;
}

} // namespace

QString UiScript::usage()
{
    return QStringLiteral(
        "usage: vantor-cli ui [--socket PATH] [--control PATH] [SCRIPT|-]\n"
        "  Runs a UI driver script against the application started with KESTRUM_UI_DRIVER=1.\n"
        "  --socket PATH    the application's socket (default: the sandbox's /run/ui.sock)\n"
        "  --control PATH   the virtual instrument's control input for beaker (default:\n"
        "                   $KESTRUM_VI_CONTROL, else the sandbox's /run/vi-control)\n"
        "  commands, one a line (# starts a comment line):\n"
        "    tap TEXT | tap #NAME    press and release on the item (waits up to 5 s)\n"
        "    hold TEXT|#NAME SECONDS press, hold, release (a long press)\n"
        "    swipe #NAME up|down|left|right [STEPS]\n"
        "                            STEPS slow drags, each a quarter of the item\n"
        "    type TEXT               key presses into the focused field\n"
        "    wait TEXT [SECONDS]     until a visible text contains TEXT (default 10 s)\n"
        "    expect TEXT, absent TEXT\n"
        "    texts                   every visible text, top to bottom, left to right\n"
        "    shot FILE               a PNG of the window\n"
        "    beaker JSON             to the virtual instrument\n"
        "    usb in [FOLDER] | usb out  the files of FOLDER onto the USB disk, and the disk in;\n"
        "                            the disk out (each waits until the application sees it)\n"
        "    frame                   milliseconds from the last tap to its drawn frame\n"
        "    memory                  the application's resident memory and open files\n"
        "    nowarnings              fails on any warning of the QML engine since start\n"
        "    sleep SECONDS\n"
        "    include FILE            the lines of FILE (beside the script) in place\n");
}

bool UiScript::parse(const QStringList &args, Options *options, QString *error)
{
    options->socketPath = Platform::path(QStringLiteral("/run/ui.sock"));
    const QByteArray control = qgetenv("KESTRUM_VI_CONTROL");
    options->controlPath = control.isEmpty() ? Platform::path(QStringLiteral("/run/vi-control"))
                                             : QString::fromLocal8Bit(control);
    bool haveScript = false;
    for (int i = 0; i < args.size(); ++i) {
        const QString &a = args.at(i);
        if ((a == QLatin1String("--socket") || a == QLatin1String("--control")) && i + 1 < args.size()) {
            (a == QLatin1String("--socket") ? options->socketPath : options->controlPath) = args.at(++i);
        } else if (a.startsWith(QLatin1String("--"))) {
            *error = QStringLiteral("unknown or incomplete option %1").arg(a);
            return false;
        } else if (!haveScript) {
            options->scriptFile = a;
            haveScript = true;
        } else {
            *error = QStringLiteral("one script only");
            return false;
        }
    }
    return true;
}

UiScript::UiScript(const Options &options)
    : m_options(options)
{
}

bool UiScript::connect(QLocalSocket *socket, QTextStream &err) const
{
    QElapsedTimer elapsed;
    elapsed.start();
    while (true) {
        socket->connectToServer(m_options.socketPath);
        if (socket->waitForConnected(1000))
            return true;
        if (elapsed.elapsed() > m_options.connectTimeoutMs) {
            err << "vantor-cli ui: cannot reach the application at " << m_options.socketPath << ": "
                << socket->errorString() << " (is it running with KESTRUM_UI_DRIVER=1?)\n";
            return false;
        }
        QThread::msleep(200);
    }
}

bool UiScript::remote(QLocalSocket *socket, const QString &line, int timeoutMs, QString *text) const
{
    socket->write(line.toUtf8() + '\n');
    socket->flush();
    QElapsedTimer elapsed;
    elapsed.start();
    while (!socket->canReadLine()) {
        if (socket->state() != QLocalSocket::ConnectedState && socket->bytesAvailable() == 0) {
            *text = QStringLiteral("the application went away");
            return false;
        }
        if (elapsed.elapsed() > timeoutMs + AnswerMarginMs) {
            *text = QStringLiteral("no answer from the application");
            return false;
        }
        socket->waitForReadyRead(100);
    }
    const QJsonObject answer = QJsonDocument::fromJson(socket->readLine(1024 * 1024)).object();
    *text = answer.value(QStringLiteral("text")).toString();
    return answer.value(QStringLiteral("ok")).toBool();
}

bool UiScript::beaker(const QString &json, QString *why) const
{
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(json.toUtf8(), &parseError);
    if (!doc.isObject()) {
        *why = QStringLiteral("not one JSON object: %1").arg(parseError.errorString());
        return false;
    }
    // The instrument answers on its own output, which the script does not
    // see: a beaker it would refuse is refused here, with its words.
    QString refused;
    if (!Beaker::fromJson(doc.object(), 25.0, 0.0, 100.0, &refused)) {
        *why = refused;
        return false;
    }
    // A FIFO that the virtual instrument holds open; never block on one that nobody reads.
    const QByteArray path = QFile::encodeName(m_options.controlPath);
    const int fd = ::open(path.constData(), O_WRONLY | O_NONBLOCK);
    if (fd < 0) {
        *why = QStringLiteral("the virtual instrument's control input %1 is not open: %2")
                   .arg(m_options.controlPath, QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    const QByteArray line = "beaker " + doc.toJson(QJsonDocument::Compact) + '\n';
    const bool written = ::write(fd, line.constData(), size_t(line.size())) == line.size();
    ::close(fd);
    if (!written)
        *why = QStringLiteral("the control input took only part of the line");
    return written;
}

bool UiScript::expand(const QByteArray &script, const QString &dir, const QString &file, int depth,
                      QVector<Line> *lines, QString *why)
{
    const QStringList text = QString::fromUtf8(script).split(QLatin1Char('\n'));
    for (int n = 1; n <= text.size(); ++n) {
        const QString line = text.at(n - 1).trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        if (!line.startsWith(QLatin1String("include "))) {
            lines->append({file, n, line});
            continue;
        }
        // The line stays where the expansion stopped, for the verdict.
        const QString name = line.mid(8).trimmed();
        QFile part(QDir(dir).filePath(name));
        if (depth >= MaxIncludeDepth) {
            *why = QStringLiteral("includes nest deeper than %1").arg(MaxIncludeDepth);
        } else if (!part.open(QIODevice::ReadOnly)) {
            *why = QStringLiteral("cannot read %1").arg(part.fileName());
        } else {
            const QByteArray body = part.read(MaxScriptBytes + 1);
            if (body.size() > MaxScriptBytes)
                *why = QStringLiteral("larger than %1 bytes").arg(MaxScriptBytes);
            else if (expand(body, QFileInfo(part).absolutePath(), name, depth + 1, lines, why))
                continue;
            else
                return false;
        }
        lines->append({file, n, line});
        return false;
    }
    return true;
}

int UiScript::run(QTextStream &out, QTextStream &err)
{
    QFile file;
    const bool fromStdin = m_options.scriptFile.isEmpty() || m_options.scriptFile == QLatin1String("-");
    if (fromStdin ? !file.open(stdin, QIODevice::ReadOnly) : (file.setFileName(m_options.scriptFile), !file.open(QIODevice::ReadOnly))) {
        err << "vantor-cli ui: cannot read the script " << m_options.scriptFile << "\n";
        return 2;
    }
    const QByteArray script = file.read(MaxScriptBytes + 1);
    if (script.size() > MaxScriptBytes) {
        err << "vantor-cli ui: the script is larger than " << MaxScriptBytes << " bytes\n";
        return 2;
    }
    QVector<Line> lines;
    QString why;
    const QString base = fromStdin ? QDir::currentPath() : QFileInfo(m_options.scriptFile).absolutePath();
    // An include that cannot be read stays in the lines, as its own line, and
    // fails there with the reason, after the lines before it have run.
    expand(script, base, QString(), 0, &lines, &why);

    QLocalSocket socket;
    bool connected = false;
    int commands = 0;
    for (const Line &entry : qAsConst(lines)) {
        const QString &line = entry.text;
        const QString where = entry.file.isEmpty() ? QStringLiteral("line %1").arg(entry.number)
                                                   : QStringLiteral("%1 line %2").arg(entry.file).arg(entry.number);
        if (line.startsWith(QLatin1String("include "))) {
            out << "FAIL " << where << ": " << line << ": " << why << "\n";
            return 1;
        }
        const int space = line.indexOf(QLatin1Char(' '));
        const QString command = space < 0 ? line : line.left(space);
        const QString argument = space < 0 ? QString() : line.mid(space + 1).trimmed();
        QString seen;
        bool ok = true;
        if (command == QLatin1String("sleep")) {
            bool isNumber = false;
            const double seconds = argument.toDouble(&isNumber);
            ok = isNumber && seconds >= 0 && seconds <= 3600;
            if (ok)
                QThread::msleep(ulong(seconds * 1000));
            else
                seen = QStringLiteral("sleep takes seconds from 0 to 3600");
        } else if (command == QLatin1String("beaker")) {
            ok = beaker(argument, &seen);
        } else {
            if (!connected && !(connected = connect(&socket, err)))
                return 2;
            QString toSend = line;
            if (command == QLatin1String("shot") && !argument.isEmpty())
                toSend = QStringLiteral("shot ") + QFileInfo(argument).absoluteFilePath();
            if (command == QLatin1String("usb") && argument.startsWith(QLatin1String("in ")))
                toSend = QStringLiteral("usb in ") + QFileInfo(argument.mid(3).trimmed()).absoluteFilePath();
            ok = remote(&socket, toSend, waitLimitMs(command, argument), &seen);
            if (ok && command == QLatin1String("texts") && !seen.isEmpty())
                out << seen << "\n";
            if (ok && command == QLatin1String("shot"))
                out << "shot " << seen << "\n";
            if (ok && command == QLatin1String("frame"))
                out << "frame ms " << seen << "\n";
            if (ok && command == QLatin1String("memory"))
                out << "memory " << seen << "\n";
        }
        ++commands;
        if (!ok) {
            out << "FAIL " << where << ": " << line << ": " << seen << "\n";
            out.flush();
            return 1;
        }
        out.flush();
    }
    out << "OK " << commands << " commands\n";
    return 0;
}
