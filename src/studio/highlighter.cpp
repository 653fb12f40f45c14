#include "studio/highlighter.h"

#include <QPalette>

#include "vba/tokenizer.h"

namespace zentlor::studio {

namespace {

using vba::TokenKind;

CodeColour ColourOf(const vba::Token& token) {
    switch (token.kind) {
        case TokenKind::Keyword:
        case TokenKind::Directive:
            return CodeColour::Keyword;
        case TokenKind::Comment:
            return CodeColour::Comment;
        case TokenKind::String:
            return CodeColour::String;
        case TokenKind::Integer:
        case TokenKind::Hexadecimal:
        case TokenKind::Octal:
        case TokenKind::Float:
        case TokenKind::Date:
            return CodeColour::Number;
        case TokenKind::Unknown:
            return CodeColour::Unknown;
        default:
            return CodeColour::Plain;
    }
}

struct ColourPair {
    CodeColour colour;
    const char* light;
    const char* dark;
};

constexpr std::array kColours = {
    ColourPair{CodeColour::Keyword, "#1a3fb4", "#82aaff"}, ColourPair{CodeColour::Comment, "#1e7d34", "#8fc78f"},
    ColourPair{CodeColour::String, "#9c3d1f", "#f0a875"}, ColourPair{CodeColour::Number, "#7a3e9d", "#d3a6f0"},
    ColourPair{CodeColour::Unknown, "#c01c28", "#ff7b7b"}};

}  // namespace

std::vector<std::vector<Stretch>> ColourStretches(TextView code) {
    std::vector<std::vector<Stretch>> lines(1);
    std::uint32_t lineStart = 0;
    for (const vba::Token& token : vba::Tokenize(code)) {
        const CodeColour colour = ColourOf(token);
        if (colour != CodeColour::Plain) {
            lines.back().push_back(
                {static_cast<int>(token.offset - lineStart), static_cast<int>(token.length), colour});
        }
        if (token.Is(TokenKind::EndOfLine) || token.Is(TokenKind::Continuation)) {
            lineStart = token.End();
            const bool endsEmptyLines = token.Is(TokenKind::EndOfLine) && token.length > 1;
            lines.resize(lines.size() + (endsEmptyLines ? token.length : 1));
        }
    }
    return lines;
}

Highlighter::Highlighter(QTextDocument* document, const QPalette& palette) : QSyntaxHighlighter(document) {
    SetPalette(palette);
}

void Highlighter::SetPalette(const QPalette& palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    for (const ColourPair& pair : kColours) {
        formats_[static_cast<std::size_t>(pair.colour)].setForeground(QColor(dark ? pair.dark : pair.light));
    }
    rehighlight();
}

void Highlighter::highlightBlock(const QString&) {
    const auto line = static_cast<std::size_t>(currentBlock().blockNumber());
    if (line >= lines_.size()) return;
    for (const Stretch& stretch : lines_[line]) {
        setFormat(stretch.start, stretch.length, formats_[static_cast<std::size_t>(stretch.colour)]);
    }
}

}  // namespace zentlor::studio
