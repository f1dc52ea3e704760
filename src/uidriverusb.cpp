#include "uidriverusb.h"

#include "resourcemanager.h"
#include "system/platform.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

namespace {

QString deviceNode()
{
    return Platform::path(QStringLiteral("/dev/sda1"));
}

bool copyFolder(const QString &from, const QString &to, QString *error)
{
    QDirIterator it(from, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString source = it.next();
        const QString target = to + QLatin1Char('/') + QDir(from).relativeFilePath(source);
        QDir().mkpath(QFileInfo(target).absolutePath());
        QFile::remove(target);
        if (!QFile::copy(source, target)) {
            *error = QStringLiteral("cannot copy %1 to the disk").arg(source);
            return false;
        }
    }
    return true;
}

} // namespace

bool UiDriverUsb::plug(const QString &argument, QString *error)
{
    const QString folder = argument.mid(2).trimmed();
    if (argument == QLatin1String("out")) {
        QFile::remove(deviceNode());
        return true;
    }
    if (argument != QLatin1String("in") && !argument.startsWith(QLatin1String("in "))) {
        *error = QStringLiteral("usb takes \"in [FOLDER]\" or \"out\"");
        return false;
    }
    if (!folder.isEmpty()) {
        if (!QFileInfo(folder).isAbsolute() || !QFileInfo(folder).isDir()) {
            *error = QStringLiteral("usb in: %1 is not a folder").arg(folder);
            return false;
        }
        // The files go onto the stick before it is plugged in.
        const QString disk = Platform::path(QStringLiteral("/media/usb"));
        QDir().mkpath(disk);
        QFile::setPermissions(disk, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        if (!copyFolder(folder, disk, error))
            return false;
    }
    QFile node(deviceNode());
    if (!node.open(QIODevice::WriteOnly)) {
        *error = QStringLiteral("cannot make %1").arg(deviceNode());
        return false;
    }
    return true;
}

bool UiDriverUsb::settled(const QString &argument)
{
    return ResourceManager::rmPtr()->usbIsReady() == (argument != QLatin1String("out"));
}
