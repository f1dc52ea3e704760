// Report output: the stored rows as PDF (checked with poppler's tools), text
// reports and raw curves, the move to the USB disk, and the receipt printer
// on a pseudo-terminal.
#include "controller/reportcontroller.h"
#include "models/reportmodel.h"
#include "pseudoterminal.h"
#include "reports/meterreport.h"
#include "reports/methodreport.h"
#include "reports/reportfiles.h"
#include "reports/reportgenerator.h"
#include "reports/reportrows.h"
#include "resourcemanager.h"
#include "system/clock.h"
#include "system/printer.h"
#include "system/usb.h"
#include "system/usbdisk.h"
#include "testdatabase.h"
#include "testsupport.h"

#include <QDir>
#include <QJsonObject>
#include <QRegularExpression>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace {

const QString kModel = QStringLiteral("Vantor Pro V440 All-in-One");
const QDateTime kStamp(QDate(2026, 11, 25), QTime(17, 2));

QString tool(const QStringList &args)
{
    QProcess p;
    p.start(args.first(), args.mid(1));
    p.waitForFinished(20000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

QString pdfText(const QString &file, int page)
{
    return tool({"pdftotext", "-f", QString::number(page), "-l", QString::number(page), "-layout", file, "-"});
}

// The pages pdftoppm renders of a file.
int renderedPages(const QString &file)
{
    QTemporaryDir dir;
    tool({"pdftoppm", "-r", "20", "-png", file, dir.filePath("p")});
    return QDir(dir.path()).entryList({"p*.png"}, QDir::Files).size();
}

// A titration of two cycles; the method name holds the stored text's separators.
StoredReport titration()
{
    const QVector<RunReportRow> method{{"Method Name", "Method Name", "Acid, \"lot\" [7]", "", 3, 3},
                                       {"Temperature", "Temperature", 25.0, "C", 4, 0}};
    QVector<QVector<RunReportRow>> cycles;
    for (const char *conc : {"0.1000", "0.1002"})
        cycles.append({{"Sample Concentration (1)", "Sample Conc. 1", conc, "M", 1, 1},
                       {"End Point Value (1)", "EP Value 1", "-91.0", "mV", 2, 2},
                       {"Titration Duration (Minutes)", "Duration (Min)", "00:04:02", "", 8, 0}});
    const QVector<RunReportRow> summary{{"Average Sample Concentration (1)", "Average Conc. 1", "0.1001", "M", 1, 1},
                                        {"Sample ID", "Sample ID", "=HYPERLINK(\"x\")", "", 2, 2}};
    StoredReport r;
    r.logId = 7;
    r.reportType = QStringLiteral("Titration");
    r.reportString = ReportRows::runText(method, cycles, summary, "pH");
    r.graphString = QStringLiteral("(0.000|222.7),(0.010|222.2)+++++(0.000|220.0),(0.500|100.0),(1.000|50.0)=====mV");
    r.logTimeStamp = kStamp;
    return r;
}

// A pH calibration of five points.
StoredReport calibration()
{
    QObject cal;
    cal.setProperty("electrodeType", "pH");
    cal.setProperty("electrodeName", "Glass 1");
    cal.setProperty("resolution", 0.01);
    cal.setProperty("avgSlope", 98.7);
    cal.setProperty("id", 12);
    cal.setProperty("directMeasureUnit", "pH");
    std::vector<std::unique_ptr<QObject>> owned;
    QList<const QObject *> points;
    for (double ph : {1.68, 4.01, 7.00, 10.01, 12.45}) {
        owned.push_back(std::make_unique<QObject>());
        owned.back()->setProperty("calValue", ph);
        owned.back()->setProperty("voltage", (7.0 - ph) * 59.16);
        owned.back()->setProperty("temperature", 25.0);
        points << owned.back().get();
    }
    StoredReport r;
    r.logId = 12;
    r.reportType = QStringLiteral("Calibration");
    r.reportString = ReportRows::meterText(MeterReport::calibration(&cal, points, {}));
    r.logTimeStamp = kStamp;
    return r;
}

} // namespace

TEST(ReportCsv, CellsASpreadsheetWouldRunAreDefusedAndNumbersStay)
{
    const struct { const char *in; const char *out; } rows[] = {
        {"=1+2", "'=1+2"},           {"@SUM(A1)", "'@SUM(A1)"},   {"+cmd|' /C calc'!A0", "'+cmd|' /C calc'!A0"},
        {"-1+1", "'-1+1"},           {"-91.0 mV", "-91.0 mV"},    {"+5 %", "+5 %"},
        {"-2 =A1", "'-2 =A1"},       {"-1.5e-3", "-1.5e-3"},      {"0.1000 M", "0.1000 M"},
        {"Lot 7, [a]", "\"Lot 7, [a]\""}, {"say \"hi\"", "\"say \"\"hi\"\"\""}, {"-", "'-"},
    };
    for (const auto &r : rows)
        EXPECT_EQ(ReportFiles::csvCell(QString::fromUtf8(r.in)), QString::fromUtf8(r.out)) << r.in;
}

TEST(ReportText, TheShortFormOmitsTheRowsWithoutAShortPlace)
{
    const StoredReport r = titration();
    const struct { const char *format; bool printer; int temperature; int duration; } rows[] = {
        {"Long", false, 1, 2}, {"All", false, 1, 2}, {"short", false, 0, 0}, {"Short", false, 0, 0}, {"short", true, 0, 0},
    };
    for (const auto &row : rows) {
        const QString text = ReportGenerator::runText(r, ReportGenerator::formOf(row.format), row.printer);
        EXPECT_EQ(text.count("Temperature"), row.temperature) << row.format;
        EXPECT_EQ(text.count("Duration (Min)"), row.duration) << row.format;
        EXPECT_EQ(text.count("Sample Conc. 1"), 2) << "every cycle, in every form";
        EXPECT_TRUE(text.startsWith(row.printer ? "      Titration Report\n" : "Titration Report\n"));
        if (row.printer)
            EXPECT_TRUE(text.contains("Average Conc. 1 : 0.1001 M")) << qPrintable(text);
        else
            EXPECT_TRUE(text.contains("Average Conc. 1 , 0.1001 M\n") && text.contains("'=HYPERLINK")
                        && text.contains("\"Acid, \"\"lot\"\" [7]\"")) << qPrintable(text);
    }
}

TEST(MethodReport, ARowIsPrintedOnlyWhenTheMethodUsesWhatItShows)
{
    QJsonObject rows;
    const QStringList headings{"Method Name", "Slope Value", "ISE Type", "Titrant Conc.", "StandardizeDate",
                               "Stdz Technique", "DE", "Stdz Stir Speed", "Titration Tech.", "Blank Value",
                               "Reagent MW", "Process Control", "DE", "Titrate Prestir", "Constant Increment",
                               "Precision Level"};
    for (int i = 0; i < headings.size(); ++i)
        rows.insert(QString::number(i + 1), QJsonObject{{"heading", headings.at(i)}, {"index", 3}, {"value", "v"}});
    auto parts = [](const char *electrode, const char *input, const char *blank, const char *type) {
        return MethodReport::Parts{QJsonObject{{"electrodeType", electrode}}, QJsonObject{{"concInputMode", input}},
                                   QJsonObject{{"blankRequired", blank}, {"titrationType", type}}, {}, {}};
    };
    const struct { const char *tag; MethodReport::Parts parts; const char *shown; } cases[] = {
        {"pH, manual, direct", parts("pH", "Manual Entry", "No", "Direct Titration"),
         "Method Name|Slope Value|Titrant Conc.|Titration Tech.|Process Control|DE|Titrate Prestir"},
        {"ISE, standardised, blank, back", parts("ISE-Titration", "Standardization", "Fixed", "Back Titration"),
         "Method Name|ISE Type|StandardizeDate|Stdz Technique|DE|Stdz Stir Speed|Titration Tech.|Blank Value|Reagent MW|"
         "Process Control|DE|Titrate Prestir"},
        {"known addition", parts("ISE-MKA", "Manual Entry", "No", "Direct Titration"),
         "Method Name|ISE Type|Titrant Conc.|Titration Tech.|Constant Increment|Precision Level"},
    };
    for (const auto &c : cases) {
        QStringList shown;
        for (int key = 1; key <= headings.size(); ++key) {
            if (MethodReport::applies(rows, key, c.parts))
                shown << headings.at(key - 1);
        }
        EXPECT_EQ(shown.join('|'), QString::fromUtf8(c.shown)) << c.tag;
    }
    const QString text = MethodReport::text(rows, parts("pH", "Manual Entry", "No", "Direct Titration"),
                                            {{"Method Name", "Acid, 7"}}, nullptr);
    EXPECT_TRUE(text.startsWith("      Method Report\nMethod Name     : Acid, 7\n")) << qPrintable(text);
}

TEST(ReportFiles, RawCurvesHaveTheirHeaderAndOneLinePerPointOfEachCycle)
{
    TempSandbox sandbox;
    const QStringList files = ReportGenerator("SN/../1", kModel).createRawCycleData(titration());
    ASSERT_EQ(files.size(), 2);
    EXPECT_TRUE(files.at(0).endsWith("/TitrationReport/SN..1_20261125_1702_007_Tdata1.csv")) << qPrintable(files.at(0));
    EXPECT_EQ(readTextFile(files.at(0)), "Row Data #,Volume (mL),E(mV)\n1,0.000,222.7\n2,0.010,222.2\n");
    EXPECT_EQ(readTextFile(files.at(1)).count('\n'), 4);
}

TEST(ReportPdf, ATitrationHoldsItsRowsAndAverageInRobotoOnAFramedPage)
{
    TempSandbox sandbox;
    const QString file = ReportGenerator("SN-1", kModel).createTitrationPdf(titration());
    ASSERT_TRUE(file.endsWith("/TitrationReport/SN-1_20261125_1702_007_T.pdf")) << qPrintable(file);
    const QString text = pdfText(file, 1);
    for (const char *expected : {"Report: Titration Results", "Vantor Pro V440 All-in-One", "Acid, \"lot\" [7]", "Analysis Results:",
                                 "0.1000 M", "0.1002 M", "Result Summary", "0.1001 M", "Page 1"})
        EXPECT_TRUE(text.contains(QString::fromUtf8(expected))) << expected << "\n" << qPrintable(text);
    EXPECT_EQ(renderedPages(file), 1);
    EXPECT_TRUE(tool({"pdffonts", file}).contains(QRegularExpression("Roboto-Regular +CID TrueType +Identity-H +yes")));
}

TEST(ReportPdf, AFivePointCalibrationContinuesOnASecondFramedPage)
{
    TempSandbox sandbox;
    const QString file = ReportGenerator("SN-1", kModel).createCalMeasurePdf(calibration());
    ASSERT_TRUE(file.endsWith("/CalibrationReport/012_20261125_1702_cal.pdf")) << qPrintable(file);
    ASSERT_EQ(renderedPages(file), 2);
    for (int page : {1, 2}) {
        const QString text = pdfText(file, page);
        EXPECT_TRUE(text.contains(kModel) && text.contains(QStringLiteral("Page %1").arg(page))) << qPrintable(text);
    }
    EXPECT_TRUE(pdfText(file, 1).contains("Report: Calibration Results"));
    EXPECT_TRUE(pdfText(file, 2).contains("Signature")) << "the rows past the first page's end";
}

TEST(ReportFiles, TheMoveReplacesATargetInOneStepAndKeepsWhatItCouldNotMove)
{
    QTemporaryDir from, to;
    writeTextFile(from.filePath("a.csv"), "new a");
    writeTextFile(from.filePath("b.csv"), "b");
    writeTextFile(to.filePath("a.csv"), "old a");
    QDir(to.path()).mkpath("b.csv/x"); // a folder where b's file would go
    QStringList failed;
    EXPECT_EQ(ReportFiles::moveAll(QDir(from.path()), to.path(), &failed), QStringList{"a.csv"});
    EXPECT_EQ(failed, QStringList{"b.csv"});
    EXPECT_EQ(readTextFile(to.filePath("a.csv")), "new a");
    EXPECT_EQ(QDir(from.path()).entryList(QDir::Files), QStringList{"b.csv"}) << "b stays staged";
    EXPECT_FALSE(QFile::exists(to.filePath("b.csv.part")));
}

class ReportExportTest : public ::testing::Test
{
public:
    TempSandbox sandbox;
    TestDatabase db;
    ManualClock clock{kStamp};
    std::unique_ptr<ResourceManager> rm;
    std::unique_ptr<ReportController> controller;

    void SetUp() override
    {
        Clock::setSource(&clock);
        rm = std::make_unique<ResourceManager>();
        controller = std::make_unique<ReportController>(
            [] { return ReportController::Instrument{kModel, "SN-1", 0, 0}; }, rm->printer, rm->usbDisk);
        ReportModel model;
        const StoredReport r = titration();
        model.setReportString(r.reportString);
        model.setGraphString(r.graphString);
        ASSERT_TRUE(model.setReportValues(r.logId, r.reportType, r.logTimeStamp));
    }
    void TearDown() override
    {
        controller.reset();
        rm.reset();
        Clock::setSource(nullptr);
    }
    void insertDisk()
    {
        QSignalSpy seen(rm->usb, &USB::usbDiskAttached);
        ASSERT_TRUE(writeTextFile(Platform::path("/dev/sda1"), QString()));
        ASSERT_TRUE(waitUntil([&] { return seen.count() == 1; }));
        clock.advance(USBDisk::debounceMs);
        rm->usbDisk->debounceTick();
        ASSERT_TRUE(rm->usbIsReady());
    }
    static QStringList files(const QString &folder) { return QDir(folder).entryList(QDir::Files, QDir::Name); }
};

TEST_F(ReportExportTest, WithoutADiskTheFilesStayStagedAndTheNextExportMovesThem)
{
    QSignalSpy shown(controller.get(), &ReportController::showPopupMultiInput);
    QSignalSpy dismissed(controller.get(), &ReportController::dismissPopup);
    controller->exportReportFromSummary(7, "Report", "Long", "Titration Log");
    ASSERT_EQ(shown.size(), 2);
    EXPECT_EQ(shown.at(0), (QVariantList{"recordFound", 1, ""}));
    EXPECT_EQ(shown.at(1), (QVariantList{"usbNotReady", 0, ""}));
    const QString staging = ReportController::stagingFolder("Titration Log");
    EXPECT_EQ(files(staging), QStringList{"SN-1_20261125_1702_007_T.pdf"});

    insertDisk();
    controller->setFileType("short");
    controller->exportReportFromSummary(7, "CSV", controller->fileType(), "Titration Log");
    EXPECT_EQ(dismissed.size(), 1);
    EXPECT_EQ(dismissed.at(0).at(0), "exportCompleted");
    EXPECT_TRUE(files(staging).isEmpty());
    EXPECT_EQ(files(Platform::path("/media/usb/VantorPro/TitrationReport")),
              (QStringList{"SN-1_20261125_1702_007_T.pdf", "SN-1_20261125_1702_007_Tdata1.csv",
                           "SN-1_20261125_1702_007_Tdata2.csv", "SN-1_20261125_1702_007_Tsum.csv"}));
    EXPECT_TRUE(controller->lastOutcome().moved);
}

TEST_F(ReportExportTest, TheBatchTakesTheDateRangeAndSaysWhenNothingIsFound)
{
    QSignalSpy shown(controller.get(), &ReportController::showPopupMultiInput);
    const struct { const char *from; const char *to; const char *state; int found; } rows[] = {
        {"2026-11-25", "2026-11-25", "recordFound", 1}, {"2026-11-26", "2030-01-01", "noRecordFound", 0},
    };
    controller->setStageOnly(true);
    for (const auto &row : rows) {
        shown.clear();
        controller->exportInput(QJsonObject{{"exportOf", "Titration Log"}, {"fileType", "CSV"}, {"format", "short"},
                                            {"exportBy", "Date Range"}, {"lastDays", ""}, {"fromDate", row.from},
                                            {"toDate", row.to}});
        ASSERT_FALSE(shown.isEmpty());
        EXPECT_EQ(shown.at(0).at(0), row.state) << row.from;
        EXPECT_EQ(controller->lastOutcome().recordsFound, row.found);
    }
}

TEST_F(ReportExportTest, TheScreensRequestObjectReachesTheBatchFromJavaScript)
{
    QQmlEngine engine;
    engine.rootContext()->setContextProperty("reportController", controller.get());
    controller->setStageOnly(true);
    QQmlExpression call(engine.rootContext(), nullptr,
                        "reportController.fileType = 'short'; reportController.isCSV = true;"
                        "reportController.exportInput({exportOf: 'All Logs', fileType: 'CSV', format: reportController.fileType,"
                        " exportBy: 'Data Set', recordOffsetMin: '9', recordOffsetMax: '1', titrationLimitMin: 7,"
                        " titrationLimitMax: 7, standLimitMin: -1, standLimitMax: -1, calLimitMin: -1, calLimitMax: -1,"
                        " measureLimitMin: -1, measureLimitMax: -1})");
    call.evaluate();
    EXPECT_FALSE(call.hasError()) << qPrintable(call.error().toString());
    EXPECT_EQ(controller->lastOutcome().recordsFound, 1);
    EXPECT_EQ(controller->lastOutcome().filesWritten.size(), 3) << "the short text and two raw curves";
}

TEST_F(ReportExportTest, APrintedReportReachesTheTerminalInitialisedInItsCodePageAndCutOnce)
{
    PseudoTerminal pty;
    QByteArray received;
    QObject::connect(&pty, &PseudoTerminal::received, [&](const QByteArray &b) { received += b; });
    ASSERT_TRUE(pty.open(Platform::path("/dev/ttyPOS"))) << qPrintable(pty.errorString());
    EXPECT_FALSE(rm->printer->printReport("before")) << "nothing before the port is open";
    ASSERT_TRUE(rm->printer->openPort());
    EXPECT_TRUE(rm->printerIsReady());
    controller->setIsCSV(false);
    QSignalSpy dismissed(controller.get(), &ReportController::dismissPopup);
    controller->exportReportFromSummary(7, "CSV", "short", "Titration Log");
    EXPECT_EQ(dismissed.at(0).at(0), "printCompleted");
    ASSERT_TRUE(rm->printer->printReport(QStringLiteral("25 \u00b0C \u2192 \u00b5L \u001b@\n")));
    const QByteArray tail = QByteArray("25 \xb0" "C ? \xb5L ?@\n") + Printer::cmdFeed + Printer::cmdCut;
    ASSERT_TRUE(waitUntil([&] { return received.endsWith(tail); })) << received.toStdString();
    EXPECT_TRUE(received.startsWith(Printer::cmdInit + "      Titration Report\n"));
    EXPECT_TRUE(received.contains("Average Conc. 1 : 0.1001 M\n"));
    EXPECT_EQ(received.count(Printer::cmdCut), 2) << "one cut for each of the two reports";
    EXPECT_EQ(received.count(Printer::cmdInit), 1);
}

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    TempSandbox sandbox;
    return RUN_ALL_TESTS();
}
