#pragma once

// Writes small Jet and ACE databases, page by page, with everything in them that real ones show and some things that
// only damaged or hostile ones do.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/utilities/text.h"

namespace zentlor::test {

enum class JetFormat { Jet3, Jet4, Ace };

/// Column types as the format numbers them.
inline constexpr int kJetInt16 = 3;
inline constexpr int kJetInt32 = 4;
inline constexpr int kJetBinary = 9;
inline constexpr int kJetText = 10;
inline constexpr int kJetOle = 11;
inline constexpr int kJetFixedBinary = 0x11;

struct JetColumnSpec {
    std::string name;
    int type = kJetInt32;
    bool fixed = true;
    std::uint32_t length = 4;
};

/// A value as its bytes: little-endian numbers, `JetWriter::TextValue` for texts, all of a long value's content.
/// Nothing is null.
using JetCell = std::optional<std::string>;

struct JetTableSpec {
    std::string name;
    std::vector<JetColumnSpec> columns;
    std::vector<std::vector<JetCell>> rows;
};

struct JetOptions {
    JetFormat format = JetFormat::Jet4;
    /// The version byte; -1 is the one that goes with `format`.
    int version = -1;
    int codePage = 1252;
    /// Not 0: the pages are encoded with this key.
    std::uint32_t pageKey = 0;
    /// Jet 4 texts are written as single bytes where they can be.
    bool compressText = true;
    /// Long values up to this size stand in their row, up to `oneRowBytes` in one row elsewhere, else in a chain.
    std::size_t inRowBytes = 32;
    std::size_t oneRowBytes = 500;
    /// A piece of a chain; small pieces make long chains.
    std::size_t chainBytes = 1000;
    /// Every row of these tables stands in another place, and a pointer leads there.
    bool rowsBehindPointers = false;
    /// In front of every row stands a deleted one with other content.
    bool deletedRows = false;
};

/// Where in the file lies what hostile tests bend; offsets from its start.
struct JetPlaces {
    /// By name: pages of the tables' definitions ("MSysObjects" included) and of their first data page.
    std::map<std::string, std::uint32_t> definitions;
    std::map<std::string, std::uint32_t> dataPages;
    /// The rows of long values, as page << 8 | row, in the order of writing; a chain's rows from its last one on.
    std::vector<std::uint32_t> longValueRows;
    std::uint32_t pageSize = 4096;
};

struct JetDatabase {
    std::string bytes;
    JetPlaces places;

    std::size_t PageAt(std::uint32_t page) const { return std::size_t{page} * places.pageSize; }
    /// Where the row with this pointer begins.
    std::size_t RowAt(std::uint32_t pointer) const;
};

/// An object of the catalog that is no table: a module, a form, the database's own properties.
struct JetCatalogEntry {
    std::string name;
    int type = 0;
    JetCell properties;
};

JetDatabase WriteJetDatabase(const std::vector<JetTableSpec>& tables, const JetOptions& options,
                             const std::vector<JetCatalogEntry>& objects = {});

/// `text` as a column of type text keeps it.
std::string JetTextValue(TextView text, const JetOptions& options);
std::string JetNumber(std::int64_t value, std::size_t bytes);

}  // namespace zentlor::test
