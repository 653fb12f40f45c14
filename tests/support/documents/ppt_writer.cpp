#include "support/documents/ppt_writer.h"

#include "support/documents/bytes.h"
#include "support/documents/zip_writer.h"

namespace zentlor::test {

std::string PptRecord(std::uint16_t type, std::uint16_t instance, const std::string& body) {
    std::string record;
    Put16(record, static_cast<std::uint32_t>(instance << 4));
    Put16(record, type);
    Put32(record, static_cast<std::uint32_t>(body.size()));
    return record + body;
}

std::string PptStorageRecord(const std::string& compoundFile, bool packed) {
    if (!packed) return PptRecord(0x1011, 0, compoundFile);
    std::string body;
    Put32(body, static_cast<std::uint32_t>(compoundFile.size()));
    return PptRecord(0x1011, 1, body + Deflate(compoundFile, true));
}

}  // namespace zentlor::test
