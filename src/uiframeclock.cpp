#include "uiframeclock.h"

#include <QQuickWindow>

#include <chrono>

namespace {

qint64 nowNs()
{
    return std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

} // namespace

UiFrameClock::UiFrameClock(QObject *parent)
    : QObject(parent)
{
}

void UiFrameClock::setWindow(QQuickWindow *window)
{
    if (m_window)
        disconnect(m_window, nullptr, this, nullptr);
    m_window = window;
    if (!window)
        return;
    // Both signals may come from the render thread: direct connections
    // touching only the atomics.
    connect(window, &QQuickWindow::beforeSynchronizing, this, &UiFrameClock::onBeforeSynchronizing, Qt::DirectConnection);
    connect(window, &QQuickWindow::frameSwapped, this, &UiFrameClock::onFrameSwapped, Qt::DirectConnection);
}

void UiFrameClock::markTap()
{
    m_armed = false;
    m_frameNs = -1;
    m_tapNs = nowNs();
}

double UiFrameClock::lastTapToFrameMs() const
{
    const qint64 frame = m_frameNs;
    return frame < 0 ? -1.0 : double(frame) / 1e6;
}

void UiFrameClock::onBeforeSynchronizing()
{
    if (m_tapNs >= 0 && m_frameNs < 0)
        m_armed = true;
}

void UiFrameClock::onFrameSwapped()
{
    if (!m_armed.exchange(false))
        return;
    const qint64 tap = m_tapNs;
    if (tap >= 0 && m_frameNs < 0)
        m_frameNs = nowNs() - tap;
}
