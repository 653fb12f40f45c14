#include "core/analysis/procedure_extents.h"

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>

#include "core/utilities/character_blocks.h"

namespace zentlor {

namespace {

bool IsSpace(char16_t c) {
    return c == u' ' || c == u'\t';
}

// Outside of ASCII everything but punctuation is part of a name: the code pages of the editor know letters that others
// do not.
bool IsNameCharacter(char16_t c) {
    const bool isPunctuation = c >= 0x2000 && c <= 0x206F;
    return (c >= 0x80 && !isPunctuation) || IsWordCharacter(c);
}

bool IsNumber(TextView word) {
    return !word.empty() && word.find_first_not_of(u"0123456789") == TextView::npos;
}

// Takes words off the front of a statement. A continuation between two words is a blank like others.
class StatementReader {
  public:
    explicit StatementReader(TextView statement) : rest_(statement) { Skip(0); }

    TextView Rest() const { return rest_; }

    bool Take(TextView keyword) {
        if (!EqualIgnoringCase(word_, keyword)) return false;
        Skip(word_.size());
        return true;
    }

    TextView TakeName() {
        if (rest_.starts_with(u'[')) return rest_.substr(1, std::min(rest_.find_first_of(u"]\n"), rest_.size()) - 1);
        const auto end = std::find_if_not(rest_.begin(), rest_.end(), IsNameCharacter);
        return rest_.substr(0, static_cast<std::size_t>(end - rest_.begin()));
    }

    void SkipLineNumber() {
        if (IsNumber(word_)) Skip(word_.size());
    }

  private:
    void Skip(std::size_t length) {
        rest_.remove_prefix(length);
        SkipSpace();
        length = 0;
        while (length < rest_.size() && IsWordCharacter(rest_[length])) ++length;
        word_ = rest_.substr(0, length);
    }
    void SkipSpace() {
        for (;;) {
            while (!rest_.empty() && IsSpace(rest_.front())) rest_.remove_prefix(1);
            const auto behindMark = rest_.starts_with(u'_') ? rest_.find_first_not_of(u" \t", 1) : TextView::npos;
            if (behindMark == TextView::npos || rest_[behindMark] != u'\n') return;
            rest_.remove_prefix(behindMark + 1);
        }
    }

    TextView rest_;
    TextView word_;  // with which it begins
};

struct Header {
    TextView name;
    int kind = 0;
};

bool ReadHeader(TextView statement, Header& header) {
    StatementReader reader(statement);
    while (reader.Take(u"Public") || reader.Take(u"Private") || reader.Take(u"Friend") || reader.Take(u"Static") ||
           reader.Take(u"Global")) {
    }
    if (reader.Take(u"Sub") || reader.Take(u"Function")) {
        header.kind = vbext_pk_Proc;
    } else if (!reader.Take(u"Property")) {
        return false;
    } else if (reader.Take(u"Get")) {
        header.kind = vbext_pk_Get;
    } else if (reader.Take(u"Let")) {
        header.kind = vbext_pk_Let;
    } else if (reader.Take(u"Set")) {
        header.kind = vbext_pk_Set;
    } else {
        return false;
    }
    header.name = reader.TakeName();
    return !header.name.empty();
}

bool IsProcedureEnd(TextView statement) {
    StatementReader reader(statement);
    reader.SkipLineNumber();
    return reader.Take(u"End") && (reader.Take(u"Sub") || reader.Take(u"Function") || reader.Take(u"Property"));
}

// The offset of a logical line's first character that is no blank and no continuation, or the line's size.
std::size_t FindFirstCharacter(TextView line) {
    const std::size_t first = SkipIndentation(line, 0);
    const bool isPlain = first == line.size() || (line[first] != u'\t' && line[first] != u'_');
    return isPlain ? first : line.size() - StatementReader(line).Rest().size();
}

bool IsComment(TextView code) {
    return code.front() == u'\'' || (FoldCase(code.front()) == u'r' && StatementReader(code).Take(u"Rem"));
}

// Most lines of a program neither begin nor end a procedure, and their first letters tell it.
bool MayBeHeader(TextView code) {
    const char16_t c = FoldCase(code.front());
    return c == u'f' || c == u'g' || c == u'p' || c == u's';
}
bool MayEndProcedure(TextView code) {
    if (code.front() >= u'0' && code.front() <= u'9') return true;
    return FoldCase(code.front()) == u'e' && code.size() > 1 && FoldCase(code[1]) == u'n';
}

constexpr TextView kEnd = u"end";

// Whether an "End" at `place` may be that of a procedure. It tells most others by their neighbours: parts of words, and
// the ends of blocks.
bool MayBeOfProcedure(TextView text, std::size_t place) {
    if (place > 0 && IsWordCharacter(text[place - 1])) return false;
    const TextView behind = text.substr(place + kEnd.size(), 2);
    if (behind.size() < 2) return false;
    if (behind.front() != u' ') return !IsWordCharacter(behind.front());
    const char16_t c = FoldCase(behind.back());
    return c == u's' || c == u'f' || c == u'p' || c == u'_' || !IsWordCharacter(c);
}

// Offset of the next "End", in any case, that may be that of a procedure, or the text's size.
std::size_t FindEnd(TextView text, std::size_t from) {
    std::size_t i = from;
    for (; i + kEnd.size() - 1 + kBlock <= text.size(); i += kBlock) {
        const char16_t* block = text.data() + i;
        std::uint32_t places = PlacesOfLetter(kEnd[0], block) & PlacesOfLetter(kEnd[2], block + 2);
        for (; places != 0; places &= places - 1) {
            const std::size_t place = i + static_cast<std::size_t>(std::countr_zero(places));
            if ((text[place + 1] | 0x20) == kEnd[1] && MayBeOfProcedure(text, place)) return place;
        }
    }
    for (; i < text.size(); ++i) {
        if (EqualIgnoringCase(text.substr(i, kEnd.size()), kEnd) && MayBeOfProcedure(text, i)) return i;
    }
    return text.size();
}

// Cuts a logical line into its statements. Colons in strings and in bracketed names separate nothing, and a comment
// ends the line, be it "'" or a "Rem" where a statement may begin.
class StatementCutter {
  public:
    explicit StatementCutter(TextView line) : line_(line) {}

