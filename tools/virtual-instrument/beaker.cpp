#include "beaker.h"

#include "jsonfields.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace {

// Finds the root of a function that rises (or falls) over [lo, hi].
template <typename F>
double bisect(F f, double lo, double hi)
{
    double flo = f(lo);
    for (int i = 0; i < 200 && hi - lo > 1e-12; ++i) {
        const double mid = 0.5 * (lo + hi);
        const double fm = f(mid);
        if ((fm > 0) == (flo > 0)) {
            lo = mid;
            flo = fm;
        } else {
            hi = mid;
        }
    }
    return 0.5 * (lo + hi);
}

// Upper bounds of a sane scenario: no solution is stronger than 20 mol/L,
// no beaker holds more than 10 L.
constexpr double kMaxMolar = 20.0;
constexpr double kMaxMl = 10000.0;

} // namespace

double Beaker::nernstSlope(double celsius)
{
    // 1000 * R * T * ln(10) / F, in mV per decade.
    return 1000.0 * 8.314462618 * (celsius + 273.15) * std::log(10.0) / 96485.33212;
}

std::unique_ptr<Beaker> Beaker::fromJson(const QJsonObject &b, double celsius, double e0Mv,
                                         double slopePct, QString *error)
{
    QString kind = QStringLiteral("acid-base");
    double volume = 50;
    JsonFields beaker(b, QStringLiteral("beaker"), error);
    beaker.text("kind", &kind).number("volume_mL", 0, kMaxMl, &volume, true);
    if (!beaker.ok())
        return nullptr;

    if (kind == QLatin1String("acid-base")) {
        AcidBaseBeaker::Params p;
        QJsonObject a, t;
        QString form = QStringLiteral("acid"), tk = QStringLiteral("strong-base");
        beaker.object("analyte", &a).object("titrant", &t);
        JsonFields analyte(a, QStringLiteral("beaker.analyte"), error);
        JsonFields titrant(t, QStringLiteral("beaker.titrant"), error);
        if (!beaker.ok()
            || !analyte.number("conc_mol_L", 0, kMaxMolar, &p.concentration, true)
                    .text("form", &form)
                    .integer("acid_charge", -6, 6, &p.acidCharge)
                    .ok()
            || !titrant.text("kind", &tk).number("conc_mol_L", 0, kMaxMolar, &p.titrantConcentration, true).ok())
            return nullptr;
        p.volumeMl = volume;
        if (a.contains(QLatin1String("pKa"))) {
            const QJsonValue v = a.value(QLatin1String("pKa"));
            const QJsonArray list = v.isArray() ? v.toArray() : QJsonArray{v};
            p.pKa.clear();
            for (const QJsonValue &x : list) {
                if (!x.isDouble() || !std::isfinite(x.toDouble()) || x.toDouble() < -20 || x.toDouble() > 30) {
                    *error = QStringLiteral("\"beaker.analyte.pKa\" must be numbers from -20 to 30");
                    return nullptr;
                }
                p.pKa.push_back(x.toDouble());
            }
        }
        if (p.pKa.empty() || p.pKa.size() > 6) {
            *error = QStringLiteral("analyte pKa must list 1 to 6 values");
            return nullptr;
        }
        if (form != QLatin1String("acid") && form != QLatin1String("base")) {
            *error = QStringLiteral("analyte form must be \"acid\" or \"base\"");
            return nullptr;
        }
        p.startsAsAcid = form == QLatin1String("acid");
        if (tk != QLatin1String("strong-base") && tk != QLatin1String("strong-acid")) {
            *error = QStringLiteral("titrant kind must be \"strong-base\" or \"strong-acid\"");
            return nullptr;
        }
        p.titrantIsBase = tk == QLatin1String("strong-base");
        p.celsius = celsius;
        p.e0Mv = e0Mv;
        p.slopePct = slopePct;
        return std::make_unique<AcidBaseBeaker>(p);
    }
    if (kind == QLatin1String("redox")) {
        RedoxBeaker::Params p;
        QJsonObject a, t;
        beaker.object("analyte", &a).object("titrant", &t);
        JsonFields analyte(a, QStringLiteral("beaker.analyte"), error);
        JsonFields titrant(t, QStringLiteral("beaker.titrant"), error);
        if (!beaker.ok()
            || !analyte.number("E0_mV", -5000, 5000, &p.analyteE0)
                    .integer("n", 1, 6, &p.analyteN)
                    .number("conc_mol_L", 0, kMaxMolar, &p.analyteConcentration, true)
                    .number("oxidised_fraction", 0, 0.5, &p.initialOxidisedFraction, true)
                    .ok()
            || !titrant.number("E0_mV", -5000, 5000, &p.titrantE0)
                    .integer("n", 1, 6, &p.titrantN)
                    .number("conc_mol_L", 0, kMaxMolar, &p.titrantConcentration, true)
                    .ok())
            return nullptr;
        p.volumeMl = volume;
        p.initialOxidisedFraction = std::max(p.initialOxidisedFraction, 1e-15);
        p.celsius = celsius;
        p.e0Mv = e0Mv;
        return std::make_unique<RedoxBeaker>(p);
    }
    if (kind == QLatin1String("ise")) {
        IseBeaker::Params p;
        QJsonObject ion, t;
        beaker.object("ion", &ion).object("titrant", &t);
        JsonFields ionFields(ion, QStringLiteral("beaker.ion"), error);
        JsonFields titrant(t, QStringLiteral("beaker.titrant"), error);
        if (!beaker.ok()
            || !ionFields.integer("charge", -3, 3, &p.charge).number("conc_mol_L", 0, kMaxMolar, &p.concentration, true).ok()
            || !titrant.number("conc_mol_L", 0, kMaxMolar, &p.titrantConcentration, true).ok())
            return nullptr;
        if (p.charge == 0) {
            *error = QStringLiteral("ion charge must not be 0");
            return nullptr;
        }
        p.volumeMl = volume;
        p.celsius = celsius;
        p.e0Mv = e0Mv;
        p.slopePct = slopePct;
        return std::make_unique<IseBeaker>(p);
    }
    if (kind == QLatin1String("buffer")) {
        BufferBeaker::Params p;
        if (!beaker.number("pH", -2.0, 16.0, &p.pH).ok())
            return nullptr;
        p.celsius = celsius;
        p.e0Mv = e0Mv;
        p.slopePct = slopePct;
        return std::make_unique<BufferBeaker>(p);
    }
    *error = QStringLiteral("unknown beaker kind \"%1\"").arg(kind.left(32));
    return nullptr;
}

