#pragma once

#include "system/usb.h"

#include <QObject>
#include <QString>

// The system services the screens reach as "rm": the USB disk, the beeper,
// the network address and the software update. The shell needs them to
// exist; each service fills its part in as it is built. Nothing here changes
// the machine.
class ResourceManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool usbIsReady READ usbIsReady NOTIFY usbIsReadyChanged)
    Q_PROPERTY(QString ipAddress READ ipAddress NOTIFY ipAddressChanged)
    Q_PROPERTY(QString versionStatusQml READ versionStatusQml WRITE setVersionStatusQml NOTIFY versionStatusQmlChanged)
    Q_PROPERTY(int versionProgressQml READ versionProgressQml NOTIFY versionProgressQmlChanged)
public:
    static ResourceManager *rmPtr();

    USB *usb;

    bool usbIsReady() const { return usb->usbIsReady(); }
    QString ipAddress() const { return m_ipAddress; }
    QString versionStatusQml() const { return m_versionStatus; }
    void setVersionStatusQml(const QString &text);
    int versionProgressQml() const { return 0; }

public slots:
    bool methodImport() const { return false; }
    void refreshIpAddress();
    void playNotify() {}
    void playWarning() {}
    // The beeper: a duration of 0 sounds until stopBeep().
    void beep(int freq_hz, int duration_ms);
    void stopBeep();
    void updateSystem();

signals:
    void usbIsReadyChanged();
    void ipAddressChanged();
    void versionStatusQmlChanged();
    void versionProgressQmlChanged();

private:
    explicit ResourceManager(QObject *parent = nullptr);

    QString m_ipAddress;
    QString m_versionStatus;
};
