// The burette controller's doses against the slave in-process: which motions
// a dose becomes when the cylinder cannot hold it, and the controller's count.

#include "controller/burettecontroller.h"
#include "controller/enginedatastandin.h"
#include "fakeslavelink.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

#include <vector>

namespace {

struct DoseCase {
    const char *name;
    std::vector<int> dosesUl;       // one after the other, each to its end
    QStringList motions;
    int position;
};

class BuretteDoses : public ::testing::TestWithParam<DoseCase>
{
};

TEST_P(BuretteDoses, SplitAroundRefillsAndCounted)
{
    const DoseCase &c = GetParam();
    EngineDataStandIn data; // a 10 mL burette
    data.buretteSizeMl = 10.f;
    EngineData::set(&data);
    FakeSlaveLink slave;
    slave.info.buretteSize = 10;
    BuretteController bc(&slave);
    QSignalSpy completed(&bc, &BuretteController::backendDispenseCompleted);

    int total = 0;
    for (int dose : c.dosesUl) {
        bc.dispense_ul(dose);
        total += dose;
        EXPECT_TRUE(data.getDispenseInProgress()) << "until the whole dose is in";
        for (int tick = 0; tick < 50 && bc.state() != BuretteController::BURETTE_IDLE; ++tick)
            bc.execute();
        EXPECT_EQ(bc.state(), BuretteController::BURETTE_IDLE);
    }
    EXPECT_EQ(completed.count(), int(c.dosesUl.size())) << "one completion per dose, split or not";
    EXPECT_EQ(slave.commands.join(QLatin1Char(',')), c.motions.join(QLatin1Char(',')));
    EXPECT_EQ(bc.getTotalDispensed(), total);
    EXPECT_EQ(bc.position(), c.position) << "never beyond the cylinder";
    EngineData::set(nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Cylinder, BuretteDoses,
    ::testing::Values(
        DoseCase{"LargerThanWhatIsLeft", {7000, 6000}, {"BDS 7000", "BDS 3000", "SH", "BDS 3000"}, 3000},
        DoseCase{"MoreThanACylinderAndWhatIsLeft", {4000, 23000},
                 {"BDS 4000", "BDS 6000", "SH", "BDS 10000", "SH", "BDS 7000"}, 7000},
        DoseCase{"EndingExactlyAtCapacityThenAnother", {4000, 6000, 2500},
                 {"BDS 4000", "BDS 6000", "SH", "BDS 2500"}, 2500}),
    [](const ::testing::TestParamInfo<DoseCase> &info) { return std::string(info.param.name); });

} // namespace
