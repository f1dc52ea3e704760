#include "virtualslave.h"

#include <QList>

#include <cmath>

namespace {
constexpr double kStepMs = 20.0;   // largest step of the physics
} // namespace

VirtualSlave::VirtualSlave(const Config &config, std::unique_ptr<Beaker> beaker)
    : m_cfg(config)
    , m_beaker(std::move(beaker))
    , m_rng(config.seed)
    , m_sizeMl(config.buretteMl)
    , m_contentUl(config.buretteMl * 1000.0)
{
    m_targetMv = m_beaker ? m_beaker->potentialMv(0.0) : 0.0;
    m_targetAtMl = 0.0;
    m_electrodeMv = m_targetMv;
}

void VirtualSlave::setBeaker(std::unique_ptr<Beaker> beaker)
{
    m_beaker = std::move(beaker);
    m_beakerStartMl = titrantInBeakerMl();
    m_targetAtMl = -1;
    event(QStringLiteral("electrode moved to a new beaker"));
}

int VirtualSlave::positionCode() const
{
    if (m_motion != Motion::None)
        return 0;
    if (m_contentUl >= capacityUl() - 1e-6)
        return 2;   // load position: cylinder full
    if (m_contentUl <= 1e-6)
        return 1;   // end of the stroke: cylinder empty
    return 0;
}

void VirtualSlave::event(const QString &text)
{
    if (onEvent)
        onEvent(text);
}

void VirtualSlave::advanceTo(qint64 ms)
{
    while (m_now < ms) {
        const double dt = std::min<double>(kStepMs, double(ms - m_now));
        step(dt);
        m_now += qint64(dt);
    }
}

void VirtualSlave::step(double dtMs)
{
    switch (m_motion) {
    case Motion::Dose: {
        const double amount = std::min({m_cfg.doseMlPerMin * dtMs / 60.0, m_doseLeftUl, m_contentUl});
        m_contentUl -= amount;
        m_doseLeftUl -= amount;
        m_dosedUl += amount;
        if (m_doseLeftUl <= 1e-9) {
            finishMotion(QStringLiteral("dose done %1 uL").arg(m_doseOrderedUl));
        } else if (m_contentUl <= 1e-9) {
            finishMotion(QStringLiteral("dose cut at the end of the cylinder, %1 uL not delivered")
                             .arg(m_doseLeftUl));
        }
        break;
    }
    case Motion::ToEnd: {
        const double amount = std::min(m_cfg.doseMlPerMin * dtMs / 60.0, m_contentUl);
        m_contentUl -= amount;
        m_expelledUl += amount;
        if (m_contentUl <= 1e-9)
            finishMotion(QStringLiteral("piston at the end"));
        break;
    }
    case Motion::Refill: {
        m_contentUl = std::min(capacityUl(), m_contentUl + m_cfg.refillMlPerMin * dtMs / 60.0);
        if (m_contentUl >= capacityUl() - 1e-9)
            finishMotion(QStringLiteral("piston at the load position"));
        break;
    }
    case Motion::None:
        break;
    }

    // The electrode follows the beaker with its first-order lag.
    const double ml = titrantInBeakerMl() - m_beakerStartMl;
    if (m_beaker && std::fabs(ml - m_targetAtMl) > 1e-9) {
        m_targetMv = m_beaker->potentialMv(ml);
        m_targetAtMl = ml;
    }
    if (m_cfg.tauS <= 0)
        m_electrodeMv = m_targetMv;
    else
        m_electrodeMv += (m_targetMv - m_electrodeMv) * (1.0 - std::exp(-dtMs / (m_cfg.tauS * 1000.0)));
}

void VirtualSlave::finishMotion(const QString &what)
{
    if (m_motion == Motion::Refill)
        m_contentUl = capacityUl();
    if (m_motion == Motion::Dose)
        m_dispenseStatus = 1;
    m_motion = Motion::None;
    m_doseLeftUl = 0;
    // Volumes are kept to the nanolitre so sums of doses stay exact.
    m_dosedUl = std::round(m_dosedUl * 1000.0) / 1000.0;
    m_expelledUl = std::round(m_expelledUl * 1000.0) / 1000.0;
    m_contentUl = std::round(m_contentUl * 1000.0) / 1000.0;
    event(QStringLiteral("%1; dosed %2 uL, expelled %3 uL, in cylinder %4 uL")
              .arg(what)
              .arg(m_dosedUl, 0, 'f', 3)
              .arg(m_expelledUl, 0, 'f', 3)
              .arg(m_contentUl, 0, 'f', 3));
}

QByteArray VirtualSlave::error(const QString &tag, const char *code) const
{
    return reply(tag + QStringLiteral(" ERROR ") + QLatin1String(code));
}

