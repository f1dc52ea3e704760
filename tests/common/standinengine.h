#pragma once

#include "controller/enginedatastandin.h"
#include "system/clock.h"

#include <gtest/gtest.h>

// A test of the engine without the data layer or the wall clock: the
// stand-in answers the engine (a 20 mL burette and volume limit) and the
// manual clock gives the time, both installed while the test lives.
class StandInEngineTest : public ::testing::Test
{
protected:
    StandInEngineTest()
    {
        Clock::setSource(&clock);
        EngineData::set(&dm);
        dm.maxVolmL = 20.f;
        dm.buretteSizeMl = 20.f;
    }
    ~StandInEngineTest() override
    {
        Clock::setSource(nullptr);
        EngineData::set(nullptr);
    }

    ManualClock clock;
    EngineDataStandIn dm;
};
