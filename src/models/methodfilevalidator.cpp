#include "models/methodfilevalidator.h"

#include "models/dbutil.h"
#include "models/electrodesetupmodel.h"
#include "models/methodmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationsetupmodel.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QSqlRecord>

#include <climits>
#include <cmath>

namespace {

enum Part { MethodPart, ElectrodePart, TitrantPart, TitrationPart, PartCount };

const char *const kPartNames[PartCount] = {"method", "electrode", "titrant", "titration"};
const char *const kTables[PartCount] = {"methodSetupTable", "electrodeSetupTable", "titrantSetupTable",
                                        "titrationSetupTable"};

enum class Kind {
    Number,    // finite, lo to hi
    Whole,     // a whole number, lo to hi
    AboveZero, // finite, above 0 and at most hi
    Choice,    // one of the texts in `choices`, '|' between them
    Text,      // a text of at most hi characters
    Name,      // the method name
    Password,  // the method password, empty for none
    Resolution // 0.1, 0.01 or 0.001
};

struct Rule {
    Part part;
    const char *column;
    Kind kind;
    double lo;
    double hi;
    const char *choices;
    bool nullable; // NULL (a column the file lacks) is accepted
};

const char kControls[] = "Routine|Quick|Careful|User Defined";
const char kStirSpeeds[] = "No Stirring|Very Slow|Slow|Medium|Fast|Very Fast";
const char kMolar[] = "M|mM";
const char kResultUnits[] =
    "M|mM|mg/100mL|mg/L|g/100mL|g/L|ppm|ppb|oz/gal|% w/v|mol/kg|mmol/kg|mmol/g|mg/100g|mg/g|mg/kg|g/100g|g/kg|"
    "ppm by weight|% w/w|TAN|TBN|Consumption mmol|F*Consumption mmol|%w/w|ppm(w)|mg/serving|mg";
const char kAmounts[] = "Fixed Volume|Variable Volume|Fixed Weight|Variable Weight";

// What the method screens let a user enter, field by field, in the order
// the parts are checked. Numbers stored as text are read as numbers.
const Rule kRules[] = {
    {MethodPart, "methodName", Kind::Name, 0, 0, nullptr, false},
    {MethodPart, "methodPassword", Kind::Password, 0, 0, nullptr, true},
    {MethodPart, "titrantConcentration", Kind::AboveZero, 0, 100000, nullptr, false},
    {MethodPart, "blankConcentration", Kind::Number, -1e6, 1e6, nullptr, true},
    {MethodPart, "sampleConcentration", Kind::Number, -1e9, 1e9, nullptr, true},
    {MethodPart, "isChangeFromHome", Kind::Whole, 0, 1, nullptr, true},

    {ElectrodePart, "electrodeType", Kind::Choice, 0, 0, "pH|Redox|ISE-Titration|ISE-MKA", false},
    {ElectrodePart, "electrodeName", Kind::Text, 0, 14, nullptr, true},
    {ElectrodePart, "bufferGroup", Kind::Choice, 0, 0, "USA|DIN|", true},
    {ElectrodePart, "resolution", Kind::Resolution, 0, 0, nullptr, true},
    {ElectrodePart, "iseType", Kind::Text, 0, 30, nullptr, true},
    {ElectrodePart, "significantDigits", Kind::Whole, 1, 6, nullptr, true},

    {TitrantPart, "titrantName", Kind::Text, 1, 30, nullptr, false},
    {TitrantPart, "titrantName_userDefined", Kind::Text, 0, 14, nullptr, true},
    {TitrantPart, "titrantID", Kind::Text, 0, 14, nullptr, true},
    {TitrantPart, "concInputMode", Kind::Choice, 0, 0, "Manual Entry|Standardization", false},
    {TitrantPart, "concInputMode_manualEntry", Kind::AboveZero, 0, 100000, nullptr, false},
    {TitrantPart, "concInputMode_Unit", Kind::Choice, 0, 0, kMolar, false},
    {TitrantPart, "nominalConc", Kind::AboveZero, 0, 100000, nullptr, false},
    {TitrantPart, "nominalConc_Unit", Kind::Choice, 0, 0, kMolar, false},
    {TitrantPart, "titerRatio", Kind::Number, -1e6, 1e6, nullptr, true},
    {TitrantPart, "standTechnique", Kind::Choice, 0, 0, "Equivalence Pt.|Preset End Pt.", false},
    {TitrantPart, "noOfEndPoints", Kind::Whole, 1, 2, nullptr, false},
    {TitrantPart, "endPointsValues", Kind::Number, -2000, 2000, nullptr, false},
    {TitrantPart, "endPointsValueSecond", Kind::Number, -2000, 2000, nullptr, false},
    {TitrantPart, "resultUnits", Kind::Choice, 0, 0, kMolar, false},
    {TitrantPart, "standReactionRatio", Kind::Number, 0, 100, nullptr, false},
    {TitrantPart, "standardName", Kind::Text, 0, 30, nullptr, true},
    {TitrantPart, "standardName_userDefined", Kind::Text, 0, 14, nullptr, true},
    {TitrantPart, "standAmount", Kind::Choice, 0, 0, kAmounts, false},
    {TitrantPart, "standAmount_Value", Kind::Number, 0, 1000, nullptr, false},
    {TitrantPart, "standMolecularWeight", Kind::Number, 0.01, 100000, nullptr, false},
    {TitrantPart, "standardPurity", Kind::Number, 0.01, 100, nullptr, false},
    {TitrantPart, "standConcentration", Kind::AboveZero, 0, 100000, nullptr, false},
    {TitrantPart, "preDoseTitrantVolume", Kind::Number, 0, 100, nullptr, false},
    {TitrantPart, "maxTotalVolume", Kind::Number, 0, 100, nullptr, false},
    {TitrantPart, "standProcessControl", Kind::Choice, 0, 0, kControls, false},
    {TitrantPart, "preStirDuration", Kind::Whole, 0, 10000, nullptr, false},
    {TitrantPart, "stirSpeed", Kind::Choice, 0, 0, kStirSpeeds, false},
    {TitrantPart, "titrantConcentration", Kind::Choice, 0, 0, "mg/L|M|mM", false},
    {TitrantPart, "titrantConcentration_Value", Kind::AboveZero, 0, 100000, nullptr, false},
    {TitrantPart, "titrantMolecularWeight", Kind::Number, 0.01, 100000, nullptr, false},
    {TitrantPart, "deltaE", Kind::Number, 0.1, 100, nullptr, false},
    {TitrantPart, "deltaVmin", Kind::Number, 0.001, 10, nullptr, false},
    {TitrantPart, "deltaVmax", Kind::Number, 0.001, 10, nullptr, false},
    {TitrantPart, "stabilityCriteria", Kind::Number, 0.1, 200, nullptr, false},
    {TitrantPart, "tMin", Kind::Whole, 1, 150, nullptr, false},
    {TitrantPart, "tMax", Kind::Whole, 1, 15000, nullptr, false},
    {TitrantPart, "threshold", Kind::Whole, 1, 20000, nullptr, false},

    {TitrationPart, "titrationTechnique", Kind::Choice, 0, 0, "Preset End Pt.|Equivalence Pt.|Multiple Known Addition", false},
    {TitrationPart, "noOfEndPoints", Kind::Whole, 1, 3, nullptr, false},
    {TitrationPart, "endPointValues", Kind::Number, -2000, 2000, nullptr, false},
    {TitrationPart, "endPointValues_Second", Kind::Number, -2000, 2000, nullptr, false},
    {TitrationPart, "endPointValues_Third", Kind::Number, -2000, 2000, nullptr, false},
    {TitrationPart, "displayUnits", Kind::Choice, 0, 0, "pH|mV", false},
    {TitrationPart, "titrationType", Kind::Choice, 0, 0, "Direct Titration|Back Titration", false},
    {TitrationPart, "blankRequired", Kind::Choice, 0, 0, "No|Fixed|Variable|Manual Entry", false},
    {TitrationPart, "blankRequiredValue", Kind::Number, 0, 1000, nullptr, false},
    {TitrationPart, "resultUnits", Kind::Choice, 0, 0, kResultUnits, false},
    {TitrationPart, "resultUnitsValue", Kind::Number, 0.0001, 1000, nullptr, false},
    {TitrationPart, "reactionRatio", Kind::Number, 0.0001, 100, nullptr, false},
    {TitrationPart, "reagentAmount", Kind::Choice, 0, 0, "Manual Calc.|Manual Volume|Manual Weight|Back Blank Titration", false},
    {TitrationPart, "reagentAmountValue", Kind::Number, 0.001, 10000, nullptr, false},
    {TitrationPart, "reagentMolecularWeight", Kind::Number, 0.01, 100000, nullptr, false},
    {TitrationPart, "reagentPurity", Kind::Number, 0.01, 100, nullptr, false},
    {TitrationPart, "reagentWeight", Kind::Number, 0, 1000, nullptr, false},
    {TitrationPart, "reagentVolume", Kind::Number, 0, 1000, nullptr, false},
    {TitrationPart, "reagentConcentration", Kind::AboveZero, 0, 100, nullptr, false},
    {TitrationPart, "sampleMolecularWeight", Kind::Number, 0.01, 100000, nullptr, false},
    {TitrationPart, "sampleDensity", Kind::Number, 0.001, 100, nullptr, false},
    {TitrationPart, "preDoseTitrantVolume", Kind::Number, 0, 100, nullptr, false},
    {TitrationPart, "maxTotalTitrantVolume", Kind::Number, 0, 100, nullptr, false},
    {TitrationPart, "titrationProcessControl", Kind::Choice, 0, 0, kControls, false},
    {TitrationPart, "preStirDuration", Kind::Whole, 0, 10000, nullptr, false},
    {TitrationPart, "stirSpeed", Kind::Choice, 0, 0, kStirSpeeds, false},
    {TitrationPart, "sampleID", Kind::Choice, 0, 0, "None|Auto-Incremental|Manual", false},
    {TitrationPart, "sampleIDValue", Kind::Text, 0, 14, nullptr, true},
    {TitrationPart, "sampleAmount", Kind::Choice, 0, 0, "Fixed Volume|Variable Volume|Fixed Weight|Variable Weight|Serving No.", false},
    {TitrationPart, "sampleAmountValue", Kind::Number, 0, 1000, nullptr, false},
    {TitrationPart, "reagentReactionRatio", Kind::Number, 0.00001, 1000, nullptr, false},
    {TitrationPart, "titrantReactionRatio", Kind::Number, 0.0001, 100, nullptr, false},
    {TitrationPart, "totalSolutionVolume", Kind::Number, 1, 10000, nullptr, false},
    {TitrationPart, "mkaProcessControl", Kind::Choice, 0, 0, kControls, false},
    {TitrationPart, "mkaProcessControlConstant", Kind::Number, -1e6, 1e6, nullptr, false},
    {TitrationPart, "mkaProcessControlMeasurement", Kind::Number, -1e6, 1e6, nullptr, false},
    {TitrationPart, "mkaProcessControlPrecision", Kind::Number, 0.1, 20, nullptr, false},
    {TitrationPart, "titrantConcentration", Kind::AboveZero, 0, 100000, nullptr, false},
    {TitrationPart, "blankConcentration", Kind::Number, -1e6, 1e6, nullptr, true},
    {TitrationPart, "reagentWeightType", Kind::Choice, 0, 0, "Fixed Weight|Variable Weight", true},
    {TitrationPart, "deltaE", Kind::Number, 0.1, 100, nullptr, false},
    {TitrationPart, "deltaVmin", Kind::Number, 0.001, 10, nullptr, false},
    {TitrationPart, "deltaVmax", Kind::Number, 0.001, 10, nullptr, false},
    {TitrationPart, "stabilityCriteria", Kind::Number, 0.1, 200, nullptr, false},
    {TitrationPart, "tMin", Kind::Whole, 1, 150, nullptr, false},
    {TitrationPart, "tMax", Kind::Whole, 1, 15000, nullptr, false},
    {TitrationPart, "threshold", Kind::Whole, 1, 20000, nullptr, false},
    // Newer than the first method files: absent from older ones.
    {TitrationPart, "servingSize", Kind::AboveZero, 0, 100000, nullptr, true},
    {TitrationPart, "servingUnit", Kind::Choice, 0, 0, "g|mL", true},
};

// Any other column of a part: a single value, a short text at most.
constexpr int kOtherTextChars = 64;

const ColumnTable &columnsOf(Part part)
{
    switch (part) {
    case MethodPart:
        return MethodModel::columnTable();
    case ElectrodePart:
        return ElectrodeSetupModel::columnTable();
    case TitrantPart:
        return TitrantSetupModel::columnTable();
    default:
        return TitrationSetupModel::columnTable();
    }
}

bool isText(const QVariant &v)
{
    return v.userType() == QMetaType::QString;
}

bool isSingleValue(const QVariant &v)
{
    const int t = v.userType();
    return t != QMetaType::QVariantList && t != QMetaType::QVariantMap && t != QMetaType::QStringList;
}

bool toNumber(const QVariant &v, double *out)
{
    bool ok = false;
    switch (v.userType()) {
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        *out = v.toDouble(&ok);
        break;
    case QMetaType::QString:
        *out = v.toString().trimmed().toDouble(&ok);
        break;
    default:
        return false;
    }
    return ok && std::isfinite(*out);
}

QString shown(const QVariant &v)
{
    if (!isSingleValue(v))
        return QStringLiteral("a list or object");
    if (v.userType() == QMetaType::Bool)
        return v.toBool() ? QStringLiteral("true") : QStringLiteral("false");
    if (!isText(v) && v.canConvert<double>())
        return QString::number(v.toDouble(), 'g', 10);
    QString text = v.toString();
    if (text.size() > 40)
        text = text.left(40) + QStringLiteral("...");
    return isText(v) ? QLatin1Char('"') + text + QLatin1Char('"') : text;
}

QString number(double v)
{
    return QString::number(v, 'g', 10);
}

QString field(Part part, const char *column)
{
    return QStringLiteral("%1 part, %2").arg(QLatin1String(kPartNames[part]), QLatin1String(column));
}

// The problem with one value, empty when it passes.
QString problem(const Rule &r, const QVariant &v)
{
    if (v.isNull())
        return r.nullable ? QString() : QStringLiteral("missing");
    if (!isSingleValue(v))
        return QStringLiteral("a list or object is not a single value");
    double x = 0.0;
    switch (r.kind) {
    case Kind::Number:
    case Kind::Whole:
    case Kind::AboveZero:
        if (!toNumber(v, &x))
            return QStringLiteral("%1 is not a number").arg(shown(v));
        if (r.kind == Kind::AboveZero && !(x > 0.0 && x <= r.hi))
            return QStringLiteral("%1 is not above 0 and at most %2").arg(shown(v), number(r.hi));
        if (r.kind != Kind::AboveZero && !(x >= r.lo && x <= r.hi))
            return QStringLiteral("%1 is not between %2 and %3").arg(shown(v), number(r.lo), number(r.hi));
        if (r.kind == Kind::Whole && x != std::floor(x))
            return QStringLiteral("%1 is not a whole number").arg(shown(v));
        return QString();
    case Kind::Resolution:
        if (!toNumber(v, &x) || !(std::fabs(x - 0.1) < 1e-6 || std::fabs(x - 0.01) < 1e-7 || std::fabs(x - 0.001) < 1e-8))
            return QStringLiteral("%1 is not 0.1, 0.01 or 0.001").arg(shown(v));
        return QString();
    case Kind::Choice: {
        const QStringList choices = QString::fromLatin1(r.choices).split(QLatin1Char('|'));
        if (!isText(v) || !choices.contains(v.toString()))
            return QStringLiteral("%1 is not one of %2").arg(shown(v), choices.filter(QRegularExpression(QStringLiteral("."))).join(QStringLiteral(", ")));
        return QString();
    }
    case Kind::Text:
        if (!isText(v))
            return QStringLiteral("%1 is not a text").arg(shown(v));
        if (v.toString().size() < r.lo || v.toString().size() > r.hi)
            return QStringLiteral("%1 is not a text of %2 to %3 characters").arg(shown(v), number(r.lo), number(r.hi));
        return QString();
    case Kind::Name:
        if (!isText(v) || !MethodFileValidator::isAcceptableName(v.toString()))
            return QStringLiteral("%1 is not a name the method screens accept (1 to 14 letters, digits, blanks, . - _ ?)")
                .arg(shown(v));
        return QString();
    case Kind::Password: {
        static const QRegularExpression allowed(QStringLiteral("^[A-Za-z0-9_.\\- ?]{0,14}$"));
        if (!isText(v) || !allowed.match(v.toString()).hasMatch())
            return QStringLiteral("not a password the method screens accept (up to 14 letters, digits, blanks, . - _ ?)");
        return QString();
    }
    }
    return QString();
}

// Rules between fields, checked once each field passed on its own.
QString crossProblem(const QVariantMap rows[PartCount], double buretteMl)
{
    auto num = [&](Part p, const char *c) {
        double x = 0.0;
        toNumber(rows[p].value(QLatin1String(c)), &x);
        return x;
    };
    auto text = [&](Part p, const char *c) { return rows[p].value(QLatin1String(c)).toString(); };
    const struct {
        Part part;
        const char *preDose;
        const char *max;
    } doses[] = {{TitrantPart, "preDoseTitrantVolume", "maxTotalVolume"},
                 {TitrationPart, "preDoseTitrantVolume", "maxTotalTitrantVolume"}};
    for (const auto &d : doses) {
        // A run stops at its maximum volume: none at all leaves nothing a
        // run can do. More than the burette holds is a run that refills it
        // (the field's own rule bounds it as the method screens do).
        const double max = num(d.part, d.max);
        if (!(max > 0.0))
            return field(d.part, d.max) + QStringLiteral(": %1 mL is not above 0").arg(number(max));
        const double preDose = num(d.part, d.preDose);
        if (preDose > buretteMl)
            return field(d.part, d.preDose) + QStringLiteral(": %1 mL is more than the burette holds (%2 mL)")
                                                  .arg(number(preDose), number(buretteMl));
        if (preDose > num(d.part, d.max))
            return field(d.part, d.preDose)
                + QStringLiteral(": %1 mL is above %2 (%3 mL)").arg(number(preDose), QLatin1String(d.max), number(num(d.part, d.max)));
    }
    const QString technique = text(TitrationPart, "titrationTechnique");
    if (technique == QLatin1String("Multiple Known Addition") && text(ElectrodePart, "electrodeType") != QLatin1String("ISE-MKA"))
        return field(TitrationPart, "titrationTechnique") + QStringLiteral(": \"Multiple Known Addition\" needs an \"ISE-MKA\" electrode");
    if (num(TitrationPart, "noOfEndPoints") > 2 && technique != QLatin1String("Preset End Pt."))
        return field(TitrationPart, "noOfEndPoints") + QStringLiteral(": 3 end points need \"Preset End Pt.\"");
    if (num(TitrantPart, "noOfEndPoints") > 1 && text(TitrantPart, "standTechnique") == QLatin1String("Preset End Pt."))
        return field(TitrantPart, "noOfEndPoints") + QStringLiteral(": \"Preset End Pt.\" standardises at one end point");
    // The result divides by the sample amount; a variable one is asked for
    // at each run, and what is stored is its first value.
    if (!(num(TitrationPart, "sampleAmountValue") > 0.0))
        return field(TitrationPart, "sampleAmountValue")
            + QStringLiteral(": %1 is not above 0 and at most 1000 (the sample amount of \"%2\")")
                  .arg(number(num(TitrationPart, "sampleAmountValue")), text(TitrationPart, "sampleAmount"));
    // Each minimum at most its maximum, in both process controls.
    const struct {
        const char *min;
        const char *max;
    } pairs[] = {{"deltaVmin", "deltaVmax"}, {"tMin", "tMax"}};
    for (Part p : {TitrantPart, TitrationPart}) {
        for (const auto &pair : pairs) {
            if (num(p, pair.min) > num(p, pair.max))
                return field(p, pair.min) + QStringLiteral(": %1 is not at most %2 (%3)")
                                                .arg(number(num(p, pair.min)), number(num(p, pair.max)), QLatin1String(pair.max));
        }
    }
    return QString();
}

QVariant fromJson(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        return value.toBool();
    case QJsonValue::Double:
        return value.toDouble();
    case QJsonValue::String:
        return value.toString();
    case QJsonValue::Array:
    case QJsonValue::Object:
        return QVariantList();
    default:
        return QVariant();
    }
}

