#pragma once

// Where the procedures of a module lie. The rules are those of the language, not of the scanners: a physical line is
// continued where its last character is "_" with a blank in front, comment lines included.

#include <cstdint>
#include <vector>

#include "core/utilities/text.h"

namespace zentlor {

/// One procedure with its extent. The extents of a module lie next to each other without gap or overlap.
struct Procedure {
    TextView name;  ///< without a type character; views the module's text
    int kind = 0;   ///< with the name a unique key of the module, see ProcedureKind
    int firstLine = 0;
    int bodyLine = 0;  ///< the header's first physical line
    int lastLine = 0;
};

/// The editor's vbext_ProcKind. A further procedure of the same name and kind (in another branch of `#If`) has the kind
/// plus a multiple of kProcedureKinds.
enum ProcedureKind { vbext_pk_Proc = 0, vbext_pk_Let = 1, vbext_pk_Set = 2, vbext_pk_Get = 3 };
inline constexpr int kProcedureKinds = 4;

struct ModuleExtents {
    int declarationLines = 0;
    std::vector<Procedure> procedures;
};

/// Extents of the module `text` whose physical line n begins at lineStarts[n - 1]; the last entry of `lineStarts` is
/// one behind the place where a further line would begin.
ModuleExtents FindExtents(TextView text, const std::vector<std::uint32_t>& lineStarts);

/// Whether the language continues this physical line on the next one.
inline bool IsContinuedLine(TextView line) {
    while (!line.empty() && (line.back() == u' ' || line.back() == u'\t')) line.remove_suffix(1);
    if (line.size() < 2 || line.back() != u'_') return false;
    const char16_t before = line[line.size() - 2];
    return before == u' ' || before == u'\t';
}

}  // namespace zentlor
