// Operators are read by rank: a loop takes those that bind at least as strongly as asked for, and descends for what
// stands on their right.

#include "vba/parser_condition.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <utility>

namespace zentlor::vba {
namespace {

constexpr int kDeepest = 100;
constexpr double kTrue = -1;

// Ranks of operators, the weakest first. 0 is no operator.
int RankOf(const Token& token) {
    switch (token.keyword()) {
        case Keyword::Imp:
            return 1;
        case Keyword::Eqv:
            return 2;
        case Keyword::Xor:
            return 3;
        case Keyword::Or:
            return 4;
        case Keyword::And:
            return 5;
        case Keyword::Mod:
            return 10;
        default:
            break;
    }
    switch (token.op()) {
        case Operator::Equal:
        case Operator::NotEqual:
        case Operator::Less:
        case Operator::LessEqual:
        case Operator::Greater:
        case Operator::GreaterEqual:
            return 7;
        case Operator::Concatenate:
            return 8;
        case Operator::Plus:
        case Operator::Minus:
            return 9;
        case Operator::IntegerDivide:
            return 11;
        case Operator::Times:
        case Operator::Divide:
            return 12;
        case Operator::Power:
            return 14;
        default:
            return 0;
    }
}

constexpr int kNotRank = 6;
constexpr int kSignRank = 13;

std::int64_t Whole(double number) {
    constexpr double kLargest = 9e18;
    return static_cast<std::int64_t>(std::clamp(std::isfinite(number) ? number : 0.0, -kLargest, kLargest));
}

// To the nearest whole number, and from the middle to the even one.
double Rounded(double number) {
    return std::nearbyint(std::isfinite(number) ? number : 0.0);
}

// A literal with its suffix, if any. Hexadecimal and octal ones of 16 and of 32 bits wrap: `&HFFFF` is -1.
double NumberOf(TextView literal) {
    std::string narrow;
    for (const char16_t c : literal) narrow += c < 128 ? static_cast<char>(c | (c >= 'A' && c <= 'Z' ? 0x20 : 0)) : '?';
    if (!narrow.starts_with('&')) {
        std::replace(narrow.begin(), narrow.end(), 'd', 'e');
        return std::strtod(narrow.c_str(), nullptr);
    }
    const bool isHexadecimal = narrow.starts_with("&h");
    const char* digits = narrow.c_str() + (isHexadecimal || narrow.starts_with("&o") ? 2 : 1);
    const std::uint64_t bits = std::strtoull(digits, nullptr, isHexadecimal ? 16 : 8);
    const char suffix = narrow.back();
    if (suffix == '^') return static_cast<double>(static_cast<std::int64_t>(bits));
    if (bits <= 0xFFFF && suffix != '&') return static_cast<std::int16_t>(bits);
    return static_cast<std::int32_t>(bits);
}

ConditionValue Number(double number) {
    return {number, {}, false};
}
ConditionValue Truth(bool isTrue) {
    return Number(isTrue ? kTrue : 0);
}
ConditionValue String(Text characters) {
    const double number = EqualIgnoringCase(characters, u"True") ? kTrue : NumberOf(characters);
    return {number, std::move(characters), true};
}

Text TextOfValue(const ConditionValue& value) {
    return value.isString ? value.characters : ToText(Whole(value.number));
}

Text Folded(TextView text) {
    Text folded(text);
    for (char16_t& c : folded) c = FoldCase(c);
    return folded;
}

// Strings are compared as by `Option Compare Text`, whatever the module says.
int Compare(const ConditionValue& a, const ConditionValue& b) {
    if (a.isString && b.isString) return Folded(a.characters).compare(Folded(b.characters));
    return a.number < b.number ? -1 : a.number > b.number ? 1 : 0;
}

// The functions that may stand in a condition. Those that are not named here give back what they get.
ConditionValue Call(TextView function, const ConditionValue& argument) {
    const auto is = [function](TextView name) { return EqualIgnoringCase(function, name); };
    const double number = argument.number;
    if (is(u"CBool")) return Truth(number != 0);
    if (is(u"CByte") || is(u"CInt") || is(u"CLng") || is(u"CLngLng") || is(u"CLngPtr")) return Number(Rounded(number));
    if (is(u"CStr")) return String(TextOfValue(argument));
    if (is(u"Abs")) return Number(std::abs(number));
    if (is(u"Sgn")) return Number(number < 0 ? -1 : number > 0 ? 1 : 0);
    if (is(u"Int")) return Number(std::floor(number));
    if (is(u"Fix")) return Number(std::trunc(number));
    if (is(u"Len")) return Number(static_cast<double>(TextOfValue(argument).size()));
    if (is(u"LenB")) return Number(static_cast<double>(2 * TextOfValue(argument).size()));
    return argument;
}

ConditionValue Combine(const Token& token, const ConditionValue& a, const ConditionValue& b) {
    const std::int64_t left = Whole(Rounded(a.number));
    const std::int64_t right = Whole(Rounded(b.number));
    switch (token.keyword()) {
        case Keyword::Imp:
            return Number(static_cast<double>(~left | right));
        case Keyword::Eqv:
            return Number(static_cast<double>(~(left ^ right)));
        case Keyword::Xor:
            return Number(static_cast<double>(left ^ right));
        case Keyword::Or:
            return Number(static_cast<double>(left | right));
        case Keyword::And:
            return Number(static_cast<double>(left & right));
        case Keyword::Mod:
            return Number(right == 0 ? 0 : std::fmod(static_cast<double>(left), static_cast<double>(right)));
        default:
            break;
    }
    switch (token.op()) {
        case Operator::Equal:
            return Truth(Compare(a, b) == 0);
        case Operator::NotEqual:
            return Truth(Compare(a, b) != 0);
        case Operator::Less:
            return Truth(Compare(a, b) < 0);
        case Operator::LessEqual:
            return Truth(Compare(a, b) <= 0);
        case Operator::Greater:
            return Truth(Compare(a, b) > 0);
        case Operator::GreaterEqual:
            return Truth(Compare(a, b) >= 0);
        case Operator::Concatenate:
            return String(TextOfValue(a) + TextOfValue(b));
        case Operator::Plus:
            return a.isString && b.isString ? String(a.characters + b.characters) : Number(a.number + b.number);
        case Operator::Minus:
            return Number(a.number - b.number);
        case Operator::Times:
            return Number(a.number * b.number);
        case Operator::Divide:
            return Number(b.number == 0 ? 0 : a.number / b.number);
        case Operator::IntegerDivide:
            return Number(right == 0 ? 0 : std::trunc(static_cast<double>(left) / static_cast<double>(right)));
        case Operator::Power:
            return Number(std::pow(a.number, b.number));
        default:
            return {};
    }
}

class ConditionReader {
  public:
    ConditionReader(TextView text, const ConditionConstants& constants, const Token*& token)
        : text_(text), constants_(constants), token_(token) {}

