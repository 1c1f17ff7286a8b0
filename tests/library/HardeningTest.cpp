#include <algorithm>
#include <ostream>
#include <regex>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "library/ElfFile.h"

using ::testing::AnyOf;
using ::testing::Contains;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;

namespace
{

/// What is delivered.
struct Built
{
    std::string name;
    std::string path;
};

std::ostream& operator<<(std::ostream& out, const Built& built)
{
    return out << built.name;
}

class HardeningTest : public ::testing::TestWithParam<Built>
{
protected:
    bool wants(const std::string& pattern) const
    {
        const std::regex name(pattern + "(@.*)?");
        return std::any_of(file.undefined().begin(), file.undefined().end(),
                           [&](const std::string& symbol) { return std::regex_match(symbol, name); });
    }

    const ElfFile file{GetParam().path};
};

TEST_P(HardeningTest, StackIsGuarded)
{
    EXPECT_TRUE(wants("__stack_chk_fail"));
}

TEST_P(HardeningTest, StackIsNotExecutable)
{
    EXPECT_THAT(file.segments("GNU_STACK"), ElementsAre("RW"));
}

TEST_P(HardeningTest, NoSegmentIsWritableAndExecutable)
{
    EXPECT_THAT(file.segments("LOAD"), Not(IsEmpty()));
    EXPECT_THAT(file.segments("LOAD"), Each(Not("RWE")));
}

TEST_P(HardeningTest, SymbolsAreBoundBeforeTheFirstCallAndCannotBeRebound)
{
    EXPECT_THAT(file.segments("GNU_RELRO"), SizeIs(1));
    EXPECT_THAT(file.dynamic("FLAGS"), Contains(HasSubstr("BIND_NOW")));
}

TEST_P(HardeningTest, IsLoadedAtAnyAddressWithoutWritingToItsCode)
{
    EXPECT_THAT(file.type(), AnyOf(HasSubstr("Shared object"), HasSubstr("Position-Independent Executable")));
    EXPECT_THAT(file.dynamic("TEXTREL"), IsEmpty());
    EXPECT_THAT(file.dynamic("FLAGS"), Each(Not(HasSubstr("TEXTREL"))));
}

INSTANTIATE_TEST_SUITE_P(Files, HardeningTest,
                         ::testing::Values(Built{"Library", KEL_LIBRARY}, Built{"Program", KEL_NODE_FILE}),
                         ::testing::PrintToStringParamName());

/// The library calls nothing of the C library that has a checked form with work left for it at run time.
TEST(FortifyTest, ProgramCallsTheCheckedFunctions)
{
    if (!KEL_IS_OPTIMISED)
    {
        GTEST_SKIP() << "the C library checks optimised code only";
    }
    const ElfFile program(KEL_NODE_FILE);
    const std::regex checked("__(?!stack).*_chk(@.*)?");
    EXPECT_TRUE(std::any_of(program.undefined().begin(), program.undefined().end(),
                            [&](const std::string& symbol) { return std::regex_match(symbol, checked); }));
}

} // namespace
