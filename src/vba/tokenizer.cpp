// The tokenizer walks over the text once. At each place the first character decides what begins there; blanks are
// stepped over. Few places need a look at the token before: "#" behind `Print` opens a file number and no date, a word
// behind "." is a member, "." between a name and a digit is no decimal point. A comment lasts as long as its lines are
// continued.

#include "vba/tokenizer.h"

#include "core/utilities/character_blocks.h"
#include "vba/characters.h"
#include "vba/date_literal.h"
#include "vba/token_form.h"
#include "vba/token_start.h"

namespace zentlor::vba {
namespace {

class Scanner {
  public:
    Scanner(TextView text, std::span<const WordPlace> words, std::vector<WordMeaning>& meanings, Tokens& tokens)
        : text_(text),
          nextWord_(words.data()),
          endOfWords_(words.data() + words.size()),
          meanings_(meanings),
          tokens_(tokens) {}

    void Run() {
        while (at_ < text_.size()) {
            TakePlainTokens();
            if (at_ < text_.size()) ScanToken();
        }
        if (tokens_.size() > 0 && tokens_.back().kind != TokenKind::EndOfLine) {
            Add(TokenKind::EndOfLine, 0, 0, kEndsStatement);
        }
        Add(TokenKind::EndOfText, 0);
    }

  private:
    // The character `ahead` places behind the current one in its ASCII form, or 0 behind the end.
    char16_t Peek(std::size_t ahead = 0) const {
        return at_ + ahead < text_.size() ? FoldWidth(text_[at_ + ahead]) : u'\0';
    }
    char16_t CharacterAt(std::size_t place) const { return place < text_.size() ? FoldWidth(text_[place]) : u'\0'; }
    bool HasTraitAt(std::size_t place, std::uint8_t traits) const {
        return place < text_.size() && HasTrait(text_[place], traits);
    }
    std::size_t SkipBlanks(std::size_t place) const {
        while (HasTraitAt(place, kBlank)) ++place;
        return place;
    }
    std::size_t SkipDigits(std::size_t place) const {
        while (HasTraitAt(place, kDigit)) ++place;
        return place;
    }

    void Add(TokenKind kind, std::size_t length, std::uint16_t id = 0, std::uint8_t flags = 0,
             std::uint32_t word = kNoWord) {
        const Token token{static_cast<std::uint32_t>(at_), static_cast<std::uint32_t>(length), kind, flags, id, word};
        tokens_.Append(token);
        if (kind == TokenKind::Directive) tokens_.NoteDirective();
        if (length > kLongestName) tokens_.NoteLongToken();
        if (kind != TokenKind::Continuation) previous_ = token;
        at_ += length;
    }
    void AddOperator(Operator op, std::size_t length) {
        const bool isRespelled = text_.substr(at_, length) != FormOf(op);
        const std::uint8_t flags = static_cast<std::uint8_t>((isRespelled ? kRespelled : 0) | FlagsOf(op));
        Add(TokenKind::Operator, length, static_cast<std::uint16_t>(op), flags);
    }
    static std::uint8_t FlagsOf(Operator op) { return op == Operator::Colon ? kEndsStatement : 0; }

    // Where the walk stands.
    struct Cursor {
        std::size_t at;         // in the text
        const WordPlace* word;  // the first one that does not begin in front of it
        Token* end;             // behind the last token
        const Token* previous;  // the last token that is no continuation
    };

    void TakePlainTokens() {
        const Cursor cursor = BehindPlainTokens({at_, nextWord_, tokens_.end(), &previous_});
        at_ = cursor.at;
        nextWord_ = cursor.word;
        tokens_.SetEnd(cursor.end);
        previous_ = *cursor.previous;
    }

