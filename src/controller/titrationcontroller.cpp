#include "controller/titrationcontroller.h"

#include "controller/algorithms/titrationalgmka.h"

#include "controller/algorithms/algorithmfactory.h"
#include "controller/algorithms/temporaldatastore.h"
#include "controller/algorithms/titrationalgorithmbase.h"
#include "controller/algorithms/volumetricdatastore.h"
#include "controller/burettecontroller.h"
#include "interfaces/enginedatainterface.h"
#include "interfaces/slavelink.h"
#include "reports/logmanager.h"
#include "system/clock.h"

#include <QDebug>
#include <QTimer>

#include <algorithm>
#include <cmath>

namespace {

const char *const kBeginBanner = "-------------------- TITRATION BEGIN ----------------\r\n"
                                 "ul,\t mV,\t Temp,\t Zone,\t Time,\t StdDev,\t pH\r\n";
const char *const kEndBanner = "-------------------- TITRATION END ------------------\r\n";

void toConsoleAndLog(EngineDataInterface *dm, const QString &text)
{
    dm->sendToConsole(text);
    dm->titrationLogFile()->write(text);
}

} // namespace

TitrationController::TitrationController(SlaveLink *msp, BuretteController *burette, QObject *parent)
    : QObject(parent)
    , mspCont(msp)
    , bc(burette)
    , m_simTimer(new QTimer(this))
    , m_parameterLog(new LogManager(this))
{
    dm()->setTitrationCoreVersion(QStringLiteral("1.0.0"));
    m_state = TITRATION_STATE_IDLE;
    m_lastSampleMs = Clock::monotonicMs();
    m_parameterLog->setLogfileDir(QStringLiteral("titrations"));
    m_parameterLog->setLogfileBasename(QStringLiteral("titrationParameters"));
}

TitrationController::~TitrationController()
{
    // A controller that goes with a run on (tests, the console tool) takes
    // the run's objects with it.
    delete m_algorithm;
    delete m_temporal;
    delete m_volumetric;
}

EngineDataInterface *TitrationController::dm()
{
    return EngineData::get();
}

void TitrationController::setTimeScale(double factor)
{
    m_timeScale = (std::isfinite(factor) && factor > 0.0) ? factor : 1.0;
}

int TitrationController::scaledMs(qint64 ms) const
{
    return int(std::clamp<qint64>(qint64(double(ms) / m_timeScale), 1, 24 * 3600 * 1000));
}

void TitrationController::latchSimulation()
{
    m_inSimulation = m_simData.exists();
    if (m_inSimulation)
        qDebug() << "Titration in simulation from" << m_simData.fileName();
}

void TitrationController::reInitiateTitrationModel()
{
    m_state = TITRATION_STATE_IDLE;
}

void TitrationController::clearWaitDispense()
{
    m_waitDispense = false;
}

void TitrationController::releaseRunObjects()
{
    if (m_algorithm)
        m_algorithm->deleteLater();
    if (m_temporal)
        m_temporal->deleteLater();
    if (m_volumetric)
        m_volumetric->deleteLater();
    m_algorithm = nullptr;
    m_temporal = nullptr;
    m_volumetric = nullptr;
}

