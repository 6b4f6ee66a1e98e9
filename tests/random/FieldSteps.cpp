// Typing, and moving from field to field.

#include "Language.h"
#include "QuendNames.h"
#include "RandomUser.h"
#include "StepTexts.h"
#include "TextNumbers.h"
#include "TransferRules.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMimeData>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

bool HoldsValue() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    return data != nullptr && data->hasFormat(u"application/x-quend-loan-value"_s);
}

/// The keys that a field accepts.
QString Allowed(FieldId field, const QString& text, QChar point) {
    const FieldRule& rule = RuleOf(field);
    if (!rule.IsNumber()) {
        return text;
    }
    const bool isTerm = rule.kind == ValueKind::WholeTerm || rule.kind == ValueKind::FractionalTerm;
    QString allowed;
    for (const QChar c : text) {
        if ((c >= u'0' && c <= u'9') || (c == point && !isTerm)) {
            allowed.append(c);
        }
    }
    return allowed;
}

QString Printable(QString text) {
    text.removeIf([](QChar c) { return !c.isPrint(); });
    return text;
}

} // namespace

void RandomUser::EnterField(unsigned a, unsigned /*b*/) { Enter(AnyInput(a)); }

void RandomUser::Enter(Field field) {
    const View before = Look();
    if (field.id == FieldId::FinancePoints || RuleOf(field.id).IsChoice()) {
        return; // a click there makes a choice
    }
    if (Click(*Control(field)) && m_edited != field) {
        Follow(before);
    }
}

/// Replaces the selection.
void RandomUser::Type(unsigned /*a*/, unsigned b) {
    if (!m_edited || (!EditOf(*m_edited) && m_edited->id != FieldId::LoanName)) {
        return;
    }
    const QString text = Printable(TextFor(m_edited->id, b, m_model.forms.Point())).left(40);
    const QLineEdit* edit = EditOf(*m_edited);
    if (edit != nullptr && RuleOf(m_edited->id).IsNumber()) {
        const auto start =
            edit->hasSelectedText() ? edit->selectionStart() : edit->cursorPosition();
        const QString allowed = Allowed(m_edited->id, text, m_model.forms.Point());
        const qsizetype end = allowed.isEmpty() ? start : start + edit->selectedText().size();
        m_text = allowed.isEmpty() ? edit->text()
                                   : edit->text().left(start) + allowed + edit->text().mid(end);
    }
    TypeText(text);
}

void RandomUser::Paste(unsigned a, unsigned b) {
    if (!m_edited || (!EditOf(*m_edited) && m_edited->id != FieldId::LoanName)) {
        return;
    }
    QGuiApplication::clipboard()->setText(a % 4 == 0
                                              ? AnyText(b, m_model.forms.Point())
                                              : TextFor(m_edited->id, b, m_model.forms.Point()));
    if (a % 2 == 0) {
        Press(Qt::Key_A, Qt::ControlModifier);
    }
    const QString text = QGuiApplication::clipboard()->text();
    const View before = Look();
    Press(Qt::Key_V, Qt::ControlModifier);
    if (IsBlockFor(m_edited, text)) {
        PasteInModel(text, before);
    } else {
        m_text = Look().text;
    }
}

