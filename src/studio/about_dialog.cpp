#include "studio/about_dialog.h"

#include <QFrame>
#include <QIcon>

#include "studio/qtext.h"
#include "studio/twips.h"

namespace zentlor::studio {

namespace {

constexpr PaneRect kClient{0, 0, 5730, 3165};
constexpr PaneRect kPicture{240, 210, 600, 600};
constexpr PaneRect kTitle{1020, 180, 3885, 405};
constexpr PaneRect kDescription{1020, 660, 4500, 255};
constexpr PaneRect kVersion{1020, 1200, 3885, 225};
constexpr PaneRect kCopyright{1020, 1560, 4500, 270};
constexpr PaneRect kLink{1020, 1920, 3915, 315};
constexpr PaneRect kOk{2325, 2625, 1260, 345};
constexpr std::array kLines = {PaneRect{240, 1020, 5250, 30}, PaneRect{240, 2430, 5250, 30}};

}  // namespace

AboutDialog::AboutDialog(Session& session, Shell& shell, QWidget* owner)
    : QDialog(owner, Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                         Qt::WindowCloseButtonHint),
      form_(session, *this, shell),
      link_(new LinkEdit(this)),
      ok_(new QPushButton(QStringLiteral("OK"), this)) {
    setWindowTitle(ToQString(kAboutTitle));
    CreateControls();
    link_->clicked = [this] { form_.txtHyperlink_Click(); };
    link_->moved = [this](float x, float y) { form_.txtHyperlink_MouseMove(x, y); };
    connect(ok_, &QPushButton::clicked, this, [this] { form_.cmdOK_Click(); });
    form_.Form_Load();
}

QLabel* AboutDialog::AddLabel(const PaneRect& place, double points, bool bold) {
    auto* label = new QLabel(this);
    QFont font = label->font();
    font.setPointSizeF(points);
    font.setBold(bold);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    label->setGeometry(Twips(*this).ToPixels(place));
    return label;
}

void AboutDialog::CreateControls() {
    const Twips twips(*this);
    setFixedSize(twips.ToPixels(kClient).size());
    auto* picture = new QLabel(this);
    picture->setGeometry(twips.ToPixels(kPicture));
    picture->setPixmap(QIcon(QStringLiteral(":/icons/zentlor.svg")).pixmap(picture->size()));
    AddLabel(kTitle, 15.75, true)->setText(ToQString(kProductName));
    description_ = AddLabel(kDescription, 9);
    version_ = AddLabel(kVersion, 8.25);
    AddLabel(kCopyright, 8.25)->setText(ToQString(CopyrightLine()));
    link_->setGeometry(twips.ToPixels(kLink));
    ok_->setGeometry(twips.ToPixels(kOk));
    ok_->setDefault(true);
    ok_->setFocus();
    for (const PaneRect& place : kLines) {
        auto* line = new QFrame(this);
        line->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Sunken));
        line->setGeometry(twips.ToPixels(place));
    }
}

void AboutDialog::SetVersion(TextView text) {
    version_->setText(ToQString(text));
}

void AboutDialog::SetBeschreibung(TextView text) {
    description_->setText(ToQString(text));
}

int AboutDialog::BackColor() const {
    const QColor colour = palette().color(QPalette::Window);
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

}  // namespace zentlor::studio