QVariantMap rowFromJson(const QJsonObject &row)
{
    QVariantMap map;
    for (auto it = row.constBegin(); it != row.constEnd(); ++it)
        map.insert(it.key(), fromJson(it.value()));
    return map;
}

// The method's id as it stands in its row.
QString idProblem(const QVariant &id, int *out)
{
    double x = 0.0;
    if (id.isNull() || !toNumber(id, &x) || x != std::floor(x) || x < 1 || x > INT_MAX)
        return field(MethodPart, "id") + QStringLiteral(": %1 is not a method id").arg(id.isNull() ? QStringLiteral("missing") : shown(id));
    if (int(x) == MethodModel::scratchMethodId)
        return field(MethodPart, "id") + QStringLiteral(": %1 is the id of the working method").arg(int(x));
    *out = int(x);
    return QString();
}

QString partProblem(Part part, const QVariant &methodId, int expected)
{
    double x = 0.0;
    if (!toNumber(methodId, &x) || x != double(expected))
        return field(part, "methodId") + QStringLiteral(": %1 is not the method's id (%2)")
                                             .arg(methodId.isNull() ? QStringLiteral("missing") : shown(methodId))
                                             .arg(expected);
    return QString();
}

} // namespace

MethodFileValidator::MethodFileValidator(double buretteMl)
    : m_buretteMl(buretteMl)
{
}

