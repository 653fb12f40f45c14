#pragma once

// The words of the command line that the message catalogue does not hold, and the escaping of what comes out of files.

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/utilities/text.h"
#include "readers/document.h"

namespace zentlor::cli {

/// The sentence in the language with this index (see messages.h); German for all but English.
const std::string& InLanguage(const readers::Sentence& sentence, int sprache);

/// The German or the English text with "[%1]", "[%2]" … replaced by `values`.
std::string Say(int sprache, std::string_view german, std::string_view english,
                std::initializer_list<std::string> values = {});

struct Forms {
    const char* one;
    const char* many;
};

/// A number with its word: "1 Modul", "2 Module".
std::string Counted(std::size_t number, int sprache, Forms german, Forms english);

/// UTF-8 of a text for a terminal: control characters, and marks that turn the direction of writing, as \u{…}.
std::string Printable(TextView text);
std::string Printable(const std::string& utf8);

/// Writes a line on standard error. One that cannot be written is lost; the exit code tells all the same.
void Tell(const std::string& line);

/// `utf8` without the difference of capitals and small letters, for comparisons.
Text Folded(const std::string& utf8);

/// The known word that is nearest to `word` by the letters that differ, whatever their case; empty if more than half of
/// them do.
std::string NearestWord(const std::string& word, const std::vector<std::string>& known);

}  // namespace zentlor::cli
