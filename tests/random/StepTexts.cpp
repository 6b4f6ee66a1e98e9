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

/// As in the United States; the other countries exchange the point and the comma.
const std::array BlockTexts{
    u"0.5\t6.25%\t30\tMonthly\t$1,500.00\tFirst Bank\n1\t5.875%\t15\tMonthly\t$2,000.00\tBank\n"_s,
    u"1\t7\n2\t8\n3\t9\n4\t10\n5\t11\n6\t12\n7\t13\n8\t14\n9\t15\n10\t1\n11\t2\n12\t3\n"_s,
    u"yes\t1\t5\nSí\t2\t6\nfalse\t3\t7\nX\t\t\nmaybe\t1\t1"_s,
    u"6.5\r\n7.25\r\n\r\n8"_s,
    u"\t\t\t\t\t\n\t\t\t\t\t\t\t\n"_s,
    u"1,234.5\t1,23\t12,34,567\t1,234,5\t(5)\t−7\n"_s,
    u"1e3\tnan\t99999999999999999999\t5%\t$5\t#DIV/0!\tmore\tand more"_s,
    u"922337203685477.58\t922337203685478\n-100000\t178956971"_s,
    u" 2 \t\u00a03\u00a0\tMensual\tCada dos semanas\t1,00\t'=1+1\n'+5\t-5\t+5\t--5"_s,
    u"EUR 5\t5 USD\t$ 1,000\t€1,000.00\t1.000,00 €\t5 MXN\tlender\r\t"_s,
    u"12.5\t1\t0\n.5\t5.\t.\n-\t+\t%\n()\t(\t$"_s,
    u"Monthly\t1,200.00\t=cmd\nEvery two weeks\t650.5\t@x\nTwice a month\t1\t'-"_s,
    u"6"_s,
    u""_s,
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

QString BlockText(unsigned number, QChar point) {
    QString text = OneOf(BlockTexts, number);
    for (QChar& c : text) {
        if (point == u',' && (c == u',' || c == u'.')) {
            c = c == u',' ? u'.' : u',';
        }
    }
    return text;
}

std::vector<QStringList> CellsIn(QString text) {
    std::vector<QStringList> rows;
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    text.chop(text.endsWith(u'\n') ? 1 : 0);
    for (const QString& row : text.split(u'\n')) {
        rows.push_back(row.split(u'\t'));
    }
    return rows;
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
