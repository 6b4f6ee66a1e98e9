// A guest in the real program. It waits for the main window, says on the standard output what it
// sees, does what a user does and closes the window; dialogs that open meanwhile it reports and
// closes. QUEND_VISIT=work makes it use the whole program before; otherwise it only looks.

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QGenericPlugin>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <vector>

namespace {

/// One line of the report; line breaks in it are blanks.
void Say(const char* what, QString text = {}) {
    text.replace(u'\n', u' ').replace(u'\r', u' ');
    std::printf("%s %s\n", what, text.toUtf8().constData());
    std::fflush(stdout);
}

QWidget* MainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == u"Loan" && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

template <class Kind>
Kind& Named(const char* name) {
    auto* const found = MainWindow()->findChild<Kind*>(QLatin1String(name));
    if (found == nullptr) {
        Say("missing", QLatin1String(name));
        std::exit(3);
    }
    return *found;
}

void Enter(const char* field, const char* text) {
    auto& edit = Named<QLineEdit>(field);
    edit.setFocus(Qt::TabFocusReason);
    edit.setText(QLatin1String(text));
}

void Choose(const char* entry) { Named<QAction>(entry).trigger(); }

void CloseOthers() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window != MainWindow() && window->isWindow() && window->isVisible()) {
            Say("window", window->windowTitle());
            window->close();
        }
    }
}

void FillIn() {
    Named<QComboBox>("cboLoanName").setEditText(QStringLiteral("Sample"));
    Enter("txtLoanAmount", "100000");
    Enter("txtAnnualTaxes", "1200");
    Enter("txtActualPayment(0)",
          "700"); // enough, so that no notice of a raised payment comes in between
    Enter("txtInterestRate(0)", "6");
    Enter("txtTerm(0)", "30");
    Enter("txtWho(0)", "Bank of the Prairie");
    auto& frequency = Named<QComboBox>("cboFrequency(0)");
    frequency.setFocus(Qt::TabFocusReason);
    frequency.setCurrentIndex(0);
    Q_EMIT frequency.activated(0);
    Enter("txtLoanTerm", "30");
}

using Step = std::function<void()>;

std::vector<Step> Work() {
    return {FillIn,
            [] { Say("payment", Named<QLineEdit>("txtPandI(0)").text()); },
            [] { Choose("mnuFileSave"); },
            [] { Choose("mnuToolsOptions"); },
            [] { Choose("mnuToolsLanguageOpt(2)"); },
            [] { Choose("mnuHelpContents"); },
            CloseOthers,
            [] { Choose("mnuHelpAbout"); },
            [] { Choose("mnuFilePrintSetup"); },
            [] { Choose("mnuFilePrint"); },
            [] { Named<QPushButton>("cmdInterest").click(); },
            [] { Choose("mnuFileNew"); },
            [] { Choose("mnuToolsLanguageOpt(1)"); }};
}

void Look() {
    Say("shown", MainWindow()->windowTitle());
    auto& names = Named<QComboBox>("cboLoanName");
    names.showPopup();
    Say("names", QString::number(names.count()));
    names.hidePopup();
}

} // namespace

class Visitor : public QObject {
    Q_OBJECT

public:
    Visitor() {
        m_steps = {Look};
        if (qgetenv("QUEND_VISIT") == "work") {
            const std::vector<Step> work = Work();
            m_steps.insert(m_steps.end(), work.begin(), work.end());
        }
        m_steps.emplace_back([] { MainWindow()->close(); });
        Next();
    }

private:
    /// A step that opens a dialog ends only once the dialog has been closed, by a later one.
    void Next() const { QTimer::singleShot(20, this, &Visitor::Visit); }
    void Visit() {
        if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            const auto* const box = qobject_cast<QMessageBox*>(dialog);
            Say(box ? "message" : "dialog", box ? box->text() : dialog->windowTitle());
            Next();
            dialog->reject();
        } else if (MainWindow() == nullptr || m_next == m_steps.size()) {
            Next();
        } else if (m_next == 1 && !MainWindow()->isActiveWindow()) { // the list has just closed
            MainWindow()->activateWindow();
            Next();
        } else {
            Next();
            m_steps.at(m_next++)();
        }
    }

    std::vector<Step> m_steps;
    std::size_t m_next = 0;
};

class VisitorPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "Visitor.json")

public:
    QObject* create(const QString& /*name*/, const QString& /*settings*/) override {
        return new Visitor;
    }
};

#include "Visitor.moc"
