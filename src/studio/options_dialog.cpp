#include "studio/options_dialog.h"

#include <QEvent>
#include <QScreen>
#include <QStyle>
#include <QTabBar>
#include <algorithm>

#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

constexpr std::array kGroups = {CheckGroup::Module, CheckGroup::Procedures, CheckGroup::Commands};
constexpr const char* kCheckProperty = "check";

constexpr PaneRect kClient{0, 0, 8910, 6510};
constexpr PaneRect kTabs{60, 120, 4575, 5835};
constexpr PaneRect kAlleAn{3120, 360, 625, 255};
constexpr PaneRect kAlleAus{3720, 360, 735, 255};
constexpr PaneRect kExplanationCaption{4740, 120, 4035, 195};
constexpr PaneRect kExplanation{4740, 420, 4035, 5535};
constexpr PaneRect kOk{990, 6075, 1095, 375};
constexpr PaneRect kCancel{2280, 6075, 1095, 375};
constexpr PaneRect kApply{3420, 6075, 1095, 375};
constexpr double kBoxWidth = 4095;

// The one box whose caption takes two lines; the boxes below it stand so much lower.
constexpr int kTallBox = 13;
constexpr double kTallBoxExtra = 240;

bool IsTall(CheckId id) {
    return InfoOf(id).group == CheckGroup::Module && InfoOf(id).box == kTallBox;
}

PaneRect BoxRect(CheckId id) {
    const int box = InfoOf(id).box;
    double top = box == 1 ? 700 : 960 + 240 * (box - 2);
    if (InfoOf(id).group == CheckGroup::Module && box > kTallBox) top = 4080 + 240 * (box - kTallBox - 1);
    return {240, top, kBoxWidth, IsTall(id) ? 195 + kTallBoxExtra : 195};
}

// Breaks a caption at the blank nearest to its middle.
QString InTwoLines(QString text) {
    const qsizetype middle = text.size() / 2;
    const qsizetype before = text.lastIndexOf(u' ', middle);
    const qsizetype behind = text.indexOf(u' ', middle);
    const qsizetype at = behind >= 0 && (before < 0 || behind - middle < middle - before) ? behind : before;
    if (at >= 0) text[at] = u'\n';
    return text;
}

// Of a check box, what its caption cannot use.
int IndicatorRoom(const QWidget& box) {
    const QStyle& style = *box.style();
    return style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, &box) +
           style.pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, &box) + 8;
}

}  // namespace

