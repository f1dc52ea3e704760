#include "meterrunner.h"

#include "beaker.h"
#include "controller/metercontroller.h"
#include "controller/mspcontroller.h"
#include "controller/slaveclock.h"
#include "datamanagerbase.h"
#include "models/calibrationcyclemodel.h"
#include "models/calibrationlogmodel.h"
#include "models/calibrationmodel.h"
#include "models/loglayout.h"
#include "models/measurementlogmodel.h"
#include "models/measurementmodel.h"
#include "pseudoterminal.h"
#include "sandboxsession.h"
#include "scenario.h"
#include "slavesession.h"
#include "system/clock.h"
#include "system/platform.h"
#include "virtualslave.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonObject>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

namespace {

constexpr int kMaxPoints = 5;

bool waitFor(const std::function<bool()> &done, qint64 timeoutMs)
{
    QElapsedTimer wall;
    wall.start();
    while (!done()) {
        if (wall.elapsed() > timeoutMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
    }
    return true;
}

// A list of numbers "a,b,c", each within [lo, hi].
bool numberList(const QString &text, double lo, double hi, std::vector<double> *out)
{
    out->clear();
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() > kMaxPoints)
        return false;
    for (const QString &p : parts) {
        bool ok = false;
        const double v = p.trimmed().toDouble(&ok);
        if (!ok || !std::isfinite(v) || v < lo || v > hi)
            return false;
        out->push_back(v);
    }
    return !out->empty();
}

int decimalsOf(float resolution)
{
    return resolution > 0.f ? std::max(0, int(std::lround(-std::log10(double(resolution))))) : 2;
}

QString ionOf(const Scenario &scenario)
{
    const auto *ise = dynamic_cast<const IseBeaker *>(scenario.beaker.get());
    const int charge = ise ? ise->params().charge : 1;
    if (std::abs(charge) == 1)
        return charge > 0 ? QStringLiteral("Monovalent Cation (X+)") : QStringLiteral("Monovalent Anion (X-)");
    return charge > 0 ? QStringLiteral("Divalent Cation (X2+)") : QStringLiteral("Divalent Anion (X2-)");
}

} // namespace

MeterRunner::MeterRunner(Command command)
    : m_command(command)
{
}

QString MeterRunner::usage(Command command)
{
    if (command == Measure)
        return QStringLiteral(
            "usage: vantor-cli measure --scenario FILE [options]\n"
            "  --scenario FILE          the electrode and the beaker of a virtual-instrument scenario (JSON)\n"
            "  --mode pH|Redox|ISE      what the meter reads (default pH)\n"
            "  --sandbox DIR            the instrument's files, the calibration used and the log kept below DIR\n"
            "  --speed FACTOR           the link polls this many times faster than real time (default 50)\n"
            "  --timeout S              give up after this many seconds of wall time (default 600)\n"
            "  --verbose                show the meter's trail on standard error\n");
    return QStringLiteral(
        "usage: vantor-cli calibrate --scenario FILE (--buffers LIST | --standards LIST) [options]\n"
        "  --scenario FILE          the electrode of a virtual-instrument scenario (JSON)\n"
        "  --buffers A,B[,...]      pH buffers, one point each (1 to 5)\n"
        "  --group USA|DIN          the buffer table the buffers are recognised in (default USA)\n"
        "  --standards A[,...]      Redox: the standard's mV (one); ISE: concentrations in mol/L (2 to 5)\n"
        "  --mode Redox|ISE         the electrode calibrated with --standards\n"
        "  --sandbox DIR            store the calibration in the database below DIR\n"
        "  --speed FACTOR           the link polls this many times faster than real time (default 50)\n"
        "  --timeout S              give up after this many seconds of wall time (default 600)\n"
        "  --verbose                show the meter's trail on standard error\n");
}

