#pragma once

// The tables of what the procedures of a component declare: parameters, and local variables and constants, found by
// their keywords.

#include <vector>

#include "core/declarations/module_declarations.h"
#include "core/scanning/logical_lines.h"
#include "core/scanning/parameters.h"

namespace zentlor {

struct typProcDeclaration {
    Text strName;    ///< a type character included, array parentheses excluded
    int lngArt = 0;  ///< kVariable or kConstant
    bool blnDatentyp = false;
    bool blnKennzeichen = false;
    int lngDeklZeile = 0;
    int lngDeklSpalte = 0;
};

/// All variables in the order of the text, then all constants. The first record has index 0.
using ProcDeclarations = std::vector<typProcDeclaration>;

/// The table of the procedure that lies in the lines `lngVon` to `lngBis`. After a failure in one of the two scans it
/// holds what both found.
ProcDeclarations GetProcDeclarations(const VBComponent& vbc, int lngVon, int lngBis);

/// Whether the character in front of column `lngSpalte` is "#".
bool IstBedingteKompilierung(TextView strZeile, int lngSpalte);

/// The tables of all procedures of one component, in the order of a procedure walk. Several checks go through the same
/// ones, so each is made once, when the first of them asks.
class ProcedureTables {
  public:
    explicit ProcedureTables(const VBComponent& vbc) : vbc_(vbc) {}

    /// A procedure's header as a logical line, with the number of its physical lines, and its parameters.
    struct Header {
        const Procedure* procedure;
        LogicalText text;
        int lineCount = 0;
        std::vector<typParameter> parameters;
    };
    const std::vector<Header>& Headers() const;

    /// What a procedure declares, if it declares anything.
    struct Table {
        const Procedure* procedure;
        ProcDeclarations records;
    };
    const std::vector<Table>& All() const;

    const VBComponent& Component() const { return vbc_; }

  private:
    const VBComponent& vbc_;
    mutable bool hasHeaders_ = false;
    mutable std::vector<Header> headers_;
    mutable bool made_ = false;
    mutable std::vector<Table> tables_;
};

}  // namespace zentlor
