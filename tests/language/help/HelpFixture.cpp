#include "HelpFixture.h"

#include "CompiledHelp.h"
#include "HelpView.h"
#include "Language.h"

#include <QApplication>
#include <QFile>
#include <QTextCursor>
#include <QUrl>

namespace {

/// Null before the help was first shown.
HelpWindow* FindHelp() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* help = qobject_cast<HelpWindow*>(window)) {
            return help;
        }
    }
    return nullptr;
}

} // namespace

void HelpTest::OpenWithHelp(const Start& start) {
    m_commands.reset();
    Open(start);
    m_commands = std::make_unique<HelpCommands>(
        Window(), [](const QString& file) { return std::make_shared<CompiledHelp>(file); });
}

void HelpTest::OpenBesides(const QString& folder, const Start& start) {
    for (const char* component : {"Loan000.Resources.so", "Loan40a.Resources.so"}) {
        const QString name = QString::fromLatin1(component);
        QFile::link(QStringLiteral(QUEND_PROGRAM_DIR "/") + name, folder + u'/' + name);
    }
    Language::Instance().SetUp(folder, QStringLiteral("Loan"));
    OpenWithHelp(start);
}

HelpWindow& HelpTest::Help() {
    if (HelpWindow* help = FindHelp()) {
        return *help;
    }
    throw std::runtime_error("no help was shown");
}

bool HelpTest::HelpShows() {
    const HelpWindow* help = FindHelp();
    return help != nullptr && help->isVisible();
}

bool HelpTest::IsAsking() {
    const QCursor* cursor = QApplication::overrideCursor();
    return cursor != nullptr && cursor->shape() == Qt::WhatsThisCursor;
}

QAction& HelpTest::Entry(const QString& name) {
    auto* entry = Window().findChild<QAction*>(name);
    if (!entry) {
        throw std::runtime_error("no entry " + name.toStdString());
    }
    return *entry;
}

QString HelpTest::PageInView() {
    const QUrl page = Help().PageInView();
    return page.hasFragment() ? page.fileName() + u'#' + page.fragment() : page.fileName();
}

int HelpTest::TopOfSection() {
    const auto& view = InHelp<HelpView>(QStringLiteral("txtPage"));
    QTextCursor cursor(view.document());
    const QString name = Help().PageInView().fragment();
    while (!cursor.charFormat().anchorNames().contains(name)) {
        if (!cursor.movePosition(QTextCursor::NextCharacter)) {
            throw std::runtime_error("no section " + name.toStdString());
        }
    }
    return view.cursorRect(cursor).top();
}

QWidget* WhatsThisPopup() {
    QWidget* popup = QApplication::activePopupWidget();
    return popup && popup->inherits("QWhatsThat") ? popup : nullptr;
}
