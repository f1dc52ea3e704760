#include "resourcemanager.h"

#include "datamigrator.h"
#include "models/databasecopy.h"
#include "models/methodbackup.h"
#include "models/methodmodel.h"
#include "models/importexport.h"
#include "models/setupmodel.h"
#include "system/beeper.h"
#include "system/platform.h"
#include "system/printer.h"
#include "system/softwareupdater.h"
#include "system/usb.h"
#include "system/usbdir.h"
#include "system/usbdisk.h"
#include "system/usbhost.h"

#include <QCoreApplication>
#include <QDebug>
#include <QHostAddress>
#include <QNetworkInterface>
#include <QStringList>

ResourceManager *ResourceManager::rmPtr()
{
    static ResourceManager *instance = new ResourceManager();
    return instance;
}

ResourceManager::ResourceManager(QObject *parent)
    : QObject(parent)
    , usb(new USB(this))
    , usbDisk(new USBDisk(usb, this))
    , printer(new Printer(QStringLiteral("/dev/ttyPOS"), this))
    , softwareUpdater(new SoftwareUpdater(usbDisk, this))
    , m_usbHost(new USBHost(usb, this))
    , m_beeper(new Beeper(this))
{
    connect(usb, &USB::usbPOSPrinterAttached, printer, &Printer::printerAttached);
    connect(usb, &USB::usbPOSPrinterDetached, printer, &Printer::printerDetached);
    connect(printer, &Printer::readyChanged, this, &ResourceManager::printerIsReadyChanged);
    connect(usb, &USB::usbDiskDetached, usbDisk, &USBDisk::resetState);
    connect(usb, &USB::usbDiskDetached, this, &ResourceManager::usbIsReadyChanged);
    connect(usb, &USB::usbDiskAttached, usbDisk, &USBDisk::startDebounceTimer);
    connect(usbDisk, &USBDisk::usbDiskStatusChanged, this, &ResourceManager::usbIsReadyChanged);
    connect(usbDisk, &USBDisk::usbHasError, this, &ResourceManager::usbIsReadyChanged);
    connect(usbDisk, &USBDisk::usbClearError, this, &ResourceManager::usbIsReadyChanged);
    connect(usb, &USB::usbHostAttached, m_usbHost, &USBHost::hostAttached);
    connect(usb, &USB::usbHostDetached, m_usbHost, &USBHost::hostDetached);
    // A system image is installed from the disk at the boot: gone with the disk.
    connect(usb, &USB::usbDiskDetached, this, &ResourceManager::resetPromptReboot);

    SoftwareUpdater *updater = softwareUpdater;
    connect(updater, &SoftwareUpdater::statusChanged, this, &ResourceManager::versionStatusQmlChanged);
    connect(updater, &SoftwareUpdater::progressChanged, this, &ResourceManager::versionProgressQmlChanged);
    connect(updater, &SoftwareUpdater::stateChanged, this, [this] {
        emit systemUpdateAvailChanged();
        emit mspUpdateAvailChanged();
        emit updateInProgressChanged();
        emit updateButtonStatusChanged();
    });
    connect(updater, &SoftwareUpdater::rebootRequested, this, &ResourceManager::reboot);
    connect(updater, &SoftwareUpdater::restartRequested, this, &ResourceManager::restartApp);
    updater->setBeforeUpdate([] {
        // The database as JSON, as before a factory reset: a new program may migrate it.
        if (!ImportExport(DataMigrator::backupFilePath()).exportAll())
            qDebug() << "SW Updater: the database's JSON copy could not be written";
    });
}

QString ResourceManager::versionStatusQml() const
{
    return QCoreApplication::translate("SoftwareUpdater", softwareUpdater->statusText().toUtf8().constData());
}

int ResourceManager::versionProgressQml() const
{
    return softwareUpdater->progress();
}

bool ResourceManager::systemUpdateAvail() const
{
    return softwareUpdater->systemUpdateAvail();
}

bool ResourceManager::mspUpdateAvail() const
{
    return softwareUpdater->mspUpdateAvail();
}

