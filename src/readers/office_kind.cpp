#include "readers/office_kind.h"

#include <algorithm>

namespace zentlor::readers {
namespace {

struct Kind {
    /// What betrays the kind: a piece of a content type, the folder of the main part, or the name of a stream.
    std::string_view mark;
    std::string_view german;
    std::string_view english;
};

// The longer marks first: a workbook's is part of no other, but "document.main" is found in files with macros too.
constexpr Kind kContentTypes[] = {
    {"ms-excel.sheet.binary.macroEnabled", "Excel-Binärarbeitsmappe (ab 2007)",
     "Excel binary workbook (2007 and later)"},
    {"ms-excel.sheet.macroEnabled", "Excel-Arbeitsmappe mit Makros (ab 2007)",
     "Excel macro-enabled workbook (2007 and later)"},
    {"ms-excel.template.macroEnabled", "Excel-Vorlage mit Makros (ab 2007)",
     "Excel macro-enabled template (2007 and later)"},
    {"ms-excel.addin.macroEnabled", "Excel-Add-In (ab 2007)", "Excel add-in (2007 and later)"},
    {"ms-word.document.macroEnabled", "Word-Dokument mit Makros (ab 2007)",
     "Word macro-enabled document (2007 and later)"},
    {"ms-word.template.macroEnabled", "Word-Vorlage mit Makros (ab 2007)",
     "Word macro-enabled template (2007 and later)"},
    {"ms-powerpoint.presentation.macroEnabled", "PowerPoint-Präsentation mit Makros (ab 2007)",
     "PowerPoint macro-enabled presentation (2007 and later)"},
    {"ms-powerpoint.slideshow.macroEnabled", "PowerPoint-Bildschirmpräsentation mit Makros (ab 2007)",
     "PowerPoint macro-enabled slide show (2007 and later)"},
    {"ms-powerpoint.template.macroEnabled", "PowerPoint-Vorlage mit Makros (ab 2007)",
     "PowerPoint macro-enabled template (2007 and later)"},
    {"ms-powerpoint.addin.macroEnabled", "PowerPoint-Add-In (ab 2007)", "PowerPoint add-in (2007 and later)"},
    {"ms-visio.drawing.macroEnabled", "Visio-Zeichnung mit Makros (ab 2013)",
     "Visio macro-enabled drawing (2013 and later)"},
    {"ms-visio.template.macroEnabled", "Visio-Vorlage mit Makros (ab 2013)",
     "Visio macro-enabled template (2013 and later)"},
    {"ms-visio.stencil.macroEnabled", "Visio-Schablone mit Makros (ab 2013)",
     "Visio macro-enabled stencil (2013 and later)"},
};

constexpr Kind kFolders[] = {
    {"xl/", "Excel-Arbeitsmappe (ab 2007)", "Excel workbook (2007 and later)"},
    {"word/", "Word-Dokument (ab 2007)", "Word document (2007 and later)"},
    {"ppt/", "PowerPoint-Präsentation (ab 2007)", "PowerPoint presentation (2007 and later)"},
    {"visio/", "Visio-Zeichnung (ab 2013)", "Visio drawing (2013 and later)"},
};

constexpr Kind kStreams[] = {
    {"Workbook", "Excel-Arbeitsmappe (97–2003)", "Excel workbook (97–2003)"},
    {"Book", "Excel-Arbeitsmappe (5.0/95)", "Excel workbook (5.0/95)"},
    {"WordDocument", "Word-Dokument (97–2003)", "Word document (97–2003)"},
    {"PowerPoint Document", "PowerPoint-Präsentation (97–2003)", "PowerPoint presentation (97–2003)"},
    {"VisioDocument", "Visio-Zeichnung (bis 2010)", "Visio drawing (up to 2010)"},
};

// The storages of an Access database without the database: its tables stay on a server. No stream of its own tells.
bool IsAccessProject(const Storage& root) {
    const auto has = [&](TextView name) { return root.OpenStorage(name) != nullptr; };
    return OpenPath(root, {u"VBA", u"VBAProject"}) || (has(u"Forms") && has(u"Reports") && has(u"Modules"));
}

Sentence Words(const Kind& kind) {
    return {std::string(kind.german), std::string(kind.english)};
}

}  // namespace

std::optional<Sentence> DescribeOpenXml(std::string_view contentTypes, const std::vector<ZipPart>& parts) {
    for (const Kind& kind : kContentTypes) {
        if (contentTypes.find(kind.mark) != std::string_view::npos) return Words(kind);
    }
    for (const Kind& kind : kFolders) {
        const auto inFolder = [&](const ZipPart& part) {
            return part.name.compare(0, kind.mark.size(), kind.mark) == 0;
        };
        if (std::any_of(parts.begin(), parts.end(), inFolder)) return Words(kind);
    }
    return std::nullopt;
}

std::optional<Sentence> DescribeCompoundFile(const Storage& root) {
    for (const Kind& kind : kStreams) {
        if (root.ReadStream(Text(kind.mark.begin(), kind.mark.end()), 1)) return Words(kind);
    }
    if (IsAccessProject(root)) return Sentence{"Access-Projekt (2000–2010)", "Access project (2000–2010)"};
    return std::nullopt;
}

}  // namespace zentlor::readers
