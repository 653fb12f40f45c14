// Pages are numbered as they are made: the header, an empty page, the catalog's definition, the maps of owned pages,
// the definitions of the tables, the catalog's data, and then the data of each table with its long values in between.

#include "support/documents/jet_writer.h"

#include <algorithm>

#include "core/utilities/encoding.h"
#include "readers/jet_rc4.h"
#include "support/documents/bytes.h"

namespace zentlor::test {
namespace {

constexpr std::uint32_t kCatalogPage = 2;
constexpr std::uint32_t kMapsPage = 3;
constexpr std::uint32_t kLongValueOwner = 0x4C41564C;
constexpr std::uint32_t kHidden = 0x8000;
constexpr std::uint32_t kPointer = 0x4000;

void Set16(std::string& out, std::size_t offset, std::uint32_t value) {
    out[offset] = static_cast<char>(value);
    out[offset + 1] = static_cast<char>(value >> 8);
}

std::uint32_t Get16(const std::string& bytes, std::size_t offset) {
    return static_cast<unsigned char>(bytes[offset]) | static_cast<unsigned char>(bytes[offset + 1]) << 8;
}

class Writer {
  public:
    explicit Writer(const JetOptions& options) : options_(options), jet3_(options.format == JetFormat::Jet3) {
        places_.pageSize = jet3_ ? 2048 : 4096;
        for (std::uint32_t page = 0; page < kMapsPage; ++page) NewPage();
        NewDataPage(0);
    }

    JetDatabase Write(const std::vector<JetTableSpec>& tables, const std::vector<JetCatalogEntry>& objects) {
        JetTableSpec catalog{"MSysObjects",
                             {{"Id", kJetInt32, true, 4},
                              {"Type", kJetInt16, true, 2},
                              {"Flags", kJetInt32, true, 4},
                              {"Name", kJetText, false, 510},
                              {"LvProp", kJetOle, false, 0}},
                             {}};
        AddObject(catalog, "MSysObjects", 1, kCatalogPage, {});
        for (const JetTableSpec& table : tables) AddObject(catalog, table.name, 1, NewPage(), {});
        for (const JetCatalogEntry& object : objects)
            AddObject(catalog, object.name, object.type, 0, object.properties);
        WriteTable(catalog, kCatalogPage);
        for (std::uint32_t i = 0; i < tables.size(); ++i) WriteTable(tables[i], kMapsPage + 1 + i);
        WriteHeader();
        if (options_.pageKey != 0) Encode();
        return {std::move(bytes_), places_};
    }

  private:
    std::uint32_t NewPage() {
        bytes_.append(places_.pageSize, '\0');
        return static_cast<std::uint32_t>(bytes_.size() / places_.pageSize) - 1;
    }

    std::uint32_t NewDataPage(std::uint32_t owner) {
        const std::uint32_t page = NewPage();
        const std::size_t at = std::size_t{page} * places_.pageSize;
        Set16(bytes_, at, 0x0101);
        Set32(bytes_, at + 4, owner);
        return page;
    }

    std::size_t CountAt(std::uint32_t page) const { return std::size_t{page} * places_.pageSize + (jet3_ ? 8 : 12); }

    /// Puts a row on `page` if there is room for it; its number, or nothing.
    std::optional<std::uint32_t> PutRow(std::uint32_t page, const std::string& row, std::uint32_t marks) {
        const std::size_t countAt = CountAt(page);
        const std::uint32_t count = Get16(bytes_, countAt);
        const std::size_t start = std::size_t{page} * places_.pageSize;
        const std::uint32_t end =
            count == 0 ? places_.pageSize : Get16(bytes_, countAt + 2 * std::size_t{count}) & 0x1FFF;
        if (start + end < countAt + 4 + 2 * std::size_t{count} + row.size() || count == 255) return std::nullopt;
        const auto offset = static_cast<std::uint32_t>(end - row.size());
        bytes_.replace(start + offset, row.size(), row);
        Set16(bytes_, countAt + 2 + 2 * std::size_t{count}, offset | marks);
        Set16(bytes_, countAt, count + 1);
        return count;
    }