    // The loop for what most of a text is: words that were met before, operators that are one character and no part of
    // another one, line ends and blanks. Stops in front of anything else.
    Cursor BehindPlainTokens(Cursor cursor) const {
        const TextView text = text_;
        const std::span<const WordMeaning> meanings(meanings_);
        const auto add = [&](const Token& token) {
            *cursor.end = token;
            cursor.previous = cursor.end++;
            cursor.at += token.length;
        };
        while (cursor.at < text.size()) {
            const char16_t c = text[cursor.at];
            if (c >= kStarts.size()) return cursor;
            const auto offset = static_cast<std::uint32_t>(cursor.at);
            const StartEntry entry = kStarts[c];
            switch (entry.start) {
                case Start::Blank:
                    ++cursor.at;
                    break;
                case Start::Word: {
                    while (cursor.word != endOfWords_ && cursor.word->offset < offset) ++cursor.word;
                    if (cursor.word == endOfWords_ || cursor.word->offset != offset) return cursor;
                    const std::uint32_t number = cursor.word->number;
                    if (number >= meanings.size()) return cursor;
                    const WordMeaning word = meanings[number];
                    const std::size_t end = offset + word.length;
                    const char16_t behind = end < text.size() ? text[end] : u'\n';
                    const bool endsHere = behind < 128 && (kCharacterTable[behind] & kTypeMark) == 0;
                    if (!endsHere || word.length - 1 >= kLongestName) return cursor;  // 0: not met before
                    const auto id = static_cast<std::uint16_t>(word.keyword);
                    if (IsPoint(*cursor.previous)) {
                        add({offset, word.length, TokenKind::Name, MemberFlags(word), id, number});
                    } else if (word.kind != TokenKind::Comment) {
                        add({offset, word.length, word.kind, word.flags, id, number});
                    } else {
                        return cursor;
                    }
                    ++cursor.word;
                    break;
                }
                case Start::Single:
                    add({offset, 1, TokenKind::Operator, entry.flags, static_cast<std::uint16_t>(entry.single)});
                    break;
                case Start::LineEnd: {
                    std::size_t end = offset + 1;
                    while (end < text.size() && text[end] == u'\n') ++end;
                    add({offset, static_cast<std::uint32_t>(end - offset), TokenKind::EndOfLine, kEndsStatement});
                    cursor.at = SkipIndentation(text, cursor.at);
                    break;
                }
                default:
                    return cursor;
            }
        }
        return cursor;
    }

    static bool IsPoint(const Token& token) { return token.Is(Operator::Dot) || token.Is(Operator::Bang); }
    static std::uint8_t MemberFlags(const WordMeaning& word) {
        return static_cast<std::uint8_t>((word.flags & kRespelled) | kMember | kOfProject);
    }

    void ScanToken() {
        const StartEntry entry = StartOf(text_[at_]);
        switch (entry.start) {
            case Start::LineEnd:  // never stopped in front of
            case Start::Unknown:
                return Add(TokenKind::Unknown, 1);
            case Start::Blank:
                ++at_;
                return;
            case Start::Word:
                return ScanWord();
            case Start::Number:
                return ScanNumber();
            case Start::String:
                return ScanString();
            case Start::Comment:
                return ScanComment(1);
            case Start::Underscore:
                return ScanUnderscore();
            case Start::Bracket:
                return ScanBrackets();
            case Start::Hash:
                return ScanHash();
            case Start::Ampersand:
                return ScanAmpersand();
            case Start::Dot:
                return ScanDot();
            case Start::Pair:
                return ScanPair(entry.single);
            case Start::Single:
                return AddOperator(entry.single, 1);
        }
    }

    void ScanWord() {
        std::uint32_t number = kNoWord;
        const WordMeaning word = MeaningHere(number);
        std::size_t end = at_ + word.length;
        const bool isMember = IsPoint(previous_);
        std::uint8_t flags = isMember ? MemberFlags(word) : word.flags;
        const bool isKeyword = word.kind != TokenKind::Name && !isMember;
        if (!isKeyword && IsTypeCharacter(end, word.keyword)) {
            flags |= kTypeCharacter;
            ++end;
        }
        if (word.keyword == Keyword::Rem && isKeyword) return ScanComment(end - at_, word.keyword);
        Add(isKeyword ? TokenKind::Keyword : TokenKind::Name, end - at_, static_cast<std::uint16_t>(word.keyword),
            flags, number);
    }

