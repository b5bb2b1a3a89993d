#include "workbench/TypeChooser.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <utility>

#include "types/BarcodeTypes.h"
#include "workbench/Language.h"
#include "workbench/PagePhrases.h"
#include "workbench/Text.h"

namespace linewright {

namespace {

constexpr int kTypeRole = Qt::UserRole;
/** What the field looks at: all that people call a type. */
constexpr int kWordsRole = Qt::UserRole + 1;

constexpr std::array kGroups{Group::kRetail, Group::kLogistics, Group::kPostal, Group::kLibrary,
                             Group::kClassic};

const Phrase& TitleOf(Group group) {
    switch (group) {
        case Group::kRetail: return phrases::kRetailGroup;
        case Group::kLogistics: return phrases::kLogisticsGroup;
        case Group::kPostal: return phrases::kPostalGroup;
        case Group::kLibrary: return phrases::kLibraryGroup;
        case Group::kClassic: return phrases::kClassicGroup;
    }
    return phrases::kClassicGroup;
}

std::vector<const BarcodeType*> TypesOf(Group group) {
    std::vector<const BarcodeType*> types;
    for (const BarcodeType& type : kBarcodeTypes) {
        if (type.group == group) types.push_back(&type);
    }
    return types;
}

QString WordsOf(const TypeTexts& type) {
    const std::string_view shortName = type.type->shortName;
    return type.name + ' ' + QString(type.name).remove('-').remove(' ') + ' ' +
           QString::fromLatin1(shortName.data(), static_cast<qsizetype>(shortName.size())) + ' ' +
           type.usage;
}

const BarcodeType* TypeAt(const QModelIndex& index) {
    const QModelIndex first = index.siblingAtColumn(0);
    return static_cast<const BarcodeType*>(first.data(kTypeRole).value<const void*>());
}

}  // namespace

TypeChooser::TypeChooser(QWidget* parent) : QWidget(parent) {
    label = new QLabel(this);
    field = new QLineEdit(this);
    field->setObjectName(QStringLiteral("filter"));
    field->setClearButtonEnabled(true);
    field->installEventFilter(this);
    label->setBuddy(field);
    list = new QTreeView(this);
    list->setObjectName(QStringLiteral("types"));
    list->setHeaderHidden(true);
    // The line on what a type is for is cut with an ellipsis where there is little room.
    list->header()->setMinimumSectionSize(1);
    list->setRootIsDecorated(false);
    list->setItemsExpandable(false);
    list->setIndentation(list->indentation() / 2);
    list->setUniformRowHeights(true);
    list->setTabKeyNavigation(false);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    shown.setSourceModel(&model);
    shown.setRecursiveFilteringEnabled(true);
    shown.setFilterRole(kWordsRole);
    shown.setFilterCaseSensitivity(Qt::CaseInsensitive);
    list->setModel(&shown);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->addWidget(label);
    column->addWidget(field);
    column->addWidget(list, 1);
    connect(field, &QLineEdit::textChanged, this, [this](const QString& text) { Filter(text); });
    connect(list->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& index) { TakeCurrent(index); });
    setFocusProxy(list);
}

void TypeChooser::Speak(const std::vector<TypeTexts>& typeTexts, const QString& locale) {
    texts = typeTexts;
    language = locale;
    if (chosen == nullptr) chosen = texts.front().type;
    label->setText(Say(phrases::kFilter, locale));
    field->setAccessibleName(SpokenText(label->text()));
    field->setPlaceholderText(Say(phrases::kFilterHint, locale));
    list->setAccessibleName(Say(phrases::kTypes, locale));
    Fill();
}

void TypeChooser::SetRecent(const std::vector<const BarcodeType*>& types) {
    if (types == recent) return;
    recent = types;
    if (!texts.empty()) Fill();
}

void TypeChooser::StartSearch() {
    field->setFocus();
    field->selectAll();
}

const TypeTexts& TypeChooser::Chosen() const {
    return *std::find_if(texts.begin(), texts.end(),
                         [this](const TypeTexts& row) { return row.type == chosen; });
}

void TypeChooser::Choose(const BarcodeType* type) {
    chosen = type != nullptr ? type : &kBarcodeTypes.front();
    MarkChosen();
}

bool TypeChooser::eventFilter(QObject* watched, QEvent* event) {
    if (watched != field || event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Down && key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    // The first type that is left.
    const QModelIndex first = shown.index(0, 0, shown.index(0, 0));
    if (!first.isValid()) return true;
    if (!field->text().isEmpty()) list->setCurrentIndex(first);
    if (key == Qt::Key_Down) list->setFocus();
    return true;
}

void TypeChooser::Fill() {
    isFilling = true;
    model.clear();
    model.setColumnCount(2);
    if (!recent.empty()) AddGroup(Say(phrases::kRecentGroup, language), recent);
    for (const Group group : kGroups) AddGroup(Say(TitleOf(group), language), TypesOf(group));
    list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    ShowGroups();
}

void TypeChooser::ShowGroups() {
    list->expandAll();
    for (int row = 0; row < shown.rowCount(); ++row) list->setFirstColumnSpanned(row, {}, true);
    isFilling = false;
    MarkChosen();
}

void TypeChooser::AddGroup(const QString& title, const std::vector<const BarcodeType*>& types) {
    auto* const group = new QStandardItem(title);
    group->setSelectable(false);
    QFont font = list->font();
    font.setBold(true);
    group->setFont(font);
    group->setFlags(Qt::ItemIsEnabled);
    for (const BarcodeType* const type : types) {
        const auto found = std::find_if(texts.begin(), texts.end(),
                                        [&](const TypeTexts& row) { return row.type == type; });
        if (found == texts.end()) continue;
        auto* const name = new QStandardItem(found->name);
        name->setData(QVariant::fromValue(static_cast<const void*>(type)), kTypeRole);
        name->setData(WordsOf(*found), kWordsRole);
        name->setData(found->name + QLatin1String(": ") + found->usage, Qt::AccessibleTextRole);
        auto* const usage = new QStandardItem(found->usage);
        usage->setToolTip(found->usage);
        name->setToolTip(found->usage);
        group->appendRow({name, usage});
    }
    model.appendRow(group);
}

void TypeChooser::Filter(const QString& text) {
    // A row that goes takes the current one with it.
    isFilling = true;
    shown.setFilterFixedString(text.trimmed());
    ShowGroups();
}

void TypeChooser::MarkChosen() {
    QModelIndex marked;
    for (int group = 0; group < shown.rowCount(); ++group) {
        const QModelIndex parent = shown.index(group, 0);
        for (int row = 0; row < shown.rowCount(parent); ++row) {
            const QModelIndex index = shown.index(row, 0, parent);
            if (TypeAt(index) == chosen) marked = index;
        }
    }
    list->selectionModel()->setCurrentIndex(
        marked, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (marked.isValid()) list->scrollTo(marked);
}

void TypeChooser::TakeCurrent(const QModelIndex& index) {
    const BarcodeType* const type = TypeAt(index);
    if (isFilling || type == nullptr || type == chosen) return;
    chosen = type;
    if (typeChosen) typeChosen();
}

}  // namespace linewright
