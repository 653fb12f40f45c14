#include "studio/code_view.h"

#include <QFontDatabase>
#include <QHelpEvent>
#include <QPainter>
#include <QTextBlock>
#include <QToolTip>

#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

constexpr int kTabBlanks = 4;
constexpr int kMarkRoom = 14;

class Margin : public QWidget {
  public:
    explicit Margin(CodeView& view) : QWidget(&view), view_(view) {}
    QSize sizeHint() const override { return {view_.MarginWidth(), 0}; }

  protected:
    void paintEvent(QPaintEvent* event) override { view_.PaintMargin(event->rect()); }
    void mousePressEvent(QMouseEvent* event) override {
        const int line = view_.LineAt(event->pos().y());
        if (line > 0) view_.Select(line, 1, line, 1);
    }
    bool event(QEvent* event) override {
        if (event->type() != QEvent::ToolTip) return QWidget::event(event);
        const auto* help = static_cast<QHelpEvent*>(event);
        const auto mark = view_.Marks().find(view_.LineAt(help->pos().y()));
        const bool marked = mark != view_.Marks().end();
        QToolTip::showText(help->globalPos(), marked ? mark->second : QString(), this);
        return true;
    }

  private:
    CodeView& view_;
};

}  // namespace

QString ShownCode(TextView code) {
    QString shown = ToQString(code.ends_with(u'\n') ? code.substr(0, code.size() - 1) : code);
    for (QChar& c : shown) {
        const char16_t u = c.unicode();
        const bool endsLine = u == u'\r' || u == 0x2028 || u == 0x2029 || u == 0xFDD0 || u == 0xFDD1;
        if (endsLine) c = QChar(QChar::ReplacementCharacter);
    }
    return shown;
}

CodeView::CodeView(QWidget* parent)
    : QPlainTextEdit(parent), margin_(new Margin(*this)), highlighter_(new Highlighter(document(), palette())) {
    setReadOnly(true);
    // Read-only text can still be walked through with the keyboard.
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setLineWrapMode(NoWrap);
    setFrameShape(NoFrame);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(std::max(font.pointSizeF(), 10.0));
    setFont(font);
    connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& rect, int dy) {
        if (dy != 0) {
            margin_->scroll(0, dy);
        } else {
            margin_->update(0, rect.y(), margin_->width(), rect.height());
        }
    });
    connect(this, &QPlainTextEdit::blockCountChanged, this, [this] { LayOut(); });
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { ShowCurrentLine(); });
    LayOut();
}

void CodeView::SetCode(TextView code) {
    highlighter_->SetCode(code);
    setPlainText(ShownCode(code));
    ShowCurrentLine();
}

void CodeView::SetMarks(std::map<int, QString> marks) {
    marks_ = std::move(marks);
    margin_->update();
}

bool CodeView::Select(int startLine, int startColumn, int endLine, int endColumn) {
    const QTextBlock first = document()->findBlockByNumber(startLine - 1);
    const QTextBlock last = document()->findBlockByNumber(endLine - 1);
    if (startLine < 1 || endLine < startLine || !first.isValid() || !last.isValid()) return false;
    const auto positionOf = [](const QTextBlock& block, int column) {
        return block.position() + std::clamp(column - 1, 0, block.length() - 1);
    };
    // The caret stands at the front, so that a long line is shown from its beginning.
    QTextCursor cursor(document());
    cursor.setPosition(positionOf(last, endColumn));
    cursor.setPosition(positionOf(first, startColumn), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    centerCursor();
    return true;
}

int CodeView::MarginWidth() const {
    const int digits = std::max(3, static_cast<int>(QString::number(LineCount()).size()));
    return kMarkRoom + fontMetrics().horizontalAdvance(u'9') * digits + 10;
}

void CodeView::LayOut() {
    setTabStopDistance(kTabBlanks * fontMetrics().horizontalAdvance(u' '));
    setViewportMargins(MarginWidth(), 0, 0, 0);
    const QRect inner = contentsRect();
    margin_->setGeometry(inner.left(), inner.top(), MarginWidth(), inner.height());
}

void CodeView::resizeEvent(QResizeEvent* event) {
    QPlainTextEdit::resizeEvent(event);
    LayOut();
}

void CodeView::changeEvent(QEvent* event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        highlighter_->SetPalette(palette());
        ShowCurrentLine();
    }
    if (event->type() == QEvent::FontChange) LayOut();
}

// A marked line tells its hints over the code too.
bool CodeView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QPlainTextEdit::viewportEvent(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const auto mark = marks_.find(LineAt(help->pos().y()));
    QToolTip::showText(help->globalPos(), mark == marks_.end() ? QString() : mark->second, viewport());
    return true;
}

int CodeView::LineAt(int y) const {
    const QTextBlock block = cursorForPosition(QPoint(0, y)).block();
    const double bottom = blockBoundingGeometry(block).translated(contentOffset()).bottom();
    return y <= bottom ? block.blockNumber() + 1 : 0;
}

void CodeView::ShowCurrentLine() {
    QTextEdit::ExtraSelection line;
    QColor tint = palette().color(QPalette::Highlight);
    tint.setAlpha(28);
    line.format.setBackground(tint);
    line.format.setProperty(QTextFormat::FullWidthSelection, true);
    line.cursor = textCursor();
    line.cursor.clearSelection();
    setExtraSelections({line});
    margin_->update();
}

void CodeView::PaintMargin(const QRect& rect) {
    QPainter painter(margin_);
    painter.fillRect(rect, palette().color(QPalette::AlternateBase));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font());
    QColor number = palette().color(QPalette::Text);
    QTextBlock block = firstVisibleBlock();
    double top = blockBoundingGeometry(block).translated(contentOffset()).top();
    while (block.isValid() && top <= rect.bottom()) {
        const int line = block.blockNumber() + 1;
        const double height = blockBoundingRect(block).height();
        number.setAlpha(line == CurrentLine() ? 220 : 110);
        painter.setPen(number);
        // The last block is higher than its line.
        const double lineHeight = block.layout()->lineAt(0).height();
        painter.drawText(QRectF(0, top, margin_->width() - 6, lineHeight), Qt::AlignRight | Qt::AlignVCenter,
                         QString::number(line));
        if (marks_.contains(line)) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(QColor(0xE0, 0x8A, 0x00));
            painter.drawEllipse(QPointF(kMarkRoom / 2.0 + 1, top + lineHeight / 2), 3.6, 3.6);
        }
        top += height;
        block = block.next();
    }
}

}  // namespace zentlor::studio
