#include "interfaces/slavelink.h"

#include <cstring>

mspInfoRecord::mspInfoRecord()
{
    std::memset(version, 'x', sizeof(version));
    std::memset(lastError, ' ', sizeof(lastError));
    std::memset(serialNumber, 'y', 15);
    serialNumber[15] = '\0';
}

QString mspInfoRecord::versionText() const
{
    return QString::fromLatin1(version, int(strnlen(version, sizeof(version))));
}

QString mspInfoRecord::serialText() const
{
    return QString::fromLatin1(serialNumber, int(strnlen(serialNumber, sizeof(serialNumber))));
}

QString mspInfoRecord::lastErrorText() const
{
    return QString::fromLatin1(lastError, int(strnlen(lastError, sizeof(lastError))));
}
