// Reading a line of the remote command port: prefix matching in a fixed
// order, word splitting, the clock's argument forms.

#include "controller/remotecommand.h"

#include <gtest/gtest.h>

namespace {

struct Case {
    const char *line;
    RemoteCommand::Kind kind;
    bool flag;      // daqOn, or qdbOn
    RemoteCommand::BeepAction beep;
    int frequency;
    int duration;
};

using K = RemoteCommand;
const Case kCases[] = {
    {"daq\r", K::Daq, false, K::BeepThreeSeconds, 0, 0},
    {"DAQ ON\r", K::Daq, true, K::BeepThreeSeconds, 0, 0},
    {"daq  xonx \r\n", K::Daq, true, K::BeepThreeSeconds, 0, 0},
    {"daq on off\r", K::Daq, false, K::BeepThreeSeconds, 0, 0},
    {"daqoff\r", K::Daq, false, K::BeepThreeSeconds, 0, 0},
    {"beep\r", K::Beep, false, K::BeepThreeSeconds, 0, 0},
    {"BEEPER\r", K::Beep, false, K::BeepThreeSeconds, 0, 0},
    {"beep on\r", K::Beep, false, K::BeepOn, 0, 0},
    {"beep off\r", K::Beep, false, K::BeepStop, 0, 0},
    {"beep 880 250\r", K::Beep, false, K::BeepTone, 880, 250},
    {"beep loud 0x10 9\r", K::Beep, false, K::BeepTone, 0, 0},
    {"RtcGet\r", K::RtcGet, false, K::BeepThreeSeconds, 0, 0},
    {"sys_reset\r", K::SysReset, false, K::BeepThreeSeconds, 0, 0},
    {"app_version\r", K::AppVersion, false, K::BeepThreeSeconds, 0, 0},
    {"MODEL_TYPE\r", K::ModelType, false, K::BeepThreeSeconds, 0, 0},
    {"qdb onward\r", K::Qdb, true, K::BeepThreeSeconds, 0, 0},
    {"QDB Off\r", K::Qdb, false, K::BeepThreeSeconds, 0, 0},
    {"qdb\r", K::PassThrough, false, K::BeepThreeSeconds, 0, 0},
    {"SYSTEM\r", K::PassThrough, false, K::BeepThreeSeconds, 0, 0},
    {" app_version\r", K::PassThrough, false, K::BeepThreeSeconds, 0, 0},
};

class RemoteCommandParse : public ::testing::TestWithParam<Case> {};

} // namespace

TEST_P(RemoteCommandParse, Reads)
{
    const Case &c = GetParam();
    const RemoteCommand r = RemoteCommand::parse(QString::fromLatin1(c.line));
    EXPECT_EQ(r.kind, c.kind);
    EXPECT_EQ(r.kind == K::Qdb ? r.qdbOn : r.daqOn, c.flag);
    EXPECT_EQ(r.beep, c.beep);
    EXPECT_EQ(r.frequencyHz, c.frequency);
    EXPECT_EQ(r.durationMs, c.duration);
}

INSTANTIATE_TEST_SUITE_P(Lines, RemoteCommandParse, ::testing::ValuesIn(kCases));

TEST(RemoteCommand, ClockTakesLooseDigitsAsLocalTimeAndRefusesWhatIsNoDate)
{
    const struct { const char *line; const char *set; } cases[] = {
        {"rtcset 2024-3-9 7:05:00\r", "2024-03-09 07:05:00"},
        {"RTCSET 2026-12-31 23:59:59\r\n", "2026-12-31 23:59:59"},
        {"rtcset 2024-2-30 7:05:00\r", ""},
        {"rtcset 2024-3-9 25:00:00\r", ""},
        {"rtcset\r", ""},
        {"rtcset 2024-3-9\r", ""},
        {"rtcset;reboot\r", ""},
    };
    for (const auto &c : cases) {
        const RemoteCommand r = RemoteCommand::parse(QString::fromLatin1(c.line));
        EXPECT_EQ(r.kind, K::RtcSet) << c.line;
        EXPECT_EQ(r.clock.toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")), QString::fromLatin1(c.set)) << c.line;
        if (r.clock.isValid()) {
            EXPECT_EQ(r.clock.timeSpec(), Qt::LocalTime);
        }
    }
}
