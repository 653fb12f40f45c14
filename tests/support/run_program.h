#pragma once

// Runs a program of ours and hands back what it printed, for tests that look at it as its user does.

#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace zentlor::test {

inline std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

inline void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
}

/// A folder that goes with its owner.
class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "zentlor-test-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path = name;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    std::filesystem::path path;
};

struct ProgramResult {
    int status = -1;  ///< 128 + the signal's number where a signal ended it
    std::string out;
    std::string err;
};

/// Runs a shell command line.
inline ProgramResult RunProgram(const std::string& command) {
    const TemporaryFolder folder;
    const std::string err = (folder.path / "err").string();
    ProgramResult result;
    FILE* pipe = popen(("{ " + command + " ; } 2>" + err).c_str(), "r");
    std::array<char, 4096> buffer{};
    for (std::size_t n = 0; (n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;)
        result.out.append(buffer.data(), n);
    const int status = pclose(pipe);
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    result.err = ReadFile(err);
    return result;
}

}  // namespace zentlor::test
