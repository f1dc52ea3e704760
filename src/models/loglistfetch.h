#pragma once

#include <QList>
#include <QObject>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTimer>

#include <functional>
#include <memory>

// A log list for the screens, loaded one row per timer tick: a log row is
// wide, and a list of hundreds built at once would hold the event loop.
// A new fetch moves the list to the old list; the old entries live until the
// fetch has ended, so a delegate never points to a freed entry.
template <class Entry>
class LogListFetch
{
public:
    using Build = std::function<Entry *(const QSqlRecord &row)>;
    static constexpr int tickMs = 10;

    LogListFetch(Build build, std::function<void()> changed)
        : m_build(std::move(build)), m_changed(std::move(changed))
    {
        m_timer.setInterval(tickMs);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { tick(); });
    }
    ~LogListFetch()
    {
        qDeleteAll(m_list);
        qDeleteAll(m_old);
    }
    LogListFetch(const LogListFetch &) = delete;
    LogListFetch &operator=(const LogListFetch &) = delete;

    // Called after each row added to the list.
    void setChanged(std::function<void()> changed) { m_changed = std::move(changed); }
    QList<Entry *> &list() { return m_list; }
    bool running() const { return m_timer.isActive(); }

    // Runs the query, newest first, and starts the ticks. The query stays
    // open between ticks; `prepare` may look at it before the first row.
    bool start(const QString &sql, const std::function<void(QSqlQuery &)> &prepare = {})
    {
        m_timer.stop();
        m_old.append(m_list);
        m_list.clear();
        m_query = std::make_unique<QSqlQuery>();
        if (!m_query->exec(sql)) {
            stop();
            return false;
        }
        if (prepare)
            prepare(*m_query);
        m_timer.start();
        return true;
    }

    // One row into the list; an exhausted query ends the fetch.
    bool tick()
    {
        if (m_query && m_query->isActive() && m_query->next()) {
            const QSqlRecord row = m_query->record();
            if (Entry *entry = m_build(row)) {
                m_list.append(entry);
                if (m_changed)
                    m_changed();
            }
            return true;
        }
        stop();
        return false;
    }

    // Ends the fetch (the list keeps what it has) and lets the old entries go.
    void stop()
    {
        m_timer.stop();
        m_query.reset();
        for (Entry *entry : qAsConst(m_old))
            entry->deleteLater();
        m_old.clear();
    }

private:
    Build m_build;
    std::function<void()> m_changed;
    QTimer m_timer;
    std::unique_ptr<QSqlQuery> m_query;
    QList<Entry *> m_list;
    QList<Entry *> m_old;
};
