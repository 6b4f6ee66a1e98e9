#include "FigureTable.h"

#include "ColumnLayout.h"
#include "ColumnMenu.h"
#include "EntryDelegate.h"
#include "Figures.h"
#include "TableRoles.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>
#include <QSortFilterProxyModel>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <utility>

namespace quend::compare {

namespace {

constexpr int RowMargin = 6;
constexpr int LeastColumnWidth = 24;
constexpr const char* HelpTopic = "helpTopic";

} // namespace

FigureTable::FigureTable(QWidget* parent)
    : QTableView(parent), m_delegate(new EntryDelegate(this)),
      m_columns(std::make_unique<ColumnLayout>(*this)) {
    setItemDelegate(m_delegate);
    setSelectionBehavior(SelectItems);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setHorizontalScrollMode(ScrollPerPixel);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setWordWrap(false);
    setMouseTracking(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    SetUpHeader();
    FitRows();
}

void FigureTable::SetUpHeader() {
    QHeaderView* header = horizontalHeader();
    header->setSectionsMovable(true);
    header->setSectionsClickable(true);
    header->setHighlightSections(false);
    header->setMinimumSectionSize(LeastColumnWidth);
    header->setSortIndicator(-1, Qt::AscendingOrder);
    header->setSortIndicatorClearable(true);
    header->setMouseTracking(true);
    header->viewport()->installEventFilter(this);
    header->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(header, &QWidget::customContextMenuRequested, this, [this, header](const QPoint& at) {
        ShowMenu(header->logicalIndexAt(at), header->viewport()->mapToGlobal(at));
    });
}

FigureTable::~FigureTable() = default;

void FigureTable::setModel(QAbstractItemModel* model) {
    if (this->model() != nullptr) {
        this->model()->disconnect(m_columns.get());
    }
    QTableView::setModel(model);
    setSortingEnabled(qobject_cast<QSortFilterProxyModel*>(model) != nullptr);
    if (model != nullptr) {
        m_columns->Follow(*model);
        ShowUsualColumns();
    }
}

void FigureTable::ShowRowHeadings() { verticalHeader()->show(); }

// Columns

void FigureTable::FitRows() {
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowMargin);
}

void FigureTable::ShowUsualColumns() {
    std::vector<ColumnState> columns;
    for (int column = 0; column < model()->columnCount(); ++column) {
        const bool hidden = model()->headerData(column, Qt::Horizontal, HiddenAtFirstRole).toBool();
        columns.push_back({.column = column, .hidden = hidden});
    }
    m_columns->Arrange(columns);
}

QByteArray FigureTable::SaveColumns() const { return WriteColumns(m_columns->Columns()); }

bool FigureTable::RestoreColumns(const QByteArray& bytes) {
    const auto columns = ReadColumns(bytes, horizontalHeader()->count());
    if (columns) {
        ShowUsualColumns();
        m_columns->Arrange(*columns);
    }
    return columns.has_value();
}

std::vector<int> FigureTable::ShownColumns() const {
    std::vector<int> columns;
    for (const ColumnState& state : m_columns->Columns()) {
        if (!state.hidden) {
            columns.push_back(state.column);
        }
    }
    return columns;
}

void FigureTable::ShowColumn(int column, bool shown) { m_columns->Show(column, shown); }

bool FigureTable::CanMove(int column, int direction) const {
    return m_columns->NeighbourOf(column, direction) >= 0;
}

void FigureTable::MoveColumn(int column, int direction) {
    if (const int place = m_columns->NeighbourOf(column, direction); place >= 0) {
        horizontalHeader()->moveSection(horizontalHeader()->visualIndex(column), place);
    }
}

void FigureTable::SortBy(int column) {
    QHeaderView* header = horizontalHeader();
    if (header->sortIndicatorSection() != column) {
        header->setSortIndicator(column, Qt::AscendingOrder);
    } else if (header->sortIndicatorOrder() == Qt::AscendingOrder) {
        header->setSortIndicator(column, Qt::DescendingOrder);
    } else {
        header->setSortIndicator(-1, Qt::AscendingOrder);
    }
}

// Copying and editing

TableCells FigureTable::AllCells() const {
    TableCells all = WholeTable(*model(), ShownColumns());
    all.rowHeadings = !verticalHeader()->isHidden();
    return all;
}

TableCells FigureTable::CellsToCopy() const {
    TableCells all = AllCells();
    const auto isSelected = [this](int row, int column) {
        return selectionModel()->isSelected(model()->index(row, column));
    };
    const auto hasSelected = [&](const auto& cells, const auto& isSelectedAt) {
        return std::ranges::any_of(cells, isSelectedAt);
    };
    TableCells some{.model = model(), .headings = false, .selection = selectionModel()};
    std::ranges::copy_if(all.columns, std::back_inserter(some.columns), [&](int column) {
        return hasSelected(all.rows, [&](int row) { return isSelected(row, column); });
    });
    std::ranges::copy_if(all.rows, std::back_inserter(some.rows), [&](int row) {
        return hasSelected(some.columns, [&](int column) { return isSelected(row, column); });
    });
    const bool isAll = std::ranges::all_of(all.rows, [&](int row) {
        return std::ranges::all_of(all.columns,
                                   [&](int column) { return isSelected(row, column); });
    });
    return isAll || some.rows.empty() ? all : some;
}

void FigureTable::Copy() const {
    QGuiApplication::clipboard()->setMimeData(
        TableMime(CellsToCopy(), SymbolsOf(locale()).decimal).release());
}

void FigureTable::AllowKeys(std::function<bool(QChar)> allows) {
    m_delegate->AllowKeys(std::move(allows));
}

bool FigureTable::CommitEntry() {
    for (auto* editor : viewport()->findChildren<QLineEdit*>(EntryDelegate::EditorName())) {
        if (IsOpen(*editor)) {
            m_delegate->ForgetRefusal();
            commitData(editor);
            closeEditor(editor, QAbstractItemDelegate::NoHint);
        }
    }
    return !m_delegate->WasRefused();
}

/// A closed editor is hidden until it is deleted.
bool FigureTable::IsOpen(const QWidget& editor) const { return editor.isVisibleTo(viewport()); }

bool FigureTable::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
    const bool isTyped = trigger == AnyKeyPressed && event != nullptr;
    if (isTyped && !m_delegate->Allows(*static_cast<QKeyEvent*>(event))) {
        return false;
    }
    return QTableView::edit(index, trigger, event);
}

