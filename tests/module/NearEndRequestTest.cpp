#include <array>
#include <cstring>

#include "module/CtStatusTest.h"

namespace
{

using Bytes = std::array<unsigned char, 88>;

void putWord(Bytes& bytes, std::size_t offset, std::uint32_t word)
{
    std::memcpy(bytes.data() + offset, &word, sizeof word);
}

/// What the near end receives for a channel. Bytes 62 to 67 and 69 to 74 mean nothing to it; they are zero, for
/// nothing uninitialised leaves the module.
Bytes requestFor(RadioChannel channel)
{
    Bytes bytes{};
    putWord(bytes, 0, channel);
    bytes[4] = 1;
    putWord(bytes, 20, 143);
    putWord(bytes, 28, 143);
    putWord(bytes, 36, 1000);
    bytes[60] = 1;
    return bytes;
}

using NearEndRequestTest = CtStatusTest;

TEST_F(NearEndRequestTest, EveryByteOfTheRequestIsFixedButTheChannel)
{
    reportOf(1);
    EXPECT_EQ(requestFor(1), nearEnd.requestBytes);
    reportOf(2);
    EXPECT_EQ(requestFor(2), nearEnd.requestBytes);
}

TEST_F(NearEndRequestTest, RecordToFillIsEmptyWithEveryCall)
{
    for (int call = 1; call <= 2; ++call)
    {
        nearEnd.received = {1, 1, 1, "1", "1", "1", 1, 1, 1, 1};
        reportOf(1);
        EXPECT_EQ(0, nearEnd.received.radioChannelId);
        EXPECT_EQ(0, nearEnd.received.flag2);
        EXPECT_EQ(0, nearEnd.received.radioFrameId);
        EXPECT_EQ("", nearEnd.received.minModulationAndCode);
        EXPECT_EQ("", nearEnd.received.maxModulationAndCode);
        EXPECT_EQ("", nearEnd.received.text6);
        EXPECT_EQ(0U, nearEnd.received.number7);
        EXPECT_EQ(0U, nearEnd.received.number8);
        EXPECT_EQ(0, nearEnd.received.number9);
        EXPECT_EQ(0U, nearEnd.received.number10);
    }
}

} // namespace
