#include "Checks.h"

#include "Colours.h"
#include "RandomUser.h"
#include "RegistryLimits.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>

#include <algorithm>
#include <set>

using namespace Qt::StringLiterals;

std::span<const Checks::Check> Checks::All() {
    static constexpr std::array checks{
        Check{"messages", &Checks::Messages},     Check{"questions", &Checks::Questions},
        Check{"rows", &Checks::RowsAreThere},     Check{"bands", &Checks::BandsShow},
        Check{"offers", &Checks::OffersShow},     Check{"marks", &Checks::Marks},
        Check{"dirty", &Checks::Dirty},           Check{"focus", &Checks::Focus},
        Check{"order", &Checks::Order},           Check{"scrolling", &Checks::Scrolling},
        Check{"captions", &Checks::Captions},     Check{"names", &Checks::NamesKept},
        Check{"comparison", &Checks::Comparison},
    };
    return checks;
}

QStringList Checks::Complaints(RandomUser& user) {
    m_complaints = user.complaints;
    ++m_looks;
    for (const Check& check : All()) {
        const qsizetype before = m_complaints.size();
        (this->*check.look)(user);
        for (qsizetype i = before; i < m_complaints.size(); ++i) {
            m_complaints[i].prepend(QLatin1String(check.name) + u": "_s);
        }
        if (check.look == &Checks::RowsAreThere && before != m_complaints.size()) {
            break; // the other checks need the rows
        }
    }
    return m_complaints;
}

/// Every message is expected, and every expected message appears.
void Checks::Messages(RandomUser& user) {
    QStringList waiting = user.Model().expected;
    waiting.removeDuplicates();
    const QStringList shown = user.TheProgram().messages.Texts();
    for (const QString& text : shown) {
        const auto begins = [&](const QString& start) { return text.startsWith(start); };
        if (!std::ranges::any_of(user.Model().expected, begins)) {
            Say(u"not called for: “%1”"_s.arg(text));
        }
        waiting.removeIf(begins);
    }
    if (!waiting.isEmpty()) {
        Say(u"did not come: “%1”"_s.arg(waiting.join(u"”, “")));
    }
}

void Checks::Questions(RandomUser& user) {
    QStringList asked;
    for (const Question& question : user.TheProgram().messages.Questions()) {
        asked.append(question.text);
    }
    if (asked != user.ExpectedQuestions()) {
        Say(u"asked “%1” instead of “%2”"_s.arg(asked.join(u'|'),
                                                user.ExpectedQuestions().join(u'|')));
    }
}

void Checks::RowsAreThere(RandomUser& user) {
    const int rows = static_cast<int>(user.Model().offers.size());
    const QWidget* last = user.Control({FieldId::Who, ::Row{rows - 1}});
    const int highest = user.TheProgram().Window().GetWorksheet().HighestOfferRow().value;
    if (last == nullptr || highest != rows - 1) {
        Say(u"there are %1 rows instead of %2"_s.arg(highest + 1).arg(rows));
    }
}

void Checks::Compare(RandomUser& user, Field field, const QString& expected) {
    const QString shown = user.ShownIn(field);
    if (shown != expected) {
        Say(u"%1(%2) shows “%3” instead of “%4”"_s.arg(QString(RuleOf(field.id).control))
                .arg(field.row.value)
                .arg(shown, expected));
    }
}

void Checks::BandsShow(RandomUser& user) {
    for (const FieldRule& rule : LoanFields()) {
        const Field field{rule.id};
        if (user.Edited() != field) {
            Compare(user, field, user.Model().Shown(field));
        } else if (rule.IsNumber()) {
            Compare(user, field, user.EditedText());
        }
    }
}

const std::vector<QString>& Checks::TextsOf(const ReferenceModel& model, int row) {
    const ModelOffer& offer = model.OfferIn(row);
    Row& known = m_rows.at(static_cast<std::size_t>(row));
    const int manner = static_cast<int>(model.forms.Country()) * 4 + (model.spanish ? 2 : 0) +
                       (model.inMonths ? 1 : 0);
    if (known.manner == manner && known.offer == offer && known.amount == model.loan.amount &&
        known.escrow == model.loan.escrow) {
        return known.texts;
    }
    const ModelResults results = model.ResultsOf(offer);
    known = {offer, model.loan.amount, model.loan.escrow, manner, {}};
    for (const FieldRule& rule : OfferFields()) {
        switch (rule.id) {
        case FieldId::FinancePoints:
            known.texts.push_back(offer.financed ? u"ticked"_s : QString());
            break;
        case FieldId::PandI:
            known.texts.push_back(model.forms.Currency(results.pAndI));
            break;
        case FieldId::Payment:
            known.texts.push_back(model.forms.Currency(results.payment));
            break;
        case FieldId::PayoffDate:
            known.texts.push_back(model.forms.Day(results.payoff));
            break;
        case FieldId::Interest:
            known.texts.push_back(model.forms.Currency(results.interest));
            break;
        default:
            known.texts.push_back(model.Shown({rule.id, ::Row{row}}));
        }
    }
    return known.texts;
}

