// The USB disk as the host profile has it: a sandbox folder that counts as
// inserted while its device node exists; mount and umount are recorded.
#include "models/methodbackup.h"
#include "models/methodmodel.h"
#include "resourcemanager.h"
#include "system/clock.h"
#include "system/screenshotfolder.h"
#include "system/usb.h"
#include "system/usbdir.h"
#include "system/usbdisk.h"
#include "system/usbfile.h"
#include "testdatabase.h"
#include "testdatalayer.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {

const Platform::Result kExit0{true, true, 0, {}, {}};
const QStringList kLiveTables{QStringLiteral("methodSetupTable"), QStringLiteral("electrodeSetupTable"),
                              QStringLiteral("titrantSetupTable"), QStringLiteral("titrationSetupTable")};

QJsonObject baseMethod()
{
    return QJsonDocument::fromJson(readTextFile(QStringLiteral(KESTRUM_SOURCE_DIR "/tests/e2e/ui/methods/base.json")).toUtf8())
        .object();
}

// A method file: the base method under another name, changed by `edit`.
QByteArray methodFile(const QString &name, const std::function<void(QJsonObject &)> &edit = nullptr)
{
    QJsonObject root = baseMethod();
    QJsonObject methods = root.value(QStringLiteral("methodSetupTable")).toObject();
    QJsonObject row = methods.begin().value().toObject();
    row.insert(QStringLiteral("methodName"), name);
    methods.insert(methods.begin().key(), row);
    root.insert(QStringLiteral("methodSetupTable"), methods);
    if (edit)
        edit(root);
    return QJsonDocument(root).toJson();
}

// Edits one column of the one row of a table of a method file.
std::function<void(QJsonObject &)> setColumn(const QString &table, const QString &column, const QJsonValue &value)
{
    return [=](QJsonObject &root) {
        QJsonObject rows = root.value(table).toObject();
        QJsonObject row = rows.begin().value().toObject();
        row.insert(column, value);
        rows.insert(rows.begin().key(), row);
        root.insert(table, rows);
    };
}

// Every column of a method and its parts but the keys, the times and the
// history that an import clears, by method name.
QVariantMap methodFields(const QString &name)
{
    static const QRegularExpression skipped(QStringLiteral("^(id|methodId|m?createdAt|m?updatedAt|last.*|calibratedElectrodeName)$"));
    QVariantMap fields;
    const QString id = QStringLiteral("(SELECT id FROM methodSetupTable WHERE methodName='%1')").arg(name);
    for (const QString &table : kLiveTables) {
        QSqlQuery q(QStringLiteral("SELECT * FROM %1 WHERE %2=%3").arg(table, table == kLiveTables.first() ? "id" : "methodId", id));
        EXPECT_TRUE(q.next()) << qPrintable(table) << " has no row of " << qPrintable(name);
        for (int i = 0; i < q.record().count(); ++i) {
            if (!skipped.match(q.record().fieldName(i)).hasMatch())
                fields.insert(table + '.' + q.record().fieldName(i), q.value(i));
        }
    }
    return fields;
}

} // namespace

class UsbDiskTest : public ::testing::Test
{
public:
    TestDatabase db;
    std::unique_ptr<DataManagerBase> dm = startedDataManager();
    ManualClock clock;
    MethodModel list{nullptr, false};
    std::unique_ptr<ResourceManager> rm;

