#pragma once

// Writes zips: stored and deflated parts, and sizes that lie where a test wants them to.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zentlor::test {

struct ZipTestPart {
    std::string name;
    std::string bytes;
    bool deflated = true;
    /// The unpacked size that the zip claims, if it is to lie.
    std::optional<std::uint32_t> claimedSize = std::nullopt;
    /// The head in front of the data leaves the sizes open, and they stand behind the data.
    bool sizesFollow = false;
};

std::string WriteZip(const std::vector<ZipTestPart>& parts);

/// The parts of a macro-enabled workbook around `vbaProject`, the bytes of its compound file.
std::vector<ZipTestPart> WorkbookParts(const std::string& vbaProject);

/// `bytes` deflated, with or without zlib's head and check sum.
std::string Deflate(const std::string& bytes, bool withHead);

}  // namespace zentlor::test
