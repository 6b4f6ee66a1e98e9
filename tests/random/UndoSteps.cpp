// Undo and redo: each leads to exactly the window and the values of before and after.

#include "DatePicker.h"
#include "History.h"
#include "QuendNames.h"
#include "RandomUser.h"
#include "Worksheet.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// One step of this user may be several of the program's.
constexpr int MostSteps = 60;

QString Difference(const Picture& expected, const Picture& shown) {
    if (!(expected.state == shown.state)) {
        return u"the values are others"_s;
    }
    for (const auto& [place, text] : expected.texts) {
        const auto now = shown.texts.find(place);
        if (now != shown.texts.end() && now->second != text) {
            return u"%1 of offer %2 shows “%3” instead of “%4”"_s
                .arg(QString(RuleOf(place.id).control))
                .arg(place.offer ? static_cast<int>(place.offer->value) : -1)
                .arg(now->second, text);
        }
    }
    return {};
}

} // namespace

void History::Add(Picture picture) {
    constexpr std::size_t most = 20;
    if (m_pictures.empty()) {
        m_now = 0;
    } else if (picture.state == Now().state) {
        m_pictures.at(m_now) = std::move(picture);
        return;
    } else {
        m_pictures.resize(++m_now);
    }
    m_pictures.push_back(std::move(picture));
    if (m_pictures.size() > most) {
        m_pictures.erase(m_pictures.begin());
        --m_now;
    }
}

Picture RandomUser::TakePicture() const {
    Worksheet& sheet = Window().GetWorksheet();
    Picture picture{sheet.State(), {}, m_model.Values()};
    const auto add = [&](Field field, std::optional<OfferIndex> offer) {
        if (field != m_edited) {
            picture.texts[{field.id, offer}] = ShownIn(field);
        }
    };
    for (const FieldRule& rule : LoanFields()) {
        add({rule.id}, std::nullopt);
    }
    for (Row row{0}; row <= sheet.HighestOfferRow(); ++row.value) {
        for (const FieldRule& rule : OfferFields()) {
            add({rule.id, row}, sheet.OfferIndexOfRow(row));
        }
    }
    return picture;
}

/// Texts of another language or unit are no picture of before.
void RandomUser::Remember() {
    const auto manner = std::pair(m_model.spanish, m_model.inMonths);
    if (std::exchange(m_manner, manner) != manner) {
        m_history.Clear();
    }
    m_history.Add(TakePicture());
    if (!m_model.dirty) {
        m_saved = m_history.Now().state;
    }
}

/// The edit that types for the field being edited: a list and a date picker have one inside.
QLineEdit* RandomUser::InnerEdit() const {
    QWidget* control = m_edited ? Control(*m_edited) : nullptr;
    auto* edit = qobject_cast<QLineEdit*>(control);
    return edit != nullptr || control == nullptr ? edit : control->findChild<QLineEdit*>();
}

void RandomUser::PressUndo(bool redo, unsigned manner) {
    if (manner % 3 == 0) {
        Trigger(redo ? "mnuEditRedo" : "mnuEditUndo");
    } else if (redo && manner % 3 == 1) {
        Press(Qt::Key_Y, Qt::ControlModifier);
    } else {
        Press(Qt::Key_Z, redo ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ControlModifier);
    }
}

/// The number of the program's steps; 0 if they do not lead there.
int RandomUser::GoTo(const Picture& picture, bool redo, unsigned manner) {
    const QAction& entry = Entry(redo ? "mnuEditRedo" : "mnuEditUndo");
    for (int steps = 1; steps <= MostSteps && entry.isEnabled(); ++steps) {
        PressUndo(redo, manner);
        m_edited = FocusField();
        if (Window().GetWorksheet().State() == picture.state) {
            Compare(picture);
            return steps;
        }
    }
    Complain(redo ? u"redo does not lead to the worksheet of after"_s
                  : u"undo does not lead to the worksheet of before"_s);
    return 0;
}

void RandomUser::Compare(const Picture& picture) {
    if (const QString difference = Difference(picture, TakePicture()); !difference.isEmpty()) {
        Complain(difference);
    }
}

/// Undo and redo leave no field, raise no payment and withdraw the notice of a raised one.
void RandomUser::RestoreInModel() {
    m_model.GrowTo(Window().GetWorksheet().OfferCount());
    m_model.Restore(m_history.Now().values);
    m_model.dirty = !m_saved || !model::SameToSave(*m_saved, m_history.Now().state);
    m_model.noticeComes = false;
    EnterInModel(FocusField());
}

/// Undoes and redoes what was done last, and leaves it undone in most cases. A text that is being
/// typed has its own undo.
void RandomUser::Undo(unsigned a, unsigned b) {
    if (const QLineEdit* edit = InnerEdit(); edit != nullptr && edit->isUndoAvailable()) {
        PressUndo(false, b);
        m_text = Look().text;
        return;
    }
    const Picture* earlier = m_history.Earlier();
    if (earlier == nullptr) {
        return;
    }
    const Picture before = *earlier;
    const Picture after = TakePicture();
    if (GoTo(before, false, b) == 0 || GoTo(after, true, b) == 0) {
        return;
    }
    if (a % 4 != 0 && GoTo(before, false, b + 1) > 0) {
        m_history.GoBack();
    }
    RestoreInModel();
}

void RandomUser::Redo(unsigned /*a*/, unsigned b) {
    const QLineEdit* edit = InnerEdit();
    if (edit != nullptr && edit->isRedoAvailable()) {
        PressUndo(true, b % 2 + 1); // the keys are the text's
        m_text = Look().text;
        return;
    }
    const Picture* later = m_history.Later();
    const bool isTyped = edit != nullptr && edit->isUndoAvailable();
    if (later == nullptr || isTyped || !Entry("mnuEditRedo").isEnabled()) {
        return;
    }
    if (GoTo(Picture(*later), true, b) > 0) {
        m_history.GoOn();
        RestoreInModel();
    }
}
