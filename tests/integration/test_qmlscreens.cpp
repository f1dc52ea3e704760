// Every QML file of the tree loads in the real window's context without a
// single engine warning, and the window's functions that the back end calls
// run clean: the sections, the nine notifications and their queue.

#include "controller/burettecontroller.h"
#include "controller/metercontroller.h"
#include "controller/mspcontroller.h"
#include "controller/reportcontroller.h"
#include "datamanagerbase.h"
#include "models/calibrationcyclemodel.h"
#include "models/calibrationlogmodel.h"
#include "models/electrodesetupmodel.h"
#include "models/methodmodel.h"
#include "models/setupmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationmodel.h"
#include "models/titrationsetupmodel.h"
#include "models/measurementlogmodel.h"
#include "models/measurementmodel.h"
#include "models/reportmodel.h"
#include "models/standardisationlogmodel.h"
#include "models/titrationlogmodel.h"
#include "system/languageselector.h"
#include "resourcemanager.h"
#include "system/usb.h"
#include "uidriver.h"
#include "uiscene.h"
#include "testdatabase.h"
#include "testdatalayer.h"
#include "titrationcontrollerbase.h"

#include <QDirIterator>
#include <QApplication>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlExpression>
#include <QQmlInfo>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace {

class Screens : public ::testing::Test
{
protected:
    void SetUp() override
    {
        dm = startedDataManager();
        msp = std::make_unique<mspController>(QStringLiteral("/nonexistent/tty"));
        bc = std::make_unique<BuretteController>(msp.get());
        mc = std::make_unique<MeterController>(msp.get(), dm.get());
        tc = std::make_unique<TitrationControllerBase>(msp.get(), bc.get(), nullptr);
        engine = std::make_unique<QQmlApplicationEngine>();
        driver = new UiDriver(engine.get(), engine.get()); // collects the warnings
        QQmlContext *c = engine->rootContext();
        c->setContextProperty(QStringLiteral("tc"), tc.get());
        c->setContextProperty(QStringLiteral("dm"), dm.get());
        c->setContextProperty(QStringLiteral("mc"), mc.get());
        c->setContextProperty(QStringLiteral("rm"), ResourceManager::rmPtr());
        c->setContextProperty(QStringLiteral("electrode"), dm->electrodeSetupModel());
        c->setContextProperty(QStringLiteral("titrant"), dm->titrantSetupModel());
        c->setContextProperty(QStringLiteral("titration"), dm->titrationSetupModel());
        c->setContextProperty(QStringLiteral("method"), dm->methodModel());
        c->setContextProperty(QStringLiteral("runtitration"), dm->titrationModel());
        c->setContextProperty(QStringLiteral("setup"), dm->setupModel());
        c->setContextProperty(QStringLiteral("measurement"), dm->measurementModel());
        c->setContextProperty(QStringLiteral("measurementTemp"), &measurementTemp);
        c->setContextProperty(QStringLiteral("calibrationCycleModel"), dm->calibrationCycleModel());
        c->setContextProperty(QStringLiteral("usbHandler"), ResourceManager::rmPtr()->usb);
        c->setContextProperty(QStringLiteral("measurementLogModel"), &measurementLog);
        c->setContextProperty(QStringLiteral("calibrationLogModel"), &calibrationLog);
        c->setContextProperty(QStringLiteral("standardisationLogModel"), &standardisationLog);
        c->setContextProperty(QStringLiteral("titrationLogModel"), &titrationLog);
        c->setContextProperty(QStringLiteral("ls"), &ls);
        c->setContextProperty(QStringLiteral("reportController"), &reportController);
        c->setContextProperty(QStringLiteral("reportModel"), &reportModel);
        engine->load(QUrl(QStringLiteral("qrc:/main.qml")));
        ASSERT_FALSE(engine->rootObjects().isEmpty()) << driver->warnings().join(QLatin1Char('\n')).toStdString();
        root = qobject_cast<QQuickWindow *>(engine->rootObjects().first());
        ASSERT_TRUE(root);
    }

    void TearDown() override
    {
        engine.reset();
        tc.reset();
        mc.reset();
        bc.reset();
        msp.reset();
        dm.reset();
    }

