// What each field accepts and shows.

#include "Language.h"
#include "QuendNames.h"
#include "ReferenceModel.h"
#include "TextNumbers.h"

#include <array>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;
using Plain::Count;
using Plain::TooLarge;
using enum FieldId;

namespace {

enum class Sort { Amount, Percent, Real, Term, None };

/// The fields that accept or show a number, and the decimals that they accept.
struct NumberField {
    FieldId field;
    Sort sort;
    int decimals;
};

constexpr std::array NumberFields{
    NumberField{LoanAmount, Sort::Amount, 2},       NumberField{LoanTerm, Sort::Term, 0},
    NumberField{AnnualTaxes, Sort::Amount, 2},      NumberField{AnnualInsurance, Sort::Amount, 2},
    NumberField{MonthlyEscrow, Sort::Amount, 0},    NumberField{CurLoanAmount, Sort::Amount, 2},
    NumberField{CurLoanTerm, Sort::Term, 0},        NumberField{CurInterestRate, Sort::Percent, 3},
    NumberField{CurPayment, Sort::Amount, 0},       NumberField{CurrentBalance, Sort::Amount, 2},
    NumberField{CurActualPayment, Sort::Amount, 2}, NumberField{CurAmountLeft, Sort::Amount, 0},
    NumberField{CurInterestLeft, Sort::Amount, 0},  NumberField{Points, Sort::Real, 3},
    NumberField{InterestRate, Sort::Percent, 3},    NumberField{Term, Sort::Term, 3},
    NumberField{ActualPayment, Sort::Amount, 2},
};

NumberField Of(FieldId field) {
    for (const NumberField& number : NumberFields) {
        if (number.field == field) {
            return number;
        }
    }
    return {field, Sort::None, 0};
}

struct Named {
    char16_t code;
    const char16_t* english;
    const char16_t* spanish;
};

constexpr std::array FrequencyNames{
    Named{u'M', u"Monthly", u"Mensual"},
    Named{u'B', u"Twice a month", u"Dos veces al mes"},
    Named{u'W', u"Every two weeks", u"Cada dos semanas"},
    Named{u'Q', u"Every four weeks", u"Cada cuatro semanas"},
};

constexpr std::array TypeNames{
    Named{u'A', u"Auto", u"Automóvil"},
    Named{u'B', u"Business", u"Negocio"},
    Named{u'C', u"Construction", u"Construcción"},
    Named{u'D', u"Debt consolidation", u"Consolidación de deudas"},
    Named{u'H', u"Home equity", u"Valor neto de la vivienda"},
    Named{u'M', u"Mortgage", u"Hipoteca"},
};

template <std::size_t Size>
QString NameOf(const std::array<Named, Size>& names, QChar code, bool spanish) {
    for (const Named& named : names) {
        if (code == QChar(named.code)) {
            return QString::fromUtf16(spanish ? named.spanish : named.english);
        }
    }
    return {};
}

template <std::size_t Size>
QChar CodeOf(const std::array<Named, Size>& names, const QString& text, bool spanish) {
    for (const Named& named : names) {
        if (text == QString::fromUtf16(spanish ? named.spanish : named.english)) {
            return {named.code};
        }
    }
    return {};
}

int WholeMonths(double months) {
    if (!(std::abs(months) <= std::numeric_limits<int>::max())) {
        throw TooLarge{};
    }
    return static_cast<int>(months);
}

} // namespace

QString ReferenceModel::FrequencyText(QChar code) const {
    return NameOf(FrequencyNames, code, spanish);
}
QChar ReferenceModel::FrequencyCode(const QString& text) const {
    return CodeOf(FrequencyNames, text, spanish);
}
QString ReferenceModel::TypeText(const QString& code) const {
    return code.isEmpty() ? QString() : NameOf(TypeNames, code.front(), spanish);
}

int ReferenceModel::ReadTerm(FieldId field, const QString& text) const {
    const double term = forms.ReadReal(text);
    if (inMonths) {
        return WholeMonths(std::nearbyint(term));
    }
    // The current loan may have any number of months left; offers are for whole years.
    return field == CurLoanTerm ? WholeMonths(std::nearbyint(term * 12))
                                : WholeMonths(std::nearbyint(term) * 12);
}

ReferenceModel::Number ReferenceModel::Read(FieldId field, const QString& text) const {
    switch (Of(field).sort) {
    case Sort::Amount:
        return forms.ReadAmount(text);
    case Sort::Percent:
        return forms.ReadReal(text) / 100;
    case Sort::Real:
        return forms.ReadReal(text);
    default:
        return ReadTerm(field, text);
    }
}

