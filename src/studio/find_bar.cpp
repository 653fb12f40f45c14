#include "studio/find_bar.h"

#include <QAction>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QTextBlock>

#include "studio/icons.h"

namespace zentlor::studio {

namespace {

QToolButton* Button(const QString& icon) {
    auto* button = new QToolButton;
    button->setIcon(StrokeIcon(icon));
    button->setAutoRaise(true);
    return button;
}

void Name(QToolButton& button, QString words) {
    words.remove(u'&');
    button.setToolTip(words);
    button.setAccessibleName(words);
}

}  // namespace

FindBar::FindBar(const Words& words, QWidget* parent)
    : QWidget(parent),
      words_(words),
      text_(new QLineEdit),
      matchCase_(new QCheckBox),
      wholeWord_(new QCheckBox),
      result_(new QLabel),
      previous_(Button(QStringLiteral("up"))),
      next_(Button(QStringLiteral("down"))),
      close_(Button(QStringLiteral("close"))) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(6, 4, 6, 4);
    text_->addAction(StrokeIcon(QStringLiteral("find")), QLineEdit::LeadingPosition);
    text_->setClearButtonEnabled(true);
    text_->setMaximumWidth(360);
    row->addWidget(text_, 3);
    for (QWidget* widget : {static_cast<QWidget*>(previous_), static_cast<QWidget*>(next_),
                            static_cast<QWidget*>(matchCase_), static_cast<QWidget*>(wholeWord_)}) {
        row->addWidget(widget);
    }
    row->addSpacing(12);
    row->addWidget(result_, 1);
    row->addWidget(close_);
    connect(text_, &QLineEdit::textChanged, result_, &QLabel::clear);
    connect(next_, &QToolButton::clicked, this, [this] { FindNext(); });
    connect(previous_, &QToolButton::clicked, this, [this] { FindPrevious(); });
    connect(close_, &QToolButton::clicked, this, [this] { Dismiss(); });
    Retranslate();
    hide();
}

void FindBar::Retranslate() {
    text_->setPlaceholderText(words_(Word::FindHint));
    text_->setAccessibleName(words_(Word::FindHint));
    matchCase_->setText(words_(Word::MatchCase));
    wholeWord_->setText(words_(Word::WholeWord));
    Name(*next_, words_(Word::FindNext));
    Name(*previous_, words_(Word::FindPrevious));
    Name(*close_, words_(Word::CloseFind));
    result_->clear();
}

void FindBar::Open() {
    const QString selected = view_ == nullptr ? QString() : view_->textCursor().selectedText();
    // A whole line is what a jump to a hint selects, not what somebody looks for.
    const bool wholeLine = view_ != nullptr && selected == view_->textCursor().block().text();
    const bool oneLine = !selected.isEmpty() && selected.size() < 100 && !selected.contains(QChar::ParagraphSeparator);
    if (oneLine && !wholeLine) text_->setText(selected.trimmed());
    show();
    text_->setFocus();
    text_->selectAll();
}

void FindBar::Dismiss() {
    hide();
    if (view_ != nullptr) view_->setFocus();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        Dismiss();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Search((event->modifiers() & Qt::ShiftModifier) != 0);
    } else {
        QWidget::keyPressEvent(event);
    }
}

QTextDocument::FindFlags FindBar::Flags() const {
    QTextDocument::FindFlags flags;
    if (matchCase_->isChecked()) flags |= QTextDocument::FindCaseSensitively;
    if (wholeWord_->isChecked()) flags |= QTextDocument::FindWholeWords;
    return flags;
}

// Goes on at the other end of the module when there is nothing more.
void FindBar::Search(bool backwards) {
    if (view_ == nullptr) return;
    if (text_->text().isEmpty()) {
        Open();
        return;
    }
    QTextDocument::FindFlags flags = Flags();
    if (backwards) flags |= QTextDocument::FindBackward;
    QTextCursor hit = view_->document()->find(text_->text(), view_->textCursor(), flags);
    if (hit.isNull()) {
        QTextCursor start(view_->document());
        start.movePosition(backwards ? QTextCursor::End : QTextCursor::Start);
        hit = view_->document()->find(text_->text(), start, flags);
    }
    if (hit.isNull()) {
        result_->setText(words_(Word::FindNone));
        return;
    }
    view_->setTextCursor(hit);
    ShowCount(hit);
}

void FindBar::ShowCount(const QTextCursor& hit) {
    int count = 0;
    int position = 0;
    QTextCursor cursor(view_->document());
    for (;;) {
        cursor = view_->document()->find(text_->text(), cursor, Flags());
        if (cursor.isNull()) break;
        ++count;
        if (cursor.selectionStart() == hit.selectionStart()) position = count;
    }
    result_->setText(words_(Word::FindCount).arg(position).arg(count));
}

}  // namespace zentlor::studio
