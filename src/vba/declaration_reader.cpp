// A statement's first words tell what it declares: behind `Dim` and its kin a list of names, behind `Sub` and its kin
// one name and its parameters, behind `Type` and `Enum` a name and then one name a line. Everything else declares
// nothing, but for the label at a line's start.

#include "vba/declaration_reader.h"

#include <array>

namespace zentlor::vba {
namespace {

bool IsAccessor(const Token& token) {
    return token.Is(Keyword::Get) || token.Is(Keyword::Let) || token.Is(Keyword::Set);
}

bool IsDeclarable(const Token& token) {
    return token.kind == TokenKind::Name && !token.Has(kMember) &&
           (token.keyword() == Keyword::None || IsContextual(token.keyword()));
}

// The words with which a declaration may begin.
constexpr auto kDeclaringWords = [] {
    std::array<bool, kKeywordCount + 1> table{};
    for (const Keyword keyword : {Keyword::Const, Keyword::Declare, Keyword::Dim, Keyword::Enum, Keyword::Event,
                                  Keyword::Friend, Keyword::Function, Keyword::Global, Keyword::Private,
                                  Keyword::Property, Keyword::Public, Keyword::Static, Keyword::Sub, Keyword::Type}) {
        table[static_cast<std::size_t>(keyword)] = true;
    }
    return table;
}();

}  // namespace

bool DeclarationReader::MayDeclare(const Token& first, const Token& following) const {
    switch (first.kind) {
        case TokenKind::Comment:
        case TokenKind::EndOfLine:
            return false;
        case TokenKind::Operator:
            return !first.Is(Operator::Dot) && !first.Is(Operator::Bang);
        case TokenKind::Name:
        case TokenKind::Keyword:
            return isInBlock_ || kDeclaringWords[first.id] || following.Is(Operator::Colon);
        default:
            return true;
    }
}

void DeclarationReader::Start(bool startsLine) {
    mode_ = Mode::Start;
    isLineStart_ = startsLine;
    expectsName_ = false;
    depth_ = 0;
}

bool DeclarationReader::Declares(const Token& token, const Token& following) {
    switch (token.kind) {
        case TokenKind::Comment:
        case TokenKind::Continuation:
            return false;
        case TokenKind::Directive:
            mode_ = token.keyword() == Keyword::Const ? Mode::List : Mode::Other;
            expectsName_ = true;
            return false;
        case TokenKind::Operator:
            ReadOperator(token);
            return false;
        case TokenKind::Integer:
            if (mode_ != Mode::Start) expectsName_ = false;
            return false;
        default:
            break;
    }
    switch (mode_) {
        case Mode::Start:
            return ReadStart(token, following);
        case Mode::List:
            return ReadList(token, following);
        case Mode::Header:
            return ReadHeader(token, following);
        case Mode::Parameters:
            return ReadParameter(token);
        case Mode::BlockName:
            mode_ = Mode::Other;
            return IsDeclarable(token);
        case Mode::Other:
            return false;
    }
    return false;
}

void DeclarationReader::ReadOperator(const Token& token) {
    switch (token.op()) {
        case Operator::OpenParenthesis:
            ++depth_;
            expectsName_ = mode_ == Mode::Parameters && depth_ == 1;
            break;
        case Operator::CloseParenthesis:
            --depth_;
            break;
        case Operator::Comma:
            expectsName_ = (mode_ == Mode::List && depth_ == 0) || (mode_ == Mode::Parameters && depth_ == 1);
            break;
        default:
            if (mode_ == Mode::Start) mode_ = Mode::Other;
            break;
    }
}

// `Sub`, `Function`, `Property Get`, `Declare`, `Event`, `Type`, `Enum`: what they declare comes behind them.
bool DeclarationReader::EnterProcedure(const Token& token, const Token& following) {
    switch (token.Is(token.keyword()) ? token.keyword() : Keyword::None) {
        case Keyword::Property:
            if (!IsAccessor(following)) return false;
            [[fallthrough]];
        case Keyword::Sub:
        case Keyword::Function:
        case Keyword::Event:
        case Keyword::Declare:
            mode_ = Mode::Header;
            return true;
        case Keyword::Type:
        case Keyword::Enum:
            mode_ = Mode::BlockName;
            isInBlock_ = true;
            return true;
        default:
            return false;
    }
}

bool DeclarationReader::ReadStart(const Token& token, const Token& following) {
    const bool wasLineStart = isLineStart_;
    isLineStart_ = false;
    mode_ = Mode::Other;
    if (wasLineStart && following.Is(Operator::Colon)) return IsDeclarable(token);
    if (token.Is(Keyword::End)) {
        if (following.Is(Keyword::Type) || following.Is(Keyword::Enum)) isInBlock_ = false;
        return false;
    }
    if (isInBlock_ && token.kind == TokenKind::Name) return IsDeclarable(token);
    switch (token.Is(token.keyword()) ? token.keyword() : Keyword::None) {
        case Keyword::Dim:
        case Keyword::Const:
        case Keyword::Static:
        case Keyword::Private:
        case Keyword::Public:
        case Keyword::Global:
        case Keyword::Friend:
            mode_ = Mode::List;
            expectsName_ = true;
            return false;
        default:
            EnterProcedure(token, following);
            return false;
    }
}

bool DeclarationReader::ReadList(const Token& token, const Token& following) {
    if (!expectsName_ || EnterProcedure(token, following)) return false;
    if (token.kind == TokenKind::Keyword) return false;
    expectsName_ = false;
    return IsDeclarable(token);
}

bool DeclarationReader::ReadHeader(const Token& token, const Token& following) {
    if (token.kind == TokenKind::Keyword) return false;
    if (token.Is(Keyword::PtrSafe) && following.kind == TokenKind::Keyword) return false;
    mode_ = Mode::Parameters;
    expectsName_ = false;
    depth_ = 0;
    return IsDeclarable(token);
}

bool DeclarationReader::ReadParameter(const Token& token) {
    if (!expectsName_ || token.kind == TokenKind::Keyword) return false;
    expectsName_ = false;
    return IsDeclarable(token);
}

}  // namespace zentlor::vba
