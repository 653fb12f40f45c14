// A module is written from the top: header and attributes, declarations, then procedures until it is long enough. A
// procedure's body is drawn from a table of statements with gaps; which variables it has to declare shows only when the
// body is written, so the body comes first and the head is put in front of it.

#include "module_writer.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace zentlor::bench {

namespace {

using std::string;
using std::string_view;

constexpr int kFunctionsPerModule = 6;

constexpr std::array<string_view, 20> kVerbs = {
    "Berechne", "Ermittle", "Pruefe",  "Suche", "Lade",  "Speichere", "Drucke", "Zaehle", "Formatiere", "Importiere",
    "Sperre",   "Sortiere", "Aendere", "Buche", "Mahne", "Melde",     "Oeffne", "Leere",  "Vergleiche", "Uebertrage"};
constexpr std::array<string_view, 32> kNouns = {
    "Kunde",   "Auftrag", "Rechnung",  "Position", "Artikel", "Lager",   "Preis",   "Rabatt",
    "Steuer",  "Adresse", "Konto",     "Buchung",  "Mahnung", "Zahlung", "Vertrag", "Lieferant",
    "Bestand", "Gruppe",  "Benutzer",  "Bericht",  "Datei",   "Zeile",   "Feld",    "Termin",
    "Projekt", "Filiale", "Vertreter", "Waehrung", "Betrag",  "Menge",   "Frist",   "Vorgang"};
constexpr std::array<string_view, 24> kWords = {
    "der Betrag",        "für den Kunden", "ohne Rücksicht auf", "muss noch",    "die Prüfung",     "wird hier",
    "nach dem Import",   "älter als",      "größer als",         "nur wenn",     "bereits gebucht", "die Änderung",
    "aus der Tabelle",   "beim Schließen", "vor dem Druck",      "je Filiale",   "in Höhe von",     "zum Stichtag",
    "laut Vereinbarung", "im Archiv",      "mit Rückfrage",      "der Übertrag", "die Währung",     "ist gesperrt"};

// {B} is a nested body, {L} {S} {I} local variables (Long, String, of a loop), {M} {K} a variable and a constant of the
// module, {C} a call, {T} {F} names of the database, {W} words, {N} a number.
constexpr std::array<string_view, 34> kStatements = {
    "{L} = {L} + {N}",
    "{L} = {M} * {N} + {L}",
    "{L} = {C}",
    "{M} = {C}",
    "{S} = Trim$({S}) & \" {W}\"",
    "{S} = Mid$({S}, {N}) & vbCrLf & {S}",
    "{S} = Replace({S}, \"{W}\", \"{W} {W}\")",
    "{S} = \"SELECT {F}, {F} FROM {T} WHERE {F} = \" & {L}",
    "{S} = \"UPDATE {T} SET {F} = \" & {L} & \" WHERE {F} > {N}\"",
    "CurrentDb.Execute {S}, dbFailOnError",
    "{L} = Nz(DLookup(\"{F}\", \"{T}\", \"{F} = \" & {L}), {K})",
    "{L} = DCount(\"*\", \"{T}\", \"{F} = '\" & {S} & \"'\")",
    "DoCmd.OpenForm \"frm{F}\", acNormal, , \"{F} = \" & {L}",
    "' {W} {W} {W}",
    "' {W} {W}, {W}",
    "{L} = {L} + 1    ' {W}",
    "If {L} > {K} Then {L} = {N}",
    "If {L} > {N} Then\n    {B}\nEnd If",
    "If {L} = {K} And {M} <> {N} Then\n    {B}\nEnd If",
    "If Len({S}) = 0 Then\n    {B}\nElse\n    {B}\nEnd If",
    "If InStr({S}, \"{F}\") > 0 Then\n    {B}\nElseIf {L} >= {N} Then\n    {B}\nEnd If",
    "For {I} = 1 To {N}\n    {B}\nNext {I}",
    "For {I} = 0 To {K}\n    {B}\nNext {I}",
    "Do While {L} < {N}\n    {B}\n    {L} = {L} + 1\nLoop",
    "Select Case {L}\n    Case 1, {N}\n        {B}\n    Case Is > {K}\n        {B}\n    Case Else\n        {B}\nEnd "
    "Select",
    "With CurrentDb.OpenRecordset(\"{T}\", dbOpenSnapshot)\n    Do Until .EOF\n        {L} = {L} + Nz(!{F}, 0)\n       "
    " "
    ".MoveNext\n    Loop\n    .Close\nEnd With",
    "MsgBox \"{W} {W} \" & {L} & \".\", _\n       vbInformation, \"{F}\"",
    "{S} = Format$(Date, \"dd.mm.yyyy\") & \";\" & _\n    {S} & \";\" & _\n    {L}",
    "SysCmd acSysCmdSetStatus, \"{W}: \" & {L}",
    "{S} = Left$({S}, {N}) & Right$({S}, 1) & Space$({K})",
    "{L} = CLng(Val({S}))",
    "\n",
    "\n",
    "' {W} {W} {W} {W}"};

// What a review would find: about one statement in sixty.
constexpr std::array<string_view, 7> kSlips = {
    "Debug.Print {S}, {L}",        "{S} = Left({S}, {N})", "{S} = \"\"", "{L} = IIf({L} > {N}, 1, {L})",
    "{L} = {N}: {S} = Trim$({S})", "Let {L} = {N}",        "Stop"};

string NameOfFunction(int number) {
    const auto n = static_cast<std::size_t>(number);
    const string base = string(kVerbs[n % 20]) + string(kNouns[n / 20 % 32]) + string(kNouns[n / 640 % 32]);
    return n < 20480 ? base : base + std::to_string(n / 20480);
}

bool IsStandardModule(int number) {
    return number % 5 < 3;
}

string NameOfModule(int number) {
    const auto n = static_cast<std::size_t>(number);
    const string noun = string(kNouns[n % 32]) + string(kNouns[n / 32 % 32]);
    if (IsStandardModule(number)) return "mdl" + noun + std::to_string(number);
    return (number % 5 == 3 ? "cls" : "Form_") + noun + std::to_string(number);
}

class ModuleWriter {
  public:
    ModuleWriter(int number, Random& random) : number_(number), random_(random), name_(NameOfModule(number)) {}

