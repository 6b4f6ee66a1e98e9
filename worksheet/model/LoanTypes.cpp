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

/// Null for an unknown letter.
const TypeEntry* TypeOf(const LoanTypeCode& code) {
    const QString& letter = code.Text();
    const auto* type = std::ranges::find_if(
        LoanTypes, [&](const TypeEntry& t) { return letter.size() == 1 && letter[0] == t.code; });
    return type == LoanTypes.end() ? nullptr : type;
}

/// The letter of the first matching type; none if none matches.
template <class IsMeant>
LoanTypeCode CodeOf(IsMeant isMeant) {
    const auto* type = std::ranges::find_if(LoanTypes, isMeant);
    return type == LoanTypes.end() ? LoanTypeCode() : LoanTypeCode(type->code);
}

} // namespace

QString LoanTypeCodeToText(const LoanTypeCode& code) {
    const TypeEntry* const type = TypeOf(code);
    return type == nullptr ? QString() : GetResourceText(type->text);
}

QString LoanTypeCodeToEnglish(const LoanTypeCode& code) {
    const TypeEntry* const type = TypeOf(code);
    return type == nullptr ? QString() : Language::DefaultText(type->text);
}

LoanTypeCode LoanTypeTextToCode(const QString& text) {
    return CodeOf([&](const TypeEntry& type) { return GetResourceText(type.text) == text; });
}

LoanTypeCode LoanTypeTextToCodeInAnyLanguage(const QString& text) {
    const LoanTypeCode code = LoanTypeTextToCode(text);
    return !code.IsNone() ? code : CodeOf([&](const TypeEntry& type) {
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