void Checks::OffersShow(RandomUser& user) {
    const ReferenceModel& model = user.Model();
    for (int row = 0; row < static_cast<int>(model.offers.size()); ++row) {
        std::size_t column = 0;
        const std::vector<QString>& texts = TextsOf(model, row);
        for (const FieldRule& rule : OfferFields()) {
            const Field field{rule.id, ::Row{row}};
            if (user.Edited() != field) {
                Compare(user, field, texts.at(column));
            } else if (rule.IsNumber()) {
                Compare(user, field, user.EditedText());
            }
            ++column;
        }
    }
}

void Checks::Marks(RandomUser& user) {
    const ReferenceModel& model = user.Model();
    const auto compare = [&](Field field, QColor expected, const QColor& colour) {
        const bool shown = user.Control(field)->palette().color(QPalette::Base) == colour;
        if (shown != expected.isValid()) {
            Say(u"%1(%2) is %3"_s.arg(QString(RuleOf(field.id).control))
                    .arg(field.row.value)
                    .arg(shown ? u"marked"_s : u"not marked"_s));
        }
    };
    for (const FieldId id :
         {FieldId::CurLoanAmount, FieldId::CurLoanTerm, FieldId::CurInterestRate}) {
        compare({id}, model.IsMissing(id) ? Colours::Missing : QColor(), Colours::Missing);
    }
    for (int row = 0; row < static_cast<int>(model.offers.size()); ++row) {
        compare({FieldId::ActualPayment, ::Row{row}},
                model.IsRaised(row) ? Colours::Raised : QColor(), Colours::Raised);
    }
    const auto* box = qobject_cast<QComboBox*>(user.Control({FieldId::LoanName}));
    const bool marked = box->lineEdit()->palette().color(QPalette::Base) == Colours::Missing;
    if (marked != model.nameMissing) {
        Say(u"the name is %1"_s.arg(marked ? u"marked"_s : u"not marked"_s));
    }
}

void Checks::Dirty(RandomUser& user) {
    if (user.TheProgram().Window().GetWorksheet().Dirty() != user.Model().dirty) {
        Say(user.Model().dirty ? u"there is something to save"_s : u"there is nothing to save"_s);
    }
}

void Checks::Focus(RandomUser& user) {
    const QWidget* focus = QApplication::focusWidget();
    const Loan& window = user.TheProgram().Window();
    if (focus == nullptr) {
        Say(u"nothing has the focus"_s);
    } else if (!window.isAncestorOf(focus) || !focus->isVisible()) {
        Say(u"the focus is at %1, out of sight"_s.arg(focus->objectName()));
    } else if (user.Edited() && user.Control(*user.Edited()) != focus) {
        Say(u"the focus is at %1"_s.arg(focus->objectName()));
    }
}

/// Every offer is in exactly one row.
void Checks::Order(RandomUser& user) {
    const Worksheet& sheet = user.TheProgram().Window().GetWorksheet();
    std::set<std::size_t> seen;
    for (::Row row{0}; row <= sheet.HighestOfferRow(); ++row.value) {
        seen.insert(sheet.OfferIndexOfRow(row).value);
    }
    if (seen.size() != user.Model().offers.size()) {
        Say(u"%1 offers are in the rows"_s.arg(seen.size()));
    }
}

void Checks::Scrolling(RandomUser& user) {
    const Loan& window = user.TheProgram().Window();
    const auto* bar = window.findChild<QScrollBar*>(u"vsbLoans"_s);
    const auto* canvas = window.findChild<QWidget*>(u"picCanvas"_s);
    const int height = bar->singleStep();
    if (bar->value() % height != 0 || bar->maximum() % height != 0) {
        Say(u"is at %1 of %2 between rows of %3"_s.arg(bar->value())
                .arg(bar->maximum())
                .arg(height));
    }
    if (canvas->y() != -bar->value() || bar->isEnabled() != (bar->maximum() > 0)) {
        Say(u"the rows do not follow the bar"_s);
    }
}

void Checks::Captions(RandomUser& user) {
    const bool thorough = m_looks % 50 == 0;
    for (const QString& complaint :
         m_texts.Complaints(user.TheProgram().Window(), user.Model(), thorough)) {
        Say(complaint);
    }
}

/// The store holds exactly the worksheets of the reference model.
void Checks::NamesKept(RandomUser& user) {
    if (!user.keptChanged && m_looks % 50 != 0) {
        return;
    }
    user.keptChanged = false;
    QStringList kept;
    for (const std::string& name : user.TheProgram().Kept()) {
        if (name.size() != NoSubkeysLength || !QString::fromStdString(name).trimmed().isEmpty()) {
            kept.append(QString::fromStdString(name));
        }
    }
    if (kept != user.Model().Names()) {
        Say(u"the store holds %1 instead of %2"_s.arg(kept.join(u'|'),
                                                      user.Model().Names().join(u'|')));
    }
}

void Checks::Comparison(RandomUser& user) {
    for (const QString& complaint : m_comparison.Complaints(user)) {
        Say(complaint);
    }
}
