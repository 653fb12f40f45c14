// `zentlor dump`, `checks` and `compile`: what the program sees and knows, for people and for programs.

#include <fmt/format.h>

#include <cstdio>
#include <nlohmann/json.hpp>

#include "cli/commands.h"
#include "cli/words.h"
#include "core/language/messages.h"
#include "core/utilities/encoding.h"

namespace zentlor::cli {

namespace {

using Json = nlohmann::ordered_json;

std::vector<TextView> LinesOf(TextView code) {
    std::vector<TextView> lines;
    for (std::size_t begin = 0; begin < code.size();) {
        const std::size_t end = std::min(code.find(u'\n', begin), code.size());
        lines.push_back(code.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

// The code as it was read: kept apart only where it differs.
TextView RawCode(const workspace::OpenedProject& project, const VBComponent& component) {
    const Text& raw = project.OriginOf(component).rawCode;
    return raw.empty() ? component.CodeModule().AllText() : TextView(raw);
}

Json ControlsOf(const readers::Document& document, TextView component) {
    for (const readers::FormLayout& layout : document.layouts) {
        if (layout.ModuleName() != component) continue;
        Json controls = Json::array();
        for (const readers::FormControl& control : layout.controls) {
            controls.push_back({{"name", ToUtf8(control.name)}, {"type", control.type}});
        }
        return controls;
    }
    return nullptr;
}

Json DumpProject(const workspace::OpenedProject& project, bool raw) {
    Json components = Json::array();
    for (const auto& component : project.project->VBComponents()) {
        Json lines = Json::array();
        for (const TextView line : LinesOf(raw ? RawCode(project, *component) : component->CodeModule().AllText())) {
            lines.push_back(ToUtf8(line));
        }
        Json entry = {{"name", ToUtf8(component->Name())},
                      {"type", component->Type()},
                      {"path", project.OriginOf(*component).path},
                      {"declarationLines", component->CodeModule().CountOfDeclarationLines()},
                      {"lines", std::move(lines)}};
        Json controls = ControlsOf(project.document, component->Name());
        if (!controls.is_null()) entry["controls"] = std::move(controls);
        components.push_back(std::move(entry));
    }
    return {{"name", ToUtf8(project.project->Name())}, {"components", std::move(components)}};
}

void AppendChangedLines(const workspace::OpenedProject& project, const VBComponent& component, std::string& out) {
    const workspace::ModuleOrigin& origin = project.OriginOf(component);
    if (origin.rawCode.empty()) return;
    const std::vector<TextView> raw = LinesOf(origin.rawCode);
    const std::vector<TextView> canonical = LinesOf(component.CodeModule().AllText());
    for (std::size_t i = 0; i < std::min(raw.size(), canonical.size()); ++i) {
        if (raw[i] == canonical[i]) continue;
        out += fmt::format("{}:{}:\n-{}\n+{}\n", Printable(origin.path), origin.FileLine(static_cast<int>(i) + 1),
                           Printable(raw[i]), Printable(canonical[i]));
    }
}

// In the JSON form, whatever the language.
const char* NameOf(CheckGroup group) {
    switch (group) {
        case CheckGroup::Module:
            return "Module";
        case CheckGroup::Procedures:
            return "Procedures";
        default:
            return "Commands";
    }
}

Json JsonOf(const workspace::OpenedProject& project, const workspace::CompileError& error, int sprache) {
    const workspace::ModuleOrigin& origin = project.origins[error.component];
    return {{"path", origin.path},
            {"module", ToUtf8(project.project->VBComponents()[error.component]->Name())},
            {"line", error.error.line},
            {"column", error.error.column},
            {"fileLine", origin.FileLine(error.error.line)},
            {"error", CompileErrorWords(origin, error, sprache)}};
}

}  // namespace

int RunDump(const Arguments& arguments) {
    const int sprache = LanguageOf(arguments);
    const workspace::Workspace opened = OpenFor(arguments, arguments.raw || arguments.diff, sprache);
    std::string out;
    for (const workspace::OpenedProject& project : opened.projects) {
        if (!arguments.diff) {
            out += DumpProject(project, arguments.raw).dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
            continue;
        }
        for (const auto& component : project.project->VBComponents()) AppendChangedLines(project, *component, out);
    }
    const bool written = WriteOutput({}, out, sprache);
    return written && opened.Complete() ? kNoHints : kTrouble;
}

int RunChecks(const Arguments& arguments) {
    const int sprache = LanguageOf(arguments);
    const bool json = arguments.format == "json";
    constexpr int kFirstTab = 119;  // the caption of the options dialog's tab, one for each group
    Json list = Json::array();
    std::string table;
    for (const CheckInfo& check : kCatalogue) {
        const std::string label = ToUtf8(GetResourceString(sprache, check.label));
        list.push_back({{"key", ToUtf8(check.key)}, {"group", NameOf(check.group)}, {"label", label}});
        const std::string tab = ToUtf8(GetResourceString(sprache, kFirstTab + static_cast<int>(check.group)));
        table += fmt::format("{:<50}{:<12}{}\n", ToUtf8(check.key), tab, label);
    }
    return WriteOutput({}, json ? list.dump(2) + "\n" : table, sprache) ? kNoHints : kTrouble;
}

int RunCompile(const Arguments& arguments) {
    const int sprache = LanguageOf(arguments);
    const workspace::Workspace opened = OpenFor(arguments, false, sprache);
    std::string out;
    for (const workspace::OpenedProject& project : opened.projects) {
        for (const workspace::CompileError& error : project.errors) {
            out += arguments.format == "jsonl"
                       ? JsonOf(project, error, sprache).dump(-1, ' ', false, Json::error_handler_t::replace)
                       : CompileErrorLine(project, error, sprache);
            out += '\n';
        }
    }
    const bool written = WriteOutput({}, out, sprache);
    if (!written || !opened.Complete()) return kTrouble;
    return out.empty() ? kNoHints : kHints;
}

}  // namespace zentlor::cli
