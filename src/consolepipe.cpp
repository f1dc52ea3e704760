#include "consolepipe.h"

void ConsolePipe::send(const QString &text)
{
    m_text += text;
    if (m_text.size() > limit)
        m_text.remove(0, m_text.size() - limit);
    m_new = true;
}

bool ConsolePipe::take(QString *text)
{
    if (!m_new)
        return false;
    if (text)
        text->append(m_text);
    m_text.clear();
    m_new = false;
    return true;
}
