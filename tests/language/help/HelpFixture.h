#pragma once

#include "HelpCommands.h"
#include "HelpWindow.h"
#include "WindowFixture.h"

#include <QAction>

#include <memory>

/// The main window with its help, as the program has them.
class HelpTest : public WindowTest {
protected:
    void OpenWithHelp(const Start& start = {});
    /// A program's folder of the test's own, where the help file of the language may be missing.
    void OpenBesides(const QString& folder, const Start& start = {});

    HelpCommands& Commands() { return *m_commands; }
    /// The help window, which must be there.
    HelpWindow& Help();
    template <class Kind>
    Kind& InHelp(const QString& name) {
        auto* control = Help().findChild<Kind*>(name);
        if (!control) {
            throw std::runtime_error("no control " + name.toStdString() + " in the help");
        }
        return *control;
    }
    bool HelpShows() { return Commands().Shown() != nullptr && Commands().Shown()->isVisible(); }
    /// A menu entry of the main window.
    QAction& Entry(const QString& name);
    /// The name of the page in view, such as "points.html#t1030".
    QString PageInView();
    /// How far below the top of the view the section in view begins, in pixels.
    int TopOfSection();

private:
    std::unique_ptr<HelpCommands> m_commands;
};

/// What's-this help that is showing; null when none is.
QWidget* WhatsThisPopup();