    QVariant call(const char *function, const QVariant &arg = QVariant())
    {
        QVariant result;
        if (arg.isValid())
            QMetaObject::invokeMethod(root, function, Q_RETURN_ARG(QVariant, result), Q_ARG(QVariant, arg));
        else
            QMetaObject::invokeMethod(root, function, Q_RETURN_ARG(QVariant, result));
        return result;
    }
    QObject *byId(const QString &id) { return qmlContext(root)->contextProperty(id).value<QObject *>(); }
    QString warnings() const { return driver->warnings().join(QLatin1Char('\n')); }

    // With KESTRUM_UI_SHOTS set, a picture of the window into that folder, to
    // look at (on a display: the offscreen platform draws no picture).
    void saveShot(const QString &name)
    {
        const QString dir = qEnvironmentVariable("KESTRUM_UI_SHOTS");
        QTest::qWait(100);
        if (!dir.isEmpty()) {
            root->grabWindow().save(dir + QLatin1Char('/') + name);
        }
    }

    TestDatabase db;
    std::unique_ptr<DataManagerBase> dm;
    std::unique_ptr<mspController> msp;
    std::unique_ptr<BuretteController> bc;
    std::unique_ptr<MeterController> mc;
    std::unique_ptr<TitrationControllerBase> tc;
    MeasurementModel measurementTemp;
    MeasurementLogModel measurementLog;
    CalibrationLogModel calibrationLog;
    StandardisationLogModel standardisationLog;
    TitrationLogModel titrationLog;
    LanguageSelector ls;
    ReportController reportController;
    ReportModel reportModel;
    std::unique_ptr<QQmlApplicationEngine> engine;
    UiDriver *driver = nullptr;
    QQuickWindow *root = nullptr;
};

TEST_F(Screens, EveryFileLoadsWithoutWarnings)
{
    QDirIterator it(QStringLiteral(KESTRUM_SOURCE_DIR "/qml"), {QStringLiteral("*.qml")}, QDir::Files,
                    QDirIterator::Subdirectories);
    int loaded = 0;
    while (it.hasNext()) {
        const QString file = it.next();
        const QString relative = QDir(QStringLiteral(KESTRUM_SOURCE_DIR "/qml")).relativeFilePath(file);
        if (relative == QLatin1String("main.qml"))
            continue;
        // Every file is a resource: a page missing from the list fails here.
        QQmlComponent component(engine.get(), QUrl(QStringLiteral("qrc:/") + relative));
        ASSERT_TRUE(component.isReady()) << relative.toStdString() << ": " << component.errorString().toStdString();
        // Created in the window's context, as the window declares its pages.
        QObject *object = component.create(qmlContext(root));
        ASSERT_TRUE(object) << relative.toStdString();
        if (auto *item = qobject_cast<QQuickItem *>(object))
            item->setParentItem(root->contentItem());
        QCoreApplication::processEvents();
        delete object;
        ++loaded;
    }
    EXPECT_GT(loaded, 30);
    EXPECT_EQ(warnings(), QString());
}

TEST_F(Screens, EverySectionAndItsFunctionsRunClean)
{
    call("skipToHome");
    QObject *sideBar = byId(QStringLiteral("sideBar"));
    const char *switches[] = {"switchToSettings", "switchToLogs", "switchToMethods", "switchToBurette",
                              "switchToMeasure", "switchToHome", "switchToHome"};
    const char *stacks[] = {"settingsStack", "logStack", "methodStack", "buretteStack",
                            "measureStack", "titrationStack", "titrationStack"};
    for (int i = 0; i < 7; ++i) {
        QMetaObject::invokeMethod(sideBar, switches[i], Q_ARG(QVariant, false));
        QTest::qWait(250); // the Measure section starts the meter after 200 ms
        EXPECT_EQ(root->property("currentStack").value<QObject *>(), byId(QString::fromLatin1(stacks[i]))) << switches[i];
    }
    call("backButtonAction");
    call("handleTipAction");
    call("showSlopeError");
    call("hidePopup");
    call("hidePopup"); // with nothing on show
    call("logSaved");
    saveShot(QStringLiteral("success.png"));
    call("titrationCompleted");
    EXPECT_EQ(warnings(), QString());
}

