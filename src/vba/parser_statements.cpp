// A statement is known by its first word. Words that are keywords in some places only (`Name`, `Line`, `Go`) are looked
// at together with the word behind them; everything else is a call or an assignment.

#include "vba/parser_statements.h"

#include "vba/statement_head.h"

namespace zentlor::vba {

StatementParser::StatementParser(TextView text, const Tokens& tokens, FoundFaults& faults)
    : DeclarationParser(text, tokens, faults), labels_(text) {}

void StatementParser::BeginBody(ProcedureKind kind) {
    blocks_.Clear();
    labels_.Clear();
    labelUses_.clear();
    procedure_ = kind;
    lineIfs_ = 0;
    isBlocksBroken_ = false;
}

void StatementParser::EndBody(const Token& end) {
    const Token* notClosed = blocks_.CloseAll();
    if (notClosed != nullptr) Fail(Fault::BlockNotClosed, end, Quote(*notClosed), notClosed->offset);
    DropBody();
}

void StatementParser::DropBody() {
    for (const Token* use : labelUses_) {
        if (labels_.Find(labels_.KeyOf(*use)) == nullptr) NoteElsewhere(Fault::LabelMissing, *use, NameText(*use));
    }
    labelUses_.clear();
    blocks_.Clear();
}

void StatementParser::ParseLabelDefinition() {
    if (Here().Is(TokenKind::Integer)) {
        const ScopeNames::Entry* entry = labels_.Enter(Here());
        if (entry != nullptr) Fail(Fault::DuplicateLabel, Here(), Quote(Here()), entry->token->offset);
        Advance();
        Accept(Operator::Colon);
    }
    if (!Here().Is(TokenKind::Name) || !Ahead().Is(Operator::Colon)) return;
    const ScopeNames::Entry* entry = labels_.Enter(Here());
    // `DoEvents:` and `Beep :` are rather calls, and calls may be repeated.
    const bool isSurelyLabel = Here().keyword() == Keyword::None && Here().End() == Ahead().offset;
    if (entry != nullptr && isSurelyLabel) {
        Fail(Fault::DuplicateLabel, Here(), NameText(Here()), entry->token->offset);
    }
    Advance();
}

bool StatementParser::ParseStatement() {
    bodyFollows_ = false;
    Block* block = blocks_.Innermost();
    if (block != nullptr && block->kind == BlockKind::Select && !block->hasCase) {
        const bool isCaseOrEnd = Here().Is(Keyword::Case) || Here().Is(Keyword::End);
        if (!isCaseOrEnd) {
            block->hasCase = true;
            Fail(Fault::StatementBeforeCase, Here());
        }
    }
    const bool startsWithEnd = Here().Is(Keyword::End);
    const bool isRead = Here().Is(TokenKind::Keyword) ? ParseKeywordStatement() : ParseNameStatement();
    if (isRead && (bodyFollows_ || AtStatementEnd())) return true;
    if (isRead) FailExpecting(Fault::StatementEnd);
    if (startsWithEnd) blocks_.DropInnermost();
    SkipToStatementEnd();
    return false;
}

bool StatementParser::ParseKeywordStatement() {
    const Token& word = Here();
    switch (word.keyword()) {
        case Keyword::If:
            return ParseIf();
        case Keyword::ElseIf:
            return ParseElseIf();
        case Keyword::Else:
            return ParseElse();
        case Keyword::End:
            return ParseEnd();
        case Keyword::EndIf:
            return ParseEndIf(1);
        case Keyword::For:
            return ParseFor();
        case Keyword::Next:
            return ParseNext();
        case Keyword::Do:
            return ParseDo();
        case Keyword::Loop:
            return ParseLoop();
        case Keyword::While:
            return ParseWhile();
        case Keyword::Wend:
            Advance();
            return EndBlock(BlockKind::While, word, u"Wend");
        case Keyword::With:
            return ParseWith();
        case Keyword::Select:
            return ParseSelect();
        case Keyword::Case:
            return ParseCase();
        case Keyword::Dim:
        case Keyword::Static:
            Advance();
            return ParseVariables(Scope::Procedure);
        case Keyword::Const:
            Advance();
            return ParseConstants(Scope::Procedure);
        case Keyword::ReDim:
            return ParseReDim();
        case Keyword::Let:
        case Keyword::Set:
        case Keyword::LSet:
        case Keyword::RSet:
            return ParseAssignment();
        case Keyword::Call:
            return ParseCall();
        case Keyword::RaiseEvent:
            return ParseRaiseEvent();
        case Keyword::GoTo:
        case Keyword::GoSub:
            return ParseGoTo();
        case Keyword::On:
            return ParseOn();
        case Keyword::Resume:
            return ParseResume();
        case Keyword::Exit:
            return ParseExit();
        case Keyword::Stop:
        case Keyword::Return:
            Advance();
            return true;
        case Keyword::Open:
            return ParseOpen();
        case Keyword::Close:
        case Keyword::Erase:
        case Keyword::Get:
        case Keyword::Put:
            return ParseFileArguments();
        case Keyword::Lock:
        case Keyword::Unlock:
            return ParseLock();
        case Keyword::Print:
        case Keyword::Write:
            return ParseOutput();
        default:
            return Fail(Fault::StatementStart, word, Quote(word));
    }
}

bool StatementParser::ParseNameStatement() {
    const Token& word = Here();
    if (word.Is(Operator::Dot) || word.Is(Operator::Bang)) return ParseCallOrAssignment();
    if (word.Is(Operator::Question)) return ParseOutput();
    if (word.Is(TokenKind::Unknown)) return Fail(Fault::UnknownCharacter, word, Quote(word));
    if (!word.Is(TokenKind::Name)) return Fail(Fault::StatementStart, word, Quote(word));
    switch (word.keyword()) {
        case Keyword::Attribute:
            if (Ahead().IsWord()) SkipToLineEnd();
            if (AtLineEnd()) return true;
            break;
        case Keyword::Go:
            if (Ahead().Is(Keyword::To) || Ahead().Is(Keyword::Sub)) {
                Advance();
                return ParseGoTo();
            }
            break;
        case Keyword::Line:
            if (Ahead().Is(Keyword::Input)) Advance();
            break;
        case Keyword::Name:
            if (Ahead().IsWord() || Ahead().Is(TokenKind::String) || IsRename(&word)) return ParseNameAs();
            break;
        default:
            break;
    }
    return ParseCallOrAssignment();
}

bool StatementParser::ParseCallOrAssignment() {
    Operand head;
    if (!ParseStatementHead(head)) return false;
    if (head.isPrint && !AtStatementEnd()) return ParseOutputTail();
    if (Accept(Operator::Equal)) return ParseExpression();
    return ParseRestOfCall(head);
}

bool StatementParser::ParseRestOfCall(const Operand& head) {
    if (AtStatementEnd()) {
        // A call without `Call` has no parentheses around its list.
        return !head.endsInParentheses || head.arguments < 2 || FailExpecting(Fault::AssignmentOrCall);
    }
    if (head.lastName->Is(Keyword::Name) && Here().Is(Keyword::As)) {
        Advance();
        return ParseExpression();
    }
    if (IsDrawing(*head.lastName)) return ParseDrawing();
    if (head.endsInParentheses) return ParseArgumentTail();
    // `Show (a).b & c`: what began with parentheses is the start of the first argument.
    if (head.hasParentheses && AtBinaryOperator()) Advance();
    return ParseArgumentList();
}

// Behind `Show (a)`: the parentheses were the first argument, or the start of it.
bool StatementParser::ParseArgumentTail() {
    if (AtBinaryOperator()) {
        Advance();
        if (!ParseExpression()) return false;
    }
    if (!AtStatementEnd() && !Here().Is(Operator::Comma)) return FailExpecting(Fault::StatementEnd);
    return ParseArgumentList();
}

bool StatementParser::ParseAssignment() {
    Advance();
    Operand target;
    return ParseNamedOperand(target) && Expect(Operator::Equal, Fault::Assignment) && ParseExpression();
}

bool StatementParser::ParseCall() {
    Advance();
    Operand procedure;
    return ParseNamedOperand(procedure);
}

bool StatementParser::ParseRaiseEvent() {
    Advance();
    if (!Here().IsWord()) return FailExpecting(Fault::Name);
    Advance();
    int arguments = 0;
    return !Here().Is(Operator::OpenParenthesis) || ParseParenthesizedArguments(arguments);
}

bool StatementParser::ParseReDim() {
    Advance();
    Accept(Keyword::Preserve);
    return ParseRedimensions();
}

bool StatementParser::ParseGoTo() {
    Advance();
    return ParseLabelUse();
}

bool StatementParser::ParseLabelUse() {
    if (!Here().Is(TokenKind::Name) && !Here().Is(TokenKind::Integer)) return FailExpecting(Fault::Label);
    labelUses_.push_back(&Here());
    Advance();
    return true;
}

bool StatementParser::ParseOn() {
    Advance();
    const bool isLocal = Ahead().Is(Keyword::Error) && Here().Is(TokenKind::Name);
    if (isLocal) Advance();
    if (Here().Is(Keyword::Error) && !Ahead().Is(Operator::OpenParenthesis)) return ParseOnError();
    if (!ParseExpression()) return false;
    if (!Accept(Keyword::GoTo) && !Accept(Keyword::GoSub)) return FailExpecting(Fault::GoToOrGoSub);
    do {
        if (!ParseLabelUse()) return false;
    } while (Accept(Operator::Comma));
    return true;
}

bool StatementParser::ParseOnError() {
    Advance();
    if (Accept(Keyword::Resume)) return Expect(Keyword::Next, Fault::ResumeNext);
    const bool isGoTo = Accept(Keyword::GoTo) || (Here().Is(Keyword::Go) && (Advance(), Accept(Keyword::To)));
    if (!isGoTo) return FailExpecting(Fault::OnError);
    const bool isOff = Here().Is(Operator::Minus) || labels_.KeyOf(Here()) == u"0";
    if (!isOff) return ParseLabelUse();
    Accept(Operator::Minus);
    return ParseExpression();
}

bool StatementParser::ParseResume() {
    Advance();
    if (AtStatementEnd() || Accept(Keyword::Next)) return true;
    if (Quote(Here()) != u"0") return ParseLabelUse();
    Advance();
    return true;
}

bool StatementParser::ParseExit() {
    switch (Ahead().keyword()) {
        case Keyword::Do:
            return ParseExitLoop(BlockKind::Do, u"Exit Do");
        case Keyword::For:
            return ParseExitLoop(BlockKind::For, u"Exit For");
        case Keyword::Sub:
            return ParseExitProcedure(ProcedureKind::Sub, u"Exit Sub");
        case Keyword::Function:
            return ParseExitProcedure(ProcedureKind::Function, u"Exit Function");
        case Keyword::Property:
            return ParseExitProcedure(ProcedureKind::Property, u"Exit Property");
        default:
            Advance();
            return FailExpecting(Fault::ExitKind);
    }
}

bool StatementParser::ParseExitLoop(BlockKind kind, TextView words) {
    const Token& exit = Here();
    Advance();
    Advance();
    if (blocks_.CountOf(kind) == 0 && !isBlocksBroken_) Fail(Fault::ExitOutsideLoop, exit, words);
    return true;
}

bool StatementParser::ParseExitProcedure(ProcedureKind kind, TextView words) {
    const Token& exit = Here();
    Advance();
    Advance();
    if (kind != procedure_) Fail(Fault::ExitWrongProcedure, exit, words);
    return true;
}

}  // namespace zentlor::vba