double MethodFileValidator::storedBuretteMl()
{
    bool ok = false;
    const double size = DbUtil::tableExists(QStringLiteral("setupTable"))
        ? DbUtil::scalar(QStringLiteral("SELECT buretteSize FROM setupTable LIMIT 1")).toString().toDouble(&ok)
        : 0.0;
    return ok && size > 0.0 ? size : 20.0;
}

bool MethodFileValidator::isAcceptableName(const QString &name)
{
    static const QRegularExpression counter(QStringLiteral("~[0-9]+$"));
    static const QRegularExpression allowed(
        QStringLiteral("^[A-Za-z0-9_.\\- ?\\x{00C0}-\\x{00D6}\\x{00D8}-\\x{00F6}\\x{00F8}-\\x{00FF}]+$|^[\\x{4E00}-\\x{9FA0}]+$"));
    QString base = name;
    base.remove(counter);
    return base == base.trimmed() && !base.isEmpty() && base.size() <= 14 && allowed.match(base).hasMatch();
}

QString MethodFileValidator::checkRows(const QVariantMap &method, const QVariantMap &electrode, const QVariantMap &titrant,
                                       const QVariantMap &titration) const
{
    const QVariantMap rows[PartCount] = {method, electrode, titrant, titration};
    for (int p = 0; p < PartCount; ++p) {
        QStringList ruled;
        for (const Rule &r : kRules) {
            if (r.part != p)
                continue;
            ruled << QLatin1String(r.column);
            const QString why = problem(r, rows[p].value(QLatin1String(r.column)));
            if (!why.isEmpty())
                return field(r.part, r.column) + QStringLiteral(": ") + why;
        }
        for (const QString &column : columnsOf(Part(p)).names()) {
            const QVariant v = rows[p].value(column);
            if (ruled.contains(column) || v.isNull())
                continue;
            if (!isSingleValue(v) || (isText(v) && v.toString().size() > kOtherTextChars))
                return field(Part(p), column.toLatin1().constData()) + QStringLiteral(": %1 is not a short single value").arg(shown(v));
        }
    }
    return crossProblem(rows, m_buretteMl);
}

