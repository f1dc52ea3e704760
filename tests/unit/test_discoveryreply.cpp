// What counts as an instrument's discovery reply, and how the console prints
// one: fields in a fixed order, nothing of the sender's text taken on trust.

#include "discovercommand.h"
#include "system/networkdiscovery.h"

#include <gtest/gtest.h>

TEST(DiscoveryReply, OnlyAnObjectWithModelAndSerialIsAReplyAndItsLineIsClean)
{
    const struct { QByteArray datagram; const char *line; } cases[] = {
        {"discover", ""},
        {"", ""},
        {"[\"model\",\"serial\"]", ""},
        {"{\"model\":\"V410\"}", ""},
        {"{\"model\":\"V410\",\"serial\":\"S1\"}",
         "model=\"V410\" type=\"\" serial=\"S1\" ip=\"\" name=\"\" version=\"\" dbVersion=\"\" dbModTime=\"\" from=10.0.0.9"},
        {"{\"model\":\"V4\\u001b[2J\\n\",\"serial\":7,\"name\":\"" + QByteArray(150, 'n') + "\"}",
         "model=\"V4?[2J?\" type=\"\" serial=\"\" ip=\"\" name=\"" + QByteArray(100, 'n')
             + "\" version=\"\" dbVersion=\"\" dbModTime=\"\" from=10.0.0.9"},
        {"{\"model\":\"V410\",\"serial\":\"S1\",\"pad\":\"" + QByteArray(4100, ' ') + "\"}", ""},
    };
    for (const auto &c : cases) {
        EXPECT_EQ(DiscoverCommand::replyLine(c.datagram, QStringLiteral("10.0.0.9")), QString::fromLatin1(c.line))
            << c.datagram.left(40).constData();
        EXPECT_EQ(NetworkDiscovery::isReply(c.datagram), c.datagram.startsWith("{\"model\":\"V4") && c.datagram.contains("serial"));
    }
}