/// A refused entry is kept, like one in the main window; only Escape gives it up. Storing an entry
/// may have closed the editor with its row.
void FigureTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
    if (!IsOpen(*editor)) {
        m_delegate->ForgetRefusal();
        return;
    }
    if (m_delegate->WasRefused() && hint != QAbstractItemDelegate::RevertModelCache) {
        // Later, because the focus may be on its way to another control.
        QTimer::singleShot(0, editor, [editor] { editor->setFocus(); });
        return;
    }
    m_delegate->ForgetRefusal();
    QTableView::closeEditor(editor, hint);
}

// Events

void FigureTable::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (current.isValid()) { // otherwise that of the table stays
        setProperty(HelpTopic, TopicOfColumn(current.column()));
    }
    const QVariant place = current.data(PlaceRole);
    const QVariant figure = current.data(FigureRole);
    if (place.isValid() && figure.isValid()) {
        Q_EMIT CurrentFigureChanged(place.toInt(), static_cast<Figure>(figure.toInt()));
    }
}

QVariant FigureTable::TopicOfColumn(int column) const {
    return column < 0 || model() == nullptr
               ? QVariant()
               : model()->headerData(column, Qt::Horizontal, HelpTopicRole);
}

void FigureTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy) && model() != nullptr) {
        Copy();
        return;
    }
    QTableView::keyPressEvent(event);
}

void FigureTable::ShowMenu(int column, const QPoint& at) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    FillColumnMenu(*menu, *this, column);
    menu->popup(at);
}

/// By key it opens below the heading of the current cell.
void FigureTable::contextMenuEvent(QContextMenuEvent* event) {
    if (model() == nullptr) {
        return;
    }
    if (event->reason() == QContextMenuEvent::Keyboard) {
        const int column = currentIndex().column();
        const int x = std::max(0, column < 0 ? 0 : columnViewportPosition(column));
        ShowMenu(column, viewport()->mapToGlobal(QPoint(x, 0)));
    } else {
        ShowMenu(columnAt(event->x()), event->globalPos());
    }
}

void FigureTable::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        FitRows();
        m_columns->FitLater(ColumnLayout::Fit::Exactly);
    }
}

bool FigureTable::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        const int x = static_cast<QMouseEvent*>(event)->position().toPoint().x();
        viewport()->setProperty(HelpTopic, TopicOfColumn(columnAt(x)));
    }
    return QTableView::viewportEvent(event);
}

bool FigureTable::eventFilter(QObject* watched, QEvent* event) {
    if (watched == horizontalHeader()->viewport() && event->type() == QEvent::MouseMove) {
        const int x = static_cast<QMouseEvent*>(event)->position().toPoint().x();
        const int column = horizontalHeader()->logicalIndexAt(x);
        watched->setProperty(HelpTopic, TopicOfColumn(column));
    }
    return QTableView::eventFilter(watched, event);
}

} // namespace quend::compare
