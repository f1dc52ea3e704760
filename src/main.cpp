// Brings the instrument application up: database first, then the splash, the
// back-end singletons in a fixed order, the context properties of the user
// interface, and the event loop. Each subsystem adds its own lines here in
// the order below; nothing here holds instrument logic.

#include "appconstants.h"
#include "controller/burettecontroller.h"
#include "controller/cmdserialport.h"
#include "controller/metercontroller.h"
#include "controller/mspcontroller.h"
#include "controller/reportcontroller.h"
#include "datamanagerbase.h"
#include "reportwriter.h"
#include "databasestartup.h"
#include "models/calibrationcyclemodel.h"
#include "models/calibrationlogmodel.h"
#include "models/calibrationmodel.h"
#include "models/electrodesetupmodel.h"
#include "models/measurementlogmodel.h"
#include "models/measurementmodel.h"
#include "models/mkaadditionmodel.h"
#include "models/mkatitrationcyclemodel.h"
#include "models/objectlistmodel.h"
#include "models/reportmodel.h"
#include "models/setupmodel.h"
#include "models/standardisationlogmodel.h"
#include "models/titrationcyclemodel.h"
#include "models/titrationlogmodel.h"
#include "models/titrationmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationsetupmodel.h"
#include "hostspeed.h"
#include "instrumentconsolehost.h"
#include "instrumentdescription.h"
#include "system/languageselector.h"
#include "system/networkdiscovery.h"
#include "system/platform.h"
#include "system/softwareupdater.h"
#include "productidentity.h"
#include "models/sysinfomodel.h"
#include "system/usb.h"
#include "system/usbhandler.h"
#include "resourcemanager.h"
#include "uidriver.h"
#include "titrationcontrollerbase.h"

#include <QApplication>
#include <QDebug>
#include <QFontDatabase>
#include <QMetaObject>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QtQml>

