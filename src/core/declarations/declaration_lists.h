#pragma once

// The turns by which both tables cut names out of a declaration list: column arithmetic on one statement, the same for
// a module's declarations and for a procedure's.

#include "core/scanning/comments_and_strings.h"
#include "core/scanning/next_column.h"
#include "core/utilities/text.h"

namespace zentlor {

/// What a turn finds out about one name. The name views the statement.
struct DeclaredName {
    TextView strName;
    bool blnDatentyp = false;
    bool blnKennzeichen = false;
};

/// The names of "a, b As Long, c(5) As String" from column `lngPos` of a statement on. Next() gives one name after the
/// other until there is none left.
class VariableList {
  public:
    VariableList(TextView statement, int lngPos);
    bool Next(DeclaredName& name);

  private:
    TextView statement_;
    NextColumn<char16_t> blanks_;
    NextColumn<char16_t> commas_;
    NextColumn<char16_t> opening_;
    NextColumn<char16_t> closing_;
    int lngPos_;
    bool more_ = true;
};

/// The names of "A = 1, B As String = "x, y"". Commas in quotation marks separate nothing.
class ConstantList {
  public:
    ConstantList(TextView statement, int lngPos);
    bool Next(DeclaredName& name);

  private:
    int NextComma();

    TextView statement_;
    NextColumn<char16_t> blanks_;
    NextColumn<char16_t> commas_;
    QuoteCounter quotes_;
    int lngPos_;
    bool more_ = true;
};

}  // namespace zentlor