    std::uint32_t PutLongValueRow(const std::string& row) {
        auto number = longValuePage_ == 0 ? std::nullopt : PutRow(longValuePage_, row, 0);
        if (!number) {
            longValuePage_ = NewDataPage(kLongValueOwner);
            number = PutRow(longValuePage_, row, 0);
        }
        places_.longValueRows.push_back(longValuePage_ << 8 | number.value());
        return places_.longValueRows.back();
    }

    std::string LongValue(const std::string& content) {
        std::string head;
        std::uint32_t pointer = 0;
        std::uint32_t flags = 0;
        if (content.size() <= options_.inRowBytes) {
            flags = 0x80000000;
        } else if (content.size() <= options_.oneRowBytes) {
            flags = 0x40000000;
            pointer = PutLongValueRow(content);
        } else {
            const std::size_t pieces = (content.size() + options_.chainBytes - 1) / options_.chainBytes;
            for (std::size_t piece = pieces; piece-- > 0;) {
                std::string row;
                Put32(row, pointer);
                pointer = PutLongValueRow(row + content.substr(piece * options_.chainBytes, options_.chainBytes));
            }
        }
        Put32(head, static_cast<std::uint32_t>(content.size()) | flags);
        Put32(head, pointer);
        Put32(head, 0);
        return flags == 0x80000000 ? head + content : head;
    }

    std::string EncodeRow(const std::vector<JetColumnSpec>& columns, const std::vector<JetCell>& cells) {
        std::string row;
        if (jet3_) {
            row.push_back(static_cast<char>(columns.size()));
        } else {
            Put16(row, static_cast<std::uint32_t>(columns.size()));
        }
        std::string mask((columns.size() + 7) / 8, '\0');
        std::vector<std::string> variable;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            const JetCell& cell = cells.at(i);
            if (cell) mask[i / 8] = static_cast<char>(mask[i / 8] | 1 << (i % 8));
            std::string value = cell.value_or("");
            if (cell && columns[i].type == kJetOle) value = LongValue(value);
            if (columns[i].fixed) value.resize(columns[i].length);
            if (columns[i].fixed) row += value;
            if (!columns[i].fixed) variable.push_back(value);
        }
        std::vector<std::size_t> offsets{row.size()};
        for (const std::string& value : variable) {
            row += value;
            offsets.push_back(row.size());
        }
        return row + (jet3_ ? Jet3Tail(offsets, mask) : Jet4Tail(offsets, mask));
    }

    static std::string Jet4Tail(const std::vector<std::size_t>& offsets, const std::string& mask) {
        std::string tail;
        for (auto offset = offsets.rbegin(); offset != offsets.rend(); ++offset) {
            Put16(tail, static_cast<std::uint32_t>(*offset));
        }
        Put16(tail, static_cast<std::uint32_t>(offsets.size() - 1));
        return tail + mask;
    }

    static std::string Jet3Tail(const std::vector<std::size_t>& offsets, const std::string& mask) {
        std::string tail;
        for (auto offset = offsets.rbegin(); offset != offsets.rend(); ++offset) {
            tail.push_back(static_cast<char>(*offset));
        }
        std::size_t jumps = 0;
        const std::size_t length = offsets.back() + tail.size() + 1 + mask.size();
        while ((length + jumps - 1) / 256 > jumps) ++jumps;
        for (std::size_t jump = jumps; jump > 0; --jump) {
            const auto first = std::ranges::lower_bound(offsets, 256 * jump);
            tail.push_back(static_cast<char>(first == offsets.end() ? 0xFF : first - offsets.begin()));
        }
        tail.push_back(static_cast<char>(offsets.size() - 1));
        return tail + mask;
    }