namespace {

// A host draws the screens with Qt Quick's software renderer: a host's
// display here is Xvfb, where OpenGL is Mesa's emulation on the processor,
// which costs about 85 MB of resident memory and compiles code for every new
// drawing state (docs/performance.md). QT_QUICK_BACKEND, when set, or
// KESTRUM_RENDERER=opengl chooses otherwise; the instrument keeps OpenGL.
void chooseSceneGraph()
{
    if (Platform::isTarget() || !qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND")
        || qgetenv("KESTRUM_RENDERER") == "opengl")
        return;
    QQuickWindow::setSceneGraphBackend(QSGRendererInterface::Software);
}

// Connects a signal to a function of the root window when the screens have
// that function; a missing one is logged, never a failure.
void connectToRoot(QObject *root, QObject *sender, const char *signal, const char *function)
{
    const QByteArray normalized = QMetaObject::normalizedSignature(function);
    if (!root || !sender || root->metaObject()->indexOfMethod(normalized.constData()) < 0) {
        qDebug() << "Kestrum: the user interface has no" << normalized;
        return;
    }
    QObject::connect(sender, signal, root, QByteArray("1" + normalized).constData());
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::addLibraryPath(QStringLiteral("."));

    // The database, before any application object exists.
    Platform::prepareSandbox();
    // A file of another schema version is brought forward, or saved to JSON
    // and emptied (then the service restarts, once per boot at most). A file
    // that can't be used is left alone and the session stores nothing.
    DatabaseStartup::open(Platform::path(QStringLiteral(DATABASE_FILE_NAME)));

    qputenv("QT_IM_MODULE", QByteArray("qtvirtualkeyboard"));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    chooseSceneGraph();
    QApplication app(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Material"));
    // Roboto for every text, those that name no family (the run screen's,
    // the charts') included: the faces are resources of the program.
    for (const char *face : {"light", "regular", "medium", "bold"})
        QFontDatabase::addApplicationFont(QStringLiteral(":/assets/Fonts/roboto.%1.ttf").arg(QLatin1String(face)));
    QFont font = QApplication::font();
    font.setFamily(QStringLiteral("Roboto"));
    QApplication::setFont(font);

    // The splash, visible while the back end is built.
    QQmlApplicationEngine engine_startup;
    engine_startup.load(QUrl(QStringLiteral("qrc:/startup.qml")));
    QQmlApplicationEngine engine;
    UiDriver *driver = UiDriver::fromEnvironment(&engine); // host builds only, KESTRUM_UI_DRIVER=1

    // Types that travel through list properties.
    qmlRegisterAnonymousType<TitrationCycleModel>("Kestrum", 1);
    qmlRegisterAnonymousType<CalibrationCycleModel>("Kestrum", 1);
    qmlRegisterAnonymousType<CalibrationModel>("Kestrum", 1);
    qmlRegisterAnonymousType<MeasurementModel>("Kestrum", 1);
    qmlRegisterAnonymousType<TitrationLogModel>("Kestrum", 1);
    qmlRegisterAnonymousType<CalibrationLogModel>("Kestrum", 1);
    qmlRegisterAnonymousType<StandardisationLogModel>("Kestrum", 1);
    qmlRegisterAnonymousType<MKATitrationCycleModel>("Kestrum", 1);
    qmlRegisterAnonymousType<MKAadditionModel>("Kestrum", 1);
    qmlRegisterAnonymousType<ObjectListModel>("Kestrum", 1);
    qmlRegisterType<MethodModel>("qmllisttest", 1, 0, "MethodModel");

    // The back end, strictly in this order: each constructor reaches for
    // those before it.
    DataManagerBase *dm = DataManagerBase::dmPtr(); // the data layer; the engine's from here on
    ResourceManager *rm = ResourceManager::rmPtr(); // USB disk, beeper, network, update
    // Network discovery (on loopback only in a host build) and its info file.
    auto *discovery = new NetworkDiscovery([dm, rm] { return describeInstrument(dm, rm); }, rm);
    // The info file follows the address, and the identity as it becomes known.
    QObject::connect(rm, &ResourceManager::ipAddressChanged, discovery, &NetworkDiscovery::updateJSONDiscoveryFile);
    // A host on the device port brings up the network gadget: the group is joined there too.
    QObject::connect(rm->usb, &USB::usbHostAttached, discovery, &NetworkDiscovery::setupNetworkInterfaces);
    QObject::connect(rm->usb, &USB::usbNetworkDeviceAttached, discovery, &NetworkDiscovery::setupNetworkInterfaces);
    QObject::connect(dm, &DataManagerBase::titratorModelStringChanged, discovery, &NetworkDiscovery::updateJSONDiscoveryFile);
    QObject::connect(dm, &DataManagerBase::mfgSerialNumChanged, discovery, &NetworkDiscovery::updateJSONDiscoveryFile);
    QObject::connect(dm->setupModel(), &SetupModel::valueChanged, discovery, &NetworkDiscovery::updateJSONDiscoveryFile);
    rm->refreshIpAddress();
    discovery->updateJSONDiscoveryFile();
    rm->setMethodList(dm->methodModel());
    rm->setSetup(dm->setupModel());
    // Methods kept over a factory reset come back once, and their files go.
    QObject::connect(rm, &ResourceManager::methodsRestored, dm, &DataManagerBase::getMethodsFromDB);
    rm->restoreMethods();
    // The software update compares with the running program and the slave's
    // firmware; firmware that came with the program is offered once the
    // slave has said its version.
    rm->softwareUpdater->setVersionSources([dm] { return dm->appVersionNumber(); },
                                           [dm] { return dm->identity()->mspVersion(); });
    QObject::connect(dm, &DataManagerBase::mspVersionUpdated, rm->softwareUpdater, &SoftwareUpdater::checkForFirmwareUpdate);
    QObject::connect(rm->softwareUpdater, &SoftwareUpdater::slaveVersionToRead, dm, &DataManagerBase::getLoadedMspVersion);
    dm->sysInfoModel()->setOsTreeHash(SoftwareUpdater::getCurrentOstreeHash());
    mspController *msp = mspController::mspcPtr(); // slave port, version query, 250 ms poll
    // The remote command port: watches for "/dev/ttyMFG"; an attached host has the slave's line.
    auto *consoleHost = new InstrumentConsoleHost(dm, rm);
    auto *csp = new cmdSerialPort(consoleHost);
    QObject::connect(csp, &cmdSerialPort::remoteMspCmdPacketReady, msp, &mspController::parseRmtCmdPacket);
    QObject::connect(csp, &cmdSerialPort::daqOff, msp, &mspController::mspStopDAQ);
    QObject::connect(csp, &cmdSerialPort::daqOn, msp, &mspController::mspStartDAQ);
    QObject::connect(msp, &mspController::mirrorFromMSP, csp, &cmdSerialPort::writeMspResponse);
    BuretteController *bc = BuretteController::bcPtr(); // its 250 ms state timer
    MeterController *mc = MeterController::mcPtr(dm); // the measurement engine, lent to the data layer
    TitrationControllerBase *tc = TitrationControllerBase::tcPtr(); // the run controller; sets the backlight
    consoleHost->setRunController(tc); // the remote port never stops the poll during a run
    // The end of a run sounds as the notification switches and the name say.
    QObject::connect(tc, &TitrationController::titrationNotification, rm, &ResourceManager::titrationNotificationResponse);
    // Host builds: KESTRUM_SPEED runs the clock faster, with the virtual instrument's.
    HostSpeed::apply(HostSpeed::fromEnvironment(), msp, bc, tc, dm->setupModel());

    dm->setTitrationQMLCoreVersion(dm->getTitrationCoreVersion());
    engine.rootContext()->setContextProperty(QStringLiteral("tc"), tc);
    engine.rootContext()->setContextProperty(QStringLiteral("dm"), dm);
    engine.rootContext()->setContextProperty(QStringLiteral("mc"), mc);
    engine.rootContext()->setContextProperty(QStringLiteral("rm"), rm);
    engine.rootContext()->setContextProperty(QStringLiteral("electrode"), dm->electrodeSetupModel());
    engine.rootContext()->setContextProperty(QStringLiteral("titrant"), dm->titrantSetupModel());
    engine.rootContext()->setContextProperty(QStringLiteral("titration"), dm->titrationSetupModel());
    engine.rootContext()->setContextProperty(QStringLiteral("method"), dm->methodModel());
    engine.rootContext()->setContextProperty(QStringLiteral("runtitration"), dm->titrationModel());
    engine.rootContext()->setContextProperty(QStringLiteral("setup"), dm->setupModel());
    engine.rootContext()->setContextProperty(QStringLiteral("measurement"), dm->measurementModel());
    auto *measurementTemp = new MeasurementModel();
    engine.rootContext()->setContextProperty(QStringLiteral("measurementTemp"), measurementTemp);
    engine.rootContext()->setContextProperty(QStringLiteral("calibrationCycleModel"), dm->calibrationCycleModel());
    auto *usbHandler = new UsbHandler();
    QObject::connect(rm->usb, &USB::usbDiskAttached, usbHandler, &UsbHandler::onDevInserted);
    QObject::connect(rm->usb, &USB::usbDiskDetached, usbHandler, &UsbHandler::onDevRemoved);
    engine.rootContext()->setContextProperty(QStringLiteral("usbHandler"), usbHandler);

    // The log models the screens save with.
    auto *measurementLogModel = new MeasurementLogModel();
    auto *calibrationLogModel = new CalibrationLogModel();
    auto *standardisationLogModel = new StandardisationLogModel();
    auto *titrationLogModel = new TitrationLogModel();
    calibrationLogModel->setCurrentMethod(dm->methodModel());
    dm->attachLogModel(standardisationLogModel);
    dm->attachLogModel(titrationLogModel);
    engine.rootContext()->setContextProperty(QStringLiteral("measurementLogModel"), measurementLogModel);
    engine.rootContext()->setContextProperty(QStringLiteral("calibrationLogModel"), calibrationLogModel);
    engine.rootContext()->setContextProperty(QStringLiteral("standardisationLogModel"), standardisationLogModel);
    engine.rootContext()->setContextProperty(QStringLiteral("titrationLogModel"), titrationLogModel);
    auto *ls = new LanguageSelector();
    // Reports show the instrument as it is at each export.
    auto *reportController = new ReportController(
        [dm] {
            ReportController::Instrument instrument;
            instrument.model = dm->titratorModelString();
            instrument.serialNumber = ReportController::storedSerialNumber();
            instrument.dateFormat = dm->setupModel()->dateFormat_Index();
            instrument.timeFormat = dm->setupModel()->timeFormat_Index();
            return instrument;
        },
        rm->printer, rm->usbDisk);
    engine.rootContext()->setContextProperty(QStringLiteral("ls"), ls);
    engine.rootContext()->setContextProperty(QStringLiteral("reportController"), reportController);
    engine.rootContext()->setContextProperty(QStringLiteral("reportModel"), dm->reports()->model());

    // Close the splash once every context property is set, then load the UI.
    if (!engine_startup.rootObjects().isEmpty()) {
        if (auto *splash = qobject_cast<QQuickWindow *>(engine_startup.rootObjects().first()))
            splash->close();
    }
    engine_startup.clearComponentCache();

    engine.load(QUrl(QStringLiteral("qrc:/main.qml")));
    if (engine.rootObjects().isEmpty()) {
        qDebug() << "Kestrum: main.qml did not load";
    } else {
        qDebug() << "Kestrum: user interface loaded";
        // Direct connections: a function of the screens runs inside the emit.
        QObject *root = engine.rootObjects().first();
        auto *window = qobject_cast<QQuickWindow *>(root);
        reportController->loadImageCapturingWindow(window);
        if (driver)
            driver->attach(window);
        connectToRoot(root, tc, SIGNAL(titrationCompletedSignal()), "titrationCompleted()");
        connectToRoot(root, tc, SIGNAL(newPoint(QVariant)), "newPoint(QVariant)");
        connectToRoot(root, mc, SIGNAL(qmlStableCalibration()), "stableCalibration()");
        connectToRoot(root, mc, SIGNAL(qmlUnStableCalibration()), "unStableCalibration()");
        connectToRoot(root, mc, SIGNAL(stopQmlCalibration()), "stopQmlCalibration()");
        connectToRoot(root, mc, SIGNAL(showQmlSlopeError()), "showSlopeError()");
        connectToRoot(root, bc, SIGNAL(qmlDispenseCompleted()), "qmlDispenseCompleted()");
        connectToRoot(root, bc, SIGNAL(qmlDispenseWait()), "qmlDispenseWait()");
        connectToRoot(root, bc, SIGNAL(qmlRinseCompleted()), "qmlRinseCompleted()");
        connectToRoot(root, dm, SIGNAL(exportQueryError(QVariant, QVariant)), "exportQueryError(QVariant,QVariant)");
        const char *notification = "calibrationNotificationQmlSlot(QVariant)";
        connectToRoot(root, dm->setupModel(), SIGNAL(notificationSignal(QVariant)), notification);
        connectToRoot(root, titrationLogModel, SIGNAL(notificationSignal(QVariant)), notification);
        connectToRoot(root, standardisationLogModel, SIGNAL(notificationSignal(QVariant)), notification);
        connectToRoot(root, calibrationLogModel, SIGNAL(notificationSignal(QVariant)), notification);
        connectToRoot(root, measurementLogModel, SIGNAL(notificationSignal(QVariant)), notification);
        connectToRoot(root, measurementLogModel, SIGNAL(logSaved()), "logSaved()");
        connectToRoot(root, rm, SIGNAL(usbIsReadyChanged()), "usbStatusChanged()");
        connectToRoot(root, rm, SIGNAL(usbMessage(QVariant, QVariant)), "showMessage(QVariant,QVariant)");
        connectToRoot(root, rm->softwareUpdater, SIGNAL(softwareUpdateCompleted(QVariant)), "qmlSoftwareUpdateCompleted(QVariant)");
        // A slave that does not take the burette's size: said on the screen.
        QObject::connect(bc, &BuretteController::buretteErrorOccured, root, [root](const QString &text) {
            QMetaObject::invokeMethod(root, "showMessage", Q_ARG(QVariant, QCoreApplication::translate("main", "Burette")),
                                      Q_ARG(QVariant, text));
        });
        // A database file that could not be used: the session stores nothing.
        if (!DatabaseStartup::message().isEmpty())
            QMetaObject::invokeMethod(root, "showMessage", Q_ARG(QVariant, QCoreApplication::translate("main", "Database")),
                                      Q_ARG(QVariant, DatabaseStartup::translatedMessage()));
        // The maintenance reminder is looked at once, at start-up.
        if (dm->setupModel()->isMaintainanceDueNotifOn())
            dm->setupModel()->startMaintainanceNotification();
    }
    // A stick already there at start counts as just attached.
    rm->usb->usbDevChanged();

    dm->updateProdType(QStringLiteral("All-in-one"));
    return app.exec();
}
