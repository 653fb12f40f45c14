// Writing a file in one step: what stays of the old one, and what a failure leaves.

#include "workspace/atomic_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <thread>

#include "core/utilities/encoding.h"
#include "core/utilities/failure_frame.h"

namespace zentlor::workspace {
namespace {

namespace fs = std::filesystem;

class AtomicFile : public testing::Test {
  protected:
    AtomicFile() { fs::create_directories(folder_); }
    ~AtomicFile() override { fs::remove_all(folder_); }

    void Put(const std::string& name, const std::string& content) {
        std::ofstream(folder_ / name, std::ios::binary) << content;
    }
    std::string Get(const fs::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void Write(const std::string& name, std::string_view bytes) {
        WriteFileAtomically((folder_ / name).string(), bytes);
    }
    long Files() { return std::distance(fs::directory_iterator(folder_), fs::directory_iterator()); }

    const fs::path folder_ = fs::temp_directory_path() / ("zentlor_atomic_" + std::to_string(::getpid()));
};

TEST_F(AtomicFile, WritesNewAndOldFiles) {
    const std::string large(3'000'000, 'x');
    const mode_t mask = ::umask(027);
    for (const std::string& bytes : {std::string("a\0b\r\n", 5), std::string(), large}) {
        Write("Prüfung.txt", bytes);
        EXPECT_EQ(Get(folder_ / "Prüfung.txt"), bytes);
    }
    ::umask(mask);
    EXPECT_EQ(fs::status(folder_ / "Prüfung.txt").permissions(), fs::perms(0640)) << "a new file obeys the umask";
    EXPECT_EQ(Files(), 1) << "no temporary file stays";
}

TEST_F(AtomicFile, ModeAndLinkStay) {
    Put("a.txt", "old");
    fs::permissions(folder_ / "a.txt", fs::perms(0604));
    fs::create_symlink("a.txt", folder_ / "link.txt");
    Write("link.txt", "new");
    EXPECT_TRUE(fs::is_symlink(folder_ / "link.txt"));
    EXPECT_EQ(Get(folder_ / "a.txt"), "new");
    EXPECT_EQ(fs::status(folder_ / "a.txt").permissions(), fs::perms(0604));
}

TEST_F(AtomicFile, WhatIsNoOrdinaryFileIsWrittenTo) {
    const fs::path pipe = folder_ / "pipe";
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::string read;
    std::thread reader([&] { read = Get(pipe); });
    Write("pipe", "through");
    reader.join();
    EXPECT_EQ(read, "through");
    EXPECT_TRUE(fs::is_fifo(pipe));
    WriteFileAtomically("/dev/null", "gone");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(AtomicFile, FailureNamesFileAndLeavesTheOldOne) {
    fs::create_directory(folder_ / "folder");
    Put("file", "old");
    struct Row {
        const char* why;
        std::string path;
        int number;
    };
    const Row rows[] = {
        {"no such folder", (folder_ / "nowhere/a.txt").string(), 76},
        {"a file in the folder's place", (folder_ / "file/a.txt").string(), 76},
        {"a folder in the file's place", (folder_ / "folder").string(), 75},
        {"a name that is too long", (folder_ / std::string(300, 'x')).string(), 75},
        {"a full disk", "/dev/full", 61},
        {"an empty name", "", 76},
    };
    for (const Row& row : rows) {
        try {
            WriteFileAtomically(row.path, "new");
            ADD_FAILURE() << row.why << ": written";
        } catch (const RuntimeError& failure) {
            EXPECT_EQ(failure.number, row.number) << row.why << ": " << failure.what();
            EXPECT_NE(std::string(failure.what()).find(row.path), std::string::npos) << failure.what();
        }
    }
    EXPECT_EQ(Get(folder_ / "file"), "old");
    EXPECT_EQ(Files(), 2);
}

TEST_F(AtomicFile, WithoutPermissionNothingChanges) {
    Put("a.txt", "old");
    // The superuser may do everything, so somebody else does this.
    constexpr uid_t kNobody = 65534;
    const bool superuser = ::geteuid() == 0;
    if (superuser) {
        ASSERT_EQ(::chown(folder_.c_str(), kNobody, kNobody), 0);
        ASSERT_EQ(::chown((folder_ / "a.txt").c_str(), kNobody, kNobody), 0);
        ASSERT_EQ(::seteuid(kNobody), 0);
    }
    const auto number = [&] {
        try {
            Write("a.txt", "new");
            return 0;
        } catch (const RuntimeError& failure) {
            return failure.number;
        }
    };
    fs::permissions(folder_ / "a.txt", fs::perms(0444));
    EXPECT_EQ(number(), 70) << "a read-only file is not replaced";
    fs::permissions(folder_ / "a.txt", fs::perms(0644));
    fs::permissions(folder_, fs::perms(0555));
    EXPECT_EQ(number(), 70) << "no room for the temporary file";
    fs::permissions(folder_, fs::perms(0755));
    EXPECT_EQ(Get(folder_ / "a.txt"), "old");
    EXPECT_EQ(Files(), 1);
    if (superuser) {
        ASSERT_EQ(::seteuid(0), 0);
    }
}

}  // namespace
}  // namespace zentlor::workspace
