#pragma once

// The modules that a second, independent program found in a real document, and their comparison with those that a
// reader delivers. The documents lie in the folder that ZENTLOR_REAL_DATA names.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "core/utilities/encoding.h"
#include "readers/document.h"

namespace zentlor::test {

struct RealModule {
    const char* name;
    int type;
    long lines;          ///< ends of lines
    std::uint64_t hash;  ///< FNV-1a (64 bits) over the UTF-8 of the code
};

inline std::uint64_t Fnv1a(const std::string& bytes) {
    std::uint64_t hash = 0xcbf29ce484222325ull;
    for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3ull;
    return hash;
}

inline void ExpectModules(const readers::Document& document, const std::vector<RealModule>& expected) {
    ASSERT_EQ(document.modules.size(), expected.size()) << document.path;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const readers::SourceModule& module = document.modules[i];
        const std::string where = document.path + ", " + expected[i].name;
        EXPECT_EQ(ToUtf8(module.name), expected[i].name) << where;
        EXPECT_EQ(static_cast<int>(module.type), expected[i].type) << where;
        EXPECT_EQ(std::count(module.code.begin(), module.code.end(), u'\n'), expected[i].lines) << where;
        EXPECT_EQ(Fnv1a(ToUtf8(module.code)), expected[i].hash) << where;
    }
}

}  // namespace zentlor::test
