#include "vba/parser_reader.h"

namespace zentlor::vba {
namespace {

// Longer words are cut in sentences.
constexpr std::size_t kQuotedLength = 40;

}  // namespace

ParserReader::ParserReader(TextView text, const Tokens& tokens, FoundFaults& faults)
    : text_(text), here_(tokens.data()), behind_(tokens.data()), faults_(faults) {
    const bool startsWithMeaning = here_->kind != TokenKind::Continuation && here_->kind != TokenKind::Comment;
    if (!startsWithMeaning) here_ = behind_ = Following(here_);
}

void ParserReader::SkipToStatementEnd() {
    while (!AtStatementEnd()) Advance();
}

void ParserReader::SkipToLineEnd() {
    while (!AtLineEnd()) Advance();
}

bool ParserReader::IsAttached() const {
    return behind_->End() == here_->offset || (here_ - 1)->kind == TokenKind::Continuation;
}

void ParserReader::Note(Fault fault, std::uint32_t offset, TextView word, std::uint32_t related) {
    // Labels are resolved late, so a few more are kept than will be shown.
    if (faults_.size() >= 2 * kMaximumSyntaxErrors) return;
    Text quoted(word.substr(0, kQuotedLength));
    if (word.size() > kQuotedLength) quoted += u'…';
    faults_.push_back({offset, fault, std::move(quoted), related});
}

bool ParserReader::Fail(Fault fault, const Token& place, TextView word, std::uint32_t related) {
    if (!isFaulty_) Note(fault, place.offset, word, related);
    isFaulty_ = true;
    return false;
}

bool ParserReader::FailExpecting(Fault fault) {
    if (FailAtOddToken()) return false;
    if (!AtLineEnd()) return Fail(fault, Here(), Quote(Here()));
    // The place is where the missing words would go: behind the last word, not behind the line's comment.
    if (!isFaulty_) Note(fault, Behind().End(), {}, 0);
    isFaulty_ = true;
    return false;
}

// What can't be read at all is the fault, whatever would be expected in its place.
bool ParserReader::FailAtOddToken() {
    if (Here().Is(TokenKind::Unknown)) {
        Fail(Fault::UnknownCharacter, Here(), Quote(Here()));
        return true;
    }
    return false;
}

void ParserReader::NoteElsewhere(Fault fault, const Token& place, TextView word) {
    Note(fault, place.offset, word, 0);
}

}  // namespace zentlor::vba
