#include "studio/pane_widget.h"

#include <QEvent>
#include <QHeaderView>
#include <QStyle>
#include <algorithm>

#include "studio/icons.h"
#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

constexpr int kStopButton = 2;
constexpr double kButtonWidth = 1005;
constexpr double kButtonHeight = 570;
constexpr double kSeparatorWidth = 120;
constexpr double kFirstPanelWidth = 2000;
constexpr double kSecondPanelWidth = 1200;
constexpr int kPanelPadding = 6;

struct ToolButton {
    int position;
    const char16_t* key;
    const char* icon;
};

constexpr std::array kToolButtons = {ToolButton{1, u"Refresh", "refresh"}, ToolButton{2, u"Stop", "stop"},
                                     ToolButton{4, u"Export", "export"},   ToolButton{6, u"Optionen", "options"},
                                     ToolButton{8, u"Info", "info"},       ToolButton{9, u"Hilfe", "help"}};

}  // namespace

PaneWidget::PaneWidget(const Words& words)
    : words_(words),
      toolbar_(new QWidget(this)),
      sprache_(new QtLanguageBox(toolbar_)),
      list_(new HintList(this)),
      untersuchtesObjekt_(new QLabel(this)),
      objekt_(new QLabel(this)),
      aktuellerTest_(new QLabel(this)),
      test_(new QLabel(this)),
      progress_(new QProgressBar(this)),
      status_(new QWidget(this)) {
    CreateToolbar();
    CreateLabels();
    CreateStatus();
    ConnectClicks();
    setTabOrder(sprache_, list_);
    Retranslate();
}

void PaneWidget::CreateToolbar() {
    for (const ToolButton& description : kToolButtons) {
        auto* button = new QToolButton(toolbar_);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::TabFocus);
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setIcon(StrokeIcon(QString::fromLatin1(description.icon)));
        buttons_[static_cast<std::size_t>(description.position - 1)] = button;
        connect(button, &QToolButton::clicked, this, [this, key = description.key] {
            if (pane_ != nullptr) pane_->symToolbar_ButtonClick(key);
        });
    }
    Button(kStopButton)->setEnabled(false);
    for (QFrame*& separator : separators_) {
        separator = new QFrame(toolbar_);
        separator->setFrameStyle(static_cast<int>(QFrame::VLine) | static_cast<int>(QFrame::Sunken));
    }
    sprache_->raise();
}

void PaneWidget::CreateLabels() {
    for (QLabel* caption : {untersuchtesObjekt_, aktuellerTest_}) {
        QFont bold = caption->font();
        bold.setBold(true);
        caption->setFont(bold);
    }
    for (QLabel* label : {untersuchtesObjekt_, objekt_, aktuellerTest_, test_}) {
        label->setTextFormat(Qt::PlainText);
        label->hide();
    }
    untersuchtesObjekt_->setObjectName(QStringLiteral("lblUntersuchtesObjekt"));
    objekt_->setObjectName(QStringLiteral("lblObjekt"));
    aktuellerTest_->setObjectName(QStringLiteral("lblAktuellerTest"));
    test_->setObjectName(QStringLiteral("lblTest"));
    objekt_->setText(QStringLiteral("???"));
    test_->setText(QStringLiteral("???"));
}