    void WriteTable(const JetTableSpec& table, std::uint32_t definition) {
        dataPage_ = NewDataPage(definition);
        std::vector<std::uint32_t> owned{dataPage_};
        places_.dataPages[table.name] = dataPage_;
        for (const auto& cells : table.rows) {
            const std::string row = EncodeRow(table.columns, cells);
            if (options_.deletedRows) PutTableRow(std::string(row.size(), '\x7F'), kHidden, definition, owned);
            if (options_.rowsBehindPointers) {
                const std::uint32_t target = PutTableRow(row, kHidden, definition, owned);
                PutTableRow(JetNumber(target, 4), kPointer, definition, owned);
            } else {
                PutTableRow(row, 0, definition, owned);
            }
        }
        WriteDefinition(table, definition, owned);
        longValuePage_ = 0;
    }

    std::uint32_t PutTableRow(const std::string& row, std::uint32_t marks, std::uint32_t definition,
                              std::vector<std::uint32_t>& owned) {
        auto number = PutRow(dataPage_, row, marks);
        if (!number) {
            dataPage_ = NewDataPage(definition);
            owned.push_back(dataPage_);
            number = PutRow(dataPage_, row, marks);
        }
        return dataPage_ << 8 | number.value();
    }

    /// The map of the pages in `owned`, which begins with the first of them.
    std::uint32_t PutMap(const std::vector<std::uint32_t>& owned) {
        std::string map(5 + 64, '\0');
        Set32(map, 1, owned.front());
        for (const std::uint32_t page : owned) {
            const std::uint32_t bit = page - owned.front();
            if (bit < 512) map[5 + bit / 8] = static_cast<char>(map[5 + bit / 8] | 1 << (bit % 8));
        }
        return kMapsPage << 8 | PutRow(kMapsPage, map, 0).value();
    }

    std::string Definition(const JetTableSpec& table, std::uint32_t map) const {
        std::string definition(jet3_ ? 0x2B : 0x3F, '\0');
        const auto count = static_cast<std::uint32_t>(table.columns.size());
        const auto variable =
            static_cast<std::uint32_t>(std::ranges::count(table.columns, false, &JetColumnSpec::fixed));
        Set16(definition, 0, 0x0102);
        Set32(definition, jet3_ ? 0x0C : 0x10, static_cast<std::uint32_t>(table.rows.size()));
        Set16(definition, jet3_ ? 0x15 : 0x29, count);
        Set16(definition, jet3_ ? 0x17 : 0x2B, variable);
        Set16(definition, jet3_ ? 0x19 : 0x2D, count);
        Set32(definition, jet3_ ? 0x23 : 0x37, map);
        Set32(definition, jet3_ ? 0x27 : 0x3B, map);
        std::uint32_t fixedOffset = 0;
        std::uint32_t variableIndex = 0;
        for (std::uint32_t i = 0; i < count; ++i) {
            const JetColumnSpec& column = table.columns[i];
            std::string entry(jet3_ ? 18 : 25, '\0');
            entry[0] = static_cast<char>(column.type);
            Set16(entry, jet3_ ? 1 : 5, i);
            Set16(entry, jet3_ ? 3 : 7, variableIndex);
            entry[jet3_ ? 13 : 15] = static_cast<char>(column.fixed ? 3 : 2);
            Set16(entry, jet3_ ? 14 : 21, fixedOffset);
            Set16(entry, jet3_ ? 16 : 23, column.length);
            fixedOffset += column.fixed ? column.length : 0;
            variableIndex += column.fixed ? 0 : 1;
            definition += entry;
        }
        for (const JetColumnSpec& column : table.columns) AppendName(definition, column.name);
        return definition;
    }

    void AppendName(std::string& out, const std::string& name) const {
        if (jet3_) {
            out.push_back(static_cast<char>(name.size()));
            out += name;
            return;
        }
        Put16(out, static_cast<std::uint32_t>(2 * name.size()));
        for (const char c : name) Put16(out, static_cast<unsigned char>(c));
    }

