#pragma once

// The studio's own words in German and English: what its menus, windows and notices say. The words of the pane and of
// its dialogs are the add-in's own.

#include <QString>

namespace zentlor::studio {

enum class Word {
#define WORD(name, german, english) name,
#include "studio/words.def"
#undef WORD
};

/// Speaks one language at a time.
class Words {
  public:
    /// `language`: the stored index, 2 for English; anything else is German.
    void SetLanguage(int language) { english_ = language == 2; }
    bool English() const { return english_; }

    QString operator()(Word word) const;
    /// A number with its word, "1 Zeile" or "3.708 Zeilen"; `many` has the mark for the number.
    QString Counted(int number, Word one, Word many) const;
    /// The language's half of a sentence that comes in both.
    template <class Sentence>
    QString Of(const Sentence& sentence) const {
        return QString::fromStdString(english_ ? sentence.english : sentence.german);
    }

  private:
    bool english_ = false;
};

}  // namespace zentlor::studio
