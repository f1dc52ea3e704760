#pragma once

#include <QFile>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTextStream>

// Plain text logs in numbered rings below "/var/Kestrum/log/": each log keeps
// a fixed number of files, <base>-001.txt to <base>-NNN.txt, and after the
// last the numbering comes round and overwrites the oldest. The number of the
// next file is kept in the log directory's "nextFileNum.txt".
class LogManager : public QObject
{
    Q_OBJECT
public:
    static constexpr int kOk = 0;
    static constexpr int kNotOpen = 2;

    explicit LogManager(QObject *parent = nullptr);
    ~LogManager() override;

    // The root of every log, as the target names it.
    static QString logRoot();

    int setLogfileDir(const QString &dir);
    int setLogfileBasename(const QString &name);
    int newCyclicFile(int maxFiles);
    int write(const QString &text);
    // Appends bytes as they are, with no text conversion and no allocation
    // once the file is open: for the per-sample rows of the data stores.
    int write(const char *text, qint64 length);
    int writeStamped(const QString &text);
    void listFiles(QStringList &names) const;
    void exportLogs(QString dir) const;

    QString directory() const { return m_directory; }
    QString currentFileName() const { return m_file.fileName(); }

private:
    int prepareDirectory();
    int takeNextNumber(int maxFiles);

    QString m_directory;
    QString m_dirArgument;
    QString m_baseName;
    QFile m_file;
    QTextStream m_stream;
    QString m_indexPath;
};
