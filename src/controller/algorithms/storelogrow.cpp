#include "controller/algorithms/storelogrow.h"

#include <cstdarg>
#include <cstdio>

void StoreLogRow::append(const char *format, ...)
{
    const int room = int(sizeof(m_text)) - m_length;
    if (room <= 1)
        return;
    va_list args;
    va_start(args, format);
    const int written = std::vsnprintf(m_text + m_length, size_t(room), format, args);
    va_end(args);
    if (written > 0)
        m_length += written < room ? written : room - 1;
}

void StoreLogRow::separate()
{
    if (!m_first)
        append(", ");
    m_first = false;
}

StoreLogRow &StoreLogRow::add(long value)
{
    separate();
    append("%ld", value);
    return *this;
}

StoreLogRow &StoreLogRow::add(double value)
{
    separate();
    append("%g", value);
    return *this;
}

void StoreLogRow::end()
{
    append("\r\n");
}