OptionsDialog::OptionsDialog(Session& session, XmlLibrary& xml, const QString& folder, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      form_(session, *this, xml, FromQString(folder)),
      tabs_(new QTabWidget(this)),
      explanationCaption_(new QLabel(this)),
      explanation_(new QPlainTextEdit(this)),
      ok_(new QPushButton(this)),
      cancel_(new QPushButton(this)),
      apply_(new QPushButton(this)) {
    for (const CheckGroup group : kGroups) CreatePage(group);
    explanation_->setReadOnly(true);
    explanation_->setFocusPolicy(Qt::ClickFocus);
    explanation_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    explanationCaption_->setBuddy(explanation_);
    ok_->setDefault(true);
    cancel_->setAutoDefault(false);
    apply_->setAutoDefault(false);
    ConnectButtons();
    form_.Form_Load();
    LayOut();
    CentreOnScreen();
}

void OptionsDialog::CreatePage(CheckGroup group) {
    TabPage& tab = pages_[static_cast<std::size_t>(group)];
    tab.page = new QWidget;
    tabs_->addTab(tab.page, QString());
    tab.alleAn = new QPushButton(tab.page);
    tab.alleAus = new QPushButton(tab.page);
    for (QPushButton* button : {tab.alleAn, tab.alleAus}) button->setAutoDefault(false);
    connect(tab.alleAn, &QPushButton::clicked, this, [this, group] { form_.cmdAlleAn_Click(group); });
    connect(tab.alleAus, &QPushButton::clicked, this, [this, group] { form_.cmdAlleAus_Click(group); });
    for (int box = 1; box <= CountOf(group); ++box) CreateBox(group, box);
}

void OptionsDialog::CreateBox(CheckGroup group, int box) {
    const CheckId id = CheckOfBox(group, box);
    auto* widget = new QCheckBox(Page(group).page);
    boxes_[IndexOf(id)] = widget;
    widget->setProperty(kCheckProperty, static_cast<int>(IndexOf(id)));
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
    connect(widget, &QCheckBox::toggled, this, [this, id](bool ticked) { form_.chkOptionen_Click(id, ticked); });
}

void OptionsDialog::ConnectButtons() {
    connect(ok_, &QPushButton::clicked, this, [this] { form_.cmdOK_Click(); });
    connect(cancel_, &QPushButton::clicked, this, [this] { form_.cmdAbbrechen_Click(); });
    connect(apply_, &QPushButton::clicked, this, [this] { form_.cmdÜbernehmen_Click(); });
    // Esc and the frame's cross close without a button.
    connect(this, &QDialog::finished, this, [this] { form_.Form_Unload(); });
}

bool OptionsDialog::eventFilter(QObject* watched, QEvent* event) {
    const QVariant check = watched->property(kCheckProperty);
    if (check.isValid()) {
        const CheckId id = kCatalogue[static_cast<std::size_t>(check.toInt())].id;
        if (event->type() == QEvent::MouseMove) form_.chkOptionen_MouseMove(id);
        if (event->type() == QEvent::FocusIn) form_.chkOptionen_GotFocus(id);
    }
    return QDialog::eventFilter(watched, event);
}

void OptionsDialog::CentreOnScreen() {
    const QRect screen_ = screen()->availableGeometry();
    move(screen_.center() - rect().center());
}

void OptionsDialog::SetTitle(TextView text) {
    setWindowTitle(ToQString(text));
}

void OptionsDialog::SetTabCaption(CheckGroup group, TextView text) {
    tabs_->setTabText(static_cast<int>(group), ToQString(text));
}

void OptionsDialog::SetAlleCaptions(CheckGroup group, TextView alleAn, TextView alleAus) {
    Page(group).alleAn->setText(ToQString(alleAn));
    Page(group).alleAus->setText(ToQString(alleAus));
}

void OptionsDialog::SetText(OptionsControl control, TextView text) {
    switch (control) {
        case OptionsControl::lblErläuterungen:
            explanationCaption_->setText(ToQString(text));
            explanation_->setAccessibleName(ToQString(text));
            break;
        case OptionsControl::txtErläuterungen:
            explanation_->setPlainText(ToQString(text));
            break;
        case OptionsControl::cmdOK:
            ok_->setText(ToQString(text));
            break;
        case OptionsControl::cmdAbbrechen:
            cancel_->setText(ToQString(text));
            break;
        case OptionsControl::cmdÜbernehmen:
            apply_->setText(ToQString(text));
            break;
    }
}

void OptionsDialog::SetBoxCaption(CheckId id, TextView text) {
    QString caption = ToQString(text);
    Box(id).setAccessibleName(caption);
    caption.replace(u'&', QStringLiteral("&&"));
    Box(id).setText(IsTall(id) ? InTwoLines(caption) : caption);
}

void OptionsDialog::SetBox(CheckId id, bool ticked) {
    Box(id).setChecked(ticked);
}

void OptionsDialog::EnableÜbernehmen(bool enabled) {
    apply_->setEnabled(enabled);
}

void OptionsDialog::Unload() {
    close();
}

// How much larger than planned the dialog has to be for its longest caption.
double OptionsDialog::FittingFactor() const {
    constexpr double kRowHeight = 240 / kTwipsPerPixel;
    double factor = std::max(Twips::FontFactor(*this), (fontMetrics().height() + 2) / kRowHeight);
    for (const QCheckBox* box : boxes_) {
        const int needed = box->fontMetrics().size(Qt::TextShowMnemonic, box->text()).width() + IndicatorRoom(*box);
        factor = std::max(factor, needed / (kBoxWidth / kTwipsPerPixel));
    }
    return factor;
}

void OptionsDialog::LayOut() {
    const Twips twips(*this, FittingFactor());
    setFixedSize(twips.ToPixels(kClient).size());
    tabs_->setGeometry(twips.ToPixels(kTabs));
    explanationCaption_->setGeometry(twips.ToPixels(kExplanationCaption));
    explanation_->setGeometry(twips.ToPixels(kExplanation));
    ok_->setGeometry(twips.ToPixels(kOk));
    cancel_->setGeometry(twips.ToPixels(kCancel));
    apply_->setGeometry(twips.ToPixels(kApply));
    // Places on a tab are told from the corner of the whole strip.
    tabs_->ensurePolished();
    const QPoint origin(0, tabs_->tabBar()->sizeHint().height());
    for (const CheckGroup group : kGroups) LayOutPage(group, twips, origin);
}

void OptionsDialog::LayOutPage(CheckGroup group, const Twips& twips, const QPoint& origin) {
    const int room = twips.ToPixels(kAlleAn.height);
    for (const auto& [button, rect] : {std::pair{&AlleAn(group), kAlleAn}, std::pair{&AlleAus(group), kAlleAus}}) {
        QRect place = twips.ToPixels(rect).translated(-origin);
        place.moveTop(std::max(place.top(), 3));
        place.setHeight(std::max(room, button->fontMetrics().height() + 4));
        button->setGeometry(place);
    }
    for (int box = 1; box <= CountOf(group); ++box) {
        const CheckId id = CheckOfBox(group, box);
        Box(id).setGeometry(twips.ToPixels(BoxRect(id)).translated(-origin));
    }
}

}  // namespace zentlor::studio
