#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <ostream>

/// A number field with its texts in the United States, terms in years.
struct NumberField {
    QStringView name;
    QStringView picture; ///< the number format that a refusal shows
    bool separatorKey;   ///< the decimal symbol can be typed
    QStringView typed;   ///< a number that it accepts
    QStringView shown;   ///< the same after leaving the field
    QStringView entered; ///< the same after entering the field again
};

// clang-format off
inline constexpr std::array NumberFields{
    //          name                      picture        separator typed       shown          entered
    NumberField{u"txtLoanAmount",         u" nnnn.nn",   true,     u"1234.50", u"$1,234.50",  u"1234.5"},
    NumberField{u"txtLoanTerm",           u" nnn",       false,    u"030",     u"30",         u"30"},
    NumberField{u"txtAnnualTaxes",        u" nnnn.nn",   true,     u"1800",    u"$1,800.00",  u"1800"},
    NumberField{u"txtAnnualInsurance",    u" nnnn.nn",   true,     u".05",     u"$0.05",      u"0.05"},
    NumberField{u"txtCurLoanAmount",      u" nnnn.nn",   true,     u"12345678.9", u"$12,345,678.90", u"12345678.9"},
    NumberField{u"txtCurLoanTerm",        u" nnn",       false,    u"15",      u"15",         u"15"},
    NumberField{u"txtCurInterestRate",    u" nnnn.nnn",  true,     u"6.125",   u"6.125%",     u"6.125"},
    NumberField{u"txtCurrentBalance",     u" nnnn.nn",   true,     u"5.",      u"$5.00",      u"5"},
    NumberField{u"txtCurActualPayment",   u" nnnn.nn",   true,     u"700.01",  u"$700.01",    u"700.01"},
    NumberField{u"txtPoints(2)",          u" nnnn.nnn",  true,     u".5",      u".500",       u"0.5"},
    NumberField{u"txtInterestRate(2)",    u" nnnn.nnn",  true,     u"7.337",   u"7.337%",     u"7.337"},
    NumberField{u"txtTerm(2)",            u" nnnn.nnn",  false,    u"20",      u"20",         u"20"},
    NumberField{u"txtActualPayment(2)",   u" nnnn.nn",   true,     u"888.80",  u"$888.80",    u"888.8"},
};
// clang-format on

inline void PrintTo(const NumberField& field, std::ostream* out) {
    *out << field.name.toString().toStdString();
}

/// For test names, which allow letters and digits only.
inline constexpr auto NameOfField = [](const auto& info) {
    QString name = info.param.name.toString();
    return name.remove(u'(').remove(u')').toStdString();
};
