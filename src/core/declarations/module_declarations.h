#pragma once

// The table of everything that a module declares in its declaration section.

#include <vector>

#include "core/analysis/session.h"
#include "core/analysis/source_model.h"

namespace zentlor {

enum DeclarationKind {
    kVariable = 1,
    kConstant = 2,
    kEvent = 3,
    kApi = 4,
    kEnumeration = 5,
    kType = 6,
};

enum DeclarationScope { kPrivate = 1, kPublic = 2, kGlobal = 3 };

struct typModDeclaration {
    int lngArt = 0;                 ///< DeclarationKind
    Text strName;                   ///< a type character included, array parentheses excluded
    int lngScope = 0;               ///< DeclarationScope
    bool blnScopeExplizit = false;  ///< the statement begins with an access word
    bool blnDatentyp = false;       ///< variables and constants: "As " follows, or the name ends in a type character
    bool blnKennzeichen = false;    ///< variables and constants: the name ends in a type character
    int lngDeklZeile = 0;           ///< where the name was found; 0 if it was not
    int lngDeklSpalte = 0;
};

/// In the order of the statements; the first record has index 0.
using ModDeclarations = std::vector<typModDeclaration>;

/// The table of `vbc`. A block without its end is told to the user in a box; the table then ends there. Empty after any
/// other failure of the scan.
ModDeclarations GetModDeclarations(const VBComponent& vbc, MessageBoxes& boxes);

/// Consumers of a table count its records in 16 bits.
inline constexpr std::size_t kMostRecords = 32767;

/// Calls `visit` for every record. Throws Overflow behind record 32767.
template <class Record, class Visit>
void ForEachRecord(const std::vector<Record>& table, Visit visit) {
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (i == kMostRecords) throw Overflow();
        visit(table[i]);
    }
}

/// Where a name was found: the position fields that go from one record of a statement to the next.
struct DeclaredAt {
    int lngDeklZeile = 0;
    int lngDeklSpalte = 0;
};

/// Looks for `name` from the start of line `lngZeile` to the end of line `lngZeile` + `lngAnzahl`. Without a hit `at`
/// keeps what it held.
void LocateName(const CodeModule& cm, TextView name, int lngZeile, int lngAnzahl, DeclaredAt& at);

}  // namespace zentlor
