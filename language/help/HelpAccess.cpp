#include "HelpAccess.h"

#include "HelpView.h"
#include "HelpWindow.h"

#include <QAccessible>
#include <QAccessibleTextInterface>
#include <QAccessibleWidget>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

#include <algorithm>
#include <memory>

namespace quend::help {

namespace {

class WindowAccess final : public QAccessibleWidget {
public:
    explicit WindowAccess(QWidget& window) : QAccessibleWidget(&window, QAccessible::Window) {}
};

/// The page as an accessible document, readable by character, word, line and sentence.
class PageAccess final : public QAccessibleWidget, public QAccessibleTextInterface {
public:
    explicit PageAccess(HelpView& view)
        : QAccessibleWidget(&view, QAccessible::Document), m_view(&view) {}

    using QAccessibleWidget::text;

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.multiLine = true;
        return state;
    }

    QString text(int start, int end) const override {
        return m_view->toPlainText().mid(start, end - start);
    }
    int characterCount() const override { return static_cast<int>(m_view->toPlainText().size()); }
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                             int* end) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                         int* end) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                            int* end) const override;
    QString attributes(int offset, int* start, int* end) const override;

    int cursorPosition() const override { return m_view->textCursor().position(); }
    void setCursorPosition(int position) override { Select(position, position); }
    int selectionCount() const override { return m_view->textCursor().hasSelection() ? 1 : 0; }
    void selection(int index, int* start, int* end) const override;
    void addSelection(int start, int end) override { Select(start, end); }
    void setSelection(int index, int start, int end) override;
    void removeSelection(int index) override;

    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;

private:
    /// A cursor at the offset, clamped to the text.
    QTextCursor At(int offset) const {
        QTextCursor cursor(m_view->document());
        cursor.setPosition(std::clamp(offset, 0, characterCount()));
        return cursor;
    }
    void Select(int start, int end) {
        QTextCursor cursor = At(start);
        cursor.setPosition(At(end).position(), QTextCursor::KeepAnchor);
        m_view->setTextCursor(cursor);
    }
    QString Line(int offset, int* start, int* end) const;
    QString None(int* start, int* end) const;

    HelpView* m_view;
};

/// Qt knows only the lines of a text field, not the wrapped lines of a page.
QString PageAccess::Line(int offset, int* start, int* end) const {
    QTextCursor cursor = At(offset);
    cursor.movePosition(QTextCursor::StartOfLine);
    *start = cursor.position();
    cursor.movePosition(QTextCursor::EndOfLine);
    *end = cursor.position();
    return text(*start, *end);
}

QString PageAccess::None(int* start, int* end) const {
    *start = *end = -1;
    return {};
}

QString PageAccess::textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                                     int* end) const {
    if (boundary != QAccessible::LineBoundary) {
        return QAccessibleTextInterface::textBeforeOffset(offset, boundary, start, end);
    }
    Line(offset, start, end);
    return *start > 0 ? Line(*start - 1, start, end) : None(start, end);
}

QString PageAccess::textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                                 int* end) const {
    return boundary == QAccessible::LineBoundary
               ? Line(offset, start, end)
               : QAccessibleTextInterface::textAtOffset(offset, boundary, start, end);
}

QString PageAccess::textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* start,
                                    int* end) const {
    if (boundary != QAccessible::LineBoundary) {
        return QAccessibleTextInterface::textAfterOffset(offset, boundary, start, end);
    }
    Line(offset, start, end);
    return *end < characterCount() ? Line(*end + 1, start, end) : None(start, end);
}

/// Only the font attributes that distinguish headings and field names from the text.
QString PageAccess::attributes(int offset, int* start, int* end) const {
    const QTextBlock block = At(offset).block();
    for (auto part = block.begin(); part != block.end(); ++part) {
        const QTextFragment run = part.fragment();
        if (run.contains(offset)) {
            *start = run.position();
            *end = run.position() + run.length();
            const bool bold = run.charFormat().fontWeight() >= QFont::Bold;
            return bold ? QStringLiteral("font-weight:bold;") : QString();
        }
    }
    *start = offset;
    *end = std::min(offset + 1, characterCount());
    return {};
}

void PageAccess::selection(int index, int* start, int* end) const {
    const QTextCursor cursor = m_view->textCursor();
    const bool there = index == 0 && cursor.hasSelection();
    *start = there ? cursor.selectionStart() : 0;
    *end = there ? cursor.selectionEnd() : 0;
}

void PageAccess::setSelection(int index, int start, int end) {
    if (index == 0) {
        Select(start, end);
    }
}

void PageAccess::removeSelection(int index) {
    if (index == 0) {
        setCursorPosition(cursorPosition());
    }
}

QRect PageAccess::characterRect(int offset) const {
    const QTextCursor cursor = At(offset);
    QTextCursor next = cursor;
    next.movePosition(QTextCursor::NextCharacter);
    QRect place = m_view->cursorRect(cursor);
    const QRect after = m_view->cursorRect(next);
    if (after.top() == place.top() && after.left() > place.left()) {
        place.setRight(after.left() - 1);
    }
    place.moveTopLeft(m_view->viewport()->mapToGlobal(place.topLeft()));
    return place;
}

int PageAccess::offsetAtPoint(const QPoint& point) const {
    return m_view->cursorForPosition(m_view->viewport()->mapFromGlobal(point)).position();
}

void PageAccess::scrollToSubstring(int start, int /*end*/) {
    QScrollBar& bar = *m_view->verticalScrollBar();
    bar.setValue(bar.value() + m_view->cursorRect(At(start)).top());
}

/// Qt owns the result.
QAccessibleInterface* MakeHelpAccess(const QString& className, QObject* object) {
    if (className == QLatin1String(HelpWindow::staticMetaObject.className())) {
        return std::make_unique<WindowAccess>(*qobject_cast<QWidget*>(object)).release();
    }
    auto* view = className == QLatin1String(HelpView::staticMetaObject.className())
                     ? qobject_cast<HelpView*>(object)
                     : nullptr;
    return view ? std::make_unique<PageAccess>(*view).release() : nullptr;
}

} // namespace

void InstallHelpAccess() { QAccessible::installFactory(MakeHelpAccess); }

} // namespace quend::help
