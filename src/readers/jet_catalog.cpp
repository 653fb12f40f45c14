// The catalog is a table like any other, and the only one whose place is known beforehand. Of its rows only the few
// tables are kept that can hold VBA code, the number of modules, and the mark of a database without source.

#include "readers/jet_catalog.h"

#include <array>
#include <string>

#include "readers/byte_reader.h"
#include "readers/jet_value.h"

namespace zentlor::readers {

namespace {

constexpr std::uint32_t kCatalogPage = 2;
constexpr std::int32_t kTypeTable = 1;
constexpr std::int32_t kTypeModule = -32761;
constexpr std::uint32_t kPageMask = 0xFFFFFF;
constexpr std::size_t kPropertyBytes = 1 << 16;
constexpr std::array<TextView, 3> kTables{u"MSysAccessStorage", u"MSysAccessObjects", u"MSysModules2"};

/// Whether the properties of a database object, a list of counted names with values behind it, hold the property "MDE",
/// which exists in databases without source alone.
bool HoldsCompiledOnlyMark(const std::string& properties, bool jet3) {
    using namespace std::string_literals;
    return properties.find(jet3 ? "\3\0MDE"s : "\6\0M\0D\0E\0"s) != std::string::npos;
}

}  // namespace

std::optional<JetCatalog> JetCatalog::Read(JetFile& file) {
    const auto table = JetTable::Open(file, kCatalogPage);
    if (!table) return std::nullopt;
    const JetColumn* id = table->Column(u"Id");
    const JetColumn* name = table->Column(u"Name");
    const JetColumn* type = table->Column(u"Type");
    const JetColumn* properties = table->Column(u"LvProp");
    if (!id || !name || !type) return std::nullopt;
    JetCatalog catalog(file);
    table->ForEachRow([&](const JetRow& row) {
        const auto idValue = row.Value(*id);
        const auto nameValue = row.Value(*name);
        const auto typeValue = row.Value(*type);
        if (!idValue || !nameValue || !typeValue) {
            file.Damage().brokenRows = true;
            return;
        }
        const Text text = JetText(*nameValue, file);
        catalog.TakeObject(text, static_cast<std::int16_t>(U16At(*typeValue, 0)), U32At(*idValue, 0));
        const auto head = properties && text == u"MSysDb" ? row.Value(*properties) : std::nullopt;
        if (!head) return;
        const std::string bytes = JetLongValue(*head, file, kPropertyBytes);
        catalog.markedCompiledOnly_ |= HoldsCompiledOnlyMark(bytes, file.IsJet3());
    });
    return catalog;
}

void JetCatalog::TakeObject(const Text& name, std::int32_t type, std::uint32_t id) {
    if (type == kTypeModule) ++moduleCount_;
    if (type != kTypeTable) return;
    for (const TextView table : kTables) {
        if (name == table) definitions_.emplace(name, id & kPageMask);
    }
}

bool JetCatalog::HasTable(TextView name) const {
    return definitions_.contains(name);
}

std::optional<JetTable> JetCatalog::Table(TextView name) const {
    const auto place = definitions_.find(name);
    return place == definitions_.end() ? std::nullopt : JetTable::Open(*file_, place->second);
}

}  // namespace zentlor::readers
