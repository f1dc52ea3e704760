#pragma once

#include "datamanagerbase.h"
#include "testdatabase.h"

// The application's data layer on a fresh database in a temporary sandbox:
// while it lives, the engine (slave link, burette, run controller) asks it
// as it asks the data layer on the instrument.
struct TestDataLayer {
    TestDatabase db;
    DataManagerBase dm;

    TestDataLayer() { dm.DataManagerLegacyInit(); }
    // What the engine wrote to the console pipe since the last call.
    QString console()
    {
        QString text;
        dm.engine()->getConsoleMes(&text);
        return text;
    }
};
