#pragma once

// Does a name occur in code, only in comments, or nowhere? The answers are ordered, so that over several searches the
// largest one wins.

#include <algorithm>

#include "core/scanning/find_walk.h"

namespace zentlor {

enum UseResult {
    kNotUsed = 0,
    kUsedInComments = 1,  ///< at least one whole word in a comment, none in code
    kUsed = 2,            ///< a whole word in code, outside of comments and strings
};

/// Whether a character continues a word for this search: the letters of both cases, "ß", the umlauts, "€", "§", the
/// digits and "_". Other letters end a word here.
bool IstWortFortsetzungsZeichen(char16_t zeichen);

/// Whether the match of `strAusdruck` at this place stands as a whole word.
bool IstTrefferGanzesWort(const CodeModule& cm, TextView strAusdruck, int lngZeile, int lngSpalte);

/// Searches the component from a place on to its end; line 0 stands for the line behind the declaration section.
/// After a failure: the result reached so far. `filter` is one over `vbc` with which further searches may go on: where
/// one line holds the uses of many names, it is read once.
int WirdAusdruckInModulVerwendet(const VBComponent& vbc, HitFilter& filter, TextView strAusdruck, int lngZeile,
                                 int lngSpalte);

/// Searches from one column behind the given place up to line `lngEndZeile`.
int WirdAusdruckInProzedurVerwendet(const VBComponent& vbc, HitFilter& filter, TextView strAusdruck, int lngZeile,
                                    int lngSpalte, int lngEndZeile);

/// Up to `lngAnzahl` characters of physical line `lngZeile` behind column `lngSpalte`.
TextView GibNaechsteZeichen(const CodeModule& cm, int lngZeile, int lngSpalte, int lngAnzahl);

/// The project sweep: the largest result of `useIn` over the components of the project, in the editor's order, up to
/// the first kUsed. `useIn` has to be a search for `strAusdruck`: components in which its first word does not occur are
/// not asked, since their answer is kNotUsed.
template <class UseIn>
int SweepProject(const VBProject& project, TextView strAusdruck, UseIn useIn) {
    int result = kNotUsed;
    const auto& components = project.VBComponents();
    const WordIndex& words = project.Words();
    const LeadingWord anchor = words.FindLeading(strAusdruck);
    if (anchor.length == 0) {
        for (std::size_t i = 0; i < components.size() && result != kUsed; ++i) {
            result = std::max(result, useIn(*components[i]));
        }
        return result;
    }
    const std::span<const Place> places = words.PlacesOf(anchor.number);
    for (auto place = places.begin(); place != places.end() && result != kUsed;) {
        const std::size_t module = words.ModuleOf(*place);
        result = std::max(result, useIn(*components[module]));
        place = std::lower_bound(place, places.end(), words.StartOf(module + 1));
    }
    return result;
}

}  // namespace zentlor
