#include "system/programinstaller.h"

#include "system/platform.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

bool failed(const QString &temp, QString *why, const QString &text)
{
    QFile::remove(temp);
    *why = text;
    return false;
}

// The rename is only durable once the folder is on the medium too.
void syncFolder(const QString &folder)
{
    const int fd = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

} // namespace

bool ProgramInstaller::install(const QString &source, const QString &target, qint64 expectedBytes, QString *why)
{
    const QString temp = temporaryFile(target);
    QFile in(source);
    if (!in.open(QIODevice::ReadOnly))
        return failed(temp, why, QStringLiteral("cannot read %1: %2").arg(source, in.errorString()));
    if (expectedBytes >= 0 && in.size() != expectedBytes)
        return failed(temp, why, QStringLiteral("%1 has %2 bytes, the USB disk had %3").arg(source).arg(in.size()).arg(expectedBytes));
    QDir().mkpath(QFileInfo(target).absolutePath());
    QFile::remove(temp);
    QFile out(temp);
    if (!out.open(QIODevice::WriteOnly))
        return failed(temp, why, QStringLiteral("cannot write %1: %2").arg(temp, out.errorString()));
    qint64 copied = 0;
    while (!in.atEnd()) {
        const QByteArray chunk = in.read(256 * 1024);
        if (chunk.isEmpty() || out.write(chunk) != chunk.size())
            return failed(temp, why, QStringLiteral("writing %1 failed: %2").arg(temp, out.errorString()));
        copied += chunk.size();
    }
    if (!out.flush() || ::fsync(out.handle()) != 0)
        return failed(temp, why, QStringLiteral("writing %1 failed: %2").arg(temp, out.errorString()));
    out.close();
    if (copied != in.size() || QFileInfo(temp).size() != in.size())
        return failed(temp, why, QStringLiteral("%1 is %2 bytes instead of %3").arg(temp).arg(QFileInfo(temp).size()).arg(in.size()));
    if (!out.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner
                            | QFileDevice::ReadGroup | QFileDevice::ExeGroup | QFileDevice::ReadOther
                            | QFileDevice::ExeOther))
        return failed(temp, why, QStringLiteral("cannot make %1 executable: %2").arg(temp, out.errorString()));
    QString notProgram;
    if (!Platform::isProgramForThisBoard(temp, &notProgram))
        return failed(temp, why, QStringLiteral("%1 is %2").arg(QFileInfo(source).fileName(), notProgram));
    // rename() replaces the old name in one step: the program is the old file or the new one.
    if (std::rename(QFile::encodeName(temp).constData(), QFile::encodeName(target).constData()) != 0)
        return failed(temp, why, QStringLiteral("cannot rename %1: %2").arg(temp, QString::fromLocal8Bit(std::strerror(errno))));
    syncFolder(QFileInfo(target).absolutePath());
    return true;
}
