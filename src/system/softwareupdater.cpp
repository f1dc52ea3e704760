#include "system/softwareupdater.h"

#include "system/platform.h"
#include "system/programinstaller.h"
#include "system/updateversion.h"
#include "system/usbdisk.h"

#include <QCoreApplication>
#include <QDebug>
#include <QFileInfo>
#include <QProcess>

namespace {

// The texts of the screens, translated where they are shown (ResourceManager).
const char *const kNoNewSoftware = QT_TRANSLATE_NOOP("SoftwareUpdater", "No new software available.");
const char *const kUnableToMount = QT_TRANSLATE_NOOP("SoftwareUpdater", "The USB disk could not be read.");
const char *const kRebootRequired = QT_TRANSLATE_NOOP("SoftwareUpdater", "Reboot required to perform upgrade.");
const char *const kNewFirmware = QT_TRANSLATE_NOOP("SoftwareUpdater", "New firmware available!");
const char *const kNewApplication = QT_TRANSLATE_NOOP("SoftwareUpdater", "New Application Available!");
const char *const kDiskPulled = QT_TRANSLATE_NOOP("SoftwareUpdater", "Update failed: the USB disk was removed during the copy.");
const char *const kNotCopied = QT_TRANSLATE_NOOP("SoftwareUpdater", "Update failed: the files could not be copied from the USB disk.");
const char *const kFlashStarting = QT_TRANSLATE_NOOP("SoftwareUpdater", "Updating firmware: Starting...");
const char *const kFlashErasing = QT_TRANSLATE_NOOP("SoftwareUpdater", "Updating firmware: Erasing...");
const char *const kFlashProgramming = QT_TRANSLATE_NOOP("SoftwareUpdater", "Updating firmware: Programming...");
const char *const kFlashOk = QT_TRANSLATE_NOOP("SoftwareUpdater", "Firmware Updated Successfully!");
const char *const kFlashRebooting = QT_TRANSLATE_NOOP("SoftwareUpdater", "Updating firmware: Rebooting");
const char *const kFlashFailed = QT_TRANSLATE_NOOP("SoftwareUpdater", "Firmware update failed. The running version stays.");
const char *const kNoFirmwareFile = QT_TRANSLATE_NOOP("SoftwareUpdater", "Firmware update failed: the update file is missing.");
const char *const kAppCopying = QT_TRANSLATE_NOOP("SoftwareUpdater", "Updating Appication: Copying...");
const char *const kAppRestarting = QT_TRANSLATE_NOOP("SoftwareUpdater", "Updating Application: Restarting...");
const char *const kAppFailed = QT_TRANSLATE_NOOP("SoftwareUpdater", "Application update failed. The running version stays.");
const char *const kSystemCompleted = QT_TRANSLATE_NOOP("SoftwareUpdater", "System Update Completed");
const char *const kSystemFailed = QT_TRANSLATE_NOOP("SoftwareUpdater", "System Update Failed!");

// The button's texts.
const char *const kUpdating = QT_TRANSLATE_NOOP("SoftwareUpdater", "Updating...");
const char *const kUpdateSystem = QT_TRANSLATE_NOOP("SoftwareUpdater", "Update System");
const char *const kUpdateFirmware = QT_TRANSLATE_NOOP("SoftwareUpdater", "Update Firmware");
const char *const kCheckingUsb = QT_TRANSLATE_NOOP("SoftwareUpdater", "Checking USB...");
const char *const kRebootAndUpdate = QT_TRANSLATE_NOOP("SoftwareUpdater", "Reboot and Update");
const char *const kCheckForUpdates = QT_TRANSLATE_NOOP("SoftwareUpdater", "Check for Updates");

const QString kFirmwareMarker = QStringLiteral("KestrumSlave");
const QString kSystemMarker = QStringLiteral("vantorProV400Updates_");

QString text(const char *english)
{
    return QString::fromLatin1(english);
}

} // namespace

SoftwareUpdater::SoftwareUpdater(USBDisk *disk, QObject *parent)
    : QObject(parent)
    , m_workDir(Platform::path(QStringLiteral("/var/Kestrum/")))
    , m_disk(disk)
    , m_status(text(kNoNewSoftware))
{
}

SoftwareUpdater::~SoftwareUpdater() = default;

void SoftwareUpdater::setVersionSources(std::function<QString()> application, std::function<QString()> slave)
{
    m_applicationVersion = std::move(application);
    m_slaveVersion = std::move(slave);
}

QString SoftwareUpdater::bundledFirmwareDir()
{
    return Platform::path(QStringLiteral("/usr/share/kestrum"));
}

