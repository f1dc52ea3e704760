#pragma once

#include <QString>

// The UI driver's stick: "usb in [FOLDER]" puts the files of FOLDER on the
// sandbox's disk folder and inserts the disk (its device node appears);
// "usb out" pulls it. The command ends once rm.usbIsReady says the same.
class UiDriverUsb
{
public:
    static constexpr int SettleWaitMs = 5000;
    static bool isUsbCommand(const QString &command) { return command == QLatin1String("usb"); }
    // Does the file work of the command; false with *error on a bad argument.
    static bool plug(const QString &argument, QString *error);
    // The application sees the disk as the command left it.
    static bool settled(const QString &argument);
};
