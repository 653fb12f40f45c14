#include "studio/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace zentlor::studio {

namespace {

QByteArray ReadPicture(const QString& name) {
    QFile file(QStringLiteral(":/icons/%1.svg").arg(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QColor ColourOf(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled) return palette.color(QPalette::Disabled, QPalette::ButtonText);
    if (mode == QIcon::Selected) return palette.color(QPalette::Active, QPalette::HighlightedText);
    return palette.color(QPalette::Active, QPalette::ButtonText);
}

class StrokeIconEngine : public QIconEngine {
  public:
    explicit StrokeIconEngine(QByteArray picture) : picture_(std::move(picture)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QByteArray coloured = picture_;
        coloured.replace("currentColor", ColourOf(mode).name().toLatin1());
        QSvgRenderer renderer(coloured);
        if (mode == QIcon::Disabled) painter->setOpacity(0.6);
        renderer.render(painter, rect);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
    QIconEngine* clone() const override { return new StrokeIconEngine(picture_); }

  private:
    QByteArray picture_;
};

}  // namespace

QIcon StrokeIcon(const QString& name) {
    return QIcon(new StrokeIconEngine(ReadPicture(name)));
}

}  // namespace zentlor::studio