bool ReferenceModel::Accepts(Field field, const QString& text) const {
    if (field.id == NextPayment) {
        return text == Shown(field) || forms.ReadDay(text, Today.year()).isValid();
    }
    return Of(field.id).sort == Sort::None || text == EntryText(field) ||
           (forms.IsForm(text, Of(field.id).decimals) && FailureOf(field, text).isEmpty());
}

/// A lone sign is no number, and is refused like any other text that is no number.
QString ReferenceModel::FailureOf(Field field, const QString& text) const {
    if (field.id == NextPayment) {
        const QString refused = GetResourceText(TextNumber::DateRefused);
        return refused.left(refused.indexOf(u'%'));
    }
    static constexpr std::array pictures{u" nnn", u" nnnn.n", u" nnnn.nn", u" nnnn.nnn"};
    const int decimals = Of(field.id).decimals;
    QString refused = GetResourceText(TextNumber::NumberRefused) +
                      QString::fromUtf16(pictures.at(static_cast<std::size_t>(decimals)));
    if (!forms.IsForm(text, decimals)) {
        return refused;
    }
    try {
        Read(field.id, text);
    } catch (const TooLarge&) {
        return GetResourceText(TextNumber::NumberTooLarge) + u"\nerrn=6  src="_s;
    } catch (const Forms::NoNumber&) {
        return refused;
    }
    return {};
}

bool ReferenceModel::MayDrop(FieldId field, const QString& text) const {
    return field == Who || (!text.isEmpty() && forms.IsForm(text, Of(field).decimals));
}

void ReferenceModel::Leave(Field field, const QString& text) {
    if (Of(field.id).sort == Sort::None) {
        return;
    }
    if (text == EntryText(field)) {
        GuardAgain([&] { StoreNumber(field, NumberOf(field)); });
    } else {
        Guard([&] { StoreNumber(field, Read(field.id, text)); });
    }
}

void ReferenceModel::StoreNumber(Field field, const Number& number) {
    const auto amount = [&](Count& stored, unsigned parts) {
        Put(stored, std::get<Count>(number));
        Recalculate(parts);
    };
    switch (field.id) {
    case LoanAmount:
        return amount(loan.amount, Offers);
    case LoanTerm:
        return Put(loan.term, std::get<int>(number));
    case AnnualTaxes:
        return amount(loan.taxes, Escrow);
    case AnnualInsurance:
        return amount(loan.insurance, Escrow);
    case CurLoanAmount:
        return amount(current.amount, Payment | Schedule);
    case CurLoanTerm:
        Put(current.term, std::get<int>(number));
        return Recalculate(Payment | Schedule);
    case CurInterestRate:
        Put(current.rate, std::get<double>(number));
        return Recalculate(Payment | Schedule);
    case CurrentBalance:
        return amount(current.balance, Payment | Schedule);
    case CurActualPayment:
        return amount(current.actual, Payment | Schedule);
    default:
        return StoreOfferNumber(field, number);
    }
}

void ReferenceModel::SetRate(ModelOffer& offer, double rate) {
    Put(offer.rate, rate);
    if (offer.rate != 0 && offer.term == 0) {
        Put(offer.term, loan.term);
    }
}

void ReferenceModel::StoreOfferNumber(Field field, const Number& number) {
    ModelOffer& offer = OfferIn(field.row.value);
    switch (field.id) {
    case Points:
        Put(offer.points, std::get<double>(number));
        break;
    case InterestRate:
        SetRate(offer, std::get<double>(number));
        break;
    case Term:
        Put(offer.term, std::get<int>(number));
        break;
    default:
        return StoreActual(field.row.value, std::get<Count>(number));
    }
    RecalculateOffer(order.at(Place(field.row.value)));
}

void ReferenceModel::StoreActual(int row, Count payment) {
    ModelOffer& offer = OfferIn(row);
    Raise(offer);
    const Count least = LeastPayment(offer);
    if (payment <= 0 || payment >= least) {
        Put(offer.actual, payment);
    } else {
        Expect(TextNumber::PaymentRaised);
        noticeShown = true;
        Raise(offer);
        Put(offer.actual, least);
        MarkRaised(order.at(Place(row)));
    }
    RunPayoff(offer);
}

void ReferenceModel::StoreChoice(Field field, const QString& text) {
    Guard([&] { Store(field, text); });
}

