// The parts of a zip through libgsf, which sees a zip as a tree of folders.

#include "readers/container.h"
#include "readers/gsf_library.h"
#include "readers/sentences.h"
#include "readers/zip_directory.h"
#include "readers/zip_salvage.h"

namespace zentlor::readers {
namespace {

class GsfZip final : public ZipArchive {
  public:
    GsfZip(GsfPointer<GsfInfile> infile, std::vector<ZipPart> parts)
        : infile_(std::move(infile)), parts_(std::move(parts)) {}

    const std::vector<ZipPart>& Parts() const override { return parts_; }

    std::string Read(std::size_t index, std::uint64_t maximum, bool* damaged) const override {
        const GsfPointer<GsfInput> part = Open(parts_[index].name);
        if (part) return ReadGsfInput(part.get(), maximum, damaged);
        if (damaged != nullptr) *damaged = true;
        return {};
    }

  private:
    GsfPointer<GsfInput> Open(std::string_view name) const {
        GsfPointer<GsfInput> found;
        while (true) {
            const std::size_t slash = name.find('/');
            const std::string step(name.substr(0, slash));
            GsfInfile* folder = found ? AsGsfInfile(found.get()) : infile_.get();
            if (folder == nullptr) return nullptr;
            found.reset(Gsf().gsf_infile_child_by_name(folder, step.c_str()));
            if (!found || slash == std::string_view::npos) return found;
            name.remove_prefix(slash + 1);
        }
    }

    GsfPointer<GsfInfile> infile_;
    std::vector<ZipPart> parts_;
};

// Null if the library refuses it.
std::unique_ptr<ZipArchive> OpenByDirectory(std::string_view bytes, const std::string& path,
                                            std::vector<ZipPart> parts) {
    LoadGsf(path);
    const GsfPointer<GsfInput> input = GsfInputOf(bytes);
    GsfPointer<GsfInfile> infile(Gsf().gsf_infile_zip_new(input.get(), nullptr));
    if (!infile) return nullptr;
    return std::make_unique<GsfZip>(std::move(infile), std::move(parts));
}

}  // namespace

std::unique_ptr<ZipArchive> OpenZip(std::string_view bytes, const std::string& path, const Limits& limits,
                                    bool* salvaged) {
    if (!HasZipSignature(bytes)) return nullptr;
    ZipDirectory directory = ReadZipDirectory(bytes, limits.zipParts);
    bool tooManyParts = directory.tooManyParts;
    std::unique_ptr<ZipArchive> zip;
    if (directory.sound) zip = OpenByDirectory(bytes, path, std::move(directory.parts));
    if (!zip && !tooManyParts) {
        zip = SalvageZip(bytes, limits.zipParts, tooManyParts);
        if (salvaged != nullptr) *salvaged = zip != nullptr;
    }
    if (tooManyParts) {
        Fail(ReadFailure::Limit, "„[%1]“ enthält mehr als [%2] Teile; --max-zip-parts hebt die Grenze an.",
             "“[%1]” holds more than [%2] parts; --max-zip-parts raises the limit.",
             {path, std::to_string(limits.zipParts)});
    }
    return zip;
}

}  // namespace zentlor::readers
