#pragma once

// A table of a Jet or ACE database: its columns, and its rows one after the other.

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

#include "core/utilities/text.h"
#include "readers/jet_file.h"

namespace zentlor::readers {

struct JetColumn {
    Text name;
    /// 3 and 4 integers of two and four bytes, 9 and 0x11 binary, 10 text, 11 OLE, 12 memo.
    int type = 0;
    /// The column's bit in the null mask of a row.
    std::uint32_t number = 0;
    bool fixed = false;
    /// Fixed columns: where the value begins behind the row's column count, and its length.
    std::uint32_t fixedOffset = 0;
    std::uint32_t length = 0;
    /// Other columns: the place among the row's variable values.
    std::uint32_t variableIndex = 0;
};

/// A row, looked at in place.
class JetRow {
  public:
    /// Nothing if `bytes` are too short for what they say of themselves.
    static std::optional<JetRow> Parse(std::string_view bytes, JetGeneration generation);

    /// The bytes of the value in `column`, or nothing if it is null, was added to the table after the row, or lies
    /// outside of the row.
    std::optional<std::string_view> Value(const JetColumn& column) const;

  private:
    JetRow(std::string_view bytes, JetGeneration generation) : bytes_(bytes), generation_(generation) {}
    bool IsNull(std::uint32_t number) const;
    std::uint32_t VariableOffset(std::uint32_t index) const;

    std::string_view bytes_;
    JetGeneration generation_;
    std::uint32_t columns_ = 0;
    std::uint32_t variableColumns_ = 0;
    std::uint32_t maskBytes_ = 0;
};

class JetTable {
  public:
    /// The table whose definition begins on page `page`, or nothing if there is no readable definition; the damage is
    /// then reported to `file`, which must outlive the table.
    static std::optional<JetTable> Open(JetFile& file, std::uint32_t page);

    /// The column of that name, or null.
    const JetColumn* Column(TextView name) const;

    /// Calls `visit` for every row, in the order of the file's pages. Rows that cannot be read are left out and
    /// reported to the file as damage, and so are rows and data pages that the table had and that are gone.
    void ForEachRow(const std::function<void(const JetRow&)>& visit) const;

  private:
    JetTable(JetFile& file, std::uint32_t page) : file_(&file), page_(page) {}
    bool ReadColumns(std::string_view definition);
    bool VisitSlot(const JetSlot& slot, const std::function<void(const JetRow&)>& visit) const;
    void CheckOwnedPages() const;

    JetFile* file_;
    std::uint32_t page_;
    /// Where the map of the pages lies that the table owns (page << 8 | row).
    std::uint32_t ownedPages_ = 0;
    /// How many rows the definition says there are.
    std::uint32_t rowCount_ = 0;
    std::vector<JetColumn> columns_;
};

}  // namespace zentlor::readers