    // The word that begins here. Its number, if it has one: words with foreign letters are not in the project's table,
    // or only parts of them.
    WordMeaning MeaningHere(std::uint32_t& number) {
        while (nextWord_ != endOfWords_ && nextWord_->offset < at_) ++nextWord_;
        if (nextWord_ == endOfWords_ || nextWord_->offset != at_) return ReadWord();
        if (nextWord_->number >= meanings_.size()) meanings_.resize(2 * std::size_t{nextWord_->number} + 64);
        WordMeaning& known = meanings_[nextWord_->number];
        if (known.length == 0) {
            std::size_t end = at_;
            while (end < text_.size() && IsIndexCharacter(text_[end])) ++end;
            known = MeaningOf(text_.substr(at_, end - at_));
        }
        const std::size_t end = at_ + known.length;
        if (end < text_.size() && text_[end] >= 128 && HasTrait(text_[end], kNamePart)) return ReadWord();
        number = nextWord_->number;
        return known;
    }

    WordMeaning ReadWord() const {
        std::size_t end = at_;
        while (HasTraitAt(end, kNamePart)) ++end;
        return MeaningOf(text_.substr(at_, end - at_));
    }

    // Whether the character at `place`, directly behind a name, is the name's type character. "!" in front of a name
    // asks for a member, "&" in front of an operand joins, and "^" raises to a power where an operand follows.
    bool IsTypeCharacter(std::size_t place, Keyword keyword) const {
        if (!HasTraitAt(place, kTypeMark)) return false;
        switch (CharacterAt(place)) {
            case u'%':
            case u'@':
            case u'$':
                return true;
            case u'#':
                return keyword != Keyword::Input && keyword != Keyword::Seek && keyword != Keyword::Width;
            case u'!':
                return !HasTraitAt(place + 1, kNameStart) && CharacterAt(place + 1) != u'[';
            case u'&':
                return !HasTraitAt(place + 1, kNamePart) && CharacterAt(place + 1) != u'"';
            case u'^':
                return BeginsHeader() || !IsOperandStart(place + 1);
            default:
                return false;
        }
    }
    // Behind these words stands the name of a procedure, whose type character a "(" may follow.
    bool BeginsHeader() const {
        return previous_.Is(Keyword::Function) || previous_.Is(Keyword::Sub) || previous_.Is(Keyword::Get) ||
               previous_.Is(Keyword::Event);
    }
    bool IsOperandStart(std::size_t place) const {
        if (CharacterAt(place) == u'-') return true;
        place = SkipBlanks(place);
        const char16_t c = CharacterAt(place);
        return HasTraitAt(place, kNamePart) || c == u'(' || c == u'.' || c == u'[' || c == u'?';
    }

    void ScanNumber() {
        std::size_t end = SkipDigits(at_);
        TokenKind kind = TokenKind::Integer;
        if (CharacterAt(end) == u'.') {
            kind = TokenKind::Float;
            end = SkipDigits(end + 1);
        }
        const char16_t exponent = LowerAscii(CharacterAt(end));
        if (exponent == u'e' || exponent == u'd') {
            const char16_t sign = CharacterAt(end + 1);
            const std::size_t digits = end + (sign == u'+' || sign == u'-' ? 2 : 1);
            if (HasTraitAt(digits, kDigit)) {
                kind = TokenKind::Float;
                end = SkipDigits(digits);
            }
        }
        Add(kind, SkipNumberSuffix(end) - at_);
    }

    std::size_t SkipNumberSuffix(std::size_t place) const {
        switch (CharacterAt(place)) {
            case u'%':
            case u'!':
            case u'#':
            case u'@':
                return place + 1;
            case u'&':
                return CharacterAt(place + 1) == u'"' ? place : place + 1;
            case u'^':
                return IsOperandStart(place + 1) ? place : place + 1;
            default:
                return place;
        }
    }

