#pragma once

// Colours for VBA code, by the tokens of the whole module: a comment that goes on in the next line and a word that is a
// keyword only in its place come out right.

#include <QSyntaxHighlighter>
#include <array>

#include "vba/token.h"

namespace zentlor::studio {

enum class CodeColour { Plain, Keyword, Comment, String, Number, Unknown };

/// A coloured stretch of a line, columns counted from 0.
struct Stretch {
    int start = 0;
    int length = 0;
    CodeColour colour = CodeColour::Plain;
};

/// The stretches of each line of `code` that are not plain. Lines end in LF.
std::vector<std::vector<Stretch>> ColourStretches(TextView code);

class Highlighter : public QSyntaxHighlighter {
  public:
    Highlighter(QTextDocument* document, const QPalette& palette);
    /// For the text that the document is about to receive.
    void SetCode(TextView code) { lines_ = ColourStretches(code); }
    /// Takes colours that can be read on the palette's base.
    void SetPalette(const QPalette& palette);

  protected:
    void highlightBlock(const QString& text) override;

  private:
    std::vector<std::vector<Stretch>> lines_;
    std::array<QTextCharFormat, 6> formats_;
};

}  // namespace zentlor::studio
