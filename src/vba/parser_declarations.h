#pragma once

// Declarations, wherever they stand: variables, constants, parameters, data types ([MS-VBAL] 5.2.3 and 5.3.1).

#include "vba/parser_expressions.h"
#include "vba/parser_names.h"

namespace zentlor::vba {

class DeclarationParser : protected ExpressionParser {
  protected:
    DeclarationParser(TextView text, const Tokens& tokens, FoundFaults& faults);

    /// What the names of a list belong to.
    enum class Scope { Module, Procedure };
    /// What a parameter list belongs to: a library's procedure is free in the order of its parameters.
    enum class ParameterOwner { Procedure, PropertyWithValue, Library };

    /// `a As T, b(1 To 2), WithEvents c As U` behind `Dim` and its like.
    bool ParseVariables(Scope scope);
    /// `A As Long = 1, B = 2` behind `Const`.
    bool ParseConstants(Scope scope);
    /// `a(1 To n) As T, b.c(2)` behind `ReDim`.
    bool ParseRedimensions();
    /// "(...)" behind a procedure's name; its names go to the procedure's scope. `count` receives the number.
    bool ParseParameters(ParameterOwner owner, int& count);
    /// The data type behind `As`.
    bool ParseType();
    /// `As` and a data type, or nothing.
    bool ParseOptionalType() { return !Accept(Keyword::As) || ParseType(); }
    /// A name to be declared.
    bool ParseDeclaredName();

    /// Enters names and notes those that were there already.
    void DeclareInModule(const Token& name, std::uint32_t kinds);
    void DeclareInProcedure(const Token& name);
    void DeclareMember(const Token& name);

    /// Kinds of names in a module: the three sides of a property go together, all else stands alone.
    static constexpr std::uint32_t kPropertyGet = 1;
    static constexpr std::uint32_t kPropertyLet = 2;
    static constexpr std::uint32_t kPropertySet = 4;
    static constexpr std::uint32_t kAlone = 8;

    ScopeNames moduleNames_;
    ScopeNames typeNames_;
    ScopeNames locals_;
    ScopeNames members_;

    ~DeclarationParser() = default;

  private:
    void Declare(Scope scope, const Token& name);
    bool ParseParameter(ParameterOwner owner, bool& isOptional, bool& isLast);
    bool HasOtherTypeCharacter(const Token& a, const Token& b) const;
};

}  // namespace zentlor::vba
