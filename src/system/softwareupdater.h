#pragma once

#include <QDir>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>

class QProcess;
class USBDisk;
class USBHold;

// Updates the instrument from a USB disk: a new application program, a new
// firmware for the slave, or a system image that the boot process installs.
//
// A check lists the disk's root, keeps the newest file of each kind that is
// newer than what runs, and copies the application and firmware files to the
// staging folder /var/Kestrum/ while the disk is held. The update then
// flashes the slave through its tool, or installs the staged program beside
// the old one and renames it over it, and restarts. A system image only asks
// for a reboot with the disk left in.
//
// The state (status text, progress, what is available, the button's text)
// is read by ResourceManager, which shows it to the screens as `rm`.
class SoftwareUpdater : public QObject
{
    Q_OBJECT
public:
    // Bounds on what is taken from a disk.
    static constexpr qint64 maxApplicationBytes = 512LL * 1024 * 1024;
    static constexpr qint64 maxFirmwareBytes = 8LL * 1024 * 1024;
    static constexpr int maxListedFiles = 200;

    explicit SoftwareUpdater(USBDisk *disk, QObject *parent = nullptr);
    ~SoftwareUpdater() override;

    // Where the running versions come from ("V3.2.0", the slave's "1.35").
    void setVersionSources(std::function<QString()> application, std::function<QString()> slave);
    // Runs before an update starts (the database's JSON copy).
    void setBeforeUpdate(std::function<void()> beforeUpdate) { m_beforeUpdate = std::move(beforeUpdate); }

    // The untranslated texts of the screens.
    QString statusText() const { return m_status; }
    void setStatusText(const QString &text);
    int progress() const { return m_progress; }
    bool systemUpdateAvail() const { return m_systemUpdateAvail; }
    bool mspUpdateAvail() const { return m_mspUpdateAvail; }
    bool checkingUsb() const { return m_checkingUsb; }
    bool promptReboot() const { return m_promptReboot; }
    bool updateInProgress() const { return m_updateInProgress; }
    QString buttonText() const;
    void setSystemUpdateAvail(bool on);
    void setMspUpdateAvail(bool on);

    // The files an update would apply, as found on the disk (firmware first).
    QStringList offeredFiles() const;
    QString applicationFile() const { return m_applicationFile; }
    QString firmwareFile() const { return m_firmwareFile; }
    QString workDir() const { return m_workDir.absolutePath(); }
    // The folder of the firmware that came with the application.
    static QString bundledFirmwareDir();
    // The update files of a folder as the check takes them, sorted by name:
    // at most maxListedFiles, a firmware over maxFirmwareBytes or an
    // application over maxApplicationBytes left out (logged); `bytes`, when
    // given, gets each name's size.
    static QStringList updateFilesIn(const QDir &folder, QHash<QString, qint64> *bytes = nullptr);

    // What the flash tool's standard error says: the status and the
    // progress it sets (unchanged when the text says nothing of them).
    static void parseFlashOutput(const QString &text, QString *status, int *progress);

    // The hash of the running system ("" when it can't be read).
    static QString getCurrentOstreeHash();

public slots:
    void checkUSBForUpdates();
    void checkForFirmwareUpdate();
    void updateSoftware();
    void updateFilesCopied(int copyResult);
    void updateFirmwareStatusUpdate();
    void updateFirmwareFinished(int result);
    void updateSystemFinished(bool success);
    // The disk was pulled: no reboot can apply a system image from it.
    void resetPromptReboot();

signals:
    void softwareUpdateCompleted(QVariant successful);
    // Any of the state above changed.
    void stateChanged();
    void progressChanged();
    void statusChanged();
    // The slave was flashed or not: its version is to be read again.
    void slaveVersionToRead();
    // Ask the machine to reboot / the application to restart.
    void rebootRequested();
    void restartRequested();

private:
    QString slaveVersion() const;
    void setProgress(int percent);
    void setChecking(bool on);
    void setInProgress(bool on);
    void setPromptReboot(bool on);
    void fail(const QString &status);
    void flashFirmware(const QString &file);
    void installApplication(const QString &staged);
    void clearStaged();

    QStringList m_copyList;
    QPointer<QProcess> m_process;
    QString m_applicationFile;
    QString m_firmwareFile;
    QString m_systemFile;
    QPointer<QProcess> m_firmwareProcess;
    QDir m_workDir;
    bool m_systemImageFound = false;

    USBDisk *m_disk;
    std::unique_ptr<USBHold> m_hold;
    // Sizes seen on the disk, by file name: a copy must have them.
    QHash<QString, qint64> m_diskBytes;
    std::function<QString()> m_applicationVersion;
    std::function<QString()> m_slaveVersion;
    std::function<void()> m_beforeUpdate;

    QString m_status;
    int m_progress = 0;
    bool m_systemUpdateAvail = false;
    bool m_mspUpdateAvail = false;
    bool m_checkingUsb = false;
    bool m_promptReboot = false;
    bool m_updateInProgress = false;
};