    void WriteDefinition(const JetTableSpec& table, std::uint32_t page, const std::vector<std::uint32_t>& owned) {
        const std::string definition = Definition(table, PutMap(owned));
        places_.definitions[table.name] = page;
        // The chain is read with the whole of every page but the heads of the later ones, so pages are filled up.
        for (std::size_t start = 0; start < definition.size();) {
            const std::size_t head = start == 0 ? 0 : 8;
            const std::size_t at = std::size_t{page} * places_.pageSize;
            const std::size_t count = std::min(places_.pageSize - head, definition.size() - start);
            bytes_.replace(at + head, count, definition, start, count);
            Set16(bytes_, at, 0x0102);
            start += count;
            if (start == definition.size()) break;
            page = NewPage();
            Set32(bytes_, at + 4, page);
        }
    }

    void AddObject(JetTableSpec& catalog, const std::string& name, int type, std::uint32_t id,
                   JetCell properties) const {
        catalog.rows.push_back({JetNumber(id, 4), JetNumber(type, 2), JetNumber(0, 4),
                                JetTextValue(FromUtf8(name), options_), std::move(properties)});
    }

    void WriteHeader() {
        const bool ace = options_.format == JetFormat::Ace;
        Set32(bytes_, 0, 0x100);
        bytes_.replace(4, 15, ace ? "Standard ACE DB" : "Standard Jet DB");
        const int version = options_.version >= 0 ? options_.version : (jet3_ ? 0 : ace ? 2 : 1);
        bytes_[0x14] = static_cast<char>(version);
        Set16(bytes_, 0x3C, static_cast<std::uint32_t>(options_.codePage));
        Set32(bytes_, 0x3E, options_.pageKey);
        readers::Rc4("\xC7\xDA\x39\x6B").Apply(bytes_.data() + 0x18, jet3_ ? 126 : 128);
    }

    void Encode() {
        for (std::uint32_t page = 1; page < bytes_.size() / places_.pageSize; ++page) {
            readers::Rc4(JetNumber(options_.pageKey ^ page, 4))
                .Apply(bytes_.data() + std::size_t{page} * places_.pageSize, places_.pageSize);
        }
    }

    const JetOptions& options_;
    bool jet3_;
    std::string bytes_;
    JetPlaces places_;
    std::uint32_t dataPage_ = 0;
    std::uint32_t longValuePage_ = 0;
};

}  // namespace

std::size_t JetDatabase::RowAt(std::uint32_t pointer) const {
    const std::size_t page = PageAt(pointer >> 8);
    const std::size_t offsets = page + (places.pageSize == 2048 ? 10 : 14);
    return page + (Get16(bytes, offsets + 2 * std::size_t{pointer & 0xFF}) & 0x1FFF);
}

JetDatabase WriteJetDatabase(const std::vector<JetTableSpec>& tables, const JetOptions& options,
                             const std::vector<JetCatalogEntry>& objects) {
    return Writer(options).Write(tables, objects);
}

std::string JetTextValue(TextView text, const JetOptions& options) {
    if (options.format == JetFormat::Jet3) return ToWindows1252(text);
    std::string value;
    const auto isPlain = [](char16_t c) { return c != 0 && c < 0x100; };
    if (!options.compressText || std::ranges::none_of(text, isPlain)) {
        for (const char16_t c : text) Put16(value, c);
        return value;
    }
    value = "\xFF\xFE";
    bool pairs = false;
    for (const char16_t c : text) {
        if (pairs == isPlain(c)) value.push_back('\0');
        pairs = !isPlain(c);
        if (pairs) {
            Put16(value, c);
        } else {
            value.push_back(static_cast<char>(c));
        }
    }
    return value;
}

std::string JetNumber(std::int64_t value, std::size_t bytes) {
    std::string out;
    for (std::size_t i = 0; i < bytes; ++i) out.push_back(static_cast<char>(value >> (8 * i)));
    return out;
}

}  // namespace zentlor::test