QString ResourceManager::updateButtonStatus() const
{
    return QCoreApplication::translate("SoftwareUpdater", softwareUpdater->buttonText().toUtf8().constData());
}

bool ResourceManager::updateInProgress() const
{
    return softwareUpdater->updateInProgress();
}

QString ResourceManager::updateFiles() const
{
    return softwareUpdater->offeredFiles().join(QStringLiteral(", "));
}

bool ResourceManager::promptReboot() const
{
    return softwareUpdater->promptReboot();
}

void ResourceManager::resetPromptReboot()
{
    softwareUpdater->resetPromptReboot();
}

void ResourceManager::updateSystem()
{
    if (softwareUpdater->updateInProgress() || softwareUpdater->checkingUsb())
        return;
    softwareUpdater->setSystemUpdateAvail(false);
    softwareUpdater->updateSoftware();
}

void ResourceManager::updateFirmware()
{
    softwareUpdater->updateSoftware();
}

void ResourceManager::updateSoftware()
{
    updateSystem();
}

void ResourceManager::checkUsbForUpdate()
{
    if (softwareUpdater->promptReboot())
        reboot();
    else
        softwareUpdater->checkUSBForUpdates();
}

void ResourceManager::reboot()
{
    const Platform::Result r = Platform::run(QStringLiteral("/sbin/reboot"), {}, 30000);
    if (!r.ok())
        qDebug() << "ResourceManager: reboot failed, exit" << r.exitCode << r.standardError;
}

bool ResourceManager::usbIsReady() const
{
    return usb->isDiskPresent() && usbDisk->isChecked() && !usbDisk->hasError();
}

bool ResourceManager::printerIsReady() const
{
    return printer->isReady();
}

bool ResourceManager::usbNoError() const
{
    return !usbDisk->hasError();
}

void ResourceManager::setVersionStatusQml(const QString &text)
{
    softwareUpdater->setStatusText(text);
}

void ResourceManager::report(const QString &title, const QStringList &lines)
{
    if (lines.isEmpty())
        return;
    for (const QString &line : lines)
        qDebug() << title << line;
    // A box shows a few lines; the log has them all.
    QStringList shown = lines.mid(0, 4);
    if (lines.size() > shown.size())
        shown << tr("and %1 more").arg(lines.size() - shown.size());
    emit usbMessage(QVariant(title), QVariant(shown.join(QLatin1Char('\n'))));
}

QString ResourceManager::methodsBackupFolder()
{
    return Platform::path(QStringLiteral("/var/Kestrum/methods_backup"));
}

bool ResourceManager::copyDatabaseToUsb()
{
    USBDir dir(QStringLiteral("/VantorPro/database_backup"), usbDisk);
    QString error = tr("USB Device not connected");
    const bool copied = dir.isUsable() && dir.mkpath(dir.absolutePath())
        && DatabaseCopy::copy(DatabaseCopy::liveFile(), dir.absoluteFilePath(QStringLiteral("KestrumDB")), &error)
        && dir.isUsable();
    if (copied) {
        setVersionStatusQml(tr("Process Complete"));
    } else {
        setVersionStatusQml(tr("Copy failed"));
        report(tr("Database copy"), {error});
    }
    return copied;
}

int ResourceManager::methodExport()
{
    USBDir dir(usbMethodsFolder(), usbDisk);
    if (!dir.isUsable() || !dir.mkpath(dir.absolutePath())) {
        report(tr("Export"), {tr("USB Device not connected")});
        return 0;
    }
    MethodBackup backup(m_methodList);
    backup.setWritableCheck([&dir] { return dir.isUsable(); });
    const int written = backup.exportMethods(dir, QString());
    report(tr("Export"), backup.messages());
    return written > 0 && dir.isUsable() ? written : 0;
}

bool ResourceManager::methodImport()
{
    if (!m_methodList)
        m_methodList = new MethodModel(this, false);
    USBDir dir(usbMethodsFolder(), usbDisk);
    if (!dir.isUsable())
        return false;
    // A disk with the older single-file backup gets one file per method first.
    DataMigrator::dmPtr()->migrateUSB();
    MethodBackup backup(m_methodList);
    const bool imported = backup.importMethods(dir, QStringLiteral("_import"), false, true);
    report(tr("Import"), backup.messages());
    return imported;
}

