#include "core/scanning/comments_and_strings.h"

#include <algorithm>

#include "core/scanning/logical_lines.h"
#include "core/utilities/character_blocks.h"

namespace zentlor {

namespace {

constexpr TextView kModule = u"mdl_PrüfungenHilfe";
constexpr char16_t kQuote = u'"';
constexpr TextView kRemAtStart = u"Rem ";
constexpr TextView kRemBehindColon = u": Rem";
constexpr std::size_t kNone = TextView::npos;

// Offset of the first of `wanted` that stands outside of strings and for which `matches` holds.
template <class Matches, class... Characters>
std::size_t FindUnquoted(TextView text, bool quoted, Matches matches, Characters... wanted) {
    for (std::size_t i = 0;; ++i) {
        i = quoted ? FindAny(text, i, kQuote) : FindAny(text, i, kQuote, wanted...);
        if (i == text.size()) return kNone;
        if (text[i] == kQuote) {
            quoted = !quoted;
        } else if (matches(i)) {
            return i;
        }
    }
}

std::size_t FindMark(TextView text, bool quoted) {
    const auto isMark = [text](std::size_t i) {
        return text[i] == u'\'' || text.substr(i).starts_with(kRemBehindColon);
    };
    return FindUnquoted(text, quoted, isMark, u'\'', u':');
}

bool HasOddQuotes(TextView text) {
    return std::count(text.begin(), text.end(), kQuote) % 2 != 0;
}

}  // namespace

bool IstPosInQuotes(TextView strZeile, int lngPos) {
    return QuoteCounter(strZeile).IsQuoted(lngPos);
}

bool QuoteCounter::IsQuoted(int column) {
    const auto end = std::min(text_.size(), static_cast<std::size_t>(std::max(column, 1) - 1));
    const auto [from, to] = std::minmax(read_, end);
    odd_ = odd_ != HasOddQuotes(text_.substr(from, to - from));
    read_ = end;
    return odd_;
}

bool LogicalLineQuotes::IsQuoted(int line, int column) {
    if (line != line_) {
        const LineStep step = StepTo(cm_, line_, line);
        if (!step.goesOn) odd_ = false;
        for (line_ = step.first; line_ < line; ++line_) odd_ = odd_ != HasOddQuotes(cm_.Lines(line_));
        quotes_ = QuoteCounter(cm_.Lines(line));
    }
    return odd_ != quotes_.IsQuoted(column);
}

int PosErsterDoppelPunkt(TextView strZeile) {
    const std::size_t colon = FindUnquoted(
        strZeile, false, [](std::size_t) { return true; }, u':');
    return colon == kNone ? 0 : static_cast<int>(colon) + 1;
}

TextView KommentarEntfernen(TextView strZeile) {
    if (strZeile.starts_with(kRemAtStart)) return {};
    // Whichever of the two marks comes first ends the text: what stands behind it is looked at by neither.
    return Trim(strZeile.substr(0, FindMark(strZeile, false)));
}

bool IstPosInKommentar(const CodeModule& cm, int lngZeile, int lngSpalte) {
    bool result = false;
    Frame(cm.Parent().Project().Failures(), {kModule, u"IstPosInKommentar", cm.Parent().Name()},
          [&] { result = CommentScanner(cm).MarkColumn(lngZeile) < lngSpalte; });
    return result;
}

// Brings the joined text up to the end of the line in front of `line`.
void CommentScanner::MoveTo(int line) {
    const LineStep step = StepTo(cm_, next_, line);
    if (!step.goesOn) {
        tail_.clear();
        start_.clear();
        quoted_ = comment_ = false;
    }
    for (next_ = step.first; next_ < line; ++next_) {
        const TextView text = Trim(cm_.Lines(next_));
        const TextView piece = text.substr(0, text.size() - 1);
        if (start_.size() < kRemAtStart.size()) start_.append(piece.substr(0, kRemAtStart.size()));
        tail_.append(piece);
        if (FindMark(tail_, quoted_) != kNone) comment_ = true;
        // The last characters can be the start of a mark that the next line completes.
        const std::size_t settled = tail_.size() - std::min(tail_.size(), kRemBehindColon.size() - 1);
        quoted_ = quoted_ != HasOddQuotes(TextView(tail_).substr(0, settled));
        tail_.erase(0, settled);
    }
}

int CommentScanner::MarkColumn(int line) {
    const TextView text = cm_.Lines(line);
    const TextView trimmed = LTrim(text);
    MoveTo(line);
    if (comment_) return 0;
    const int indent = static_cast<int>(text.size() - trimmed.size());
    if (start_.empty() && tail_.empty()) {
        if (trimmed.starts_with(kRemAtStart)) return 0;
        const std::size_t mark = FindMark(trimmed, false);
        return mark == kNone ? kNoComment : static_cast<int>(mark) + indent + 1;
    }
    if ((start_ + Text(trimmed.substr(0, kRemAtStart.size()))).starts_with(kRemAtStart)) return 0;
    const std::size_t mark = FindMark(tail_ + Text(trimmed), quoted_);
    return mark == kNone ? kNoComment : static_cast<int>(mark) - Len(tail_) + indent + 1;
}

}  // namespace zentlor
