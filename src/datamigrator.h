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
        Unreadable,  // not a database, or its version can't be read: untouched
        LeftAsFound, // could not be migrated nor saved: untouched
    };
    Outcome outcome() const { return m_outcome; }

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
    Outcome m_outcome = Outcome::Current;
};
