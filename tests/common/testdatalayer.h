#pragma once

#include "datamanagerbase.h"
#include "testdatabase.h"

#include <gtest/gtest.h>

#include <memory>

// The application's data layer as it starts: its models, log files and the
// method last changed loaded from the open database.
inline std::unique_ptr<DataManagerBase> startedDataManager()
{
    auto dm = std::make_unique<DataManagerBase>();
    dm->DataManagerLegacyInit();
    return dm;
}

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

// A test on a fresh database that starts the data layer itself, as often
// as it needs (a second start reads what the first stored).
class DataLayerTest : public ::testing::Test
{
protected:
    TestDatabase db;

    std::unique_ptr<DataManagerBase> start() { return startedDataManager(); }
};