    ConditionValue Read(int lowestRank) {
        if (depth_ >= kDeepest) return {};
        ++depth_;
        ConditionValue value = ReadOperand();
        for (int rank = RankOf(*token_); rank != 0 && rank >= lowestRank; rank = RankOf(*token_)) {
            const Token& op = *token_;
            Advance();
            value = Combine(op, value, Read(rank + 1));
        }
        --depth_;
        return value;
    }

  private:
    void Advance() {
        do {
            ++token_;
        } while (token_->Is(TokenKind::Continuation) || token_->Is(TokenKind::Comment));
    }

    ConditionValue ReadOperand() {
        const Token& token = *token_;
        const bool isOver = token.Is(TokenKind::EndOfLine) || token.Is(TokenKind::EndOfText);
        if (isOver || token.Is(Keyword::Then) || token.Is(Operator::CloseParenthesis)) return {};
        Advance();
        switch (token.kind) {
            case TokenKind::Name:
                if (token_->Is(Operator::OpenParenthesis)) return Call(NameOf(token, text_), ReadOperand());
                return constants_.ValueOf(NameOf(token, text_));
            case TokenKind::Keyword:
                if (token.Is(Keyword::Not)) return Number(static_cast<double>(~Whole(Read(kNotRank).number)));
                return Truth(token.Is(Keyword::True));
            case TokenKind::String:
                return String(CharactersOf(token));
            case TokenKind::Operator:
                return ReadSigned(token);
            default:
                return Number(NumberOf(TextOf(token, text_)));
        }
    }

    ConditionValue ReadSigned(const Token& sign) {
        if (sign.Is(Operator::Minus)) return Number(-Read(kSignRank).number);
        if (sign.Is(Operator::Plus)) return Read(kSignRank);
        if (!sign.Is(Operator::OpenParenthesis)) return {};
        ConditionValue value = Read(1);
        if (token_->Is(Operator::CloseParenthesis)) Advance();
        return value;
    }

    // Without the marks around it; a doubled one inside stands for one.
    Text CharactersOf(const Token& string) const {
        TextView characters = TextOf(string, text_).substr(1);
        if (!string.Has(kUnterminated)) characters.remove_suffix(1);
        return ReplaceAll(characters, u"\"\"", u"\"");
    }

    TextView text_;
    const ConditionConstants& constants_;
    const Token*& token_;
    int depth_ = 0;
};

}  // namespace

ConditionConstants::ConditionConstants(const ConditionSettings& settings) : others_(Number(settings.others)) {
    for (const TextView name : {u"VBA6", u"VBA7", u"Win32"}) Set(name, Number(kTrue));
    for (const TextView name : {u"Mac", u"Win16"}) Set(name, Number(0));
    Set(u"Win64", Truth(settings.isWin64));
}

void ConditionConstants::Set(TextView name, const ConditionValue& value) {
    values_[Folded(name)] = value;
}

ConditionValue ConditionConstants::ValueOf(TextView name) const {
    const auto found = values_.find(Folded(name));
    return found == values_.end() ? others_ : found->second;
}

ConditionValue EvaluateCondition(TextView text, const ConditionConstants& constants, const Token*& token) {
    return ConditionReader(text, constants, token).Read(1);
}

}  // namespace zentlor::vba
