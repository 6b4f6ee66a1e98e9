#include "StepTexts.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

const std::array BadTexts{
    u"1.2.3"_s,  u"1,2,3"_s,      u"12abc"_s,      u"-"_s,        u"+"_s,    u"."_s,
    u","_s,      u"5-"_s,         u"--5"_s,        u" 5"_s,       u"5 "_s,   u"$5"_s,
    u"5%"_s,     u"1e3"_s,        u"nan"_s,        u"inf"_s,      u"0x10"_s, u"1.2345"_s,
    u"1,2345"_s, u"1'000"_s,      u"1,000.00"_s,   u"1.000,00"_s, u"٣٤"_s,   u"½"_s,
    u"−5"_s,     u"11/21/2026"_s, u"21.11.2026"_s,
};

const std::array OddNumbers{
    u"-5"_s,
    u"+5"_s,
    u"-0"_s,
    u"0"_s,
    u"000"_s,
    u"-100000"_s,
    u"99999999999999"_s,
    u"922337203685477"_s,
    u"922337203685477.58"_s,
    u"922337203685478"_s,
    u"-922337203685477.58"_s,
    u"2147483647"_s,
    u"2147483648"_s,
    u"178956971"_s,
    u"1073741824"_s,
    u"99999999999999999999999999999999"_s,
    u"0.01"_s,
    u"0.001"_s,
    u".5"_s,
    u"5."_s,
    u"30.5"_s,
    u"12.5"_s,
    u"0.5"_s,
};

const std::array FreeTexts{
    u"First Savings Bank"_s,
    u"%1 %2 %n &x && <b>bold</b>"_s,
    u"'; DROP TABLE loans; --"_s,
    u"Ñandú & Söhne"_s,
    u"שלום العالم"_s,
    u"e\u0301\u0302 👩‍👩‍👧 🏦"_s,
    u"line one\nline two\r\nline three"_s,
    u"tab\there"_s,
    u"  "_s,
    u"\\\\server\\share"_s,
};

const std::array NameTexts{
    u"Home"_s, u"home"_s,   u"Car"_s,    u"Straße"_s,      u"ñandú"_s,
    u"  "_s,   u" "_s,      u"a\\b"_s,   u"(new loan)"_s,  u"%1"_s,
    u"🏦"_s,    u"Loan 1"_s, u"Zweite"_s, u"Tercera vez"_s, u"'x' \"y\""_s,
};

template <class Texts>
QString OneOf(const Texts& texts, unsigned number) {
    return texts.at(number % texts.size());
}

QString VeryLong(unsigned number) {
    constexpr std::array lengths{200, 1'000, 1'023, 1'024, 1'500, 5'000};
    const QString letter = OneOf(std::array{u"9"_s, u"x"_s, u"ü"_s, u" "_s}, number);
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
        return u"0"_s + point + QString::number(which % 100); // a rate as a fraction
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
