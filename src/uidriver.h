#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

class LogManager;
class UiFrameClock;
class UiGesture;
class QLocalServer;
class QLocalSocket;
class QQmlEngine;
class QQuickItem;
class QQuickWindow;

// Host builds only: operates the running window the way a finger does, for
// scripts sent over a local socket (one command a line, one JSON answer a
// line: {"ok":true,"text":"..."}). The commands it runs itself:
//   tap TEXT | tap #NAME, type TEXT, wait TEXT [SECONDS], expect TEXT,
//   absent TEXT, texts, shot FILE, nowarnings, hold TEXT|#NAME SECONDS,
//   swipe #NAME up|down|left|right [STEPS],
//   usb in [FOLDER], usb out, frame, memory
// The client (vantor-cli ui) keeps sleep and beaker for itself. Each command
// and its answer is kept in a cyclic log file of the sandbox.
class UiDriver : public QObject
{
    Q_OBJECT
public:
    using Reply = std::function<void(bool ok, const QString &text)>;

    // Collects the engine's warnings from construction on: build it before
    // the screens are loaded.
    explicit UiDriver(QQmlEngine *engine, QObject *parent = nullptr);
    ~UiDriver() override;

    // Host builds with KESTRUM_UI_DRIVER=1: a driver for this engine, else null.
    static UiDriver *fromEnvironment(QQmlEngine *engine);
    // Takes the window and listens on the sandbox's /run/ui.sock.
    void attach(QQuickWindow *window);

    void setWindow(QQuickWindow *window);
    // Listens on `path` (a stale socket file is replaced).
    bool listen(const QString &path, QString *error);

    // Runs one command; `reply` is called once, maybe later (waits).
    void execute(const QString &line, Reply reply);

    QStringList warnings() const { return m_warnings; }

    static constexpr int TapWaitMs = 5000;
    static constexpr int DefaultWaitMs = 10000;
    static constexpr int MaxLineBytes = 64 * 1024;
    static constexpr int MaxHoldSeconds = 60;
    static constexpr int MaxSwipeSteps = 50;

private:
    struct Pending {
        QString command;
        QString argument;
        int timeoutMs = 0;
        Reply reply;
        // hold and swipe: how long, which way, how many drags
        int holdMs = 0;
        int direction = 0;
        int steps = 1;
    };
    // Reads the numbers of hold and swipe into `p`; false with a reply when they are wrong.
    bool parseGesture(Pending *p);
    // Starts the gesture on the item; the reply comes when it has ended.
    void startGesture(const Pending &p, QQuickItem *item);
    void onConnection();
    void onReadable(QLocalSocket *socket);
    void poll();
    // One attempt; true when the command is done (either way).
    bool attempt(const Pending &p, bool last);
    void addWarning(const QString &text);
    static void messageHandler(QtMsgType type, const QMessageLogContext &context, const QString &text);

    QQmlEngine *m_engine;
    QPointer<QQuickWindow> m_window;
    QLocalServer *m_server = nullptr;
    QStringList m_warnings;
    bool m_busy = false;
    Pending m_pending;
    QElapsedTimer m_elapsed;
    QTimer m_poll;
    // The session's trail: every command and its answer, in a cyclic log file
    // ("logFiles/uiDriverLogs", one file per start of the application).
    LogManager *m_trail = nullptr;
    UiGesture *m_gesture = nullptr;
    UiFrameClock *m_frames = nullptr;
};
