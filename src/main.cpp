// Brings the instrument application up: database first, then the splash, the
// back-end singletons in a fixed order, the context properties of the user
// interface, and the event loop. Each subsystem adds its own lines here in
// the order below; nothing here holds instrument logic.

#include "appconstants.h"
#include "controller/burettecontroller.h"
#include "controller/mspcontroller.h"
#include "datamanagerbase.h"
#include "datamigrator.h"
#include "models/electrodesetupmodel.h"
#include "models/titrantsetupmodel.h"
#include "models/titrationsetupmodel.h"
#include "system/platform.h"

#include <QApplication>
#include <QDebug>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QSqlDatabase>

int main(int argc, char *argv[])
{
    QCoreApplication::addLibraryPath(QStringLiteral("."));

    // The database, before any application object exists.
    Platform::prepareSandbox();
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    db.setDatabaseName(Platform::path(QStringLiteral(DATABASE_FILE_NAME)));
    db.open();
    // A file of another schema version is brought forward, or saved to JSON
    // and emptied; the latter needs a restart of the service.
    if (!DataMigrator::dmPtr()->migrate())
        DataMigrator::dmPtr()->restartApp();

    qputenv("QT_IM_MODULE", QByteArray("qtvirtualkeyboard"));
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication app(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Material"));

    // The splash, visible while the back end is built.
    QQmlApplicationEngine engine_startup;
    engine_startup.load(QUrl(QStringLiteral("qrc:/startup.qml")));
    QQmlApplicationEngine engine;

    // The back end, strictly in this order: each constructor reaches for
    // those before it.
    DataManagerBase *dm = DataManagerBase::dmPtr(); // the data layer; the engine's from here on
    mspController *msp = mspController::mspcPtr(); // slave port, version query, 250 ms poll
    BuretteController *bc = BuretteController::bcPtr(); // its 250 ms state timer
    Q_UNUSED(msp)
    Q_UNUSED(bc)

    dm->setTitrationQMLCoreVersion(dm->getTitrationCoreVersion());
    engine.rootContext()->setContextProperty(QStringLiteral("dm"), dm);
    engine.rootContext()->setContextProperty(QStringLiteral("electrode"), dm->electrodeSetupModel());
    engine.rootContext()->setContextProperty(QStringLiteral("titrant"), dm->titrantSetupModel());
    engine.rootContext()->setContextProperty(QStringLiteral("titration"), dm->titrationSetupModel());
    engine.rootContext()->setContextProperty(QStringLiteral("method"), dm->methodModel());

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
    }

    dm->updateProdType(QStringLiteral("All-in-one"));
    return app.exec();
}
