#pragma once

// The code pane of one module: the text, line numbers, and marks in the margin for the lines that have hints.

#include <QPlainTextEdit>
#include <map>

#include "studio/highlighter.h"

namespace zentlor::studio {

/// `code` for display, character by character: what the text edit would take for a line end becomes U+FFFD.
QString ShownCode(TextView code);

class CodeView : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit CodeView(QWidget* parent = nullptr);

    void SetCode(TextView code);
    /// For each line that has hints their texts, one a line.
    void SetMarks(std::map<int, QString> marks);
    const std::map<int, QString>& Marks() const { return marks_; }
    /// Lines and columns count from 1; a column behind the line's end is its end. False if there is no such line.
    bool Select(int startLine, int startColumn, int endLine, int endColumn);
    int CurrentLine() const { return textCursor().blockNumber() + 1; }
    int CurrentColumn() const { return textCursor().positionInBlock() + 1; }
    int LineCount() const { return blockCount(); }

    // For the margin.
    int MarginWidth() const;
    void PaintMargin(const QRect& rect);
    /// The line at a height of the viewport; 0 behind the last one.
    int LineAt(int y) const;

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    void LayOut();
    void ShowCurrentLine();

    QWidget* margin_;
    Highlighter* highlighter_;
    std::map<int, QString> marks_;
};

}  // namespace zentlor::studio