    Module Write(int wantedLines) {
        WriteHeader();
        WriteDeclarations();
        for (int procedure = 0; module_.lines < wantedLines || procedure < kFunctionsPerModule; ++procedure) {
            WriteProcedure(procedure);
        }
        module_.fileName = name_ + (IsStandardModule(number_) ? ".bas" : ".cls");
        return std::move(module_);
    }

  private:
    void Line(string_view text = {}) {
        module_.text.append(text).append("\r\n");
        ++module_.lines;
    }

    void WriteHeader() {
        const bool form = number_ % 5 == 4;
        if (!IsStandardModule(number_)) {
            for (const auto* line : {"VERSION 1.0 CLASS", "BEGIN", "  MultiUse = -1  'True", "END"}) Line(line);
        }
        Line("Attribute VB_Name = \"" + name_ + "\"");
        if (IsStandardModule(number_)) return;
        Line("Attribute VB_GlobalNameSpace = False");
        Line("Attribute VB_Creatable = False");
        Line(form ? "Attribute VB_PredeclaredId = True" : "Attribute VB_PredeclaredId = False");
        Line(form ? "Attribute VB_Exposed = True" : "Attribute VB_Exposed = False");
    }

    void WriteDeclarations() {
        Line("Option Compare Database");
        Line("Option Explicit");
        Line();
        Line(Filled("' {W} {W} {W} {W}"));
        for (const string_view noun : ModuleNouns()) {
            Line("Private Const clng" + string(noun) + " As Long = " + std::to_string(1 + random_.Below(400)));
        }
        for (const string_view noun : ModuleNouns()) Line("Private mlng" + string(noun) + " As Long");
        Line();
    }

    // The four nouns that name this module's constants and variables.
    std::array<string_view, 4> ModuleNouns() const {
        const auto first = static_cast<std::size_t>(number_) * 4;
        return {kNouns[first % 32], kNouns[(first + 1) % 32], kNouns[(first + 2) % 32], kNouns[(first + 3) % 32]};
    }

