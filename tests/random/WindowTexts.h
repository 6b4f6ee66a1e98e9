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

    /// What is written otherwise, and what bears a text that nobody accounts for. Tips, words for
    /// screen readers and the entries of lists take their time, and are looked at only when it is
    /// thorough, or when they may just have changed.
    QStringList Complaints(const QWidget& window, const Book& book, bool thorough);

private:
    using Read = QString (*)(const QObject& object);

    /// A text that must be seen.
    struct Seen {
        const QObject* object; ///< lives as long as the window
        const char* what;
        Read read;
        QString text;
        bool mayBeAway = false;
    };

    QString Text(int number) const { return m_tables.at(m_spanish ? 1 : 0).value(number); }
    const QObject& Named(const QString& name) const;
    void ListAll(const QWidget& window, const Book& book);
    void ListLoan(const QWidget& window);
    void ListRow(int row);
    void ListUnaccounted(const QWidget& window);
    void ListTold(const QObject& object, int tip, int name, int ordinal);
    void ListWritten(const QObject& object, int number);
    QStringList ComplaintsOfSorting(char sorted) const;
    QStringList ComplaintsOfLists(const QWidget& window) const;

    std::array<QHash<int, QString>, 2> m_tables; ///< of English and of Spanish, by number
    QHash<QString, const QObject*> m_objects;    ///< of the window, by name
    std::vector<Seen> m_written;
    std::vector<Seen> m_told;
    QStringList m_unaccounted;
    QPointer<const QWidget> m_window;
    bool m_spanish = false;
    bool m_inMonths = false;
    std::size_t m_rows = 0;
};