bool MeterRunner::parse(const QStringList &arguments, QString *error)
{
    QCommandLineParser p;
    p.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption scenarioOpt(QStringLiteral("scenario"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption modeOpt(QStringLiteral("mode"), QString(), QStringLiteral("MODE"));
    const QCommandLineOption buffersOpt(QStringLiteral("buffers"), QString(), QStringLiteral("LIST"));
    const QCommandLineOption standardsOpt(QStringLiteral("standards"), QString(), QStringLiteral("LIST"));
    const QCommandLineOption groupOpt(QStringLiteral("group"), QString(), QStringLiteral("GROUP"));
    const QCommandLineOption sandboxOpt(QStringLiteral("sandbox"), QString(), QStringLiteral("DIR"));
    const QCommandLineOption speedOpt(QStringLiteral("speed"), QString(), QStringLiteral("FACTOR"));
    const QCommandLineOption timeoutOpt(QStringLiteral("timeout"), QString(), QStringLiteral("S"));
    const QCommandLineOption verboseOpt(QStringLiteral("verbose"));
    p.addOptions({scenarioOpt, modeOpt, sandboxOpt, speedOpt, timeoutOpt, verboseOpt});
    if (m_command == Calibrate)
        p.addOptions({buffersOpt, standardsOpt, groupOpt});
    if (!p.parse(QStringList{QStringLiteral("vantor-cli")} + arguments)) {
        *error = p.errorText();
        return false;
    }
    if (!p.positionalArguments().isEmpty()) {
        *error = QStringLiteral("unexpected argument: %1").arg(p.positionalArguments().first());
        return false;
    }
    m_scenarioFile = p.value(scenarioOpt);
    if (m_scenarioFile.isEmpty()) {
        *error = QStringLiteral("give --scenario FILE");
        return false;
    }
    if (p.isSet(modeOpt)) {
        m_mode = p.value(modeOpt);
        if (m_mode != QLatin1String("pH") && m_mode != QLatin1String("Redox") && m_mode != QLatin1String("ISE")) {
            *error = QStringLiteral("--mode must be pH, Redox or ISE");
            return false;
        }
    }
    bool ok = false;
    if (p.isSet(speedOpt)) {
        m_speed = p.value(speedOpt).toDouble(&ok);
        if (!ok || !std::isfinite(m_speed) || m_speed < 0.1 || m_speed > 1000) {
            *error = QStringLiteral("--speed must be between 0.1 and 1000");
            return false;
        }
    }
    if (p.isSet(timeoutOpt)) {
        m_timeoutS = p.value(timeoutOpt).toInt(&ok);
        if (!ok || m_timeoutS < 1 || m_timeoutS > 86400) {
            *error = QStringLiteral("--timeout must be whole seconds between 1 and 86400");
            return false;
        }
    }
    m_sandbox = p.value(sandboxOpt);
    if (p.isSet(sandboxOpt) && m_sandbox.trimmed().isEmpty()) {
        *error = QStringLiteral("--sandbox needs a folder");
        return false;
    }
    m_verbose = p.isSet(verboseOpt);
    if (m_command == Measure)
        return true;

    if (p.isSet(buffersOpt) == p.isSet(standardsOpt)) {
        *error = QStringLiteral("give either --buffers (pH) or --standards (Redox, ISE)");
        return false;
    }
    if (p.isSet(buffersOpt)) {
        if (p.isSet(modeOpt) && m_mode != QLatin1String("pH")) {
            *error = QStringLiteral("--buffers calibrate a pH electrode; Redox and ISE take --standards");
            return false;
        }
        m_mode = QStringLiteral("pH");
        if (!numberList(p.value(buffersOpt), 0.0, 14.0, &m_values)) {
            *error = QStringLiteral("--buffers takes 1 to 5 pH values between 0 and 14, separated by commas");
            return false;
        }
        m_group = p.isSet(groupOpt) ? p.value(groupOpt) : m_group;
        if (m_group != QLatin1String("USA") && m_group != QLatin1String("DIN")) {
            *error = QStringLiteral("--group must be USA or DIN");
            return false;
        }
        return true;
    }
    if (m_mode == QLatin1String("Redox")) {
        if (!numberList(p.value(standardsOpt), -2000.0, 2000.0, &m_values) || m_values.size() != 1) {
            *error = QStringLiteral("--standards for Redox takes one potential between -2000 and 2000 mV");
            return false;
        }
        return true;
    }
    if (m_mode != QLatin1String("ISE")) {
        *error = QStringLiteral("--standards needs --mode Redox or --mode ISE");
        return false;
    }
    if (!numberList(p.value(standardsOpt), 0.0, 20.0, &m_values) || m_values.size() < 2
        || std::count(m_values.begin(), m_values.end(), 0.0) > 0) {
        *error = QStringLiteral("--standards for ISE takes 2 to 5 concentrations above 0 and at most 20 mol/L");
        return false;
    }
    return true;
}

double MeterRunner::waitStable(MeterController &mc)
{
    bool stable = false;
    const QMetaObject::Connection c =
        QObject::connect(&mc, &MeterController::qmlStableCalibration, [&stable] { stable = true; });
    const qint64 from = Clock::monotonicMs();
    const bool done = waitFor([&] { return stable; }, qint64(m_timeoutS) * 1000);
    QObject::disconnect(c);
    return done ? double(Clock::monotonicMs() - from) / 1000.0 : -1.0;
}

int MeterRunner::run(QTextStream &out, QTextStream &err)
{
    SandboxSession sandbox(m_sandbox);
    if (!sandbox.open(err))
        return 2;
    Scenario scenario;
    QString error;
    if (!Scenario::load(m_scenarioFile, &scenario, &error)) {
        err << "vantor-cli: scenario " << m_scenarioFile << ": " << error << "\n";
        return 2;
    }
    m_ion = ionOf(scenario);
    const Scenario &settings = scenario; // the beaker moves into the slave
    const QString device = Platform::path(QStringLiteral("/dev/ttymxc2"));
    VirtualSlave slave(scenario.config, std::move(scenario.beaker));
    PseudoTerminal pty;
    if (!pty.open(device)) {
        err << "vantor-cli: virtual instrument: " << pty.errorString() << "\n";
        return 2;
    }
    SlaveSession session(&pty, &slave);

    DataManagerBase dm;
    dm.DataManagerLegacyInit();
    mspController msp(device);
    msp.setPollInterval(std::max(1, int(250 / m_speed)));
    msp.setReadInterval(std::max(1, std::min(40, int(40 / m_speed))));
    SlaveClock clock(&msp);
    Clock::setSource(&clock);
    int status = 2;
    {
        MeterController mc(&msp, &dm);
        if (!waitFor([&] { return dm.engine()->isTemperatureProbePresent() && clock.monotonicMs() > 0; }, 10000)) {
            err << "vantor-cli: the virtual instrument did not answer\n";
        } else if (m_command == Measure) {
            status = measure(dm, mc, out, err);
        } else {
            status = calibrate(dm, mc, slave, settings, out, err);
        }
    }
    Clock::setSource(nullptr);
    out.flush();
    if (status == 0 && !sandbox.stores()) {
        err << "vantor-cli: the " << (m_command == Measure ? "reading" : "calibration")
            << " was not stored: the database cannot be written\n";
        return 2;
    }
    return status;
}

int MeterRunner::measure(DataManagerBase &dm, MeterController &mc, QTextStream &out, QTextStream &err)
{
    MeasurementModel *m = dm.measurementModel();
    m->setReadMode(m_mode);
    if (m_mode == QLatin1String("pH"))
        m->setResolution(0.01f);
    else if (m_mode == QLatin1String("Redox"))
        m->setResolution(0.1f);
    else
        m->setIseType(m_ion);
    dm.setDeviceMode(QStringLiteral("Measurement"));
    mc.qmlStartMeasure();
    const double seconds = waitStable(mc);
    if (seconds < 0) {
        err << "vantor-cli: no stable reading within " << m_timeoutS << " s\n";
        return 1;
    }
    if (mc.isMeasureOutOfRange()) {
        out << "Value: out of range\n";
        return 1;
    }
    const QString unit = m_mode == QLatin1String("pH")      ? QStringLiteral("pH")
                         : m_mode == QLatin1String("Redox") ? QStringLiteral("mV")
                                                            : QStringLiteral("mol/L");
    const int decimals = m_mode == QLatin1String("ISE") ? 4 : decimalsOf(m->resolution());
    out << "Value: " << QString::number(double(m->scaledValue()), m_mode == QLatin1String("ISE") ? 'g' : 'f', decimals)
        << " " << unit << "\n";
    out << "Temperature: " << QString::number(double(m->temp()), 'f', 1) << QStringLiteral(" °C\n");
    out << "Stable after: " << QString::number(seconds, 'f', 1) << " s\n";
    MeasurementLogModel log;
    if (!dm.logMeasurement(&log, false)) {
        err << "vantor-cli: the reading could not be stored in the measurement log\n";
        return 2;
    }
    dm.storeMeterReport(QStringLiteral("Measurement"), log.id());
    mc.qmlStopMeasure();
    return 0;
}

int MeterRunner::calibrate(DataManagerBase &dm, MeterController &mc, VirtualSlave &slave, const Scenario &scenario,
                           QTextStream &out, QTextStream &err)
{
    const bool ph = m_mode == QLatin1String("pH");
    const bool redox = m_mode == QLatin1String("Redox");
    MeasurementModel *m = dm.measurementModel();
    m->setReadMode(m_mode);
    m->setResolution(ph ? 0.01f : 0.1f);
    m->setBufferGroup(m_group);
    if (m_mode == QLatin1String("ISE"))
        m->setIseType(m_ion);
    m->setSensorName(QStringLiteral("vantor-cli"));
    dm.setDeviceMode(QStringLiteral("Calibration"));
    dm.initiateCalibrationModelFromMeasure();
    mc.qmlStartCalibration();

    const double nernst = Beaker::nernstSlope(scenario.config.temperatureC) * scenario.slopePct / 100.0;
    for (size_t i = 0; i < m_values.size(); ++i) {
        const double v = m_values[i];
        // The electrode goes into the next buffer or standard, as the
        // instrument's control input moves it. A redox standard is a
        // solution of fixed potential v: on the scenario's electrode
        // (E0 + slope x (7 - pH)) a buffer whose reading is E0 + v.
        QJsonObject beaker;
        if (ph) {
            beaker = {{QStringLiteral("kind"), QStringLiteral("buffer")}, {QStringLiteral("pH"), v}};
        } else if (redox) {
            beaker = {{QStringLiteral("kind"), QStringLiteral("buffer")}, {QStringLiteral("pH"), 7.0 - v / nernst}};
        } else {
            beaker = {{QStringLiteral("kind"), QStringLiteral("ise")},
                      {QStringLiteral("ion"), QJsonObject{{QStringLiteral("charge"), m_ion.contains(QLatin1String("Divalent")) ? 2 : 1},
                                                          {QStringLiteral("conc_mol_L"), v}}}};
        }
        QString why;
        auto next = Beaker::fromJson(beaker, scenario.config.temperatureC, scenario.e0Mv, scenario.slopePct, &why);
        if (!next) {
            err << "vantor-cli: " << why << "\n";
            return 2;
        }
        slave.setBeaker(std::move(next));
        mc.qmlStartCalPoint();
        if (waitStable(mc) < 0) {
            err << "vantor-cli: no stable reading in point " << i + 1 << " within " << m_timeoutS << " s\n";
            return 1;
        }
        if (!ph)
            mc.calEdit(float(v)); // the standard's known value
        mc.accptCalibration(!ph);
        if (mc.isSlopeErrorOnAccept()) {
            out << "Point " << i + 1 << " refused: "
                << (ph ? "the same buffer as another point, or within 5 mV or 0.2 pH of one" : redox ? "offset out of range" : "within 5 mV or 20 % of another standard")
                << "\n";
            return 1;
        }
    }
    mc.qmlStopCalibration();
    bool refused = false;
    const QMetaObject::Connection c = QObject::connect(&mc, &MeterController::showQmlSlopeError, [&] { refused = true; });
    mc.calDone();
    QObject::disconnect(c);
    if (refused) {
        out << "Calibration refused: average slope out of 80 to 120 %\n";
        return 1;
    }

    const QList<CalibrationCycleModel *> &points = dm.calibrationCycleList();
    for (int i = 0; i < points.size(); ++i) {
        const CalibrationCycleModel *p = points[i];
        out << "Point " << i + 1 << ": ";
        if (ph)
            out << "buffer " << QString::number(double(p->buffer()), 'f', 2) << " (pH " << QString::number(double(p->calValue()), 'f', 2) << ")";
        else
            out << "standard " << QString::number(double(p->calValue()), 'g', 6);
        out << ", " << QString::number(double(p->voltage()), 'f', 1) << " mV, "
            << QString::number(double(p->temperature()), 'f', 1) << QStringLiteral(" °C");
        if (!redox)
            out << ", slope " << QString::number(double(p->slope()), 'f', 2) << (ph ? " %" : " mV/decade");
        out << "\n";
    }
    // The offset of the segment that holds pH 7 (its potential there at
    // 25 °C); for ISE the first segment's, for Redox the shift itself.
    double offset = points.isEmpty() ? 0.0 : double(points.first()->offset());
    for (int i = 0; ph && i + 1 < points.size(); ++i) {
        if (points[i]->calValue() <= 7.f && points[i + 1]->calValue() >= 7.f)
            offset = double(points[i]->offset());
    }
    dm.insertCalibrationValue();
    CalibrationModel *cal = dm.calibrationModel();
    if (!cal || cal->id() <= 0) {
        err << "vantor-cli: the calibration could not be stored\n";
        return 2;
    }
    CalibrationLogModel log;
    log.saveLogValues(false, LogLayout::rowOf(cal, CalibrationModel::columnTable()));
    dm.storeMeterReport(QStringLiteral("Calibration"), cal->id());
    if (!redox)
        out << "Slope: " << QString::number(cal->avgSlope(), 'f', 2) << (ph ? " %" : " mV/decade") << "\n";
    out << "Offset: " << QString::number(redox ? cal->avgSlope() : offset, 'f', 1) << " mV\n";
    return 0;
}
