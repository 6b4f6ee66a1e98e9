#pragma once

#include "HelpCommands.h"
#include "HelpWindow.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QAction>

#include <memory>

/// The main window with its help, connected as in the program.
class HelpTest : public WindowTest {
protected:
    void OpenWithHelp(const Start& start = {});
    /// A temporary program folder, where the help file of the language may be missing.
    void OpenBesides(const QString& folder, const Start& start = {});

    /// The help window, which must exist.
    HelpWindow& Help();
    static bool HelpShows();
    static bool IsAsking();
    template <class Kind>
    Kind& InHelp(const QString& name) {
        auto* control = Help().findChild<Kind*>(name);
        if (!control) {
            throw std::runtime_error("no control " + name.toStdString() + " in the help");
        }
        return *control;
    }
    /// A menu entry of the main window.
    QAction& Entry(const QString& name);
    /// The name of the current page, such as "points.html#t1030".
    QString PageInView();
    /// The distance of the current section from the top of the view, in pixels.
    int TopOfSection();

private:
    std::unique_ptr<HelpCommands> m_commands;
};

/// The visible What's This text; null if there is none.
QWidget* WhatsThisPopup();