void RandomUser::EditText(unsigned a, unsigned /*b*/) {
    struct Keys {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    static constexpr std::array keys{
        Keys{Qt::Key_Backspace, Qt::NoModifier}, Keys{Qt::Key_Delete, Qt::NoModifier},
        Keys{Qt::Key_Home, Qt::NoModifier},      Keys{Qt::Key_End, Qt::NoModifier},
        Keys{Qt::Key_Left, Qt::NoModifier},      Keys{Qt::Key_Right, Qt::NoModifier},
        Keys{Qt::Key_Home, Qt::ShiftModifier},   Keys{Qt::Key_End, Qt::ShiftModifier},
        Keys{Qt::Key_Left, Qt::ShiftModifier},   Keys{Qt::Key_A, Qt::ControlModifier},
        Keys{Qt::Key_X, Qt::ControlModifier},    Keys{Qt::Key_Escape, Qt::NoModifier},
    };
    if (!m_edited || (!EditOf(*m_edited) && m_edited->id != FieldId::LoanName)) {
        return;
    }
    const Keys& pressed = keys.at(a % keys.size());
    Press(pressed.key, pressed.modifiers);
    m_text = Look().text;
}

/// The text of a copied or dragged value.
QString RandomUser::CopiedText(Field field, const QString& shown) const {
    const ModelOffer& offer = m_model.OfferIn(field.row.value);
    const auto orZero = [](const QString& text) { return text.isEmpty() ? u"0"_s : text; };
    switch (field.id) {
    case FieldId::Points:
        return orZero(m_model.forms.Number(offer.points));
    case FieldId::InterestRate:
        return orZero(m_model.forms.Number(offer.rate));
    case FieldId::ActualPayment:
        return offer.actual == 0 ? QString()
                                 : orZero(m_model.forms.Number(Plain::ToCents(offer.actual)));
    default:
        return shown;
    }
}

/// Copies or pastes. Fields that can be dragged copy their value.
void RandomUser::UseClipboard(unsigned a, unsigned /*b*/) {
    const QLineEdit* edit = m_edited ? EditOf(*m_edited) : nullptr;
    if (edit == nullptr) {
        return;
    }
    const Field field = *m_edited;
    const bool isNumber = RuleOf(field.id).IsNumber();
    const bool typed = isNumber && edit->text() != m_model.EntryText(field);
    const bool part = edit->hasSelectedText() && edit->selectedText() != edit->text();
    const bool whole = isNumber ? !part : edit->selectedText() == edit->text();
    const bool isValue = IsDraggable(field.id) && !typed;
    if (a % 2 == 0) {
        const QString copied = isValue ? CopiedText(field, edit->text()) : QString();
        Press(Qt::Key_C, Qt::ControlModifier);
        if (!part && !copied.isEmpty() && QGuiApplication::clipboard()->text() != copied) {
            Complain(
                u"copied %1 instead of %2"_s.arg(QGuiApplication::clipboard()->text(), copied));
        }
        return;
    }
    const QString text = QGuiApplication::clipboard()->text();
    const bool takesValue = isValue && whole && HoldsValue();
    const View before = Look();
    Press(Qt::Key_V, Qt::ControlModifier);
    if (IsBlockFor(field, text)) {
        PasteInModel(text, before);
    } else if (!takesValue) {
        m_text = Look().text;
    } else if (m_model.MayDrop(field.id, text)) {
        TakeValue(field, text);
    } else {
        m_model.Expect(TextNumber::ValueRefused);
        m_model.expected.last() =
            m_model.expected.last().left(m_model.expected.last().indexOf(u'%'));
    }
}

/// Same effect as a drop.
void RandomUser::TakeValue(Field field, const QString& text) {
    if (!m_model.Drop(field, text)) {
        return;
    }
    if (m_edited && m_edited->row == field.row) {
        Reenter();
    } else {
        m_model.EnterRow(field.row.value);
    }
}

void RandomUser::Tab(unsigned a, unsigned /*b*/) {
    const View before = Look();
    if (a % 4 != 3) {
        Press(Qt::Key_Tab);
    } else {
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
    }
    Follow(before);
}

void RandomUser::Return(unsigned /*a*/, unsigned /*b*/) {
    const View before = Look();
    if (m_edited && RuleOf(m_edited->id).IsTyped()) {
        Press(Qt::Key_Return);
        Commit(before);
    } else if (m_edited && m_edited->id != FieldId::FinancePoints) {
        Press(Qt::Key_Return);
    }
}

void RandomUser::Arrow(unsigned a, unsigned /*b*/) {
    if (!m_edited || m_edited->id == FieldId::LoanName) {
        return; // there it opens the list
    }
    const Field field = *m_edited;
    const View before = Look();
    const Qt::Key key = a % 3 == 0 ? Qt::Key_Up : Qt::Key_Down;
    Press(key);
    if (RuleOf(field.id).IsChoice()) {
        const QString now = LookAt(field).text;
        if (now != before.text) {
            m_model.StoreChoice(field, now);
        }
        return;
    }
    const bool isRowField = field.row != Field::NoRow && EditOf(field) != nullptr;
    const int target = field.row.value + (key == Qt::Key_Up ? -1 : 1);
    const bool canMove =
        isRowField && target >= 0 && target < static_cast<int>(m_model.offers.size());
    if (!isRowField && RuleOf(field.id).IsTyped()) {
        return; // the caret moves in a single line, or the date changes
    }
    if (isRowField && !canMove) {
        return;
    }
    if (Follow(before) && canMove && m_edited != Field{field.id, Row{target}}) {
        Complain(u"the arrow key did not go to the row beside"_s);
    }
}

/// Opens the list and picks an entry, or cancels.
void RandomUser::Choose(unsigned a, unsigned b) { ChooseFrom(AnyInput(a), b); }

void RandomUser::ChooseType(unsigned /*a*/, unsigned b) { ChooseFrom({FieldId::LoanType}, b); }

void RandomUser::ChooseFrom(Field field, unsigned b) {
    auto* list = qobject_cast<QComboBox*>(Control(field));
    const View before = Look();
    if (list == nullptr || field.id == FieldId::LoanName || !Click(*list)) {
        return;
    }
    if (m_edited != field && !Follow(before)) {
        return;
    }
    Settle();
    if (QApplication::activePopupWidget() == nullptr) {
        return Complain(u"no list opens"_s);
    }
    if (b % 5 == 0) {
        return Press(Qt::Key_Escape);
    }
    const int entry = static_cast<int>(b % static_cast<unsigned>(list->count()));
    Press(Qt::Key_Home);
    for (int i = 0; i < entry; ++i) {
        Press(Qt::Key_Down);
    }
    Press(Qt::Key_Return);
    Settle();
    if (list->currentIndex() != entry) {
        Complain(u"another entry was picked"_s);
    }
    m_model.StoreChoice(field, list->currentText());
}

void RandomUser::TypeDay(unsigned a, unsigned b) {
    const Field field{FieldId::NextPayment};
    const View before = Look();
    if (!ClickInto(field, before)) {
        return;
    }
    static constexpr std::array keys{Qt::Key_Up,   Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                                     Qt::Key_Home, Qt::Key_End,  Qt::Key_Left,   Qt::Key_Right};
    if (a % 4 != 0) {
        return Press(keys.at(b % keys.size()));
    }
    const std::array texts{QString::number(b % 10'000),
                           QString::number(1'000'000 + b * 100),
                           m_model.forms.Day(Today.addDays(b % 10'000)),
                           u"2/%1/%2"_s.arg(b % 32).arg(b % 10'000),
                           u"12. 30. 2031"_s,
                           u"30/12/31"_s,
                           u"2031-12-30"_s,
                           u"123031"_s,
                           u"/"_s};
    Press(Qt::Key_A, Qt::ControlModifier);
    TypeText(texts.at(b / 7 % texts.size()));
    const View typed = Look();
    Press(Qt::Key_Return);
    Commit(typed);
}

/// Types valid numbers into these fields, one after the other.
void RandomUser::FillAll(std::initializer_list<Field> fields, unsigned b) {
    constexpr unsigned good = 16; // see TextFor
    for (const Field field : fields) {
        Enter(field);
        if (m_edited == field) {
            Type(0, b * good);
            Tab(0, 0);
        }
        b = b * 31 + 7;
    }
}

/// Enters an offer that can be computed.
void RandomUser::FillOffer(unsigned a, unsigned b) {
    const Row row{static_cast<int>(a % m_model.offers.size())};
    if (m_model.loan.amount == 0) {
        FillAll({{FieldId::LoanAmount}, {FieldId::AnnualTaxes}}, b);
    }
    FillAll({{FieldId::InterestRate, row}, {FieldId::Term, row}}, b);
    ChooseFrom({FieldId::Frequency, row}, a * 5 + 1 + b % 4);
}

void RandomUser::FillCurrent(unsigned a, unsigned b) {
    FillAll({{FieldId::CurLoanAmount},
             {FieldId::CurLoanTerm},
             {FieldId::CurInterestRate},
             {FieldId::CurrentBalance},
             {FieldId::CurActualPayment}},
            b);
    ChooseFrom({FieldId::ActPaymentFrequency}, a * 5 + 1 + b % 4);
}
