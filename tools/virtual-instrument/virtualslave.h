#pragma once

#include "beaker.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <random>

// The slave microcontroller of the instrument as the application sees it on
// the wire: a piston burette that moves at a finite speed, stirrer, valve,
// backlight, and an electrode in a beaker. Driven by the instrument's own
// millisecond clock (advanceTo), so that tests can run it at any pace.
class VirtualSlave
{
public:
    struct Config {
        QString version = QStringLiteral("1.07");
        QString serial = QStringLiteral("VP400-0001234");
        int buretteMl = 20;
        double doseMlPerMin = 20;      // piston speed delivering
        double refillMlPerMin = 40;    // piston speed refilling
        double temperatureC = 25;
        bool temperatureProbe = true;  // false: reports 125, "no probe"
        double tauS = 1.0;             // electrode's first-order lag
        double noiseMv = 0.05;
        quint32 seed = 1;
        int ignoreSizeCommands = 0;    // BSS commands silently lost first
    };

    VirtualSlave(const Config &config, std::unique_ptr<Beaker> beaker);

    // Moves the instrument's clock forward (never back) and the piston and
    // the electrode with it.
    void advanceTo(qint64 ms);
    // One command line without its line end; returns the reply with its
    // line end, or nothing for commands that have no reply.
    QByteArray handle(const QByteArray &line);

    // The electrode goes into another beaker (a buffer, the next sample):
    // titrant dispensed so far stays in the old one. It settles with its lag.
    void setBeaker(std::unique_ptr<Beaker> beaker);

    qint64 now() const { return m_now; }
    bool busy() const { return m_motion != Motion::None; }
    int positionCode() const;
    int dispenseStatus() const { return m_dispenseStatus; }
    double contentUl() const { return m_contentUl; }
    double dosedUl() const { return m_dosedUl; }          // delivered by BDS
    double expelledUl() const { return m_expelledUl; }    // delivered by BES
    double titrantInBeakerMl() const { return (m_dosedUl + m_expelledUl) / 1000.0; }
    double electrodeMv() const { return m_electrodeMv; }
    int buretteSizeMl() const { return m_sizeMl; }
    int stirSpeed() const { return m_stir; }

    // Events worth a line in the trace ("dose done 500 uL").
    std::function<void(const QString &)> onEvent;

private:
    enum class Motion { None, Dose, ToEnd, Refill };

    void step(double dtMs);
    void finishMotion(const QString &what);
    void event(const QString &text);
    double capacityUl() const { return m_sizeMl * 1000.0; }
    QByteArray reply(const QString &text) const { return text.toLatin1() + "\r\n"; }
    QByteArray error(const QString &tag, const char *code) const;
    QByteArray probeReply();

    Config m_cfg;
    std::unique_ptr<Beaker> m_beaker;
    std::mt19937 m_rng;
    std::normal_distribution<double> m_noise{0.0, 1.0};

    qint64 m_now = 0;
    int m_sizeMl;
    double m_contentUl;
    Motion m_motion = Motion::None;
    double m_doseLeftUl = 0;
    double m_doseOrderedUl = 0;
    double m_dosedUl = 0;
    double m_expelledUl = 0;
    int m_dispenseStatus = 1;
    int m_stir = 0;
    int m_backlight = 100;
    int m_valve = 0;
    int m_sizeCommandsLost = 0;
    double m_electrodeMv = 0;
    double m_targetMv = 0;
    double m_targetAtMl = -1;
    double m_beakerStartMl = 0;
};
