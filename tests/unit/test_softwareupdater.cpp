// The software update from a USB disk as the host profile has it: the disk
// is a sandbox folder, the program is the sandbox's program path, the flash
// tool is a stand-in script that prints what the real tool prints.
#include "resourcemanager.h"
#include "system/clock.h"
#include "system/platform.h"
#include "system/programinstaller.h"
#include "system/softwareupdater.h"
#include "system/updateversion.h"
#include "system/usb.h"
#include "system/usbdisk.h"
#include "testdatabase.h"
#include "updatecommand.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextStream>

#include <gtest/gtest.h>

#include <memory>

TEST(UpdateVersion, NamesAndComparisons)
{
    const struct {
        const char *name;
        const char *firmware;
        const char *application;
    } names[] = {
        {"KestrumSlave_v1.35.hex", "1.35", "0.0.0.0"},
        {"KestrumSlave_1.35.hex", "0.0", "0.0.0.0"}, // the filter's, not the rule's
        {"Kestrum_V3.3.0-12", "0.0", "3.3.0.12"},
        {"Kestrum_V3.3.0", "0.0", "3.3.0."},
        {"V3.2.0", "0.0", "3.2.0."},
        {"Kestrum_V3.3", "0.0", "0.0.0.0"},
        {"vantorProV400Updates_V3.4.0.swu", "0.0", "3.4.0."},
        {"vantorProV400Updates_3.4.0.swu", "0.0", "0.0.0.0"}, // "400Updates_3" is no number: the version follows a V
        {"Kestrum_V1.1.0-2';touch x;'", "0.0", "1.1.0."},
    };
    for (const auto &n : names) {
        EXPECT_EQ(UpdateVersion::firmwareVersion(n.name), n.firmware) << n.name;
        EXPECT_EQ(UpdateVersion::applicationVersion(n.name), n.application) << n.name;
    }
    const struct {
        const char *a;
        const char *b;
        bool newer;
    } pairs[] = {
        {"1.35", "1.34", true},
        {"1.35", "1.35", false},
        {"1.34", "1.35", false},
        {"3.3.0.12", "3.2.0.", true}, // 3.3.0-12 against V3.2.0
        {"3.2.0.", "3.2.0.", false},
        {"1.100", "1.99", true},      // 1100 against 1099: the longer number is newer
        {"1.99", "1.100", false},
        {"2.0", "1.999", true},
        {"1.2.0", "1.1", false},      // a different number of parts is never newer
        {"1.1", "1.2.0", false},
        {"1.35", "Unknown Version", false},
        {"0.0", "0.0", false},
        {"99999999999999999999.0", "1.0", false}, // beyond 64 bits
        {"1.0.0.0.0.0.0.1", "1.0.0.0.0.0.0.0", false},
    };
    for (const auto &p : pairs)
        EXPECT_EQ(UpdateVersion::isNewer(p.a, p.b), p.newer) << p.a << " newer than " << p.b;
}

TEST(UpdateVersion, VantorCliTellsWhatADiskOffers)
{
    QTemporaryDir folder;
    for (const char *name : {"Kestrum_V1.1.0-3", "Kestrum_V1.2.0", "Kestrum_V1.0", "KestrumSlave_v1.08.hex",
                             "KestrumSlave_v1.100.hex", "vantorProV400Updates_V1.1.0.swu", "notes.txt"})
        ASSERT_TRUE(writeTextFile(folder.filePath(name), "x"));
    QString text;
    QString errors;
    QTextStream out(&text);
    QTextStream err(&errors);
    EXPECT_EQ(UpdateCommand::run({folder.path(), "--slave", "1.99", "--application", "V1.1.0"}, out, err), 0);
    out.flush();
    EXPECT_EQ(qPrintable(text), QString("firmware KestrumSlave_v1.08.hex 1.08 not newer\n"
                    "firmware KestrumSlave_v1.100.hex 1.100 newer\n"
                    "application Kestrum_V1.0 0.0.0.0 not newer\n"
                    "application Kestrum_V1.1.0-3 1.1.0.3 newer\n" // 1.1.0.3 against 1.1.0.0
                    "application Kestrum_V1.2.0 1.2.0. newer\n"
                    "system vantorProV400Updates_V1.1.0.swu 1.1.0. not newer\n"
                    "chosen: firmware KestrumSlave_v1.100.hex, application Kestrum_V1.2.0\n"));
    EXPECT_EQ(UpdateCommand::run({folder.path(), "--slave", "1.100", "--application", "V1.2.0"}, out, err), 1);
    EXPECT_EQ(UpdateCommand::run({folder.path() + "/none"}, out, err), 2);
}

