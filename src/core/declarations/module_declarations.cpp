#include "core/declarations/module_declarations.h"

#include <array>
#include <span>

#include "core/declarations/declaration_lists.h"
#include "core/scanning/logical_lines.h"

namespace zentlor {

namespace {

constexpr TextView kModule = u"mdl_DeclarationsEinesModuls";

// A statement is of a kind if it begins with one of the kind's literals, in the order of its table. The access words
// decide the scope; the last row of a table is the form without one.
struct Prefix {
    TextView literal;
    int scope;
    bool explicitScope;
};

constexpr std::array kTypes = {Prefix{u"Private Type ", kPrivate, true}, Prefix{u"Public Type ", kPublic, true},
                               Prefix{u"Type ", kPublic, false}};
constexpr std::array kEnums = {Prefix{u"Private Enum ", kPrivate, true}, Prefix{u"Public Enum ", kPublic, true},
                               Prefix{u"Enum ", kPublic, false}};
constexpr std::array kEvents = {Prefix{u"Public Event ", kPublic, true}, Prefix{u"Event ", kPublic, false}};
constexpr std::array kConstants = {Prefix{u"Private Const ", kPrivate, true}, Prefix{u"Public Const ", kPublic, true},
                                   Prefix{u"Global Const ", kGlobal, true}, Prefix{u"Const ", kPrivate, false}};
constexpr std::array kVariables = {Prefix{u"Private ", kPrivate, true}, Prefix{u"Public ", kPublic, true},
                                   Prefix{u"Global ", kGlobal, true}, Prefix{u"Dim ", kPrivate, false}};
// Without a trailing blank: the name starts behind the one character that follows the literal.
constexpr std::array kApis = {Prefix{u"Private Declare Function", kPrivate, true},
                              Prefix{u"Private Declare PtrSafe Function", kPrivate, true},
                              Prefix{u"Public Declare Function", kPublic, true},
                              Prefix{u"Public Declare PtrSafe Function", kPublic, true},
                              Prefix{u"Declare Function", kPublic, false},
                              Prefix{u"Declare PtrSafe Function", kPublic, false},
                              Prefix{u"Private Declare Sub", kPrivate, true},
                              Prefix{u"Private Declare PtrSafe Sub", kPrivate, true},
                              Prefix{u"Public Declare Sub", kPublic, true},
                              Prefix{u"Public Declare PtrSafe Sub", kPublic, true},
                              Prefix{u"Declare Sub", kPublic, false},
                              Prefix{u"Declare PtrSafe Sub", kPublic, false}};

// The statement under examination, and where its logical line lies.
struct Statement {
    TextView text;
    int lngZeile = 0;
    int lngAnzahl = 0;
};

TextView UpTo(TextView text, int from, char16_t end) {
    const int column = InStr(from, text, end);
    return column == 0 ? Mid(text, from) : Mid(text, from, column - from);
}

class ModuleScanner {
  public:
    explicit ModuleScanner(const VBComponent& vbc) : vbc_(vbc), cm_(vbc.CodeModule()) {}

    ModDeclarations table;

    // The kind of the statement, 0 for none: the first routine that takes it decides.
    int Scan(const Statement& statement) {
        if (ZeileHatType(statement)) return kType;
        if (ZeileHatEnum(statement)) return kEnumeration;
        if (ZeileHatAPI(statement)) return kApi;
        if (ZeileHatKonstante(statement)) return kConstant;
        if (ZeileHatEvent(statement)) return kEvent;
        if (ZeileHatVariable(statement)) return kVariable;
        return 0;
    }

  private:
    // The part that the six routines share: the frame, and the match of the literals. `read` gets a record that is
    // filled as far as the literal tells, and the column behind the literal.
    template <class Read>
    bool ScanAs(TextView routine, DeclarationKind kind, std::span<const Prefix> prefixes, const Statement& statement,
                Read read) {
        bool result = false;
        Frame(vbc_.Project().Failures(), {kModule, routine, vbc_.Name()}, [&] {
            for (const Prefix& prefix : prefixes) {
                if (!statement.text.starts_with(prefix.literal)) continue;
                typModDeclaration record;
                record.lngArt = kind;
                record.lngScope = prefix.scope;
                record.blnScopeExplizit = prefix.explicitScope;
                read(record, Len(prefix.literal) + 1);
                result = true;
                return;
            }
        });
        return result;
    }

    void Append(typModDeclaration& record, TextView name, const Statement& statement) {
        DeclaredAt at{record.lngDeklZeile, record.lngDeklSpalte};
        LocateName(cm_, name, statement.lngZeile, statement.lngAnzahl, at);
        record.lngDeklZeile = at.lngDeklZeile;
        record.lngDeklSpalte = at.lngDeklSpalte;
        record.strName = name;
        table.push_back(record);
    }

