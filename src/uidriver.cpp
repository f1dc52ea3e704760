#include "uidriver.h"

#include "reports/logmanager.h"
#include "system/platform.h"
#include "uiframeclock.h"
#include "uigesture.h"
#include "uidriverusb.h"
#include "uiscene.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QQmlEngine>
#include <QQmlError>
#include <QQuickItem>
#include <QQuickWindow>

namespace {

UiDriver *g_driver = nullptr;
QtMessageHandler g_previousHandler = nullptr;

// "text" or text: quotes let a text keep its spaces at the ends, or end in a number.
QString unquoted(const QString &text)
{
    const QString t = text.trimmed();
    if (t.size() >= 2 && t.startsWith(QLatin1Char('"')) && t.endsWith(QLatin1Char('"')))
        return t.mid(1, t.size() - 2);
    return t;
}

QString shownList(const UiScene &scene, int limit = 40)
{
    QStringList texts;
    const auto shown = scene.shownTexts();
    for (const auto &t : shown) {
        if (texts.size() == limit) {
            texts << QStringLiteral("...");
            break;
        }
        texts << QLatin1Char('"') + t.text + QLatin1Char('"');
    }
    return texts.isEmpty() ? QStringLiteral("no text on show") : QStringLiteral("on show: ") + texts.join(QStringLiteral(", "));
}

// The process's resident memory now and its open descriptors, from /proc.
QString processFigures()
{
    long residentKb = -1;
    QFile status(QStringLiteral("/proc/self/status"));
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:"))
                residentKb = line.mid(6).trimmed().split(' ').value(0).toLong();
        }
    }
    const int files = int(QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files | QDir::System).size());
    return QStringLiteral("resident kB %1, open files %2").arg(residentKb).arg(files);
}

} // namespace

UiDriver::UiDriver(QQmlEngine *engine, QObject *parent)
    : QObject(parent)
    , m_engine(engine)
{
    connect(engine, &QQmlEngine::warnings, this, [this](const QList<QQmlError> &errors) {
        for (const QQmlError &e : errors)
            addWarning(e.toString());
    });
    // console.warn and console.error of the screens come as messages.
    g_driver = this;
    g_previousHandler = qInstallMessageHandler(&UiDriver::messageHandler);
    m_poll.setInterval(50);
    connect(&m_poll, &QTimer::timeout, this, &UiDriver::poll);
}

UiDriver::~UiDriver()
{
    qInstallMessageHandler(g_previousHandler);
    g_driver = nullptr;
}

void UiDriver::messageHandler(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (g_driver && type != QtDebugMsg && type != QtInfoMsg) {
        const QLatin1String category(context.category ? context.category : "");
        if (category == QLatin1String("qml") || category == QLatin1String("js"))
            g_driver->addWarning(text);
    }
    if (g_previousHandler)
        g_previousHandler(type, context, text);
    else
        fprintf(stderr, "%s\n", qPrintable(text));
}

void UiDriver::addWarning(const QString &text)
{
    if (m_warnings.size() < 1000)
        m_warnings << text;
}

UiDriver *UiDriver::fromEnvironment(QQmlEngine *engine)
{
    if (Platform::isTarget() || qgetenv("KESTRUM_UI_DRIVER") != "1")
        return nullptr;
    return new UiDriver(engine, engine);
}

void UiDriver::attach(QQuickWindow *window)
{
    setWindow(window);
    const QString path = Platform::path(QStringLiteral("/run/ui.sock"));
    QString error;
    m_trail = new LogManager(this);
    m_trail->setLogfileDir(QStringLiteral("logFiles/uiDriverLogs"));
    m_trail->setLogfileBasename(QStringLiteral("uiDriver"));
    m_trail->newCyclicFile(100);
    if (listen(path, &error))
        qDebug() << "Kestrum: UI driver listening on" << path;
    else
        qDebug() << "Kestrum: the UI driver cannot listen on" << path << ":" << error;
}

void UiDriver::setWindow(QQuickWindow *window)
{
    m_window = window;
    if (!m_frames)
        m_frames = new UiFrameClock(this);
    m_frames->setWindow(window);
}

bool UiDriver::listen(const QString &path, QString *error)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QLocalServer::removeServer(path);
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    if (!m_server->listen(path)) {
        *error = m_server->errorString();
        return false;
    }
    connect(m_server, &QLocalServer::newConnection, this, &UiDriver::onConnection);
    return true;
}

void UiDriver::onConnection()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { onReadable(socket); });
    }
}

