#pragma once

// A whole module: its declarations, then its procedures ([MS-VBAL] 4.2, 5.1 to 5.3).

#include <array>

#include "vba/parser_statements.h"

namespace zentlor::vba {

class ModuleParser final : StatementParser {
  public:
    /// `tokens` hold no directives: branches that don't count are left out.
    ModuleParser(TextView text, const Tokens& tokens, FoundFaults& faults);

    void Parse();

  private:
    enum class Place : std::uint8_t { Declarations, Procedure, TypeMembers, EnumMembers };
    enum class OptionKind : std::uint8_t { Explicit, Base, Compare, Private };

    void ParseLine();
    bool ParseAnyStatement();
    bool ParseProcedureLine();
    bool ParseEndOfProcedure();
    void NoteUnclosed();
    const Token& LastWord() const;

    // Statements of the module's level
    bool ParseModuleStatement();
    bool ParseDeclaration(const Token& start);
    bool ParseOption();
    bool ParseOptionKind(OptionKind kind, const Token& option);
    bool ParseDefType();
    bool ParseImplements();
    bool ParseEvent();
    bool ParseLibraryProcedure();
    bool ParseReturnType();
    bool ParseMemberListStart(Place place);
    bool ParseProcedureHeader(const Token& start);
    bool ParseHeaderTail(ProcedureKind kind, std::uint32_t names);
    bool FailOutside(const Token& start);
    bool FailMisplaced(const Token& start);

    // Members of `Type` and `Enum`
    bool ParseMemberLine();
    bool ParseMember();
    bool CloseMemberList();

    bool AtProcedureHeader() const;
    bool AtModuleStatement() const;

    Place place_ = Place::Declarations;
    Place placeAround_ = Place::Declarations;  ///< Where a `Type` or `Enum` goes back to.
    const Token* opener_ = nullptr;            ///< The first word of the procedure or block that is open.
    const Token* listOpener_ = nullptr;        ///< The first word of the `Type` or `Enum` that is open.
    const Token* listName_ = nullptr;
    bool hasMember_ = false;
    bool hasProcedure_ = false;
    bool isOutside_ = false;  ///< A statement in the wrong place was noted; the ones that follow it are not.
    Keyword procedureWord_ = Keyword::None;  ///< `Sub`, `Function` or `Property` of the open procedure.
    std::array<const Token*, 4> options_{};
    const Token* last_;
};

}  // namespace zentlor::vba
