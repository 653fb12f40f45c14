// Access 97 keeps the streams of a VBA project as named entries of a long value: the row of the project holds `dir`,
// and the row of a module its source. All sources have the same stream name, so a module is found by its own name; what
// kind of object it belongs to stands in its row.

#include "readers/access_modules.h"

#include <map>
#include <string_view>

#include "core/utilities/encoding.h"
#include "readers/byte_reader.h"
#include "readers/folded_name.h"
#include "readers/jet_table.h"
#include "readers/jet_value.h"

namespace zentlor::readers {

namespace {

constexpr std::int32_t kTypeProject = 2;
constexpr std::int32_t kTypeForm = 32768;
constexpr std::int32_t kTypeReport = 32772;
constexpr std::size_t kEntriesStart = 8;

struct ModuleRow {
    std::int32_t type = 0;
    /// The long value with the entries, as it stands in the row.
    std::string_view entries;
};

struct ModuleRows {
    std::optional<ModuleRow> project;
    /// By folded name.
    std::map<Text, ModuleRow, std::less<>> modules;
};

ModuleRows ReadRows(JetFile& file, const JetTable& table) {
    ModuleRows rows;
    const JetColumn* name = table.Column(u"Name");
    const JetColumn* type = table.Column(u"Type");
    const JetColumn* entries = table.Column(u"Module");
    if (!name || !type || !entries) {
        file.Damage().brokenRows = true;
        return rows;
    }
    table.ForEachRow([&](const JetRow& row) {
        const auto nameValue = row.Value(*name);
        const auto typeValue = row.Value(*type);
        const auto entriesValue = row.Value(*entries);
        if (!nameValue || !typeValue) file.Damage().brokenRows = true;
        if (!nameValue || !typeValue || !entriesValue) return;
        const ModuleRow found{static_cast<std::int32_t>(U32At(*typeValue, 0)), *entriesValue};
        if (found.type == kTypeProject) {
            rows.project = found;
        } else {
            rows.modules.emplace(Folded(JetText(*nameValue, file)), found);
        }
    });
    return rows;
}

/// The entry `name` of the long value `entries`: u8 size of the name, the name in UTF-16 with its final zero, u32 size,
/// bytes; a size of 0 ends the list. Nothing if there is no such entry.
std::optional<std::string> FindEntry(std::string_view entries, TextView name) {
    std::uint64_t at = kEntriesStart;
    while (const std::uint64_t nameBytes = U8At(entries, at)) {
        Text found = FromUtf16Le(BytesAt(entries, at + 1, nameBytes));
        if (!found.empty() && found.back() == u'\0') found.pop_back();
        const std::uint64_t size = U32At(entries, at + 1 + nameBytes);
        const std::uint64_t start = at + 1 + nameBytes + 4;
        if (found == name) return std::string(BytesAt(entries, start, size));
        at = start + size;
    }
    return std::nullopt;
}

/// The row of module `name`: its own, or that of the form or report whose code it is.
const ModuleRow* FindRow(const ModuleRows& rows, TextView name) {
    const Text folded = Folded(name);
    auto place = rows.modules.find(folded);
    if (place == rows.modules.end() && folded.starts_with(u"form_"))
        place = rows.modules.find(TextView(folded).substr(5));
    if (place == rows.modules.end() && folded.starts_with(u"report_")) {
        place = rows.modules.find(TextView(folded).substr(7));
    }
    return place == rows.modules.end() ? nullptr : &place->second;
}

void SetTypes(const ModuleRows& rows, OvbaProject& project) {
    for (SourceModule& module : project.modules) {
        const ModuleRow* row = FindRow(rows, module.name);
        if (row && (row->type == kTypeForm || row->type == kTypeReport)) module.type = ModuleType::Document;
    }
}

}  // namespace

std::optional<OvbaProject> ReadAccessModules(JetFile& file, const JetCatalog& catalog, const std::string& path,
                                             const Limits& limits) {
    const auto table = catalog.Table(u"MSysModules2");
    if (!table) return std::nullopt;
    const ModuleRows rows = ReadRows(file, *table);
    if (!rows.project && rows.modules.empty()) return std::nullopt;
    const std::string projectEntries =
        rows.project ? JetLongValue(rows.project->entries, file, limits.sourceBytes) : std::string{};
    const std::string dir = FindEntry(projectEntries, u"dir").value_or(std::string{});
    OvbaSource source;
    source.dir = dir;
    source.moduleStream = [&](const OvbaDirModule& module) -> std::optional<std::string> {
        const ModuleRow* row = FindRow(rows, module.name);
        if (!row) return std::nullopt;
        return FindEntry(JetLongValue(row->entries, file, limits.sourceBytes), module.streamName);
    };
    OvbaProject project = ReadOvbaProject(source, path, limits);
    SetTypes(rows, project);
    return project;
}

}  // namespace zentlor::readers