// The pages of the working method opened on their own: each shows its own
// last button, and the Save of each writes, closes and says so.
TEST_F(Screens, WorkingMethodPagesSaveOnTheirOwn)
{
    call("skipToHome");
    QObject *loader = byId(QStringLiteral("dynamicLoader"));
    QObject *stack = byId(QStringLiteral("titrationStack"));
    const struct {
        const char *load;
        const char *button;
        bool saves;
    } cases[] = {{"loadElectrodeSetup", "Save", true},
                 {"loadTitrantSetup", "Save", true},
                 {"loadTitrationSetup", "Save", true},
                 {"loadTitrationWithSetup", "Next", false},
                 {"loadElectrodeCalibrationWithSetup", "Next", false}};
    for (const auto &c : cases) {
        QMetaObject::invokeMethod(loader, c.load);
        QTest::qWait(100); // a frame: the rows and the button are laid out
        UiScene scene(root);
        QQuickItem *button = scene.itemWithText(QString::fromLatin1(c.button));
        ASSERT_TRUE(button) << c.load;
        EXPECT_EQ(stack->property("depth").toInt(), 2) << c.load;
        if (c.saves) {
            scene.tap(button);
            EXPECT_TRUE(scene.showsText(QStringLiteral("Method Updated"))) << c.load;
            call("hidePopup");
        } else {
            call("backButtonAction");
        }
        EXPECT_EQ(stack->property("depth").toInt(), 1) << c.load;
    }
    EXPECT_EQ(warnings(), QString());
}