void PaneWidget::CreateStatus() {
    progress_->setRange(0, 100);
    progress_->setTextVisible(false);
    for (QLabel*& panel : panels_) {
        panel = new QLabel(status_);
        panel->setObjectName(QStringLiteral("panel%1").arg(&panel - panels_.data() + 1));
        panel->setTextFormat(Qt::PlainText);
        panel->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
        panel->setContentsMargins(kPanelPadding / 2, 0, kPanelPadding / 2, 0);
        panel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    status_->hide();
}

void PaneWidget::ConnectClicks() {
    connect(sprache_, &QComboBox::activated, this, [this] {
        if (pane_ != nullptr) pane_->icboSprache_Click();
    });
    connect(list_, &HintList::SortWanted, this, [this](int column) {
        if (pane_ != nullptr) pane_->lvwErgebnis_ColumnClick(column);
    });
    connect(list_, &HintList::JumpWanted, this, [this](int row) {
        Q_EMIT JumpBegins();
        if (pane_ != nullptr) pane_->lvwErgebnis_DblClick(static_cast<std::size_t>(row));
    });
}

void PaneWidget::Connect(docAddIn* pane, const Session* session) {
    pane_ = pane;
    session_ = session;
    list_->Hints().SetResults(session == nullptr ? nullptr : &session->lvwErgebnis);
}

void PaneWidget::ForgetHints() {
    if (pane_ != nullptr) pane_->OberflächeZurücksetzen();
}

void PaneWidget::Retranslate() {
    toolbar_->setAccessibleName(words_(Word::PaneToolbar));
    sprache_->setAccessibleName(words_(Word::InterfaceLanguage));
    sprache_->setToolTip(words_(Word::InterfaceLanguage));
    list_->setAccessibleName(words_(Word::HintList));
    list_->Hints().SetSortTip(words_(Word::SortTip));
    SayWhyEmpty(empty_);
    progress_->setAccessibleName(words_(Word::Progress));
    panels_[0]->setAccessibleName(words_(Word::StatusHints));
    panels_[1]->setAccessibleName(words_(Word::StatusDuration));
}

// The list comes back complete: this is where the view hears of the hints of a run.
void PaneWidget::ShowList(bool visible) {
    if (visible) PublishRows();
    list_->setVisible(visible);
}

void PaneWidget::ShowLabels(bool visible) {
    for (QLabel* label : {untersuchtesObjekt_, objekt_, aktuellerTest_, test_}) label->setVisible(visible);
}

// The last that a run does with the list: one without rows is now a result, which it was not before.
void PaneWidget::FocusList() {
    SayWhyEmpty(session_->blnAbbruch ? Word::Stopped : Word::NoHints);
    list_->setFocus();
}

void PaneWidget::SayWhyEmpty(Word word) {
    empty_ = word;
    list_->SetEmptyText(words_(word));
}

void PaneWidget::ListChanged() {
    PublishRows();
}

void PaneWidget::ShowNewRows() {
    const auto rows = static_cast<std::size_t>(list_->Hints().rowCount());
    if (!list_->isHidden() && rows != session_->lvwErgebnis.Count()) PublishRows();
}

void PaneWidget::PublishRows() {
    list_->Hints().Publish();
    if (session_ != nullptr) list_->ShowSorting(session_->lvwErgebnis.SortKey(), session_->lvwErgebnis.Ascending());
    Q_EMIT RowsPublished();
}

void PaneWidget::SetObjekt(TextView text) {
    objekt_->setText(ToQString(text));
}

void PaneWidget::SetTest(TextView text) {
    test_->setText(ToQString(text));
}

// The bar comes back when the pane is emptied.
void PaneWidget::ShowProgress(bool visible) {
    if (visible) SayWhyEmpty(Word::NotChecked);
    progress_->setVisible(visible);
}

void PaneWidget::SetProgressMaximum(int maximum) {
    progress_->setMaximum(maximum);
}

void PaneWidget::SetProgress(int value) {
    progress_->setValue(value);
}

void PaneWidget::ShowStatus(bool visible) {
    status_->setVisible(visible);
}

void PaneWidget::SetPanel(int panel, TextView text) {
    panels_[static_cast<std::size_t>(panel - 1)]->setText(ToQString(text));
    LayOutStatus(Twips(*this));
}

void PaneWidget::EnableStop(bool enabled) {
    if (enabled) Q_EMIT RunBegins();
    Button(kStopButton)->setEnabled(enabled);
}

void PaneWidget::RedrawToolbar() {
    toolbar_->repaint();
}

void PaneWidget::EnableSprache(bool enabled) {
    sprache_->setEnabled(enabled);
}

void PaneWidget::SetButtonCaption(int button, TextView text) {
    Button(button)->setText(ToQString(text));
    Button(button)->setAccessibleName(ToQString(text).remove(u'&'));
}

void PaneWidget::SetButtonToolTip(int button, TextView text) {
    Button(button)->setToolTip(ToQString(text));
    Button(button)->setAccessibleDescription(ToQString(text));
}

void PaneWidget::SetColumnHeader(int column, TextView text) {
    list_->Hints().SetHeader(column - 1, ToQString(text));
}

void PaneWidget::SetUntersuchtesObjekt(TextView text) {
    untersuchtesObjekt_->setText(ToQString(text));
}

void PaneWidget::SetAktuellerTest(TextView text) {
    aktuellerTest_->setText(ToQString(text));
}

// The last of the words that follow the language.
void PaneWidget::SetPanelToolTip(int panel, TextView text) {
    panels_[static_cast<std::size_t>(panel - 1)]->setToolTip(ToQString(text));
    if (panel == static_cast<int>(panels_.size())) Q_EMIT WordsWritten();
}

QSize PaneWidget::sizeHint() const {
    const Twips twips(*this);
    return {twips.ToPixels(kPaneWidth), twips.ToPixels(kPaneHeight)};
}

QSize PaneWidget::minimumSizeHint() const {
    const Twips twips(*this);
    return {twips.ToPixels(kPaneWidth) / 4, twips.ToPixels(kPaneHeight) / 2};
}

void PaneWidget::resizeEvent(QResizeEvent*) {
    LayOut();
}

void PaneWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) LayOut();
}

