#pragma once

// One row of a data store's log, "a, b, c\r\n", built in a fixed buffer so
// that logging a point costs no allocation for the text. Numbers are written
// as the logs have always shown them: integers plainly, doubles with six
// significant digits ("%g").
class StoreLogRow
{
public:
    StoreLogRow &add(long value);
    StoreLogRow &add(double value);
    // Closes the row with "\r\n".
    void end();

    const char *text() const { return m_text; }
    int length() const { return m_length; }

private:
    void separate();
    void append(const char *format, ...);

    char m_text[192] = {};
    int m_length = 0;
    bool m_first = true;
};