QByteArray VirtualSlave::probeReply()
{
    const double mv = m_electrodeMv + m_cfg.noiseMv * m_noise(m_rng);
    const double raw = m_electrodeMv + m_cfg.noiseMv * m_noise(m_rng);
    const double temp = m_cfg.temperatureProbe ? m_cfg.temperatureC : 125.0;
    return reply(QStringLiteral("MG %1 %2 %3 %4 %5 %6 %7 %8 %9 %10")
                     .arg(raw, 0, 'f', 3)
                     .arg(temp, 0, 'f', 2)
                     .arg(m_cfg.noiseMv, 0, 'f', 3)
                     .arg(m_now)
                     .arg(m_dispenseStatus)
                     .arg(m_cfg.noiseMv, 0, 'f', 3)
                     .arg(mv, 0, 'f', 3)
                     .arg(0.0, 0, 'f', 1)
                     .arg(0.0, 0, 'f', 1)
                     .arg(0));
}

QByteArray VirtualSlave::handle(const QByteArray &line)
{
    const QList<QByteArray> words = line.simplified().split(' ');
    if (words.isEmpty() || words.first().isEmpty())
        return {};
    const QString tag = QString::fromLatin1(words.first());
    bool hasValue = false;
    int value = 0;
    if (words.size() >= 2)
        value = words.at(1).toInt(&hasValue);

    if (tag == QLatin1String("MG"))
        return probeReply();
    if (tag == QLatin1String("SYSTEM"))
        return reply(QStringLiteral("SYSTEM VANTOR MSP430 %1 BUILD 0 SN %2").arg(m_cfg.version, m_cfg.serial));
    if (tag == QLatin1String("BBG"))
        return reply(QStringLiteral("BBG %1 %2").arg(busy() ? 1 : 0).arg(positionCode()));
    if (tag == QLatin1String("BSG"))
        return reply(QStringLiteral("BSG %1").arg(m_sizeMl));
    if (tag == QLatin1String("SSG"))
        return reply(QStringLiteral("SSG %1").arg(m_stir));
    if (tag == QLatin1String("BLG"))
        return reply(QStringLiteral("BLG %1").arg(m_backlight));
    if (tag == QLatin1String("VG"))
        return reply(QStringLiteral("VG %1").arg(m_valve));

    if (tag == QLatin1String("BDS")) {
        if (!hasValue)
            return error(tag, "CE");
        if (value <= 0)
            return error(tag, "OOR");
        if (busy())
            return error(tag, "CIP");
        m_motion = Motion::Dose;
        m_doseLeftUl = value;
        m_doseOrderedUl = value;
        m_dispenseStatus = 0;
        event(QStringLiteral("dose of %1 uL started, %2 uL in cylinder").arg(value).arg(m_contentUl, 0, 'f', 3));
        return {};
    }
    if (tag == QLatin1String("BES")) {
        if (busy())
            return error(tag, "CIP");
        if (m_contentUl > 1e-9)
            m_motion = Motion::ToEnd;
        return {};
    }
    if (tag == QLatin1String("BHS")) {
        if (busy())
            return error(tag, "CIP");
        if (m_contentUl < capacityUl() - 1e-9)
            m_motion = Motion::Refill;
        return {};
    }
    if (tag == QLatin1String("STP") || tag == QLatin1String("SH")) {
        if (m_motion != Motion::None)
            finishMotion(QStringLiteral("stopped by %1").arg(tag));
        m_dispenseStatus = 1;
        if (tag == QLatin1String("SH") && m_contentUl < capacityUl() - 1e-9)
            m_motion = Motion::Refill;
        return {};
    }
    if (tag == QLatin1String("BSS")) {
        if (!hasValue)
            return error(tag, "CE");
        if (value <= 0 || value > 100)
            return error(tag, "OOR");
        if (busy())
            return error(tag, "CIP");
        if (m_sizeCommandsLost < m_cfg.ignoreSizeCommands) {
            ++m_sizeCommandsLost;
            event(QStringLiteral("size command lost (%1 of %2)").arg(m_sizeCommandsLost).arg(m_cfg.ignoreSizeCommands));
            return {};
        }
        // The piston stays where it is: the same stroke of another cylinder.
        m_contentUl = std::round(m_contentUl * value / m_sizeMl * 1000.0) / 1000.0;
        m_sizeMl = value;
        event(QStringLiteral("burette size %1 mL").arg(value));
        return {};
    }
    if (tag == QLatin1String("SSS")) {
        if (!hasValue)
            return error(tag, "CE");
        if (value < 0 || value > 5)
            return error(tag, "OOR");
        m_stir = value;
        return {};
    }
    if (tag == QLatin1String("BLS")) {
        if (!hasValue)
            return error(tag, "CE");
        if (value < 0 || value > 255)
            return error(tag, "OOR");
        m_backlight = value;
        return {};
    }
    if (tag == QLatin1String("VS")) {
        if (!hasValue)
            return error(tag, "CE");
        if (value < 0 || value > 9)
            return error(tag, "OOR");
        m_valve = value;
        return {};
    }
    if (tag == QLatin1String("REBOOT")) {
        if (m_motion != Motion::None)
            finishMotion(QStringLiteral("stopped by REBOOT"));
        m_dispenseStatus = 1;
        m_stir = 0;
        event(QStringLiteral("reboot"));
        return {};
    }
    return error(tag, "NSC");
}
