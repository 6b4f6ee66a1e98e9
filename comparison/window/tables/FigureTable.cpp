#include "FigureTable.h"

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
#include <QStyle>
#include <QStyleOptionHeader>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace quend::compare {

namespace {

constexpr int MostCharacters = 30; ///< the initial width of a column for long texts
constexpr int MostRowsMeasured = 64;
constexpr int MostHeadingWidth = 1000;
constexpr int RowMargin = 6;
constexpr int LeastColumnWidth = 24;
constexpr const char* HelpTopic = "helpTopic";

} // namespace

FigureTable::FigureTable(QWidget* parent)
    : QTableView(parent), m_delegate(new EntryDelegate(this)) {
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
    connect(header, &QHeaderView::sortIndicatorChanged, this, [this] { FitLater(Fit::Widen); });
    connect(header, &QHeaderView::sectionResized, this, [this](int column, int before, int now) {
        // A column that is hidden or shown is "resized", too.
        if (!m_fitting && before > 0 && now > 0) {
            m_widened.insert(column);
        }
    });
}

void FigureTable::setModel(QAbstractItemModel* model) {
    if (this->model() != nullptr) {
        this->model()->disconnect(this);
    }
    QTableView::setModel(model);
    setSortingEnabled(qobject_cast<QSortFilterProxyModel*>(model) != nullptr);
    if (model != nullptr) {
        WatchContent(*model);
        ShowUsualColumns();
    }
}

void FigureTable::WatchContent(const QAbstractItemModel& model) {
    const auto widen = [this] { FitLater(Fit::Widen); };
    const auto exactly = [this] { FitLater(Fit::Exactly); };
    connect(&model, &QAbstractItemModel::dataChanged, this, widen);
    connect(&model, &QAbstractItemModel::rowsInserted, this, widen);
    connect(&model, &QAbstractItemModel::modelReset, this, exactly);
    connect(&model, &QAbstractItemModel::headerDataChanged, this, exactly);
}

// Columns

/// A posted call precedes the next paint, which has a lower priority.
void FigureTable::FitLater(Fit fit) {
    if (std::exchange(m_fit, std::max(m_fit, fit)) == Fit::None) {
        QMetaObject::invokeMethod(this, &FigureTable::FitColumns, Qt::QueuedConnection);
    }
}

void FigureTable::FitColumns() {
    const bool mayShrink = std::exchange(m_fit, Fit::None) == Fit::Exactly;
    if (model() == nullptr) {
        return;
    }
    m_fitting = true;
    for (int column = 0; column < model()->columnCount(); ++column) {
        if (!isColumnHidden(column) && !m_widened.contains(column)) {
            const int width = WidthOfContent(column);
            setColumnWidth(column, mayShrink ? width : std::max(width, columnWidth(column)));
        }
    }
    m_fitting = false;
}

/// Of a long table some rows are measured, the last one included, where sums are largest.
int FigureTable::WidthOfContent(int column) const {
    const int rows = model()->rowCount();
    const int step = std::max(1, rows / MostRowsMeasured);
    int width = 0;
    for (int row = rows - 1; row >= 0; row -= step) {
        width = std::max(width, sizeHintForIndex(model()->index(row, column)).width());
    }
    const int most = fontMetrics().averageCharWidth() * MostCharacters;
    return std::max(std::min(width, most) + (showGrid() ? 1 : 0), WidthOfHeading(column));
}

/// Only the sorted column has an arrow. The header's own hint reserves one everywhere, as wide as
/// two lines are high.
int FigureTable::WidthOfHeading(int column) const {
    const QHeaderView* header = horizontalHeader();
    QStyleOptionHeader option;
    option.initFrom(header);
    option.state |= QStyle::State_Horizontal;
    option.rect = QRect(0, 0, MostHeadingWidth, header->sizeHint().height());
    option.sortIndicator = header->sortIndicatorSection() == column ? QStyleOptionHeader::SortDown
                                                                    : QStyleOptionHeader::None;
    const QRect text = header->style()->subElementRect(QStyle::SE_HeaderLabel, &option, header);
    const QString heading = model()->headerData(column, Qt::Horizontal).toString();
    return header->fontMetrics().size(0, heading).width() + MostHeadingWidth - text.width();
}

void FigureTable::FitRows() {
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + RowMargin);
}

std::vector<ColumnState> FigureTable::Columns() const {
    std::vector<ColumnState> columns;
    for (int place = 0; place < horizontalHeader()->count(); ++place) {
        const int column = horizontalHeader()->logicalIndex(place);
        const bool hidden = isColumnHidden(column);
        const bool kept = m_widened.contains(column) && !hidden;
        columns.push_back(
            {.column = column, .width = kept ? columnWidth(column) : 0, .hidden = hidden});
    }
    return columns;
}

void FigureTable::Arrange(const std::vector<ColumnState>& columns) {
    m_widened.clear();
    int place = 0;
    for (const ColumnState& state : columns) {
        horizontalHeader()->moveSection(horizontalHeader()->visualIndex(state.column), place++);
        setColumnHidden(state.column, state.hidden && state.column != 0);
        if (state.width > 0) {
            setColumnWidth(state.column, state.width);
            m_widened.insert(state.column);
        }
    }
    FitLater(Fit::Exactly);
}

void FigureTable::ShowUsualColumns() {
    std::vector<ColumnState> columns;
    for (int column = 0; column < model()->columnCount(); ++column) {
        const bool hidden = model()->headerData(column, Qt::Horizontal, HiddenAtFirstRole).toBool();
        columns.push_back({.column = column, .hidden = hidden});
    }
    Arrange(columns);
}

QByteArray FigureTable::SaveColumns() const { return WriteColumns(Columns()); }

bool FigureTable::RestoreColumns(const QByteArray& bytes) {
    const auto columns = ReadColumns(bytes, horizontalHeader()->count());
    if (columns) {
        ShowUsualColumns();
        Arrange(*columns);
    }
    return columns.has_value();
}

std::vector<int> FigureTable::ShownColumns() const {
    std::vector<int> columns;
    for (const ColumnState& state : Columns()) {
        if (!state.hidden) {
            columns.push_back(state.column);
        }
    }
    return columns;
}

void FigureTable::ShowColumn(int column, bool shown) {
    setColumnHidden(column, !shown && column != 0);
    FitLater(Fit::Widen);
}

/// The visual place of the next column that is shown; -1 if there is none.
int FigureTable::NeighbourOf(int column, int direction) const {
    const QHeaderView* header = horizontalHeader();
    int place = header->visualIndex(column) + direction;
    while (place >= 0 && place < header->count() &&
           header->isSectionHidden(header->logicalIndex(place))) {
        place += direction;
    }
    return place < header->count() ? place : -1;
}

bool FigureTable::CanMove(int column, int direction) const {
    return NeighbourOf(column, direction) >= 0;
}

void FigureTable::MoveColumn(int column, int direction) {
    if (CanMove(column, direction)) {
        horizontalHeader()->moveSection(horizontalHeader()->visualIndex(column),
                                        NeighbourOf(column, direction));
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

TableCells FigureTable::CellsToCopy() const {
    TableCells all = WholeTable(*model(), ShownColumns());
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
    setProperty(HelpTopic, current.isValid() ? TopicOfColumn(current.column()) : QVariant());
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
        FitLater(Fit::Exactly);
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
