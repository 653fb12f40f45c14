// Blocks and single-line `If`s. An `If` with a colon behind `Then` is read as either, whatever fits in the end.

#include "vba/parser_statements.h"

namespace zentlor::vba {
namespace {

bool IsLoop(BlockKind kind) {
    return kind == BlockKind::For || kind == BlockKind::Do || kind == BlockKind::While;
}

}  // namespace

bool StatementParser::ParseIf() {
    const Token& opener = Here();
    const bool isBehindElse = Behind().Is(Keyword::Else);
    Advance();
    if (ParseExpression()) return ParseThen(opener, isBehindElse);
    blocks_.Open({.kind = BlockKind::If, .opener = &opener, .mayStayOpen = true});
    return false;
}

bool StatementParser::ParseThen(const Token& opener, bool isBehindElse) {
    const bool hasThen = Accept(Keyword::Then);
    if (!hasThen && !Here().Is(Keyword::GoTo)) {
        blocks_.Open({.kind = BlockKind::If, .opener = &opener, .mayStayOpen = true});
        return FailExpecting(Fault::Then);
    }
    if (AtLineEnd() || Here().Is(Operator::Colon)) {
        // `Else If` may have been meant as `ElseIf`, without an end of its own.
        const bool isUnclear = !AtLineEnd() || lineIfs_ > 0 || isBehindElse;
        blocks_.Open({.kind = BlockKind::If, .opener = &opener, .mayStayOpen = isUnclear});
        return true;
    }
    ++lineIfs_;
    bodyFollows_ = true;
    return !Here().Is(TokenKind::Integer) || ParseLabelUse();
}

bool StatementParser::ParseElseIf() {
    const Token& word = Here();
    if (lineIfs_ > 0) {
        Advance();
    } else if (!EnterElse(word)) {
        return false;
    }
    if (!ParseExpression() || !Expect(Keyword::Then, Fault::Then)) return false;
    bodyFollows_ = true;
    return true;
}

bool StatementParser::ParseElse() {
    const Token& word = Here();
    bodyFollows_ = true;
    if (lineIfs_ == 0) {
        if (!EnterElse(word)) return false;
        blocks_.Innermost()->hasElse = true;
        return true;
    }
    --lineIfs_;
    Advance();
    return !Here().Is(TokenKind::Integer) || ParseLabelUse();
}

// Steps over `word` and makes the `If` that it belongs to the innermost block.
bool StatementParser::EnterElse(const Token& word) {
    Advance();
    BlockStack::Search search = blocks_.Find(BlockKind::If);
    // An `If` that had its `Else` may have had its end as well, if an `End If` went to a single line within it.
    while (search.isFound && blocks_.Innermost()->hasElse && blocks_.DropEnded()) search = blocks_.Find(BlockKind::If);
    if (!search.isFound) {
        const bool isConsequence = isBlocksBroken_;
        isBlocksBroken_ = true;
        return !isConsequence && Fail(Fault::ElseWithoutIf, word, Quote(word));
    }
    if (search.notClosed != nullptr) {
        isBlocksBroken_ = true;
        Fail(Fault::BlockNotClosed, word, Quote(*search.notClosed), search.notClosed->offset);
    }
    const Block& block = *blocks_.Innermost();
    if (block.hasElse && !block.mayStayOpen) Fail(Fault::ElseAfterElse, word, Quote(word));
    return true;
}

bool StatementParser::ParseEnd() {
    const Token& end = Here();
    switch (Ahead().keyword()) {
        case Keyword::If:
            return ParseEndIf(2);
        case Keyword::Select:
            Advance();
            Advance();
            return EndBlock(BlockKind::Select, end, u"End Select");
        case Keyword::With:
            Advance();
            Advance();
            return EndBlock(BlockKind::With, end, u"End With");
        default:
            Advance();
            return true;
    }
}

// `words` is 1 for `EndIf`, 2 for `End If`.
bool StatementParser::ParseEndIf(int words) {
    const Token& closer = Here();
    for (; words > 0; --words) Advance();
    const Block* block = blocks_.Innermost();
    const bool mayClose = block != nullptr && block->mayStayOpen;
    if (lineIfs_ > 0 && !mayClose) return Fail(Fault::EndIfAfterLineIf, closer);
    return EndBlock(BlockKind::If, closer, u"End If");
}

bool StatementParser::EndBlock(BlockKind kind, const Token& closer, TextView words) {
    const BlockStack::Search search = blocks_.Find(kind);
    if (!search.isFound) {
        if (blocks_.Forgive(kind)) return true;
        isBlocksBroken_ = true;
        Fail(Fault::CloserWithoutOpener, closer, words);
        // `While ... Loop`: the wrong word closes the loop all the same.
        const Block* innermost = blocks_.Innermost();
        if (IsLoop(kind) && innermost != nullptr && IsLoop(innermost->kind)) blocks_.DropInnermost();
        return true;
    }
    if (search.notClosed != nullptr) {
        isBlocksBroken_ = true;
        Fail(Fault::BlockNotClosed, closer, Quote(*search.notClosed), search.notClosed->offset);
    }
    blocks_.Close();
    return true;
}

bool StatementParser::ParseFor() {
    Block block{.kind = BlockKind::For, .opener = &Here()};
    Advance();
    const bool isEach = Accept(Keyword::Each);
    Operand variable;
    const Token* name = &Here();
    bool isRead = ParseNamedOperand(variable);
    if (isRead && variable.lastName == name && !variable.endsInParentheses) block.variable = name;
    blocks_.Open(block);
    if (!isRead) return false;
    return isEach ? Expect(Keyword::In, Fault::In) && ParseExpression() : ParseForRange();
}

bool StatementParser::ParseForRange() {
    if (!Expect(Operator::Equal, Fault::Assignment) || !ParseExpression()) return false;
    if (!Expect(Keyword::To, Fault::To) || !ParseExpression()) return false;
    return !Accept(Keyword::Step) || ParseExpression();
}

bool StatementParser::ParseNext() {
    const Token& next = Here();
    Advance();
    if (AtStatementEnd()) return CloseFor(next, {});
    do {
        const Token& name = Here();
        Operand variable;
        if (!ParseNamedOperand(variable)) return false;
        const bool isPlain = variable.lastName == &name && !variable.endsInParentheses;
        if (!CloseFor(next, isPlain ? NameText(name) : TextView())) return false;
    } while (Accept(Operator::Comma));
    return true;
}

// `variable` is the name behind `Next`, or empty.
bool StatementParser::CloseFor(const Token& next, TextView variable) {
    const Block* block = blocks_.Innermost();
    const bool isComparable =
        block != nullptr && block->kind == BlockKind::For && block->variable != nullptr && !variable.empty();
    if (isComparable && !isBlocksBroken_ && !EqualIgnoringCase(NameText(*block->variable), variable)) {
        Fail(Fault::NextWrongVariable, next, variable, block->opener->offset);
        isBlocksBroken_ = true;
    }
    return EndBlock(BlockKind::For, next, u"Next");
}

bool StatementParser::ParseDo() {
    blocks_.Open({.kind = BlockKind::Do, .opener = &Here()});
    Advance();
    const bool hasCondition = Accept(Keyword::While) || Accept(Keyword::Until);
    return !hasCondition || ParseExpression();
}

bool StatementParser::ParseLoop() {
    const Token& loop = Here();
    Advance();
    EndBlock(BlockKind::Do, loop, u"Loop");
    const bool hasCondition = Accept(Keyword::While) || Accept(Keyword::Until);
    return !hasCondition || ParseExpression();
}

bool StatementParser::ParseWhile() {
    blocks_.Open({.kind = BlockKind::While, .opener = &Here()});
    Advance();
    return ParseExpression();
}

bool StatementParser::ParseWith() {
    const Token& with = Here();
    Advance();
    // The object may itself begin with a point that belongs to the block around.
    const bool isRead = ParseExpression();
    blocks_.Open({.kind = BlockKind::With, .opener = &with});
    return isRead;
}

bool StatementParser::ParseSelect() {
    blocks_.Open({.kind = BlockKind::Select, .opener = &Here()});
    Advance();
    return Expect(Keyword::Case, Fault::SelectCase) && ParseExpression();
}

bool StatementParser::ParseCase() {
    const Token& word = Here();
    Advance();
    const BlockStack::Search search = blocks_.Find(BlockKind::Select);
    if (!search.isFound) {
        const bool isConsequence = isBlocksBroken_;
        isBlocksBroken_ = true;
        return !isConsequence && Fail(Fault::CaseWithoutSelect, word);
    }
    if (search.notClosed != nullptr) {
        isBlocksBroken_ = true;
        Fail(Fault::BlockNotClosed, word, Quote(*search.notClosed), search.notClosed->offset);
    }
    blocks_.Innermost()->hasCase = true;
    if (Accept(Keyword::Else)) return true;
    do {
        if (!ParseCaseItem()) return false;
    } while (Accept(Operator::Comma));
    return true;
}

bool StatementParser::ParseCaseItem() {
    Accept(Keyword::Is);
    const bool isComparison = Here().op() >= Operator::Equal && Here().op() <= Operator::NotEqual;
    if (isComparison) Advance();
    return ParseExpression() && (!Accept(Keyword::To) || ParseExpression());
}

}  // namespace zentlor::vba
