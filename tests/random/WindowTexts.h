#pragma once

#include "ReferenceModel.h"

#include <QHash>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <array>
#include <vector>

/// The texts of the window in the language of the reference model: captions, headings, menus,
/// tooltips, and accessible texts. It has a separate table of which text belongs to which control,
/// so that it detects a wrong number in a form.
class WindowTexts {
public:
    WindowTexts();

    /// Lists wrong texts, and controls with an unexpected text. Tooltips, accessible texts and list
    /// entries take time: they are checked only if `thorough`, or after a possible change.
    QStringList Complaints(const QWidget& window, const ReferenceModel& model, bool thorough);

private:
    using Read = QString (*)(const QObject& object);

    /// A text that must be shown.
    struct Seen {
        const QObject* object; ///< lives as long as the window
        const char* what;
        Read read;
        QString text;
        bool mayBeAway = false;
    };

    QString Text(int number) const { return m_tables.at(m_spanish ? 1 : 0).value(number); }
    QString TitleOf(const ReferenceModel& model) const;
    const QObject& Named(const QString& name) const;
    void ListAll(const QWidget& window, const ReferenceModel& model);
    void ListLoan();
    void ListRow(int row);
    void ListUnaccounted(const QWidget& window);
    void ListTold(const QObject& object, int tip, int name, int ordinal);
    void ListWritten(const QObject& object, int number);
    QStringList ComplaintsOfSorting(char sorted) const;
    QStringList ComplaintsOfLists(const QWidget& window) const;

    std::array<QHash<int, QString>, 2> m_tables; ///< English and Spanish, by number
    QHash<QString, const QObject*> m_objects;    ///< objects of the window, by name
    std::vector<Seen> m_written;
    std::vector<Seen> m_told;
    QStringList m_unaccounted;
    QPointer<const QWidget> m_window;
    bool m_spanish = false;
    bool m_inMonths = false;
    std::size_t m_rows = 0;
};
