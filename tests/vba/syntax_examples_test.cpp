// The folder of faulty modules: each holds one fault, and the golden file tells where it is and what is said about it.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include "core/utilities/encoding.h"
#include "vba/syntax_report.h"

namespace zentlor::test {
namespace {

namespace fs = std::filesystem;

std::string ReadFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<fs::path> FaultyModules(const fs::path& folder) {
    std::vector<fs::path> paths;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        if (entry.path().extension() != ".txt") paths.push_back(entry.path());
    }
    std::ranges::sort(paths);
    return paths;
}

// "line:column sentence" becomes "file:line:column: sentence".
std::string WithFile(const fs::path& path, const std::string& report) {
    std::istringstream lines(report);
    std::string result;
    for (std::string line; std::getline(lines, line);) {
        result += path.filename().string() + ":" + line.replace(line.find(' '), 1, ": ") + "\n";
    }
    return result;
}

TEST(SyntaxExamples, EachFaultyModuleGivesItsOneError) {
    const fs::path folder = fs::path(ZENTLOR_SOURCE_DIR) / "examples" / "fehlerhaft";
    const std::vector<fs::path> paths = FaultyModules(folder);
    std::string reports;
    for (const fs::path& path : paths) {
        const std::string report = GermanSyntaxReport(FromUtf8(ReadFile(path)));
        EXPECT_EQ(std::ranges::count(report, '\n'), 1) << path;
        reports += WithFile(path, report);
    }
    EXPECT_GE(paths.size(), 60u);
    EXPECT_EQ(reports, ReadFile(folder / "expected.txt"));
}

}  // namespace
}  // namespace zentlor::test
