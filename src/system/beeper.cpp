#include "system/beeper.h"

#include "system/platform.h"

#include <QDebug>

#include <cmath>

int Beeper::s_position = 0;

namespace {

// Four short tunes: a fanfare, the tune of the instrument named "SS
// Enterprise", a notice and a warning.
constexpr int starWarsLength = 9;
constexpr int enterpriseLength = 8;
constexpr int notifyLength = 3;
constexpr int warningLength = 6;

bool writeText(const char *path, qint64 value)
{
    return Platform::writeDeviceFile(QString::fromLatin1(path), QByteArray::number(value));
}

} // namespace

Beeper::Beeper(QObject *parent)
    : QObject(parent)
{
    m_stopTimer.setSingleShot(true);
    connect(&m_stopTimer, &QTimer::timeout, this, &Beeper::stopBeeping);
}

int Beeper::periodNs(int freq_hz)
{
    if (freq_hz <= 0)
        return 0;
    // In single precision, as the channel's driver was always fed: 440 Hz
    // gives 2272728 ns.
    const float period = 0.5f + (1.0f / float(freq_hz)) * 1e9f;
    return int(std::lround(period));
}

void Beeper::sound(int period, int dutyCycle, int duration_ms)
{
    if (!m_exported) {
        // A second export of the same channel is refused by the kernel;
        // the channel is there all the same.
        writeText(exportPath, 0);
        m_exported = true;
    }
    writeText(dutyCyclePath, dutyCycle);
    writeText(periodPath, period);
    writeText(enablePath, 1);
    if (duration_ms > 0)
        m_stopTimer.start(duration_ms);
    else
        m_stopTimer.stop();
}

void Beeper::beep(int duration_ms)
{
    sound(defaultPeriodNs, defaultDutyCycleNs, duration_ms > 0 ? duration_ms : 1);
}

bool Beeper::beep(int freq_hz, int duration_ms)
{
    const int period = periodNs(freq_hz);
    if (period <= 0) {
        qDebug() << "Beeper: no tone of" << freq_hz << "Hz";
        return false;
    }
    sound(period, period / 2, duration_ms);
    return true;
}

void Beeper::stopBeeping()
{
    m_stopTimer.stop();
    writeText(enablePath, 0);
    emit beepComplete();
}

void Beeper::play(const Note *song, int length)
{
    m_song = song;
    m_songLength = length;
    playSong();
}

void Beeper::playSong()
{
    if (s_position == 0)
        connect(this, &Beeper::beepComplete, this, &Beeper::playSong, Qt::UniqueConnection);
    if (m_song && s_position < m_songLength) {
        const Note note = m_song[s_position];
        ++s_position;
        if (!beep(note.freq_hz, note.duration_ms))
            stopBeeping();
        return;
    }
    disconnect(this, &Beeper::beepComplete, this, &Beeper::playSong);
    s_position = 0;
}

void Beeper::playStarWars()
{
    static const Note song[starWarsLength] = {{392, 350}, {392, 350}, {392, 350}, {311, 250}, {466, 100},
                                              {392, 350}, {311, 250}, {466, 100}, {392, 700}};
    play(song, starWarsLength);
}

void Beeper::playEnterprise()
{
    static const Note song[enterpriseLength] = {{294, 400}, {392, 200}, {523, 600}, {494, 300},
                                                {392, 200}, {330, 200}, {440, 200}, {587, 800}};
    play(song, enterpriseLength);
}

void Beeper::playNotify()
{
    static const Note song[notifyLength] = {{880, 120}, {1175, 120}, {1568, 200}};
    play(song, notifyLength);
}

void Beeper::playWarning()
{
    static const Note song[warningLength] = {{988, 150}, {784, 150}, {988, 150}, {784, 150}, {988, 150}, {784, 300}};
    play(song, warningLength);
}
