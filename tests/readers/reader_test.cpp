#include "readers/reader.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "support/documents/compound_file_writer.h"
#include "support/documents/ovba_writer.h"

namespace zentlor::readers {
namespace {

class Reader : public ::testing::Test {
  protected:
    Reader() {
        std::string pattern = (std::filesystem::temp_directory_path() / "zentlor-reader-XXXXXX").string();
        folder_ = mkdtemp(pattern.data());
    }
    ~Reader() override { std::filesystem::remove_all(folder_); }

    std::string Path(const std::string& name) const { return (folder_ / name).string(); }
    std::string Write(const std::string& name, const std::string& bytes) const {
        std::ofstream(Path(name), std::ios::binary) << bytes;
        return Path(name);
    }

    std::filesystem::path folder_;
};

void ExpectFailure(const std::string& path, ReadFailure failure, const std::string& why, const Limits& limits = {}) {
    try {
        ReadDocument(path, limits);
        ADD_FAILURE() << why << " was read";
    } catch (const ReadError& error) {
        EXPECT_EQ(static_cast<int>(error.failure), static_cast<int>(failure)) << why << ": " << error.what();
        EXPECT_NE(error.sentence.english.find(path), std::string::npos) << error.sentence.english;
        EXPECT_NE(error.sentence.german.find(path), std::string::npos) << error.sentence.german;
    }
}

std::string BareProject() {
    test::TestProject project;
    project.modules = {test::StandardModule(u"M", "Dim a\r\n")};
    return test::WriteCompoundFile(test::WriteProject(project)).bytes;
}

TEST_F(Reader, RecognisesByContentNotByName) {
    EXPECT_EQ(ReadDocument(Write("Foto.jpg", BareProject()), Limits{}).modules.size(), 1u);
    ExpectFailure(Write("Leer.xlsm", ""), ReadFailure::NotADocument, "an empty file");
    ExpectFailure(Write("Text.xls", "Dim a\r\n"), ReadFailure::NotADocument, "a text");
    EXPECT_EQ(RecogniseFile(std::string("\0\1\0\0Standard Jet DB\0", 20)), FileKind::AccessDatabase);
    EXPECT_EQ(RecogniseFile(std::string("\0\1\0\0Standard ACE DB\0", 20)), FileKind::AccessDatabase);
    EXPECT_EQ(RecogniseFile("PK\3\4"), FileKind::Office);
    EXPECT_EQ(RecogniseFile("PK"), FileKind::Other);
}

TEST_F(Reader, OpensNothingButFiles) {
    ExpectFailure(Path("fehlt.xls"), ReadFailure::NotFound, "no such file");
    ExpectFailure(Path("fehlt/darin.xls"), ReadFailure::NotFound, "no such folder");
    ExpectFailure(Write("datei", "x") + "/darin.xls", ReadFailure::NotFound, "a file for a folder");
    ExpectFailure(folder_.string(), ReadFailure::NotAFile, "a folder");
    ASSERT_EQ(mkfifo(Path("rohr").c_str(), 0600), 0);
    ExpectFailure(Path("rohr"), ReadFailure::NotAFile, "a FIFO that nobody writes to");
    ExpectFailure("/dev/zero", ReadFailure::NotAFile, "a device without end");
    std::filesystem::create_symlink(Path("rohr"), Path("link"));
    ExpectFailure(Path("link"), ReadFailure::NotAFile, "a link to a FIFO");
}

TEST_F(Reader, SaysThatAFileMayNotBeRead) {
    if (geteuid() == 0) GTEST_SKIP() << "the superuser may read everything";
    const std::string path = Write("zu.xls", BareProject());
    std::filesystem::permissions(path, std::filesystem::perms::none);
    ExpectFailure(path, ReadFailure::NoPermission, "no permission");
}

TEST_F(Reader, BoundsTheSizeOfAFile) {
    Limits limits;
    limits.fileBytes = 1 << 20;
    const std::string path = Write("gross.xls", BareProject() + std::string(1 << 20, '\0'));
    ExpectFailure(path, ReadFailure::Limit, "larger than the limit", limits);
    limits.fileBytes = 2 << 20;
    EXPECT_EQ(ReadWholeFile(path, limits).size(), std::filesystem::file_size(path));
}

}  // namespace
}  // namespace zentlor::readers
