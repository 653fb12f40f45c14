#pragma once

// What both users of libgsf need: the library started once and kept silent, and its objects given back.

#include <glib-object.h>
#include <gsf/gsf-input.h>

#include <cstdint>
#include <memory>
#include <string>

namespace zentlor::readers {

struct UnrefGObject {
    void operator()(void* object) const { g_object_unref(object); }
};
template <typename T>
using GsfPointer = std::unique_ptr<T, UnrefGObject>;

/// Starts the library, once. Its complaints about damaged files go nowhere: the readers report damage themselves.
void StartGsf();

/// The first `maximum` bytes of `input`, from where it stands. What a damaged one still gives comes back, and
/// `damaged`, if given, is set.
std::string ReadGsfInput(GsfInput* input, std::uint64_t maximum, bool* damaged);

}  // namespace zentlor::readers
