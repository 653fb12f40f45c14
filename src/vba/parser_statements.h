#pragma once

// The statements of a procedure, its blocks and its labels ([MS-VBAL] 5.4).

#include <vector>

#include "vba/parser_blocks.h"
#include "vba/parser_declarations.h"

namespace zentlor::vba {

class StatementParser : protected DeclarationParser {
  protected:
    StatementParser(TextView text, const Tokens& tokens, FoundFaults& faults);

    enum class ProcedureKind : std::uint8_t { Sub, Function, Property };

    /// A procedure begins: no block is open, no label is known.
    void BeginBody(ProcedureKind kind);
    /// A procedure ends at `end`: notes what is still open, and the labels that nothing defines.
    void EndBody(const Token& end);
    /// A procedure was broken off, which is noted already: what is open follows from that.
    void DropBody();

    /// A label or a line number at a line's start, if there is one.
    void ParseLabelDefinition();
    /// One statement of a procedure, up to its end or, behind `Then` and `Else`, up to the statement that follows
    /// there. It is not the `End` of a procedure nor a declaration that only a module may hold. False if a fault was
    /// noted.
    bool ParseStatement();
    /// A single-line `If` ends with its line.
    void EndStatementLine() { lineIfs_ = 0; }

    ~StatementParser() = default;

  private:
    bool IsInsideWith() const override { return isBlocksBroken_ || blocks_.CountOf(BlockKind::With) > 0; }

    // parser_statements.cpp
    bool ParseKeywordStatement();
    bool ParseNameStatement();
    bool ParseCallOrAssignment();
    bool ParseRestOfCall(const Operand& head);
    bool ParseArgumentTail();
    bool ParseAssignment();
    bool ParseCall();
    bool ParseRaiseEvent();
    bool ParseReDim();
    bool ParseGoTo();
    bool ParseOn();
    bool ParseOnError();
    bool ParseResume();
    bool ParseExit();
    bool ParseExitLoop(BlockKind kind, TextView words);
    bool ParseExitProcedure(ProcedureKind kind, TextView words);
    bool ParseLabelUse();

    // parser_files.cpp
    bool ParseOpen();
    bool ParseLock();
    bool ParseFileArguments();
    bool ParseOutput();
    bool ParseOutputTail();
    bool ParseNameAs();

    // parser_control.cpp
    bool ParseIf();
    bool ParseThen(const Token& opener, bool isBehindElse);
    bool ParseElseIf();
    bool ParseElse();
    bool EnterElse(const Token& word);
    bool ParseEnd();
    bool ParseEndIf(int words);
    bool ParseFor();
    bool ParseForRange();
    bool ParseNext();
    bool CloseFor(const Token& closer, TextView words);
    bool ParseDo();
    bool ParseLoop();
    bool ParseWhile();
    bool ParseWith();
    bool ParseSelect();
    bool ParseCase();
    bool ParseCaseItem();
    bool EndBlock(BlockKind kind, const Token& closer, TextView words);

    BlockStack blocks_;
    ScopeNames labels_;
    std::vector<const Token*> labelUses_;
    ProcedureKind procedure_ = ProcedureKind::Sub;
    int lineIfs_ = 0;              ///< Single-line `If`s open in this line.
    bool bodyFollows_ = false;     ///< `Then` or `Else` was read: a statement may follow without a colon.
    bool isBlocksBroken_ = false;  ///< A fault of blocks was noted: `Exit` and leading points can't be judged.
};

}  // namespace zentlor::vba
