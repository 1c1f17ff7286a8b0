#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include "node/radio/Time.h"

namespace node::radio
{

/// A value over time: straight lines between points, level before the first and after the last. Without points, 0.
class Profile
{
public:
    struct Point
    {
        double at_s;
        double value;

        bool operator==(const Point&) const = default;
    };

    Profile() = default;

    /// @param points  with rising times
    explicit Profile(std::vector<Point> points);

    const std::vector<Point>& points() const;

    double valueAt(Ticks time) const;

    /// Forgets what was to come after `now`; from there, goes to `value` in a straight line and stays.
    void turnTo(double value, Ticks now, Ticks over);

    bool operator==(const Profile&) const = default;

private:
    std::vector<Point> m_points;
};

/// How the level trembles: a Gauss-Markov process about 0. The same seed gives the same values on every machine.
struct Scintillation
{
    double deviation_dB = 0.0;   ///< 0 for none
    double correlation_s = 10.0; ///< at least a tick

    bool operator==(const Scintillation&) const = default;
};

/// The values of a scintillation, tick by tick.
class Tremor
{
public:
    Tremor(const Scintillation& scintillation, std::uint64_t seed);

    double value_dB() const;

    /// One tick.
    void move();

private:
    Scintillation m_scintillation;
    std::mt19937_64 m_random;
    double m_value_dB = 0.0;
};

/// The weather over the hop, the same for both polarisations.
struct Weather
{
    Profile rain_mm_per_h;
    Profile fade_dB; ///< loss that is neither rain nor gas, such as multipath
    Scintillation scintillation;
    std::uint64_t seed = 1;

    bool operator==(const Weather&) const = default;
};

} // namespace node::radio
