// Compound files through libgsf. Its lists are walked from their start at each call, so the names of a storage are
// asked for once and kept with their numbers.

#include <unordered_map>

#include "core/utilities/encoding.h"
#include "readers/compound_layout.h"
#include "readers/container.h"
#include "readers/folded_name.h"
#include "readers/gsf_library.h"

namespace zentlor::readers {
namespace {

// Who asks for one stream of a storage does not pay for the names of all.
constexpr int kLookupsWithoutIndex = 8;

class GsfStorage final : public Storage {
  public:
    explicit GsfStorage(GsfPointer<GsfInfile> infile) : infile_(std::move(infile)) {}

    std::vector<Text> StorageNames() const override { return NamesOf(true); }
    std::vector<Text> StreamNames() const override { return NamesOf(false); }

    std::unique_ptr<Storage> OpenStorage(TextView name) const override {
        GsfPointer<GsfInput> child = OpenChild(name);
        if (!child || !IsStorage(child.get())) return nullptr;
        return std::make_unique<GsfStorage>(GsfPointer<GsfInfile>(AsGsfInfile(child.release())));
    }

    std::optional<std::string> ReadStream(TextView name, std::uint64_t maximum, bool* damaged) const override {
        const GsfPointer<GsfInput> child = OpenChild(name);
        if (!child || IsStorage(child.get())) return std::nullopt;
        return ReadGsfInput(child.get(), maximum, damaged);
    }

  private:
    static bool IsStorage(GsfInput* child) {
        GsfInfile* infile = AsGsfInfile(child);
        return infile != nullptr && Gsf().gsf_infile_num_children(infile) >= 0;
    }

    GsfPointer<GsfInput> OpenChild(TextView name) const {
        if (lookups_ < kLookupsWithoutIndex) {
            ++lookups_;
            // Finds a name in the case in which it is asked for, as nearly all are written.
            GsfPointer<GsfInput> child(Gsf().gsf_infile_child_by_name(infile_.get(), ToUtf8(name).c_str()));
            if (child) return child;
        }
        KnowNames();
        const auto found = indexes_.find(Folded(name));
        if (found == indexes_.end()) return nullptr;
        return GsfPointer<GsfInput>(Gsf().gsf_infile_child_by_index(infile_.get(), found->second));
    }

    void KnowNames() const {
        if (!names_.empty()) return;
        const int count = Gsf().gsf_infile_num_children(infile_.get());
        for (int i = 0; i < count; ++i) {
            const char* name = Gsf().gsf_infile_name_by_index(infile_.get(), i);
            names_.push_back(FromUtf8(name == nullptr ? "" : name));
            indexes_.emplace(Folded(names_.back()), i);
        }
    }

    std::vector<Text> NamesOf(bool storages) const {
        KnowNames();
        std::vector<Text> names;
        for (std::size_t i = 0; i < names_.size(); ++i) {
            const GsfPointer<GsfInput> child(Gsf().gsf_infile_child_by_index(infile_.get(), static_cast<int>(i)));
            if (child && IsStorage(child.get()) == storages) names.push_back(names_[i]);
        }
        return names;
    }

    GsfPointer<GsfInfile> infile_;
    mutable int lookups_ = 0;
    mutable std::vector<Text> names_;
    mutable std::unordered_map<Text, int> indexes_;
};

}  // namespace

std::unique_ptr<Storage> OpenCompoundFile(std::string_view bytes, const std::string& path, const Limits& limits,
                                          bool* incomplete) {
    if (!HasCompoundSignature(bytes)) return nullptr;
    const CompoundLayout layout = MeasureCompoundFile(bytes);
    if (incomplete != nullptr) *incomplete = layout.truncated || layout.tangled;
    if (!layout.sound) return nullptr;
    RequireFewEntries(layout.directoryEntries, path, limits);
    if (layout.tooDeep) return nullptr;
    LoadGsf(path);
    const GsfPointer<GsfInput> input = GsfInputOf(bytes);
    GsfPointer<GsfInfile> infile(Gsf().gsf_infile_msole_new(input.get(), nullptr));
    if (!infile) return nullptr;
    return std::make_unique<GsfStorage>(std::move(infile));
}

}  // namespace zentlor::readers