TEST(SoftwareUpdater, FlashToolWords)
{
    const struct {
        const char *output;
        const char *status;
        int progress;
    } rows[] = {
        {"Erasing...", "Updating firmware: Erasing...", 0},
        {"Programming...", "Updating firmware: Programming...", 0},
        {"Programming... 45%", "Updating firmware: Programming...", 45},
        {" 7% done", "before", 7},
        {"Programming: 100%\nProgramming: OK", "Firmware Updated Successfully!", 100},
        {"1250%", "before", 100}, // three digits at most, and at most 100
        {"%", "before", 33},
        {"nothing of note", "before", 33},
    };
    for (const auto &r : rows) {
        QString status = QStringLiteral("before");
        int progress = 33;
        SoftwareUpdater::parseFlashOutput(QString::fromLatin1(r.output), &status, &progress);
        EXPECT_EQ(status, r.status) << r.output;
        EXPECT_EQ(progress, r.progress) << r.output;
    }
}

TEST(ProgramInstaller, ElfHeadersAndAFailedInstallKeepsTheProgram)
{
    auto header = [](char cls, char data, unsigned char lo, unsigned char hi) {
        QByteArray h(64, '\0');
        h.replace(0, 4, "\x7f" "ELF");
        h[4] = cls;
        h[5] = data;
        h[18] = char(lo);
        h[19] = char(hi);
        return h;
    };
    EXPECT_EQ(Platform::elfMachine(header(1, 1, 40, 0)), 40);   // 32-bit ARM
    EXPECT_EQ(Platform::elfMachine(header(2, 1, 183, 0)), 183); // AArch64
    EXPECT_EQ(Platform::elfMachine(header(2, 2, 0, 62)), 62);   // big endian
    EXPECT_EQ(Platform::elfMachine(header(3, 1, 40, 0)), -1);
    EXPECT_EQ(Platform::elfMachine("#!/bin/sh\necho hello\n"), -1);
    EXPECT_EQ(Platform::elfMachine(header(1, 1, 40, 0).left(12)), -1);
    QFile self(QCoreApplication::applicationFilePath());
    ASSERT_TRUE(self.open(QIODevice::ReadOnly));
    EXPECT_EQ(Platform::elfMachine(self.read(64)), Platform::ownElfMachine());

    TempSandbox sandbox;
    const QString target = Platform::programPath();
    ASSERT_TRUE(writeTextFile(target, QStringLiteral("old program")));
    ASSERT_TRUE(writeTextFile(sandbox.root() + "/new", QStringLiteral("new program")));
    QString why;
    EXPECT_FALSE(ProgramInstaller::install(sandbox.root() + "/new", target, 3, &why)) << "not the size seen on the disk";
    EXPECT_FALSE(ProgramInstaller::install(sandbox.root() + "/missing", target, -1, &why));
    EXPECT_EQ(readTextFile(target), "old program");
    EXPECT_FALSE(QFile::exists(ProgramInstaller::temporaryFile(target)));
    ASSERT_TRUE(ProgramInstaller::install(sandbox.root() + "/new", target, 11, &why)) << qPrintable(why);
    EXPECT_EQ(readTextFile(target), "new program");
    EXPECT_TRUE(QFileInfo(target).isExecutable());
}

