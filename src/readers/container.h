#pragma once

// The two containers that documents come in, seen through interfaces small enough for another platform to bring its
// own: a tree of storages and streams ([MS-CFB], or rows of a database), and the parts of a zip. Everything is read
// from memory; the bytes handed in must outlive the container.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/utilities/text.h"
#include "readers/document.h"

namespace zentlor::readers {

/// A storage: a folder of streams and further storages. Names are compared without regard to case, as compound files
/// do.
class Storage {
  public:
    virtual ~Storage() = default;

    virtual std::vector<Text> StorageNames() const = 0;
    virtual std::vector<Text> StreamNames() const = 0;

    /// The storage of that name directly below this one, or null. The parent need not outlive it.
    virtual std::unique_ptr<Storage> OpenStorage(TextView name) const = 0;

    /// The bytes of the stream of that name directly below this one, `maximum` of them at most; nothing where there is
    /// no such stream. A damaged stream gives the bytes that could be read: `damaged`, if given, is then set, and else
    /// left alone.
    virtual std::optional<std::string> ReadStream(TextView name, std::uint64_t maximum,
                                                  bool* damaged = nullptr) const = 0;
};

/// The eight bytes that every compound file begins with.
bool HasCompoundSignature(std::string_view bytes);

/// The root storage of the compound file `bytes`, or null if its header or directory cannot be read. `incomplete`,
/// if given, becomes true where the file's own tables speak of sectors behind its end or of entries that nothing leads
/// to. Throws `ReadError` with `Limit` if its directory has more entries than `limits` allows.
std::unique_ptr<Storage> OpenCompoundFile(std::string_view bytes, const std::string& path, const Limits& limits,
                                          bool* incomplete = nullptr);

/// The storage that `names` leads to from `root`, or null.
std::unique_ptr<Storage> OpenPath(const Storage& root, const std::vector<Text>& names);

/// A part of a zip: its full name ("xl/vbaProject.bin"), and its sizes as the zip's directory claims them.
struct ZipPart {
    std::string name;
    std::uint64_t packedBytes = 0;
    std::uint64_t unpackedBytes = 0;
};

class ZipArchive {
  public:
    virtual ~ZipArchive() = default;
    /// All parts, folders not counted.
    virtual const std::vector<ZipPart>& Parts() const = 0;
    /// The first `maximum` unpacked bytes of part number `index`, fewer where the part ends or is damaged; `damaged`,
    /// if given, is then set, and else left alone.
    virtual std::string Read(std::size_t index, std::uint64_t maximum, bool* damaged = nullptr) const = 0;
};

/// The four bytes that a zip begins with.
bool HasZipSignature(std::string_view bytes);

/// The zip `bytes`, or null if no part of it can be found. `salvaged`, if given, becomes true where the directory at
/// the zip's end is missing or contradicts the file, and the parts are those whose own heads were found. Throws
/// `ReadError` with `Limit` if it has more parts than `limits` allows.
std::unique_ptr<ZipArchive> OpenZip(std::string_view bytes, const std::string& path, const Limits& limits,
                                    bool* salvaged = nullptr);

}  // namespace zentlor::readers
