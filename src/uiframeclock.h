#pragma once

#include <QObject>

#include <atomic>

class QQuickWindow;

// Host builds only: the time from a tap to the frame that shows its outcome.
// A tap marks its start; the first synchronisation of the scene after it
// (the GUI thread is stopped there, so the tap's changes are in) arms the
// clock, and the swap of that frame stops it. A frame already being drawn
// when the tap came does not count. The figure leaves out anything done
// after the frame (a picture of the window, for example).
class UiFrameClock : public QObject
{
    Q_OBJECT
public:
    explicit UiFrameClock(QObject *parent = nullptr);

    void setWindow(QQuickWindow *window);
    // The tap is about to be delivered.
    void markTap();
    // Milliseconds from the last tap to its frame; -1 while it is not drawn
    // (or there was no tap).
    double lastTapToFrameMs() const;

private:
    void onBeforeSynchronizing();
    void onFrameSwapped();

    QObject *m_window = nullptr;
    std::atomic<qint64> m_tapNs{-1};
    std::atomic<bool> m_armed{false};
    std::atomic<qint64> m_frameNs{-1};
};