QStringList SoftwareUpdater::updateFilesIn(const QDir &folder, QHash<QString, qint64> *bytes)
{
    const QFileInfoList found = folder.entryInfoList(UpdateVersion::fileFilters(), QDir::Files | QDir::NoSymLinks, QDir::Name);
    QStringList names;
    for (const QFileInfo &info : found.mid(0, maxListedFiles)) {
        const qint64 limit = info.fileName().contains(kFirmwareMarker) ? maxFirmwareBytes : maxApplicationBytes;
        if (info.size() > limit && !info.fileName().contains(kSystemMarker)) {
            qDebug() << "SW Updater: left out, more than" << limit << "bytes:" << info.fileName();
            continue;
        }
        names << info.fileName();
        if (bytes)
            bytes->insert(info.fileName(), info.size());
    }
    return names;
}

QString SoftwareUpdater::slaveVersion() const
{
    return m_slaveVersion ? m_slaveVersion() : QString();
}

QString SoftwareUpdater::buttonText() const
{
    if (m_updateInProgress)
        return text(kUpdating);
    if (m_systemUpdateAvail)
        return text(kUpdateSystem);
    if (m_mspUpdateAvail)
        return text(kUpdateFirmware);
    if (m_checkingUsb)
        return text(kCheckingUsb);
    if (m_promptReboot)
        return text(kRebootAndUpdate);
    return text(kCheckForUpdates);
}

QStringList SoftwareUpdater::offeredFiles() const
{
    QStringList files;
    if (m_mspUpdateAvail && !m_firmwareFile.isEmpty())
        files << m_firmwareFile;
    if (m_systemUpdateAvail && !m_applicationFile.isEmpty())
        files << m_applicationFile;
    return files;
}

void SoftwareUpdater::setStatusText(const QString &status)
{
    if (status == m_status)
        return;
    m_status = status;
    emit statusChanged();
}

void SoftwareUpdater::setProgress(int percent)
{
    if (percent == m_progress)
        return;
    m_progress = percent;
    emit progressChanged();
}

void SoftwareUpdater::setSystemUpdateAvail(bool on)
{
    if (on == m_systemUpdateAvail)
        return;
    m_systemUpdateAvail = on;
    emit stateChanged();
}

void SoftwareUpdater::setMspUpdateAvail(bool on)
{
    if (on == m_mspUpdateAvail)
        return;
    m_mspUpdateAvail = on;
    emit stateChanged();
}

void SoftwareUpdater::setChecking(bool on)
{
    if (on == m_checkingUsb)
        return;
    m_checkingUsb = on;
    emit stateChanged();
}

void SoftwareUpdater::setInProgress(bool on)
{
    if (on == m_updateInProgress)
        return;
    m_updateInProgress = on;
    emit stateChanged();
}

void SoftwareUpdater::setPromptReboot(bool on)
{
    if (on == m_promptReboot)
        return;
    m_promptReboot = on;
    emit stateChanged();
}

void SoftwareUpdater::resetPromptReboot()
{
    setPromptReboot(false);
}

void SoftwareUpdater::fail(const QString &status)
{
    qDebug() << "SW Updater:" << status;
    setStatusText(status);
}

void SoftwareUpdater::checkUSBForUpdates()
{
    if (m_checkingUsb || m_updateInProgress)
        return;
    qDebug() << "Checking for USB Updates: Mounting USB Drive";
    m_hold = std::make_unique<USBHold>(m_disk);
    if (!m_hold->isValid()) {
        m_hold.reset();
        qDebug() << "checkUSBForUpdates: Unable to mount disk!";
        setStatusText(text(kUnableToMount));
        return;
    }
    setChecking(true);

    const QDir usb(USBDisk::mountPath());
    m_diskBytes.clear();
    const QStringList names = updateFilesIn(usb, &m_diskBytes);
    qDebug() << "Potential Files Found:" << names.join(QStringLiteral(", "));

    const UpdateVersion::Choice choice = UpdateVersion::choose(names, m_applicationVersion ? m_applicationVersion() : QString(), slaveVersion());
    m_firmwareFile = choice.firmware;
    m_applicationFile = choice.application;
    m_systemFile.clear(); // a system image stays on the disk for the boot
    m_systemImageFound = !choice.systemImage.isEmpty();

    m_copyList.clear();
    if (!m_firmwareFile.isEmpty())
        m_copyList << m_firmwareFile;
    if (!m_applicationFile.isEmpty())
        m_copyList << m_applicationFile;

    if (m_copyList.isEmpty()) {
        m_hold.reset();
        setChecking(false);
        if (!m_systemImageFound)
            setStatusText(text(kNoNewSoftware));
    } else {
        // One cp with every name as an argument of its own: no shell sees them.
        QStringList arguments{QStringLiteral("--")};
        for (const QString &name : qAsConst(m_copyList)) {
            arguments << usb.absoluteFilePath(name);
            QFile::remove(m_workDir.absoluteFilePath(name));
        }
        m_workDir.mkpath(QStringLiteral("."));
        arguments << m_workDir.absolutePath() + QLatin1Char('/');
        qDebug() << "Copying files:" << m_copyList;
        m_process = Platform::start(QStringLiteral("cp"), arguments, this);
        connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
                [this](int code, QProcess::ExitStatus status) { updateFilesCopied(status == QProcess::NormalExit ? code : 1); });
        connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                updateFilesCopied(1);
        });
        // A start that failed before anyone listened.
        if (m_process->state() == QProcess::NotRunning && m_process->error() == QProcess::FailedToStart)
            updateFilesCopied(1);
    }

    if (m_systemImageFound) {
        setStatusText(text(kRebootRequired));
        setPromptReboot(true);
    }
}