    void ScanString() {
        std::size_t end = at_ + 1;
        while ((end = FindAny(text_, end, u'"', u'\n')) < text_.size() && text_[end] == u'"') {
            if (end + 1 < text_.size() && text_[end + 1] == u'"') {
                end += 2;
            } else {
                return Add(TokenKind::String, end + 1 - at_);
            }
        }
        Add(TokenKind::String, end - at_, 0, kUnterminated);
    }

    // A comment whose mark ("'" or "Rem") has `mark` characters. Each of its lines becomes a token of its own.
    void ScanComment(std::size_t mark, Keyword word = Keyword::None) {
        std::size_t place = at_ + mark;
        while (true) {
            place = FindCharacter(text_, place, u'\n');
            std::size_t last = place;
            while (last > at_ && HasTrait(text_[last - 1], kBlank)) --last;
            const bool continues =
                last > at_ && text_[last - 1] == u'_' && (last - 1 == at_ || HasTrait(text_[last - 2], kBlank));
            const std::size_t end = continues ? last - 1 : place;
            if (end > at_) Add(TokenKind::Comment, end - at_, static_cast<std::uint16_t>(word));
            word = Keyword::None;
            if (!continues) return;
            place = place < text_.size() ? place + 1 : place;
            Add(TokenKind::Continuation, place - at_);
        }
    }

    void ScanUnderscore() {
        std::size_t end = SkipBlanks(at_ + 1);
        if (end == text_.size() || text_[end] == u'\n') {
            return Add(TokenKind::Continuation, std::min(end + 1, text_.size()) - at_);
        }
        end = at_ + 1;
        while (HasTraitAt(end, kNamePart)) ++end;
        Add(TokenKind::Unknown, end - at_);
    }

    void ScanBrackets() {
        if (at_ < unclosedUntil_) return Add(TokenKind::Unknown, 1);
        std::size_t end = at_ + 1;
        while (end < text_.size() && text_[end] != u'\n' && text_[end] != u']') ++end;
        const bool isClosed = end < text_.size() && text_[end] == u']';
        if (!isClosed) unclosedUntil_ = end;
        if (!isClosed || end == at_ + 1) return Add(TokenKind::Unknown, 1);
        end = OuterBracket(end);
        const bool isMember = IsPoint(previous_);
        Add(TokenKind::Name, end + 1 - at_, 0, static_cast<std::uint8_t>(kBracketed | (isMember ? kMember : 0)));
    }

    // Brackets may hold brackets, as in `[Table[Column]]`: the place of the "]" that fits the current "[". Where they
    // don't come in pairs it is the first one, `closing`.
    std::size_t OuterBracket(std::size_t closing) {
        if (at_ < unpairedUntil_) return closing;
        std::size_t end = at_;
        int open = 0;
        for (; end < text_.size() && text_[end] != u'\n'; ++end) {
            if (text_[end] == u'[') ++open;
            if (text_[end] == u']' && --open == 0) return end;
        }
        unpairedUntil_ = end;
        return closing;
    }

    void ScanHash() {
        const bool isFirst = tokens_.size() == 0 || tokens_.back().kind == TokenKind::EndOfLine;
        if (isFirst && ScanDirective()) return;
        const std::size_t length = OpensFileNumber() ? 0 : DateLiteralLength(text_.substr(at_));
        if (length > 0) return Add(TokenKind::Date, length);
        AddOperator(Operator::Hash, 1);
    }

    bool ScanDirective() {
        const std::size_t start = SkipBlanks(at_ + 1);
        std::size_t end = start;
        while (HasTraitAt(end, kNamePart)) ++end;
        const Keyword keyword = KeywordOf(text_.substr(start, end - start));
        switch (keyword) {
            case Keyword::If:
            case Keyword::ElseIf:
            case Keyword::Else:
            case Keyword::End:
            case Keyword::EndIf:
            case Keyword::Const:
                Add(TokenKind::Directive, end - at_, static_cast<std::uint16_t>(keyword));
                return true;
            default:
                return false;
        }
    }

