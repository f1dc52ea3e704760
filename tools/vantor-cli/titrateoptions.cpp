#include "titrateoptions.h"

#include <QFileInfo>

#include <QCommandLineParser>

#include <cmath>

namespace {

const char *const kTechniques[] = {"Preset End Pt.", "Equivalence Pt.", "Engineering Basic pH",
                                   "Multiple Known Addition"};
const char *const kControls[] = {"Routine", "Quick", "Careful", "User Defined"};

bool number(const QString &text, double lo, double hi, double *out)
{
    bool ok = false;
    const double v = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(v) || v < lo || v > hi)
        return false;
    *out = v;
    return true;
}

} // namespace

int TitrateOptions::techniqueIndex(const QString &name)
{
    for (int i = 0; i < 4; ++i) {
        if (name == QLatin1String(kTechniques[i]))
            return i;
    }
    return -1;
}

int TitrateOptions::processControlIndex(const QString &name)
{
    for (int i = 0; i < 4; ++i) {
        if (name == QLatin1String(kControls[i]))
            return i;
    }
    return -1;
}

QString TitrateOptions::usage()
{
    return QStringLiteral(
        "usage: vantor-cli titrate (--scenario FILE | --replay FILE) [options]\n"
        "  --scenario FILE          titrate the beaker of a virtual-instrument scenario (JSON)\n"
        "  --replay FILE            replay a curve file: volume and signal columns separated by\n"
        "                           commas, semicolons, tabs or blanks; a header may name the units\n"
        "                           (mL or uL, mV or pH); without one uL and mV\n"
        "  --temperature C          of a replayed curve in pH, for the Nernst slope (default 25)\n"
        "  --mka-precision PCT      known addition ends when its last three results agree this well\n"
        "                           (relative standard deviation, default 2; at most 5 additions)\n"
        "  --technique NAME         \"Preset End Pt.\", \"Equivalence Pt.\" (default), \"Multiple Known Addition\"\n"
        "  --endpoints N            end points wanted, 1 to 3 (default 1)\n"
        "  --endpoint-mv A[,B[,C]]  end-point potentials of \"Preset End Pt.\"\n"
        "  --process-control NAME   Routine (default), Quick, Careful, \"User Defined\"\n"
        "  --max-volume-ml V        largest total dose (default 20)\n"
        "  --predose-ml V           dose given at once before titrating (default 0)\n"
        "  --prestir S              seconds of stirring before the run (default 0; 2 s are always added)\n"
        "  --sample-ml V            the sample's volume, for the result (default 10)\n"
        "  --method FILE.json       install the method of a method file (JSON) and run it\n"
        "  --method NAME            run the method of that name stored in the sandbox's database\n"
        "                           (needs --sandbox); either form replaces the method options above\n"
        "  --speed FACTOR           instrument clock this many times real time (default 50)\n"
        "  --timeout S              give up after this many seconds of wall time (default 600)\n"
        "  --sandbox DIR            keep the run's logs below DIR (default: a temporary folder)\n"
        "  --runs N                 titrate N times back to back in this process, each run followed\n"
        "                           by a line with the process's peak memory, heap, open files\n"
        "                           and the number of cyclic log files\n"
        "  --verbose                show the engine's trail on standard error\n");
}

