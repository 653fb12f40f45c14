#include "studio/start_page.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>

#include "studio/icons.h"

namespace zentlor::studio {

namespace {

constexpr int kPictureSize = 64;
constexpr int kColumnWidth = 460;
constexpr int kMostPaths = 6;

// "/home/anna/x" as "~/x".
QString Shortened(const QString& path) {
    const QString home = QDir::homePath();
    return path.startsWith(home + u'/') ? u'~' + path.mid(home.size()) : path;
}

QLabel* Picture() {
    auto* picture = new QLabel;
    picture->setPixmap(QIcon(QStringLiteral(":/icons/zentlor.svg")).pixmap(kPictureSize, kPictureSize));
    return picture;
}

}  // namespace

StartPage::StartPage(const Words& words)
    : words_(words),
      title_(new QLabel),
      text_(new QLabel),
      openFile_(new QPushButton(StrokeIcon(QStringLiteral("open-file")), QString())),
      openFolder_(new QPushButton(StrokeIcon(QStringLiteral("open-folder")), QString())),
      recentTitle_(new QLabel),
      recent_(new QVBoxLayout) {
    QFont large = title_->font();
    large.setPointSizeF(large.pointSizeF() * 1.7);
    title_->setFont(large);
    text_->setWordWrap(true);
    QFont bold = recentTitle_->font();
    bold.setBold(true);
    recentTitle_->setFont(bold);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(openFile_);
    buttons->addWidget(openFolder_);
    buttons->addStretch();
    auto* column = new QWidget;
    column->setFixedWidth(kColumnWidth);
    auto* rows = new QVBoxLayout(column);
    rows->addStretch(2);
    rows->addWidget(Picture());
    rows->addSpacing(8);
    rows->addWidget(title_);
    rows->addWidget(text_);
    rows->addSpacing(8);
    rows->addLayout(buttons);
    rows->addSpacing(20);
    rows->addWidget(recentTitle_);
    recent_->setSpacing(0);
    rows->addLayout(recent_);
    rows->addStretch(3);
    auto* page = new QHBoxLayout(this);
    page->addStretch();
    page->addWidget(column);
    page->addStretch();

    connect(openFile_, &QPushButton::clicked, this, &StartPage::OpenFileWanted);
    connect(openFolder_, &QPushButton::clicked, this, &StartPage::OpenFolderWanted);
    Retranslate();
    ShowRecent({});
}

void StartPage::Retranslate() {
    title_->setText(words_(Word::WelcomeTitle));
    text_->setText(words_(Word::WelcomeText));
    // The access keys belong to the entries of the menu: here they would take those of the menu bar and the pane.
    openFile_->setText(words_(Word::OpenFile).remove(u'&'));
    openFolder_->setText(words_(Word::OpenFolder).remove(u'&'));
    recentTitle_->setText(words_(Word::WelcomeRecent));
}

void StartPage::ShowRecent(const QStringList& paths) {
    while (QLayoutItem* item = recent_->takeAt(0)) {
        item->widget()->deleteLater();
        delete item;
    }
    recentTitle_->setVisible(!paths.isEmpty());
    for (const QString& path : paths.mid(0, kMostPaths)) {
        const QString name = QFileInfo(path).fileName();
        auto* entry = new QPushButton(fontMetrics().elidedText(
            name + QStringLiteral("   ") + Shortened(QFileInfo(path).path()), Qt::ElideMiddle, kColumnWidth - 40));
        entry->setIcon(StrokeIcon(QFileInfo(path).isDir() ? QStringLiteral("folder") : QStringLiteral("module")));
        entry->setFlat(true);
        entry->setStyleSheet(QStringLiteral("text-align: left; padding: 4px;"));
        entry->setToolTip(path);
        entry->setAccessibleName(path);
        entry->setCursor(Qt::PointingHandCursor);
        connect(entry, &QPushButton::clicked, this, [this, path] { Q_EMIT PathWanted(path); });
        recent_->addWidget(entry);
    }
}

}  // namespace zentlor::studio
