#pragma once

// What is code, and what is a comment or a string. Nothing is parsed here: strings are told by counting quotation
// marks, comments by the three marks "Rem " at the very start, "'" and ": Rem", and statements are what lies between
// colons.

#include "core/analysis/source_model.h"

namespace zentlor {

/// Whether an odd number of quotation marks stands in `strZeile` in front of column `lngPos`.
bool IstPosInQuotes(TextView strZeile, int lngPos);

/// Column of the first ":" outside of quotation marks, 0 if there is none.
int PosErsterDoppelPunkt(TextView strZeile);

/// A logical line without its comment, trimmed; empty for a "Rem " line. Views `strZeile`.
TextView KommentarEntfernen(TextView strZeile);

/// Whether column `lngSpalte` of physical line `lngZeile` lies in a comment, the lines continued in front of it
/// included. False if a read fails.
bool IstPosInKommentar(const CodeModule& cm, int lngZeile, int lngSpalte);

/// The quotation marks of one text. A question reads what lies between its column and that of the question before.
class QuoteCounter {
  public:
    explicit QuoteCounter(TextView text) : text_(text) {}
    /// As IstPosInQuotes(text, column).
    bool IsQuoted(int column);

  private:
    TextView text_;
    std::size_t read_ = 0;
    bool odd_ = false;
};

/// Whether a place of a physical line lies in a string of its logical line, as GibGanzeZeileVorh joins it. For
/// questions in ascending order each line is read once.
class LogicalLineQuotes {
  public:
    explicit LogicalLineQuotes(const CodeModule& cm) : cm_(cm), quotes_({}) {}
    bool IsQuoted(int line, int column);

  private:
    const CodeModule& cm_;
    int line_ = 0;
    bool odd_ = false;  ///< of the marks in front of line_
    QuoteCounter quotes_;
};

/// The comment marks of a module's lines. For questions in ascending order a logical line is read once, however many
/// lines and hits it has.
class CommentScanner {
  public:
    explicit CommentScanner(const CodeModule& cm) : cm_(cm) {}

    static constexpr int kNoComment = 0x7FFFFFFF;
    /// What lies behind this column of `line` is in a comment: 0 or less if the comment began on a line in front of it,
    /// kNoComment if there is none. Throws SubscriptOutOfRange for a line that does not exist.
    int MarkColumn(int line);

  private:
    void MoveTo(int line);

    const CodeModule& cm_;
    int next_ = 0;          ///< the line behind those that are joined
    Text tail_;             ///< joined and not yet settled: a mark may go on behind its end
    bool quoted_ = false;   ///< whether tail_ begins inside of a string
    bool comment_ = false;  ///< a mark was found in front of tail_
    Text start_;            ///< the first characters of the logical line
};

/// The statement loop: `visit` gets each statement of a logical line whose comment is removed. A blank in front of a
/// colon stays at its statement's end. An empty line gives one empty statement.
template <class Visit>
void ForEachStatement(TextView logicalLine, Visit visit) {
    TextView rest = logicalLine;
    do {
        const int colon = PosErsterDoppelPunkt(rest);
        visit(colon > 0 ? rest.substr(0, static_cast<std::size_t>(colon - 1)) : rest);
        rest = colon > 0 ? Trim(Mid(rest, colon + 1)) : TextView();
    } while (!rest.empty());
}

}  // namespace zentlor