bool TitrateOptions::parse(const QStringList &arguments, QString *error)
{
    QCommandLineParser p;
    p.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption scenarioOpt(QStringLiteral("scenario"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption replayOpt(QStringLiteral("replay"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption techniqueOpt(QStringLiteral("technique"), QString(), QStringLiteral("NAME"));
    const QCommandLineOption endpointsOpt(QStringLiteral("endpoints"), QString(), QStringLiteral("N"));
    const QCommandLineOption endpointMvOpt(QStringLiteral("endpoint-mv"), QString(), QStringLiteral("LIST"));
    const QCommandLineOption controlOpt(QStringLiteral("process-control"), QString(), QStringLiteral("NAME"));
    const QCommandLineOption maxOpt(QStringLiteral("max-volume-ml"), QString(), QStringLiteral("V"));
    const QCommandLineOption preDoseOpt(QStringLiteral("predose-ml"), QString(), QStringLiteral("V"));
    const QCommandLineOption preStirOpt(QStringLiteral("prestir"), QString(), QStringLiteral("S"));
    const QCommandLineOption sampleOpt(QStringLiteral("sample-ml"), QString(), QStringLiteral("V"));
    const QCommandLineOption methodOpt(QStringLiteral("method"), QString(), QStringLiteral("NAME"));
    const QCommandLineOption speedOpt(QStringLiteral("speed"), QString(), QStringLiteral("FACTOR"));
    const QCommandLineOption timeoutOpt(QStringLiteral("timeout"), QString(), QStringLiteral("S"));
    const QCommandLineOption sandboxOpt(QStringLiteral("sandbox"), QString(), QStringLiteral("DIR"));
    const QCommandLineOption verboseOpt(QStringLiteral("verbose"));
    const QCommandLineOption runsOpt(QStringLiteral("runs"), QString(), QStringLiteral("N"));
    const QCommandLineOption temperatureOpt(QStringLiteral("temperature"), QString(), QStringLiteral("C"));
    const QCommandLineOption mkaPrecisionOpt(QStringLiteral("mka-precision"), QString(), QStringLiteral("PCT"));
    p.addOptions({scenarioOpt, replayOpt, techniqueOpt, endpointsOpt, endpointMvOpt, controlOpt, maxOpt,
                  preDoseOpt, preStirOpt, sampleOpt, methodOpt, speedOpt, timeoutOpt, sandboxOpt, verboseOpt,
                  runsOpt, temperatureOpt, mkaPrecisionOpt});

    if (!p.parse(QStringList{QStringLiteral("titrate")} + arguments)) {
        *error = p.errorText();
        return false;
    }
    if (!p.positionalArguments().isEmpty()) {
        *error = QStringLiteral("unexpected argument: %1").arg(p.positionalArguments().first());
        return false;
    }
    scenarioFile = p.value(scenarioOpt);
    replayFile = p.value(replayOpt);
    if (scenarioFile.isEmpty() == replayFile.isEmpty()) {
        *error = QStringLiteral("give either --scenario FILE or --replay FILE");
        return false;
    }
    if (p.isSet(techniqueOpt)) {
        technique = techniqueIndex(p.value(techniqueOpt));
        if (technique < 0) {
            *error = QStringLiteral("unknown technique \"%1\"").arg(p.value(techniqueOpt));
            return false;
        }
    }
    if (p.isSet(controlOpt)) {
        processControl = processControlIndex(p.value(controlOpt));
        if (processControl < 0) {
            *error = QStringLiteral("unknown process control \"%1\"").arg(p.value(controlOpt));
            return false;
        }
    }
    double v = 0.0;
    if (p.isSet(endpointsOpt)) {
        if (!number(p.value(endpointsOpt), 1, 3, &v) || v != std::floor(v)) {
            *error = QStringLiteral("--endpoints must be 1, 2 or 3");
            return false;
        }
        endpoints = int(v);
    }
    if (p.isSet(endpointMvOpt)) {
        const QStringList parts = p.value(endpointMvOpt).split(QLatin1Char(','));
        if (parts.size() > 3) {
            *error = QStringLiteral("--endpoint-mv takes at most three potentials");
            return false;
        }
        for (int i = 0; i < parts.size(); ++i) {
            if (!number(parts[i], -2000, 2000, &v)) {
                *error = QStringLiteral("--endpoint-mv: \"%1\" is not a potential between -2000 and 2000 mV")
                             .arg(parts[i]);
                return false;
            }
            endpointMv[i] = float(v);
        }
    }
    if (p.isSet(maxOpt)) {
        if (!number(p.value(maxOpt), 0.001, 1000, &v)) {
            *error = QStringLiteral("--max-volume-ml must be above 0 and at most 1000");
            return false;
        }
        maxVolumeMl = float(v);
    }
    if (p.isSet(preDoseOpt)) {
        if (!number(p.value(preDoseOpt), 0, 1000, &v)) {
            *error = QStringLiteral("--predose-ml must be between 0 and 1000");
            return false;
        }
        preDoseMl = float(v);
    }
    if (preDoseMl >= maxVolumeMl) {
        *error = QStringLiteral("--predose-ml must be below --max-volume-ml");
        return false;
    }
    if (p.isSet(preStirOpt)) {
        if (!number(p.value(preStirOpt), 0, 3600, &v) || v != std::floor(v)) {
            *error = QStringLiteral("--prestir must be whole seconds between 0 and 3600");
            return false;
        }
        preStirS = int(v);
    }
    if (p.isSet(sampleOpt)) {
        if (!number(p.value(sampleOpt), 0.001, 1000, &v)) {
            *error = QStringLiteral("--sample-ml must be above 0 and at most 1000");
            return false;
        }
        sampleMl = float(v);
    }
    if (p.isSet(speedOpt)) {
        if (!number(p.value(speedOpt), 0.1, 1000, &v)) {
            *error = QStringLiteral("--speed must be between 0.1 and 1000");
            return false;
        }
        speed = v;
    }
    if (p.isSet(timeoutOpt)) {
        if (!number(p.value(timeoutOpt), 1, 86400, &v)) {
            *error = QStringLiteral("--timeout must be between 1 and 86400 seconds");
            return false;
        }
        timeoutS = int(v);
    }
    if (p.isSet(runsOpt)) {
        if (!number(p.value(runsOpt), 1, 100000, &v) || v != std::floor(v)) {
            *error = QStringLiteral("--runs must be a whole number between 1 and 100000");
            return false;
        }
        runs = int(v);
    }
    if (p.isSet(temperatureOpt)) {
        if (!number(p.value(temperatureOpt), -10, 110, &v)) {
            *error = QStringLiteral("--temperature must be between -10 and 110 °C");
            return false;
        }
        temperatureC = v;
    }
    if (p.isSet(mkaPrecisionOpt)) {
        if (!number(p.value(mkaPrecisionOpt), 0.1, 20, &v)) {
            *error = QStringLiteral("--mka-precision must be between 0.1 and 20 %");
            return false;
        }
        mkaPrecisionPct = float(v);
    }
    sandbox = p.value(sandboxOpt);
    if (p.isSet(sandboxOpt) && sandbox.trimmed().isEmpty()) {
        *error = QStringLiteral("--sandbox needs a folder");
        return false;
    }
    verbose = p.isSet(verboseOpt);
    if (p.isSet(methodOpt)) {
        const QString value = p.value(methodOpt).trimmed();
        if (value.isEmpty()) {
            *error = QStringLiteral("--method needs a method file or the name of a stored method");
            return false;
        }
        if (QFileInfo(value).isFile() || value.endsWith(QLatin1String(".json"), Qt::CaseInsensitive))
            methodFile = value;
        else
            methodName = value;
        if (methodFile.isEmpty() && sandbox.isEmpty()) {
            *error = QStringLiteral("--method runs a method stored in a sandbox: give --sandbox DIR");
            return false;
        }
        for (const QCommandLineOption *o : {&techniqueOpt, &endpointsOpt, &endpointMvOpt, &controlOpt, &maxOpt,
                                            &preDoseOpt, &preStirOpt, &sampleOpt, &mkaPrecisionOpt}) {
            if (p.isSet(*o)) {
                *error = QStringLiteral("--%1 cannot be given with --method: the stored method decides")
                             .arg(o->names().first());
                return false;
            }
        }
    }
    return true;
}
