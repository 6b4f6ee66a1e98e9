// Input, inspection and the updates of the reference model that all steps share.

#include "RandomUser.h"

#include "DatePicker.h"
#include "Language.h"
#include "TextNumbers.h"
#include "Trail.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QTimerEvent>
#include <QWindow>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

RandomUser::RandomUser(std::size_t country) : m_model(country) {
    QGuiApplication::clipboard()->clear();
    m_program.Start(m_model.forms.Locale());
    m_model.GrowTo(m_displayed);
    Settle();
    WatchDay();
    EnterInModel(FocusField());
    Remember();
}

RandomUser::~RandomUser() {
    m_program.messages.WhileOpen({});
    m_program.Shut();
    Settle();
}

void RandomUser::Take(const Step& step) {
    m_program.messages.Clear();
    m_model.expected.clear();
    m_questions.clear();
    complaints.clear();
    (this->*Kinds()[step.kind].act)(step.a, step.b);
    while (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    Settle();
    m_program.Activate();
    // Painting takes most of the time, so the window is painted only occasionally.
    Window().setUpdatesEnabled(++m_taken % 64 == 0);
    ObserveDay();
    // The notice appears only in its own step, never by the clock.
    if (auto* timer = Window().findChild<QTimer*>(u"Timer1"_s); timer && timer->isActive()) {
        timer->start(1h);
    }
    Remember();
}

// Input

void RandomUser::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(Window().windowHandle(), key, modifiers);
}

/// Only characters that keys can produce.
void RandomUser::TypeText(const QString& text) {
    for (const QChar character : text) {
        if (character.isPrint()) {
            QTest::sendKeyEvent(QTest::Click, Window().windowHandle(),
                                static_cast<Qt::Key>(character.toUpper().unicode()),
                                QString(character), Qt::NoModifier);
        }
    }
}

/// False if the control is not visible.
bool RandomUser::Click(const QWidget& control) {
    if (!IsVisible(control)) {
        return false;
    }
    return ClickAt(control.mapTo(&Window(), control.rect().center()));
}

bool RandomUser::ClickAt(QPoint place) {
    QTest::mouseClick(Window().windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    return true;
}

QAction& RandomUser::Entry(const char* name) const {
    return *Window().findChild<QAction*>(QString::fromLatin1(name));
}

void RandomUser::Trigger(const char* entry) { Entry(entry).trigger(); }

void RandomUser::PickEntry(QComboBox& list, int entry) {
    list.showPopup();
    Settle();
    Press(Qt::Key_Home);
    for (int i = 0; i < entry; ++i) {
        Press(Qt::Key_Down);
    }
    Press(Qt::Key_Return);
    Settle();
}

void RandomUser::InDialog(const std::function<void()>& open,
                          const std::function<void(QDialog&)>& act) {
    bool opened = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &watch, [&] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            watch.stop();
            opened = true;
            act(*dialog);
            Settle();
            if (dialog->isVisible()) {
                dialog->reject();
            }
        }
    });
    watch.start(0ms);
    open();
    Settle();
    if (!opened) {
        Complain(u"no dialog opens"_s);
    }
}

