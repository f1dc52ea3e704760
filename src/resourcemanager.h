#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

class Beeper;
class MethodModel;
class Printer;
class SoftwareUpdater;
class SetupModel;
class USB;
class USBDisk;
class USBHost;

// The system services the screens reach as "rm": the USB disk and the
// host port, the method files and backups, the database copy, restart and
// factory reset, the network address. Nothing here changes the machine
// except through the platform layer.
class ResourceManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool usbIsReady READ usbIsReady NOTIFY usbIsReadyChanged)
    Q_PROPERTY(bool usbNoError READ usbNoError NOTIFY usbIsReadyChanged)
    // The receipt printer's port is open (the screens offer printing then).
    Q_PROPERTY(bool printerIsReady READ printerIsReady NOTIFY printerIsReadyChanged)
    Q_PROPERTY(QString ipAddress READ ipAddress NOTIFY ipAddressChanged)
    Q_PROPERTY(QString versionStatusQml READ versionStatusQml WRITE setVersionStatusQml NOTIFY versionStatusQmlChanged)
    Q_PROPERTY(int versionProgressQml READ versionProgressQml NOTIFY versionProgressQmlChanged)
    // The software update (SoftwareUpdater), translated where texts are shown.
    Q_PROPERTY(bool systemUpdateAvail READ systemUpdateAvail NOTIFY systemUpdateAvailChanged)
    Q_PROPERTY(bool mspUpdateAvail READ mspUpdateAvail NOTIFY mspUpdateAvailChanged)
    Q_PROPERTY(QString updateButtonStatus READ updateButtonStatus NOTIFY updateButtonStatusChanged)
    Q_PROPERTY(bool updateInProgress READ updateInProgress NOTIFY updateInProgressChanged)
    Q_PROPERTY(bool promptReboot READ promptReboot NOTIFY updateButtonStatusChanged)
    // The disk's files an update would apply, ", " between them ("" when none).
    Q_PROPERTY(QString updateFiles READ updateFiles NOTIFY updateButtonStatusChanged)
public:
    static ResourceManager *rmPtr();
    explicit ResourceManager(QObject *parent = nullptr);

    USB *usb;
    USBDisk *usbDisk;
    Printer *printer;
    SoftwareUpdater *softwareUpdater;

    // The list that imports fill (the method list the screens show); not owned.
    void setMethodList(MethodModel *list) { m_methodList = list; }
    // The settings whose switches and name choose the end-of-run sound; not owned.
    void setSetup(const SetupModel *setup) { m_setup = setup; }

    // The stick is there, has passed its arrival test and shows no error.
    bool usbIsReady() const;
    bool usbNoError() const;
    bool printerIsReady() const;
    QString ipAddress() const { return m_ipAddress; }
    QString versionStatusQml() const;
    void setVersionStatusQml(const QString &text);
    int versionProgressQml() const;
    bool systemUpdateAvail() const;
    bool mspUpdateAvail() const;
    QString updateButtonStatus() const;
    bool updateInProgress() const;
    QString updateFiles() const;

    // Installs the methods kept over a factory reset, and empties their folder.
    int restoreMethods();
    // The folders of the method files, as this profile names them.
    static QString methodsBackupFolder();
    static QString usbMethodsFolder() { return QStringLiteral("/VantorPro/methods_backup/"); }

    Q_INVOKABLE void restartApp();
    // Reboots the machine (recorded on a host).
    void reboot();
    // The factory reset: the database to JSON, the stored images removed,
    // the database emptied. With keepMethods the methods are written to the
    // backup folder first. Nothing is wiped when that fails, nor after a
    // backupMethods() that failed (the screens may call the two in turn).
    // True when the database was emptied.
    Q_INVOKABLE bool wipeDatabase(bool keepMethods = false);

public slots:
    void refreshIpAddress();
    void playNotify();
    void playWarning();
    // The beeper: a duration of 0 sounds until stopBeep(); a frequency of 0
    // is refused.
    void beep(int freq_hz, int duration_ms);
    void stopBeep();
    // The end of a titration: the instrument names "SS Enterprise" and
    // "Death Star" play their tunes; else the warning tune when the
    // burette's maximum was reached (switch "Maximum Titrant Volume"), or
    // 440 Hz for a second (switch "Titration Cycle Complete").
    void titrationNotificationResponse(bool maxReached);
    // The update the check found: firmware first, then the application.
    void updateSystem();
    void updateFirmware();
    void updateSoftware();
    // The button without an update found: a reboot when a system image waits
    // on the disk, else a check of the disk.
    void checkUsbForUpdate();
    bool promptReboot() const;
    void resetPromptReboot();
    // The database file to /VantorPro/database_backup/ on the stick.
    bool copyDatabaseToUsb();
    // Every stored method to the stick: the number of files, 0 on failure.
    int methodExport();
    // The stick's method files into the staging tables and the list.
    bool methodImport();
    // Every stored method to the backup folder of a factory reset.
    bool backupMethods();

signals:
    void usbIsReadyChanged();
    void printerIsReadyChanged();
    void ipAddressChanged();
    void versionStatusQmlChanged();
    void versionProgressQmlChanged();
    void systemUpdateAvailChanged();
    void mspUpdateAvailChanged();
    void updateButtonStatusChanged();
    void updateInProgressChanged();
    // What went wrong with a USB or backup job, for the screens' message box.
    void usbMessage(const QVariant &title, const QVariant &text);
    // restoreMethods installed methods: the method list is to be read anew.
    void methodsRestored();

private:
    void report(const QString &title, const QStringList &lines);

    USBHost *m_usbHost;
    Beeper *m_beeper;
    const SetupModel *m_setup = nullptr;
    MethodModel *m_methodList = nullptr;
    bool m_methodsBackupFailed = false;
    QString m_ipAddress;
};
