#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "node/report/FieldText.h"
#include "node/startup/Node.h"

using node::report::Field;
using node::report::fieldsOf;
using ::testing::ElementsAreArray;

namespace
{

constexpr auto Report = R"(
=====================================
CT info channel 1
-------------------------------------

Tx Actual Status:         On
DSP Lock:                 Locked
Actual Tx Modulation:     4096QAM
Actual Rx Modulation:     4096QAM
Actual Rf Input Power:    -43.02 dBm
Reported Rf Output Power: 18 dBm
Actual SNIR:              43.91 dB
Tx Frequency:             17727500 kHz
Rx Frequency:             18737500 kHz
XPIC Started:             true
Actual XPI:               400
XPIC State:               Locked
Min Tx Frequency:         17727500 kHz
Max Tx Frequency:         18662500 kHz
Min Rx Frequency:         18737500 kHz
Max Rx Frequency:         19672500 kHz
Frequency Step Size:      250 kHz
Available Min Output Pwr: -2 dBm
Available Max Output Pwr: 
            HALF_BPSK_STRONG24.2 dBm
            HALF_BPSK     24 dBm
            HALF_BPSK_LIGHT23.8 dBm
            BPSK_STRONG   24.2 dBm
            BPSK          24 dBm
            BPSK_LIGHT    23.8 dBm
            4QAM_STRONG   24.2 dBm
            4QAM          24 dBm
            4QAM_LIGHT    23.8 dBm
            16QAM_STRONG  23 dBm
            16QAM         22.8 dBm
            16QAM_LIGHT   22.6 dBm
            32QAM_STRONG  22.4 dBm
            32QAM         22.2 dBm
            32QAM_LIGHT   22 dBm
            64QAM_STRONG  21.8 dBm
            64QAM         21.6 dBm
            64QAM_LIGHT   21.4 dBm
            128QAM_STRONG 21.2 dBm
            128QAM        21 dBm
            128QAM_LIGHT  20.8 dBm
            256QAM_STRONG 20.6 dBm
            256QAM        20.4 dBm
            256QAM_LIGHT  20.2 dBm
            512QAM_STRONG 20 dBm
            512QAM        19.8 dBm
            512QAM_LIGHT  19.6 dBm
            1024QAM_STRONG19.4 dBm
            1024QAM       19.2 dBm
            1024QAM_LIGHT 19 dBm
            2048QAM_STRONG18.8 dBm
            2048QAM       18.6 dBm
            2048QAM_LIGHT 18.4 dBm
            4096QAM_STRONG18.2 dBm
            4096QAM       18 dBm
            4096QAM_LIGHT 17.8 dBm
            8192QAM_STRONG17.6 dBm
            8192QAM       17.4 dBm
            8192QAM_LIGHT 17.2 dBm
            16384QAM_STRONG17 dBm
            16384QAM      16.8 dBm
            16384QAM_LIGHT16.6 dBm

Radio Channel Id:         1
Radio Frame Id:           1
Min Modulation and Code:  4QAM_STRONG
Max Modulation and Code:  4096QAM
)";

template <typename Number>
Field maxPower(const std::string& modulation, Number power_dBm)
{
    return {"Available Max Output Pwr", modulation, power_dBm, "dBm"};
}