QString MethodFileValidator::checkFile(const QString &fileName) const
{
    const QFileInfo info(fileName);
    if (!info.isFile() || !info.isReadable())
        return QStringLiteral("cannot be read");
    if (info.size() > maxFileBytes)
        return QStringLiteral("is %1 bytes; a method file is at most %2").arg(info.size()).arg(maxFileBytes);
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("cannot be read");
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(file.read(maxFileBytes), &error);
    if (error.error != QJsonParseError::NoError)
        return QStringLiteral("is not a method file: %1 at byte %2").arg(error.errorString()).arg(error.offset);
    if (!doc.isObject())
        return QStringLiteral("is not a method file: it holds no JSON object");

    const QJsonObject root = doc.object();
    // Keys name the tables of a method file and nothing else: a key that is
    // not one of them is named, never ignored. A column that this version
    // doesn't have (a newer file) is left out on import.
    static const QStringList kFileTables{QLatin1String(kTables[MethodPart]), QLatin1String(kTables[ElectrodePart]),
                                         QLatin1String(kTables[TitrantPart]), QLatin1String(kTables[TitrationPart]),
                                         QStringLiteral("systemInfo")};
    for (const QString &key : root.keys()) {
        if (!kFileTables.contains(key))
            return QStringLiteral("is not a method file: \"%1\" is not one of its tables (%2)")
                .arg(key.left(40), kFileTables.join(QStringLiteral(", ")));
    }
    QVariantMap rows[PartCount];
    int methodId = 0;
    for (int p = 0; p < PartCount; ++p) {
        const QJsonValue table = root.value(QLatin1String(kTables[p]));
        if (!table.isObject() || table.toObject().isEmpty())
            return p == MethodPart ? QStringLiteral("holds no method")
                                   : QStringLiteral("the %1 part of the method is missing").arg(QLatin1String(kPartNames[p]));
        const QJsonObject tableRows = table.toObject();
        if (tableRows.size() > 1)
            return p == MethodPart
                ? QStringLiteral("holds %1 methods; a method file holds one").arg(tableRows.size())
                : QStringLiteral("holds %1 %2 parts; a method has one").arg(tableRows.size()).arg(QLatin1String(kPartNames[p]));
        const QJsonValue row = tableRows.constBegin().value();
        if (!row.isObject())
            return QStringLiteral("the %1 part is not a row of values").arg(QLatin1String(kPartNames[p]));
        for (const QString &key : row.toObject().keys()) {
            if (!DbUtil::isPlainIdentifier(key))
                return QStringLiteral("%1 part: \"%2\" is not a column name").arg(QLatin1String(kPartNames[p]), key.left(40));
        }
        rows[p] = rowFromJson(row.toObject());
        const QString why = p == MethodPart ? idProblem(rows[p].value(QStringLiteral("id")), &methodId)
                                            : partProblem(Part(p), rows[p].value(QStringLiteral("methodId")), methodId);
        if (!why.isEmpty())
            return why;
    }
    return checkRows(rows[MethodPart], rows[ElectrodePart], rows[TitrantPart], rows[TitrationPart]);
}

