// A plugin in the real program. It reports the contents of the main window on the standard output,
// acts like a user and closes the window. Dialogs that open meanwhile are reported and closed.
// QUEND_VISIT=work first uses the whole program; otherwise it only reads the window.

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

/// Prints one line of the report; line breaks become blanks.
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
          "700"); // high enough to avoid the notice of a raised payment
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
            [] { Choose("mnuFilePrintPreview"); },
            [] { Choose("mnuFileExportPdf"); },
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
    /// A step that opens a dialog returns only after a later step has closed the dialog.
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
