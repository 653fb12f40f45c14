#pragma once

// Logical lines: physical lines joined where the trimmed line ends in "_". Neither a blank in front of the mark nor the
// kind of the line matters here, so that a comment is joined like a statement. A joined line loses its last character,
// the mark, and nothing else of what trimming left.

#include <utility>

#include "core/analysis/source_model.h"

namespace zentlor {

/// A logical line or a part of one. What stands in one physical line is not copied: valid as long as the module.
class LogicalText {
  public:
    LogicalText() = default;
    explicit LogicalText(TextView line) : line_(line) {}
    explicit LogicalText(Text joined) : joined_(std::move(joined)), isJoined_(true) {}

    TextView View() const { return isJoined_ ? TextView(joined_) : line_; }
    operator TextView() const { return View(); }
    friend bool operator==(const LogicalText& a, TextView b) { return a.View() == b; }

  private:
    TextView line_;
    Text joined_;
    bool isJoined_ = false;
};

/// Whether the scanners join this physical line to the next one.
bool EndsInMark(TextView line);

/// How a reader of lines comes to a line.
struct LineStep {
    int first = 0;        ///< the line to read next
    bool goesOn = false;  ///< it is continued from lines that were read already; else it begins a logical line
};
/// For a reader who has read the lines in front of `next`, or nothing if that is 0, and wants all of the logical line
/// in front of `line`. Linear over questions in ascending order; going back starts anew.
LineStep StepTo(const CodeModule& cm, int next, int line);

/// The logical line that physical line `lngZeile` is part of, whichever part that is.
/// `lngAnzahl` receives how many physical lines were joined, those in front of `lngZeile` included.
/// If a read fails the text is empty, and `lngAnzahl` stays as far as it got.
LogicalText GibGanzeZeile(const VBComponent& vbc, int lngZeile, int& lngAnzahl);

/// The logical line from its start up to and including physical line `lngZeile`, whose trailing blanks and mark stay.
/// `lngSpalte` is a column of that physical line, and becomes the column of the same character in the result.
Text GibGanzeZeileVorh(const CodeModule& cm, int lngZeile, int& lngSpalte);

/// The rest of the logical line from column `lngSpalte` of physical line `lngZeile` on. `lngAnzahl` receives the number
/// of physical lines from `lngZeile` to the end of the logical line.
LogicalText GibGanzeZeileBisEnde(const VBComponent& vbc, int lngZeile, int lngSpalte, int& lngAnzahl);

/// Whether the text that GibGanzeZeileVorh joins has at least `least` characters in front of this place, the last of
/// which are `expected`. `least` is at least the length of `expected`. Reads no more lines than it needs.
bool StandsBehind(const CodeModule& cm, int lngZeile, int lngSpalte, TextView expected, int least);

}  // namespace zentlor
