#pragma once

#include <QObject>

// Whether a method's titrant counts as standardised (its newest
// standardisation run is newer than the titrant's last change), and the
// copy of a standardisation to a new method.
class StandardisationRecords : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

    bool isStandardized() const { return m_standardized; }
    void setStandardized(bool on);
    // Looks it up for a method and keeps the answer.
    bool fetch(int methodId);
    // The newest standardisation of one method, stored again for another.
    static bool copy(int originalMethodId, int newMethodId);

signals:
    void changed();

private:
    bool m_standardized = false;
};