bool ResourceManager::backupMethods()
{
    QDir dir(methodsBackupFolder());
    // What a backup left that was never restored belongs to no reset now.
    dir.removeRecursively();
    if (!QDir().mkpath(dir.absolutePath())) {
        report(tr("Factory Reset"), {tr("The methods could not be kept: no backup folder")});
        m_methodsBackupFailed = true;
        return false;
    }
    MethodBackup backup(m_methodList);
    const bool kept = backup.exportMethods(dir, QString()) >= 0;
    report(tr("Factory Reset"), backup.messages());
    m_methodsBackupFailed = !kept;
    return kept;
}

int ResourceManager::restoreMethods()
{
    const QDir dir(methodsBackupFolder());
    if (!dir.exists())
        return 0;
    MethodModel list(nullptr, false);
    MethodBackup backup(&list);
    const int installed = backup.restoreFolder(dir);
    report(tr("Methods"), backup.messages());
    if (installed > 0)
        emit methodsRestored();
    return installed;
}

void ResourceManager::restartApp()
{
    DataMigrator::dmPtr()->restartApp();
}

bool ResourceManager::wipeDatabase(bool keepMethods)
{
    if (keepMethods ? !backupMethods() : m_methodsBackupFailed) {
        report(tr("Factory Reset"), {tr("The methods could not be kept; nothing was reset.")});
        return false;
    }
    DataMigrator *migrator = DataMigrator::dmPtr();
    migrator->wipeDatabaseRebuildSysInfo();
    if (migrator->outcome() != DataMigrator::Outcome::Wiped) {
        // The methods are still in the tables: their copies must not come back at the next start.
        QDir(methodsBackupFolder()).removeRecursively();
        report(tr("Factory Reset"), {tr("The database could not be reset.")});
        return false;
    }
    // The images of stored cycles.
    const QString images = Platform::path(QStringLiteral("/var/home/root"));
    if (QDir(images).exists())
        Platform::run(QStringLiteral("find"), {images, QStringLiteral("-name"), QStringLiteral("*.png"),
                                               QStringLiteral("-type"), QStringLiteral("f"), QStringLiteral("-delete")},
                      30000);
    return true;
}

void ResourceManager::refreshIpAddress()
{
    // Every IPv4 address but 127.0.0.1, comma separated (two interfaces, two addresses).
    QStringList addresses;
    const auto all = QNetworkInterface::allAddresses();
    for (const QHostAddress &a : all) {
        if (a.protocol() == QAbstractSocket::IPv4Protocol && a != QHostAddress(QHostAddress::LocalHost)) {
            qDebug() << "Found IP Address:" << a.toString();
            addresses << a.toString();
        }
    }
    const QString address = addresses.join(QLatin1Char(','));
    if (address != m_ipAddress) {
        m_ipAddress = address;
        emit ipAddressChanged();
    }
}

void ResourceManager::beep(int freq_hz, int duration_ms)
{
    qDebug() << "ResourceManager: beep" << freq_hz << "Hz for" << duration_ms << "ms";
    m_beeper->beep(freq_hz, duration_ms);
}

void ResourceManager::stopBeep()
{
    m_beeper->stopBeeping();
}

void ResourceManager::playNotify()
{
    m_beeper->playNotify();
}

void ResourceManager::playWarning()
{
    m_beeper->playWarning();
}

void ResourceManager::titrationNotificationResponse(bool maxReached)
{
    const QString name = m_setup ? m_setup->instrumentName() : QString();
    if (name == QLatin1String("SS Enterprise")) {
        m_beeper->playEnterprise();
    } else if (name == QLatin1String("Death Star")) {
        m_beeper->playStarWars();
    } else if (m_setup && maxReached && m_setup->maxTitrantVolumeNotification()) {
        playWarning();
    } else if (m_setup && m_setup->titrationCycleCompleteNotification()) {
        beep(SetupModel::notificationToneHz, SetupModel::notificationToneMs);
    }
}