    /// False behind the last statement.
    bool Next(TextView& statement) {
        if (begin_ > line_.size()) return false;
        std::size_t end = begin_;
        bool mayBegin = true;  // whether a statement may begin here
        while (end < line_.size() && line_[end] != u':' && line_[end] != u'\'') {
            const std::size_t piece = end;
            end = EndOfPiece(piece);
            const TextView word = line_.substr(piece, end - piece);
            if (mayBegin && EqualIgnoringCase(word, u"Rem")) {
                end = piece;
                break;
            }
            if (IsBetweenWords(word)) continue;
            const bool isLineNumber = mayBegin && begin_ == 0 && IsNumber(word);
            mayBegin = isLineNumber || GoesBeforeStatement(word, piece);
        }
        statement = line_.substr(begin_, end - begin_);
        const bool goesOn = end < line_.size() && line_[end] == u':';
        begin_ = goesOn ? end + 1 : line_.size() + 1;
        return true;
    }

  private:
    // Blanks, line ends and the marks of continuation.
    static bool IsBetweenWords(TextView piece) {
        return piece == u"_" || IsSpace(piece.front()) || piece.front() == u'\n';
    }

    bool GoesBeforeStatement(TextView word, std::size_t at) const {
        const bool isMember = at > 0 && (line_[at - 1] == u'.' || line_[at - 1] == u'!');
        return !isMember && (EqualIgnoringCase(word, u"Then") || EqualIgnoringCase(word, u"Else"));
    }

    // Behind the string, the bracketed name, the word or the single character that begins at `at`.
    std::size_t EndOfPiece(std::size_t at) {
        std::size_t end = at + 1;
        if (line_[at] == u'"') return std::min(FindAny(line_, end, u'"') + 1, line_.size());
        if (line_[at] == u'[') return EndOfBrackets(at);
        if (!IsNameCharacter(line_[at])) return end;
        while (end < line_.size() && IsNameCharacter(line_[end])) ++end;
        return end;
    }

    // Brackets may hold brackets. Where they don't come in pairs the first "]" ends the name; without any, "[" opens
    // none.
    std::size_t EndOfBrackets(std::size_t open) {
        if (open < unclosedUntil_) return open + 1;
        const std::size_t first = FindAny(line_, open, u']', u'\n');
        if (first == line_.size() || line_[first] == u'\n') {
            unclosedUntil_ = first;
            return open + 1;
        }
        if (open < unpairedUntil_) return first + 1;
        std::size_t i = open;
        for (int depth = 0; i < line_.size() && line_[i] != u'\n'; ++i) {
            if (line_[i] == u'[') ++depth;
            if (line_[i] == u']' && --depth == 0) return i + 1;
        }
        unpairedUntil_ = i;
        return first + 1;
    }

    TextView line_;
    std::size_t begin_ = 0;
    // What a search has told of the rest of a physical line, so that none is searched twice: no "]", none that fits.
    std::size_t unclosedUntil_ = 0;
    std::size_t unpairedUntil_ = 0;
};

// The state of the walk over a module's lines, and its result.
class ExtentFinder {
  public:
    ExtentFinder(TextView text, const std::vector<std::uint32_t>& lineStarts) : text_(text), lineStarts_(lineStarts) {}

