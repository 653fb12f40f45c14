#include "core/scanning/parameters.h"

#include <algorithm>
#include <array>

#include "core/scanning/comments_and_strings.h"
#include "core/scanning/next_column.h"

namespace zentlor {

namespace {

constexpr TextView kTypeCharacters = u"&%$!#@";
constexpr std::array<TextView, 4> kModifiers = {u"ByVal", u"ByRef", u"Optional", u"ParamArray"};

bool IsModifier(TextView word) {
    return std::find(kModifiers.begin(), kModifiers.end(), word) != kModifiers.end();
}

// The words of a list run from a column up to a blank. The column always grows.
class ParameterReader {
  public:
    explicit ParameterReader(TextView header)
        : header_(header),
          blanks_(header, u' '),
          commas_(header, u','),
          types_(header, u"As "),
          quotes_(header),
          column_(InStr(1, header, u'(') + 1),
          end_(PosEndeParameter(header)) {}

    bool AtEnd() const { return column_ >= end_; }

    // False at an empty word, which ends the list.
    bool Read(typParameter& parameter) {
        int blank = blanks_.From(column_ + 1);
        if (blank == 0 || blank > end_) blank = end_;
        TextView word = Word(blank);
        if (word.empty()) return false;
        while (IsModifier(word)) {
            if (word != u"Optional") parameter.blnByValByRef = true;
            column_ = blank;
            blank = blanks_.From(column_ + 1);
            if (blank == 0) blank = end_;
            word = Word(blank);
        }
        parameter.strName = NameOf(word);
        const int comma = NextComma();
        const int as = types_.From(column_ + 1 + Len(parameter.strName));
        parameter.blnKennzeichen = EndsInTypeCharacter(parameter.strName);
        parameter.blnDatentyp = parameter.blnKennzeichen || (as != 0 && as <= comma);
        column_ = comma + 1;
        return true;
    }

  private:
    TextView Word(int blank) const { return Trim(Mid(header_, column_, blank - column_)); }

    static TextView NameOf(TextView word) {
        if (word.ends_with(u',')) word.remove_suffix(1);
        if (word.ends_with(u')')) word.remove_suffix(1);
        return word.substr(0, word.find(u'('));
    }

    int NextComma() {
        for (int comma = commas_.From(column_); comma != 0; comma = commas_.From(comma + 1)) {
            if (!quotes_.IsQuoted(comma)) return comma;
        }
        return end_;
    }

    TextView header_;
    NextColumn<char16_t> blanks_;
    NextColumn<char16_t> commas_;
    NextColumn<TextView> types_;
    QuoteCounter quotes_;
    int column_;
    int end_;
};

}  // namespace

std::vector<typParameter> GetParameters(TextView strZeile) {
    std::vector<typParameter> table;
    const auto commas = std::count(strZeile.begin(), strZeile.end(), u',');
    table.reserve(static_cast<std::size_t>(commas) + 1);  // growing would hold a long list twice
    ParameterReader reader(strZeile);
    while (!reader.AtEnd()) {
        typParameter parameter;
        if (!reader.Read(parameter)) break;
        table.push_back(parameter);
    }
    return table;
}

int PosEndeParameter(TextView strZeile) {
    int depth = 1;
    for (int column = InStr(1, strZeile, u'(') + 1; column <= Len(strZeile); ++column) {
        const char16_t c = strZeile[static_cast<std::size_t>(column - 1)];
        if (c == u'(') ++depth;
        if (c == u')' && --depth == 0) return column;
    }
    return 0;
}

bool IstEreignisProzedur(TextView strName) {
    return strName.find(u'_') != TextView::npos;
}

bool EndsInTypeCharacter(TextView name) {
    return !name.empty() && kTypeCharacters.find(name.back()) != TextView::npos;
}

TextView WithoutTypeCharacter(TextView name) {
    return EndsInTypeCharacter(name) ? name.substr(0, name.size() - 1) : name;
}

}  // namespace zentlor
