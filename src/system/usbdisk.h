#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

class USB;
class USBFile;

// The memory stick's one mount at /media/usb, shared by reference count:
// the first holder mounts, the last one unmounts. A stick is mounted once on
// arrival (after a debounce of one second on the injectable clock) to see
// whether it works; until then, and after any failure, it is not ready.
//
// Each insertion has its own generation: a holder from before the stick was
// pulled lets go without unmounting the stick inserted since.
class USBDisk : public QObject
{
    Q_OBJECT
public:
    static constexpr int debounceMs = 1000;
    static constexpr int debounceCheckMs = 100;
    static constexpr int commandTimeoutMs = 2000;

    explicit USBDisk(USB *usb, QObject *parent = nullptr);
    ~USBDisk() override;
    // The disk that USBFile and USBDir hold (the one made last).
    static USBDisk *instance();

    bool isMounted() const { return m_mounted; }
    bool hasError() const { return m_hasError; }
    // The stick inserted now has passed its arrival test.
    bool isChecked() const { return m_checked; }
    int mountCount() const { return m_mountCount; }
    quint64 generation() const { return m_generation; }
    QString lastCommand() const { return m_command; }
    USB *usb() const { return m_usb; }

    // "/media/usb/" as this profile names it.
    static QString mountPath();
    // A place on the stick named from its root ("/VantorPro/x.json",
    // "report.csv") or by its full path; "" when the name would leave the
    // stick ("../..").
    static QString resolve(const QString &name);

    bool setReadonly(const QString &path);
    // A holder lets go of the mount it took in generation `generation`.
    void release(quint64 generation);
    // A holder may write: the mount it took is still the present stick's.
    bool holds(quint64 generation) const;

    USBFile *openFile();
    USBFile *openFile(const QString &name);

public slots:
    bool mount();
    void unmount();
    void closeSlot() { unmount(); }
    void resetState();
    void testDevice();
    void startDebounceTimer();
    // The debounce's check of the clock: tests call it after moving the clock.
    void debounceTick();

signals:
    void usbHasError();
    void usbClearError();
    void usbDiskStatusChanged();

private:
    bool mountIsGood() const;
    void setError(bool error);

    USB *m_usb;
    bool m_mounted = false;
    bool m_hasError = false;
    QString m_command;
    int m_mountCount = 0;
    bool m_debouncing = false;
    bool m_checked = false;
    qint64 m_debounceStart = 0;
    quint64 m_generation = 1;
    QTimer m_debounceTimer;
};

// One hold on the stick's mount for the lifetime of a USBFile or a USBDir.
class USBHold
{
public:
    explicit USBHold(USBDisk *disk);
    ~USBHold();
    USBHold(const USBHold &) = delete;
    USBHold &operator=(const USBHold &) = delete;
    // The stick is mounted for this holder and is still the same stick.
    bool isValid() const;

private:
    QPointer<USBDisk> m_disk;
    quint64 m_generation = 0;
    bool m_mounted = false;
};