void SoftwareUpdater::clearStaged()
{
    for (const QString &name : {m_firmwareFile, m_applicationFile}) {
        if (!name.isEmpty())
            QFile::remove(m_workDir.absoluteFilePath(name));
    }
}

void SoftwareUpdater::updateFilesCopied(int copyResult)
{
    if (m_process) {
        m_process->disconnect(this);
        m_process->deleteLater();
        m_process = nullptr;
    }
    // The same stick all through the copy: one pulled and put back is another mount.
    const bool sameDisk = m_hold && m_hold->isValid();
    m_hold.reset();
    qDebug() << "SW Updater: Unmounted USB";
    qDebug() << "Copy Command returned:" << copyResult;
    bool complete = true;
    for (const QString &name : {m_firmwareFile, m_applicationFile}) {
        if (!name.isEmpty() && QFileInfo(m_workDir.absoluteFilePath(name)).size() != m_diskBytes.value(name, -1))
            complete = false;
    }
    setChecking(false);
    if (copyResult != 0 || !sameDisk || !complete) {
        clearStaged();
        m_firmwareFile.clear();
        m_applicationFile.clear();
        fail(text(sameDisk ? kNotCopied : kDiskPulled));
        return;
    }
    if (!m_firmwareFile.isEmpty()) {
        setMspUpdateAvail(true);
        setStatusText(text(kNewFirmware));
    }
    if (!m_applicationFile.isEmpty()) {
        setSystemUpdateAvail(true);
        setStatusText(text(kNewApplication));
    }
}

void SoftwareUpdater::checkForFirmwareUpdate()
{
    if (m_updateInProgress || m_checkingUsb)
        return;
    const QStringList names = QDir(bundledFirmwareDir()).entryList({QStringLiteral("KestrumSlave*.hex")}, QDir::Files | QDir::NoSymLinks, QDir::Name);
    m_firmwareFile = UpdateVersion::choose(names.mid(0, maxListedFiles), QString(), slaveVersion()).firmware;
    if (!m_firmwareFile.isEmpty()) {
        m_diskBytes.insert(m_firmwareFile, QFileInfo(QDir(bundledFirmwareDir()).absoluteFilePath(m_firmwareFile)).size());
        setMspUpdateAvail(true);
    }
}

void SoftwareUpdater::updateSoftware()
{
    if (m_updateInProgress || m_checkingUsb)
        return;
    if (!m_firmwareFile.isEmpty()) {
        QString path;
        if (m_workDir.exists(m_firmwareFile))
            path = m_workDir.absoluteFilePath(m_firmwareFile);
        else if (QDir(bundledFirmwareDir()).exists(m_firmwareFile))
            path = QDir(bundledFirmwareDir()).absoluteFilePath(m_firmwareFile);
        else
            qDebug() << "Firmware update failed: couldn't find full path to file";
        if (m_beforeUpdate)
            m_beforeUpdate();
        flashFirmware(path);
        return;
    }
    if (!m_applicationFile.isEmpty() && m_workDir.exists(m_applicationFile)) {
        if (m_beforeUpdate)
            m_beforeUpdate();
        installApplication(m_workDir.absoluteFilePath(m_applicationFile));
    }
}