void RandomUser::Settle() {
    constexpr int rounds = 3;
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

// Inspection

QWidget* RandomUser::Named(const QString& name) const {
    QPointer<QWidget>& found = m_named[name];
    if (!found) {
        found = Window().findChild<QWidget*>(name);
    }
    return found;
}

QWidget* RandomUser::Control(Field field) const {
    const auto row = static_cast<std::size_t>(field.row.value + 1); // 0 is outside the rows
    QPointer<QWidget>& found = m_controls.at(row).at(static_cast<std::size_t>(field.id));
    if (!found) {
        const QString name = RuleOf(field.id).control;
        found = Window().findChild<QWidget*>(
            field.row == Field::NoRow ? name
                                      : name + u'(' + QString::number(field.row.value) + u')');
    }
    return found;
}

QLineEdit* RandomUser::EditOf(Field field) const {
    return qobject_cast<QLineEdit*>(Control(field));
}

/// Tests its middle: the scroll area of the rows may hide the control.
bool RandomUser::IsVisible(const QWidget& control) const {
    const QPoint middle = control.mapTo(&Window(), control.rect().center());
    const QWidget* there = Window().childAt(middle);
    return there != nullptr && (there == &control || control.isAncestorOf(there));
}

std::optional<Field> RandomUser::FieldOf(const QWidget* control) const {
    for (; control != nullptr && control != &Window(); control = control->parentWidget()) {
        const QString name = control->objectName();
        const qsizetype bracket = name.indexOf(u'(');
        const Row row = bracket < 0 ? Field::NoRow : Row{name.mid(bracket + 1).chopped(1).toInt()};
        for (const FieldRule& rule : bracket < 0 ? LoanFields() : OfferFields()) {
            if (name.left(bracket) == rule.control && rule.access == Access::Input) {
                return Field{rule.id, row};
            }
        }
    }
    return std::nullopt;
}

std::optional<Field> RandomUser::FocusField() const { return FieldOf(Window().focusWidget()); }

RandomUser::View RandomUser::LookAt(Field field) const {
    const QWidget* control = Control(field);
    View view;
    if (const auto* list = qobject_cast<const QComboBox*>(control)) {
        view.text = list->currentText();
    } else if (const auto* box = qobject_cast<const QCheckBox*>(control)) {
        view.ticked = box->isChecked();
    } else if (const auto* edit = qobject_cast<const QLineEdit*>(control)) {
        view.text = edit->text();
        view.modified = edit->isModified();
    } else if (const auto* picker = qobject_cast<const DatePicker*>(control)) {
        view.text = picker->text();
    }
    return view;
}

QString RandomUser::ShownIn(Field field) const {
    const View view = LookAt(field);
    return view.ticked ? u"ticked"_s : view.text;
}

RandomUser::View RandomUser::Look() const { return m_edited ? LookAt(*m_edited) : View(); }

/// Fields of rows are chosen twice as often as others.
Field RandomUser::AnyInput(unsigned number) const {
    std::vector<FieldId> inputs;
    const bool inRow = number % 3 != 0;
    number /= 3;
    const auto row = inRow ? Row{static_cast<int>(number % m_model.offers.size())} : Field::NoRow;
    number = inRow ? number / static_cast<unsigned>(m_model.offers.size()) : number;
    for (const FieldRule& rule : inRow ? OfferFields() : LoanFields()) {
        if (rule.access == Access::Input) {
            inputs.push_back(rule.id);
        }
    }
    return {inputs.at(number % inputs.size()), row};
}

// The reference model

bool RandomUser::IsRefused(const View& before) const {
    return m_edited && RuleOf(m_edited->id).IsTyped() && !m_model.Accepts(*m_edited, before.text);
}

bool RandomUser::ClickInto(Field field, const View& before) {
    return Click(*Control(field)) && (m_edited == field || Follow(before));
}

bool RandomUser::Follow(const View& before) {
    ObserveDay();
    const std::optional<Field> now = FocusField();
    if (IsRefused(before)) {
        m_model.expected.append(m_model.FailureOf(*m_edited, before.text));
        if (now != m_edited) {
            Complain(u"left a field whose text cannot be taken"_s);
        }
        return false;
    }
    if (now != m_edited) {
        LeaveInModel(before);
        EnterInModel(now);
    }
    return true;
}

bool RandomUser::Commit(const View& before) {
    ObserveDay();
    if (!m_edited) {
        return true;
    }
    if (IsRefused(before)) {
        m_model.expected.append(m_model.FailureOf(*m_edited, before.text));
        return false;
    }
    LeaveInModel(before);
    Reenter();
    return true;
}

void RandomUser::LeaveInModel(const View& before) {
    if (!m_edited) {
        return;
    }
    const Field field = *m_edited;
    switch (field.id) {
    case FieldId::LoanName:
        m_model.loan.name = before.text;
        m_model.nameMissing = m_model.nameMissing && m_model.IsUnnamed();
        break;
    case FieldId::FinancePoints:
        if (before.ticked || m_model.OfferIn(field.row.value).financed) {
            m_model.LeaveTick(field.row.value, before.ticked);
        }
        break;
    case FieldId::NextPayment:
        if (const QDate day = m_model.forms.ReadDay(before.text, Today.year());
            day != m_model.current.next) {
            m_model.StoreDay(day);
        }
        break;
    case FieldId::Who:
        if (before.modified) {
            m_model.Drop(field, before.text);
        }
        break;
    default:
        if (RuleOf(field.id).IsChoice()) {
            m_model.LeaveChoice(field, before.text);
        } else {
            m_model.Leave(field, before.text);
        }
    }
}

void RandomUser::EnterInModel(std::optional<Field> field) {
    m_edited = field;
    if (field && field->row != Field::NoRow) {
        m_model.EnterRow(field->row.value);
    }
    if (field && RuleOf(field->id).IsNumber()) {
        m_text = m_model.EntryText(*field);
    }
}

void RandomUser::Refocus(Field field) {
    if (m_edited == field) {
        return;
    }
    View shown;
    if (m_edited) {
        shown.text = RuleOf(m_edited->id).IsNumber() ? m_text : m_model.Shown(*m_edited);
        shown.ticked =
            m_edited->id == FieldId::FinancePoints && m_model.IsTicked(m_edited->row.value);
        LeaveInModel(shown);
    }
    EnterInModel(field);
}

/// A day chosen with the arrow keys is stored at once.
void RandomUser::WatchDay() {
    m_days.clear();
    QObject::connect(qobject_cast<DatePicker*>(Control({FieldId::NextPayment})),
                     &DatePicker::Picked, &Window(), [this](QDate day) { m_days.append(day); });
}

void RandomUser::ObserveDay() {
    for (const QDate day : std::exchange(m_days, {})) {
        m_model.StoreDay(day);
    }
}

QString RandomUser::WithName(int question) const {
    return GetResourceText(question) + m_model.loan.name + GetResourceText(TextNumber::NameEnd);
}
