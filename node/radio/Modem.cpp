#include "node/radio/Modem.h"

namespace node::radio
{

namespace
{

/// What a higher modulation must have to spare, so that its own back-off does not send it down again: the largest step
/// of back-off is 0.8 dB.
constexpr double Spare_dB = 1.0;

constexpr std::int32_t BlocksInSecond = 10; // one a tick
constexpr std::int32_t SeverelyErrored = 3; // of them

} // namespace

const Modulation& Modem::modulation() const
{
    return modulations()[current];
}

bool Modem::fall(double snir_dB)
{
    if (!locked || snir_dB >= modulation().requiredSnir_dB)
    {
        return false;
    }
    if (current > lowest)
    {
        --current;
    }
    else
    {
        locked = false;
    }
    return true;
}

void Modem::rise(double snir_dB)
{
    if (!locked)
    {
        locked = snir_dB >= modulation().requiredSnir_dB + Spare_dB;
    }
    else if (current < highest && snir_dB >= modulations()[current + 1].requiredSnir_dB + Spare_dB)
    {
        ++current;
    }
}

void Modem::countBlock(bool errored)
{
    erroredBlocks += errored ? 1 : 0;
    m_erroredOfSecond += errored ? 1 : 0;
    ++m_blocksOfSecond;
    if (m_blocksOfSecond == BlocksInSecond)
    {
        backgroundBlocks += m_erroredOfSecond < SeverelyErrored ? m_erroredOfSecond : 0;
        m_blocksOfSecond = 0;
        m_erroredOfSecond = 0;
    }
}

} // namespace node::radio
