// The module is read line by line. Each line belongs to a place (the declarations, a procedure, the members of a `Type`
// or `Enum`), and some lines move on to another one.

#include "vba/parser_module.h"

namespace zentlor::vba {
namespace {

bool IsProcedureWord(const Token& token) {
    return token.Is(Keyword::Sub) || token.Is(Keyword::Function) || token.Is(Keyword::Property);
}

bool IsScopeWord(const Token& token) {
    switch (token.keyword()) {
        case Keyword::Public:
        case Keyword::Private:
        case Keyword::Friend:
        case Keyword::Global:
        case Keyword::Static:
            return token.Is(TokenKind::Keyword);
        default:
            return false;
    }
}

TextView EndWordsOf(Keyword procedure) {
    switch (procedure) {
        case Keyword::Function:
            return u"End Function";
        case Keyword::Property:
            return u"End Property";
        default:
            return u"End Sub";
    }
}

}  // namespace

ModuleParser::ModuleParser(TextView text, const Tokens& tokens, FoundFaults& faults)
    : StatementParser(text, tokens, faults), last_(&tokens.back()) {}

void ModuleParser::Parse() {
    while (!Here().Is(TokenKind::EndOfText)) {
        BeginLine();
        ParseLine();
        EndStatementLine();
        Advance();
    }
    BeginLine();
    NoteUnclosed();
}

void ModuleParser::ParseLine() {
    if (place_ == Place::Procedure) ParseLabelDefinition();
    while (true) {
        while (Accept(Operator::Colon)) {
        }
        if (AtLineEnd()) return;
        if (!ParseAnyStatement()) SkipToStatementEnd();
    }
}

bool ModuleParser::ParseAnyStatement() {
    switch (place_) {
        case Place::Procedure:
            return ParseProcedureLine();
        case Place::TypeMembers:
        case Place::EnumMembers:
            return ParseMemberLine();
        default:
            break;
    }
    // These end statements but are none here.
    if (Here().Is(Keyword::Else) || Here().Is(Keyword::ElseIf)) Advance();
    if (!ParseModuleStatement()) return false;
    return AtStatementEnd() || FailExpecting(Fault::StatementEnd);
}

bool ModuleParser::ParseProcedureLine() {
    if (AtProcedureHeader()) {
        const Token& start = Here();
        Fail(Fault::ProcedureNotClosed, start, EndWordsOf(procedureWord_), opener_->offset);
        DropBody();
        place_ = Place::Declarations;
        return ParseAnyStatement();
    }
    const bool isEndOfProcedure = Here().Is(Keyword::End) && IsProcedureWord(Ahead());
    if (isEndOfProcedure) return ParseEndOfProcedure();
    if (!AtModuleStatement()) return ParseStatement();
    const Token& start = Here();
    Fail(Fault::InvalidInProcedure, start, Quote(start));
    if (IsScopeWord(start)) Advance();
    if (Here().Is(Keyword::Type)) return ParseMemberListStart(Place::TypeMembers);
    if (Here().Is(Keyword::Enum)) return ParseMemberListStart(Place::EnumMembers);
    return false;
}

bool ModuleParser::ParseEndOfProcedure() {
    const Token& end = Here();
    Advance();
    const Keyword word = Here().keyword();
    Advance();
    EndBody(end);
    if (word != procedureWord_) Fail(Fault::WrongProcedureEnd, end, EndWordsOf(word), opener_->offset);
    place_ = Place::Declarations;
    isOutside_ = false;
    return AtStatementEnd() || FailExpecting(Fault::StatementEnd);
}

// Behind the last line: whatever is open is missing its end there.
void ModuleParser::NoteUnclosed() {
    if (place_ == Place::Declarations) return;
    const Token& last = LastWord();
    if (place_ == Place::TypeMembers || place_ == Place::EnumMembers) {
        const TextView words = place_ == Place::TypeMembers ? u"End Type" : u"End Enum";
        Fail(Fault::MemberListAtEnd, last, words, listOpener_->offset);
    } else {
        Fail(Fault::ProcedureAtEnd, last, EndWordsOf(procedureWord_), opener_->offset);
        DropBody();
    }
}

const Token& ModuleParser::LastWord() const {
    const Token* token = last_;
    const auto isWord = [](TokenKind kind) {
        return kind != TokenKind::EndOfText && kind != TokenKind::EndOfLine && kind != TokenKind::Comment &&
               kind != TokenKind::Continuation;
    };
    while (!isWord(token->kind)) --token;
    return *token;
}

bool ModuleParser::AtProcedureHeader() const {
    const Token& word = Here();
    if (IsScopeWord(word)) {
        const Token& next = IsScopeWord(Ahead()) ? AheadTwice() : Ahead();
        return next.Is(Keyword::Sub) || next.Is(Keyword::Function) ||
               (next.Is(Keyword::Property) && next.offset == Ahead().offset && AheadTwice().Is(TokenKind::Keyword) &&
                !AheadTwice().Is(Keyword::As));
    }
    if (word.Is(Keyword::Sub) || word.Is(Keyword::Function)) return true;
    return word.Is(Keyword::Property) &&
           (Ahead().Is(Keyword::Get) || Ahead().Is(Keyword::Let) || Ahead().Is(Keyword::Set));
}

// True in front of words that begin a declaration of the module alone.
bool ModuleParser::AtModuleStatement() const {
    if (!Here().Is(TokenKind::Keyword)) return false;
    switch (Here().keyword()) {
        case Keyword::Declare:
        case Keyword::Enum:
        case Keyword::Event:
        case Keyword::Friend:
        case Keyword::Global:
        case Keyword::Implements:
        case Keyword::Option:
        case Keyword::Private:
        case Keyword::Public:
        case Keyword::Type:
            return true;
        default:
            return Here().keyword() >= Keyword::DefBool && Here().keyword() <= Keyword::DefVar;
    }
}

bool ModuleParser::ParseModuleStatement() {
    const Token& start = Here();
    if (Here().Is(Keyword::Attribute) && Ahead().IsWord()) {
        SkipToLineEnd();
        return true;
    }
    while (IsScopeWord(Here()) && Ahead().IsWord()) Advance();
    const bool isHeader = Here().Is(Keyword::Sub) || Here().Is(Keyword::Function) ||
                          (Here().Is(Keyword::Property) && Ahead().IsWord() && !Ahead().Is(Keyword::As));
    if (isHeader) return ParseProcedureHeader(start);
    if (Here().Is(Keyword::Implements)) return ParseImplements();
    const bool hasScope = &start != &Here();
    const bool isDeclaration = hasScope || Here().Is(Keyword::Dim) || Here().Is(Keyword::Const) || AtModuleStatement();
    if (!isDeclaration) return FailOutside(start);
    if (hasProcedure_) FailMisplaced(start);
    return ParseDeclaration(start);
}

bool ModuleParser::ParseDeclaration(const Token& start) {
    switch (Here().Is(TokenKind::Keyword) ? Here().keyword() : Keyword::None) {
        case Keyword::Option:
            return ParseOption();
        case Keyword::Declare:
            return ParseLibraryProcedure();
        case Keyword::Const:
            Advance();
            return ParseConstants(Scope::Module);
        case Keyword::Type:
            return ParseMemberListStart(Place::TypeMembers);
        case Keyword::Enum:
            return ParseMemberListStart(Place::EnumMembers);
        case Keyword::Event:
            return ParseEvent();
        case Keyword::Dim:
            Advance();
            return ParseVariables(Scope::Module);
        default:
            break;
    }
    const bool isDefType = &start == &Here() && Here().keyword() >= Keyword::DefBool;
    return isDefType && Here().keyword() <= Keyword::DefVar ? ParseDefType() : ParseVariables(Scope::Module);
}

// One note for a run of lines in the wrong place.
bool ModuleParser::FailOutside(const Token& start) {
    const bool isEnd = start.Is(Keyword::End) && IsProcedureWord(Ahead());
    if (!isOutside_) {
        if (start.Is(TokenKind::Unknown)) {
            Fail(Fault::UnknownCharacter, start, Quote(start));
        } else if (isEnd) {
            Fail(Fault::EndWithoutProcedure, start, EndWordsOf(Ahead().keyword()));
        } else {
            Fail(Fault::CodeOutsideProcedure, start);
        }
    }
    isOutside_ = !isEnd;
    return false;
}

bool ModuleParser::FailMisplaced(const Token& start) {
    if (!isOutside_) Fail(Fault::DeclarationAfterProcedure, start);
    isOutside_ = true;
    return false;
}

bool ModuleParser::ParseOption() {
    const Token& option = Here();
    Advance();
    switch (Here().keyword()) {
        case Keyword::Explicit:
            return ParseOptionKind(OptionKind::Explicit, option);
        case Keyword::Base:
            return ParseOptionKind(OptionKind::Base, option);
        case Keyword::Compare:
            return ParseOptionKind(OptionKind::Compare, option);
        case Keyword::Private:
            return ParseOptionKind(OptionKind::Private, option);
        default:
            return FailExpecting(Fault::OptionKind);
    }
}

bool ModuleParser::ParseOptionKind(OptionKind kind, const Token& option) {
    const Token*& earlier = options_[static_cast<std::size_t>(kind)];
    if (earlier != nullptr) Fail(Fault::DuplicateOption, option, {}, earlier->offset);
    earlier = &option;
    Advance();
    // `Base 1`, `Compare Database` and `Private Module` have a word more.
    if (kind != OptionKind::Explicit && !AtStatementEnd()) Advance();
    return true;
}

bool ModuleParser::ParseDefType() {
    Advance();
    do {
        if (!Here().IsWord()) return FailExpecting(Fault::Letters);
        Advance();
        if (!Accept(Operator::Minus)) continue;
        if (!Here().IsWord()) return FailExpecting(Fault::Letters);
        Advance();
    } while (Accept(Operator::Comma));
    return true;
}

bool ModuleParser::ParseImplements() {
    Advance();
    Operand interface;
    return ParseNamedOperand(interface);
}

bool ModuleParser::ParseEvent() {
    Advance();
    if (!Here().IsWord()) return FailExpecting(Fault::Name);
    Advance();
    int parameters = 0;
    return !Here().Is(Operator::OpenParenthesis) || ParseParameters(ParameterOwner::Library, parameters);
}

bool ModuleParser::ParseLibraryProcedure() {
    Advance();
    Accept(Keyword::PtrSafe);
    if (!Accept(Keyword::Sub) && !Accept(Keyword::Function)) return FailExpecting(Fault::SubOrFunction);
    if (!Here().IsWord()) return FailExpecting(Fault::Name);
    DeclareInModule(Here(), kAlone);
    Advance();
    Accept(Keyword::CDecl);
    if (!Expect(Keyword::Lib, Fault::Lib)) return false;
    if (!Here().Is(TokenKind::String)) return FailExpecting(Fault::LibraryName);
    if (!ParseExpression()) return false;
    if (Accept(Keyword::Alias) && !ParseExpression()) return false;
    int parameters = 0;
    if (Here().Is(Operator::OpenParenthesis) && !ParseParameters(ParameterOwner::Library, parameters)) return false;
    return ParseReturnType();
}

// `As T` or `As T()` behind a parameter list.
bool ModuleParser::ParseReturnType() {
    if (!ParseOptionalType()) return false;
    return !Accept(Operator::OpenParenthesis) || Expect(Operator::CloseParenthesis, Fault::CloseParenthesis);
}

bool ModuleParser::ParseProcedureHeader(const Token& start) {
    isOutside_ = false;
    hasProcedure_ = true;
    place_ = Place::Procedure;
    opener_ = &start;
    procedureWord_ = Here().keyword();
    locals_.Clear();
    Advance();
    std::uint32_t names = kAlone;
    ProcedureKind kind = procedureWord_ == Keyword::Sub ? ProcedureKind::Sub : ProcedureKind::Function;
    if (procedureWord_ == Keyword::Property) {
        kind = ProcedureKind::Property;
        names = Here().Is(Keyword::Get) ? kPropertyGet : Here().Is(Keyword::Let) ? kPropertyLet : kPropertySet;
        const bool hasKind = Here().Is(Keyword::Get) || Here().Is(Keyword::Let) || Here().Is(Keyword::Set);
        BeginBody(kind);
        if (!hasKind) return FailExpecting(Fault::PropertyKind);
        Advance();
    } else {
        BeginBody(kind);
    }
    return ParseHeaderTail(kind, names);
}

bool ModuleParser::ParseHeaderTail(ProcedureKind kind, std::uint32_t names) {
    if (!Here().IsWord()) return FailExpecting(Fault::Name);
    const Token& name = Here();
    DeclareInModule(name, names);
    // Inside of it, the name is the variable for the result.
    const bool hasResult = kind == ProcedureKind::Function || names == kPropertyGet;
    Advance();
    const bool takesValue = names == kPropertyLet || names == kPropertySet;
    const ParameterOwner owner = takesValue ? ParameterOwner::PropertyWithValue : ParameterOwner::Procedure;
    int parameters = 0;
    if (Here().Is(Operator::OpenParenthesis) && !ParseParameters(owner, parameters)) return false;
    if (takesValue && parameters == 0) Fail(Fault::PropertyNeedsParameter, name);
    if (hasResult) locals_.Enter(name);
    return ParseReturnType() && (Accept(Keyword::Static), true);
}

bool ModuleParser::ParseMemberListStart(Place place) {
    listOpener_ = &Here();
    Advance();
    if (!Here().IsWord()) return FailExpecting(Fault::Name);
    listName_ = &Here();
    const ScopeNames::Entry* entry = typeNames_.Enter(Here());
    if (entry != nullptr) Fail(Fault::DuplicateName, Here(), NameText(Here()), entry->token->offset);
    Advance();
    members_.Clear();
    hasMember_ = false;
    placeAround_ = place_;
    place_ = place;
    return AtStatementEnd() || FailExpecting(Fault::StatementEnd);
}

bool ModuleParser::ParseMemberLine() {
    const bool isType = place_ == Place::TypeMembers;
    if (Here().Is(Keyword::End) && Ahead().Is(isType ? Keyword::Type : Keyword::Enum)) return CloseMemberList();
    const bool isOtherEnd = Here().Is(Keyword::End) && Ahead().Is(TokenKind::Keyword) && !Ahead().Is(Keyword::As);
    const bool isOtherStart =
        (AtModuleStatement() || Here().Is(Keyword::Dim) || Here().Is(Keyword::Const) || AtProcedureHeader()) &&
        Ahead().IsWord() && !Ahead().Is(Keyword::As);
    if (!isOtherEnd && !isOtherStart) return ParseMember();
    const TextView words = isType ? u"End Type" : u"End Enum";
    Fail(Fault::MemberListNotClosed, Here(), words, listOpener_->offset);
    place_ = placeAround_;
    if (isOtherStart) return ParseAnyStatement();
    Advance();
    return false;
}

bool ModuleParser::ParseMember() {
    if (!Here().IsWord()) return FailExpecting(Fault::Name);
    hasMember_ = true;
    DeclareMember(Here());
    Advance();
    if (place_ == Place::EnumMembers) {
        if (Accept(Operator::Equal) && !ParseExpression()) return false;
        return AtStatementEnd() || FailExpecting(Fault::Assignment);
    }
    int bounds = 0;
    if (Here().Is(Operator::OpenParenthesis) && !ParseParenthesizedArguments(bounds)) return false;
    if (!AtStatementEnd() && !Here().Is(Keyword::As)) return FailExpecting(Fault::AsOfMember);
    if (!ParseOptionalType()) return false;
    return AtStatementEnd() || FailExpecting(Fault::StatementEnd);
}

bool ModuleParser::CloseMemberList() {
    if (!hasMember_) {
        const bool isType = place_ == Place::TypeMembers;
        Fail(isType ? Fault::EmptyType : Fault::EmptyEnum, *listName_, NameText(*listName_));
    }
    place_ = placeAround_;
    Advance();
    Advance();
    return AtStatementEnd() || FailExpecting(Fault::StatementEnd);
}

}  // namespace zentlor::vba
