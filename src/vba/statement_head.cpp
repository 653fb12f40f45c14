// A chain is a name followed by members and by lists in parentheses. A "." with a blank in front of it and none behind
// it begins an argument (`Foo .Name`), any other one a member.

#include "vba/statement_head.h"

namespace zentlor::vba {
namespace {

bool EndsStatement(const Token& token) {
    return token.Has(kEndsStatement) || token.Is(TokenKind::EndOfText);
}

// The ")" of the "(" at `open`, or `kNoToken` if the statement ends before.
std::size_t FindClose(const Tokens& tokens, std::size_t open) {
    int depth = 0;
    for (std::size_t i = open;; ++i) {
        const Token& token = tokens[i];
        if (token.Is(Operator::OpenParenthesis)) ++depth;
        if (token.Is(Operator::CloseParenthesis) && --depth == 0) return i;
        if (EndsStatement(token)) return kNoToken;
    }
}

bool IsMemberMark(const Token& token) {
    return token.Is(Operator::Dot) || token.Is(Operator::Bang);
}

bool BeginsArgument(const Tokens& tokens, std::size_t mark) {
    const Token& before = tokens[mark - 1];
    return before.kind == TokenKind::Name && before.End() < tokens[mark].offset &&
           tokens[mark + 1].offset == tokens[mark].End();
}

// Whether nothing but a type stands behind `As`: `As Long`, `As ADODB.Field`, `As String * 5`.
bool MayBeTypeClause(const Token* as) {
    const Token* token = as + 1;
    if (!token->IsWord()) return false;
    for (++token; token->Is(Operator::Dot) && token[1].IsWord(); token += 2) {
    }
    return EndsStatement(*token) || token->Is(TokenKind::Comment) || token->Is(Operator::Times);
}

}  // namespace

bool IsRename(const Token* name) {
    int depth = 0;
    bool isOneList = true;  // nothing stands between the name and `As` but one pair of parentheses
    for (const Token* token = name + 1; !EndsStatement(*token); ++token) {
        if (depth == 0 && token > name + 1 && !token->Is(Keyword::As)) isOneList = false;
        if (token->Is(Operator::OpenParenthesis)) ++depth;
        if (token->Is(Operator::CloseParenthesis)) --depth;
        if (!token->Is(Keyword::As) || depth != 0) continue;
        const bool mayDeclare = name[1].Is(Operator::OpenParenthesis) && name[1].offset == name->End();
        return token > name + 1 && !(mayDeclare && isOneList && MayBeTypeClause(token));
    }
    return false;
}

StatementHead ReadStatementHead(const Tokens& tokens, std::size_t start) {
    StatementHead head;
    std::size_t at = start;
    std::size_t open = kNoToken;
    Keyword last = Keyword::None;
    if (tokens[at].kind == TokenKind::Name) last = tokens[at++].keyword();
    while (true) {
        const std::size_t next = SkipContinuations(tokens, at);
        if (IsMemberMark(tokens[next])) {
            if (next > start && BeginsArgument(tokens, next)) break;
            const std::size_t member = SkipContinuations(tokens, next + 1);
            if (!tokens[member].IsWord()) break;
            last = tokens[member].keyword();
            open = kNoToken;
            at = member + 1;
        } else if (tokens[next].Is(Operator::OpenParenthesis)) {
            const std::size_t close = FindClose(tokens, next);
            if (close == kNoToken) break;
            open = next;
            at = close + 1;
        } else {
            break;
        }
    }
    const std::size_t behind = SkipContinuations(tokens, at);
    head.isDrawing = last == Keyword::Line || last == Keyword::Scale;
    if (open == kNoToken) {
        head.end = behind;
        return head;
    }
    // `Debug.Print (a) = b` prints a comparison: nothing of `Debug` can be assigned to.
    const bool isAssigned = tokens[behind].Is(Operator::Equal) && !tokens[start].Is(Keyword::Debug);
    const bool isEmpty = at == open + 2;
    if (!isEmpty && !isAssigned && !tokens[behind].Is(Keyword::As)) head.argument = open;
    return head;
}

}  // namespace zentlor::vba
