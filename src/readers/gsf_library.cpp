#include "readers/gsf_library.h"

#include <dlfcn.h>

#include <algorithm>

#include "readers/sentences.h"

namespace zentlor::readers {
namespace {

// Small enough that a claimed size costs no memory before its bytes are there, and that damage costs little of the
// bytes in front of it: a block is read whole or not at all.
constexpr std::uint64_t kBlock = 4096;
constexpr std::uint64_t kSector = 64;

void Swallow(const gchar*, GLogLevelFlags, const gchar*, gpointer) {}
void SwallowPrint(const gchar*) {}

GsfLibrary library;

// Loads the library and keeps it until the program ends: its types cannot be taken back.
struct Loaded {
    Loaded() {
        handle = dlopen(ZENTLOR_GSF_LIBRARY, RTLD_NOW | RTLD_LOCAL);
        if (handle == nullptr) error = dlerror();
        Find("gsf_init", library.gsf_init);
        Find("gsf_input_memory_new", library.gsf_input_memory_new);
        Find("gsf_input_size", library.gsf_input_size);
        Find("gsf_input_seek", library.gsf_input_seek);
        Find("gsf_input_read", library.gsf_input_read);
        Find("gsf_infile_msole_new", library.gsf_infile_msole_new);
        Find("gsf_infile_zip_new", library.gsf_infile_zip_new);
        Find("gsf_infile_get_type", library.gsf_infile_get_type);
        Find("gsf_infile_num_children", library.gsf_infile_num_children);
        Find("gsf_infile_name_by_index", library.gsf_infile_name_by_index);
        Find("gsf_infile_child_by_index", library.gsf_infile_child_by_index);
        Find("gsf_infile_child_by_name", library.gsf_infile_child_by_name);
        // Of the libraries below it, which come with it.
        Find("g_type_check_instance_is_a", library.g_type_check_instance_is_a);
        Find("g_object_unref", library.g_object_unref);
        Find("g_log_set_handler", library.g_log_set_handler);
        Find("g_set_printerr_handler", library.g_set_printerr_handler);
        if (error.empty()) Start();
    }

    template <typename Function>
    void Find(const char* name, Function& function) {
        if (!error.empty()) return;
        function = reinterpret_cast<Function>(dlsym(handle, name));
        if (function == nullptr) error = dlerror();
    }

    static void Start() {
        library.gsf_init();
        // Some of its complaints come without a name, some in that of the library below it.
        for (const char* domain :
             {"libgsf", "libgsf:msole", "libgsf:zip", "GLib", "GLib-GObject", static_cast<const char*>(nullptr)}) {
            library.g_log_set_handler(domain, static_cast<GLogLevelFlags>(G_LOG_LEVEL_MASK | G_LOG_FLAG_RECURSION),
                                      Swallow, nullptr);
        }
        library.g_set_printerr_handler(SwallowPrint);
    }

    void* handle = nullptr;
    std::string error;
};

// Appends `count` bytes from the input's position on; false, and nothing appended, if it does not give them.
bool Append(GsfInput* input, std::uint64_t count, std::string& out) {
    const std::size_t before = out.size();
    out.resize(before + count);
    if (Gsf().gsf_input_read(input, count, reinterpret_cast<guint8*>(out.data() + before)) != nullptr) return true;
    out.resize(before);
    return false;
}

}  // namespace

const GsfLibrary& LoadGsf(const std::string& path) {
    static const Loaded loaded;
    if (loaded.error.empty()) return library;
    Fail(ReadFailure::Unsupported,
         "„[%1]“ ist ohne die Bibliothek libgsf nicht lesbar ([%2]); das Paket libgsf-1-114 installieren.",
         "“[%1]” cannot be read without the library libgsf ([%2]); install the package libgsf-1-114.",
         {path, loaded.error});
}

const GsfLibrary& Gsf() {
    return library;
}

GsfPointer<GsfInput> GsfInputOf(std::string_view bytes) {
    return GsfPointer<GsfInput>(Gsf().gsf_input_memory_new(reinterpret_cast<const guint8*>(bytes.data()),
                                                           static_cast<gsf_off_t>(bytes.size()), FALSE));
}

GsfInfile* AsGsfInfile(GsfInput* input) {
    auto* instance = reinterpret_cast<GTypeInstance*>(input);
    const bool is = Gsf().g_type_check_instance_is_a(instance, Gsf().gsf_infile_get_type()) != FALSE;
    return is ? reinterpret_cast<GsfInfile*>(input) : nullptr;
}

std::string ReadGsfInput(GsfInput* input, std::uint64_t maximum, bool* damaged) {
    std::string bytes;
    const auto size = static_cast<std::uint64_t>(std::max<gsf_off_t>(Gsf().gsf_input_size(input), 0));
    const std::uint64_t wanted = std::min(size, maximum);
    bytes.reserve(wanted);
    std::uint64_t block = kBlock;
    while (bytes.size() < wanted) {
        const auto at = static_cast<gsf_off_t>(bytes.size());
        const std::uint64_t count = std::min<std::uint64_t>(block, wanted - bytes.size());
        if (Append(input, count, bytes)) continue;
        // The rest of a block that fails may hold good bytes up to the damage.
        if (block == kSector || Gsf().gsf_input_seek(input, at, G_SEEK_SET)) {
            if (damaged != nullptr) *damaged = true;
            break;
        }
        block = kSector;
    }
    return bytes;
}

}  // namespace zentlor::readers
