#pragma once

// What both users of libgsf need: the library loaded at its first use and kept silent, and its objects given back.
// It brings a dozen libraries along, which would take a tenth of the time of a run that meets a database alone; so it
// is not linked but loaded where a container is met that needs it.

#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-infile-zip.h>
#include <gsf/gsf-input-memory.h>
#include <gsf/gsf-utils.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace zentlor::readers {

/// The functions that are used, under the names that they have there.
struct GsfLibrary {
    decltype(&::gsf_init) gsf_init;
    decltype(&::gsf_input_memory_new) gsf_input_memory_new;
    decltype(&::gsf_input_size) gsf_input_size;
    decltype(&::gsf_input_seek) gsf_input_seek;
    decltype(&::gsf_input_read) gsf_input_read;
    decltype(&::gsf_infile_msole_new) gsf_infile_msole_new;
    decltype(&::gsf_infile_zip_new) gsf_infile_zip_new;
    decltype(&::gsf_infile_get_type) gsf_infile_get_type;
    decltype(&::gsf_infile_num_children) gsf_infile_num_children;
    decltype(&::gsf_infile_name_by_index) gsf_infile_name_by_index;
    decltype(&::gsf_infile_child_by_index) gsf_infile_child_by_index;
    decltype(&::gsf_infile_child_by_name) gsf_infile_child_by_name;
    decltype(&::g_type_check_instance_is_a) g_type_check_instance_is_a;
    decltype(&::g_object_unref) g_object_unref;
    decltype(&::g_log_set_handler) g_log_set_handler;
    decltype(&::g_set_printerr_handler) g_set_printerr_handler;
};

/// The library, loaded by the first call. Its complaints about damaged files go nowhere: the readers report damage
/// themselves. Throws `ReadError` with `Unsupported`, which names the document `path`, if it is not there.
const GsfLibrary& LoadGsf(const std::string& path);

/// The library once it was loaded; only for who has got an object of it.
const GsfLibrary& Gsf();

struct UnrefGObject {
    void operator()(void* object) const { Gsf().g_object_unref(object); }
};
template <typename T>
using GsfPointer = std::unique_ptr<T, UnrefGObject>;

/// `bytes`, which have to outlive it, as the library's input.
GsfPointer<GsfInput> GsfInputOf(std::string_view bytes);

/// `input` as a container, or null if it is none.
GsfInfile* AsGsfInfile(GsfInput* input);

/// The first `maximum` bytes of `input`, from where it stands. What a damaged one still gives comes back, and
/// `damaged`, if given, is set.
std::string ReadGsfInput(GsfInput* input, std::uint64_t maximum, bool* damaged);

}  // namespace zentlor::readers
