#include "core/declarations/procedure_declarations.h"

#include <algorithm>

#include "core/declarations/declaration_lists.h"
#include "core/scanning/find_walk.h"
#include "core/scanning/logical_lines.h"

namespace zentlor {

namespace {

constexpr TextView kModule = u"mdl_DeclarationsEinerProzedur";
constexpr int kEndColumn = 1000;

// One scan: the statements around each hit of a keyword, from the hit on.
class ProcedureScanner {
  public:
    ProcedureScanner(const VBComponent& vbc, int lngVon, int lngBis, ProcDeclarations& table)
        : vbc_(vbc), cm_(vbc.CodeModule()), from_(lngVon), to_(lngBis), table_(table) {}

    void FindVarDeclarationsInProc() {
        Frame(vbc_.Project().Failures(), {kModule, u"FindVarDeclarationsInProc", vbc_.Name()}, [&] {
            record_.lngArt = kVariable;
            Scan<VariableList>(u"Dim", [](Hit) { return true; });
        });
    }

    void FindConstDeclarationsInProc() {
        Frame(vbc_.Project().Failures(), {kModule, u"FindConstDeclarationsInProc", vbc_.Name()}, [&] {
            record_.lngArt = kConstant;
            Scan<ConstantList>(u"Const",
                               [&](Hit hit) { return !IstBedingteKompilierung(cm_.Lines(hit.line), hit.column); });
        });
    }

  private:
    template <class List, class Accept>
    void Scan(TextView keyword, Accept accept) {
        HitFilter filter(cm_);
        FindRange range{from_, 0, to_, kEndColumn};
        while (cm_.Find(keyword, range, {.wholeWord = true, .matchCase = true})) {
            const Hit hit{range.startLine, range.startColumn};
            range = {hit.line, hit.column + 1, to_, kEndColumn};
            if (!filter.IsInCode(hit) || !accept(hit)) continue;
            int lngAnzahl = 0;
            const LogicalText rest = GibGanzeZeileBisEnde(vbc_, hit.line, hit.column, lngAnzahl);
            const TextView code = KommentarEntfernen(rest);
            if (!code.empty()) {
                ForEachStatement(
                    code, [&](TextView statement) { ReadStatement<List>(statement, keyword, hit.line, lngAnzahl); });
            }
            range.startLine = hit.line + lngAnzahl;
            range.startColumn = 1;
        }
    }

    // The keyword may stand anywhere in the statement, even as a part of a word.
    template <class List>
    void ReadStatement(TextView statement, TextView keyword, int lngZeile, int lngAnzahl) {
        const int found = InStr(1, statement, keyword);
        if (found == 0) return;
        MakeRoom(statement);
        List list(statement, found + Len(keyword) + 1);
        for (DeclaredName name; list.Next(name);) {
            LocateName(cm_, name.strName, lngZeile, lngAnzahl, at_);
            record_.strName = name.strName;
            record_.blnDatentyp = name.blnDatentyp;
            record_.blnKennzeichen = name.blnKennzeichen;
            record_.lngDeklZeile = at_.lngDeklZeile;
            record_.lngDeklSpalte = at_.lngDeklSpalte;
            table_.push_back(record_);
        }
    }

    // The table of a list without end would be there twice while it grows.
    void MakeRoom(TextView statement) {
        const auto commas = static_cast<std::size_t>(std::count(statement.begin(), statement.end(), u','));
        if (commas > table_.capacity()) table_.reserve(table_.size() + commas + 1);
    }

    const VBComponent& vbc_;
    const CodeModule& cm_;
    int from_;
    int to_;
    ProcDeclarations& table_;
    typProcDeclaration record_;
    DeclaredAt at_;  ///< goes from hit to hit: a name that is not found keeps the place of the name before it
};

}  // namespace

bool IstBedingteKompilierung(TextView strZeile, int lngSpalte) {
    return Mid(strZeile, lngSpalte - 1, 1) == u"#";
}

ProcDeclarations GetProcDeclarations(const VBComponent& vbc, int lngVon, int lngBis) {
    ProcDeclarations table;
    Frame(vbc.Project().Failures(), {kModule, u"GetProcDeclarations", vbc.Name()}, [&] {
        ProcedureScanner(vbc, lngVon, lngBis, table).FindVarDeclarationsInProc();
        ProcedureScanner(vbc, lngVon, lngBis, table).FindConstDeclarationsInProc();
    });
    return table;
}

const std::vector<ProcedureTables::Header>& ProcedureTables::Headers() const {
    if (hasHeaders_) return headers_;
    headers_.reserve(vbc_.CodeModule().Procedures().size());  // the parameters view the texts, which must not move
    ForEachProcedure(vbc_.CodeModule(), [&](const Procedure& procedure) {
        Header& header = headers_.emplace_back();
        header.procedure = &procedure;
        header.text = GibGanzeZeile(vbc_, procedure.bodyLine, header.lineCount);
        header.parameters = GetParameters(header.text);
    });
    hasHeaders_ = true;
    return headers_;
}

const std::vector<ProcedureTables::Table>& ProcedureTables::All() const {
    if (made_) return tables_;
    ForEachProcedure(vbc_.CodeModule(), [&](const Procedure& procedure) {
        ProcDeclarations records = GetProcDeclarations(vbc_, procedure.firstLine, procedure.lastLine);
        if (!records.empty()) tables_.push_back({&procedure, std::move(records)});
    });
    made_ = true;
    return tables_;
}

}  // namespace zentlor