    // The first procedures of a standard module are the functions that other modules call.
    void WriteProcedure(int index) {
        const bool called = IsStandardModule(number_) && index < kFunctionsPerModule;
        const string noun(random_.Pick(kNouns));
        const string name = called ? NameOfFunction(number_ * kFunctionsPerModule + index)
                                   : string(random_.Pick(kVerbs)) + noun + "_" + std::to_string(index);
        const string kind = called ? "Function" : "Sub";
        locals_ = {};
        depth_ = 0;
        const string body = Body("    ", 6 + random_.Below(14));

        Line(Filled("' {W} {W} {W}"));
        Line((called ? "Public " : "Private ") + kind + " " + name +
             "(ByVal lngVorgabe As Long, ByVal strVorgabe As String)" + (called ? " As Long" : ""));
        Line("    On Error GoTo Fehler");
        Line();
        for (const string& local : locals_) Line("    Dim " + local);
        if (random_.OneIn(20)) Line("    Dim lngReserve As Long");
        Line();
        Append(body);
        Line(called ? "    " + name + " = lngVorgabe + Len(strVorgabe)"
                    : "    mlng" + string(ModuleNouns()[0]) + " = lngVorgabe + Len(strVorgabe)");
        Line();
        Line("Ende:");
        Line("    Exit " + kind);
        Line();
        Line("Fehler:");
        Line("    MsgBox Err.Number & \": \" & Err.Description, vbExclamation, \"" + name_ + "." + name + "\"");
        Line("    Resume Ende");
        Line("End " + kind);
        Line();
    }

    void Append(string_view lines) {
        for (std::size_t begin = 0; begin < lines.size();) {
            const std::size_t end = lines.find('\n', begin);
            Line(lines.substr(begin, end - begin));
            begin = end + 1;
        }
    }

    // Statements, each line behind `indent` and ended by LF.
    string Body(const string& indent, std::size_t statements) {
        string text;
        for (; statements > 0; --statements) {
            AppendStatement(random_.OneIn(60) ? random_.Pick(kSlips) : random_.Pick(kStatements), indent, text);
        }
        return text;
    }

    void AppendStatement(string_view statement, const string& indent, string& text) {
        if (depth_ >= 3 && statement.find("{B}") != string_view::npos) statement = "{L} = {L} + {N}";
        ++depth_;
        while (!statement.empty()) {
            const std::size_t end = std::min(statement.find('\n'), statement.size());
            const string_view line = statement.substr(0, end);
            statement.remove_prefix(std::min(end + 1, statement.size()));
            const std::size_t blanks = std::min(line.find_first_not_of(' '), line.size());
            const string deeper = indent + string(blanks, ' ');
            if (line.substr(blanks) == "{B}") {
                text += Body(deeper, 1 + random_.Below(3));
            } else if (line.empty()) {
                text += '\n';
            } else {
                text += deeper + Filled(line.substr(blanks)) + '\n';
            }
        }
        --depth_;
    }

    string Filled(string_view line) {
        string text;
        for (std::size_t gap = line.find('{'); gap != string_view::npos; gap = line.find('{')) {
            text.append(line.substr(0, gap)).append(Filling(line[gap + 1]));
            line.remove_prefix(gap + 3);
        }
        return text.append(line);
    }

    string Filling(char gap) {
        switch (gap) {
            case 'L':
                return Local("lng", "Long");
            case 'S':
                return Local("str", "String");
            case 'I':
                locals_.insert("lngLauf" + std::to_string(depth_) + " As Long");
                return "lngLauf" + std::to_string(depth_);
            case 'M':
                return "mlng" + string(random_.Pick(ModuleNouns()));
            case 'K':
                return "clng" + string(random_.Pick(ModuleNouns()));
            case 'C':
                return Call();
            case 'T':
                return "tbl" + string(random_.Pick(kNouns)) + string(random_.Pick(kNouns));
            case 'F':
                return string(random_.Pick(kNouns)) + "Nr";
            case 'W':
                return string(random_.Pick(kWords));
            default:
                return std::to_string(2 + random_.Below(98));
        }
    }

    // One of three variables of its kind, which the procedure then declares.
    string Local(const string& prefix, const string& type) {
        const string name = prefix + string(kNouns[(random_.Below(3) + module_.text.size()) % 32]);
        locals_.insert(name + " As " + type);
        return name;
    }

    string Call() {
        int module = static_cast<int>(random_.Below(static_cast<std::size_t>(number_) + 1));
        while (!IsStandardModule(module)) --module;
        const int function = module * kFunctionsPerModule + static_cast<int>(random_.Below(kFunctionsPerModule));
        return NameOfFunction(function) + "(" + Local("lng", "Long") + ", " + Local("str", "String") + ")";
    }

    int number_;
    Random& random_;
    string name_;
    Module module_;
    std::set<string> locals_;  // of the procedure under way: "name As type"
    int depth_ = 0;
};

}  // namespace

std::size_t Random::Below(std::size_t bound) {
    state_ += 0x9E3779B97F4A7C15U;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return static_cast<std::size_t>((z ^ (z >> 31)) % bound);
}

Module WriteModule(int number, int wantedLines, Random& random) {
    return ModuleWriter(number, random).Write(wantedLines);
}

}  // namespace zentlor::bench