    ModuleExtents Run() {
        const int lines = static_cast<int>(lineStarts_.size()) - 1;
        for (int first = 1; first <= lines;) {
            if (open_) first = FindLineWithEnd(first);
            if (first > lines) break;
            int last = first;
            while (last < lines && IsContinuedLine(Text(last, last))) ++last;
            const TextView line = Text(first, last);
            const TextView code = line.substr(FindFirstCharacter(line));
            if (!code.empty()) VisitLogicalLine(first, last, code);
            first = last + 1;
        }
        Finish(lines);
        return std::move(result_);
    }

  private:
    // Physical lines `first` to `last`, without the last line end.
    TextView Text(int first, int last) const {
        const std::uint32_t begin = lineStarts_[static_cast<std::size_t>(first - 1)];
        return text_.substr(begin, lineStarts_[static_cast<std::size_t>(last)] - begin - 1);
    }

    // Where the next logical line begins that holds an "End", from line `first` on, which begins one; else a line
    // behind all. A body holds few of them, and no other line ends it.
    int FindLineWithEnd(int first) const {
        const std::size_t place = FindEnd(text_, lineStarts_[static_cast<std::size_t>(first - 1)]);
        if (place == text_.size()) return static_cast<int>(lineStarts_.size());
        int line = first;
        while (lineStarts_[static_cast<std::size_t>(line)] <= place) ++line;
        while (line > first && IsContinuedLine(Text(line - 1, line - 1))) --line;
        return line;
    }

    // `code`: the line from its first character on that is no blank.
    void VisitLogicalLine(int first, int last, TextView code) {
        const bool holdsColon = MayEndBehindColon(code);
        const bool mayBound = open_ ? holdsColon || MayEndProcedure(code) : MayBeHeader(code);
        const bool isSeen = mayBound || result_.procedures.empty();
        if (!isSeen || IsComment(code)) return;
        if (mayBound && holdsColon) {
            VisitStatements(first, last, code);
        } else if (mayBound) {
            VisitStatement(first, last, code, true);
        }
        if (result_.procedures.empty()) result_.declarationLines = last;
    }

    // Most colons stand in strings, and what follows them begins with no letter that an `End` could begin with.
    static bool MayEndBehindColon(TextView line) {
        for (std::size_t i = FindCharacter(line, 0, u':'); i < line.size(); i = FindCharacter(line, i + 1, u':')) {
            const TextView behind = line.substr(SkipSpaces(line, i + 1));
            if (behind.empty()) continue;
            if (MayEndProcedure(behind) || behind.front() == u'\t' || behind.front() == u'_') return true;
        }
        return false;
    }

    void VisitStatements(int first, int last, TextView line) {
        bool startsLine = true;
        StatementCutter cutter(line);
        for (TextView statement; cutter.Next(statement); startsLine = false) {
            VisitStatement(first, last, statement, startsLine);
        }
    }

    void VisitStatement(int first, int last, TextView statement, bool startsLine) {
        if (open_) {
            if (!IsProcedureEnd(statement)) return;
            result_.procedures.back().lastLine = last;
            open_ = false;
            return;
        }
        Header header;
        if (!startsLine || !ReadHeader(statement, header)) return;
        result_.procedures.push_back({header.name, header.kind, 0, first, last});
        open_ = true;
    }

    void Finish(int lines) {
        auto& procedures = result_.procedures;
        if (procedures.empty()) result_.declarationLines = lines;
        int next = result_.declarationLines + 1;
        for (std::size_t i = 0; i < procedures.size(); ++i) {
            procedures[i].firstLine = next;
            const bool last = i + 1 == procedures.size();
            if (last) procedures[i].lastLine = lines;
            next = procedures[i].lastLine + 1;
        }
        NumberDuplicates();
    }

    // Gives every further procedure of one name and kind a kind of its own.
    void NumberDuplicates() {
        auto& procedures = result_.procedures;
        std::vector<std::uint32_t> order(procedures.size());
        std::iota(order.begin(), order.end(), std::uint32_t{0});
        std::stable_sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
            return procedures[a].kind != procedures[b].kind ? procedures[a].kind < procedures[b].kind
                                                            : procedures[a].name < procedures[b].name;
        });
        int repetition = 0;
        for (std::size_t i = 1; i < order.size(); ++i) {
            Procedure& procedure = procedures[order[i]];
            const Procedure& before = procedures[order[i - 1]];
            const bool same = procedure.name == before.name && procedure.kind == before.kind % kProcedureKinds;
            repetition = same ? repetition + 1 : 0;
            procedure.kind += repetition * kProcedureKinds;
        }
    }

    TextView text_;
    const std::vector<std::uint32_t>& lineStarts_;
    ModuleExtents result_;
    bool open_ = false;
};

}  // namespace

ModuleExtents FindExtents(TextView text, const std::vector<std::uint32_t>& lineStarts) {
    return ExtentFinder(text, lineStarts).Run();
}

}  // namespace zentlor
