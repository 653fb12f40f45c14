#pragma once

// The catalog of a Jet or ACE database (the table MSysObjects): where its tables are defined, and what tells of its VBA
// code before any of it was read.

#include <cstdint>
#include <map>
#include <optional>

#include "core/utilities/text.h"
#include "readers/jet_file.h"
#include "readers/jet_table.h"

namespace zentlor::readers {

class JetCatalog {
  public:
    /// Reads the catalog, or gives nothing if there is none to read. `file` must outlive it.
    static std::optional<JetCatalog> Read(JetFile& file);

    /// Whether the catalog names such a table.
    bool HasTable(TextView name) const;
    /// The table of that name, or nothing if there is none or its definition cannot be read (then the file knows of
    /// damage).
    std::optional<JetTable> Table(TextView name) const;

    /// How many modules (not counting those of forms and reports) the catalog names.
    std::size_t ModuleCount() const { return moduleCount_; }
    /// The database is marked as one whose source code was removed (.mde, .accde).
    bool IsMarkedCompiledOnly() const { return markedCompiledOnly_; }

  private:
    explicit JetCatalog(JetFile& file) : file_(&file) {}
    void TakeObject(const Text& name, std::int32_t type, std::uint32_t id);

    JetFile* file_;
    std::map<Text, std::uint32_t, std::less<>> definitions_;
    std::size_t moduleCount_ = 0;
    bool markedCompiledOnly_ = false;
};

}  // namespace zentlor::readers
