#include "readers/ovba_decompress.h"

#include <gtest/gtest.h>

#include <random>

#include "support/documents/bytes.h"
#include "support/documents/ovba_writer.h"

namespace zentlor::readers {
namespace {

using test::CompressContainer;

// A container of one compressed chunk with these tokens.
std::string Chunk(const std::string& tokens) {
    std::string bytes(1, '\1');
    test::Put16(bytes, static_cast<std::uint32_t>((tokens.size() - 1) | 0xB000));
    return bytes + tokens;
}

std::string Bytes(std::initializer_list<int> values) {
    std::string bytes;
    for (int value : values) bytes.push_back(static_cast<char>(value));
    return bytes;
}

TEST(OvbaDecompress, FollowsTheTokens) {
    struct Row {
        const char* why;
        std::string container;
        std::string expected;
        DecompressEnd end;
    };
    const std::string half = CompressContainer(std::string(4096, 'a') + "tail");
    const Row rows[] = {
        {"eight literals", Chunk(Bytes({0, 'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h'})), "abcdefgh",
         DecompressEnd::Complete},
        {"a copy of what it writes itself", Chunk(Bytes({2, 'a', 0x06, 0x00})), "aaaaaaaaaa", DecompressEnd::Complete},
        {"a copy of an earlier place", Chunk(Bytes({8, 'a', 'b', 'c', 0x00, 0x20})), "abcabc", DecompressEnd::Complete},
        {"a copy from before the chunk", Chunk(Bytes({2, 'a', 0x00, 0x10})), "a", DecompressEnd::BadToken},
        {"a copy in front of everything", Chunk(Bytes({1, 0x00, 0x00})), "", DecompressEnd::BadToken},
        {"half a copy", Chunk(Bytes({2, 'a', 0x00})), "a", DecompressEnd::BadToken},
        {"a copy beyond 4096 bytes", Chunk(Bytes({6, 'a', 0xFC, 0x0F, 0x00, 0x00})), std::string(4096, 'a'),
         DecompressEnd::BadToken},
        {"no container", "\2abc", "", DecompressEnd::NoContainer},
        {"nothing", "", "", DecompressEnd::NoContainer},
        {"an empty container", "\1", "", DecompressEnd::Complete},
        {"a first chunk without signature", Bytes({1, 0x05, 0x00, 1, 2, 3}), "", DecompressEnd::NoContainer},
        {"bytes behind the last chunk", Chunk(Bytes({0, 'a', 'b'})) + Bytes({0, 0, 7, 7}), "ab",
         DecompressEnd::Complete},
        {"one byte behind the last chunk", Chunk(Bytes({0, 'a'})) + "\xB0", "a", DecompressEnd::Complete},
        {"a chunk that ends early", half.substr(0, half.size() - 2), std::string(4096, 'a') + "ta",
         DecompressEnd::Truncated},
    };
    for (const Row& row : rows) {
        const Decompressed result = DecompressContainer(row.container, 1 << 20);
        EXPECT_EQ(result.bytes, row.expected) << row.why;
        EXPECT_EQ(static_cast<int>(result.end), static_cast<int>(row.end)) << row.why;
    }
}

TEST(OvbaDecompress, GivesBackWhatWasCompressed) {
    std::mt19937 random(1);
    for (std::size_t size : {std::size_t{1}, std::size_t{17}, std::size_t{4095}, std::size_t{4096}, std::size_t{4097},
                             std::size_t{20000}}) {
        for (int letters : {1, 3, 40, 256}) {
            std::string bytes;
            while (bytes.size() < size) bytes.push_back(static_cast<char>(random() % static_cast<unsigned>(letters)));
            // The writer stores a chunk that does not get smaller as it is, filled up with zeros.
            const Decompressed result = DecompressContainer(CompressContainer(bytes), 1 << 20);
            EXPECT_EQ(result.bytes.substr(0, size), bytes) << size << " bytes of " << letters << " letters";
            EXPECT_EQ(result.bytes.find_first_not_of('\0', size), std::string::npos);
            EXPECT_EQ(static_cast<int>(result.end), static_cast<int>(DecompressEnd::Complete));
        }
    }
}

TEST(OvbaDecompress, ReadsChunksStoredAsTheyAre) {
    const std::string bytes(5000, 'x');
    const Decompressed result = DecompressContainer(CompressContainer(bytes, true), 1 << 20);
    EXPECT_EQ(result.bytes, bytes + std::string(8192 - 5000, '\0'));
}

TEST(OvbaDecompress, StopsAtTheLimitHoweverSmallTheContainer) {
    const std::string bomb = CompressContainer(std::string(1 << 20, 'x'));
    ASSERT_LT(bomb.size(), std::size_t{1} << 13);
    const Decompressed result = DecompressContainer(bomb, 100000);
    EXPECT_EQ(result.bytes.size(), 100000u);
    EXPECT_EQ(static_cast<int>(result.end), static_cast<int>(DecompressEnd::Limit));
}

}  // namespace
}  // namespace zentlor::readers
