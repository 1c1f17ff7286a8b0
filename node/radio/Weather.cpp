#include "node/radio/Weather.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace node::radio
{

namespace
{

/// Close to normal with deviation 1, from additions alone: the standard's distributions differ from library to library.
double nearlyNormal(std::mt19937_64& random)
{
    constexpr int Terms = 12; // uniform numbers have a variance of 1/12 each
    constexpr int MantissaBits = 53;
    double sum = 0.0;
    for (int i = 0; i < Terms; ++i)
    {
        sum += std::ldexp(static_cast<double>(random() >> (64 - MantissaBits)), -MantissaBits);
    }
    return sum - Terms / 2.0;
}

} // namespace

Profile::Profile(std::vector<Point> points) : m_points(std::move(points))
{
}

const std::vector<Profile::Point>& Profile::points() const
{
    return m_points;
}

double Profile::valueAt(Ticks time) const
{
    if (m_points.empty())
    {
        return 0.0;
    }
    const double at_s = seconds(time);
    const auto after = std::upper_bound(m_points.begin(), m_points.end(), at_s,
                                        [](double moment_s, const Point& point) { return moment_s < point.at_s; });
    if (after == m_points.begin())
    {
        return m_points.front().value;
    }
    if (after == m_points.end())
    {
        return m_points.back().value;
    }
    const Point& before = *(after - 1);
    const double share = (at_s - before.at_s) / (after->at_s - before.at_s);
    return before.value + share * (after->value - before.value);
}

void Profile::turnTo(double value, Ticks now, Ticks over)
{
    const Point present{seconds(now), valueAt(now)};
    const Point last{seconds(now + over), value};
    m_points = over > Ticks(0) ? std::vector<Point>{present, last} : std::vector<Point>{last};
}

Tremor::Tremor(const Scintillation& scintillation, std::uint64_t seed) : m_scintillation(scintillation), m_random(seed)
{
}

double Tremor::value_dB() const
{
    return m_value_dB;
}

void Tremor::move()
{
    if (m_scintillation.deviation_dB > 0.0)
    {
        const double forgotten = seconds(Ticks(1)) / m_scintillation.correlation_s;
        const double fresh_dB = m_scintillation.deviation_dB * nearlyNormal(m_random);
        m_value_dB = (1.0 - forgotten) * m_value_dB + std::sqrt(forgotten * (2.0 - forgotten)) * fresh_dB;
    }
}

} // namespace node::radio
