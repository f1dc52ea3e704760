#pragma once

#include <QObject>
#include <QTimer>

// The buzzer on PWM channel 0 of the board. A tone writes the duty cycle,
// the period (both in ns) and "1" into the channel's sysfs files; a single
// shot timer writes "0" to stop it. Tunes play note by note, each note's end
// starting the next. Files are written directly through the platform layer
// (recorded on a host), never through a shell.
class Beeper : public QObject
{
    Q_OBJECT
public:
    static constexpr const char *exportPath = "/sys/class/pwm/pwmchip0/export";
    static constexpr const char *dutyCyclePath = "/sys/class/pwm/pwmchip0/pwm0/duty_cycle";
    static constexpr const char *periodPath = "/sys/class/pwm/pwmchip0/pwm0/period";
    static constexpr const char *enablePath = "/sys/class/pwm/pwmchip0/pwm0/enable";
    // The plain tone: about 4184 Hz.
    static constexpr int defaultPeriodNs = 239000;
    static constexpr int defaultDutyCycleNs = 119500;

    // Channel 0 is exported before the first tone (a channel exported
    // before refuses; that is fine), so a beeper that never sounds writes
    // nothing.
    explicit Beeper(QObject *parent = nullptr);

    // The period of a tone in ns, rounded as the channel takes it; 0 for a
    // frequency the channel can't make (0 or less).
    static int periodNs(int freq_hz);

    // The default tone for duration_ms.
    void beep(int duration_ms);
    // A tone; a duration of 0 or less sounds until stopBeeping(). A frequency
    // of 0 or less is refused (logged, nothing written, false).
    bool beep(int freq_hz, int duration_ms);
    bool isStopPending() const { return m_stopTimer.isActive(); }
    int stopDelayMs() const { return m_stopTimer.interval(); }

    void playStarWars();
    void playEnterprise();
    void playNotify();
    void playWarning();

public slots:
    void stopBeeping();

signals:
    // Emitted by each stop.
    void beepComplete();

private slots:
    void playSong();

private:
    struct Note {
        int freq_hz;
        int duration_ms;
    };
    void sound(int periodNs, int dutyCycleNs, int duration_ms);
    void play(const Note *song, int length);

    const Note *m_song = nullptr;
    int m_songLength = 0;
    QTimer m_stopTimer;
    bool m_exported = false;
    // How far the tune has come; shared by every beeper, as there is one buzzer.
    static int s_position;
};