void TitrationController::startTitration()
{
    EngineDataInterface *data = dm();
    if (m_algorithm || m_temporal || m_volumetric) {
        qDebug() << "startTitration: the objects of an earlier run are released first";
        disconnect(bc, nullptr, m_algorithm, nullptr);
        disconnect(m_algorithm, nullptr, nullptr, nullptr);
        releaseRunObjects();
    }
    m_state = TITRATION_STATE_STARTUP;
    m_temporal = new TemporalDataStore;
    m_volumetric = new VolumetricDataStore;

    const int technique = data->getTitrationTechnique();
    m_algorithm = AlgorithmFactory::create(technique, m_temporal, m_volumetric);
    if (AlgorithmFactory::feedsCurve(technique))
        connect(m_volumetric, &DataStoreBase::NewDataReceived, this, &TitrationController::volDataUpdated);
    if (auto *mka = qobject_cast<TitrationAlgMKA *>(m_algorithm)) {
        // The chart and the records of a known-addition run are fed by its own two signals.
        connect(mka, &TitrationAlgMKA::sigMKAPointsToUI, mka,
                [](QVariant volume, QVariant mV, QVariant calConc, QVariant precision, QVariant drift,
                   QVariant slope, QVariant e0) {
                    EngineData::get()->getSigMKAPointsToUI(volume, mV, calConc, precision, drift, slope, e0);
                });
        connect(mka, &TitrationAlgMKA::sigMKACompleteToUI, mka, [](QVariant conc, QVariant slope, QVariant spike) {
            EngineData::get()->getMKATitrationCompleted(conc, slope, spike);
        });
    }

    connect(bc, &BuretteController::backendDispenseCompleted, m_algorithm,
            &TitrationAlgorithmBase::dispenseComplete);
    connect(bc, &BuretteController::backendDispenseCompleted, this, &TitrationController::clearWaitDispense,
            Qt::UniqueConnection);

    data->titrationLogFile()->newCyclicFile(MaxLogFiles);
    data->rawTitrationLogFile()->newCyclicFile(MaxLogFiles);
    toConsoleAndLog(data, QLatin1String(kBeginBanner));

    if (m_inSimulation) {
        connect(m_simTimer, &QTimer::timeout, this, &TitrationController::simTimerUpdate, Qt::UniqueConnection);
        m_simTimer->start(scaledMs(SimulationPeriodMs));
    } else {
        connect(mspCont, &SlaveLink::mspNewDataSignal, this, &TitrationController::execute,
                Qt::UniqueConnection);
    }

    m_sampleCount = 0;
    m_waitDispense = false;
    m_lastRun = RunRecord();
    writeParameterLog();
}

void TitrationController::stopTitration()
{
    m_state = TITRATION_STATE_IDLE;
    if (m_inSimulation) {
        m_simTimer->stop();
        disconnect(m_simTimer, &QTimer::timeout, this, &TitrationController::simTimerUpdate);
    } else {
        bc->resetBurette();
        disconnect(mspCont, &SlaveLink::mspNewDataSignal, this, &TitrationController::execute);
    }
    if (m_algorithm) {
        writeReasonForEnd();
        disconnect(bc, nullptr, m_algorithm, nullptr);
        disconnect(m_algorithm, nullptr, nullptr, nullptr);
    }
    if (m_volumetric)
        disconnect(m_volumetric, nullptr, this, nullptr);
    disconnect(bc, &BuretteController::backendDispenseCompleted, this, &TitrationController::clearWaitDispense);
    releaseRunObjects();
    qDebug() << "Titration Stopped";
}

void TitrationController::simTimerUpdate()
{
    execute(42, 42.42);
}

void TitrationController::execute(long timeStamp, double mvData)
{
    const qint64 now = Clock::monotonicMs();
    m_sampleIntervalMs = now - m_lastSampleMs;
    m_lastSampleMs = now;
    ++m_sampleCount;

    if (m_temporal) {
        if (m_state == TITRATION_STATE_IDLE)
            return;
        m_temporal->addPoint(timeStamp, mvData);
        if (m_sampleCount == 1)
            m_firstStamp = timeStamp;
        m_lastStamp = timeStamp;
    }

    switch (m_state) {
    case TITRATION_STATE_IDLE:
        break;
    case TITRATION_STATE_STARTUP:
        if (m_sampleCount <= 3)
            break;
        reInitiateTitrationModel();
        m_algorithm->onStart();
        m_state = TITRATION_STATE_RUNNING;
        break;
    case TITRATION_STATE_RUNNING: {
        if (m_inSimulation) {
            simulationStep();
            break;
        }
        if (m_algorithm->isFinished()) {
            m_state = TITRATION_STATE_FINISHED;
            break;
        }
        if (dm()->getDispenseInProgress())
            m_waitDispense = false;
        else if (m_waitDispense)
            break;
        const unsigned int dose = m_algorithm->run();
        if (dose > 0) {
            bc->dispense_ul(int(std::min<unsigned int>(dose, 1000000u)));
            m_waitDispense = true;
            ++m_lastRun.doses;
        }
        break;
    }
    case TITRATION_STATE_FINISHED:
        m_state = TITRATION_STATE_REINITIALIZE;
        finishRun();
        break;
    case TITRATION_STATE_REINITIALIZE:
        qDebug() << "TITRATION_STATE_REINITIALIZE";
        stopTitration();
        m_state = TITRATION_STATE_IDLE;
        break;
    default:
        qDebug() << "ERROR: Unknown Titration State!  Halting!";
        break;
    }
}

