// Line by line: a line that begins with a directive changes what holds for the lines behind it, all others are copied
// or left out.

#include "vba/parser_branches.h"

#include <algorithm>

namespace zentlor::vba {
namespace {

class BranchSelector {
  public:
    BranchSelector(TextView text, Branches branches, const ConditionSettings& settings, FoundFaults& faults)
        : text_(text), branches_(branches), faults_(faults), constants_(settings) {}

    Tokens Select(const Tokens& tokens) {
        selected_.Reset(tokens.size());
        const Token* token = tokens.data();
        while (!token->Is(TokenKind::EndOfText)) {
            const Token* end = token;
            while (!end->Is(TokenKind::EndOfLine)) ++end;
            if (token->Is(TokenKind::Directive)) {
                Read(token);
            } else if (IsCopied()) {
                selected_.Append(token, end + 1);
            }
            token = end + 1;
        }
        selected_.Append(*token);
        if (!levels_.empty()) Note(Fault::DirectiveNotClosed, *levels_.back().opener);
        return std::move(selected_);
    }

  private:
    struct Level {
        const Token* opener;
        bool isAroundActive;  ///< The place in which the `#If` stands counts.
        bool isActive;        ///< The present branch counts.
        bool wasActive;       ///< One of the branches counted.
        bool hasElse;
    };

    bool IsActive() const { return levels_.empty() || levels_.back().isActive; }
    bool IsCopied() const { return branches_ == Branches::All || IsActive(); }

    void Read(const Token* directive) {
        switch (directive->keyword()) {
            case Keyword::If:
                return OpenLevel(directive);
            case Keyword::ElseIf:
            case Keyword::Else:
                return NextBranch(directive);
            case Keyword::Const:
                return SetConstant(directive);
            default:
                return CloseLevel(directive);
        }
    }

    void OpenLevel(const Token* directive) {
        const bool isAroundActive = IsActive();
        const bool holds = ReadCondition(directive) && isAroundActive;
        levels_.push_back({directive, isAroundActive, holds, holds, false});
    }

    void NextBranch(const Token* directive) {
        if (levels_.empty()) return Note(Fault::DirectiveWithoutIf, *directive);
        Level& level = levels_.back();
        if (level.hasElse) Note(Fault::DirectiveElseAfterElse, *directive);
        level.hasElse = directive->keyword() == Keyword::Else;
        const bool holds = level.hasElse || ReadCondition(directive);
        level.isActive = level.isAroundActive && !level.wasActive && holds;
        level.wasActive = level.wasActive || level.isActive;
    }

    void CloseLevel(const Token* directive) {
        if (levels_.empty()) return Note(Fault::DirectiveWithoutIf, *directive);
        levels_.pop_back();
    }

    bool ReadCondition(const Token* directive) {
        const Token* token = directive + 1;
        const bool holds = EvaluateCondition(text_, constants_, token).IsTrue();
        while (!token->Is(Keyword::Then) && !token->Is(TokenKind::EndOfLine)) ++token;
        if (!token->Is(Keyword::Then)) Note(Fault::DirectiveThen, *directive);
        return holds;
    }

    void SetConstant(const Token* directive) {
        const Token* name = directive + 1;
        if (!IsActive() || !name->IsWord() || !(name + 1)->Is(Operator::Equal)) return;
        const Token* token = name + 2;
        constants_.Set(NameOf(*name, text_), EvaluateCondition(text_, constants_, token));
    }

    void Note(Fault fault, const Token& directive) {
        if (faults_.size() >= kMaximumSyntaxErrors) return;
        const bool isEnd = directive.keyword() == Keyword::End;
        faults_.push_back({directive.offset, fault, Text(isEnd ? u"#End If" : TextOf(directive, text_)), 0});
    }

    TextView text_;
    Branches branches_;
    FoundFaults& faults_;
    ConditionConstants constants_;
    std::vector<Level> levels_;
    Tokens selected_;
};

}  // namespace

Tokens SelectBranches(TextView text, const Tokens& tokens, Branches branches, const ConditionSettings& settings,
                      FoundFaults& faults) {
    return BranchSelector(text, branches, settings, faults).Select(tokens);
}

}  // namespace zentlor::vba
