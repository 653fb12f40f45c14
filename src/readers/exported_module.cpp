#include "readers/exported_module.h"

#include <algorithm>

#include "core/utilities/encoding.h"
#include "readers/attributes.h"
#include "readers/code_page.h"
#include "readers/double_byte.h"
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

// A query, which some tools write into a .bas file as well: `Operation =1`, or its first property, `dbMemo "SQL" =`.
bool IsAccessQuery(TextView text) {
    const TextView start = LTrim(text.substr(0, text.find_first_of(u"\r\n")));
    if (start.starts_with(u"Operation =")) return true;
    const TextView word = start.substr(0, std::min(start.find(u' '), start.size()));
    return word.starts_with(u"db") && start.substr(word.size()).starts_with(u" \"") &&
           start.find(u"\" =") != start.npos;
}

// An Access export holds the layout of a form or report first, and its code behind a line of its own.
struct AccessExport {
    bool report = false;
    /// Offset of the code, and the number of lines in front of it; nothing where the form has no module.
    std::optional<std::size_t> code = std::nullopt;
    std::uint32_t linesBefore = 0;
    /// Without code the layout is the last thing in the file, and its end the last line.
    bool complete = false;
};
AccessExport FindCodeBehind(TextView text, bool report) {
    AccessExport found{report};
    bool inLayout = false;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find_first_of(u"\r\n", at), text.size());
        const TextView line = RTrim(text.substr(at, end - at));
        const bool crLf = text.substr(end).starts_with(u"\r\n");
        at = std::min(end + (crLf ? 2 : 1), text.size());
        ++found.linesBefore;
        if (!inLayout && line.starts_with(u"Begin")) {
            inLayout = true;
            if (line == u"Begin Form") found.report = false;
            if (line == u"Begin Report") found.report = true;
        }
        if (!line.empty()) found.complete = line == u"End";
        if (line != kCodeBehind) continue;
        found.code = at;
        break;
    }
    return found;
}

// Some tools write the code of a form into a file of its own, and leave `' See "Kunden.cls"` behind in the layout's.
bool NamesOtherFile(TextView code) {
    const TextView line = Trim(code.substr(0, code.find_first_of(u"\r\n")));
    const bool isAlone =
        code.find_first_not_of(u"\r\n", std::min(code.find_first_of(u"\r\n"), code.size())) == code.npos;
    return isAlone && line.starts_with(u"' See \"") && line.ends_with(u".cls\"");
}

// The module of the form Kunden is called Form_Kunden, but its export names the form alone, in the name of its file.
Text NameOfAccessModule(const Text& stem, bool report) {
    const TextView prefix = report ? TextView(u"Report_") : TextView(u"Form_");
    if (EqualIgnoringCase(TextView(stem).substr(0, prefix.size()), prefix)) return stem;
    return Text(prefix) + stem;
}

ModuleType TypeOf(const std::string& ending, const StrippedCode& stripped, TextView name) {
    const bool accessName = name.starts_with(u"Form_") || name.starts_with(u"Report_");
    if (ending == ".frm" || stripped.kind == ExportHeader::Form) return ModuleType::Form;
    if (ending == ".cls" || stripped.kind == ExportHeader::Class) {
        const bool document = (stripped.predeclaredId && stripped.exposed) || accessName;
        return document ? ModuleType::Document : ModuleType::Class;
    }
    return ModuleType::Standard;
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
    DecodedText decoded = DecodeCodePage(bytes, GuessDoubleBytePage(bytes));
    return decoded.undecodable == 0 ? std::move(decoded.text) : FromWindows1252(bytes);
}

std::optional<SourceModule> ReadExportedModule(std::string_view bytes, const std::string& path) {
    Text text = DecodeModuleText(bytes);
    const bool mayHoldZeros = bytes.find('\0') != std::string_view::npos;
    if (mayHoldZeros && FindCharacter(text, 0, u'\0') < text.size()) {
        Fail(ReadFailure::NotADocument,
             "„[%1]“ ist kein Modul: die Datei enthält Zeichen, die in keinem Text stehen; ein exportiertes Modul, "
             "ein Office-Dokument oder eine Access-Datenbank angeben.",
             "“[%1]” is no module: the file holds characters that stand in no text; name an exported module, an Office "
             "document or an Access database.",
             {path});
    }
    if (IsAccessQuery(text)) return std::nullopt;
    const std::string ending = LowerCaseEnding(path);
    std::optional<AccessExport> access;
    if (IsAccessExport(text)) access = FindCodeBehind(text, ending == ".report");
    if (access && !access->code) {
        if (access->complete) return std::nullopt;
        Fail(ReadFailure::Damaged, "„[%1]“ bricht vor dem Code ab; das Objekt in Access noch einmal exportieren.",
             "“[%1]” breaks off in front of its code; export the object from Access once more.", {path});
    }
    if (access) text.erase(0, *access->code);
    if (access && NamesOtherFile(text)) return std::nullopt;
    StrippedCode stripped = StripAttributes(std::move(text));

    SourceModule module;
    module.name = std::move(stripped.name);
    if (module.name.empty()) {
        const Text stem = FromUtf8(FileStem(path));
        module.name = access ? NameOfAccessModule(stem, access->report) : stem;
    }
    module.type = access ? ModuleType::Document : TypeOf(ending, stripped, module.name);
    module.path = path;
    module.code = std::move(stripped.code);
    module.fileLines = std::move(stripped.fileLines);
    module.header = std::move(stripped.header);
    module.innerAttributes = std::move(stripped.innerAttributes);
    if (access) module.fileLines.ShiftBy(access->linesBefore);
    return module;
}

}  // namespace zentlor::readers