void PaneWidget::LayOut() {
    const Twips twips(*this);
    const double scrollBar = twips.FromPixels(style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, list_));
    const PaneLayout layout = UserDocument_Resize(twips.FromPixels(width()), twips.FromPixels(height()), scrollBar);
    toolbar_->setGeometry(twips.ToPixels(layout.symToolbar));
    sprache_->setGeometry(twips.ToPixels(layout.icboSprache));
    list_->setGeometry(twips.ToPixels(layout.lvwErgebnis));
    for (int column = 0; column < kHintColumns - 1; ++column) {
        list_->header()->resizeSection(column, twips.ToPixels(layout.columns[static_cast<std::size_t>(column)]));
    }
    untersuchtesObjekt_->setGeometry(twips.ToPixels(layout.lblUntersuchtesObjekt));
    objekt_->setGeometry(twips.ToPixels(layout.lblObjekt));
    aktuellerTest_->setGeometry(twips.ToPixels(layout.lblAktuellerTest));
    test_->setGeometry(twips.ToPixels(layout.lblTest));
    progress_->setGeometry(twips.ToPixels(layout.pbFortschritt));
    status_->setGeometry(twips.ToPixels(layout.sbStatus));
    LayOutToolbar(twips);
    LayOutStatus(twips);
}

void PaneWidget::LayOutToolbar(const Twips& twips) {
    double left = 0;
    auto separator = separators_.begin();
    for (QToolButton* button : buttons_) {
        QWidget* control = button != nullptr ? static_cast<QWidget*>(button) : *separator++;
        const double width = button != nullptr ? kButtonWidth : kSeparatorWidth;
        control->setGeometry(twips.ToPixels(PaneRect{left, 0, width, kButtonHeight}));
        left += width;
    }
}

void PaneWidget::LayOutStatus(const Twips& twips) {
    QLabel& duration = *panels_[1];
    const int fitting = duration.fontMetrics().horizontalAdvance(duration.text()) + 3 * kPanelPadding;
    const int second = std::max(twips.ToPixels(kSecondPanelWidth), fitting);
    const int first = std::max(twips.ToPixels(kFirstPanelWidth), status_->width() - second);
    panels_[0]->setGeometry(0, 0, first, status_->height());
    duration.setGeometry(first, 0, second, status_->height());
}

}  // namespace zentlor::studio
