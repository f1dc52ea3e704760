#include "fakeslavelink.h"

void FakeSlaveLink::dispense(int microlitres)
{
    commands << QStringLiteral("BDS %1").arg(microlitres);
    atLoad = false;
}

void FakeSlaveLink::setHomeBurette()
{
    commands << QStringLiteral("BHS");
    atLoad = true;
}

void FakeSlaveLink::setEndBurette()
{
    commands << QStringLiteral("BES");
    atLoad = false;
}

void FakeSlaveLink::stopAndHomeBurette()
{
    commands << QStringLiteral("SH");
    atLoad = true;
}

void FakeSlaveLink::setBuretteSize(int millilitres)
{
    commands << QStringLiteral("BSS %1").arg(millilitres);
    info.buretteSize = millilitres;
}
