#include "core/utilities/failure_frame.h"

#include <new>

namespace zentlor {

RuntimeError InvalidCall() {
    return {5, "Invalid procedure call or argument"};
}
RuntimeError Overflow() {
    return {6, "Overflow"};
}
RuntimeError SubscriptOutOfRange() {
    return {9, "Subscript out of range"};
}
RuntimeError TypeMismatch() {
    return {13, "Type mismatch"};
}
RuntimeError ObjectNotSet() {
    return {91, "Object variable or With block variable not set"};
}

int FailureNumber(const std::exception& failure) {
    if (const auto* known = dynamic_cast<const RuntimeError*>(&failure)) return known->number;
    if (dynamic_cast<const std::bad_alloc*>(&failure) != nullptr) return 7;
    constexpr int kInternalError = 51;
    return kInternalError;
}

}  // namespace zentlor
