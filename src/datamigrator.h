#pragma once

#include <QObject>
#include <QString>

// Decides at start-up, before any model exists, whether the database file
// can be used as it is, must be brought forward from an older schema, or
// must be saved to JSON and emptied.
class DataMigrator : public QObject
{
    Q_OBJECT
public:
    static DataMigrator *dmPtr();

    // What the last `migrate` did with the file.
    enum class Outcome {
        Current,     // the file is of this version
        Migrated,    // brought forward, everything kept that the steps keep
        Wiped,       // saved to JSON and emptied: the service restarts
        Unreadable,  // damaged, not a database, or its version can't be read: untouched
        LeftAsFound, // could not be migrated nor saved: untouched
        Newer,       // of a newer or an unknown version: untouched
        ReadOnly,    // of this version, but it can't be written: read, never changed
    };
    Outcome outcome() const { return m_outcome; }
    // The version the last `migrate` found ("UNKNOWN" when there was none).
    QString foundVersion() const { return m_foundVersion; }
    // The error of the write test when the outcome is `ReadOnly`.
    QString writeError() const { return m_writeError; }
    // Whether this program knows the schema version: 1.1 up to the current one.
    static bool isKnownVersion(const QString &version);

    // True: safe to continue. False: the application must restart.
    bool migrate();
    // Asks every model in turn; all are asked even after one has failed.
    bool migrateModelsFrom(const QString &fromVersion);
    // The whole-file JSON copy written before the file is emptied.
    static QString backupFilePath();

public slots:
    // Saves the file to JSON, then empties it down to one `systemInfo` row of
    // the current version. Always returns false. A file with tables whose
    // copy can't be written completely is left as it is (`LeftAsFound`).
    bool wipeDatabaseRebuildSysInfo();
    void restartApp();
    // The older method backup on the USB disk, one file
    // /VantorPro/methods_backup.json with all methods, becomes one file per
    // method in /VantorPro/methods_backup/; the old file goes once they are
    // written. False without the old file, or when it could not be converted.
    bool migrateUSB();

private:
    explicit DataMigrator(QObject *parent = nullptr);
    // `PRAGMA quick_check` answers "ok": read only, so a damaged file is
    // never written to.
    static bool passesQuickCheck();
    // A change that is rolled back at once: whether the file takes writes.
    bool takesWrites();

    Outcome m_outcome = Outcome::Current;
    QString m_foundVersion;
    QString m_writeError;
};
