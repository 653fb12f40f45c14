#include "readers/gsf_library.h"

#include <gsf/gsf-utils.h>

#include <algorithm>
#include <mutex>

namespace zentlor::readers {
namespace {

// Small enough that a claimed size costs no memory before its bytes are there, and that damage costs little of the
// bytes in front of it: a block is read whole or not at all.
constexpr std::uint64_t kBlock = 4096;
constexpr std::uint64_t kSector = 64;

void Swallow(const gchar*, GLogLevelFlags, const gchar*, gpointer) {}
void SwallowPrint(const gchar*) {}

// Appends `count` bytes from the input's position on; false, and nothing appended, if it does not give them.
bool Append(GsfInput* input, std::uint64_t count, std::string& out) {
    const std::size_t before = out.size();
    out.resize(before + count);
    if (gsf_input_read(input, count, reinterpret_cast<guint8*>(out.data() + before)) != nullptr) return true;
    out.resize(before);
    return false;
}

}  // namespace

void StartGsf() {
    static std::once_flag once;
    std::call_once(once, [] {
        gsf_init();
        // Some of its complaints come without a name, some in that of the library below it.
        for (const char* domain :
             {"libgsf", "libgsf:msole", "libgsf:zip", "GLib", "GLib-GObject", static_cast<const char*>(nullptr)}) {
            g_log_set_handler(domain, static_cast<GLogLevelFlags>(G_LOG_LEVEL_MASK | G_LOG_FLAG_RECURSION), Swallow,
                              nullptr);
        }
        g_set_printerr_handler(SwallowPrint);
    });
}

std::string ReadGsfInput(GsfInput* input, std::uint64_t maximum, bool* damaged) {
    std::string bytes;
    const auto size = static_cast<std::uint64_t>(std::max<gsf_off_t>(gsf_input_size(input), 0));
    const std::uint64_t wanted = std::min(size, maximum);
    bytes.reserve(wanted);
    std::uint64_t block = kBlock;
    while (bytes.size() < wanted) {
        const auto at = static_cast<gsf_off_t>(bytes.size());
        const std::uint64_t count = std::min<std::uint64_t>(block, wanted - bytes.size());
        if (Append(input, count, bytes)) continue;
        // The rest of a block that fails may hold good bytes up to the damage.
        if (block == kSector || gsf_input_seek(input, at, G_SEEK_SET)) {
            if (damaged != nullptr) *damaged = true;
            break;
        }
        block = kSector;
    }
    return bytes;
}

}  // namespace zentlor::readers