void UiDriver::onReadable(QLocalSocket *socket)
{
    // One command at a time: the next line is read when this one is answered.
    while (!m_busy && socket->canReadLine()) {
        const QByteArray line = socket->readLine(MaxLineBytes).trimmed();
        QPointer<QLocalSocket> guard(socket);
        const QString command = QString::fromUtf8(line);
        execute(command, [this, guard, command](bool ok, const QString &text) {
            if (m_trail)
                m_trail->writeStamped((ok ? QStringLiteral("ok   ") : QStringLiteral("FAIL ")) + command
                                      + (ok ? QString() : QStringLiteral(": ") + text));
            if (!guard)
                return;
            QJsonObject answer{{QStringLiteral("ok"), ok}, {QStringLiteral("text"), text}};
            guard->write(QJsonDocument(answer).toJson(QJsonDocument::Compact) + '\n');
            guard->flush();
            QTimer::singleShot(0, this, [this, guard] {
                if (guard)
                    onReadable(guard);
            });
        });
    }
    if (!m_busy && socket->bytesAvailable() > MaxLineBytes) {
        socket->write(QByteArrayLiteral("{\"ok\":false,\"text\":\"line too long\"}\n"));
        socket->disconnectFromServer();
    }
}

void UiDriver::execute(const QString &line, Reply reply)
{
    if (m_busy) {
        reply(false, QStringLiteral("another command is running"));
        return;
    }
    const QString trimmed = line.trimmed();
    const int space = trimmed.indexOf(QLatin1Char(' '));
    Pending p;
    p.command = space < 0 ? trimmed : trimmed.left(space);
    p.argument = space < 0 ? QString() : trimmed.mid(space + 1).trimmed();
    p.reply = std::move(reply);
    if (p.command == QLatin1String("tap")) {
        p.timeoutMs = TapWaitMs;
    } else if (p.command == QLatin1String("hold") || p.command == QLatin1String("swipe")) {
        p.timeoutMs = TapWaitMs;
        if (!parseGesture(&p))
            return;
    } else if (p.command == QLatin1String("frame")) {
        p.timeoutMs = TapWaitMs;
    } else if (p.command == QLatin1String("wait")) {
        p.timeoutMs = DefaultWaitMs;
        // A last word that is a number is the time limit in seconds.
        const int cut = p.argument.lastIndexOf(QLatin1Char(' '));
        bool isNumber = false;
        const double seconds = cut < 0 ? 0 : p.argument.mid(cut + 1).toDouble(&isNumber);
        if (isNumber && !p.argument.endsWith(QLatin1Char('"'))) {
            if (seconds <= 0 || seconds > 3600) {
                p.reply(false, QStringLiteral("the time limit must be above 0 and at most 3600 seconds"));
                return;
            }
            p.timeoutMs = int(seconds * 1000);
            p.argument = p.argument.left(cut).trimmed();
        }
    }
    if (UiDriverUsb::isUsbCommand(p.command)) {
        QString error;
        if (!UiDriverUsb::plug(p.argument, &error)) {
            p.reply(false, error);
            return;
        }
        p.timeoutMs = UiDriverUsb::SettleWaitMs;
    }
    p.argument = unquoted(p.argument);
    if (!m_window) {
        p.reply(false, QStringLiteral("the window is not up"));
        return;
    }
    if (attempt(p, p.timeoutMs == 0))
        return;
    m_busy = true;
    m_pending = p;
    m_elapsed.start();
    m_poll.start();
}

void UiDriver::poll()
{
    const bool last = m_elapsed.elapsed() >= m_pending.timeoutMs;
    if (!m_window || attempt(m_pending, last)) {
        m_poll.stop();
        // A gesture that has started keeps the driver busy until it ends.
        m_busy = m_gesture && m_gesture->isRunning();
    }
}

bool UiDriver::parseGesture(Pending *p)
{
    const QString usage = p->command == QLatin1String("hold") ? QStringLiteral("hold TEXT|#NAME SECONDS")
                                                              : QStringLiteral("swipe #NAME up|down|left|right [STEPS]");
    QStringList words = p->argument.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    bool ok = false;
    if (p->command == QLatin1String("hold")) {
        const double seconds = words.size() >= 2 ? words.last().toDouble(&ok) : 0;
        ok = ok && seconds > 0 && seconds <= MaxHoldSeconds;
        if (ok) {
            p->holdMs = int(seconds * 1000);
            words.removeLast();
            p->argument = words.join(QLatin1Char(' '));
        }
    } else {
        UiGesture::Direction direction = UiGesture::Up;
        if (words.size() == 3) {
            p->steps = words.last().toInt(&ok);
            ok = ok && p->steps >= 1 && p->steps <= MaxSwipeSteps;
            words.removeLast();
        } else {
            ok = words.size() == 2;
        }
        ok = ok && words.first().startsWith(QLatin1Char('#')) && UiGesture::parseDirection(words.last(), &direction);
        p->direction = direction;
        p->argument = words.value(0);
    }
    if (!ok)
        p->reply(false, QStringLiteral("usage: %1 (at most %2 s, %3 steps)").arg(usage).arg(MaxHoldSeconds).arg(MaxSwipeSteps));
    return ok;
}

