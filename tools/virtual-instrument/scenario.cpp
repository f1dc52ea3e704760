#include "scenario.h"

#include "jsonfields.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

bool Scenario::parse(const QByteArray &json, Scenario *out, QString *error)
{
    QJsonParseError pe;
    const QJsonDocument doc = QJsonDocument::fromJson(json, &pe);
    if (doc.isNull() || !doc.isObject()) {
        *error = QStringLiteral("not a JSON object: %1").arg(pe.errorString());
        return false;
    }
    const QJsonObject root = doc.object();
    QJsonObject electrode, burette, slave, faults, beaker;
    JsonFields top(root, QString(), error);
    VirtualSlave::Config c;
    double seed = c.seed, e0 = 0, slope = 100;
    top.object("electrode", &electrode)
        .object("burette", &burette)
        .object("slave", &slave)
        .object("faults", &faults)
        .object("beaker", &beaker)
        .number("temperature_C", -10, 150, &c.temperatureC)
        .integer("burette_mL", 1, 100, &c.buretteMl)
        .whole("seed", 0, 4294967295.0, &seed)
        .boolean("temperature_probe", &c.temperatureProbe);
    if (!top.ok()
        || !JsonFields(electrode, QStringLiteral("electrode"), error)
                .number("E0_mV", -3000, 3000, &e0)
                .number("slope_pct", 1, 200, &slope)
                .number("tau_s", 0, 3600, &c.tauS)
                .number("noise_mV", 0, 100, &c.noiseMv)
                .ok()
        || !JsonFields(burette, QStringLiteral("burette"), error)
                .number("dose_mL_min", 0.01, 1000, &c.doseMlPerMin)
                .number("refill_mL_min", 0.01, 1000, &c.refillMlPerMin)
                .ok()
        || !JsonFields(faults, QStringLiteral("faults"), error).integer("ignore_size_commands", 0, 1000, &c.ignoreSizeCommands).ok()
        || !JsonFields(slave, QStringLiteral("slave"), error).text("version", &c.version).text("serial", &c.serial).ok())
        return false;
    c.seed = quint32(seed);
    c.version = c.version.left(31);
    c.serial = c.serial.left(15);
    if (c.version.isEmpty() || c.serial.isEmpty() || c.version.contains(QLatin1Char(' ')) || c.serial.contains(QLatin1Char(' '))) {
        *error = QStringLiteral("slave version and serial are single words");
        return false;
    }

    auto made = Beaker::fromJson(beaker, c.temperatureC, e0, slope, error);
    if (!made)
        return false;
    out->config = c;
    out->beaker = std::move(made);
    out->e0Mv = e0;
    out->slopePct = slope;
    return true;
}

bool Scenario::load(const QString &fileName, Scenario *out, QString *error)
{
    QFile f(fileName);
    if (!f.open(QIODevice::ReadOnly)) {
        *error = QStringLiteral("cannot read %1: %2").arg(fileName, f.errorString());
        return false;
    }
    constexpr qint64 kMaxBytes = 1 << 20;
    if (f.size() > kMaxBytes) {
        *error = QStringLiteral("%1 is larger than 1 MiB").arg(fileName);
        return false;
    }
    return parse(f.read(kMaxBytes), out, error);
}
