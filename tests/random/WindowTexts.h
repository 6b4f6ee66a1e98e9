#pragma once

#include "Book.h"

#include <QHash>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <array>
#include <vector>

/// What is written on the window, by the table of texts of the language that the book says is on:
/// captions, headings and menus, tips, and what screen readers are told. Knows by itself which text
/// belongs to which control, so that a wrong number in a form is noticed, too.
class WindowTexts {
public:
    WindowTexts();

    /// What is written otherwise, and what bears a text that nobody accounts for. Tips and the
    /// words for screen readers take their time, and are looked at only when it is thorough, or
    /// when they may just have changed.
    QStringList Complaints(const QWidget& window, const Book& book, bool thorough);

private:
    /// A text that must be seen.
    struct Seen {
        QPointer<const QObject> object;
        const char* property;
        QString text;
    };

    QString Text(int number) const { return m_tables.at(m_spanish ? 1 : 0).value(number); }
    void ListAll(const QWidget& window, const Book& book);
    void ListLoan(const QWidget& window);
    void ListRow(const QWidget& window, int row);
    void ListUnaccounted(const QWidget& window);
    void ListTold(const QObject& object, int tip, int name, int ordinal);
    void ListWritten(const QObject& object, int number);
    QStringList ComplaintsOfLists(const QWidget& window) const;

    std::array<QHash<int, QString>, 2> m_tables; ///< of English and of Spanish, by number
    std::vector<Seen> m_written;
    std::vector<Seen> m_told; ///< tips, and what screen readers are told
    QStringList m_unaccounted;
    QPointer<const QWidget> m_window;
    bool m_spanish = false;
    bool m_inMonths = false;
    std::size_t m_rows = 0;
    char m_sorted = 0;
};
