#include "models/measurementlogmodel.h"
#include "models/measurementmodel.h"
#include "models/reportmodel.h"
#include "reportwriter.h"
#include "reports/meterreport.h"
#include "reports/reportrows.h"
#include "reports/reportvalues.h"
#include "reports/standardisationreport.h"
#include "reports/titrationreport.h"
#include "testdatabase.h"

#include <QJsonArray>
#include <QSet>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTime>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using Props = std::vector<std::pair<const char *, QVariant>>;

// A record part with the properties the builders read by name.
std::unique_ptr<QObject> part(const Props &props)
{
    auto o = std::make_unique<QObject>();
    for (const auto &p : props)
        o->setProperty(p.first, p.second);
    return o;
}

QSet<int> positions(const QVector<RunReportRow> &rows)
{
    QSet<int> present;
    for (const RunReportRow &r : rows) {
        if (r.value.toString() != ReportRows::notApplicable)
            present.insert(r.longPosition);
    }
    return present;
}

QString valueAt(const QVector<RunReportRow> &rows, int longPosition)
{
    for (const RunReportRow &r : rows) {
        if (r.longPosition == longPosition)
            return r.value.toString();
    }
    return QStringLiteral("(absent)");
}

TEST(ReportValues, SignificantFiguresAndDecimalsAsTheScreensWriteThem)
{
    const struct { double value; int sig, dec; const char *text; } cases[] = {
        {0.05, 4, 5, "0.05000"}, {0.1234, 4, 5, "0.1234"}, {1.23456, 4, 5, "1.235"}, {12.3456, 4, 5, "12.35"},
        {999.96, 4, 5, "1000"}, {12345.6, 4, 5, "12350"}, {-0.00002, 4, 5, "-0.00002"}, {7.0, 3, 4, "7.00"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(ReportValues::sigFigsDec(c.value, c.sig, c.dec), QLatin1String(c.text)) << c.value;
    EXPECT_EQ(ReportValues::duration(3725), QStringLiteral("01:02:05"));
    EXPECT_EQ(ReportValues::dateTime(QDateTime(QDate(2026, 3, 4), QTime(21, 5)), 3, 0), QStringLiteral("04-Mar-2026 | 09:05 PM"));
}

TEST(ReportRows, AValueWithCommasQuotesBracketsAndSeparatorsRoundTrips)
{
    const QString awkward = QStringLiteral("A,\"b\"],[c+++++=====*****");
    const QVector<RunReportRow> method = {{"Sample ID", "Sample ID", awkward, "", 6, 5},
                                          {"Titer Ratio", "Titer Ratio", ReportRows::notApplicable, "", 19, 0}};
    const QVector<RunReportRow> cycle = {{"Cycle Number", "Cycle Number", 1, "", 1, 1}};
    const QString text = ReportRows::runText(method, {cycle, cycle}, cycle, QStringLiteral("pH"));
    const StoredRunReport back = ReportRows::parseRun(text);
    ASSERT_TRUE(back.ok) << text.toStdString();
    ASSERT_EQ(back.method.size(), 1); // the "NILL" row is dropped
    EXPECT_EQ(back.method.at(0).toArray().at(2).toString(), awkward);
    EXPECT_EQ(back.cycles.size(), 2);
    EXPECT_EQ(back.cycles.at(1).at(0).toArray().at(2).toInt(), 1);
    EXPECT_EQ(back.electrodeType, QStringLiteral("pH"));

    const StoredRunReport noCycles = ReportRows::parseRun(ReportRows::runText(method, {}, cycle, QStringLiteral("mV")));
    EXPECT_TRUE(noCycles.ok);
    EXPECT_TRUE(noCycles.cycles.isEmpty());
    EXPECT_FALSE(ReportRows::parseRun(text.left(text.size() / 2)).ok);

    const QString meter = ReportRows::meterText({{"Sample ID", 210, awkward, 0}});
    EXPECT_EQ(ReportRows::parseMeter(meter).at(0).toArray(), (QJsonArray{"Sample ID", 72, 210, awkward, 280, 210, 0}));
}

class TitrationRows : public ::testing::Test
{
protected:
    std::unique_ptr<QObject> method = part({{"methodName", "Acidity"}});
    std::unique_ptr<QObject> electrode = part({{"electrodeType", "pH"}, {"resolution", 0.01}});
    std::unique_ptr<QObject> titrant = part({{"titrantName", "NaOH"}, {"titrantConcentrationValue", 0.1}});
    std::unique_ptr<QObject> titration;
    std::unique_ptr<QObject> cycle = part({{"cycleNo", 1}, {"inclInAvg", 1}, {"calCon", 0.0512}, {"veqp", 4.5},
                                           {"epValue1", 8.2}, {"initialpH", "3.10"}, {"temperature", 25.0},
                                           {"runningDuration", QTime(0, 2, 30)}, {"graphPoints", "(0.000|3.10),(4.500|8.20)"}});
    RunReportSource source;

    void make(const Props &titrationProps, int standardisationId = 0, const QString &runType = "Titration")
    {
        titration = part(titrationProps);
        source.method = method.get();
        source.electrode = electrode.get();
        source.titrant = titrant.get();
        source.titration = titration.get();
        source.run = {{"titrationType", runType}};
        source.calibration = {{"id", 3}, {"avgSlope", 98.54}};
        source.standardisation = {{"id", standardisationId}, {"AvgConc", "0.1012 | "}, {"nominalConc", 0.1},
                                  {"nominalConc_Unit", "M"}, {"resultUnits", "M"}};
        source.cycles = {cycle.get()};
        source.avgConc = QStringLiteral("0.0512");
        source.rsd = QStringLiteral("0.00");
        source.sampleId = QStringLiteral("S-7");
    }
};

TEST_F(TitrationRows, EachMethodRowAppearsExactlyWhenItAppliesToTheRun)
{
    const QSet<int> head = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    const struct {
        const char *name;
        Props titration;
        int standardisationId;
        const char *runType;
        QSet<int> more;
    } cases[] = {
        {"direct, manual concentration", {{"titrationType", "Direct Titration"}, {"titrationTechnique", "Equivalence Pt."},
                                          {"resultUnits", "M"}, {"sampleAmount", "Fixed Volume"}, {"blankRequired", "No"},
                                          {"titrationProcessControl", "Medium"}},
         0, "Titration", {20, 21, 22, 23, 24, 25, 26, 37, 39, 41, 43, 44}},
        {"direct, standardised titrant", {{"titrationType", "Direct Titration"}, {"resultUnits", "mg/L"},
                                          {"sampleAmount", "Variable Weight"}, {"titrationProcessControl", "User Defined"}},
         5, "Titration", {14, 15, 16, 17, 18, 19, 24, 25, 26, 37, 38, 39, 40, 41, 43, 45}},
        {"back titration by volume", {{"titrationType", "Back Titration"}, {"reagentAmount", "Manual Volume"},
                                      {"resultUnits", "% w/w"}, {"sampleAmount", "Fixed Weight"}},
         0, "Titration", {20, 21, 22, 23, 24, 25, 30, 31, 32, 33, 34, 38, 39, 41, 43, 44}},
        {"direct blank run", {{"titrationType", "Direct Titration"}}, 0, "Direct Blank", {20, 21, 22, 23, 24, 25, 27, 28, 29}},
        {"back blank run", {{"titrationType", "Back Titration"}}, 0, "Back Blank", {20, 21, 22, 23, 24, 25}},
    };
    for (const auto &c : cases) {
        make(c.titration, c.standardisationId, c.runType);
        source.run.insert(QStringLiteral("mupdatedAt"), QDateTime(QDate(2026, 1, 2), QTime(3, 4)));
        EXPECT_EQ(positions(TitrationReport(source).methodRows()), head + c.more) << c.name;
    }
}

TEST_F(TitrationRows, ValuesFollowTheRunAndItsSettings)
{
    make({{"titrationType", "Direct Titration"}, {"titrationTechnique", "Equivalence Pt."}, {"resultUnits", "M"},
          {"displayUnits", "pH"}, {"sampleID", "Manual"}, {"noOfEndPoints", 1}, {"sampleAmount", "Fixed Volume"},
          {"sampleAmountValue", 10.0}});
    const TitrationReport report(source);
    const QVector<RunReportRow> method = report.methodRows();
    EXPECT_EQ(valueAt(method, 6), QStringLiteral("S-7"));
    EXPECT_EQ(valueAt(method, 12), QStringLiteral("98.5 %"));
    EXPECT_EQ(valueAt(method, 39), QStringLiteral("10.00"));
    const QVector<RunReportRow> rows = report.cycleRows(cycle.get());
    EXPECT_EQ(positions(rows), (QSet<int>{1, 2, 5, 8, 11, 14, 15, 16}));
    EXPECT_EQ(valueAt(rows, 5), QStringLiteral("0.05120"));
    EXPECT_EQ(valueAt(rows, 11), QStringLiteral("8.20")); // pH at resolution 0.01
    EXPECT_EQ(valueAt(rows, 16), QStringLiteral("00:02:30"));
    EXPECT_EQ(report.graphString(), QStringLiteral("(0.000|3.10),(4.500|8.20)=====pH"));

    electrode->setProperty("electrodeType", "Redox");
    titration->setProperty("displayUnits", "mV");
    EXPECT_EQ(valueAt(report.cycleRows(cycle.get()), 11), QStringLiteral("8.2"));
    EXPECT_EQ(positions(report.methodRows()).intersect({8, 9, 10, 11, 12, 13}), QSet<int>());
    EXPECT_TRUE(report.graphString().endsWith(QLatin1String("=====mV")));
}

TEST(StandardisationRows, TheTiterRatioBringsBothConcentrationsToOneUnit)
{
    const struct { double actual; const char *result; double nominal; const char *nominalUnit; const char *ratio; } cases[] = {
        {0.1012, "M", 0.1, "M", "1.012"}, {0.1012, "M", 100, "mM", "1.012"},
        {101.2, "mM", 100, "mM", "1.012"}, {101.2, "mN", 0.1, "N", "1.012"},
    };
    for (const auto &c : cases)
        EXPECT_EQ(TitrationReport::titerRatio(c.actual, c.result, c.nominal, c.nominalUnit), QLatin1String(c.ratio)) << c.result;

    auto titrant = part({{"titrantName", "HCl"}, {"concInputMode", "Standardization"}, {"standAmount", "Variable Weight"},
                         {"standAmount_Unit", "gram"}, {"resultUnits", "M"}, {"nominalConc", 0.1}, {"nominalConc_Unit", "M"}});
    auto electrode = part({{"electrodeType", "pH"}});
    auto cycle = part({{"cycleNo", 1}, {"inclInAvg", 0}, {"standAmountValue", 0.2041}, {"calCon", 0.1012}});
    RunReportSource s;
    s.titrant = titrant.get();
    s.electrode = electrode.get();
    s.cycles = {cycle.get()};
    s.avgConc = QStringLiteral("0.1012");
    const StandardisationReport report(s);
    EXPECT_EQ(positions(report.methodRows()), (QSet<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 14, 15, 16, 17, 18, 19, 20,
                                                         22, 23, 25, 26, 27}));
    const QVector<RunReportRow> c = report.cycleRows(cycle.get());
    EXPECT_EQ(valueAt(c, 2), QStringLiteral("Yes"));
    EXPECT_EQ(valueAt(c, 3), QStringLiteral("0.2041"));
    EXPECT_EQ(valueAt(report.summaryRows(), 5), QStringLiteral("1.012"));
}

TEST(MeterRows, EachRowStandsWhereThePageWantsIt)
{
    auto reading = part({{"readMode", "ISE"}, {"iseType", "Fluoride"}, {"sampleId", "Manual"}, {"sampleIdValue", "x,\"y\"]"},
                         {"scaledValue", 1.2345}, {"significantDigits", 3}, {"directMeasurementUnit", "ppm"},
                         {"mV", -12.34}, {"temp", 25.0}, {"isATC", true}, {"calLogId", 0}});
    const QVector<MeterReportRow> rows = MeterReport::measurement(reading.get(), QDateTime(QDate(2026, 1, 2), QTime(8, 0)), {"B17", 0, 1, 0});
    QStringList layout;
    for (const MeterReportRow &r : rows)
        layout << QStringLiteral("%1@%2=%3").arg(r.heading).arg(r.y).arg(r.value);
    EXPECT_EQ(layout, (QStringList{"SW Rev@160=B17", "Sample ID@210=x,\"y\"]", "Date/Time@235=01/02/2026 | 08:00",
                                   "Electrode Type@260=ISE", "ISE Type@285=Fluoride", "Electrode Name@310=",
                                   "Concentration@335=1.23 ppm", "mV value@360=-12.3 mV", "Temperature@385=25.0 °C (ATC)",
                                   "Cal Log #@435=", "Average Slope@460=", "Calibrated@485=",
                                   "Operator@535=_______________", "Signature@560=_______________"}));

    auto calibration = part({{"electrodeType", "pH"}, {"electrodeName", "E1"}, {"resolution", 0.01}, {"avgSlope", 98.76},
                             {"directMeasureUnit", "pH"}, {"id", 9}});
    std::vector<std::unique_ptr<QObject>> owned;
    QList<const QObject *> points;
    for (int i = 1; i <= 3; ++i) {
        owned.push_back(part({{"cycleNo", i}, {"calValue", 2.0 + 3 * i}, {"voltage", 100.0 - 60 * i}, {"slope", 97.0 + i},
                              {"offset", 1.5}, {"temperature", 25.0}, {"temperatureMode", "MAN"}}));
        points << owned.back().get();
    }
    QStringList tail;
    for (const MeterReportRow &r : MeterReport::calibration(calibration.get(), points, {"B17", 0, 1, 0}))
        if (r.y > 560)
            tail << QStringLiteral("%1@%2=%3").arg(r.heading).arg(r.y).arg(r.value);
    calibration->setProperty("electrodeType", "ATC");
    QStringList atc;
    for (const MeterReportRow &r : MeterReport::calibration(calibration.get(), points, {"B17", 0, 1, 1}))
        atc << QStringLiteral("%1@%2=%3").arg(r.heading).arg(r.y).arg(r.value);
    EXPECT_EQ(atc.mid(3, 4), (QStringList{"ATC Value@285=41.0 °F", "Temperature@310=77.0 °F", "Offset@335=2.7 °F", "Cal Log #@360=9"}));
    calibration->setProperty("electrodeType", "pH");
    EXPECT_EQ(tail, (QStringList{"pH value@585=11.00 pH", "mV@610=-80.0 mV", "Temperature@635=25.0 °C (MAN)",
                                 "Slope 1@685=98.0 %", "Eo 1@710=1.5 mV", "Slope 2@735=99.0 %", "Eo 2@760=1.5 mV",
                                 "Average Slope@810=98.8 %", "Cal Log #@835=9", "Operator@885=_______________",
                                 "Signature@910=_______________"}));
}

class StoredReport : public ::testing::Test
{
protected:
    TestDatabase db;
    ReportModel model;

    QVariantList row(const QString &columns, int titrationId)
    {
        QSqlQuery q;
        q.exec(QStringLiteral("SELECT %1 FROM reportSetupTable WHERE titrationId = %2").arg(columns).arg(titrationId));
        QVariantList values;
        if (q.next())
            for (int i = 0; i < q.record().count(); ++i)
                values << q.value(i);
        return values;
    }
};

TEST_F(StoredReport, ARecalculationChangesTheReportStringOnly)
{
    model.setReportString(QStringLiteral("first"));
    model.setGraphString(QStringLiteral("(0|1)=====pH"));
    model.setCycleImage1(QByteArray("\x89PNG", 4));
    model.setCycleImage2(QByteArray("0"));
    const QDateTime ran(QDate(2026, 5, 6), QTime(7, 8));
    ASSERT_TRUE(model.setReportValues(12, QStringLiteral("Titration"), ran));
    const int id = model.id();
    EXPECT_GT(id, 0);
    const QVariantList first = row("cycleImage2, measurementId + calibrationId + standardizationId", 12);
    ASSERT_EQ(first.size(), 2);
    EXPECT_TRUE(first.at(0).toByteArray().isEmpty()); // QML's 0 for "no image"
    EXPECT_EQ(first.at(1).toInt(), 0);

    model.setReportString(QStringLiteral("second"));
    model.setGraphString(QStringLiteral("changed"));
    model.setCycleImage1(QByteArray());
    ASSERT_TRUE(model.setReportValues(12, QStringLiteral("Titration"), ran.addDays(1)));
    EXPECT_EQ(model.id(), id);
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("reportSetupTable")), 1);
    const QVariantList kept = row("reportString, graphString, cycleImage1, logTimeStamp", 12);
    ASSERT_EQ(kept.size(), 4);
    EXPECT_EQ(kept.at(0).toString(), QStringLiteral("second"));
    EXPECT_EQ(kept.at(1).toString(), QStringLiteral("(0|1)=====pH"));
    EXPECT_EQ(kept.at(2).toByteArray(), QByteArray("\x89PNG", 4));
    EXPECT_EQ(kept.at(3).toDateTime(), ran);
}

