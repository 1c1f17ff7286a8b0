#pragma once

#include <ostream>
#include <string>

#include <gtest/gtest.h>

#include "node/report/Field.h"

namespace node::report
{

/// How a test shows a field that it did not expect.
inline void PrintTo(const Field& field, std::ostream* out)
{
    *out << '{' << ::testing::PrintToString(field.under) << ", " << ::testing::PrintToString(field.label) << ", "
         << ::testing::PrintToString(field.value) << ", " << ::testing::PrintToString(field.unit) << '}';
}

} // namespace node::report
