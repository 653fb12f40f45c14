// Operators are read in a loop; only parentheses descend. Those nested deeper than anybody writes are stepped over.

#include "vba/parser_expressions.h"

namespace zentlor::vba {
namespace {

constexpr int kDeepest = 200;

bool IsPrint(const Token& name) {
    return name.Has(kMember) && name.keyword() == Keyword::Print;
}

}  // namespace

bool ExpressionParser::ParseExpression() {
    while (true) {
        SkipPrefixes();
        if (!ParseOperand()) return false;
        if (!AtBinaryOperator()) return true;
        Advance();
    }
}

void ExpressionParser::SkipPrefixes() {
    while (true) {
        switch (Here().kind) {
            case TokenKind::Operator:
                if (!Here().Is(Operator::Minus) && !Here().Is(Operator::Plus)) return;
                break;
            case TokenKind::Keyword:
                switch (Here().keyword()) {
                    case Keyword::Not:
                    case Keyword::New:
                    case Keyword::AddressOf:
                    case Keyword::TypeOf:
                    case Keyword::ByVal:
                        break;
                    default:
                        return;
                }
                break;
            default:
                return;
        }
        Advance();
    }
}

bool ExpressionParser::AtBinaryOperator() const {
    const Token& token = Here();
    if (token.kind == TokenKind::Operator) return token.op() >= Operator::Plus && token.op() <= Operator::NotEqual;
    if (token.kind != TokenKind::Keyword) return false;
    switch (token.keyword()) {
        case Keyword::And:
        case Keyword::Or:
        case Keyword::Xor:
        case Keyword::Eqv:
        case Keyword::Imp:
        case Keyword::Mod:
        case Keyword::Like:
        case Keyword::Is:
            return true;
        default:
            return false;
    }
}

bool ExpressionParser::ParseOperand() {
    const Token& token = Here();
    switch (token.kind) {
        case TokenKind::Name: {
            Advance();
            Operand operand;
            return ParseTail(operand);
        }
        case TokenKind::String:
            if (token.Has(kUnterminated)) return Fail(Fault::UnterminatedString, token);
            [[fallthrough]];
        case TokenKind::Integer:
        case TokenKind::Hexadecimal:
        case TokenKind::Octal:
        case TokenKind::Float:
        case TokenKind::Date:
            Advance();
            return true;
        case TokenKind::Operator:
            if (token.Is(Operator::OpenParenthesis)) return ParseParenthesizedExpression();
            if (token.Is(Operator::Dot) || token.Is(Operator::Bang)) {
                Operand operand;
                return ParseWithMember() && ParseTail(operand);
            }
            break;
        case TokenKind::Keyword:
            switch (token.keyword()) {
                case Keyword::True:
                case Keyword::False:
                case Keyword::Nothing:
                case Keyword::Null:
                case Keyword::Empty:
                    Advance();
                    return true;
                default:
                    break;
            }
            break;
        default:
            break;
    }
    return FailExpecting(Fault::Expression);
}

bool ExpressionParser::ParseParenthesizedExpression() {
    if (depth_ >= kDeepest) {
        SkipParentheses();
        return true;
    }
    ++depth_;
    Advance();
    const bool isRead = ParseExpression() && Expect(Operator::CloseParenthesis, Fault::CloseParenthesis);
    --depth_;
    Operand operand;
    return isRead && ParseTail(operand);
}

// Steps over "(" and all that it holds.
void ExpressionParser::SkipParentheses() {
    int open = 0;
    do {
        if (Here().Is(Operator::OpenParenthesis)) ++open;
        if (Here().Is(Operator::CloseParenthesis)) --open;
        Advance();
    } while (open > 0 && !AtLineEnd());
}

bool ExpressionParser::ParseWithMember() {
    if (!IsInsideWith()) {
        const Token& name = Ahead();
        return Fail(Fault::WithMissing, Here(), Text(Quote(Here())) + Text(Quote(name)));
    }
    return ParseMember();
}

bool ExpressionParser::ParseMember() {
    Advance();
    if (!Here().IsWord()) return FailExpecting(Fault::Member);
    Advance();
    return true;
}

bool ExpressionParser::ParseTail(Operand& operand) {
    while (true) {
        if (Here().Is(Operator::OpenParenthesis)) {
            if (!ParseParenthesizedArguments(operand.arguments)) return false;
            operand.endsInParentheses = true;
        } else if (Here().Is(Operator::Dot) || Here().Is(Operator::Bang)) {
            if (!ParseMember()) return false;
            operand.endsInParentheses = false;
            operand.lastName = &Behind();
        } else {
            return true;
        }
    }
}

bool ExpressionParser::ParseNamedOperand(Operand& operand) {
    if (Here().Is(Operator::Dot) || Here().Is(Operator::Bang)) {
        if (!ParseWithMember()) return false;
    } else {
        if (!Here().Is(TokenKind::Name)) return FailExpecting(Fault::Name);
        Advance();
    }
    operand.lastName = &Behind();
    return ParseTail(operand);
}

bool ExpressionParser::ParseStatementHead(Operand& operand) {
    if (Here().Is(Operator::Dot) || Here().Is(Operator::Bang)) {
        if (!ParseWithMember()) return false;
    } else {
        Advance();
    }
    operand.lastName = &Behind();
    while (true) {
        const bool isMark = Here().Is(Operator::Dot) || Here().Is(Operator::Bang);
        // `Show .Name` calls Show with a member of the `With` object.
        const bool isMember = isMark && (operand.endsInParentheses || IsAttached());
        if (isMember) {
            if (!ParseMember()) return false;
            operand.endsInParentheses = false;
            operand.lastName = &Behind();
            continue;
        }
        operand.isPrint = operand.isPrint || IsPrint(*operand.lastName);
        if (!Here().Is(Operator::OpenParenthesis) || IsDrawing(*operand.lastName)) return true;
        if (!ParseParenthesizedArguments(operand.arguments)) return false;
        operand.endsInParentheses = operand.hasParentheses = true;
    }
}

bool ExpressionParser::ParseParenthesizedArguments(int& arguments) {
    arguments = 0;
    if (depth_ >= kDeepest) {
        SkipParentheses();
        return true;
    }
    Advance();
    if (Accept(Operator::CloseParenthesis)) return true;
    ++depth_;
    bool isRead = true;
    arguments = 1;
    while (isRead && !Accept(Operator::CloseParenthesis)) {
        if (Accept(Operator::Comma)) {
            ++arguments;
            continue;
        }
        isRead = ParseArgument();
        if (isRead && !Here().Is(Operator::Comma) && !Here().Is(Operator::CloseParenthesis)) {
            isRead = FailExpecting(Fault::CommaOrClose);
        }
    }
    --depth_;
    return isRead;
}

bool ExpressionParser::ParseArgument() {
    const bool isNamed = Here().IsWord() && Ahead().Is(Operator::Assign);
    if (isNamed) {
        Advance();
        Advance();
    }
    if (!Accept(Keyword::ByRef)) Accept(Operator::Hash);
    if (!ParseExpression()) return false;
    return !Accept(Keyword::To) || ParseExpression();
}

bool ExpressionParser::ParseArgumentList() {
    while (!AtStatementEnd()) {
        if (Accept(Operator::Comma)) continue;
        if (!ParseArgument()) return false;
        if (!AtStatementEnd() && !Here().Is(Operator::Comma)) return FailExpecting(Fault::Argument);
    }
    return true;
}

bool ExpressionParser::ParseOutputList() {
    while (!AtStatementEnd()) {
        if (Accept(Operator::Comma) || Accept(Operator::Semicolon)) continue;
        if (!ParseExpression()) return false;
    }
    return true;
}

bool ExpressionParser::ParseDrawing() {
    int open = 0;
    while (!AtStatementEnd() && open >= 0) {
        if (Here().Is(Operator::OpenParenthesis)) ++open;
        if (Here().Is(Operator::CloseParenthesis)) --open;
        Advance();
    }
    if (open > 0) return FailExpecting(Fault::CloseParenthesis);
    return open == 0 || Fail(Fault::StatementEnd, Behind(), Quote(Behind()));
}

bool ExpressionParser::IsDrawing(const Token& name) {
    switch (name.keyword()) {
        case Keyword::Circle:
        case Keyword::Line:
        case Keyword::PSet:
        case Keyword::Scale:
            return true;
        default:
            return false;
    }
}

}  // namespace zentlor::vba
