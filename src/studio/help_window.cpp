#include "studio/help_window.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QSplitter>
#include <QTextDocument>
#include <QToolBar>
#include <QVBoxLayout>

#include "studio/icons.h"

namespace zentlor::studio {

namespace {

const QString kFirstPage = QStringLiteral("index.html");
constexpr QSize kFirstSize(1000, 660);
constexpr int kListWidth = 330;

QString ReadPage(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString PlainText(const QString& html) {
    QTextDocument document;
    document.setHtml(html);
    return document.toPlainText();
}

}  // namespace

std::vector<HelpPage> ReadHelp(const QString& folder) {
    std::vector<HelpPage> pages;
    const QString first = ReadPage(folder + u'/' + kFirstPage);
    if (first.isEmpty()) return pages;
    QTextDocument document;
    document.setHtml(first);
    const QString title = document.metaInformation(QTextDocument::DocumentTitle);
    pages.push_back({kFirstPage, title, QString(), document.toPlainText()});
    QSet<QString> known{kFirstPage};
    QString group;
    static const QRegularExpression kPart(
        QStringLiteral("<h2>(?<heading>.*?)</h2>|<a href=\"(?<file>[^\":#/]+\\.html)[^\"]*\"[^>]*>(?<title>.*?)</a>"),
        QRegularExpression::DotMatchesEverythingOption);
    for (const QRegularExpressionMatch& part : kPart.globalMatch(first)) {
        if (part.hasCaptured(u"heading")) group = PlainText(part.captured(u"heading"));
        const QString file = part.captured(u"file");
        if (file.isEmpty() || known.contains(file)) continue;
        known << file;
        pages.push_back({file, PlainText(part.captured(u"title")), group, PlainText(ReadPage(folder + u'/' + file))});
    }
    return pages;
}

HelpWindow::HelpWindow(const Words& words, QWidget* parent)
    : QMainWindow(parent, Qt::Window),
      words_(words),
      browser_(new QTextBrowser),
      tabs_(new QTabWidget),
      contents_(CreateList()),
      search_(new QLineEdit),
      hits_(CreateList()) {
    resize(kFirstSize);
    CreateToolBar();
    auto* searchPage = new QWidget;
    auto* rows = new QVBoxLayout(searchPage);
    rows->setContentsMargins(4, 4, 4, 4);
    search_->setClearButtonEnabled(true);
    rows->addWidget(search_);
    rows->addWidget(hits_);
    tabs_->setDocumentMode(true);
    tabs_->addTab(contents_, QString());
    tabs_->addTab(searchPage, QString());
    auto* splitter = new QSplitter;
    splitter->addWidget(tabs_);
    splitter->addWidget(browser_);
    splitter->setSizes({kListWidth, kFirstSize.width() - kListWidth});
    splitter->setStretchFactor(1, 1);
    browser_->setFrameShape(QFrame::NoFrame);
    browser_->document()->setDocumentMargin(16);
    browser_->setOpenLinks(false);
    setCentralWidget(splitter);
    connect(browser_, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) {
        const bool outside = url.scheme() == QStringLiteral("http") || url.scheme() == QStringLiteral("https");
        outside ? static_cast<void>(QDesktopServices::openUrl(url)) : browser_->setSource(url);
    });
    connect(browser_, &QTextBrowser::sourceChanged, this, &HelpWindow::FollowPage);
    connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) { Search(text); });
    Retranslate();
}

void HelpWindow::CreateToolBar() {
    QToolBar* bar = addToolBar(QString());
    bar->setMovable(false);
    bar->toggleViewAction()->setVisible(false);
    back_ = bar->addAction(StrokeIcon(QStringLiteral("back")), QString(), browser_, &QTextBrowser::backward);
    forward_ = bar->addAction(StrokeIcon(QStringLiteral("forward")), QString(), browser_, &QTextBrowser::forward);
    home_ = bar->addAction(StrokeIcon(QStringLiteral("home")), QString(), browser_, &QTextBrowser::home);
    back_->setShortcut(QKeySequence::Back);
    forward_->setShortcut(QKeySequence::Forward);
    back_->setEnabled(false);
    forward_->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, back_, &QAction::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward_, &QAction::setEnabled);
}

