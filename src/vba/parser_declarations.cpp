// A declaration's names are entered as they are met, so that a second one of the same name is noted at its own place.

#include "vba/parser_declarations.h"

namespace zentlor::vba {
DeclarationParser::DeclarationParser(TextView text, const Tokens& tokens, FoundFaults& faults)
    : ExpressionParser(text, tokens, faults), moduleNames_(text), typeNames_(text), locals_(text), members_(text) {}

bool DeclarationParser::ParseDeclaredName() {
    const Token& token = Here();
    if (token.Is(TokenKind::Keyword)) return Fail(Fault::ReservedName, token, Quote(token));
    if (!token.Is(TokenKind::Name)) return FailExpecting(Fault::Name);
    Advance();
    return true;
}

bool DeclarationParser::ParseVariables(Scope scope) {
    do {
        if (Here().Is(Keyword::WithEvents) && Ahead().IsWord() && !Ahead().Is(Keyword::As)) Advance();
        if (!ParseDeclaredName()) return false;
        Declare(scope, Behind());
        int bounds = 0;
        if (Here().Is(Operator::OpenParenthesis) && !ParseParenthesizedArguments(bounds)) return false;
        if (!ParseOptionalType()) return false;
        if (!AtStatementEnd() && !Here().Is(Operator::Comma)) {
            const bool hasType = Behind().IsWord() && !Here().IsWord();
            return FailExpecting(hasType ? Fault::StatementEnd : Fault::AsOrComma);
        }
    } while (Accept(Operator::Comma));
    return true;
}

bool DeclarationParser::ParseConstants(Scope scope) {
    do {
        if (!ParseDeclaredName()) return false;
        Declare(scope, Behind());
        if (!ParseOptionalType()) return false;
        if (!Expect(Operator::Equal, Fault::Assignment) || !ParseExpression()) return false;
    } while (Accept(Operator::Comma));
    return true;
}

bool DeclarationParser::ParseRedimensions() {
    do {
        Operand array;
        if (!ParseNamedOperand(array)) return false;
        if (!array.endsInParentheses) return FailExpecting(Fault::Bounds);
        if (!ParseOptionalType()) return false;
    } while (Accept(Operator::Comma));
    return true;
}

bool DeclarationParser::ParseParameters(ParameterOwner owner, int& count) {
    count = 0;
    Advance();
    if (Accept(Operator::CloseParenthesis)) return true;
    bool isOptional = false;
    bool isLast = false;
    bool isBehindLast = false;
    do {
        const Token& parameter = Here();
        // The new value of a property stands behind its `ParamArray`.
        const bool mayFollow = !isLast || (owner == ParameterOwner::PropertyWithValue && !isBehindLast);
        if (!mayFollow) return Fail(Fault::ParamArrayLast, parameter);
        isBehindLast = isLast;
        const bool wasOptional = isOptional;
        if (!ParseParameter(owner, isOptional, isLast)) return false;
        ++count;
        if (!Here().Is(Operator::Comma) && !Here().Is(Operator::CloseParenthesis)) {
            return FailExpecting(Fault::CommaOrClose);
        }
        const bool isNewValue = owner == ParameterOwner::PropertyWithValue && !Here().Is(Operator::Comma);
        const bool mayBeRequired = isLast || isNewValue || owner == ParameterOwner::Library;
        if (wasOptional && !isOptional && !mayBeRequired) {
            Fail(Fault::OptionalExpected, parameter, Quote(parameter));
        }
        isOptional = isOptional || wasOptional;
    } while (Accept(Operator::Comma));
    return Expect(Operator::CloseParenthesis, Fault::CommaOrClose);
}

// `isOptional` and `isLast` receive whether `Optional` and `ParamArray` stand in front of the name.
bool DeclarationParser::ParseParameter(ParameterOwner owner, bool& isOptional, bool& isLast) {
    isOptional = false;
    while (Here().Is(TokenKind::Keyword)) {
        if (Accept(Keyword::Optional)) {
            isOptional = true;
        } else if (Accept(Keyword::ParamArray)) {
            isLast = true;
        } else if (!Accept(Keyword::ByVal) && !Accept(Keyword::ByRef)) {
            break;
        }
    }
    if (!ParseDeclaredName()) return false;
    // Nothing uses the names of a library procedure's parameters.
    if (owner != ParameterOwner::Library) DeclareInProcedure(Behind());
    int bounds = 0;
    if (Here().Is(Operator::OpenParenthesis) && !ParseParenthesizedArguments(bounds)) return false;
    return ParseOptionalType() && (!Accept(Operator::Equal) || ParseExpression());
}

bool DeclarationParser::ParseType() {
    Accept(Keyword::New);
    if (!Here().IsWord()) return FailExpecting(Fault::TypeName);
    Advance();
    while (Accept(Operator::Dot) || Accept(Operator::Bang)) {
        if (!Here().IsWord()) return FailExpecting(Fault::TypeName);
        Advance();
    }
    if (Accept(Operator::Times)) return ParseExpression();
    return true;
}

void DeclarationParser::Declare(Scope scope, const Token& name) {
    if (scope == Scope::Module) {
        DeclareInModule(name, kAlone);
    } else {
        DeclareInProcedure(name);
    }
}

void DeclarationParser::DeclareInModule(const Token& name, std::uint32_t kinds) {
    ScopeNames::Entry* entry = moduleNames_.Enter(name, kinds);
    if (entry == nullptr) return;
    const bool isOtherSide = ((entry->kinds | kinds) & kAlone) == 0 && (entry->kinds & kinds) == 0;
    if (isOtherSide) {
        entry->kinds |= kinds;
    } else if (!HasOtherTypeCharacter(name, *entry->token)) {
        Fail(Fault::DuplicateName, name, NameText(name), entry->token->offset);
    }
}

void DeclarationParser::DeclareInProcedure(const Token& name) {
    const ScopeNames::Entry* entry = locals_.Enter(name);
    if (entry == nullptr || HasOtherTypeCharacter(name, *entry->token)) return;
    Fail(Fault::DuplicateLocal, name, NameText(name), entry->token->offset);
}

void DeclarationParser::DeclareMember(const Token& name) {
    const ScopeNames::Entry* entry = members_.Enter(name);
    if (entry != nullptr) Fail(Fault::DuplicateMember, name, NameText(name), entry->token->offset);
}

// `a$` and `a%` may have been meant as two variables.
bool DeclarationParser::HasOtherTypeCharacter(const Token& a, const Token& b) const {
    if (!a.Has(kTypeCharacter) && !b.Has(kTypeCharacter)) return false;
    return Quote(a).back() != Quote(b).back();
}

}  // namespace zentlor::vba
