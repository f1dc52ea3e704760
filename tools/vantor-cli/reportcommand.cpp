#include "reportcommand.h"

#include "controller/reportcontroller.h"
#include "models/setupmodel.h"
#include "productidentity.h"
#include "reports/reportfiles.h"
#include "sandboxsession.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonObject>
#include <QTextStream>

namespace {
struct Options
{
    QString sandbox;
    QString log;
    QString format = QStringLiteral("pdf");
    QString form = QStringLiteral("long");
    QString from = QStringLiteral("2000-01-01");
    QString to = QStringLiteral("2030-12-31");
    QString out;
};

const char *logKinds[][2] = {{"titration", "Titration Log"},
                             {"standardisation", "Titrant Log"},
                             {"calibration", "Calibration Log"},
                             {"measurement", "Direct Measure Log"}};

bool isDate(const QString &text)
{
    return QDate::fromString(text, Qt::ISODate).isValid() && text.size() == 10;
}

bool parse(QStringList args, Options *o, QString *error)
{
    if (args.value(0) != QLatin1String("export")) {
        *error = QStringLiteral("the only report command is \"export\"");
        return false;
    }
    args.removeFirst();
    while (!args.isEmpty()) {
        const QString name = args.takeFirst();
        if (args.isEmpty()) {
            *error = name + QStringLiteral(" needs a value");
            return false;
        }
        const QString value = args.takeFirst();
        if (name == QLatin1String("--sandbox"))
            o->sandbox = value;
        else if (name == QLatin1String("--log"))
            o->log = value;
        else if (name == QLatin1String("--format"))
            o->format = value;
        else if (name == QLatin1String("--form"))
            o->form = value.toLower();
        else if (name == QLatin1String("--from"))
            o->from = value;
        else if (name == QLatin1String("--to"))
            o->to = value;
        else if (name == QLatin1String("--out"))
            o->out = value;
        else {
            *error = QStringLiteral("unknown option ") + name;
            return false;
        }
    }
    if (o->out.isEmpty() || o->log.isEmpty()) {
        *error = QStringLiteral("--log and --out are required");
        return false;
    }
    if (o->format != QLatin1String("pdf") && o->format != QLatin1String("csv")) {
        *error = QStringLiteral("--format is pdf or csv");
        return false;
    }
    if (o->form != QLatin1String("long") && o->form != QLatin1String("short")) {
        *error = QStringLiteral("--form is long or short");
        return false;
    }
    if (!isDate(o->from) || !isDate(o->to)) {
        *error = QStringLiteral("dates are written yyyy-MM-dd");
        return false;
    }
    return true;
}
} // namespace

QString ReportCommand::usage()
{
    return QStringLiteral(
        "usage: vantor-cli report export [--sandbox DIR] --log titration|standardisation|calibration|measurement\n"
        "                 [--format pdf|csv] [--form long|short] [--from yyyy-MM-dd] [--to yyyy-MM-dd] --out DIR\n"
        "  every stored report of the log in the date range, as the export to a USB disk writes them\n");
}

int ReportCommand::run(const QStringList &args, QTextStream &out, QTextStream &err)
{
    Options o;
    QString error;
    if (!parse(args, &o, &error)) {
        err << "vantor-cli report: " << error << "\n" << usage();
        return 2;
    }
    QString exportOf;
    for (const auto &kind : logKinds) {
        if (o.log == QLatin1String(kind[0]))
            exportOf = QLatin1String(kind[1]);
    }
    if (exportOf.isEmpty()) {
        err << "vantor-cli report: unknown log \"" << o.log << "\"\n" << usage();
        return 2;
    }
    if (!QDir().mkpath(o.out)) {
        err << "vantor-cli report: cannot make " << o.out << "\n";
        return 2;
    }
    const QString outDir = QDir(o.out).absolutePath();
    SandboxSession session(o.sandbox);
    if (!session.open(err))
        return 2;
    const SetupModel setup; // the settings row, as the application reads it
    ProductIdentity identity;
    identity.setProductType(QStringLiteral("All-in-one"));
    ReportController controller(
        [&] {
            ReportController::Instrument instrument;
            instrument.model = identity.titratorModelString();
            instrument.serialNumber = ReportController::storedSerialNumber();
            instrument.dateFormat = setup.dateFormat_Index();
            instrument.timeFormat = setup.timeFormat_Index();
            return instrument;
        },
        nullptr, nullptr);
    controller.setStageOnly(true);
    controller.setIsCSV(true);
    controller.exportInput(QJsonObject{{"exportOf", exportOf},
                                       {"fileType", o.format == QLatin1String("csv") ? "CSV" : "Report"},
                                       {"format", o.form == QLatin1String("short") ? "short" : "Long"},
                                       {"exportBy", "Date Range"},
                                       {"lastDays", ""},
                                       {"fromDate", o.from},
                                       {"toDate", o.to}});
    const ReportController::Outcome &outcome = controller.lastOutcome();
    int failures = 0;
    for (const QString &staged : outcome.filesWritten) {
        const QString target = QDir(outDir).absoluteFilePath(QFileInfo(staged).fileName());
        if (ReportFiles::moveFile(staged, target) && !QFile::exists(staged)) {
            out << target << "\n";
        } else {
            err << "vantor-cli report: " << target << " not written\n";
            ++failures;
        }
    }
    out << "Records found: " << outcome.recordsFound << "\n";
    return failures == 0 && outcome.error.isEmpty() ? 0 : 2;
}
