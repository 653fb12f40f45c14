// The writer compares each token, and the blanks in front of it, with what the editor would store. Only a difference is
// written: the text before it is copied in one run, then the better form. While the names are still being learned the
// same walk tells whether anything but a name differs; a module that is canonical already is never walked again.

#include "vba/canonical.h"

#include <algorithm>

#include "vba/characters.h"
#include "vba/header_parentheses.h"
#include "vba/keyword_role.h"
#include "vba/plain_line.h"
#include "vba/spacing.h"
#include "vba/token_form.h"

namespace zentlor::vba {
namespace {

constexpr std::size_t kTabStop = 4;

bool IsComparison(Operator op) {
    return op >= Operator::Equal && op <= Operator::NotEqual;
}

class ModuleWriter {
  public:
    /// Without a capitalisation all names may stand as they are.
    ModuleWriter(const Tokens& tokens, TextView text, const Capitalisation* capitalisation, Text& out)
        : tokens_(tokens), text_(text), capitalisation_(capitalisation), out_(out), spacing_(tokens) {}

    /// Whether anything but names would change.
    bool Differs() {
        std::size_t first = 0;
        while (tokens_[first].kind != TokenKind::EndOfText && !hasChanged_) {
            const std::size_t end = FindEndOfPlainLine(tokens_, text_, first);
            first = (end == kNoToken ? TakeLine(first) : end) + 1;
        }
        return hasChanged_;
    }

    bool Run() {
        std::size_t first = 0;
        while (tokens_[first].kind != TokenKind::EndOfText) first = TakeLine(first) + 1;
        if (!hasChanged_) return false;
        out_.append(text_.substr(done_));
        return true;
    }

  private:
    std::size_t TakeLine(std::size_t first) {
        bool isReadable = true;
        const std::size_t end = FindLineEnd(first, isReadable);
        if (isReadable) WriteLine(first, end);
        return end;
    }

    // The `EndOfLine` of the logical line that begins with token `first`. A line is readable if it holds no unknown
    // character, no open parenthesis and no mark without what it marks. Attributes are never rewritten.
    std::size_t FindLineEnd(std::size_t first, bool& isReadable) const {
        int depth = 0;
        isReadable = tokens_[first].keyword() != Keyword::Attribute;
        std::size_t i = first;
        for (; tokens_[i].kind != TokenKind::EndOfLine; ++i) {
            const Token& token = tokens_[i];
            if (token.kind == TokenKind::Unknown) isReadable = false;
            if (token.kind != TokenKind::Operator) continue;
            if (token.Is(Operator::OpenParenthesis)) ++depth;
            if (token.Is(Operator::CloseParenthesis) && --depth < 0) isReadable = false;
            if (!IsWellPlaced(i)) isReadable = false;
        }
        if (depth != 0) isReadable = false;
        return i;
    }

    // False for a "." or "!" without a member, a "#" without a file number, and for two comparisons in a row.
    bool IsWellPlaced(std::size_t index) const {
        const Token& token = tokens_[index];
        const Token& next = tokens_[SkipContinuations(tokens_, index + 1)];
        if (token.Is(Operator::Bang)) return tokens_[index + 1].IsWord();
        if (token.Is(Operator::Dot)) return next.IsWord();
        if (token.Is(Operator::Hash)) {
            return next.kind == TokenKind::Name || next.kind == TokenKind::Integer ||
                   next.Is(Operator::OpenParenthesis);
        }
        return !IsComparison(token.op()) || !IsComparison(next.op());
    }

    void WriteLine(std::size_t first, std::size_t end) {
        spacing_.BeginLine(first);
        const MissingParentheses missing = FindMissingParentheses(tokens_, first, end);
        for (std::size_t i = first; i <= end; ++i) {
            const Token& token = tokens_[i];
            const std::size_t gapStart = i == 0 ? 0 : tokens_[i - 1].End();
            const Gap gap = spacing_.Before(i);
            if (IsFirstOfPhysicalLine(i)) {
                WriteIndentation(gapStart, token.offset);
            } else if (tokens_[i - 1].kind != TokenKind::Comment) {
                WriteGap(gapStart, token.offset, gap);
            }
            WriteToken(i);
            if (i == missing.behind) Replace(token.End(), token.End(), missing.text);
        }
    }

    bool IsFirstOfPhysicalLine(std::size_t index) const {
        return index == 0 || tokens_[index - 1].kind == TokenKind::EndOfLine ||
               tokens_[index - 1].kind == TokenKind::Continuation;
    }

    void WriteIndentation(std::size_t start, std::size_t end) {
        columnStart_ = start;
        column_ = 0;
        ExpandBlanks(start, end);
    }