const std::vector<Field> Fields = {
    // clang-format off
    Field{"", "Tx Actual Status", "On"},
    Field{"", "DSP Lock", "Locked"},
    Field{"", "Actual Tx Modulation", "4096QAM"},
    Field{"", "Actual Rx Modulation", "4096QAM"},
    Field{"", "Actual Rf Input Power", -43.02, "dBm"},
    Field{"", "Reported Rf Output Power", 18, "dBm"},
    Field{"", "Actual SNIR", 43.91, "dB"},
    Field{"", "Tx Frequency", 17727500, "kHz"},
    Field{"", "Rx Frequency", 18737500, "kHz"},
    Field{"", "XPIC Started", true},
    Field{"", "Actual XPI", 400},
    Field{"", "XPIC State", "Locked"},
    Field{"", "Min Tx Frequency", 17727500, "kHz"},
    Field{"", "Max Tx Frequency", 18662500, "kHz"},
    Field{"", "Min Rx Frequency", 18737500, "kHz"},
    Field{"", "Max Rx Frequency", 19672500, "kHz"},
    Field{"", "Frequency Step Size", 250, "kHz"},
    Field{"", "Available Min Output Pwr", -2, "dBm"},
    maxPower("HALF_BPSK_STRONG", 24.2),
    maxPower("HALF_BPSK", 24),
    maxPower("HALF_BPSK_LIGHT", 23.8),
    maxPower("BPSK_STRONG", 24.2),
    maxPower("BPSK", 24),
    maxPower("BPSK_LIGHT", 23.8),
    maxPower("4QAM_STRONG", 24.2),
    maxPower("4QAM", 24),
    maxPower("4QAM_LIGHT", 23.8),
    maxPower("16QAM_STRONG", 23),
    maxPower("16QAM", 22.8),
    maxPower("16QAM_LIGHT", 22.6),
    maxPower("32QAM_STRONG", 22.4),
    maxPower("32QAM", 22.2),
    maxPower("32QAM_LIGHT", 22),
    maxPower("64QAM_STRONG", 21.8),
    maxPower("64QAM", 21.6),
    maxPower("64QAM_LIGHT", 21.4),
    maxPower("128QAM_STRONG", 21.2),
    maxPower("128QAM", 21),
    maxPower("128QAM_LIGHT", 20.8),
    maxPower("256QAM_STRONG", 20.6),
    maxPower("256QAM", 20.4),
    maxPower("256QAM_LIGHT", 20.2),
    maxPower("512QAM_STRONG", 20),
    maxPower("512QAM", 19.8),
    maxPower("512QAM_LIGHT", 19.6),
    maxPower("1024QAM_STRONG", 19.4),
    maxPower("1024QAM", 19.2),
    maxPower("1024QAM_LIGHT", 19),
    maxPower("2048QAM_STRONG", 18.8),
    maxPower("2048QAM", 18.6),
    maxPower("2048QAM_LIGHT", 18.4),
    maxPower("4096QAM_STRONG", 18.2),
    maxPower("4096QAM", 18),
    maxPower("4096QAM_LIGHT", 17.8),
    maxPower("8192QAM_STRONG", 17.6),
    maxPower("8192QAM", 17.4),
    maxPower("8192QAM_LIGHT", 17.2),
    maxPower("16384QAM_STRONG", 17),
    maxPower("16384QAM", 16.8),
    maxPower("16384QAM_LIGHT", 16.6),
    Field{"", "Radio Channel Id", 1},
    Field{"", "Radio Frame Id", 1},
    Field{"", "Min Modulation and Code", "4QAM_STRONG"},
    Field{"", "Max Modulation and Code", "4096QAM"},
    // clang-format on
};

TEST(CtFieldsTest, TheReportIsThatOfTheModule)
{
    node::startup::Node node;
    std::string report;
    EXPECT_EQ(0, node.commands()->getCtStatus(1, report));
    EXPECT_EQ(Report, report);
}

TEST(CtFieldsTest, EveryValueIsAField)
{
    EXPECT_THAT(fieldsOf(Report), ElementsAreArray(Fields));
}

TEST(CtFieldsTest, ReportWithoutPowersHasItsOtherValues)
{
    const std::string report = R"(
=====================================
CT info channel 2
-------------------------------------

DSP Lock:                 Unlocked
Reported Rf Output Power: -110 dBm
XPIC Started:             false
Available Max Output Pwr: 

Radio Channel Id:         2
)";
    EXPECT_THAT(fieldsOf(report), ElementsAreArray(std::vector<Field>{{"", "DSP Lock", "Unlocked"},
                                                                      {"", "Reported Rf Output Power", -110, "dBm"},
                                                                      {"", "XPIC Started", false},
                                                                      {"", "Radio Channel Id", 2}}));
}

} // namespace