class SoftwareUpdateTest : public ::testing::Test
{
public:
    TestDatabase db;
    ManualClock clock;
    std::unique_ptr<ResourceManager> rm;
    SoftwareUpdater *updater = nullptr;
    QString slave = QStringLiteral("1.07");

    void SetUp() override
    {
        Clock::setSource(&clock);
        Platform::prepareSandbox();
        Platform::clearRecordedCommands();
        rm = std::make_unique<ResourceManager>();
        updater = rm->softwareUpdater;
        updater->setVersionSources([] { return QStringLiteral("V1.0.0"); }, [this] { return slave; });
        ASSERT_TRUE(writeTextFile(Platform::programPath(), QStringLiteral("old program")));
        ASSERT_TRUE(TestDatabase::exec(QStringLiteral("CREATE TABLE setupTable (id INTEGER)")));
    }
    void TearDown() override
    {
        rm.reset();
        Clock::setSource(nullptr);
    }
    static QString disk(const QString &name) { return Platform::path(QStringLiteral("/media/usb/")) + name; }
    static QString program() { return readTextFile(Platform::programPath()); }
    void plug(bool in)
    {
        QSignalSpy seen(rm->usb, in ? &USB::usbDiskAttached : &USB::usbDiskDetached);
        const QString node = Platform::path(QStringLiteral("/dev/sda1"));
        ASSERT_TRUE(in ? writeTextFile(node, QString()) : QFile::remove(node));
        ASSERT_TRUE(waitUntil([&] { return seen.count() == 1; }));
        if (in) {
            clock.advance(USBDisk::debounceMs);
            rm->usbDisk->debounceTick();
            ASSERT_TRUE(rm->usbIsReady());
        }
    }
    // The stand-in of the flash tool: says what the real one says, notes its arguments.
    void flashTool(int exitCode)
    {
        const QString script = Platform::standInFolder() + "/python";
        ASSERT_TRUE(writeTextFile(script, QStringLiteral("#!/bin/sh\n"
                                                         "printf '%s\\n' \"$*\" >> \"$0.calls\"\n"
                                                         "echo 'Erasing...' >&2\n"
                                                         "echo 'Programming...' >&2\n"
                                                         "echo 'Programming: 60%' >&2\n"
                                                         "[ %1 = 0 ] && echo 'Programming: OK' >&2\nexit %1\n")
                                               .arg(exitCode)));
        QFile::setPermissions(script, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    static QStringList flashCalls()
    {
        return readTextFile(Platform::standInFolder() + "/python.calls").split('\n', Qt::SkipEmptyParts);
    }
    // Checks the disk and waits until the copy has ended.
    void check()
    {
        rm->checkUsbForUpdate();
        ASSERT_TRUE(waitUntil([&] { return !updater->checkingUsb(); }));
    }
    bool updateAndWait()
    {
        QSignalSpy done(updater, &SoftwareUpdater::softwareUpdateCompleted);
        rm->updateSoftware();
        return waitUntil([&] { return done.count() == 1; }) && done.first().first().toBool();
    }
};

TEST_F(SoftwareUpdateTest, NewerApplicationAndFirmwareAreInstalledFirmwareFirst)
{
    const QString newProgram = QStringLiteral("new program \x01\x02 bytes");
    for (const auto &file : {std::make_pair("Kestrum_V1.1.0-3", newProgram), std::make_pair("Kestrum_V1.0.9", QString("older")),
                             std::make_pair("Kestrum_V0.9.0-1", QString("oldest")),
                             std::make_pair("KestrumSlave_v1.08.hex", QString(":hex newer")),
                             std::make_pair("KestrumSlave_v1.07.hex", QString(":hex same"))})
        ASSERT_TRUE(writeTextFile(disk(file.first), file.second));
    flashTool(0);
    plug(true);
    check();
    EXPECT_EQ(updater->applicationFile(), "Kestrum_V1.1.0-3");
    EXPECT_EQ(updater->firmwareFile(), "KestrumSlave_v1.08.hex");
    EXPECT_EQ(rm->updateButtonStatus(), "Update System");
    EXPECT_EQ(rm->versionStatusQml(), "New Application Available!");
    EXPECT_EQ(rm->updateFiles(), "KestrumSlave_v1.08.hex, Kestrum_V1.1.0-3");
    EXPECT_TRUE(rm->mspUpdateAvail());
    EXPECT_EQ(rm->usbDisk->mountCount(), 0) << "the disk is let go after the copy";

    QSignalSpy progress(updater, &SoftwareUpdater::progressChanged);
    QList<int> seen;
    QObject::connect(updater, &SoftwareUpdater::progressChanged, [&] { seen << updater->progress(); });
    ASSERT_TRUE(updateAndWait());
    EXPECT_TRUE(seen.contains(60));
    EXPECT_EQ(rm->versionStatusQml(), "Updating firmware: Rebooting");
    EXPECT_EQ(flashCalls(), QStringList{"-m msp430.bsl5.uart -p " + Platform::path("/dev/ttymxc1") + " -e -P "
                                        + Platform::path("/var/Kestrum/KestrumSlave_v1.08.hex") + " -r"});
    EXPECT_EQ(Platform::recordedCommands().filter("python -m msp430.bsl5.uart").size(), 1);
    EXPECT_TRUE(Platform::recordedCommands().contains("/sbin/reboot"));
    EXPECT_EQ(program(), "old program") << "the firmware goes first";
    EXPECT_FALSE(rm->mspUpdateAvail());

    ASSERT_TRUE(updateAndWait());
    EXPECT_EQ(program(), newProgram);
    EXPECT_TRUE(QFileInfo(Platform::programPath()).isExecutable());
    EXPECT_TRUE(Platform::recordedCommands().contains("systemctl restart b2qt"));
    EXPECT_TRUE(QFile::exists(Platform::path("/var/Kestrum/database_backup.json"))) << "the database is saved first";
    EXPECT_EQ(flashCalls().size(), 1);
}

TEST_F(SoftwareUpdateTest, AFailedFlashLeavesTheFirmwareOfferedAndTheApplicationRunning)
{
    ASSERT_TRUE(writeTextFile(disk("KestrumSlave_v1.10.hex"), ":hex"));
    flashTool(1);
    plug(true);
    check();
    EXPECT_EQ(rm->updateButtonStatus(), "Update Firmware");
    EXPECT_EQ(rm->versionStatusQml(), "New firmware available!");
    EXPECT_FALSE(updateAndWait());
    EXPECT_EQ(rm->versionStatusQml(), "Firmware update failed. The running version stays.");
    EXPECT_EQ(rm->updateButtonStatus(), "Update Firmware") << "the same button tries again";
    EXPECT_FALSE(Platform::recordedCommands().contains("/sbin/reboot"));
    flashTool(0);
    EXPECT_TRUE(updateAndWait());
    EXPECT_EQ(flashCalls().size(), 2);
}

TEST_F(SoftwareUpdateTest, PullingTheDiskDuringTheCopyKeepsTheOldProgram)
{
    ASSERT_TRUE(writeTextFile(disk("Kestrum_V2.0.0"), QString(200000, 'x')));
    plug(true);
    rm->checkUsbForUpdate();
    ASSERT_TRUE(updater->checkingUsb());
    EXPECT_EQ(rm->updateButtonStatus(), "Checking USB...");
    // Pulled before the copy's end reaches the updater: the watch is told at once.
    ASSERT_TRUE(QFile::remove(Platform::path(QStringLiteral("/dev/sda1"))));
    rm->usb->usbDevChanged();
    ASSERT_TRUE(waitUntil([&] { return !updater->checkingUsb(); }));
    EXPECT_EQ(rm->versionStatusQml(), "Update failed: the USB disk was removed during the copy.");
    EXPECT_EQ(rm->updateButtonStatus(), "Check for Updates");
    EXPECT_FALSE(QFile::exists(Platform::path("/var/Kestrum/Kestrum_V2.0.0")));
    rm->updateSoftware();
    EXPECT_EQ(program(), "old program");
    EXPECT_FALSE(Platform::recordedCommands().contains("systemctl restart b2qt"));
}

TEST_F(SoftwareUpdateTest, AStagedProgramThatIsNotWhatTheDiskHadIsNotInstalled)
{
    ASSERT_TRUE(writeTextFile(disk("Kestrum_V1.0.1"), "new program"));
    plug(true);
    check();
    ASSERT_TRUE(writeTextFile(Platform::path("/var/Kestrum/Kestrum_V1.0.1"), "new program, cut sh"));
    EXPECT_FALSE(updateAndWait());
    EXPECT_EQ(rm->versionStatusQml(), "Application update failed. The running version stays.");
    EXPECT_EQ(program(), "old program");
    EXPECT_FALSE(QFile::exists(ProgramInstaller::temporaryFile(Platform::programPath())));
    EXPECT_FALSE(rm->updateInProgress());
    EXPECT_FALSE(Platform::recordedCommands().contains("systemctl restart b2qt"));
}

TEST_F(SoftwareUpdateTest, ANameWithAQuoteAndASemicolonIsOnlyAName)
{
    const QString name = QStringLiteral("Kestrum_V1.1.0-2';touch pwned;echo '");
    ASSERT_TRUE(writeTextFile(disk(name), "quoted program"));
    plug(true);
    check();
    EXPECT_EQ(updater->applicationFile(), name);
    ASSERT_TRUE(updateAndWait());
    EXPECT_EQ(program(), "quoted program");
    QDirIterator it(Platform::sandboxRoot(), {"pwned"}, QDir::Files, QDirIterator::Subdirectories);
    EXPECT_FALSE(it.hasNext());
    EXPECT_FALSE(QFile::exists(QDir::current().filePath("pwned")));
}

TEST_F(SoftwareUpdateTest, OnlyASystemImageAsksForARebootUntilTheDiskIsPulled)
{
    ASSERT_TRUE(writeTextFile(disk("vantorProV400Updates_V1.1.0.swu"), "image"));
    ASSERT_TRUE(writeTextFile(disk("vantorProV400Updates_V1.0.0.swu"), "image"));
    plug(true);
    QSignalSpy button(rm.get(), &ResourceManager::updateButtonStatusChanged);
    rm->checkUsbForUpdate();
    EXPECT_FALSE(updater->checkingUsb()) << "nothing to copy";
    EXPECT_EQ(rm->usbDisk->mountCount(), 0) << "unmounted before the prompt";
    EXPECT_EQ(rm->updateButtonStatus(), "Reboot and Update");
    EXPECT_EQ(rm->versionStatusQml(), "Reboot required to perform upgrade.");
    EXPECT_GT(button.count(), 0);
    plug(false);
    EXPECT_EQ(rm->updateButtonStatus(), "Check for Updates");

    plug(true);
    rm->checkUsbForUpdate();
    rm->checkUsbForUpdate(); // the button again: the reboot
    EXPECT_EQ(Platform::recordedCommands().filter("/sbin/reboot").size(), 1);
    EXPECT_EQ(program(), "old program");
}

TEST_F(SoftwareUpdateTest, NothingNewerOnTheDisk)
{
    slave = QStringLiteral("1.35");
    for (const char *name : {"Kestrum_V1.0.0", "Kestrum_V1.0", "KestrumSlave_v1.35.hex", "KestrumSlave_1.99.hex",
                             "vantorProV400Updates_V0.9.0.swu"})
        ASSERT_TRUE(writeTextFile(disk(name), "x"));
    plug(true);
    check();
    EXPECT_EQ(rm->updateButtonStatus(), "Check for Updates");
    EXPECT_EQ(rm->versionStatusQml(), "No new software available.");
    EXPECT_EQ(rm->usbDisk->mountCount(), 0);
}
