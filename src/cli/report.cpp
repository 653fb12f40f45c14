#include "cli/report.h"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>

#include "cli/words.h"
#include "core/language/messages.h"
#include "core/results/records.h"
#include "core/utilities/encoding.h"

namespace zentlor::cli {

namespace {

const workspace::ModuleOrigin* OriginOf(const Hint& hint, const workspace::OpenedProject& project) {
    return hint.component < 0 ? nullptr : &project.origins[static_cast<std::size_t>(hint.component)];
}

// The text of a report, of which only the last piece is kept if somebody takes the others.
class Pieces {
  public:
    explicit Pieces(PieceWriter write) : write_(std::move(write)) {}

    // Room for that many hints is taken at once, since text that grows by doubling is there twice while it moves; what
    // is never written costs nothing.
    void MakeRoom(std::size_t hints) {
        constexpr std::size_t kUsualLine = 256;
        const std::size_t wanted = text.size() + (write_ ? kPiece : hints * kUsualLine);
        if (wanted > text.capacity()) text.reserve(std::max(wanted, 2 * text.capacity()));
    }

    // To be called behind each line.
    void EndLine() {
        hasBegun = true;
        if (!write_ || text.size() < kPiece) return;
        write_(text);
        text.clear();
    }

    std::string text;
    bool hasBegun = false;

  private:
    static constexpr std::size_t kPiece = 1 << 20;
    PieceWriter write_;
};

// For people: one line a hint, a blank line between two modules, and the status texts at the end.
class TextReport : public Report {
  public:
    TextReport(bool colour, PieceWriter writePiece)
        : bold_(colour ? "\033[1m" : ""),
          dim_(colour ? "\033[2m" : ""),
          off_(colour ? "\033[0m" : ""),
          pieces_(std::move(writePiece)) {}

    void AddProject(Session& session, const workspace::OpenedProject& project) override {
        pieces_.MakeRoom(session.lvwErgebnis.Count());
        for (const Hint& hint : session.lvwErgebnis.Emitted()) {
            const workspace::ModuleOrigin* origin = OriginOf(hint, project);
            if (origin != lastOrigin_ && pieces_.hasBegun) pieces_.text += '\n';
            if (origin != lastOrigin_ || module_.empty()) {
                path_ = origin == nullptr ? "" : Printable(origin->path);
                module_ = Printable(TextView(hint.strNameVBC));
            }
            lastOrigin_ = origin;
            auto out = std::back_inserter(pieces_.text);
            if (origin != nullptr) {
                const int line = origin->FileLine(hint.lngZeile == 0 ? 1 : hint.lngZeile);
                fmt::format_to(out, "{}{}:{}:{} ", bold_, path_, line, off_);
            }
            // What stands between two procedures belongs to none.
            fmt::format_to(out, "{}{}{}: {} {}[{}]{}\n", module_, hint.strProzedur.empty() ? "" : ".",
                           Printable(TextView(hint.strProzedur)), Printable(TextView(hint.strHinweis)), dim_,
                           ToUtf8(InfoOf(hint.check).key), off_);
            pieces_.EndLine();
        }
    }

    void AddStatus(const workspace::OpenedProject& project, const std::string& hints,
                   const std::string& duration) override {
        status_.push_back({Printable(project.document.path), hints + " " + duration + "\n"});
    }

    std::string Finish(Session& session, const workspace::Workspace& opened) override {
        if (pieces_.hasBegun) pieces_.text += '\n';
        for (const Status& status : status_) {
            if (opened.projects.size() > 1) pieces_.text += status.path + ": ";
            pieces_.text += status.text;
        }
        pieces_.text += ReadSummary(opened, session.udtOptionen.AllgSprache) + "\n";
        return std::move(pieces_.text);
    }

  private:
    struct Status {
        std::string path;
        std::string text;
    };

    const char* bold_;
    const char* dim_;
    const char* off_;
    Pieces pieces_;
    std::vector<Status> status_;
    const workspace::ModuleOrigin* lastOrigin_ = nullptr;
    // Of the module that the last hint was about, ready to be printed.
    std::string path_;
    std::string module_;
};

// For programs: one object a hint, in order of emission. Written by hand: this is the form in which a million hints are
// handed on.
class JsonReport : public Report {
  public:
    explicit JsonReport(PieceWriter writePiece) : pieces_(std::move(writePiece)) {}

    void AddProject(Session& session, const workspace::OpenedProject& project) override {
        pieces_.MakeRoom(session.lvwErgebnis.Count());
        for (const Hint& hint : session.lvwErgebnis.Emitted()) AddHint(hint, project);
    }
    void AddStatus(const workspace::OpenedProject&, const std::string&, const std::string&) override {}
    std::string Finish(Session&, const workspace::Workspace&) override { return std::move(pieces_.text); }