    // Behind these words a "#" stands in front of a file number, whatever else could be read there.
    bool OpensFileNumber() const {
        if (previous_.Is(Operator::Question)) return true;
        switch (previous_.keyword()) {
            case Keyword::As:
            case Keyword::Close:
            case Keyword::Get:
            case Keyword::Input:
            case Keyword::Lock:
            case Keyword::Print:
            case Keyword::Put:
            case Keyword::Seek:
            case Keyword::Unlock:
            case Keyword::Width:
            case Keyword::Write:
                return previous_.IsWord() && !previous_.Has(kMember);
            default:
                return false;
        }
    }

    // "&H" and "&O" open a number unless they run on as a name; digits behind "&" do unless an operand ends there.
    void ScanAmpersand() {
        const char16_t base = LowerAscii(Peek(1));
        const bool behindOperand = EndsOperand() && (previous_.End() == at_ || !previous_.IsWord());
        std::size_t end = at_ + (base == u'h' || base == u'o' ? 2 : 1);
        const std::uint8_t digit = base == u'h' ? kHexDigit : kDigit;
        const std::size_t start = end;
        while (HasTraitAt(end, digit)) ++end;
        if (behindOperand || end == start || HasTraitAt(end, kNamePart)) return AddOperator(Operator::Concatenate, 1);
        const char16_t suffix = CharacterAt(end);
        if (suffix == u'&' || suffix == u'%' || suffix == u'^') end = SkipNumberSuffix(end);
        Add(base == u'h' ? TokenKind::Hexadecimal : TokenKind::Octal, end - at_);
    }

    bool EndsOperand() const {
        switch (previous_.kind) {
            case TokenKind::Name:
            case TokenKind::Integer:
            case TokenKind::Hexadecimal:
            case TokenKind::Octal:
            case TokenKind::Float:
            case TokenKind::Date:
            case TokenKind::String:
                return true;
            case TokenKind::Operator:
                return previous_.Is(Operator::CloseParenthesis);
            default:
                return false;
        }
    }

    void ScanDot() {
        const bool behindOperand = EndsOperand() && previous_.End() == at_;
        if (!behindOperand && HasTraitAt(at_ + 1, kDigit)) return ScanNumber();
        AddOperator(Operator::Dot, 1);
    }

    // The operators of two characters, which blanks may part.
    void ScanPair(Operator single) {
        const std::size_t place = SkipBlanks(at_ + 1);
        const Operator pair = PairOf(FoldWidth(text_[at_]), CharacterAt(place));
        if (pair != Operator::None) return AddOperator(pair, place + 1 - at_);
        AddOperator(single, 1);
    }

    static Operator PairOf(char16_t first, char16_t second) {
        if (first == u':') return second == u'=' ? Operator::Assign : Operator::None;
        if ((first == u'<' && second == u'>') || (first == u'>' && second == u'<')) return Operator::NotEqual;
        if ((first == u'<' && second == u'=') || (first == u'=' && second == u'<')) return Operator::LessEqual;
        if ((first == u'>' && second == u'=') || (first == u'=' && second == u'>')) return Operator::GreaterEqual;
        return Operator::None;
    }

    TextView text_;
    const WordPlace* nextWord_;  // the first one that does not begin in front of `at_`
    const WordPlace* endOfWords_;
    std::vector<WordMeaning>& meanings_;
    Tokens& tokens_;
    std::size_t at_ = 0;
    std::size_t unclosedUntil_ = 0;  // no "]" stands in front of this place
    std::size_t unpairedUntil_ = 0;  // Brackets in front of this place don't come in pairs.
    Token previous_;                 // The last token that is no continuation; at the start an `EndOfText` of length 0.
};

}  // namespace

void Tokenizer::Read(TextView text, std::span<const WordPlace> words, Tokens& tokens) {
    tokens.Reset(text.size() + 2);
    Scanner(text, words, meanings_, tokens).Run();
}

Tokens Tokenize(TextView text) {
    Tokens tokens;
    Tokenizer().Read(text, {}, tokens);
    return tokens;
}

}  // namespace zentlor::vba
