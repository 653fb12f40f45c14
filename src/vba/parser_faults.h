#pragma once

// The faults that the parser found, kept as plain data until somebody wants to read them.

#include <cstdint>
#include <string>
#include <vector>

#include "core/utilities/text.h"
#include "vba/syntax.h"

namespace zentlor::vba {

enum class Fault : std::uint8_t {
#define EXPECTED(key, german, english) key,
#define FAULT(key, german, english) key,
#include "vba/parser_faults.def"
#undef EXPECTED
#undef FAULT
};

/// True for the faults that name what should stand at a place.
bool IsExpectation(Fault fault);

/// One fault at a place of the text. `word` is what the sentence quotes; for an expectation it is what stands there
/// instead, empty where the statement ends. `related` is the place that the sentence points to by its line.
struct FoundFault {
    std::uint32_t offset = 0;
    Fault fault = Fault::Expression;
    Text word;
    std::uint32_t related = 0;
};

using FoundFaults = std::vector<FoundFault>;

/// The faults with line and column, in the order of the text, not more than `kMaximumSyntaxErrors`.
std::vector<SyntaxError> Describe(TextView text, FoundFaults faults);

}  // namespace zentlor::vba
