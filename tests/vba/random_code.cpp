#include "random_code.h"

#include <cctype>

#include "vba/tokenizer.h"

namespace zentlor::test {

using vba::Operator;
using vba::Token;
using vba::TokenKind;
using vba::Tokens;

namespace {

class Writer {
  public:
    explicit Writer(Random& random) : random_(random) {}

    Text Statement() {
        switch (random_() % 16) {
            case 0:
                return u"Dim " + Name() + u" As Long, " + Name() + u"() As String";
            case 1:
                return u"If " + Expression() + u" Then " + Simple() + u" Else " + Simple();
            case 2:
                return u"For " + Name() + u" = 1 To " + Operand(2) + u" Step -1";
            case 3:
                return u"Call " + Name() + u"(" + List() + u")";
            case 4:
                return u"Open " + Expression() + u" For Binary Access Read As #1 Len = 5";
            case 5:
                return u"Print #1, " + Expression() + u"; " + Expression() + u";";
            case 6:
                return u"Select Case " + Expression();
            case 7:
                return u"Case Is >= " + Operand(1) + u", 1 To 5, \"a\"";
            case 8:
                return u"Marke: " + Simple();
            case 9:
                return Simple() + u": " + Simple() + u" ' Bemerkung:  x";
            case 10:
                return u"On Error GoTo Marke";
            case 11:
                return u"Line Input #1, " + Name();
            case 12:
                return u"Me.Line (0, 0)-(" + Operand(1) + u", 1), , BF";
            case 13:
                return u"Set " + Name() + u" = New Collection";
            case 14:
                return u"ReDim Preserve " + Name() + u"(1 To " + Operand(1) + u") As Long";
            default:
                return Simple();
        }
    }

  private:
    Text Name() { return Text(RandomNames()[random_() % RandomNames().size()]); }

    // A name that begins a statement: no contextual keyword, which would rule the statement.
    Text Callee() { return Text(RandomNames()[random_() % 5]); }

    Text Simple() {
        switch (random_() % 8) {
            case 0:
                return Callee() + u" " + List();
            case 1:
                return Callee() + u"." + Name() + u" " + Name() + u":=" + Operand(2) + u", Item:=-1";
            case 2:
                return Callee() + u" (" + Expression() + u"), " + Operand(1);
            case 3:
                return u"Debug.Print " + Expression() + u"; " + Operand(2);
            case 4:
                return Callee() + u" , " + Operand(1);
            case 5:
                return Callee() + u" -" + Name();
            default:
                return Name() + (random_() % 2 == 0 ? u"" : u"(1)") + u" = " + Expression();
        }
    }

    Text List() { return Operand(2) + u", " + Expression() + u", , " + Operand(1); }

    Text Expression(int depth = 3) {
        static const TextView kOperators[] = {u"+", u"-",  u"*",   u"/",  u"\\",   u"^",   u"&",   u"=",  u"<>",
                                              u"<", u">=", u"And", u"Or", u"Like", u"Mod", u"Xor", u"Is", u"Imp"};
        if (depth == 0 || random_() % 3 == 0) return Operand(depth);
        return Operand(depth - 1) + u" " + Text(kOperators[random_() % std::size(kOperators)]) + u" " +
               Expression(depth - 1);
    }

    Text Operand(int depth) {
        switch (random_() % (depth > 0 ? 13 : 7)) {
            case 0:
                return u"\"a \"\" 'b\"";
            case 1:
                return u"&HFF&";
            case 2:
                return u"1.5E-3";
            case 3:
                return u"#1/31/2000 5:00:00 PM#";
            case 4:
                return u"vbNullString";
            case 5:
                return u"[Ein Feld]";
            case 6:
                return Name();
            case 7:
                return Name() + u"." + Name() + u"!" + Name();
            case 8:
                return u"Left$(" + Expression(depth - 1) + u", 2)";
            case 9:
                return u"(" + Expression(depth - 1) + u")";
            case 10:
                return u"IIf(Not " + Operand(depth - 1) + u", -" + Operand(depth - 1) + u", , True)";
            case 11:
                return u"CLng(" + Expression(depth - 1) + u")";
            default:
                return Name() + u"(" + Expression(depth - 1) + u", " + Name() + u"%)";
        }
    }

    Random& random_;
};

bool IsFixed(const Token& token) {
    return token.kind == TokenKind::String || token.kind == TokenKind::Comment || token.kind == TokenKind::Date ||
           token.Has(vba::kBracketed);
}

// Blanks around these are never needed to tell the tokens apart.
bool IsLoose(const Token& token) {
    switch (token.op()) {
        case Operator::Times:
        case Operator::Divide:
        case Operator::IntegerDivide:
        case Operator::Equal:
        case Operator::NotEqual:
        case Operator::GreaterEqual:
        case Operator::Comma:
        case Operator::Semicolon:
        case Operator::CloseParenthesis:
            return true;
        default:
            return false;
    }
}

bool Clings(const Token& token) {
    switch (token.op()) {
        case Operator::Dot:
        case Operator::Bang:
        case Operator::Hash:
        case Operator::Concatenate:
        case Operator::Power:
            return true;
        default:
            return false;
    }
}

Text Blanks(Random& random, std::size_t least) {
    Text blanks;
    for (std::size_t count = least + random() % 3; count > 0; --count) blanks += random() % 4 == 0 ? u'\t' : u' ';
    return blanks;
}

// The blanks to put between the tokens `before` and `token`, which now stand `present` apart.
Text ScrambledGap(const Token& before, const Token& token, TextView present, Random& random) {
    const bool isKept = token.Is(vba::Keyword::As) || token.kind == TokenKind::Comment || before.Is(Operator::Colon) ||
                        token.kind == TokenKind::EndOfLine || token.kind == TokenKind::EndOfText ||
                        before.kind == TokenKind::Comment || before.kind == TokenKind::EndOfLine;
    if (isKept) return Text(present);
    if (present.empty()) return Clings(before) || Clings(token) ? Text() : Blanks(random, 0);
    return Blanks(random, IsLoose(before) || IsLoose(token) ? 0 : 1);
}

}  // namespace

const std::vector<TextView>& RandomNames() {
    static const std::vector<TextView> kNames = {u"Zähler", u"strName", u"Wert", u"Prüfen", u"Marke",  u"GRÖSSE_2",
                                                 u"name",   u"lngI",    u"rs",   u"Text",   u"Anzahl", u"BF"};
    return kNames;
}

Text RandomProcedure(Random& random, int statements) {
    Writer writer(random);
    Text code = u"Private Sub Prüfen()\n";
    for (int i = 0; i < statements; ++i) {
        const Text statement = writer.Statement();
        code += statement.starts_with(u"Marke") ? u"" : u"    ";
        code += statement + u"\n";
    }
    return code + u"End Sub\n";
}

Text Scramble(TextView canonical, Random& random) {
    const Tokens tokens = vba::Tokenize(canonical);
    Text scrambled;
    Token before;
    before.kind = TokenKind::EndOfLine;
    for (const Token& token : tokens) {
        const TextView present = canonical.substr(before.End(), token.offset - before.End());
        scrambled += ScrambledGap(before, token, present, random);
        for (char16_t c : vba::TextOf(token, canonical)) {
            const bool mayChange = !IsFixed(token) && c < 128 && random() % 2 == 0;
            if (mayChange) c = static_cast<char16_t>(std::islower(c) != 0 ? std::toupper(c) : std::tolower(c));
            scrambled += c;
        }
        before = token;
    }
    return scrambled;
}

}  // namespace zentlor::test
