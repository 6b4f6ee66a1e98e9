// Worksheets are named, saved, picked, deleted and created; the program is closed and restarted.

#include "EditTextNumbers.h"
#include "Language.h"
#include "QuendNames.h"
#include "RandomUser.h"
#include "StepTexts.h"
#include "TextNumbers.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QTextBoundaryFinder>

using namespace Qt::StringLiterals;

namespace {

bool CanBeKey(const QString& name) {
    return name.size() <= 255 && !name.contains(u'\\') && !name.contains(QChar::Null);
}

bool IsNewLoan(const QString& name) { return name == u"(new loan)" || name == u"(préstamo nuevo)"; }

int Letters(const QString& text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int letters = 0;
    while (finder.toNextBoundary() != -1) {
        ++letters;
    }
    return letters;
}

} // namespace

Answer RandomUser::PrepareAnswer(unsigned number, bool mayCancel) {
    const unsigned which = number % 8;
    const Answer answer = which < 3                 ? Answer::Yes
                          : which < 7 || !mayCancel ? Answer::No
                                                    : Answer::Cancel;
    m_program.messages.WillAnswer({answer});
    return answer;
}

bool RandomUser::SaveInModel() {
    if (m_model.IsUnnamed()) {
        m_model.Expect(TextNumber::NoNameToSave);
        return false;
    }
    if (!CanBeKey(m_model.loan.name) || IsNewLoan(m_model.loan.name)) {
        m_model.Expect(IsNewLoan(m_model.loan.name) ? TextNumber::NameOfNewLoan
                                                    : TextNumber::NameNotPossible);
        return false;
    }
    for (int row = 0; row < static_cast<int>(m_model.offers.size()); ++row) {
        if (Letters(m_model.OfferIn(row).who) > 1'023) {
            m_model.expected.append(GetResourceText(TextNumber::LenderTooLong).arg(row + 1));
            return false;
        }
    }
    m_model.Save();
    keptChanged = true;
    return true;
}

/// Whether unsaved changes may be dropped, after the question.
bool RandomUser::MayDrop(Answer answer) {
    if (!m_model.dirty) {
        return true;
    }
    m_questions.append(m_model.IsUnnamed() ? GetResourceText(TextNumber::SaveTitle)
                                           : WithName(TextNumber::SaveQuestion));
    if (answer != Answer::Yes) {
        return answer == Answer::No;
    }
    if (!m_model.IsUnnamed()) {
        return SaveInModel();
    }
    m_model.nameMissing = true;
    Refocus({FieldId::LoanName});
    return false;
}

void RandomUser::PickInModel(const QString& name, Answer answer) {
    if (MayDrop(answer)) {
        if (name == GetResourceText(TextNumber::NewLoan)) {
            m_history.Clear();
            m_model.Clear();
        } else if (m_model.Holds(name)) {
            m_history.Clear();
            m_model.Load(name);
            m_model.nameMissing = false;
        } else {
            m_model.loan.name = name;
        }
    }
    Reenter();
}

void RandomUser::TypeName(unsigned a, unsigned b) {
    const Field field{FieldId::LoanName};
    const View before = Look();
    if (!ClickInto(field, before)) {
        return;
    }
    QGuiApplication::clipboard()->setText(NameText(b));
    Press(Qt::Key_A, Qt::ControlModifier);
    if (a % 10 == 0) {
        Press(Qt::Key_Delete);
    } else {
        Press(Qt::Key_V, Qt::ControlModifier);
    }
    if (a % 2 == 0) {
        const View typed = Look();
        Press(Qt::Key_Tab);
        Follow(typed);
    }
}

void RandomUser::Save(unsigned a, unsigned /*b*/) {
    const View before = Look();
    if (a % 2 == 0) {
        Press(Qt::Key_S, Qt::ControlModifier);
    } else {
        Trigger("mnuFileSave");
    }
    if (!Commit(before)) {
        return;
    }
    if (m_model.IsUnnamed()) {
        m_model.nameMissing = true;
    } else {
        SaveInModel();
    }
}

void RandomUser::PickName(unsigned a, unsigned b) {
    const Field field{FieldId::LoanName};
    const View before = Look();
    if (!ClickInto(field, before)) {
        return;
    }
    auto& box = *qobject_cast<QComboBox*>(Control(field));
    const View typed = Look();
    Press(Qt::Key_Down);
    Settle();
    Commit(typed);
    const QStringList entries = QStringList(GetResourceText(TextNumber::NewLoan)) + m_model.Names();
    QStringList shown;
    for (int i = 0; i < box.count(); ++i) {
        shown.append(box.itemText(i));
    }
    if (shown != entries || box.currentText() != typed.text) {
        Complain(u"the list shows %1 instead of %2"_s.arg(shown.join(u'|'), entries.join(u'|')));
    }
    if (a % 6 == 0) {
        return Press(Qt::Key_Escape);
    }
    const Answer answer = PrepareAnswer(a / 6, true);
    const int entry = static_cast<int>(b % static_cast<unsigned>(entries.size()));
    Press(Qt::Key_Home);
    for (int i = 0; i < entry; ++i) {
        Press(Qt::Key_Down);
    }
    Press(Qt::Key_Return);
    PickInModel(entries.at(entry), answer);
    Settle();
    if (box.currentText() != m_model.loan.name) {
        Complain(u"the box shows %1 instead of %2"_s.arg(box.currentText(), m_model.loan.name));
    }
}

