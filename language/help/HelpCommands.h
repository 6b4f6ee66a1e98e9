#pragma once

#include "HelpCollection.h"
#include "HelpNames.h"
#include "WhatsThisMode.h"

#include <QObject>

#include <functional>
#include <memory>

class QPoint;
class QUrl;
class QWidget;

namespace quend::window {
class Loan;
}

namespace quend::help {

class HelpWindow;

/// The Help menu's Contents and Search, the F1 key, and what's-this help, all from the help file of
/// the current language. A missing or damaged file is reported with its description, and nothing
/// else happens.
class HelpCommands : public QObject {
    Q_OBJECT

public:
    /// The window must outlive the commands. Enables the entries and the button. Opens a collection
    /// on first use.
    HelpCommands(Loan& window, HelpOpener open);
    Q_DISABLE_COPY_MOVE(HelpCommands)
    ~HelpCommands() override;

protected:
    /// Handles the help keys in every window of the program, and the links in what's-this help.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void mnuHelpContents_Click();
    void mnuHelpSearch_Click();
    void cmdWhatsThis_Click();
    void OnHelpKey();
    void ShowTopic(int topic);
    void ShowWhatsThis(int topic, const QPoint& at, QWidget* window);
    void FollowLink(const QString& link);
    void FollowLanguage();

    void Try(const std::function<void()>& help) const;
    HelpCollection& Collection();
    HelpWindow& Window();

    Loan* m_loan;
    HelpOpener m_open;
    WhatsThisMode m_whatsThis;
    std::shared_ptr<HelpCollection> m_collection;
    std::unique_ptr<HelpWindow> m_help;
};

} // namespace quend::help