    void WriteGap(std::size_t start, std::size_t end, Gap gap) {
        switch (gap) {
            case Gap::None:
                if (start != end) Replace(start, end, {});
                break;
            case Gap::One:
                if (end != start + 1 || text_[start] != u' ') Replace(start, end, u" ");
                break;
            case Gap::Kept:
                if (start == end) return Replace(start, end, u" ");
                ExpandBlanks(start, end);
                break;
        }
    }

    // Tabs become the blanks that they stand for, with a stop every four columns; other blanks become one each.
    void ExpandBlanks(std::size_t start, std::size_t end) {
        const bool isPlain =
            std::all_of(text_.begin() + start, text_.begin() + end, [](char16_t c) { return c == u' '; });
        if (isPlain) return;
        const std::size_t from = ColumnOf(start);
        Replace(start, end, Text(ColumnOf(end) - from, u' '));
    }

    // The column in which the character at `place` of the present line is shown, from 0. Goes on from the last
    // question.
    std::size_t ColumnOf(std::size_t place) {
        for (; columnStart_ < place; ++columnStart_) {
            column_ = text_[columnStart_] == u'\t' ? (column_ / kTabStop + 1) * kTabStop : column_ + 1;
        }
        return column_;
    }

    void WriteToken(std::size_t index) {
        const Token& token = tokens_[index];
        switch (token.kind) {
            case TokenKind::Name:
                return WriteName(index);
            case TokenKind::Keyword:
                if (token.keyword() == Keyword::EndIf) return ReplaceIfOther(token, u"End If");
                return ReplaceIfOther(token, Spelling(token.keyword()));
            case TokenKind::Operator:
                if (token.Has(kRespelled)) Replace(token.offset, token.End(), FormOf(token.op()));
                return;
            case TokenKind::EndOfText:
            case TokenKind::EndOfLine:
                return;
            case TokenKind::String:
                if (token.Has(kUnterminated)) Replace(token.End(), token.End(), u"\"");
                return;
            default:
                return WriteOther(token);
        }
    }

    void WriteName(std::size_t index) {
        const Token& token = tokens_[index];
        if (token.Has(kBracketed)) return;
        const Token name = WithoutTypeCharacter(token);
        if (!token.Has(kOfProject)) return ReplaceIfOther(name, Spelling(token.keyword()));
        if (IsRangeStatement(tokens_[spacing_.StatementStart()].keyword())) return WriteLetter(name);
        if (capitalisation_ == nullptr) return;
        const bool isKeyword = token.id != 0 && StandsAsKeyword(tokens_, index, spacing_.StatementStart());
        ReplaceIfOther(name, isKeyword ? Spelling(token.keyword()) : capitalisation_->SpellingOf(NameOf(token, text_)));
    }

    void WriteLetter(const Token& letter) {
        const char16_t c = text_[letter.offset];
        if (letter.length != 1 || c < u'a' || c > u'z') return;
        const char16_t capital = static_cast<char16_t>(c - u'a' + u'A');
        Replace(letter.offset, letter.End(), TextView(&capital, 1));
    }

    void WriteOther(const Token& token) {
        const TextView present = TextOf(token, text_);
        if (HasForm(token, present)) return;
        Replace(token.offset, token.End(), FormOf(token, present));
    }

    static Token WithoutTypeCharacter(Token token) {
        if (token.Has(kTypeCharacter)) --token.length;
        return token;
    }

    void ReplaceIfOther(const Token& token, TextView form) {
        if (!IsSame(TextOf(token, text_), form)) Replace(token.offset, token.End(), form);
    }

    void Replace(std::size_t from, std::size_t to, TextView form) {
        if (!hasChanged_) {
            hasChanged_ = true;
            out_.clear();
            out_.reserve(text_.size() + text_.size() / 16);
        }
        out_.append(text_.substr(done_, from - done_));
        out_.append(form);
        done_ = to;
    }

    const Tokens& tokens_;
    TextView text_;
    const Capitalisation* capitalisation_;
    Text& out_;
    Spacing spacing_;
    std::size_t done_ = 0;  // everything in front of it has been written, once anything has changed
    bool hasChanged_ = false;
    std::size_t columnStart_ = 0;
    std::size_t column_ = 0;
};

}  // namespace

void Canonicaliser::Learn(const Tokens& tokens, TextView text) {
    Module module;
    module.names = capitalisation_.Learn(tokens, text);
    Text unused;
    module.differsInForm = ModuleWriter(tokens, text, nullptr, unused).Differs();
    modules_.push_back(std::move(module));
}

bool Canonicaliser::MayChange(std::size_t number) const {
    const Module& module = modules_[number];
    return module.differsInForm || std::any_of(module.names.begin(), module.names.end(),
                                               [this](std::uint32_t name) { return capitalisation_.Varies(name); });
}

bool Canonicaliser::Write(const Tokens& tokens, TextView text, Text& canonical) const {
    return ModuleWriter(tokens, text, &capitalisation_, canonical).Run();
}

}  // namespace zentlor::vba
