#include "LoanTypes.h"

#include "Language.h"

#include <algorithm>
#include <array>

namespace {

struct LoanType {
    QChar code;
    int text = 0;      ///< number of its language text
    int listPlace = 0; ///< where it stands in the list
};

constexpr std::array LoanTypes{
    LoanType{u'A', 10, 1}, LoanType{u'B', 11, 2}, LoanType{u'C', 19, 3},
    LoanType{u'D', 29, 5}, LoanType{u'H', 39, 4}, LoanType{u'M', 83, 0},
};

} // namespace

QString LoanTypeCodeToText(const QString& code) {
    const auto* type = std::ranges::find_if(
        LoanTypes, [&](const LoanType& t) { return code.size() == 1 && code[0] == t.code; });
    return type == LoanTypes.end() ? QString() : GetResourceText(type->text);
}

QString LoanTypeTextToCode(const QString& text) {
    const auto* type = std::ranges::find_if(
        LoanTypes, [&](const LoanType& t) { return GetResourceText(t.text) == text; });
    return type == LoanTypes.end() ? QString() : QString(type->code);
}

QStringList LoanTypeTexts() {
    std::array<QString, LoanTypes.size()> texts;
    for (const LoanType& type : LoanTypes) {
        texts.at(static_cast<std::size_t>(type.listPlace)) = GetResourceText(type.text);
    }
    return {texts.begin(), texts.end()};
}