TEST_F(StoredReport, AFailedInsertLeavesNoIdBehind)
{
    ASSERT_TRUE(model.setReportValues(1, QStringLiteral("Measurement"), QDateTime()));
    EXPECT_GT(model.id(), 0);
    ASSERT_TRUE(TestDatabase::exec(QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON reportSetupTable "
                                                  "BEGIN SELECT RAISE(ABORT, 'full'); END")));
    EXPECT_FALSE(model.setReportValues(2, QStringLiteral("Measurement"), QDateTime()));
    EXPECT_EQ(model.id(), 0);
}

TEST_F(StoredReport, ASampleIdWithCommaQuoteAndBracketRoundTripsThroughTheStoredRow)
{
    MeasurementModel reading;
    reading.setReadMode(QStringLiteral("pH"));
    reading.setSampleId(QStringLiteral("Manual"));
    reading.setSampleIdValue(QStringLiteral("Lot \"7\", [a],[b]"));
    MeasurementLogModel log;
    log.takeMeasurement(&reading);
    log.saveLogValues(false);
    ASSERT_GT(log.id(), 0);
    ReportWriter writer([] { return ReportWriter::Settings{"Bench 1", "B17", 0, 0, 0}; }, nullptr);
    ASSERT_TRUE(writer.storeMeterReport(QStringLiteral("Measurement"), log.id()));
    EXPECT_FALSE(writer.storeMeterReport(QStringLiteral("Measurement"), log.id())); // one report per reading

    QSqlQuery q(QStringLiteral("SELECT reportString FROM reportSetupTable"));
    ASSERT_TRUE(q.next());
    const QJsonArray rows = ReportRows::parseMeter(q.value(0).toString());
    ASSERT_GE(rows.size(), 2);
    EXPECT_EQ(rows.at(1).toArray().at(3).toString(), reading.sampleIdValue());
}

} // namespace