QString MethodFileValidator::checkStaged(const QString &suffix, int methodId) const
{
    if (!suffix.isEmpty() && !DbUtil::isPlainIdentifier(suffix.mid(1)))
        return QStringLiteral("no staging tables \"%1\"").arg(suffix);
    int id = 0;
    QString why = idProblem(methodId, &id);
    if (!why.isEmpty())
        return why;
    QVariantMap rows[PartCount];
    for (int p = 0; p < PartCount; ++p) {
        const QString table = QLatin1String(kTables[p]) + suffix;
        if (!DbUtil::tableExists(table))
            return QStringLiteral("the %1 part of the method is missing").arg(QLatin1String(kPartNames[p]));
        QSqlQuery query;
        query.prepare(QStringLiteral("SELECT * FROM %1 WHERE %2 = :id").arg(table, p == MethodPart ? QStringLiteral("id") : QStringLiteral("methodId")));
        query.bindValue(QStringLiteral(":id"), methodId);
        if (!DbUtil::exec(query))
            return QStringLiteral("the %1 part of the method cannot be read").arg(QLatin1String(kPartNames[p]));
        int found = 0;
        while (query.next()) {
            ++found;
            const QSqlRecord record = query.record();
            for (int i = 0; i < record.count(); ++i)
                rows[p].insert(record.fieldName(i), record.value(i));
        }
        if (found == 0)
            return QStringLiteral("the %1 part of the method is missing").arg(QLatin1String(kPartNames[p]));
        if (found > 1)
            return QStringLiteral("holds %1 %2 parts for one method; a method has one").arg(found).arg(QLatin1String(kPartNames[p]));
    }
    return checkRows(rows[MethodPart], rows[ElectrodePart], rows[TitrantPart], rows[TitrationPart]);
}
