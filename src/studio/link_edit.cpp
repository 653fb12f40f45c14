#include "studio/link_edit.h"

#include <QMouseEvent>

#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

QColor FromBlueGreenRed(int colour) {
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

}  // namespace

QColor LinkColour(int colour, const QPalette& palette) {
    const QColor plain = FromBlueGreenRed(colour);
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    return dark ? QColor::fromHsl(plain.hslHue(), 255, 205) : plain;
}

LinkEdit::LinkEdit(QWidget* parent) : QLineEdit(parent) {
    setMouseTracking(true);
    setContextMenuPolicy(Qt::NoContextMenu);
}

void LinkEdit::SetText(TextView text) {
    setText(ToQString(text));
    setAccessibleName(ToQString(text));
    setCursorPosition(0);
}

void LinkEdit::SetBackColor(int colour) {
    QPalette changed = palette();
    changed.setColor(QPalette::Base, FromBlueGreenRed(colour));
    setPalette(changed);
}

void LinkEdit::SetForeColor(int colour) {
    QPalette changed = palette();
    changed.setColor(QPalette::Text, LinkColour(colour, changed));
    setPalette(changed);
}

void LinkEdit::SetUnderline(bool underline) {
    QFont changed = font();
    changed.setUnderline(underline);
    setFont(changed);
}

void LinkEdit::SetMousePointer(int mode) {
    setCursor(mode == kCustomPointer ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

void LinkEdit::mouseMoveEvent(QMouseEvent* event) {
    moved(static_cast<float>(event->position().x()), static_cast<float>(event->position().y()));
}

void LinkEdit::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->pos())) clicked();
}

}  // namespace zentlor::studio
