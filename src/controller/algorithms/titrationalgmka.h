#pragma once

#include "controller/algorithms/maths/knownadditionfit.h"
#include "controller/algorithms/titrationalgorithmbase.h"
#include "reports/logmanager.h"

#include <Eigen/Core>

#include <QVariant>

#include <vector>

// "Multiple Known Addition" with an ion-selective electrode: a standard of
// the ion goes into the sample in steps, each aimed at a potential change of
// ΔE, and after each the Nernst response is fitted to every point so far for
// the sample's concentration, the electrode's slope and E0. The run ends when
// the last three concentrations agree to the method's precision, or after
// five additions. The results go out by the two signals, not as volumes.
class TitrationAlgMKA : public TitrationAlgorithmBase
{
    Q_OBJECT
public:
    enum State {
        MKA_FIRST_READING = 0,
        MKA_FIRST_ADDITION = 1,
        MKA_FIRST_ESTIMATE = 2,
        MKA_ADDITIONS = 3,
        MKA_DONE = 4,
    };

    static constexpr unsigned int kFirstDose = 50;       // µL
    static constexpr unsigned int kFirstTopUpCap = 1000; // µL
    static constexpr int kMaxTopUps = 4;
    static constexpr int kMaxAdditions = 5;

    TitrationAlgMKA(TemporalDataStore *temporal, VolumetricDataStore *volumetric, QObject *parent = nullptr);
    ~TitrationAlgMKA() override;

    unsigned int run() override;
    bool isEnded() override;
    void addData() override;
    void setProcessControlParams() override;

    // Read-outs for the controller's logs and for tests.
    int state() const { return m_state; }
    int additionCount() const { return m_additionCount; }
    const Eigen::VectorXd &parameters() const { return m_p; }   // C mol/L, E0 mV, S mV/decade
    const Eigen::VectorXd &lowerLimits() const { return m_lower; }
    const Eigen::VectorXd &upperLimits() const { return m_upper; }
    float precision() const { return m_precision; }
    double concentration() const { return m_concentration; }
    const std::vector<double> &concentrations() const { return m_concentrations; }
    float spikeRecovery() const { return m_spikeRecovery; }
    double expectedSlope() const { return m_expectedSlope; }
    float deltaE() const { return m_deltaE; }
    unsigned int deltaVmax() const { return m_deltaVmax; }
    unsigned int deltaVmin() const { return m_deltaVmin; }
    bool slopeFixed() const { return m_model.slopeFixed; }
    int extraDoses() const { return m_extraDoses; }
    // Fits whose normal matrix had no inverse; each is logged and its step dropped.
    int singularFits() const { return m_singularFits; }
    const KnownAdditionFit::Outcome &lastFit() const { return m_lastFit; }
    const std::vector<double> &volumesMl() const { return m_x; }
    const std::vector<double> &potentials() const { return m_y; }
    const std::vector<double> &weights() const { return m_w; }
    QString logFileName() const { return m_log.currentFileName(); }

signals:
    void sigMKAPointsToUI(QVariant volume, QVariant mV, QVariant calConc, QVariant precision, QVariant drift,
                          QVariant slope, QVariant E0);
    void sigMKACompleteToUI(QVariant conc, QVariant slope, QVariant spike);

private:
    // Readings of the stable window: fifteen seconds of samples after the
    // reading became stable, over which the electrode settles the rest of
    // the way and the noise averages out.
    static constexpr int kWindowReadings = 60;
    // True once the reading is stable and the window's readings are in.
    bool settledWindowReady();
    unsigned int firstAddition();
    unsigned int firstEstimate();
    unsigned int furtherAddition();
    void fitPoints();
    bool runFit(Eigen::VectorXd &p, const Eigen::VectorXd &lower, const Eigen::VectorXd &upper);
    void setLimits();
    bool curveRising() const;
    double responseSinceLastPoint() const;
    unsigned int topUpDose(double response) const;
    unsigned int stepDose() const;
    float reportConcentration(double c);
    void updatePrecision();
    void logPoint();
    void computeSpikeRecovery();
    void reportCompletion();

    float m_deltaE = 0.f;
    int m_state = MKA_FIRST_READING;
    int m_additionCount = 0;
    KnownAdditionFit::Model m_model;
    KnownAdditionFit::Settings m_settings;
    KnownAdditionFit::Outcome m_lastFit;
    Eigen::VectorXd m_p;
    Eigen::VectorXd m_lower;
    Eigen::VectorXd m_upper;
    std::vector<double> m_x;   // mL
    std::vector<double> m_y;   // mV
    std::vector<double> m_w;   // weight of each point: 1 / variance of its mean, 1/mV²
    float m_totalVolume = 0.f;
    float m_sampleBasis = 1.f;
    float m_requiredPrecision = 0.f;
    float m_precision = 999.f;
    double m_concentration = 0.0;
    float m_standard = 0.f;
    double m_expectedSlope = 59.2;
    double m_slopeHigh = 60.0;
    double m_slopeLow = 50.0;
    float m_blank = 0.f;
    float m_spikeRecovery = 0.f;
    LogManager m_log;
    std::vector<double> m_concentrations;
    int m_extraDoses = 0;
    // First sample of the stable window of the present addition; -1 until
    // the reading is stable.
    int m_windowStart = -1;
    int m_singularFits = 0;
};