  private:
    void Field(std::string_view name, TextView value) {
        pieces_.text += name;
        AppendJsonString(value, pieces_.text);
    }

    void AddHint(const Hint& hint, const workspace::OpenedProject& project) {
        const workspace::ModuleOrigin* origin = OriginOf(hint, project);
        Field("{\"check\":", InfoOf(hint.check).key);
        Field(",\"module\":", hint.strNameVBC);
        Field(",\"procedure\":", hint.strProzedur);
        Field(",\"hint\":", hint.strHinweis);
        fmt::format_to(std::back_inserter(pieces_.text), ",\"line\":{}", hint.lngZeile);
        Field(",\"path\":", origin == nullptr ? Text() : FromUtf8(origin->path));
        if (project.isDocument) Field(",\"document\":", FromUtf8(project.document.path));
        const int fileLine = origin == nullptr || hint.lngZeile == 0 ? 0 : origin->FileLine(hint.lngZeile);
        fmt::format_to(std::back_inserter(pieces_.text), ",\"fileLine\":{}}}\n", fileLine);
        pieces_.EndLine();
    }

    Pieces pieces_;
};

// The two forms of the export: bytes of Windows-1252, rows in the order of the list. The hints of several projects make
// one list.
class RecordReport : public Report {
  public:
    RecordReport(RecordForm form, PieceWriter writePiece) : form_(form), pieces_(std::move(writePiece)) {}

    void AddProject(Session& session, const workspace::OpenedProject&) override {
        for (const Hint& hint : session.lvwErgebnis.Emitted()) hints_.Add(hint);
    }
    void AddStatus(const workspace::OpenedProject&, const std::string&, const std::string&) override {}

    std::string Finish(Session& session, const workspace::Workspace&) override {
        session.lvwErgebnis = std::move(hints_);
        pieces_.MakeRoom(session.lvwErgebnis.Count());
        ForEachRecord(session, form_, [this](TextView record) {
            pieces_.text += ToWindows1252(record);
            pieces_.EndLine();
        });
        return std::move(pieces_.text);
    }

  private:
    RecordForm form_;
    Pieces pieces_;
    ResultList hints_;
};

}  // namespace

std::unique_ptr<Report> MakeReport(const std::string& format, bool colour, PieceWriter writePiece) {
    if (format == "jsonl") return std::make_unique<JsonReport>(std::move(writePiece));
    if (format == "text") return std::make_unique<TextReport>(colour, std::move(writePiece));
    return std::make_unique<RecordReport>(format == "csv" ? RecordForm::Csv : RecordForm::Txt, std::move(writePiece));
}

void AppendJsonString(TextView text, std::string& out) {
    out += '"';
    std::size_t begin = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (c >= 0x20 && c != u'"' && c != u'\\' && c != 0x7F) continue;
        AppendUtf8(text.substr(begin, i - begin), out);
        begin = i + 1;
        if (c == u'"' || c == u'\\') {
            out += '\\';
            out += static_cast<char>(c);
        } else {
            fmt::format_to(std::back_inserter(out), "\\u{:04x}", static_cast<unsigned>(c));
        }
    }
    AppendUtf8(text.substr(begin), out);
    out += '"';
}

std::string ReadSummary(const workspace::Workspace& opened, int sprache) {
    std::size_t modules = 0;
    std::size_t lines = 0;
    for (const workspace::OpenedProject& project : opened.projects) {
        modules += project.origins.size();
        lines += static_cast<std::size_t>(project.LineCount());
    }
    std::string text = Say(sprache, "Gelesen: [%1], [%2], [%3]", "Read: [%1], [%2], [%3]",
                           {Counted(opened.projects.size(), sprache, {"Projekt", "Projekte"}, {"project", "projects"}),
                            Counted(modules, sprache, {"Modul", "Module"}, {"module", "modules"}),
                            Counted(lines, sprache, {"Zeile", "Zeilen"}, {"line", "lines"})});
    if (!opened.empty.empty()) {
        text +=
            Say(sprache, "; ohne VBA-Code: [%1]", "; without VBA code: [%1]", {std::to_string(opened.empty.size())});
    }
    const std::size_t failed = opened.unreadable.size() + opened.problems.size();
    if (failed > 0) text += Say(sprache, "; mit Fehlern: [%1]", "; with errors: [%1]", {std::to_string(failed)});
    return text + ".";
}

}  // namespace zentlor::cli
