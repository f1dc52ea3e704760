#pragma once

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QTimer>
#include <QVector>

#include <functional>

class QQuickWindow;

// A finger movement that takes time: press and hold, or a slow drag across
// an item. The mouse events go to the window one by one from the event loop,
// with real time stamps, so the screens see what a touch screen gives them.
// Host tools only (the UI driver).
class UiGesture : public QObject
{
    Q_OBJECT
public:
    enum Direction { Up, Down, Left, Right };

    explicit UiGesture(QQuickWindow *window, QObject *parent = nullptr);

    // Press at `at`, hold for `ms`, release.
    void hold(const QPointF &at, int ms);
    // `count` drags from `from`, each by `distance` pixels in `direction`,
    // slow enough (and still before the release) that nothing flies on.
    void swipe(const QPointF &from, Direction direction, qreal distance, int count);
    // Called once, when the last event was sent.
    void onFinished(std::function<void()> done) { m_done = std::move(done); }
    bool isRunning() const { return m_timer.isActive(); }

    static bool parseDirection(const QString &text, Direction *direction);

private:
    struct Step {
        QEvent::Type type;
        QPointF at;
        int delayMs; // after the step before
    };
    void start();
    void next();

    QPointer<QQuickWindow> m_window;
    QVector<Step> m_steps;
    int m_index = 0;
    QTimer m_timer;
    QElapsedTimer m_clock;
    std::function<void()> m_done;
};
