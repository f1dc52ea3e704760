#include "beaker.h"

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

double number(const QJsonObject &o, const char *key, double fallback)
{
    const QJsonValue v = o.value(QLatin1String(key));
    return v.isDouble() ? v.toDouble() : fallback;
}

} // namespace

double Beaker::nernstSlope(double celsius)
{
    // 1000 * R * T * ln(10) / F, in mV per decade.
    return 1000.0 * 8.314462618 * (celsius + 273.15) * std::log(10.0) / 96485.33212;
}

std::unique_ptr<Beaker> Beaker::fromJson(const QJsonObject &b, double celsius, double e0Mv,
                                         double slopePct, QString *error)
{
    const QString kind = b.value(QLatin1String("kind")).toString(QStringLiteral("acid-base"));
    const double volume = number(b, "volume_mL", 50);
    if (!(volume > 0)) {
        *error = QStringLiteral("beaker volume_mL must be above 0");
        return nullptr;
    }
    if (kind == QLatin1String("acid-base")) {
        AcidBaseBeaker::Params p;
        const QJsonObject a = b.value(QLatin1String("analyte")).toObject();
        const QJsonObject t = b.value(QLatin1String("titrant")).toObject();
        p.volumeMl = volume;
        if (a.contains(QLatin1String("pKa"))) {
            p.pKa.clear();
            const QJsonValue v = a.value(QLatin1String("pKa"));
            if (v.isDouble()) {
                p.pKa.push_back(v.toDouble());
            } else {
                const QJsonArray arr = v.toArray();
                for (const QJsonValue &x : arr)
                    p.pKa.push_back(x.toDouble());
            }
        }
        if (p.pKa.empty() || p.pKa.size() > 6) {
            *error = QStringLiteral("analyte pKa must list 1 to 6 values");
            return nullptr;
        }
        p.concentration = number(a, "conc_mol_L", 0.1);
        const QString form = a.value(QLatin1String("form")).toString(QStringLiteral("acid"));
        if (form != QLatin1String("acid") && form != QLatin1String("base")) {
            *error = QStringLiteral("analyte form must be \"acid\" or \"base\"");
            return nullptr;
        }
        p.startsAsAcid = form == QLatin1String("acid");
        p.acidCharge = int(number(a, "acid_charge", 0));
        const QString tk = t.value(QLatin1String("kind")).toString(QStringLiteral("strong-base"));
        if (tk != QLatin1String("strong-base") && tk != QLatin1String("strong-acid")) {
            *error = QStringLiteral("titrant kind must be \"strong-base\" or \"strong-acid\"");
            return nullptr;
        }
        p.titrantIsBase = tk == QLatin1String("strong-base");
        p.titrantConcentration = number(t, "conc_mol_L", 0.1);
        p.celsius = celsius;
        p.e0Mv = e0Mv;
        p.slopePct = slopePct;
        return std::make_unique<AcidBaseBeaker>(p);
    }
    if (kind == QLatin1String("redox")) {
        RedoxBeaker::Params p;
        const QJsonObject a = b.value(QLatin1String("analyte")).toObject();
        const QJsonObject t = b.value(QLatin1String("titrant")).toObject();
        p.volumeMl = volume;
        p.analyteE0 = number(a, "E0_mV", 771);
        p.analyteN = std::max(1, int(number(a, "n", 1)));
        p.analyteConcentration = number(a, "conc_mol_L", 0.1);
        p.titrantE0 = number(t, "E0_mV", 1440);
        p.titrantN = std::max(1, int(number(t, "n", 1)));
        p.titrantConcentration = number(t, "conc_mol_L", 0.1);
        p.initialOxidisedFraction = std::clamp(number(a, "oxidised_fraction", 1e-4), 1e-15, 0.5);
        p.celsius = celsius;
        p.e0Mv = e0Mv;
        return std::make_unique<RedoxBeaker>(p);
    }
    if (kind == QLatin1String("ise")) {
        IseBeaker::Params p;
        const QJsonObject ion = b.value(QLatin1String("ion")).toObject();
        const QJsonObject t = b.value(QLatin1String("titrant")).toObject();
        p.volumeMl = volume;
        p.charge = int(number(ion, "charge", 1));
        if (p.charge == 0) {
            *error = QStringLiteral("ion charge must not be 0");
            return nullptr;
        }
        p.concentration = number(ion, "conc_mol_L", 0.001);
        p.titrantConcentration = number(t, "conc_mol_L", 0.1);
        p.celsius = celsius;
        p.e0Mv = e0Mv;
        p.slopePct = slopePct;
        return std::make_unique<IseBeaker>(p);
    }
    if (kind == QLatin1String("buffer")) {
        BufferBeaker::Params p;
        p.pH = number(b, "pH", 7.0);
        if (p.pH < -2.0 || p.pH > 16.0) {
            *error = QStringLiteral("buffer pH must lie between -2 and 16");
            return nullptr;
        }
        p.celsius = celsius;
        p.e0Mv = e0Mv;
        p.slopePct = slopePct;
        return std::make_unique<BufferBeaker>(p);
    }
    *error = QStringLiteral("unknown beaker kind \"%1\"").arg(kind);
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
