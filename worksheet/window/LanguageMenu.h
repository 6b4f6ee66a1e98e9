#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QAction;
class QActionGroup;
class QMenu;

namespace quend::window {

class FailureReport;

/// The entries of the language menu, one for each language; the active one has the check mark.
class LanguageMenu : public QObject {
    Q_OBJECT

public:
    struct Callbacks {
        std::function<bool()> commit; ///< stores the field being edited; false: stop
        std::function<void()> renew;  ///< shows the window's texts in the new language
    };
    /// `known` are the entries of the form; further languages get entries after them.
    LanguageMenu(QMenu& menu, const std::vector<QAction*>& known, Callbacks callbacks,
                 const FailureReport& report);

    /// Sets the check marks to the current language.
    void MarkCurrent() const;

private:
    void mnuToolsLanguageOpt_Click(int index) const;

    Callbacks m_callbacks;
    const FailureReport* m_report;
    QActionGroup* m_entries;
};

} // namespace quend::window
