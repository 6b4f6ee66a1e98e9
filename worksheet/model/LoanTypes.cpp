#include "LoanTypes.h"

#include "Language.h"
#include "ModelNames.h"
#include "TextNumbers.h"

#include <algorithm>
#include <array>

namespace quend::model {

namespace {

struct TypeEntry {
    QChar code;
    int text = 0;      ///< number of its language text
    int listPlace = 0; ///< its position in the list
};

constexpr std::array LoanTypes{
    TypeEntry{u'A', TextNumber::LoanTypeAuto, 1},
    TypeEntry{u'B', TextNumber::LoanTypeBusiness, 2},
    TypeEntry{u'C', TextNumber::LoanTypeConstruction, 3},
    TypeEntry{u'D', TextNumber::LoanTypeDebtConsolidation, 5},
    TypeEntry{u'H', TextNumber::LoanTypeHomeEquity, 4},
    TypeEntry{u'M', TextNumber::LoanTypeMortgage, 0},
};

/// The letter of the first matching type; empty if none matches.
template <class IsMeant>
QString CodeOf(IsMeant isMeant) {
    const auto* type = std::ranges::find_if(LoanTypes, isMeant);
    return type == LoanTypes.end() ? QString() : QString(type->code);
}

} // namespace

QString LoanTypeCodeToText(const QString& code) {
    const auto* type = std::ranges::find_if(
        LoanTypes, [&](const TypeEntry& t) { return code.size() == 1 && code[0] == t.code; });
    return type == LoanTypes.end() ? QString() : GetResourceText(type->text);
}

QString LoanTypeTextToCode(const QString& text) {
    return CodeOf([&](const TypeEntry& type) { return GetResourceText(type.text) == text; });
}

QString LoanTypeTextToCodeInAnyLanguage(const QString& text) {
    const QString code = LoanTypeTextToCode(text);
    return !code.isEmpty() ? code : CodeOf([&](const TypeEntry& type) {
        return Language::Instance().TextInEveryLanguage(type.text).contains(text);
    });
}

QStringList LoanTypeTexts() {
    std::array<QString, LoanTypes.size()> texts;
    for (const TypeEntry& type : LoanTypes) {
        texts.at(static_cast<std::size_t>(type.listPlace)) = GetResourceText(type.text);
    }
    return {texts.begin(), texts.end()};
}

} // namespace quend::model