    void SetUp() override
    {
        Clock::setSource(&clock);
        rm = std::make_unique<ResourceManager>();
        rm->setMethodList(&list);
    }
    void TearDown() override
    {
        rm.reset();
        Clock::setSource(nullptr);
        for (const char *program : {"mount", "umount"})
            Platform::setSimulatedResult(QString::fromLatin1(program), kExit0);
    }
    static QString disk(const QString &name = QString()) { return Platform::path(QStringLiteral("/media/usb/")) + name; }
    // Puts the stick in or pulls it, and lets the watch of /dev/ see it.
    void plug(bool in)
    {
        QSignalSpy seen(rm->usb, in ? &USB::usbDiskAttached : &USB::usbDiskDetached);
        const QString node = Platform::path(QStringLiteral("/dev/sda1"));
        ASSERT_TRUE(in ? writeTextFile(node, QString()) : QFile::remove(node));
        ASSERT_TRUE(waitUntil([&] { return seen.count() == 1; }));
    }
    // The debounce's time passes on the clock.
    void settle(int ms = USBDisk::debounceMs)
    {
        clock.advance(ms);
        rm->usbDisk->debounceTick();
    }
    void insert()
    {
        plug(true);
        settle();
        ASSERT_TRUE(rm->usbIsReady());
    }
    static int recorded(const QString &program)
    {
        return Platform::recordedCommands().filter(QRegularExpression(QStringLiteral("^%1 ").arg(program))).size();
    }
    static QStringList diskFiles()
    {
        QStringList files;
        QDirIterator it(disk(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (it.hasNext())
            files << it.next();
        return files;
    }
    // Installs a method file as the method library does.
    int install(const QByteArray &file)
    {
        QTemporaryDir dir;
        writeTextFile(dir.filePath(QStringLiteral("m.json")), QString::fromUtf8(file));
        MethodBackup backup(&list);
        return backup.importMethods(QDir(dir.path()), QStringLiteral("_import"), true, true) ? backup.installAll() : 0;
    }
    void putOnDisk(const QString &name, const QByteArray &content)
    {
        QFile f(disk(QStringLiteral("VantorPro/") + name));
        QDir().mkpath(QFileInfo(f).absolutePath());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(content);
    }
};

TEST_F(UsbDiskTest, TheDiskIsReadyOneDebounceAfterInsertionUnlessItFailsOrGoes)
{
    struct Case {
        const char *name;
        std::function<void(UsbDiskTest *)> duringDebounce;
        bool ready;
        int mounts;
    } cases[] = {
        {"left in", nullptr, true, 1},
        {"pulled within the debounce", [](UsbDiskTest *t) { t->plug(false); }, false, 0},
        {"attached again within the debounce", [](UsbDiskTest *t) { t->rm->usbDisk->startDebounceTimer(); }, true, 1},
        {"whose mount fails", [](UsbDiskTest *) { Platform::setSimulatedResult(QStringLiteral("mount"), {true, true, 32, {}, "bad superblock"}); }, false, 1},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.name);
        Platform::clearRecordedCommands();
        QSignalSpy changed(rm.get(), &ResourceManager::usbIsReadyChanged);
        plug(true);
        settle(USBDisk::debounceMs - 1);
        EXPECT_FALSE(rm->usbIsReady());
        if (c.duringDebounce)
            c.duringDebounce(this);
        settle(1);
        EXPECT_EQ(rm->usbIsReady(), c.ready);
        EXPECT_EQ(rm->usbNoError(), c.mounts == 0 || c.ready);
        EXPECT_EQ(recorded(QStringLiteral("mount")), c.mounts);
        EXPECT_EQ(recorded(QStringLiteral("umount")), c.ready ? 1 : 0) << "the arrival test lets go of its mount";
        EXPECT_GE(changed.count(), c.ready ? 1 : 0);
        if (rm->usb->isDiskPresent())
            plug(false);
        EXPECT_FALSE(rm->usbIsReady());
        EXPECT_TRUE(rm->usbNoError()) << "pulling clears the error";
        TearDown();
        SetUp();
    }
}

TEST_F(UsbDiskTest, NothingIsWrittenToThePulledDisk)
{
    ASSERT_EQ(install(methodFile(QStringLiteral("Acetic"))), 1);
    insert();
    auto held = std::make_unique<USBFile>(QStringLiteral("/VantorPro/held.txt"));
    plug(false);
    const QStringList before = diskFiles();
    QString error;
    EXPECT_EQ(rm->methodExport(), 0);
    EXPECT_FALSE(rm->copyDatabaseToUsb());
    EXPECT_FALSE(rm->methodImport());
    EXPECT_TRUE(ScreenshotFolder::save(QImage(8, 8, QImage::Format_RGB32), rm->usbDisk, &error).isEmpty());
    EXPECT_FALSE(held->open(QIODevice::WriteOnly)) << "a file held from before the pull";
    EXPECT_EQ(diskFiles(), before);
}

TEST_F(UsbDiskTest, HoldersShareOneMountAndAnOldHolderCannotUnmountANewDisk)
{
    EXPECT_FALSE(USBDir(QStringLiteral("/VantorPro")).isUsable()) << "no stick";
    EXPECT_FALSE(rm->usbDisk->hasError()) << "no mount was tried";
    insert();
    Platform::clearRecordedCommands();
    {
        USBDir outer(QStringLiteral("/VantorPro"));
        USBFile inner(QStringLiteral("report.csv"));
        EXPECT_EQ(rm->usbDisk->mountCount(), 2);
        EXPECT_EQ(inner.fileName(), disk(QStringLiteral("report.csv")));
    }
    EXPECT_EQ(Platform::recordedCommands().size(), 2) << Platform::recordedCommands().join(" | ").toStdString();
    EXPECT_FALSE(rm->usbDisk->isMounted());

    auto old = std::make_unique<USBDir>(QStringLiteral("/VantorPro"));
    plug(false);
    plug(true);
    settle();
    USBDir fresh(QStringLiteral("/VantorPro"));
    old.reset();
    EXPECT_TRUE(fresh.isUsable());
    EXPECT_EQ(rm->usbDisk->mountCount(), 1);

    Platform::setSimulatedResult(QStringLiteral("umount"), {true, true, 32, {}, "target is busy"});
    rm->usbDisk->unmount();
    EXPECT_TRUE(rm->usbDisk->isMounted()) << "a busy stick stays mounted";
    EXPECT_EQ(rm->usbDisk->mountCount(), 0);
}

TEST_F(UsbDiskTest, AHostOnTheDevicePortBringsUpTheNetworkGadget)
{
    const QString bus = Platform::path(QStringLiteral("/dev/bus/usb/002"));
    ASSERT_TRUE(QDir(bus).removeRecursively());
    ASSERT_TRUE(waitUntil([] { return recorded(QStringLiteral("/usr/bin/connmanctl")) == 1; }));
    EXPECT_TRUE(Platform::recordedCommands().contains(QStringLiteral("/usr/bin/connmanctl enable gadget")));
    ASSERT_TRUE(QDir().mkpath(bus));
    ResourceManager again; // a host detached at start brings nothing up
    EXPECT_EQ(recorded(QStringLiteral("/usr/bin/connmanctl")), 1);
}

TEST_F(UsbDiskTest, ScreenshotsGoToTheScreenshotFolderUnderNamesOfTheirOwn)
{
    insert();
    QString error;
    const QImage image(64, 48, QImage::Format_RGB32);
    const QString first = ScreenshotFolder::save(image, rm->usbDisk, &error);
    const QString second = ScreenshotFolder::save(image, rm->usbDisk, &error);
    EXPECT_EQ(first.toStdString(), disk("VantorPro/Screenshots/01_01_2026_12_00_01.jpg").toStdString());
    EXPECT_EQ(second.toStdString(), disk("VantorPro/Screenshots/01_01_2026_12_00_01_2.jpg").toStdString());
    EXPECT_EQ(QImage(second).size(), image.size());
    EXPECT_EQ(diskFiles().size(), 2) << "no temporary file is left";
}

TEST_F(UsbDiskTest, ExportedMethodsComeBackFieldForFieldOnAFreshDatabase)
{
    const QStringList names{QStringLiteral("Acetic"), QStringLiteral("Second one")};
    for (const QString &name : names)
        ASSERT_EQ(install(methodFile(name)), 1);
    std::map<QString, QVariantMap> before;
    for (const QString &name : names)
        before[name] = methodFields(name);
    insert();
    EXPECT_EQ(rm->methodExport(), 2) << "the working method is not exported";
    const QStringList exported = QDir(disk("VantorPro/methods_backup")).entryList(QDir::Files);
    EXPECT_EQ(exported, QStringList({"Acetic.json", "Second one.json"}));
    EXPECT_TRUE(rm->copyDatabaseToUsb());
    EXPECT_EQ(rm->versionStatusQml(), QStringLiteral("Process Complete"));
    EXPECT_TRUE(QFileInfo(disk("VantorPro/database_backup/KestrumDB")).size() > 0);

    // Another instrument: a fresh database.
    rm.reset();
    dm.reset();
    db.close();
    ASSERT_TRUE(QFile::remove(db.path()));
    ASSERT_TRUE(db.open());
    dm = startedDataManager();
    SetUp();
    rm->usb->usbDevChanged(); // the stick was there at the start of the new instrument
    settle();
    ASSERT_TRUE(rm->methodImport());
    EXPECT_EQ(TestDatabase::rowCount(QStringLiteral("methodSetupTable_import")), 2);
    EXPECT_EQ(MethodBackup(&list).installAll(), 2);
    for (const QString &name : names)
        EXPECT_EQ(methodFields(name), before[name]) << qPrintable(name);
    EXPECT_EQ(exported, QDir(disk("VantorPro/methods_backup")).entryList(QDir::Files)) << "the files stay";
}

TEST_F(UsbDiskTest, NamesBecomeFileNamesThatStayOnTheDisk)
{
    ASSERT_EQ(install(methodFile(QStringLiteral("Acetic"))), 1);
    ASSERT_EQ(install(methodFile(QStringLiteral("acetic"))), 1);
    ASSERT_TRUE(TestDatabase::exec("UPDATE methodSetupTable SET methodName='../a/b' WHERE methodName='Acetic'"));
    insert();
    EXPECT_EQ(rm->methodExport(), 2);
    EXPECT_EQ(QDir(disk("VantorPro/methods_backup")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList({"_._a_b.json", "acetic.json"}));
    QSet<QString> taken;
    const struct {
        const char *name;
        const char *file;
    } cases[] = {{"a/b", "a_b"}, {"A/B", "A_B_2"}, {"..", "_."}, {"", "method"}, {"tab\there", "tab_here"}, {"c:\\x*?", "c__x__"}};
    for (const auto &c : cases)
        EXPECT_EQ(MethodBackup::safeFileName(QString::fromUtf8(c.name), &taken), QString::fromUtf8(c.file)) << c.name;
    // Names on the disk stay on the disk.
    const struct {
        const char *name;
        QString path;
    } places[] = {
        {"report.csv", disk("report.csv")},
        {"/VantorPro/Screenshots/", disk("VantorPro/Screenshots")},
        {"/media/usb/a.json", disk("a.json")},
        {"../../etc/passwd", ""},
        {"/VantorPro/../../x", ""},
    };
    for (const auto &c : places)
        EXPECT_EQ(USBDisk::resolve(QString::fromUtf8(c.name)).toStdString(), c.path.toStdString()) << c.name;
    EXPECT_EQ(USBDisk::resolve(disk("x.png")), disk("x.png")) << "a full path stays as it is";
}

TEST_F(UsbDiskTest, HostileMethodFilesLeaveTheLiveTablesAsTheyWereAndSaySo)
{
    ASSERT_EQ(install(methodFile(QStringLiteral("Acetic"))), 1);
    const QByteArray good = methodFile(QStringLiteral("Fine"));
    const QJsonValue methodId = baseMethod().value("methodSetupTable").toObject().begin().value().toObject().value("id");
    const struct {
        const char *name;
        QByteArray file;
    } cases[] = {
        {"truncated", good.left(good.size() / 2)},
        {"oversized", good + QByteArray(2 * 1024 * 1024, ' ')},
        {"SQL in its name", methodFile(QStringLiteral("x'); DROP TABLE methodSetupTable;--"))},
        {"SQL as a table", methodFile("A", [](QJsonObject &r) { r.insert("methodSetupTable; DROP TABLE x", r.value("methodSetupTable")); })},
        {"text for a number", methodFile("B", setColumn("methodSetupTable", "titrantConcentration", "lots"))},
        {"an object for a value", methodFile("C", setColumn("electrodeSetupTable", "electrodeType", QJsonObject{{"a", 1}}))},
        {"a part of another method", methodFile("D", setColumn("electrodeSetupTable", "methodId", methodId.toInt() + 1))},
        {"two methods under one id", methodFile("E", [](QJsonObject &r) {
             QJsonObject rows = r.value("methodSetupTable").toObject();
             rows.insert("1", rows.begin().value());
             r.insert("methodSetupTable", rows);
         })},
    };
    insert();
    const QString live = db.dump(kLiveTables);
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        QDir(disk("VantorPro")).removeRecursively();
        putOnDisk(QStringLiteral("methods_backup/hostile.json"), c.file);
        QSignalSpy message(rm.get(), &ResourceManager::usbMessage);
        EXPECT_FALSE(rm->methodImport());
        EXPECT_EQ(MethodBackup(&list).installAll(), 0);
        ASSERT_EQ(message.count(), 1);
        EXPECT_TRUE(message.first().at(1).toString().startsWith("hostile.json: ")) << qPrintable(message.first().at(1).toString());
        EXPECT_EQ(db.dump(kLiveTables), live);
        EXPECT_TRUE(QFile::exists(disk("VantorPro/methods_backup/hostile.json")));
    }
}

TEST_F(UsbDiskTest, KeptMethodsComeBackAfterTheFactoryResetAndTheirFolderEmpties)
{
    const struct {
        const char *name;
        bool backupBlocked;
    } cases[] = {{"kept", false}, {"backup cannot be written", true}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.name);
        ASSERT_EQ(install(methodFile(QStringLiteral("Kept A"))) + install(methodFile(QStringLiteral("Kept B"))), 2);
        const QString folder = ResourceManager::methodsBackupFolder();
        if (c.backupBlocked) {
            QDir(folder).removeRecursively();
            ASSERT_TRUE(writeTextFile(folder, QStringLiteral("a file where the folder goes")));
        }
        EXPECT_EQ(rm->wipeDatabase(true), !c.backupBlocked);
        EXPECT_FALSE(c.backupBlocked && (rm->backupMethods() || rm->wipeDatabase())) << "the backup, then the wipe";
        EXPECT_EQ(MethodModel::methodCount(), c.backupBlocked ? 2 : 0) << "no wipe without its backup";
        // The restart.
        rm.reset();
        dm.reset();
        ASSERT_TRUE(db.reopen());
        dm = startedDataManager();
        SetUp();
        EXPECT_EQ(rm->restoreMethods(), c.backupBlocked ? 0 : 2);
        EXPECT_EQ(MethodModel::methodCount(), 2);
        EXPECT_TRUE(QDir(folder).entryList(QDir::Files).isEmpty());
        for (const QString &name : {QStringLiteral("Kept A"), QStringLiteral("Kept B")}) {
            EXPECT_EQ(TestDatabase::rowCount("methodSetupTable", QStringLiteral("methodName='%1'").arg(name)), 1);
        }
        QFile::remove(folder);
        ASSERT_TRUE(TestDatabase::exec("DELETE FROM methodSetupTable WHERE id != 99999"));
    }
}

TEST_F(UsbDiskTest, AnOldSingleFileBackupBecomesOneFilePerMethodOnImport)
{
    QJsonObject old;
    for (int k : {1, 2}) {
        const QJsonObject doc = QJsonDocument::fromJson(methodFile(QStringLiteral("Old %1").arg(k))).object();
        for (const QString &table : kLiveTables) {
            QJsonObject row = doc.value(table).toObject().begin().value().toObject();
            row.insert("id", k);
            row.insert("methodId", k);
            QJsonObject rows = old.value(table).toObject();
            rows.insert(QString::number(k), row);
            old.insert(table, rows);
        }
    }
    putOnDisk(QStringLiteral("methods_backup.json"), QJsonDocument(old).toJson());
    insert();
    ASSERT_TRUE(rm->methodImport());
    EXPECT_EQ(list.methodList().size(), 2);
    EXPECT_EQ(QDir(disk("VantorPro/methods_backup")).entryList(QDir::Files), QStringList({"Old 1.json", "Old 2.json"}));
    EXPECT_FALSE(QFile::exists(disk("VantorPro/methods_backup.json")));
}