void UiDriver::startGesture(const Pending &p, QQuickItem *item)
{
    if (!m_gesture)
        m_gesture = new UiGesture(m_window, this);
    const QRectF rect = item->mapRectToScene(QRectF(0, 0, item->width(), item->height()))
                            .intersected(QRectF(0, 0, m_window->width(), m_window->height()));
    const Reply reply = p.reply;
    m_gesture->onFinished([this, reply] {
        m_busy = false;
        reply(true, QString());
    });
    m_busy = true;
    if (p.command == QLatin1String("hold")) {
        m_gesture->hold(rect.center(), p.holdMs);
        return;
    }
    // One drag moves a quarter of the item: with the drag threshold and the
    // snap, one row of a three-row tumbler.
    const auto direction = UiGesture::Direction(p.direction);
    const bool vertical = direction == UiGesture::Up || direction == UiGesture::Down;
    m_gesture->swipe(rect.center(), direction, (vertical ? rect.height() : rect.width()) / 4.0, p.steps);
}

bool UiDriver::attempt(const Pending &p, bool last)
{
    const UiScene scene(m_window);
    const QString &arg = p.argument;
    const bool gesture = p.command == QLatin1String("hold") || p.command == QLatin1String("swipe");
    if (p.command == QLatin1String("tap") || gesture) {
        if (arg.isEmpty()) {
            p.reply(false, QStringLiteral("%1 needs a text or #NAME").arg(p.command));
            return true;
        }
        const bool byName = arg.startsWith(QLatin1Char('#')) && arg.size() > 1;
        QQuickItem *item = byName ? scene.itemNamed(arg.mid(1)) : scene.itemWithText(arg);
        if (item && gesture) {
            startGesture(p, item);
            return true;
        }
        if (item) {
            if (m_frames)
                m_frames->markTap();
            scene.tap(item);
            p.reply(true, QString());
            return true;
        }
        if (last)
            p.reply(false, QStringLiteral("no visible, enabled item %1 after %2 s; %3")
                               .arg(byName ? arg : QLatin1Char('"') + arg + QLatin1Char('"'))
                               .arg(p.timeoutMs / 1000.0)
                               .arg(shownList(scene)));
        return last;
    }
    if (p.command == QLatin1String("wait") || p.command == QLatin1String("expect")) {
        if (scene.showsText(arg)) {
            p.reply(true, QString());
            return true;
        }
        if (last)
            p.reply(false, QStringLiteral("no text contains \"%1\"%2; %3")
                               .arg(arg, p.timeoutMs ? QStringLiteral(" after %1 s").arg(p.timeoutMs / 1000.0) : QString(),
                                    shownList(scene)));
        return last;
    }
    if (UiDriverUsb::isUsbCommand(p.command)) {
        const bool settled = UiDriverUsb::settled(arg);
        if (settled || last)
            p.reply(settled, settled ? QString() : QStringLiteral("rm.usbIsReady did not follow \"usb %1\"").arg(arg));
        return settled || last;
    }
    if (p.command == QLatin1String("absent")) {
        const auto texts = scene.shownTexts();
        for (const auto &t : texts) {
            if (t.text.contains(arg)) {
                p.reply(false, QStringLiteral("\"%1\" is on show").arg(t.text));
                return true;
            }
        }
        p.reply(true, QString());
        return true;
    }
    if (p.command == QLatin1String("texts")) {
        QStringList lines;
        const auto texts = scene.shownTexts();
        for (const auto &t : texts)
            lines << QString(t.text).replace(QLatin1Char('\n'), QLatin1Char(' '));
        p.reply(true, lines.join(QLatin1Char('\n')));
        return true;
    }
    if (p.command == QLatin1String("type")) {
        scene.type(arg);
        p.reply(true, QString());
        return true;
    }
    if (p.command == QLatin1String("shot")) {
        QString error;
        if (arg.isEmpty() || !QFileInfo(arg).isAbsolute())
            p.reply(false, QStringLiteral("shot needs an absolute file name"));
        else if (!scene.saveShot(arg, &error))
            p.reply(false, error);
        else
            p.reply(true, arg);
        return true;
    }
    if (p.command == QLatin1String("frame")) {
        // waits (as wait does) until the last tap's frame is drawn
        const double ms = m_frames ? m_frames->lastTapToFrameMs() : -1;
        if (ms >= 0 || last)
            p.reply(ms >= 0, ms >= 0 ? QString::number(ms, 'f', 3) : QStringLiteral("no frame drawn since the last tap"));
        return ms >= 0 || last;
    }
    if (p.command == QLatin1String("memory")) {
        p.reply(true, processFigures());
        return true;
    }
    if (p.command == QLatin1String("nowarnings")) {
        if (m_warnings.isEmpty())
            p.reply(true, QString());
        else
            p.reply(false, QStringLiteral("%1 warning(s): %2").arg(m_warnings.size()).arg(m_warnings.mid(0, 5).join(QStringLiteral(" | "))));
        return true;
    }
    p.reply(false, QStringLiteral("unknown command \"%1\"").arg(p.command.left(32)));
    return true;
}
