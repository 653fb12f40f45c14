#pragma once

// The catalogue of the 45 checks, as constants made from catalogue.def.

#include <array>
#include <cstddef>

#include "core/utilities/text.h"

namespace zentlor {

/// Every check, in run order.
enum class CheckId {
#define CHECK(key, group, box, label, hint, twin, input) key,
#include "core/checks/catalogue.def"
#undef CHECK
};

enum class CheckGroup { Module, Procedures, Commands };
enum class CheckInput { PerRun, PerComponent, PerTable, PerProcTable };

struct CheckInfo {
    CheckId id;
    TextView key;
    CheckGroup group;
    int box;    ///< index of the check box within its group, from 1
    int label;  ///< message id
    int hint;   ///< message id
    int twin;   ///< message id of the "only as a comment" text, or 0
    CheckInput input;
};

inline constexpr std::array kCatalogue = {
#define CHECK(key, group, box, label, hint, twin, input) \
    CheckInfo{CheckId::key, u"" #key, CheckGroup::group, box, label, hint, twin, CheckInput::input},
#include "core/checks/catalogue.def"
#undef CHECK
};

inline constexpr std::size_t kCheckCount = kCatalogue.size();

inline constexpr std::size_t IndexOf(CheckId id) {
    return static_cast<std::size_t>(id);
}
inline constexpr const CheckInfo& InfoOf(CheckId id) {
    return kCatalogue[IndexOf(id)];
}

/// Checks of one group.
inline constexpr int CountOf(CheckGroup group) {
    int count = 0;
    for (const CheckInfo& check : kCatalogue) count += check.group == group ? 1 : 0;
    return count;
}

/// The check whose box has this index in its group. `box` is 1 to CountOf(group).
inline constexpr CheckId CheckOfBox(CheckGroup group, int box) {
    for (const CheckInfo& check : kCatalogue) {
        if (check.group == group && check.box == box) return check.id;
    }
    return CheckId{};
}

namespace detail {
constexpr bool BoxesAreDense(CheckGroup group) {
    for (int box = 1; box <= CountOf(group); ++box) {
        const CheckInfo& check = InfoOf(CheckOfBox(group, box));
        if (check.group != group || check.box != box) return false;
    }
    return true;
}
}  // namespace detail

static_assert(kCheckCount == 45);
static_assert(CountOf(CheckGroup::Module) == 17 && detail::BoxesAreDense(CheckGroup::Module));
static_assert(CountOf(CheckGroup::Procedures) == 14 && detail::BoxesAreDense(CheckGroup::Procedures));
static_assert(CountOf(CheckGroup::Commands) == 14 && detail::BoxesAreDense(CheckGroup::Commands));

}  // namespace zentlor