// Choosing a page by pointer or keyboard shows it.
QListWidget* HelpWindow::CreateList() {
    auto* list = new QListWidget;
    list->setFrameShape(QFrame::NoFrame);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setSpacing(2);
    connect(list, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item == nullptr || item->data(Qt::UserRole).isNull()) return;
        browser_->setSource(QUrl::fromLocalFile(folder_ + u'/' + item->data(Qt::UserRole).toString()));
    });
    return list;
}

void HelpWindow::Retranslate() {
    setWindowTitle(words_(Word::HelpTitle));
    tabs_->setTabText(0, words_(Word::HelpContentsTab));
    tabs_->setTabText(1, words_(Word::HelpSearchTab));
    search_->setPlaceholderText(words_(Word::HelpSearchHint));
    search_->setAccessibleName(words_(Word::HelpSearchHint));
    contents_->setAccessibleName(words_(Word::HelpContentsTab));
    hits_->setAccessibleName(words_(Word::HelpSearchTab));
    browser_->setAccessibleName(words_(Word::HelpTitle));
    back_->setText(words_(Word::HelpBack));
    forward_->setText(words_(Word::HelpForward));
    home_->setText(words_(Word::HelpHome));
    FillContents();
    Search(search_->text());
    FollowPage(browser_->source());
}

void HelpWindow::ShowHelp(const QString& folder) {
    if (folder != folder_ || pages_.empty()) Load(folder);
    if (pages_.empty()) {
        browser_->setPlainText(words_(Word::HelpMissing) + QStringLiteral("\n") + QDir::toNativeSeparators(folder));
    } else {
        browser_->setSource(QUrl::fromLocalFile(folder + u'/' + kFirstPage));
    }
    show();
    raise();
    activateWindow();
    contents_->setFocus();
}

void HelpWindow::Load(const QString& folder) {
    folder_ = folder;
    pages_ = ReadHelp(folder);
    FillContents();
}

// The pages below the headings of the first page.
void HelpWindow::FillContents() {
    contents_->clear();
    QString group;
    for (const HelpPage& page : pages_) {
        if (page.group != group) {
            auto* heading = new QListWidgetItem(InLanguage(page.group), contents_);
            QFont bold = contents_->font();
            bold.setBold(true);
            heading->setFont(bold);
            heading->setFlags(Qt::ItemIsEnabled);
            group = page.group;
        }
        AddItem(*contents_, page);
    }
}

// A title that is too long is cut, and told in full by its tool tip.
void HelpWindow::AddItem(QListWidget& list, const HelpPage& page) {
    auto* item = new QListWidgetItem(page.file == kFirstPage ? words_(Word::HelpHome) : InLanguage(page.title), &list);
    item->setData(Qt::UserRole, page.file);
    item->setToolTip(item->text());
}

// Titles say everything twice, in German and in English.
QString HelpWindow::InLanguage(const QString& title) const {
    const QStringList halves = title.split(QStringLiteral(" · "));
    return halves.size() == 2 ? halves[words_.English() ? 1 : 0] : title;
}

// A page that was reached by a link is marked in the contents too.
void HelpWindow::FollowPage(const QUrl& page) {
    for (int row = 0; row < contents_->count(); ++row) {
        const QVariant file = contents_->item(row)->data(Qt::UserRole);
        if (file.isNull() || file.toString() != page.fileName()) continue;
        const QSignalBlocker noJump(contents_);
        contents_->setCurrentRow(row);
    }
}

void HelpWindow::Search(const QString& words) {
    hits_->clear();
    const QStringList wanted = words.simplified().split(u' ', Qt::SkipEmptyParts);
    if (wanted.isEmpty()) return;
    for (const HelpPage& page : pages_) {
        const bool holdsAll = std::all_of(wanted.begin(), wanted.end(), [&](const QString& word) {
            return page.text.contains(word, Qt::CaseInsensitive);
        });
        if (holdsAll) AddItem(*hits_, page);
    }
    if (hits_->count() == 0) new QListWidgetItem(words_(Word::HelpNoHits), hits_);
}

}  // namespace zentlor::studio