void ReferenceModel::Store(Field field, const QString& text) {
    switch (field.id) {
    case LoanType: {
        const QChar code = CodeOf(TypeNames, text, spanish);
        return Put(loan.type, code.isNull() ? QString() : QString(code));
    }
    case CurPaymentFrequency:
        Put(current.frequency, FrequencyCode(text));
        return Recalculate(Payment | Schedule);
    case ActPaymentFrequency:
        Put(current.actualFrequency, FrequencyCode(text));
        return Recalculate(Payment | Schedule);
    default:
        Put(OfferIn(field.row.value).frequency, FrequencyCode(text));
        return RecalculateOffer(order.at(Place(field.row.value)));
    }
}

void ReferenceModel::LeaveChoice(Field field, const QString& text) {
    GuardAgain([&] {
        if (field.id == CurPaymentFrequency || field.id == ActPaymentFrequency) {
            return text == Shown(field) ? Recalculate(Payment) : Store(field, text);
        }
        Store(field, text);
    });
}

void ReferenceModel::LeaveTick(int row, bool ticked) {
    GuardAgain([&] {
        Put(OfferIn(row).financed, ticked);
        RecalculateOffer(order.at(Place(row)));
    });
}

void ReferenceModel::StoreTick(int row, bool ticked) {
    Guard([&] {
        Put(OfferIn(row).financed, ticked);
        RecalculateOffer(order.at(Place(row)));
    });
}

void ReferenceModel::StoreDay(QDate day) {
    Guard([&] {
        Put(current.next, day);
        Recalculate(Schedule);
    });
}

void ReferenceModel::StoreCosts(int place, Count costs) {
    Put(offers.at(Place(place - 1)).costs, costs);
}

void ReferenceModel::StoreWho(int row, const QString& who) { Put(OfferIn(row).who, who); }

bool ReferenceModel::Drop(Field field, const QString& text) {
    if (field.id == Who) {
        QString lines = text;
        lines.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
        StoreWho(field.row.value, lines.replace(u'\n', u"\r\n"_s));
        return true;
    }
    bool isRead = false;
    Guard([&] {
        const Number number = field.id == ActualPayment
                                  ? Number(forms.ReadAmount(text))
                                  : Number(forms.ReadReal(text)); // a rate also as its fraction
        isRead = true;
        StoreOfferNumber(field, number);
    });
    return isRead;
}

ReferenceModel::Number ReferenceModel::NumberOf(Field field) const {
    switch (field.id) {
    case LoanAmount:
        return loan.amount;
    case LoanTerm:
        return loan.term;
    case AnnualTaxes:
        return loan.taxes;
    case AnnualInsurance:
        return loan.insurance;
    case MonthlyEscrow:
        return loan.escrow;
    case CurLoanAmount:
        return current.amount;
    case CurLoanTerm:
        return current.term;
    case CurInterestRate:
        return current.rate;
    case CurPayment:
        return current.payment;
    case CurrentBalance:
        return current.balance;
    case CurActualPayment:
        return current.actual;
    case CurAmountLeft:
        return current.left;
    case CurInterestLeft:
        return current.interestLeft;
    case Points:
        return OfferIn(field.row.value).points;
    case InterestRate:
        return OfferIn(field.row.value).rate;
    case Term:
        return OfferIn(field.row.value).term;
    default:
        return OfferIn(field.row.value).actual;
    }
}

QString ReferenceModel::EntryText(Field field) const {
    switch (Of(field.id).sort) {
    case Sort::Amount:
        return forms.Number(std::get<Count>(NumberOf(field)));
    case Sort::Percent:
        return forms.Number(std::get<double>(NumberOf(field)) * 100);
    case Sort::Real:
        return forms.Number(std::get<double>(NumberOf(field)));
    case Sort::Term:
        return forms.Term(std::get<int>(NumberOf(field)), inMonths);
    default:
        return {};
    }
}

QString ReferenceModel::Shown(Field field) const {
    switch (Of(field.id).sort) {
    case Sort::Amount:
        return forms.Currency(std::get<Count>(NumberOf(field)));
    case Sort::Percent:
        return forms.Percent(std::get<double>(NumberOf(field)));
    case Sort::Real:
        return forms.ThreeDecimals(std::get<double>(NumberOf(field)));
    case Sort::Term:
        return EntryText(field);
    default:
        break;
    }
    switch (field.id) {
    case LoanName:
        return loan.name;
    case LoanType:
        return TypeText(loan.type);
    case CurPaymentFrequency:
        return FrequencyText(current.frequency);
    case ActPaymentFrequency:
        return FrequencyText(current.actualFrequency);
    case NextPayment:
        return forms.Day(current.next);
    case CurPayoffDate:
        return forms.Day(current.payoff);
    case Frequency:
        return FrequencyText(OfferIn(field.row.value).frequency);
    default:
        return OfferIn(field.row.value).who;
    }
}
