#pragma once

#include <QString>
#include <QStringList>

// Opens the database file at start-up and brings it to this version, before
// any model exists. A file that can't be used is never changed: the session
// then runs on an empty database in memory, nothing it does is stored, and
// `message()` says why, for the log and the screen. A wipe restarts the
// service at most once per boot, so a file that keeps failing can't make the
// instrument restart in a loop.
class DatabaseStartup
{
public:
    enum class State { Ready, ReadOnly };

    // Opens `fileName` on the default connection and migrates it. Returns the
    // state the session runs in.
    static State open(const QString &fileName);

    // Empty when the file is in use; otherwise why, in English (the log).
    static QString message();
    // The same in the language of the screen, as it is when this is called.
    static QString translatedMessage();
    // Whether what this session does reaches the file (false on a file that
    // is read only, or when the session runs in memory).
    static bool stores();
    // Why the last `DataMigrator::migrate` could not use `fileName`, in the
    // words of the screen and the console; empty when it could.
    static QString reasonFor(const QString &fileName);

    // The marker of a restart asked for in this boot.
    static QString restartMarkerPath();

private:
    // A text of the screen with its arguments, kept so that it can be
    // translated when it is shown rather than when the file was opened.
    struct Text
    {
        const char *source = nullptr;
        QStringList args;
        QString shown(bool translated) const;
    };
    static Text reasonTextFor(const QString &fileName);
    static bool restartOncePerBoot();
    static State runReadOnly(const Text &why);
    static State readFileOnly(const Text &why);
    static void keep(const Text &why, const char *tail);
};
