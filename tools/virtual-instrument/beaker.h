#pragma once

#include <QJsonObject>
#include <QString>

#include <memory>
#include <vector>

// What is in the beaker, and the potential an ideal electrode reads in it
// for a volume of titrant added. Every kind counts the dilution by the
// titrant. Potentials in mV, volumes in mL, concentrations in mol/L.
class Beaker
{
public:
    virtual ~Beaker() = default;
    // The ideal electrode's reading for this much titrant added.
    virtual double potentialMv(double titrantMl) const = 0;

    // Nernst slope, mV per decade, at a temperature in degrees Celsius.
    static double nernstSlope(double celsius);
    // Builds the beaker of a scenario's "beaker" object; on a fault returns
    // nullptr and says why in *error.
    static std::unique_ptr<Beaker> fromJson(const QJsonObject &beaker, double celsius,
                                            double e0Mv, double slopePct, QString *error);
};

// A mono- or polyprotic acid (or its base) titrated with a strong base or a
// strong acid, solved exactly from the charge balance.
class AcidBaseBeaker : public Beaker
{
public:
    struct Params {
        double volumeMl = 50;
        std::vector<double> pKa{4.76};
        double concentration = 0.1;
        bool startsAsAcid = true;     // "form": "acid" or "base"
        int acidCharge = 0;           // charge of the fully protonated species
        bool titrantIsBase = true;    // "strong-base" or "strong-acid"
        double titrantConcentration = 0.1;
        double celsius = 25;
        double e0Mv = 0;
        double slopePct = 100;
    };
    explicit AcidBaseBeaker(const Params &p);
    const Params &params() const { return m_p; }

    double pH(double titrantMl) const;
    double potentialMv(double titrantMl) const override;
    // pKw at the beaker's temperature.
    double pKw() const { return m_pKw; }

private:
    double chargeBalance(double pH, double titrantMl) const;
    Params m_p;
    double m_pKw;
};

// One redox couple (present in its reduced form) titrated with the oxidised
// form of another; Nernst for both, solved from the electron balance.
class RedoxBeaker : public Beaker
{
public:
    struct Params {
        double volumeMl = 50;
        double analyteE0 = 771, titrantE0 = 1440;
        int analyteN = 1, titrantN = 1;
        double analyteConcentration = 0.1, titrantConcentration = 0.1;
        double initialOxidisedFraction = 1e-4;  // sets the potential before the first drop
        double celsius = 25;
        double e0Mv = 0;
    };
    explicit RedoxBeaker(const Params &p);
    const Params &params() const { return m_p; }
    double potentialMv(double titrantMl) const override;

private:
    Params m_p;
};

// An ion-selective electrode in a solution of its ion; the titrant is a
// standard of the same ion.
class IseBeaker : public Beaker
{
public:
    struct Params {
        double volumeMl = 50;
        int charge = 1;
        double concentration = 0.001;
        double titrantConcentration = 0.1;
        double celsius = 25;
        double e0Mv = 0;
        double slopePct = 100;
    };
    explicit IseBeaker(const Params &p);
    const Params &params() const { return m_p; }
    double concentration(double titrantMl) const;
    double potentialMv(double titrantMl) const override;

private:
    Params m_p;
};

// A buffer solution: the electrode reads a fixed pH at the scenario's
// temperature, E = E0 - slope * (pH - 7); the titrant does not change it.
class BufferBeaker : public Beaker
{
public:
    struct Params {
        double pH = 7.0;
        double celsius = 25;
        double e0Mv = 0;
        double slopePct = 100;
    };
    explicit BufferBeaker(const Params &p) : m_p(p) {}
    double potentialMv(double titrantMl) const override;

private:
    Params m_p;
};
