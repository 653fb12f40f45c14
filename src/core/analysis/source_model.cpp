#include "core/analysis/source_model.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "core/utilities/character_blocks.h"

namespace zentlor {

namespace {

constexpr std::size_t kNotFound = TextView::npos;

std::vector<std::uint32_t> FindLineStarts(TextView text) {
    constexpr std::size_t kShortLine = 16;
    std::vector<std::uint32_t> starts;
    starts.reserve(text.size() / kShortLine + 1);
    starts.push_back(0);
    ForEachPlace(text, u'\n', [&](std::size_t end) {
        if (starts.size() == starts.capacity()) {
            // Growing by halves would hold the starts of a million empty lines twice.
            const TextView rest = text.substr(end);
            const auto more = std::count(rest.begin(), rest.end(), u'\n');
            starts.reserve(starts.size() + static_cast<std::size_t>(more));
        }
        starts.push_back(static_cast<std::uint32_t>(end) + 1);
    });
    starts.shrink_to_fit();
    return starts;
}

// As FindText, whatever the case. A letter of ASCII has two forms and no others.
std::size_t FindIgnoringCase(TextView text, std::size_t from, TextView target) {
    const char16_t first = FoldCase(target.front());
    const bool isAsciiLetter = first >= u'a' && first <= u'z';
    for (std::size_t i = from; i + target.size() <= text.size(); ++i) {
        if (isAsciiLetter) i = FindAny(text, i, first, static_cast<char16_t>(first - u'a' + u'A'));
        if (EqualIgnoringCase(text.substr(i, target.size()), target)) return i;
    }
    return text.size();
}

bool HasCase(TextView target) {
    return std::any_of(target.begin(), target.end(), [](char16_t c) { return IsWordCharacter(c); });
}

constexpr std::uint32_t kFewCharacters = 256;  // are sooner gone through than asked for
constexpr std::size_t kManyWords = 16;         // cost each question more than going through the text

}  // namespace

CodeModule::CodeModule(const VBComponent& component, Text code) : component_(component), text_(std::move(code)) {
    if (!text_.empty() && text_.back() != u'\n') text_.push_back(u'\n');
    lineStarts_ = FindLineStarts(text_);
    extents_ = FindExtents(text_, lineStarts_);
    byName_.resize(extents_.procedures.size());
    std::iota(byName_.begin(), byName_.end(), 0U);
    std::sort(byName_.begin(), byName_.end(), [&](std::uint32_t a, std::uint32_t b) {
        const Procedure& x = extents_.procedures[a];
        const Procedure& y = extents_.procedures[b];
        return x.kind != y.kind ? x.kind < y.kind : x.name < y.name;
    });
}

TextView CodeModule::Lines(int line) const {
    if (line < 1 || line > CountOfLines()) throw SubscriptOutOfRange();
    const std::uint32_t begin = OffsetOfLine(line);
    return TextView(text_).substr(begin, OffsetOfLine(line + 1) - begin - 1);
}

// The usual search by halves, without a branch: where the hits of a search lie is nothing that a processor can guess.
int CodeModule::LineOfOffset(std::uint32_t offset) const {
    const std::uint32_t* start = lineStarts_.data();
    for (std::size_t count = lineStarts_.size(); count > 1;) {
        const std::size_t half = count / 2;
        start += start[half] <= offset ? half : 0;
        count -= half;
    }
    return static_cast<int>(start - lineStarts_.data()) + 1;
}

TextView CodeModule::ProcOfLine(int line, int& kind) const {
    if (line < 1 || line > CountOfLines()) throw SubscriptOutOfRange();
    kind = 0;
    if (line <= CountOfDeclarationLines()) return {};
    const auto& procedures = extents_.procedures;
    const auto procedure = std::lower_bound(procedures.begin(), procedures.end(), line,
                                            [](const Procedure& p, int l) { return p.lastLine < l; });
    kind = procedure->kind;
    return procedure->name;
}

TextView CodeModule::ProcOfLine(int line) const {
    int kind = 0;
    return ProcOfLine(line, kind);
}

const Procedure& CodeModule::ProcedureNamed(TextView name, int kind) const {
    const auto& procedures = extents_.procedures;
    const auto place = std::lower_bound(byName_.begin(), byName_.end(), name, [&](std::uint32_t i, TextView wanted) {
        return procedures[i].kind != kind ? procedures[i].kind < kind : procedures[i].name < wanted;
    });
    if (place == byName_.end() || procedures[*place].name != name || procedures[*place].kind != kind) {
        throw SubscriptOutOfRange();
    }
    return procedures[*place];
}

int CodeModule::ProcCountLines(TextView name, int kind) const {
    const Procedure& procedure = ProcedureNamed(name, kind);
    return procedure.lastLine - procedure.firstLine + 1;
}

int CodeModule::ProcBodyLine(TextView name, int kind) const {
    return ProcedureNamed(name, kind).bodyLine;
}

bool CodeModule::ToBounds(const FindRange& range, Bounds& bounds) const {
    const int last = CountOfLines();
    const int startLine = std::max(range.startLine, 1);
    const int endLine = range.endLine < 0 ? last : std::min(range.endLine, last);
    if (startLine > endLine) return false;
    const auto column = static_cast<std::uint32_t>(std::max(range.startColumn, 1) - 1);
    const std::uint32_t startLineEnd = OffsetOfLine(startLine + 1) - 1;
    bounds.from = std::min(OffsetOfLine(startLine) + column, startLineEnd);
    bounds.to = OffsetOfLine(endLine + 1) - 1;
    const bool endColumnCounts = range.endColumn > 0 && range.endLine <= last;
    if (endColumnCounts) {
        bounds.to = std::min(bounds.to, OffsetOfLine(endLine) + static_cast<std::uint32_t>(range.endColumn));
    }
    return bounds.from <= bounds.to;
}

bool CodeModule::StandsFree(std::size_t offset, std::size_t length, bool (*continuesWord)(char16_t)) const {
    const bool free = offset == 0 || !continuesWord(text_[offset - 1]);
    return free && !continuesWord(text_[offset + length]);
}

std::size_t CodeModule::SearchText(TextView target, Bounds bounds, FindFlags flags) const {
    const TextView text = TextView(text_).substr(0, bounds.to);
    const bool exact = flags.matchCase || !HasCase(target);
    for (std::size_t i = bounds.from; i + target.size() <= bounds.to; ++i) {
        i = exact ? FindText(text, i, target) : FindIgnoringCase(text, i, target);
        if (i >= bounds.to) return kNotFound;
        if (!flags.wholeWord || StandsFree(i, target.size(), IsWordCharacter)) return i;
    }
    return kNotFound;
}

// A target that begins with a word of the index is looked for where that word stands; any other one, and any in a few
// lines, by going through the text.
std::size_t CodeModule::SearchWord(TextView target, Bounds bounds, bool (*continuesWord)(char16_t)) const {
    const TextView text(text_);
    if (!IsIndexCharacter(target.front()) || bounds.to - bounds.from < kFewCharacters) {
        const TextView searched = text.substr(0, bounds.to);
        for (std::size_t i = FindText(searched, bounds.from, target); i < searched.size();
             i = FindText(searched, i + 1, target)) {
            if (StandsFree(i, target.size(), continuesWord)) return i;
        }
        return kNotFound;
    }
    const WordIndex& words = component_.Project().Words();
    const LeadingWord anchor = words.FindLeading(target);
    const bool isOneWord = anchor.length == target.size();
    const Place start = words.StartOf(component_.Index());
    for (const Place place : words.PlacesOf(anchor.number, component_.Index(), bounds.from)) {
        const std::size_t offset = place - start;
        if (offset + target.size() > bounds.to) return kNotFound;
        if (!isOneWord && text[offset + target.size() - 1] != target.back()) continue;
        if (!isOneWord && !IsSame(text.substr(offset, target.size()), target)) continue;
        if (StandsFree(offset, target.size(), continuesWord)) return offset;
    }
    return kNotFound;
}

// A target that begins with characters of the index, and in which another one follows, can only stand where a word
// ends: there it is looked for if few words end like that. Any other target, and any in a few lines, by going through
// the text.
std::size_t CodeModule::SearchFragment(TextView target, Bounds bounds) const {
    const auto wordEnd = std::find_if_not(target.begin(), target.end(), IsIndexCharacter);
    if (wordEnd == target.begin() || wordEnd == target.end() || bounds.to - bounds.from < kFewCharacters) {
        return SearchText(target, bounds, {.matchCase = true});
    }
    const TextView text(text_);
    const WordIndex& words = component_.Project().Words();
    const auto& endings = words.EndingIn(target.substr(0, static_cast<std::size_t>(wordEnd - target.begin())));
    if (endings.size() >= kManyWords) return SearchText(target, bounds, {.matchCase = true});
    const Place start = words.StartOf(component_.Index());
    std::size_t first = kNotFound;
    for (const WordWithEnding& word : endings) {
        const std::uint32_t from = bounds.from - std::min(bounds.from, word.lead);
        for (const Place place : words.PlacesOf(word.number, component_.Index(), from)) {
            const std::size_t offset = place - start + word.lead;
            if (offset + target.size() > bounds.to || offset >= first) break;
            if (offset < bounds.from || !IsSame(text.substr(offset, target.size()), target)) continue;
            first = offset;
        }
    }
    return first;
}

bool CodeModule::Deliver(std::size_t offset, std::size_t length, FindRange& range) const {
    if (offset == kNotFound) return false;
    range.startLine = LineOfOffset(static_cast<std::uint32_t>(offset));
    range.startColumn = static_cast<int>(offset - OffsetOfLine(range.startLine)) + 1;
    range.endLine = range.startLine;
    range.endColumn = range.startColumn + static_cast<int>(length) - 1;
    return true;
}

bool CodeModule::Find(TextView target, FindRange& range, FindFlags flags) const {
    if (!flags.matchCase) return FindByWalk(target, range, flags);
    if (flags.wholeWord) return FindWord(target, range, IsWordCharacter);
    Bounds bounds;
    if (target.empty() || !ToBounds(range, bounds)) return false;
    return Deliver(SearchFragment(target, bounds), target.size(), range);
}

bool CodeModule::FindWord(TextView target, FindRange& range, bool (*continuesWord)(char16_t)) const {
    Bounds bounds;
    if (target.empty() || !ToBounds(range, bounds)) return false;
    return Deliver(SearchWord(target, bounds, continuesWord), target.size(), range);
}

bool CodeModule::FindByWalk(TextView target, FindRange& range, FindFlags flags) const {
    Bounds bounds;
    if (target.empty() || !ToBounds(range, bounds)) return false;
    return Deliver(SearchText(target, bounds, flags), target.size(), range);
}

VBComponent::VBComponent(const VBProject& project, std::uint32_t index, Text name, int type, Text code)
    : project_(project), index_(index), name_(std::move(name)), type_(type), code_(*this, std::move(code)) {}

VBComponent& VBProject::Add(Text name, int type, Text code) {
    std::vector<WordPlace> words = words_.Read(code);
    return Add(std::move(name), type, std::move(code), std::move(words));
}

VBComponent& VBProject::Add(Text name, int type, Text code, std::vector<WordPlace> words) {
    if (index_) {
        for (const auto& component : components_) {
            const TextView text = component->CodeModule().AllText();
            wordPlaces_.push_back({text.size(), words_.Read(text)});
        }
        index_.reset();
    }
    const auto number = static_cast<std::uint32_t>(components_.size());
    components_.push_back(std::make_unique<VBComponent>(*this, number, std::move(name), type, std::move(code)));
    wordPlaces_.push_back({components_.back()->CodeModule().AllText().size(), std::move(words)});
    return *components_.back();
}

const VBComponent& VBProject::Item(TextView name) const {
    const auto found =
        std::find_if(components_.begin(), components_.end(), [&](const auto& c) { return c->Name() == name; });
    if (found == components_.end()) throw SubscriptOutOfRange();
    return **found;
}

const WordIndex& VBProject::Words() const {
    if (!index_) index_ = std::make_unique<WordIndex>(words_, std::exchange(wordPlaces_, {}));
    return *index_;
}

FailureReporter& VBProject::Failures() const {
    if (failures_ == nullptr) throw ObjectNotSet();
    return *failures_;
}

}  // namespace zentlor
