// A file is looked at before it is opened: opening a FIFO waits for a writer, and reading a device may do anything. It
// is looked at again once open, since the name may mean something else by then.

#include "readers/reader.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "readers/access_database.h"
#include "readers/office_document.h"
#include "readers/sentences.h"

namespace zentlor::readers {
namespace {

class OpenFile {
  public:
    explicit OpenFile(const std::string& path) : descriptor_(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {}
    ~OpenFile() {
        if (descriptor_ >= 0) close(descriptor_);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    int Descriptor() const { return descriptor_; }

  private:
    int descriptor_;
};

[[noreturn]] void FailByErrno(const std::string& path, int error) {
    if (error == ENOENT || error == ENOTDIR) {
        Fail(ReadFailure::NotFound, "„[%1]“ gibt es nicht; den Pfad prüfen.", "“[%1]” does not exist; check the path.",
             {path});
    }
    if (error == EACCES || error == EPERM) {
        Fail(ReadFailure::NoPermission, "„[%1]“ darf nicht gelesen werden; die Zugriffsrechte prüfen.",
             "“[%1]” may not be read; check its permissions.", {path});
    }
    Fail(ReadFailure::Damaged, "„[%1]“ kann nicht gelesen werden ([%2]); den Pfad und den Datenträger prüfen.",
         "“[%1]” cannot be read ([%2]); check the path and the medium.", {path, std::strerror(error)});
}

void RequireRegularFile(const std::string& path, const struct stat& status) {
    if (S_ISREG(status.st_mode)) return;
    Fail(ReadFailure::NotAFile,
         "„[%1]“ ist keine Datei, sondern ein Gerät, eine Pipe oder ein Ordner; eine Datei angeben.",
         "“[%1]” is no file but a device, a pipe or a folder; name a file.", {path});
}

void RequireSize(const std::string& path, std::uint64_t size, const Limits& limits) {
    if (size <= limits.fileBytes) return;
    Fail(ReadFailure::Limit, "„[%1]“ ist größer als [%2]; --max-file-size hebt die Grenze an.",
         "“[%1]” is larger than [%2]; --max-file-size raises the limit.", {path, SizeText(limits.fileBytes)});
}

// Lets the kernel hand out the memory that `bytes` has reserved in one call. To be interrupted at the first touch of
// each page would take longer than reading the file does. Where the call is not known nothing changes.
void TouchReserved(std::string& bytes) {
#ifdef MADV_POPULATE_WRITE
    constexpr std::size_t kPage = 4096;
    constexpr std::size_t kLarge = 1 << 20;
    if (bytes.capacity() < kLarge) return;
    const std::size_t skipped = -reinterpret_cast<std::uintptr_t>(bytes.data()) % kPage;
    madvise(bytes.data() + skipped, (bytes.capacity() - skipped) / kPage * kPage, MADV_POPULATE_WRITE);
#endif
}

}  // namespace

FileKind RecogniseFile(std::string_view firstBytes) {
    if (LooksLikeOfficeDocument(firstBytes)) return FileKind::Office;
    const std::string_view engine = firstBytes.substr(std::min<std::size_t>(4, firstBytes.size()), 15);
    return engine == "Standard Jet DB" || engine == "Standard ACE DB" ? FileKind::AccessDatabase : FileKind::Other;
}

std::string ReadWholeFile(const std::string& path, const Limits& limits) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) FailByErrno(path, errno);
    RequireRegularFile(path, status);
    RequireSize(path, static_cast<std::uint64_t>(status.st_size), limits);
    const OpenFile file(path);
    if (file.Descriptor() < 0 || fstat(file.Descriptor(), &status) != 0) FailByErrno(path, errno);
    RequireRegularFile(path, status);
    std::string bytes;
    const auto size = static_cast<std::size_t>(status.st_size);
    bytes.reserve(size);
    TouchReserved(bytes);
    char buffer[65536];
    for (;;) {
        const ssize_t count = read(file.Descriptor(), buffer, sizeof(buffer));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) FailByErrno(path, errno);
        if (count == 0) return bytes;
        bytes.append(buffer, static_cast<std::size_t>(count));
        RequireSize(path, bytes.size(), limits);
        if (static_cast<std::size_t>(count) < sizeof(buffer) && bytes.size() == size) return bytes;
    }
}

Document ReadDocument(std::string_view bytes, const std::string& path, const Limits& limits) {
    RequireSize(path, bytes.size(), limits);
    Document document;
    switch (RecogniseFile(bytes)) {
        case FileKind::Office:
            document = ReadOfficeDocument(bytes, path, limits);
            break;
        case FileKind::AccessDatabase:
            document = ReadAccessDatabase(bytes, path, limits);
            break;
        case FileKind::Other:
            Fail(ReadFailure::NotADocument,
                 "„[%1]“ ist weder eine Office- noch eine Access-Datei; ein Dokument oder exportierte Module angeben.",
                 "“[%1]” is neither an Office nor an Access file; name a document or exported modules.", {path});
    }
    document.fileBytes = bytes.size();
    return document;
}

Document ReadDocument(const std::string& path, const Limits& limits) {
    return ReadDocument(ReadWholeFile(path, limits), path, limits);
}

}  // namespace zentlor::readers
