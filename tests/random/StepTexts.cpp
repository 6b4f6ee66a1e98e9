#include "StepTexts.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

const std::array BadTexts{
    u"1.2.3"_qs,  u"1,2,3"_qs,      u"12abc"_qs,      u"-"_qs,        u"+"_qs,    u"."_qs,
    u","_qs,      u"5-"_qs,         u"--5"_qs,        u" 5"_qs,       u"5 "_qs,   u"$5"_qs,
    u"5%"_qs,     u"1e3"_qs,        u"nan"_qs,        u"inf"_qs,      u"0x10"_qs, u"1.2345"_qs,
    u"1,2345"_qs, u"1'000"_qs,      u"1,000.00"_qs,   u"1.000,00"_qs, u"٣٤"_qs,   u"½"_qs,
    u"−5"_qs,     u"11/21/2026"_qs, u"21.11.2026"_qs,
};

const std::array OddNumbers{
    u"-5"_qs,
    u"+5"_qs,
    u"-0"_qs,
    u"0"_qs,
    u"000"_qs,
    u"-100000"_qs,
    u"99999999999999"_qs,
    u"922337203685477"_qs,
    u"922337203685477.58"_qs,
    u"922337203685478"_qs,
    u"-922337203685477.58"_qs,
    u"2147483647"_qs,
    u"2147483648"_qs,
    u"178956971"_qs,
    u"1073741824"_qs,
    u"99999999999999999999999999999999"_qs,
    u"0.01"_qs,
    u"0.001"_qs,
    u".5"_qs,
    u"5."_qs,
    u"30.5"_qs,
    u"12.5"_qs,
    u"0.5"_qs,
};

const std::array FreeTexts{
    u"First Savings Bank"_qs,
    u"%1 %2 %n &x && <b>bold</b>"_qs,
    u"'; DROP TABLE loans; --"_qs,
    u"Ñandú & Söhne"_qs,
    u"שלום العالم"_qs,
    u"e\u0301\u0302 👩‍👩‍👧 🏦"_qs,
    u"line one\nline two\r\nline three"_qs,
    u"tab\there"_qs,
    u"  "_qs,
    u"\\\\server\\share"_qs,
};

const std::array NameTexts{
    u"Home"_qs, u"home"_qs,   u"Car"_qs,    u"Straße"_qs,      u"ñandú"_qs,
    u"  "_qs,   u" "_qs,      u"a\\b"_qs,   u"(new loan)"_qs,  u"%1"_qs,
    u"🏦"_qs,    u"Loan 1"_qs, u"Zweite"_qs, u"Tercera vez"_qs, u"'x' \"y\""_qs,
};

template <class Texts>
QString OneOf(const Texts& texts, unsigned number) {
    return texts.at(number % texts.size());
}

QString VeryLong(unsigned number) {
    constexpr std::array lengths{200, 1'000, 1'023, 1'024, 1'500, 5'000};
    const QString letter = OneOf(std::array{u"9"_qs, u"x"_qs, u"ü"_qs, u" "_qs}, number);
    return letter.repeated(lengths.at(number / 4 % lengths.size()));
}

QString Fraction(unsigned number, unsigned whole, int decimals, QChar point) {
    const QString digits = QString::number(number % 1'000 + 1'000).mid(1, decimals);
    return QString::number(whole) + (decimals > 0 ? point + digits : QString());
}

QString GoodNumber(FieldId field, unsigned number, QChar point) {
    switch (field) {
    case FieldId::LoanTerm:
    case FieldId::CurLoanTerm:
    case FieldId::Term:
        return QString::number(number % 40);
    case FieldId::Points:
        return Fraction(number, number % 5, static_cast<int>(number % 4), point);
    case FieldId::InterestRate:
    case FieldId::CurInterestRate:
        return Fraction(number, 1 + number % 14, static_cast<int>(number % 4), point);
    case FieldId::AnnualTaxes:
    case FieldId::AnnualInsurance:
        return Fraction(number, number % 5'000, static_cast<int>(number % 3), point);
    case FieldId::ActualPayment:
    case FieldId::CurActualPayment:
        return Fraction(number, number % 7 * 300 + number % 100, static_cast<int>(number % 3),
                        point);
    default:
        return Fraction(number, (number % 300 + 1) * 1'000, static_cast<int>(number % 3), point);
    }
}

} // namespace

QString NameText(unsigned number) {
    return number % 25 == 24 ? VeryLong(number / 25) : OneOf(NameTexts, number);
}

QString AnyText(unsigned number, QChar point) {
    const unsigned which = number / 8;
    switch (number % 8) {
    case 0:
        return OneOf(BadTexts, which);
    case 1:
        return OneOf(OddNumbers, which).replace(u'.', point);
    case 2:
        return OneOf(FreeTexts, which);
    case 3:
        return which % 7 == 0 ? VeryLong(which / 7) : QString();
    case 4:
        return u"0"_qs + point + QString::number(which % 100); // a rate as a fraction
    default:
        return Fraction(which, which % 2'000, static_cast<int>(which % 4), point);
    }
}

QString TextFor(FieldId field, unsigned number, QChar point) {
    const unsigned which = number / 16;
    if (number % 16 >= 13) {
        return AnyText(which, point);
    }
    switch (field) {
    case FieldId::LoanName:
        return NameText(which);
    case FieldId::Who:
        return OneOf(FreeTexts, which);
    default:
        return GoodNumber(field, which, point);
    }
}
