#include "studio/dialogs.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "studio/icons.h"
#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

// A dialog of `content` above a row of buttons.
void AddButtons(QDialog& dialog, QVBoxLayout& rows, QDialogButtonBox::StandardButtons buttons) {
    auto* box = new QDialogButtonBox(buttons);
    rows.addWidget(box);
    QObject::connect(box, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(box, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
}

QLabel* WrappedLabel(const QString& text) {
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

void FillAddInRow(const Words& words, AddInManager& manager, QTreeWidgetItem& row) {
    const bool atStart = manager.LoadsAtStart();
    QString behaviour = words(manager.Loaded() ? Word::AddInLoaded : Word::AddInNotLoaded);
    behaviour += QStringLiteral(" (") + words(atStart ? Word::AtStart : Word::OnDemand) + u')';
    row.setText(0, ToQString(kRegistration.displayName));
    row.setText(1, behaviour);
}

}  // namespace

void ShowEditorOptions(const Words& words, StudioSettings& settings, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(words(Word::OptionsTitle));
    auto* page = new QWidget;
    auto* pageRows = new QVBoxLayout(page);
    auto* group = new QGroupBox(words(Word::CodeSettings));
    auto* groupRows = new QVBoxLayout(group);
    auto* require = new QCheckBox(words(Word::RequireDeclaration));
    require->setChecked(settings.RequireDeclaration() == u"1");
    QLabel* help = WrappedLabel(words(Word::RequireDeclarationHelp));
    help->setMinimumWidth(380);
    help->setForegroundRole(QPalette::PlaceholderText);
    groupRows->addWidget(require);
    groupRows->addWidget(help);
    pageRows->addWidget(group);
    pageRows->addStretch();
    auto* tabs = new QTabWidget;
    tabs->addTab(page, words(Word::EditorTab));
    auto* rows = new QVBoxLayout(&dialog);
    rows->addWidget(tabs);
    AddButtons(dialog, *rows, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    if (dialog.exec() == QDialog::Accepted) settings.SetRequireDeclaration(require->isChecked());
}

void ShowAddInManager(const Words& words, AddInManager& manager, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(words(Word::AddInManagerTitle));
    auto* list = new QTreeWidget;
    list->setRootIsDecorated(false);
    list->setHeaderLabels({words(Word::AvailableAddIns), words(Word::LoadBehaviour)});
    list->setAccessibleName(words(Word::AvailableAddIns));
    list->header()->resizeSection(0, 200);
    list->setMinimumSize(430, 130);
    auto* row = new QTreeWidgetItem(list);
    row->setIcon(0, StrokeIcon(QStringLiteral("mark")));
    list->setCurrentItem(row);
    FillAddInRow(words, manager, *row);
    auto* loaded = new QCheckBox(words(Word::Loaded));
    loaded->setChecked(manager.Loaded());
    auto* atStart = new QCheckBox(words(Word::LoadAtStart));
    atStart->setChecked(manager.LoadsAtStart());
    auto* rows = new QVBoxLayout(&dialog);
    rows->addWidget(list);
    rows->addWidget(
        WrappedLabel(words(Word::Description) + QStringLiteral(": ") + ToQString(kRegistration.description)));
    rows->addWidget(loaded);
    rows->addWidget(atStart);
    AddButtons(dialog, *rows, QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    if (dialog.exec() != QDialog::Accepted) return;
    manager.SetLoadsAtStart(atStart->isChecked());
    loaded->isChecked() ? manager.Load() : manager.Unload();
}

void ShowReferences(const Words& words, const workspace::OpenedProject& opened, QWidget* parent) {
    QDialog dialog(parent);
    dialog.setWindowTitle(words(Word::ReferencesTitle).arg(ToQString(opened.project->Name())));
    auto* list = new QListWidget;
    list->setAccessibleName(dialog.windowTitle());
    list->setMinimumSize(460, 240);
    for (const Text& reference : opened.document.references) list->addItem(ToQString(reference));
    if (list->count() == 0) {
        list->addItem(words(Word::NoReferences));
        list->setEnabled(false);
    }
    auto* rows = new QVBoxLayout(&dialog);
    rows->addWidget(list);
    AddButtons(dialog, *rows, QDialogButtonBox::Close);
    dialog.exec();
}

void ShowProperties(const Words& words, const workspace::OpenedProject& opened, QWidget* parent) {
    const readers::Document& document = opened.document;
    QDialog dialog(parent);
    dialog.setWindowTitle(words(Word::PropertiesTitle).arg(ToQString(opened.project->Name())));
    auto* form = new QFormLayout;
    const auto add = [&](Word word, const QString& value) {
        if (!value.isEmpty()) form->addRow(words(word) + u':', WrappedLabel(value));
    };
    add(Word::PropertyPath, QDir::toNativeSeparators(QString::fromStdString(document.path)));
    add(Word::PropertyKind, opened.isDocument ? words.Of(document.description) : words(Word::PropertyFolder));
    add(Word::PropertyApplication, QString::fromStdString(document.application));
    add(Word::PropertyCodePage, document.codePage == 0 ? QString() : QString::number(document.codePage));
    add(Word::PropertyLocked, document.locked ? words(Word::PropertyLockedYes) : QString());
    add(Word::PropertyModules, QString::number(opened.project->VBComponents().size()));
    add(Word::PropertyLines, QString::number(opened.LineCount()));
    auto* rows = new QVBoxLayout(&dialog);
    rows->addLayout(form);
    rows->addStretch();
    AddButtons(dialog, *rows, QDialogButtonBox::Close);
    dialog.setMinimumWidth(440);
    dialog.exec();
}

}  // namespace zentlor::studio