TEST_F(Screens, NotificationsWaitInTurnAndGoWhenClosed)
{
    for (int etype = 1; etype <= 9; ++etype)
        call("calibrationNotificationQmlSlot", etype);
    UiScene scene(root);
    const char *titles[] = {"pH Calibration Due", "Redox Calibration Due", "ISE Calibration Due",
                            "Titration Log Full", "Titrant Log Full", "Titration Log Full",
                            "Measurement Log Full", "Calibration Log Full", "Maintenance due"};
    for (const char *title : titles) {
        QQuickItem *shown = scene.itemWithText(QString::fromLatin1(title));
        ASSERT_TRUE(shown) << title;
        // Only the first of the queue is on show.
        const auto texts = scene.shownTexts();
        EXPECT_EQ(std::count_if(texts.begin(), texts.end(),
                                [](const UiScene::ShownText &t) { return t.text == QLatin1String("Ignore"); }),
                  1)
            << title;
        QQuickItem *ignore = scene.itemWithText(QStringLiteral("Ignore"));
        ASSERT_TRUE(ignore) << title;
        scene.tap(ignore);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(scene.showsText(QStringLiteral("Ignore")));
    EXPECT_FALSE(byId(QStringLiteral("popupFrame"))->property("visible").toBool());
    int popupsLeft = 0;
    const auto children = root->contentItem()->childItems();
    for (QQuickItem *child : children)
        popupsLeft += child->property("isDynamic").toBool() ? 1 : 0;
    EXPECT_EQ(popupsLeft, 0) << "closed popups are destroyed";
    EXPECT_EQ(warnings(), QString());
}

TEST_F(Screens, ViewLogOpensTheLogsInForce)
{
    call("skipToHome");
    call("calibrationNotificationQmlSlot", 7);
    QTest::qWait(100); // a frame: the popup's buttons are laid out
    UiScene scene(root);
    QQuickItem *viewLog = scene.itemWithText(QStringLiteral("View Log"));
    ASSERT_TRUE(viewLog);
    scene.tap(viewLog);
    EXPECT_EQ(root->property("currentStack").value<QObject *>(), byId(QStringLiteral("logStack")));
    EXPECT_FALSE(scene.showsText(QStringLiteral("Measurement Log Full")));
    EXPECT_EQ(warnings(), QString());
}

TEST_F(Screens, VersionPageOnlyForServiceInstruments)
{
    call("skipToHome");
    QObject *versionPopup = byId(QStringLiteral("versionPopup"));
    for (const char *name : {"Bench 1", "", "Kestrum Tester ", "PtQrBenchHandy", "Kestrum Tester"}) {
        versionPopup->setProperty("visible", false);
        dm->setupModel()->setInstrumentName(QString::fromLatin1(name));
        call("openVersionPage");
        const bool service = QByteArray(name) == "PtQrBenchHandy" || QByteArray(name) == "Kestrum Tester";
        EXPECT_EQ(versionPopup->property("visible").toBool(), service) << name;
    }
    saveShot(QStringLiteral("version.png"));
    EXPECT_EQ(warnings(), QString());
}

TEST_F(Screens, BusyPopupStates)
{
    call("skipToHome");
    QObject *busy = byId(QStringLiteral("busy_popup"));
    UiScene scene(root);
    QMetaObject::invokeMethod(busy, "showPopupMultiInput", Q_ARG(QVariant, QStringLiteral("reportsMoved")),
                              Q_ARG(QVariant, 3), Q_ARG(QVariant, QStringLiteral("VantorPro/Reports")));
    EXPECT_TRUE(scene.showsText(QStringLiteral("3 Reports Moved To VantorPro/Reports")));
    EXPECT_TRUE(scene.showsText(QStringLiteral("Report Moved")));
    QMetaObject::invokeMethod(busy, "present", Q_ARG(QVariant, QStringLiteral("exportStart")));
    saveShot(QStringLiteral("busy-export.png"));
    EXPECT_FALSE(scene.itemWithText(QStringLiteral("Close"))) << "no way out while work goes on";
    QMetaObject::invokeMethod(busy, "present", Q_ARG(QVariant, QStringLiteral("usbNotReady")));
    QTest::qWait(100);
    saveShot(QStringLiteral("busy-usb.png"));
    QQuickItem *close = scene.itemWithText(QStringLiteral("Close"));
    ASSERT_TRUE(close);
    scene.tap(close);
    EXPECT_FALSE(busy->property("visible").toBool());
    EXPECT_EQ(warnings(), QString());
}

// Every tip and the page that shows it. A page of the window shows its own
// (its objectName is the key); the one entry page shows the tip of the value
// or name it asks for, the radio list the tip of the row whose options it
// offers. The run's pages (the pre-checks, the cycle screen) and the pages
// of a state (a redox or ion-selective calibration, a stable reading, a log
// entry's summary) are the run's, the calibration's and the logs'; the
// others belong to settings pages still to be built.
const char *const kTipPages[] = {
    "Burette", "Burette Installation Date", "Calibrate Electrode", "Calibrate pH(Calibration Point Successful screen)",
    "Calibrate pH(Calibration Result screen)", "Calibrate pH(Calibration Solution Standard Value Save screen)",
    "Calibrate pH(Override screen)", "Calibration Log", "Calibration Summary", "Create Method", "Data Logs",
    "Direct Measure Log", "Dispense Volume", "Display", "Edit Method", "Home", "MKA-Setup Titration", "Measure",
    "Measure ReadMode", "Methods", "New Titration Setup Process", "Settings", "Setup Electrode", "Setup Titrant",
    "Setup Titration", "Standardization Summary", "Titrant Log", "Titration Log", "Titration Summary"};
const char *const kTipEntries[][2] = { // key, the value asked for ("name:" a name)
    {"Blank Required", "blankRequiredValue"}, {"Conc. Input Mode", "concInputModeM"}, {"Endpoint Values", "endPointpH"},
    {"Fixed Reagent Weight", "reagentWeight"}, {"Max Total Titrant Volume", "titrationMaxVolume"},
    {"Maximum Dose ΔVmax", "deltaVmax"}, {"Maximum Response Time tmax", "tMax"}, {"Minimum Dose ΔVmin", "deltaVmin"},
    {"Minimum Response Time tmin", "tMin"}, {"Nominal Concentration", "nominalConcM"},
    {"Pre-dose Titrant Volume", "titrationPreDose"}, {"Pre-stir Duration", "titrantPreStir"},
    {"Reaction Ratio", "reactionRatio"}, {"Reagent Amount", "reagentAmountValue"},
    {"Reagent Concentration", "reagentConcentration"}, {"Reagent Molecular Weight", "reagentMolecularWeight"},
    {"Reagent Purity", "reagentPurity"}, {"Reagent Reaction Ratio", "reagentReactionRatio"},
    {"Reagent Volume", "reagentVolume"}, {"Result Units(F*Consumption mmol)", "resultUnitsValue"},
    {"Sample Amount", "fixedSampleVolume"}, {"Stability Criteria dE/dt", "stablityCriteria"},
    {"Standard Amount", "fixedStandAmountWeight"}, {"Standard Concentration", "standConcentrationM"},
    {"Standard Molecular Weight", "standMolecularWeight"}, {"Standard Purity", "standardPurity"},
    {"Standardization Reaction Ratio", "standReactionRatio"}, {"Target ΔE", "deltaE"}, {"Threshold", "threshold"},
    {"Titrant Concentration", "titrantConcentrationMka"}, {"Titrant Reaction Ratio", "titrantReactionRatio"},
    {"Electrode Name", "name:electrodeName"}, {"Sample ID-Auto-Incremental", "name:sampleIdPrefix"},
    {"Titrant ID", "name:titrantID"}, {"User Defined Standard Name", "name:standardName"},
    {"User Defined Titrant Name", "name:titrantName"}};
const char *const kTipOptions[] = {"ISE Type", "Result Units", "Standard Name", "Stir Speed", "Titrant Name"};
const char *const kTipsElsewhere[] = {"Cycle screen", "Titration Pre-Check", "Standardize Titrant Pre-Check",
                                      "Calibrate ISE", "Calibrate Redox", "Calibrate pH(Edit and Accept)",
                                      "Direct Measure Log Summary"};
const char *const kTipsNotYet[] = {
    "Blank Conc. Required", "Calibration Due", "Date", "Diagnostics", "Direct Measure Units", "Display Brightness",
    "Factory Reset", "Files and Info", "Firmware", "Instrument Name", "Language", "Maintenance Due", "Notifications",
    "Sample ID-Manual", "Screen Calibration", "Temperature Input", "Time"};

TEST_F(Screens, EveryTipHasThePageThatShowsIt)
{
    call("skipToHome");
    QObject *tips = byId(QStringLiteral("tips"));
    QStringList listed;
    for (const char *key : kTipPages)
        listed << QString::fromUtf8(key);
    for (const auto &entry : kTipEntries)
        listed << QString::fromUtf8(entry[0]);
    for (const char *key : kTipOptions)
        listed << QString::fromUtf8(key);
    for (const char *key : kTipsElsewhere)
        listed << QString::fromUtf8(key);
    for (const char *key : kTipsNotYet)
        listed << QString::fromUtf8(key);
    QStringList keys = tips->property("tipsDirectory").toMap().keys();
    keys.sort();
    listed.sort();
    EXPECT_EQ(listed, keys);

    const QList<QQuickItem *> items = root->findChildren<QQuickItem *>();
    for (const char *key : kTipPages) {
        EXPECT_TRUE(std::any_of(items.begin(), items.end(), [&](QQuickItem *i) {
            return i->objectName() == QString::fromUtf8(key) && i->property("hasInfo").toBool();
        })) << key;
    }
    // The entry page and the radio list, opened for each of theirs: the
    // corner of the page on show brings its tip.
    QList<QPair<QString, QString>> opened;
    for (const auto &entry : kTipEntries) {
        const QString what = QString::fromUtf8(entry[1]);
        opened << qMakePair(QString::fromUtf8(entry[0]),
                            what.startsWith(QLatin1String("name:"))
                                ? QStringLiteral("entryPage.openName('%1', '')").arg(what.mid(5))
                                : QStringLiteral("entryPage.openEntry('%1')").arg(what));
    }
    for (const char *key : kTipOptions)
        opened << qMakePair(QString::fromUtf8(key),
                            QStringLiteral("multipleOptionsPage.setMultipleOptions(0, ['One'], '%1', null); "
                                           "titrationStack.push(multipleOptionsPage)").arg(QString::fromUtf8(key)));
    for (const auto &page : opened) {
        QQmlExpression(qmlContext(root), root, page.second).evaluate();
        call("handleTipAction");
        EXPECT_TRUE(tips->property("shown").toBool()) << page.first.toStdString();
        EXPECT_EQ(tips->property("title").toString(), page.first);
        call("backButtonAction");
    }
    EXPECT_EQ(warnings(), QString());
}

// A finger's tap on a tip, its text included, closes it and reaches
// nothing beneath: here home's button under the tip's text.
TEST_F(Screens, ATapOnATipOnlyClosesIt)
{
    call("skipToHome");
    QTest::qWait(100);
    QQuickItem *button = UiScene(root).itemWithText(QStringLiteral("Start a New Titration"));
    ASSERT_TRUE(button);
    call("handleTipAction");
    QObject *tips = byId(QStringLiteral("tips"));
    ASSERT_TRUE(tips->property("shown").toBool());
    static QTouchDevice *finger = QTest::createTouchDevice();
    const QPoint at = button->mapToScene(QPointF(button->width() / 2, button->height() / 2)).toPoint();
    QTest::touchEvent(root, finger).press(0, at, root);
    QTest::touchEvent(root, finger).release(0, at, root);
    QTest::qWait(100);
    EXPECT_FALSE(tips->property("shown").toBool());
    EXPECT_EQ(byId(QStringLiteral("titrationStack"))->property("depth").toInt(), 1);
    EXPECT_EQ(warnings(), QString());
}

// The first row of the titration page: a long titrant name gives way, the
// concentration stays whole.
TEST_F(Screens, ALongTitrantNameLeavesItsConcentrationWhole)
{
    call("skipToHome");
    TitrantSetupModel *t = dm->titrantSetupModel();
    t->setTitrantName(QStringLiteral("User Defined"));
    t->setTitrantName_userDefined(QStringLiteral("WWWWWWWWWWWWWW"));
    t->setConcInputMode(QStringLiteral("Standardization"));
    t->setNominalConc(0.1234f);
    t->setNominalConc_Unit(QStringLiteral("M"));
    QQmlExpression(qmlContext(root), root, QStringLiteral("titration06.loadModelData(); titrationStack.push(titration06)"))
        .evaluate();
    QTest::qWait(100);
    saveShot(QStringLiteral("longtitrant.png"));
    UiScene scene(root);
    QQuickItem *concentration = scene.itemWithText(QStringLiteral("0.1234 M"));
    ASSERT_TRUE(concentration);
    EXPECT_FALSE(concentration->property("truncated").toBool());
    EXPECT_EQ(warnings(), QString());
}

// The driver's answers, as a script sees them.
TEST_F(Screens, DriverAnswers)
{
    call("skipToHome");
    driver->setWindow(root);
    QTest::qWait(100);
    auto run = [&](const QString &line) -> QPair<bool, QString> {
        QPair<bool, QString> answer{false, QStringLiteral("no answer")};
        bool done = false;
        driver->execute(line, [&](bool ok, const QString &text) {
            answer = {ok, text};
            done = true;
        });
        if (!QTest::qWaitFor([&] { return done; }, 8000))
            return answer;
        return answer;
    };
    struct Row {
        const char *line;
        bool ok;
        const char *text; // contained in the answer
    } rows[] = {
        {"expect Home", true, ""},
        {"expect \"Home\"", true, ""},
        {"absent Data Logs", true, ""},
        {"absent Hom", false, "\"Home\" is on show"},
        {"wait Data Logs 0.2", false, "no text contains \"Data Logs\" after 0.2 s; on show: "},
        {"wait Home 0", false, "time limit"},
        {"texts", true, "Home"},
        {"tap #settingsButton", true, ""},
        {"frame", true, "."}, // milliseconds from the tap to its frame, as 1.234
        {"wait Settings 2", true, ""},
        {"memory", true, "resident kB "},
        {"tap Settings", true, ""}, // a title takes the tap and does nothing
        {"shot relative.png", false, "absolute"},
        {"frobnicate", false, "unknown command"},
        {"nowarnings", true, ""},
    };
    for (const Row &row : rows) {
        const auto answer = run(QString::fromUtf8(row.line));
        EXPECT_EQ(answer.first, row.ok) << row.line << ": " << answer.second.toStdString();
        EXPECT_TRUE(answer.second.contains(QString::fromUtf8(row.text))) << row.line << ": " << answer.second.toStdString();
    }
    // Key presses reach the focused field.
    QQmlComponent fieldComponent(engine.get());
    fieldComponent.setData("import QtQuick 2.12\nTextInput { width: 200; height: 40; focus: true }", QUrl());
    auto *field = qobject_cast<QQuickItem *>(fieldComponent.create(qmlContext(root)));
    ASSERT_TRUE(field);
    field->setParentItem(root->contentItem());
    root->requestActivate();
    field->forceActiveFocus();
    EXPECT_TRUE(run(QStringLiteral("type Lab 1-b")).first);
    EXPECT_EQ(field->property("text").toString(), QStringLiteral("Lab 1-b"));
    delete field;
    // Icon glyphs are no texts; the home glyph's button is found by its id.
    EXPECT_FALSE(run(QStringLiteral("texts")).second.contains(QChar(0xe88a)));
    qmlWarning(root) << "a warning of the screens";
    const auto warned = run(QStringLiteral("nowarnings"));
    EXPECT_FALSE(warned.first);
    EXPECT_TRUE(warned.second.contains(QStringLiteral("a warning of the screens"))) << warned.second.toStdString();
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_IM_MODULE", QByteArray("qtvirtualkeyboard"));
    // Listing the tests needs no display either.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && qEnvironmentVariableIsEmpty("DISPLAY"))
        qputenv("QT_QPA_PLATFORM", QByteArray("offscreen"));
    // The offscreen platform has no OpenGL: the software renderer draws.
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
    // As the application: the run screens' charts draw through the widgets' graphics scene.
    QApplication app(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Material"));
    ::testing::InitGoogleTest(&argc, argv);
    TempSandbox sandbox;
    return RUN_ALL_TESTS();
}
