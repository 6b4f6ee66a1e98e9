#include "SessionEnd.h"

#include "EditTextNumbers.h"
#include "FailureReport.h"
#include "FileCommands.h"
#include "Language.h"
#include "Loan.h"
#include "MessageQueue.h"
#include "StoreNotice.h"
#include "Worksheet.h"

#include <QApplication>
#include <QEvent>
#include <QSessionManager>

#include <utility>

namespace quend::storage {

namespace {

QString OpenQuestion(const QString& name) {
    return Worksheet::IsEmptyName(name)
               ? GetResourceText(TextNumber::OpenUnsavedUnnamed)
               : GetResourceText(TextNumber::OpenUnsaved).arg(Shortened(name));
}

} // namespace

SessionEnd::SessionEnd(Loan& window, FileCommands& files, UnsavedWorksheets unsaved, World world)
    : m_window(&window), m_files(&files), m_unsaved(std::move(unsaved)), m_world(std::move(world)) {
    // Qt expects the answer when the signal returns.
    connect(qApp, &QGuiApplication::commitDataRequest, this, &SessionEnd::OnSessionEnd,
            Qt::DirectConnection);
}

void SessionEnd::OnSessionEnd(QSessionManager& session) {
    const bool hasTimeToAsk = session.allowsInteraction();
    if (!MayEnd(hasTimeToAsk)) {
        session.cancel();
    }
    if (hasTimeToAsk) {
        session.release();
    }
}

/// A dialog that is open would cover the question.
bool SessionEnd::MayEnd(bool hasTimeToAsk) {
    qApp->removeEventFilter(this);
    if (hasTimeToAsk && QApplication::activeModalWidget() == nullptr) {
        return m_window->close();
    }
    KeepUnsaved();
    qApp->installEventFilter(this);
    return true;
}

/// When the session has ended, Qt closes all windows, as if the user did.
bool SessionEnd::eventFilter(QObject* watched, QEvent* event) {
    if (watched != qApp || event->type() != QEvent::Quit) {
        return false;
    }
    EndNow();
    return true;
}

/// A field that is refused cannot be kept; its message is printed with the others.
void SessionEnd::EndNow() {
    KeepUnsaved();
    m_window->Report().Guard(m_world.keepSettings);
    for (const QString& message : m_window->GetMessages().TakeRest()) {
        m_world.print(message);
    }
    m_world.exit();
}

void SessionEnd::KeepUnsaved() {
    m_window->Report().Guard([this] {
        m_window->Commit();
        if (!m_window->GetWorksheet().Dirty()) {
            return DropKept();
        }
        try {
            m_slot = m_unsaved.Keep(m_window->GetWorksheet(), m_slot);
        } catch (const Failure& failure) { // becomes the message
            m_window->GetMessages().Post(GetResourceText(TextNumber::UnsavedNotKept) +
                                         QStringLiteral("\n\n") + StoreFailureText(failure));
        }
    });
}

void SessionEnd::Forget() {
    m_window->Report().Guard([this] { DropKept(); });
}

void SessionEnd::DropKept() {
    if (!m_slot.empty()) {
        m_unsaved.Take(std::exchange(m_slot, {}));
    }
}

/// Cancel, or an end of the program while it asks, leaves the worksheet for the next start.
void SessionEnd::OfferUnsaved() {
    m_window->Report().Guard([this] {
        const auto found = m_unsaved.First();
        if (!found) {
            return;
        }
        const Answer answer = m_window->GetMessages().Ask(
            {OpenQuestion(found->name), GetResourceText(TextNumber::UnsavedTitle), true});
        if (answer == Answer::Cancel) {
            return;
        }
        const KeptWorksheet unsaved{found->name, m_unsaved.Take(found->slot), false};
        if (unsaved.values.empty()) {
            return;
        }
        if (answer == Answer::Yes) {
            m_files->OpenUnsaved(unsaved);
        } else {
            m_files->Keep(unsaved);
        }
    });
}

} // namespace quend::storage
