#include "WorksheetTitle.h"

#include "EditTextNumbers.h"
#include "Language.h"
#include "TextNumbers.h"
#include "Worksheet.h"

#include <QMetaObject>
#include <QWidget>

#include <utility>

namespace quend::window {

namespace {

/// Qt replaces it by the mark.
QString Place() { return QStringLiteral("[*]"); }

} // namespace

QString WorksheetTitle::Text() const {
    const QString program = GetResourceText(TextNumber::WindowTitle);
    QString name = m_worksheet->LoanName();
    if (Worksheet::IsEmptyName(name)) {
        return m_worksheet->Dirty() ? program + Place() : program;
    }
    name.replace(Place(), Place() + Place()); // Qt shows a doubled placeholder literally
    return GetResourceText(TextNumber::TitleWithName).arg(name, program);
}

/// Qt warns of a mark without a place for it.
void WorksheetTitle::Show() {
    const bool dirty = m_worksheet->Dirty();
    if (!dirty) {
        m_window->setWindowModified(false);
    }
    m_window->setWindowTitle(Text());
    if (dirty) {
        m_window->setWindowModified(true);
    }
}

void WorksheetTitle::ShowLater() {
    if (!std::exchange(m_waiting, true)) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_waiting = false;
                Show();
            },
            Qt::QueuedConnection);
    }
}

} // namespace quend::window
