#pragma once

// What the tokenizer makes of a module's text: one flat run of small tokens in the order of the text. Blanks and tabs
// belong to no token; every other character belongs to exactly one. Each physical line's end lies in one `EndOfLine`,
// to which the empty lines behind it belong, or in one `Continuation`.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <type_traits>

#include "core/analysis/words.h"
#include "core/utilities/text.h"
#include "vba/keywords.h"

namespace zentlor::vba {

enum class TokenKind : std::uint8_t {
    EndOfText,     ///< The last token of every run, and the only one of its kind; length 0.
    EndOfLine,     ///< The line feed and those directly behind it; length 0 where the text's last line has none.
    Continuation,  ///< "_" at a line's end, the blanks behind it and the line feed; in code and in comments.
    Name,          ///< A word that may be a name. `keyword` says which keyword it is where its place makes it one.
    Keyword,       ///< A word that is never a declared name, unless it is a member behind "." or "!" (then a `Name`).
    Integer,       ///< Decimal digits, a suffix included; also a line number.
    Hexadecimal,   ///< `&HFF`, a suffix included.
    Octal,         ///< `&O17` and `&17`, a suffix included.
    Float,         ///< With point or exponent (E or D), a suffix included.
    Date,          ///< `#1/31/2000 5:00:00 PM#`
    String,        ///< The quotation marks included.
    Operator,      ///< Operators and punctuation; `op` says which.
    Directive,     ///< `#If`, `#ElseIf`, `#Else`, `#End` (an `If` follows) or `#Const`; `keyword` holds the word.
    Comment,       ///< From "'" or "Rem" to the line's end or to the "_" of a continuation; then line by line
                   ///< on, blanks included. `keyword` is `Rem` where the comment begins with this word.
    Unknown,       ///< Characters that VBA has no use for.
};

enum class Operator : std::uint16_t {
    None,
    Plus,
    Minus,
    Times,
    Divide,
    IntegerDivide,
    Power,
    Concatenate,
    Equal,  ///< Comparison and assignment.
    Less,
    Greater,
    LessEqual,     ///< "<=", "=<", blanks in between allowed
    GreaterEqual,  ///< ">=", "=>"
    NotEqual,      ///< "<>", "><"
    Assign,        ///< ":=" of a named argument
    Colon,
    Comma,
    Semicolon,
    Dot,
    Bang,
    Hash,  ///< In front of a file number.
    OpenParenthesis,
    CloseParenthesis,
    Question,  ///< The short form of `Print`.
};

/// Facts about one token, as bits of `Token::flags`.
enum TokenFlag : std::uint8_t {
    kMember = 1,          ///< Name directly behind "." or "!": a member whatever the word is.
    kTypeCharacter = 2,   ///< Name whose last character is one of "%&^!#@$".
    kBracketed = 4,       ///< Name in brackets: `[Name]`; the brackets are part of the token.
    kUnterminated = 8,    ///< String whose closing mark is missing: it ends with its line.
    kRespelled = 16,      ///< Operator in which the editor would change characters; word in which it would change
                          ///< letters if it stood for its keyword.
    kOfProject = 32,      ///< Name whose capitalisation the project decides: without brackets and no fixed word of VBA,
                          ///< or a member whatever word it is (`Debug.Print`).
    kEndsStatement = 64,  ///< A line's end, a colon, `Then`, `Else`.
};

/// Positions and lengths are in UTF-16 code units from the text's start.
struct Token {
    std::uint32_t offset = 0;
    std::uint32_t length = 0;
    TokenKind kind = TokenKind::EndOfText;
    std::uint8_t flags = 0;
    std::uint16_t id = 0;          ///< An `Operator` for operators, else a `Keyword` or 0.
    std::uint32_t word = kNoWord;  ///< Of a name or a keyword: the word's number in the project's table.

    Keyword keyword() const { return kind == TokenKind::Operator ? Keyword::None : static_cast<Keyword>(id); }
    Operator op() const { return kind == TokenKind::Operator ? static_cast<Operator>(id) : Operator::None; }
    /// True for that word, unless it is a member; a directive is no such word.
    bool Is(Keyword wanted) const { return IsWord() && keyword() == wanted && !Has(kMember); }
    bool Is(Operator wanted) const { return op() == wanted; }
    bool Is(TokenKind wanted) const { return kind == wanted; }
    bool Has(TokenFlag flag) const { return (flags & flag) != 0; }
    bool IsWord() const { return kind == TokenKind::Name || kind == TokenKind::Keyword; }
    std::uint32_t End() const { return offset + length; }
};

static_assert(sizeof(Token) == 16 && std::is_trivially_copyable_v<Token>);

/// The longest name that the editor takes. A bracketed one is no identifier of the language.
inline constexpr std::size_t kLongestName = 255;

/// The tokens of a text, one behind the other. There is room for as many as were asked for, and no more; what of it is
/// never written costs nothing.
class Tokens {
  public:
    /// No tokens, and room for `most`. Memory is used again.
    void Reset(std::size_t most) {
        hasDirective_ = hasLongToken_ = false;
        end_ = memory_.get();
        if (most <= room_) return;
        memory_.reset();  // first, so that both are never held
        memory_.reset(static_cast<Token*>(::operator new(most * sizeof(Token))));
        room_ = most;
        end_ = memory_.get();
    }
    void Append(const Token& token) { *end_++ = token; }
    void Append(const Token* first, const Token* last) { end_ = std::copy(first, last, end_); }

    /// For a writer that goes on at the end and says then where it stopped.
    Token* end() { return end_; }
    void SetEnd(Token* end) { end_ = end; }

    /// What few texts have. The tokenizer notes it, so that nobody need look for it in the others.
    void NoteDirective() { hasDirective_ = true; }
    void NoteLongToken() { hasLongToken_ = true; }
    bool HasDirective() const { return hasDirective_; }
    /// Whether there is a token of more than `kLongestName` characters, of whatever kind.
    bool HasLongToken() const { return hasLongToken_; }

    const Token* begin() const { return memory_.get(); }
    const Token* end() const { return end_; }
    const Token* data() const { return begin(); }
    std::size_t size() const { return static_cast<std::size_t>(end() - begin()); }
    const Token& operator[](std::size_t index) const { return begin()[index]; }
    const Token& back() const { return end()[-1]; }

  private:
    struct Free {
        void operator()(Token* memory) const { ::operator delete(memory); }
    };

    std::unique_ptr<Token, Free> memory_;
    Token* end_ = nullptr;
    std::size_t room_ = 0;
    bool hasDirective_ = false;
    bool hasLongToken_ = false;
};

inline TextView TextOf(const Token& token, TextView text) {
    return text.substr(token.offset, token.length);
}

/// The name itself: without brackets and without a type character.
inline TextView NameOf(const Token& token, TextView text) {
    TextView name = TextOf(token, text);
    if (token.Has(kTypeCharacter)) name.remove_suffix(1);
    if (token.Has(kBracketed)) name = name.substr(1, name.size() - 2);
    return name;
}

}  // namespace zentlor::vba
