#include "uigesture.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickWindow>

namespace {

constexpr int MoveIntervalMs = 16; // one frame of the screen
constexpr int MovesPerDrag = 12;
constexpr int RestBeforeLiftMs = 200; // the finger stops before it lifts: no fling
constexpr int RestMoves = 5;
constexpr int PauseBetweenDragsMs = 400; // a list comes to rest between two drags

} // namespace

UiGesture::UiGesture(QQuickWindow *window, QObject *parent)
    : QObject(parent)
    , m_window(window)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &UiGesture::next);
}

bool UiGesture::parseDirection(const QString &text, Direction *direction)
{
    static const char *const names[] = {"up", "down", "left", "right"};
    for (int i = 0; i < 4; ++i) {
        if (text == QLatin1String(names[i])) {
            *direction = Direction(i);
            return true;
        }
    }
    return false;
}

void UiGesture::hold(const QPointF &at, int ms)
{
    m_steps = {{QEvent::MouseButtonPress, at, 0}, {QEvent::MouseButtonRelease, at, ms}};
    start();
}

void UiGesture::swipe(const QPointF &from, Direction direction, qreal distance, int count)
{
    const QPointF unit = direction == Up ? QPointF(0, -1) : direction == Down ? QPointF(0, 1)
                       : direction == Left ? QPointF(-1, 0) : QPointF(1, 0);
    m_steps.clear();
    for (int n = 0; n < count; ++n) {
        m_steps.append({QEvent::MouseButtonPress, from, n == 0 ? 0 : PauseBetweenDragsMs});
        for (int i = 1; i <= MovesPerDrag; ++i)
            m_steps.append({QEvent::MouseMove, from + unit * (distance * i / MovesPerDrag), MoveIntervalMs});
        // The finger rests on the spot for a while: the list's measure of
        // speed sees it still, and nothing flies on after the lift.
        const QPointF end = from + unit * distance;
        for (int i = 0; i < RestMoves; ++i)
            m_steps.append({QEvent::MouseMove, end, RestBeforeLiftMs / RestMoves});
        m_steps.append({QEvent::MouseButtonRelease, end, MoveIntervalMs});
    }
    // The last drag settles before the gesture counts as done.
    m_steps.append({QEvent::None, from, PauseBetweenDragsMs});
    start();
}

void UiGesture::start()
{
    m_index = 0;
    m_clock.start();
    m_timer.start(0);
}

void UiGesture::next()
{
    if (m_index >= m_steps.size() || !m_window) {
        if (m_done)
            m_done();
        return;
    }
    const Step step = m_steps.at(m_index++);
    if (step.type != QEvent::None) {
        const Qt::MouseButton button = step.type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons buttons = step.type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        const QPointF global = m_window->mapToGlobal(step.at.toPoint());
        QMouseEvent event(step.type, step.at, step.at, global, button, buttons, Qt::NoModifier);
        event.setTimestamp(ulong(m_clock.elapsed()) + 1);
        QCoreApplication::sendEvent(m_window, &event);
    }
    m_timer.start(m_index < m_steps.size() ? m_steps.at(m_index).delayMs : 0);
}
