// `zentlor dump`, `checks` and `compile`: what the program sees and knows, for people and for programs.

#include <fmt/format.h>

#include <cstdio>
#include <nlohmann/json.hpp>
#include <utility>

#include "cli/commands.h"
#include "cli/report.h"
#include "cli/words.h"
#include "core/language/messages.h"
#include "core/utilities/encoding.h"

namespace zentlor::cli {

namespace {

using Json = nlohmann::ordered_json;

template <class Visit>
void ForEachLine(TextView code, Visit visit) {
    for (std::size_t begin = 0; begin < code.size();) {
        const std::size_t end = FindCharacter(code, begin, u'\n');
        visit(code.substr(begin, end - begin));
        begin = end + 1;
    }
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

// Writes what was gathered once it is much: a project's text in this form is larger than the project.
class Output {
  public:
    explicit Output(int sprache) : sprache_(sprache) {}

    std::string text;

    void EndLine() {
        constexpr std::size_t kPiece = 1 << 20;
        if (text.size() >= kPiece) Flush();
    }
    /// False if something could not be written, which has been told.
    bool Flush() {
        isWritten_ = isWritten_ && WriteOutput({}, text, sprache_);
        text.clear();
        return isWritten_;
    }

  private:
    int sprache_;
    bool isWritten_ = true;
};

std::string Printed(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void WriteComponent(const workspace::OpenedProject& project, const VBComponent& component, bool raw, Output& out) {
    const Json head = {{"name", ToUtf8(component.Name())},
                       {"type", component.Type()},
                       {"path", project.OriginOf(component).path},
                       {"declarationLines", component.CodeModule().CountOfDeclarationLines()}};
    out.text += Printed(head);
    out.text.back() = ',';
    out.text += "\"lines\":[";
    bool isFirst = true;
    ForEachLine(raw ? RawCode(project, component) : component.CodeModule().AllText(), [&](TextView line) {
        if (!std::exchange(isFirst, false)) out.text += ',';
        AppendJsonString(line, out.text);
        out.EndLine();
    });
    out.text += ']';
    const Json controls = ControlsOf(project.document, component.Name());
    if (!controls.is_null()) out.text += ",\"controls\":" + Printed(controls);
    out.text += '}';
}

void WriteProject(const workspace::OpenedProject& project, bool raw, Output& out) {
    out.text += "{\"name\":";
    AppendJsonString(project.project->Name(), out.text);
    out.text += ",\"components\":[";
    bool isFirst = true;
    for (const auto& component : project.project->VBComponents()) {
        if (!std::exchange(isFirst, false)) out.text += ',';
        WriteComponent(project, *component, raw, out);
    }
    out.text += "]}\n";
    out.EndLine();
}

void WriteChangedLines(const workspace::OpenedProject& project, const VBComponent& component, Output& out) {
    const workspace::ModuleOrigin& origin = project.OriginOf(component);
    if (origin.rawCode.empty()) return;
    const CodeModule& cm = component.CodeModule();
    int line = 0;
    ForEachLine(origin.rawCode, [&](TextView raw) {
        if (++line > cm.CountOfLines() || raw == cm.Lines(line)) return;
        out.text += fmt::format("{}:{}:\n-{}\n+{}\n", Printable(origin.path), origin.FileLine(line), Printable(raw),
                                Printable(cm.Lines(line)));
        out.EndLine();
    });
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
    Output out(sprache);
    for (const workspace::OpenedProject& project : opened.projects) {
        if (!arguments.diff) {
            WriteProject(project, arguments.raw, out);
            continue;
        }
        for (const auto& component : project.project->VBComponents()) WriteChangedLines(project, *component, out);
    }
    return out.Flush() && opened.Complete() ? kNoHints : kTrouble;
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
