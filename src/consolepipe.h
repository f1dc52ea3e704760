#pragma once

#include <QString>

// The engine's text for the remote port's console: appended by the engine,
// handed over once to whoever reads it. Unread text is bounded: only the
// newest `limit` characters are kept, so a run with nobody listening can't
// grow it.
class ConsolePipe
{
public:
    static constexpr int limit = 64 * 1024;

    void send(const QString &text);
    // Appends the unread text to `text` (when given); false when there was none.
    bool take(QString *text);

private:
    QString m_text;
    bool m_new = false;
};