/// Loads the current worksheet again as saved, or another one.
void RandomUser::Reload(unsigned a, unsigned b) {
    const QStringList names = m_model.Names();
    if (names.isEmpty()) {
        return;
    }
    const auto count = static_cast<unsigned>(names.size());
    const auto kept = static_cast<int>(names.indexOf(m_model.loan.name));
    const unsigned entry = kept >= 0 ? static_cast<unsigned>(kept) : b % count;
    PickName(a - a % 6 + 1, entry + 1); // entry 0 is the new loan
}

void RandomUser::New(unsigned a, unsigned /*b*/) {
    const View before = Look();
    const Answer answer = PrepareAnswer(a, true);
    Trigger("mnuFileNew");
    if (!Commit(before)) {
        return;
    }
    PickInModel(GetResourceText(TextNumber::NewLoan), answer);
    Refocus({FieldId::LoanName});
}

void RandomUser::Delete(unsigned a, unsigned /*b*/) {
    const View before = Look();
    const Answer answer = PrepareAnswer(a, false);
    Trigger("mnuFileDelete");
    if (!Commit(before)) {
        return;
    }
    const bool unnamed = m_model.IsUnnamed();
    if (!CanBeKey(m_model.loan.name)) {
        return m_model.Expect(TextNumber::NoSuchNameToDelete);
    }
    if (!unnamed || !m_model.dirty) {
        m_questions.append(WithName(TextNumber::DeleteQuestion));
        if (answer != Answer::Yes) {
            return;
        }
        if (unnamed) {
            m_model.Expect(TextNumber::NoNameToDelete);
        } else {
            m_model.Throw(m_model.loan.name);
            keptChanged = true;
        }
    }
    m_history.Clear();
    m_model.Clear();
    Reenter();
    Refocus({FieldId::LoanName});
}

/// Deletes the current worksheet and brings it back at once.
void RandomUser::BringBack(unsigned /*a*/, unsigned /*b*/) {
    std::map<QString, SavedWorksheet> deleted = m_model.saved;
    Delete(0, 0);
    for (const auto& [folded, page] : m_model.saved) {
        deleted.erase(folded);
    }
    if (deleted.empty()) {
        return;
    }
    Settle();
    const View before = Look();
    Trigger("mnuFileBringBack");
    Commit(before);
    const QString name = deleted.begin()->second.name;
    m_history.Clear();
    m_model.saved.merge(deleted);
    m_model.Load(name);
    Reenter();
}

void RandomUser::Rename(unsigned /*a*/, unsigned b) {
    const View before = Look();
    m_program.newName = NameText(b);
    Trigger("mnuFileRename");
    if (Commit(before) && RenameInModel(m_program.newName)) {
        keptChanged = true;
        Reenter();
    }
}

/// False when the worksheet keeps its name.
bool RandomUser::RenameInModel(const QString& to) {
    const QString from = m_model.loan.name;
    if (!CanBeKey(from) || !m_model.Holds(from)) {
        m_model.Expect(TextNumber::NothingToRename);
    } else if (to.isEmpty() || to == u" ") {
        m_model.Expect(TextNumber::NoNameToSave);
    } else if (to != from && (!CanBeKey(to) || IsNewLoan(to))) {
        m_model.Expect(IsNewLoan(to) ? TextNumber::NameOfNewLoan : TextNumber::NameNotPossible);
    } else if (FoldedName(to) != FoldedName(from) && m_model.Holds(to)) {
        m_model.expected.append(GetResourceText(TextNumber::NameTaken).arg(to));
    } else if (to != from) {
        SavedWorksheet page = m_model.saved.extract(FoldedName(from)).mapped();
        page.name = page.loan.name = to;
        m_model.saved.insert_or_assign(FoldedName(to), page);
        m_model.loan.name = to;
        return true;
    }
    return false;
}

/// Closes the window and restarts the program on the same store, perhaps in another country.
void RandomUser::CloseAndStart(unsigned a, unsigned b) {
    const View before = Look();
    const Answer answer = PrepareAnswer(a, true);
    const bool closed = Window().close();
    const bool mayClose = Commit(before) && MayDrop(answer);
    if (closed != mayClose) {
        Complain(closed ? u"closed, although it must not"_s : u"does not close"_s);
    }
    Settle();
    if (!closed) {
        return;
    }
    m_history.Clear();
    m_saved.reset();
    m_program.Shut();
    Settle();
    const ReferenceModel left = m_model;
    m_model = ReferenceModel(b);
    m_model.saved = left.saved;
    m_model.spanish = left.spanish;
    m_model.inMonths = left.inMonths;
    m_model.expected = left.expected;
    m_model.GrowTo(m_displayed);
    keptChanged = true;
    m_edited.reset();
    m_program.Start(m_model.forms.Locale());
    Settle();
    WatchDay();
    EnterInModel(FocusField());
}

/// Closes with unsaved changes in an unnamed worksheet: the window stays and asks for the name.
void RandomUser::CloseUnnamed(unsigned /*a*/, unsigned b) {
    if (!m_model.IsUnnamed()) {
        TypeName(0, 0); // removes the name
    } else if (m_model.dirty) {
        CloseAndStart(0, b);
    }
}