void TitrationController::simulationStep()
{
    double data = 0.0, volume = 0.0;
    if (!m_simData.next(data, volume)) {
        // The curve is over: the run ends here, whatever its volume limit,
        // and no made-up point joins the curve; the algorithm, which did not
        // end the run, learns why it ended.
        m_simData.closeAndAdvance();
        if (m_algorithm && !m_algorithm->isEnded())
            m_algorithm->reasonForEnd = QStringLiteral("end of data");
        m_state = TITRATION_STATE_FINISHED;
        return;
    }
    // Fractions of a microlitre are kept: dynamic doses of a few µL read
    // to 0.01 µL would lose a tenth of their size.
    m_volumetric->addPoint(volume, data);
    if (!m_algorithm)
        return; // stopped by a listener of the new point
    if (volume < dm()->getTitratrationOrStandardardizationMaxVolmL() * 1000.f && !m_algorithm->isEnded())
        return;
    m_simData.closeAndAdvance();
    m_state = TITRATION_STATE_FINISHED;
}

void TitrationController::finishRun()
{
    std::array<double, 3> results = m_algorithm->getResults();
    for (double &r : results) {
        if (!qIsFinite(r))
            r = 0.0;
    }
    m_lastRun.reasonForEnd = reasonText();
    m_lastRun.results = results;
    m_lastRun.durationMs = m_inSimulation ? qint64(m_sampleCount) * SimulationPeriodMs
                                          : qint64(m_lastStamp) - qint64(m_firstStamp);
    // The listeners of the completed signal may stop the run and release
    // the algorithm and the stores: nothing below may count on them.
    writeSummary(results);
    toConsoleAndLog(dm(), QLatin1String(kEndBanner));
    if (m_algorithm)
        writeReasonForEnd();
}

void TitrationController::writeSummary(const std::array<double, 3> &results)
{
    EngineDataInterface *data = dm();
    const int total = bc->getTotalDispensed();
    QString text = QStringLiteral("\r\nTitration Summary\r\n");
    text += QStringLiteral("Total Vol Dispensed (ul):%1\r\n").arg(total);
    const int endPoints = std::clamp(data->titrationRecordParameters().noOfEndPoints, 0, 3);
    for (int i = 1; i <= endPoints; ++i)
        text += QStringLiteral("End Point %1 Volume Dispensed (ul):%2\r\n").arg(i).arg(results[size_t(i - 1)], 0, 'g');
    toConsoleAndLog(data, text);
    data->setMultipleEndPointVolumes(results);
    qDebug() << "Stop titration from QML";
    const bool maxReached = total >= data->getTitratrationOrStandardardizationMaxVolmL() * 1000.f;
    m_lastRun.totalDispensedUl = total;
    m_lastRun.maxReached = maxReached;
    emit titrationCompletedSignal();
    emit titrationNotification(maxReached);
}

void TitrationController::writeParameterLog()
{
    EngineDataInterface *data = dm();
    const TitrationRecordParameters p = data->titrationRecordParameters();
    m_parameterLog->newCyclicFile(MaxLogFiles);
    QString text;
    text += QStringLiteral("\nTitration Technique: ") + p.technique;
    text += QStringLiteral("\nDisplay Units: ") + p.displayUnits;
    text += QStringLiteral("\nPredose (ul): ") + QString::number(double(p.preDoseMl) * 1000.0, 'g', 6);
    text += QStringLiteral("\nMax Disp Vol (ul)") + QString::number(double(p.maxVolumeMl) * 1000.0, 'g', 6);
    text += QStringLiteral("\nNum endpoints: ") + QString::number(data->getNoOfEndpoints());
    text += QStringLiteral("\nProcess Control: ") + p.processControl;
    m_parameterLog->writeStamped(text);
}

void TitrationController::writeReasonForEnd()
{
    m_parameterLog->writeStamped(QStringLiteral("\nReason for end: ") + reasonText());
}

QString TitrationController::reasonText() const
{
    // A run that ended without its algorithm saying why (a curve file that
    // ran out) says so plainly.
    const QString reason = m_algorithm ? m_algorithm->reasonForEnd.trimmed() : QString();
    return reason.isEmpty() ? QStringLiteral("Unknown") : reason;
}

void TitrationController::volDataUpdated()
{
    if (!m_volumetric)
        return;
    const double volume = m_volumetric->lastVolume();
    const double data = m_volumetric->lastData();
    dm()->setMillivolts(float(data));
    emit signalNewGraphData(float(volume), float(data));
}
