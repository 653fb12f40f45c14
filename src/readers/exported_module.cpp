#include "readers/exported_module.h"

#include <algorithm>
#include <array>

#include "core/utilities/encoding.h"
#include "readers/attributes.h"
#include "readers/sentences.h"

namespace zentlor::readers {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kUtf16LeMark = "\xFF\xFE";
constexpr std::string_view kUtf16BeMark = "\xFE\xFF";
constexpr TextView kCodeBehind = u"CodeBehindForm";

std::string LowerCaseEnding(std::string_view path) {
    const auto dot = path.find_last_of("./");
    if (dot == std::string_view::npos || path[dot] == '/') return {};
    std::string ending(path.substr(dot));
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return ending;
}

bool IsAccessExport(TextView text) {
    const TextView start = LTrim(text.substr(0, text.find_first_of(u"\r\n")));
    return start.starts_with(u"Version =") || start.starts_with(u"Version=");
}

// An Access export holds the layout of a form or report first. Offset of the code, and the number of lines in front of
// it; the text's end where the export has no code.
struct CodeStart {
    std::size_t offset = 0;
    std::uint32_t linesBefore = 0;
};
CodeStart FindCodeBehind(TextView text) {
    CodeStart start;
    while (start.offset < text.size()) {
        const std::size_t end = std::min(text.find_first_of(u"\r\n", start.offset), text.size());
        const TextView line = text.substr(start.offset, end - start.offset);
        const bool crLf = text.substr(end).starts_with(u"\r\n");
        start.offset = std::min(end + (crLf ? 2 : 1), text.size());
        ++start.linesBefore;
        if (RTrim(line) == kCodeBehind) return start;
    }
    return start;
}

ModuleType TypeOf(const std::string& ending, const StrippedCode& stripped, TextView name, bool accessExport) {
    const bool accessName = name.starts_with(u"Form_") || name.starts_with(u"Report_");
    if (accessExport) return ModuleType::Document;
    if (ending == ".frm" || stripped.kind == ExportHeader::Form) return ModuleType::Form;
    if (ending == ".cls" || stripped.kind == ExportHeader::Class) {
        const bool document = (stripped.predeclaredId && stripped.exposed) || accessName;
        return document ? ModuleType::Document : ModuleType::Class;
    }
    return ModuleType::Standard;
}

void ShiftFileLines(SourceModule& module, std::uint32_t by) {
    if (by == 0) return;
    if (module.fileLines.empty()) {
        const auto lines = std::count(module.code.begin(), module.code.end(), u'\n') + 1;
        for (std::uint32_t line = 1; line <= static_cast<std::uint32_t>(lines); ++line)
            module.fileLines.push_back(line);
    }
    for (std::uint32_t& line : module.fileLines) line += by;
}

}  // namespace

std::string FileStem(std::string_view path) {
    const auto slash = path.find_last_of('/');
    const std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
    const auto dot = name.find_last_of('.');
    return std::string(dot == 0 ? name : name.substr(0, dot));
}

bool IsExportedModule(std::string_view path, std::string_view firstBytes) {
    const std::string ending = LowerCaseEnding(path);
    if (ending == ".bas" || ending == ".cls" || ending == ".frm") return true;
    if (ending != ".txt" && ending != ".form" && ending != ".report") return false;
    return IsAccessExport(DecodeModuleText(firstBytes));
}

Text DecodeModuleText(std::string_view bytes) {
    if (bytes.starts_with(kUtf16LeMark)) return FromUtf16Le(bytes.substr(kUtf16LeMark.size()));
    if (bytes.starts_with(kUtf16BeMark)) return FromUtf16Be(bytes.substr(kUtf16BeMark.size()));
    if (bytes.starts_with(kUtf8Mark)) bytes.remove_prefix(kUtf8Mark.size());
    if (auto text = FromUtf8Strict(bytes)) return std::move(*text);
    return FromWindows1252(bytes);
}

SourceModule ReadExportedModule(std::string_view bytes, const std::string& path) {
    const Text text = DecodeModuleText(bytes);
    if (FindCharacter(text, 0, u'\0') < text.size()) {
        Fail(ReadFailure::NotADocument,
             "„[%1]“ ist kein Modul: die Datei enthält Zeichen, die in keinem Text stehen; geben Sie ein exportiertes "
             "Modul, ein Office-Dokument oder eine Access-Datenbank an.",
             "“[%1]” is no module: the file holds characters that stand in no text; name an exported module, an Office "
             "document or an Access database.",
             {path});
    }
    const bool accessExport = IsAccessExport(text);
    const CodeStart start = accessExport ? FindCodeBehind(text) : CodeStart{};
    StrippedCode stripped = StripAttributes(TextView(text).substr(start.offset));

    SourceModule module;
    module.name = stripped.name.empty() ? FromUtf8(FileStem(path)) : std::move(stripped.name);
    module.type = TypeOf(LowerCaseEnding(path), stripped, module.name, accessExport);
    module.path = path;
    module.code = std::move(stripped.code);
    module.fileLines = std::move(stripped.fileLines);
    module.header = std::move(stripped.header);
    module.innerAttributes = std::move(stripped.innerAttributes);
    ShiftFileLines(module, start.linesBefore);
    return module;
}

}  // namespace zentlor::readers