void SoftwareUpdater::flashFirmware(const QString &file)
{
    if (file.isEmpty() || !QFileInfo(file).isFile()) {
        qDebug() << "SW Update: Firmware update failed - No update file selected.";
        m_firmwareFile.clear();
        setMspUpdateAvail(false);
        fail(text(kNoFirmwareFile));
        emit softwareUpdateCompleted(false);
        return;
    }
    setProgress(0);
    setStatusText(text(kFlashStarting));
    setInProgress(true);
    const QStringList arguments{QStringLiteral("-m"), QStringLiteral("msp430.bsl5.uart"), QStringLiteral("-p"),
                                Platform::path(QStringLiteral("/dev/ttymxc1")), QStringLiteral("-e"), QStringLiteral("-P"),
                                file, QStringLiteral("-r")};
    m_firmwareProcess = Platform::start(QStringLiteral("python"), arguments, this);
    connect(m_firmwareProcess, &QProcess::readyReadStandardError, this, &SoftwareUpdater::updateFirmwareStatusUpdate);
    connect(m_firmwareProcess, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this](int code, QProcess::ExitStatus status) { updateFirmwareFinished(status == QProcess::NormalExit ? code : -1); });
    connect(m_firmwareProcess, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            updateFirmwareFinished(-1);
    });
    if (m_firmwareProcess->state() == QProcess::NotRunning && m_firmwareProcess->error() == QProcess::FailedToStart)
        updateFirmwareFinished(-1);
}

void SoftwareUpdater::parseFlashOutput(const QString &output, QString *status, int *progress)
{
    if (output.contains(QLatin1String("Erasing"))) {
        *progress = 0;
        *status = text(kFlashErasing);
    } else if (output.contains(QLatin1String("Programming..."))) {
        *progress = 0;
        *status = text(kFlashProgramming);
    }
    const int percent = output.indexOf(QLatin1Char('%'));
    if (percent > 0) {
        int begin = percent;
        while (begin > 0 && begin > percent - 3 && output.at(begin - 1).isDigit())
            --begin;
        if (begin < percent)
            *progress = qBound(0, output.mid(begin, percent - begin).toInt(), 100);
    }
    if (output.contains(QLatin1String("Programming: OK")))
        *status = text(kFlashOk);
}

void SoftwareUpdater::updateFirmwareStatusUpdate()
{
    if (!m_firmwareProcess)
        return;
    // A long output is read for its end, where the latest words are.
    const QString chunk = QString::fromLocal8Bit(m_firmwareProcess->readAllStandardError().right(4096));
    qDebug() << "Got data from the firmware update tool: " << chunk;
    QString status = m_status;
    int progress = m_progress;
    parseFlashOutput(chunk, &status, &progress);
    setProgress(progress);
    setStatusText(status);
}

void SoftwareUpdater::updateFirmwareFinished(int result)
{
    if (m_firmwareProcess) {
        updateFirmwareStatusUpdate();
        m_firmwareProcess->disconnect(this);
        m_firmwareProcess->deleteLater();
        m_firmwareProcess = nullptr;
    }
    qDebug() << "SW Updater: the firmware tool returned" << result;
    setInProgress(false);
    emit slaveVersionToRead();
    if (result == 0) {
        m_firmwareFile.clear();
        setMspUpdateAvail(false);
        setStatusText(text(kFlashRebooting));
        emit rebootRequested();
        emit softwareUpdateCompleted(true);
    } else {
        // The file stays chosen: the same button tries again.
        fail(text(kFlashFailed));
        emit softwareUpdateCompleted(false);
    }
}

void SoftwareUpdater::installApplication(const QString &staged)
{
    setProgress(25);
    setStatusText(text(kAppCopying));
    setInProgress(true);
    QString why;
    if (!ProgramInstaller::install(staged, Platform::programPath(), m_diskBytes.value(m_applicationFile, -1), &why)) {
        qDebug() << "SW Updater: the application was not installed:" << why;
        setInProgress(false);
        setProgress(0);
        fail(text(kAppFailed));
        emit softwareUpdateCompleted(false);
        return;
    }
    QFile::remove(staged);
    m_applicationFile.clear();
    setProgress(100);
    setStatusText(text(kAppRestarting));
    emit restartRequested();
    emit softwareUpdateCompleted(true);
}

void SoftwareUpdater::updateSystemFinished(bool success)
{
    setStatusText(text(success ? kSystemCompleted : kSystemFailed));
    emit softwareUpdateCompleted(success);
}

QString SoftwareUpdater::getCurrentOstreeHash()
{
    const Platform::Result r = Platform::run(QStringLiteral("ostree"), {QStringLiteral("rev-parse"), QStringLiteral("qt-os:linux/qt")}, 3000);
    if (!r.ok())
        return QString();
    return QString::fromUtf8(r.standardOutput.left(256)).simplified();
}