double BufferBeaker::potentialMv(double) const
{
    return m_p.e0Mv - (m_p.slopePct / 100.0) * nernstSlope(m_p.celsius) * (m_p.pH - 7.0);
}

// ---------------------------------------------------------------- acid-base

AcidBaseBeaker::AcidBaseBeaker(const Params &p)
    : m_p(p)
{
    // Harned and Owen's fit of the ion product of water.
    const double t = p.celsius + 273.15;
    m_pKw = 4470.99 / t - 6.0875 + 0.01706 * t;
}

double AcidBaseBeaker::chargeBalance(double pH, double titrantMl) const
{
    const double total = m_p.volumeMl + titrantMl;
    const double ca = m_p.concentration * m_p.volumeMl / total;
    const double ct = m_p.titrantConcentration * titrantMl / total;
    const double h = std::pow(10.0, -pH);
    const double oh = std::pow(10.0, pH - m_pKw);
    const int n = int(m_p.pKa.size());

    // Fractions of the species that have lost i protons: terms
    // h^(n-i) * K1...Ki, scaled by h^-n to stay in range.
    double term = 1.0, sum = 1.0, weighted = double(m_p.acidCharge);
    for (int i = 1; i <= n; ++i) {
        term *= std::pow(10.0, -m_p.pKa[size_t(i - 1)]) / h;
        sum += term;
        weighted += term * double(m_p.acidCharge - i);
    }
    const double speciesCharge = ca * weighted / sum;

    // The counter-ions of the compound as it was weighed in keep it neutral.
    const double suppliedCharge = m_p.startsAsAcid ? m_p.acidCharge : m_p.acidCharge - n;
    const double counterIons = -suppliedCharge * ca;
    const double titrantIons = m_p.titrantIsBase ? ct : -ct;
    return h - oh + counterIons + titrantIons + speciesCharge;
}

double AcidBaseBeaker::pH(double titrantMl) const
{
    // The balance falls as the pH rises.
    return bisect([&](double ph) { return chargeBalance(ph, titrantMl); }, -2.0, 16.0);
}

double AcidBaseBeaker::potentialMv(double titrantMl) const
{
    return m_p.e0Mv - (m_p.slopePct / 100.0) * nernstSlope(m_p.celsius) * (pH(titrantMl) - 7.0);
}

// ---------------------------------------------------------------- redox

RedoxBeaker::RedoxBeaker(const Params &p)
    : m_p(p)
{
}

double RedoxBeaker::potentialMv(double titrantMl) const
{
    const double s = Beaker::nernstSlope(m_p.celsius);
    // Moles of electrons the analyte can give and the titrant has taken.
    const double analyte = m_p.analyteConcentration * m_p.volumeMl * m_p.analyteN;
    const double titrant = m_p.titrantConcentration * titrantMl * m_p.titrantN;
    // Before the first drop a trace of the oxidised form sets the potential;
    // it counts as a floor on the titrant so it never moves the equivalence.
    const double titrantOrTrace = std::max(titrant, analyte * m_p.initialOxidisedFraction);
    // Oxidised fraction of the analyte and reduced fraction of the titrant at
    // a potential E: the electrons the analyte gave went to the titrant.
    auto balance = [&](double e) {
        const double fa = 1.0 / (1.0 + std::pow(10.0, -(e - m_p.analyteE0) * m_p.analyteN / s));
        const double ft = 1.0 / (1.0 + std::pow(10.0, (e - m_p.titrantE0) * m_p.titrantN / s));
        return analyte * fa - titrantOrTrace * ft;
    };
    return m_p.e0Mv + bisect(balance, -3000.0, 4000.0);
}

// ---------------------------------------------------------------- ISE

IseBeaker::IseBeaker(const Params &p)
    : m_p(p)
{
}

double IseBeaker::concentration(double titrantMl) const
{
    return (m_p.concentration * m_p.volumeMl + m_p.titrantConcentration * titrantMl)
           / (m_p.volumeMl + titrantMl);
}

double IseBeaker::potentialMv(double titrantMl) const
{
    const double c = std::max(concentration(titrantMl), 1e-12);
    return m_p.e0Mv
           + (m_p.slopePct / 100.0) * (Beaker::nernstSlope(m_p.celsius) / m_p.charge) * std::log10(c);
}
