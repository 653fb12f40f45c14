#include "studio/code_tabs.h"

#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "studio/icons.h"
#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

// Where a reader stood in a text, to be found again in a newer one.
struct Place {
    explicit Place(const CodeView& view)
        : line(view.CurrentLine()), column(view.CurrentColumn()), scroll(view.verticalScrollBar()->value()) {}
    void Restore(CodeView& view) const {
        const int last = std::min(line, view.LineCount());
        view.Select(last, column, last, column);
        view.verticalScrollBar()->setValue(scroll);
    }
    int line, column, scroll;
};

}  // namespace

QIcon ComponentIcon(int type) {
    switch (type) {
        case vbext_ct_StdModule:
            return StrokeIcon(QStringLiteral("module"));
        case vbext_ct_ClassModule:
            return StrokeIcon(QStringLiteral("class"));
        case vbext_ct_MSForm:
            return StrokeIcon(QStringLiteral("form"));
        default:
            return StrokeIcon(QStringLiteral("document"));
    }
}

CodeTabs::CodeTabs(const Words& words, OpenProjects& projects, QWidget* parent)
    : QTabWidget(parent), words_(words), projects_(projects) {
    setDocumentMode(true);
    setTabsClosable(true);
    setMovable(true);
    setElideMode(Qt::ElideMiddle);
    Retranslate();
    connect(this, &QTabWidget::tabCloseRequested, this, [this](int index) { Close(index); });
    connect(this, &QTabWidget::currentChanged, this, &CodeTabs::ViewChanged);
    connect(&projects_, &OpenProjects::Replaced, this, [this] { FollowProjects(); });
}

void CodeTabs::Retranslate() {
    setAccessibleName(words_(Word::OpenModules));
    for (const Pane& pane : panes_) {
        pane.view->setAccessibleName(words_(Word::CodeOf).arg(ToQString(pane.component)));
    }
}

CodeView* CodeTabs::CurrentView() const {
    return static_cast<CodeView*>(currentWidget());
}

const VBComponent* CodeTabs::CurrentComponent() const {
    for (const Pane& pane : panes_) {
        if (pane.view == currentWidget()) return pane.shown;
    }
    return nullptr;
}

CodeView& CodeTabs::Show(const VBComponent& component) {
    const auto isShown = [&](const Pane& pane) { return pane.shown == &component; };
    const auto found = std::find_if(panes_.begin(), panes_.end(), isShown);
    CodeView* view = found == panes_.end() ? Create(component) : found->view;
    setCurrentWidget(view);
    return *view;
}

CodeView* CodeTabs::Create(const VBComponent& component) {
    const std::vector<workspace::OpenedProject>& all = projects_.All();
    const auto project = std::find_if(all.begin(), all.end(), [&](const workspace::OpenedProject& opened) {
        return opened.project.get() == &component.Project();
    });
    const Pane pane{new CodeView, &component, static_cast<std::size_t>(project - all.begin()),
                    component.Project().Name(), component.Name()};
    pane.view->zoomIn(zoom_);
    pane.view->SetCode(component.CodeModule().AllText());
    pane.view->setAccessibleName(words_(Word::CodeOf).arg(ToQString(component.Name())));
    pane.view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(pane.view, &QWidget::customContextMenuRequested, this, [this, view = pane.view](const QPoint& position) {
        Q_EMIT ContextMenuWanted(view->viewport()->mapToGlobal(position));
    });
    connect(pane.view, &QPlainTextEdit::cursorPositionChanged, this, &CodeTabs::CaretMoved);
    Mark(pane);
    panes_.push_back(pane);
    addTab(pane.view, ComponentIcon(component.Type()), ToQString(component.Name()));
    return pane.view;
}

void CodeTabs::Close(int index) {
    QWidget* view = widget(index);
    if (view == nullptr) return;
    std::erase_if(panes_, [view](const Pane& pane) { return pane.view == view; });
    removeTab(index);
    view->deleteLater();
}

// Of several projects of the name the one at the old place.
const VBComponent* CodeTabs::FindComponent(const Pane& pane) const {
    const VBComponent* found = nullptr;
    for (std::size_t i = 0; i < projects_.All().size(); ++i) {
        const VBProject& project = *projects_.All()[i].project;
        if (project.Name() != pane.project || (found != nullptr && i != pane.projectIndex)) continue;
        for (const auto& component : project.VBComponents()) {
            if (component->Name() == pane.component) found = component.get();
        }
    }
    return found;
}

// Panes of modules that are still there show their new text, the others close.
void CodeTabs::FollowProjects() {
    for (Pane& pane : panes_) pane.shown = FindComponent(pane);
    SetHints(nullptr, nullptr);
    for (const Pane& pane : std::vector<Pane>(panes_)) {
        if (pane.shown == nullptr) {
            Close(indexOf(pane.view));
            continue;
        }
        const Place place(*pane.view);
        pane.view->SetCode(pane.shown->CodeModule().AllText());
        place.Restore(*pane.view);
    }
}

void CodeTabs::SetHints(const ResultList* hints, const VBProject* project) {
    hints_ = hints;
    hintsProject_ = project;
    for (const Pane& pane : panes_) Mark(pane);
}

void CodeTabs::Mark(const Pane& pane) const {
    std::map<int, QString> marks;
    const bool mayHaveHints = hints_ != nullptr && pane.shown != nullptr && &pane.shown->Project() == hintsProject_;
    if (mayHaveHints) {
        Hint last;
        for (const Hint& hint : hints_->Emitted()) {
            if (hint.strNameVBC != pane.component || hint == last)
                continue;  // a line may hold a thing a thousand times
            last = hint;
            QString& text = marks[std::max(hint.lngZeile, 1)];
            if (!text.isEmpty()) text += u'\n';
            text += ToQString(hint.strHinweis);
        }
    }
    pane.view->SetMarks(std::move(marks));
}

void CodeTabs::Zoom(int steps) {
    constexpr int kFurthest = 12;
    const int wanted = steps == 0 ? 0 : std::clamp(zoom_ + steps, -4, kFurthest);
    for (const Pane& pane : panes_) pane.view->zoomIn(wanted - zoom_);
    zoom_ = wanted;
}

}  // namespace zentlor::studio
