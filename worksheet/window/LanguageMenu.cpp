#include "LanguageMenu.h"

#include "FailureReport.h"
#include "Language.h"
#include "WindowNames.h"

#include <QActionGroup>
#include <QMenu>

#include <utility>

namespace quend::window {

LanguageMenu::LanguageMenu(QMenu& menu, const std::vector<QAction*>& known, Callbacks callbacks,
                           const FailureReport& report)
    : m_callbacks(std::move(callbacks)), m_report(&report), m_entries(new QActionGroup(this)) {
    for (const LanguageEntry& language : Language::Instance().Entries()) {
        const auto place = static_cast<std::size_t>(language.number) - 1;
        QAction* entry = place < known.size() ? known[place] : menu.addAction(language.name);
        entry->setObjectName(QStringLiteral("mnuToolsLanguageOpt(%1)").arg(language.number));
        entry->setCheckable(true);
        entry->setData(language.number);
        m_entries->addAction(entry);
    }
    connect(m_entries, &QActionGroup::triggered, this, [this](const QAction* entry) {
        m_report->Guard([&] { mnuToolsLanguageOpt_Click(entry->data().toInt()); });
        MarkCurrent(); // the menu has moved the mark already, even if the language did not change
    });
}

void LanguageMenu::MarkCurrent() const {
    for (QAction* entry : m_entries->actions()) {
        entry->setChecked(entry->data().toInt() == Language::Instance().CurrentLanguage());
    }
}

void LanguageMenu::mnuToolsLanguageOpt_Click(int index) const {
    if (m_callbacks.commit()) {
        Language::Instance().LoadLanguage(index);
        m_callbacks.renew();
    }
}

} // namespace quend::window
