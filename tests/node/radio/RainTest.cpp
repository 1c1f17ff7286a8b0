#include <ostream>

#include <gtest/gtest.h>

#include "node/radio/Rain.h"

using node::radio::Polarisation;
using node::radio::rainAttenuation_dB;
using node::radio::rainCoefficients;
using enum Polarisation;

namespace
{

/// A printed value is right to half of its last digit; the hundredth more is for values that lie between two digits.
constexpr double HalfADigit = 0.51;

/// Half of the last digit of a value that is given with four decimals.
constexpr double FourDecimals = 0.00005;

struct Coefficients
{
    double frequency_GHz;
    Polarisation polarisation;
    double k;
    double lastDigitOfK;
    double alpha;
};

std::ostream& operator<<(std::ostream& out, const Coefficients& row)
{
    return out << row.frequency_GHz << " GHz " << (row.polarisation == Horizontal ? "horizontal" : "vertical");
}

class RainCoefficientsTest : public ::testing::TestWithParam<Coefficients>
{
};

TEST_P(RainCoefficientsTest, HaveTheRecommendationsValues)
{
    const Coefficients& row = GetParam();
    const auto [k, alpha] = rainCoefficients(row.frequency_GHz, row.polarisation);
    EXPECT_NEAR(row.k, k, HalfADigit * row.lastDigitOfK);
    EXPECT_NEAR(row.alpha, alpha, HalfADigit * 1e-4);
}

// ITU-R P.838-3, Table 5.
INSTANTIATE_TEST_SUITE_P(
    EachBand, RainCoefficientsTest,
    ::testing::Values(
        Coefficients{7, Horizontal, 0.001915, 1e-6, 1.4810}, Coefficients{7, Vertical, 0.001425, 1e-6, 1.4745},
        Coefficients{15, Horizontal, 0.04481, 1e-5, 1.1233}, Coefficients{15, Vertical, 0.05008, 1e-5, 1.0440},
        Coefficients{18, Horizontal, 0.07078, 1e-5, 1.0818}, Coefficients{18, Vertical, 0.07708, 1e-5, 1.0025},
        Coefficients{23, Horizontal, 0.1286, 1e-4, 1.0214}, Coefficients{23, Vertical, 0.1284, 1e-4, 0.9630},
        Coefficients{38, Horizontal, 0.4001, 1e-4, 0.8816}, Coefficients{38, Vertical, 0.3844, 1e-4, 0.8552},
        Coefficients{80, Horizontal, 1.1704, 1e-4, 0.7115}, Coefficients{80, Vertical, 1.1668, 1e-4, 0.7021}));

TEST(RainTest, CoefficientsBetweenThePrintedFrequenciesHaveTheirReferenceValues)
{
    const auto [k, alpha] = rainCoefficients(17.7275, Vertical);
    EXPECT_NEAR(0.074576, k, HalfADigit * 1e-6);
    EXPECT_NEAR(1.005363, alpha, HalfADigit * 1e-6);
}

TEST(RainTest, AttenuationOverAHopHasItsReferenceValues)
{
    EXPECT_NEAR(1.3009, rainAttenuation_dB(20, Horizontal, 1, 10), FourDecimals);
    EXPECT_NEAR(8.1584, rainAttenuation_dB(20, Horizontal, 10, 10), FourDecimals);
    EXPECT_NEAR(15.4376, rainAttenuation_dB(18, Vertical, 10, 30), FourDecimals);
}

TEST(RainTest, NoRainTakesNothing)
{
    EXPECT_EQ(0.0, rainAttenuation_dB(18, Vertical, 0, 10));
    EXPECT_EQ(0.0, rainAttenuation_dB(18, Vertical, 0, 30));
    EXPECT_EQ(0.0, rainAttenuation_dB(18, Horizontal, -1, 10));
}

// Unclamped, the factor is -1 / 0.54 and -1 / 0.48 here.
TEST(RainTest, DrizzleOnALongHopTakesTwoAndAHalfTimesItsLength)
{
    EXPECT_NEAR(0.4397, rainAttenuation_dB(18, Horizontal, 0.1, 30), FourDecimals);
    EXPECT_NEAR(0.5747, rainAttenuation_dB(18, Vertical, 0.1, 30), FourDecimals);
}

TEST(RainTest, AShortHopIsTakenTwoAndAHalfTimesAsLong)
{
    EXPECT_NEAR(1.4690, rainAttenuation_dB(80, Vertical, 10, 0.1), FourDecimals);
}

// The fit alone falls to 4.9287 dB at 1 mm/h, from 4.9384 dB at the rate where its factor leaves the largest one.
TEST(RainTest, AttenuationStaysWhereTheFitWouldLetItFall)
{
    constexpr double Left_mm_per_h = 0.935348;
    EXPECT_NEAR(4.9384, rainAttenuation_dB(18, Horizontal, Left_mm_per_h, 30), 2 * FourDecimals);
    EXPECT_NEAR(4.9384, rainAttenuation_dB(18, Horizontal, 1, 30), 2 * FourDecimals);
    EXPECT_NEAR(5.2976, rainAttenuation_dB(18, Horizontal, 1.5, 30), FourDecimals);
}

} // namespace
