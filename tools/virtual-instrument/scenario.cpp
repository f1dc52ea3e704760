#include "scenario.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Reads an optional number into *value; false (with *error) when it is
// there but not a number within [lo, hi].
bool read(const QJsonObject &o, const char *key, double lo, double hi, double *value, QString *error)
{
    const QJsonValue v = o.value(QLatin1String(key));
    if (v.isUndefined() || v.isNull())
        return true;
    if (!v.isDouble() || v.toDouble() < lo || v.toDouble() > hi) {
        *error = QStringLiteral("\"%1\" must be a number from %2 to %3").arg(QLatin1String(key)).arg(lo).arg(hi);
        return false;
    }
    *value = v.toDouble();
    return true;
}

} // namespace

bool Scenario::parse(const QByteArray &json, Scenario *out, QString *error)
{
    QJsonParseError pe;
    const QJsonDocument doc = QJsonDocument::fromJson(json, &pe);
    if (doc.isNull() || !doc.isObject()) {
        *error = QStringLiteral("not a JSON object: %1").arg(pe.errorString());
        return false;
    }
    const QJsonObject root = doc.object();
    const QJsonObject electrode = root.value(QLatin1String("electrode")).toObject();
    const QJsonObject burette = root.value(QLatin1String("burette")).toObject();
    const QJsonObject slave = root.value(QLatin1String("slave")).toObject();
    const QJsonObject faults = root.value(QLatin1String("faults")).toObject();

    VirtualSlave::Config c;
    double size = c.buretteMl, seed = c.seed, lost = 0, e0 = 0, slope = 100;
    if (!read(root, "temperature_C", -10, 150, &c.temperatureC, error)
        || !read(root, "burette_mL", 1, 100, &size, error)
        || !read(root, "seed", 0, 4294967295.0, &seed, error)
        || !read(electrode, "E0_mV", -3000, 3000, &e0, error)
        || !read(electrode, "slope_pct", 1, 200, &slope, error)
        || !read(electrode, "tau_s", 0, 3600, &c.tauS, error)
        || !read(electrode, "noise_mV", 0, 100, &c.noiseMv, error)
        || !read(burette, "dose_mL_min", 0.01, 1000, &c.doseMlPerMin, error)
        || !read(burette, "refill_mL_min", 0.01, 1000, &c.refillMlPerMin, error)
        || !read(faults, "ignore_size_commands", 0, 1000, &lost, error))
        return false;
    c.buretteMl = int(size);
    c.seed = quint32(seed);
    c.ignoreSizeCommands = int(lost);
    c.temperatureProbe = root.value(QLatin1String("temperature_probe")).toBool(true);
    c.version = slave.value(QLatin1String("version")).toString(c.version).left(31);
    c.serial = slave.value(QLatin1String("serial")).toString(c.serial).left(15);
    if (c.version.contains(QLatin1Char(' ')) || c.serial.contains(QLatin1Char(' '))) {
        *error = QStringLiteral("slave version and serial are single words");
        return false;
    }

    auto beaker = Beaker::fromJson(root.value(QLatin1String("beaker")).toObject(), c.temperatureC, e0, slope, error);
    if (!beaker)
        return false;
    out->config = c;
    out->beaker = std::move(beaker);
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
