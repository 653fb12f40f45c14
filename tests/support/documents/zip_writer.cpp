#include "support/documents/zip_writer.h"

#include <zlib.h>

#include "support/documents/bytes.h"

namespace zentlor::test {
namespace {

// What the local head and the directory have in common.
std::string CommonHead(const ZipTestPart& part, const std::string& packed) {
    std::string head;
    Put16(head, 20);
    Put16(head, part.sizesFollow ? 8 : 0);
    Put16(head, part.deflated ? 8 : 0);
    Put32(head, 0);
    Put32(head, static_cast<std::uint32_t>(
                    crc32(0, reinterpret_cast<const Bytef*>(part.bytes.data()), static_cast<uInt>(part.bytes.size()))));
    Put32(head, static_cast<std::uint32_t>(packed.size()));
    Put32(head, part.claimedSize.value_or(static_cast<std::uint32_t>(part.bytes.size())));
    Put16(head, static_cast<std::uint32_t>(part.name.size()));
    Put16(head, 0);
    return head;
}

}  // namespace

std::string Deflate(const std::string& bytes, bool withHead) {
    z_stream stream{};
    deflateInit2(&stream, 9, Z_DEFLATED, withHead ? 15 : -15, 9, Z_DEFAULT_STRATEGY);
    std::string out(deflateBound(&stream, static_cast<uLong>(bytes.size())), '\0');
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    deflate(&stream, Z_FINISH);
    out.resize(stream.total_out);
    deflateEnd(&stream);
    return out;
}

std::string WriteZip(const std::vector<ZipTestPart>& parts) {
    std::string zip, directory;
    for (const ZipTestPart& part : parts) {
        const std::string packed = part.deflated ? Deflate(part.bytes, false) : part.bytes;
        const std::string head = CommonHead(part, packed);
        directory.append("PK\1\2\x14\0", 6).append(head);
        Put32(directory, 0);  // comment's length, disk
        Put16(directory, 0);
        Put32(directory, 0);
        Put32(directory, static_cast<std::uint32_t>(zip.size()));
        directory += part.name;
        std::string localHead = head;
        // Check sum, packed and unpacked size.
        const std::string sizes = head.substr(10, 12);
        if (part.sizesFollow) localHead.replace(10, 12, 12, '\0');
        zip.append("PK\3\4").append(localHead).append(part.name).append(packed);
        if (part.sizesFollow) zip.append("PK\7\10").append(sizes);
    }
    const std::size_t start = zip.size();
    zip.append(directory).append("PK\5\6\0\0\0\0", 8);
    Put16(zip, static_cast<std::uint32_t>(parts.size()));
    Put16(zip, static_cast<std::uint32_t>(parts.size()));
    Put32(zip, static_cast<std::uint32_t>(directory.size()));
    Put32(zip, static_cast<std::uint32_t>(start));
    Put16(zip, 0);
    return zip;
}

std::vector<ZipTestPart> WorkbookParts(const std::string& vbaProject) {
    return {{"[Content_Types].xml",
             "<Types><Override PartName=\"/xl/workbook.xml\" "
             "ContentType=\"application/vnd.ms-excel.sheet.macroEnabled.main+xml\"/></Types>"},
            {"docProps/app.xml",
             "<Properties><Application>Microsoft Excel</Application><AppVersion>16.0300</AppVersion></Properties>"},
            {"xl/workbook.xml", "<workbook/>"},
            {"xl/vbaProject.bin", vbaProject}};
}

}  // namespace zentlor::test