    template <class List>
    void AppendAll(typModDeclaration& record, List list, const Statement& statement) {
        for (DeclaredName name; list.Next(name);) {
            record.blnDatentyp = name.blnDatentyp;
            record.blnKennzeichen = name.blnKennzeichen;
            Append(record, name.strName, statement);
        }
    }

    bool ZeileHatType(const Statement& statement) {
        return ScanAs(u"ZeileHatType", kType, kTypes, statement, [&](typModDeclaration& record, int lngPos) {
            if (!record.blnScopeExplizit && vbc_.Type() == vbext_ct_ClassModule) record.lngScope = kPrivate;
            Append(record, UpTo(statement.text, lngPos, u' '), statement);
        });
    }

    bool ZeileHatEnum(const Statement& statement) {
        return ScanAs(u"ZeileHatEnum", kEnumeration, kEnums, statement, [&](typModDeclaration& record, int lngPos) {
            Append(record, UpTo(statement.text, lngPos, u' '), statement);
        });
    }

    bool ZeileHatEvent(const Statement& statement) {
        return ScanAs(u"ZeileHatEvent", kEvent, kEvents, statement, [&](typModDeclaration& record, int lngPos) {
            Append(record, Trim(UpTo(statement.text, lngPos, u'(')), statement);
        });
    }

    bool ZeileHatAPI(const Statement& statement) {
        return ScanAs(u"ZeileHatAPI", kApi, kApis, statement, [&](typModDeclaration& record, int lngPos) {
            const int namePos = lngPos + 1;
            const int blank = InStr(namePos, statement.text, u' ');
            Append(record, blank == 0 ? u"???" : Mid(statement.text, namePos, blank - namePos), statement);
        });
    }

    bool ZeileHatKonstante(const Statement& statement) {
        return ScanAs(u"ZeileHatKonstante", kConstant, kConstants, statement,
                      [&](typModDeclaration& record, int lngPos) {
                          AppendAll(record, ConstantList(statement.text, lngPos), statement);
                      });
    }

    bool ZeileHatVariable(const Statement& statement) {
        return ScanAs(u"ZeileHatVariable", kVariable, kVariables, statement,
                      [&](typModDeclaration& record, int lngPos) {
                          constexpr TextView kWithEvents = u"WithEvents";
                          if (Mid(statement.text, lngPos, Len(kWithEvents)) == kWithEvents) {
                              lngPos += Len(kWithEvents) + 1;
                          }
                          AppendAll(record, VariableList(statement.text, lngPos), statement);
                      });
    }

    const VBComponent& vbc_;
    const CodeModule& cm_;
};

// The line behind the block that begins on `line`, 0 if the block has no end.
int LineBehindBlock(const CodeModule& cm, TextView blockEnd, int line) {
    const int last = cm.CountOfDeclarationLines();
    FindRange range{line, 0, last, Len(cm.Lines(last))};
    return cm.Find(blockEnd, range, {}) ? range.startLine + 1 : 0;
}

}  // namespace

void LocateName(const CodeModule& cm, TextView name, int lngZeile, int lngAnzahl, DeclaredAt& at) {
    FindRange range{lngZeile, 0, lngZeile + lngAnzahl, -1};
    if (cm.Find(name, range, {.wholeWord = true, .matchCase = true})) at = {range.startLine, range.startColumn};
}

ModDeclarations GetModDeclarations(const VBComponent& vbc, MessageBoxes& boxes) {
    ModDeclarations result;
    Frame(vbc.Project().Failures(), {kModule, u"GetModDeclarations", vbc.Name()}, [&] {
        const CodeModule& cm = vbc.CodeModule();
        ModuleScanner scanner(vbc);
        for (int line = 1; line <= cm.CountOfDeclarationLines();) {
            int count = 0;
            int kind = 0;
            const LogicalText joined = GibGanzeZeile(vbc, line, count);
            ForEachStatement(KommentarEntfernen(joined), [&](TextView text) {
                kind = scanner.Scan({text, line, count});
            });
            if (kind != kEnumeration && kind != kType) {
                line += count;
                continue;
            }
            line = LineBehindBlock(cm, kind == kEnumeration ? u"End Enum" : u"End Type", line);
            if (line == 0) {
                boxes.Show(kind == kEnumeration ? u"Fehler Nr. 1" : u"Fehler Nr. 2", BoxIcon::Critical,
                           u"Bitte Programmierer verständigen!");
                break;
            }
        }
        result = std::move(scanner.table);
    });
    return result;
}

}  // namespace zentlor
