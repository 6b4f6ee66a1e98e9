#pragma once

#include <QString>
#include <QStringView>

#include <algorithm>
#include <span>

namespace quend::language {

/// A text of a table that the build has compiled, so that the program need not read the table
/// whenever it starts.
struct NumberedText {
    int number = 0;
    QStringView text;
};

/// The text of this number; a null QString if there is none. The texts are in order of their
/// numbers.
inline QString TextOfNumber(std::span<const NumberedText> texts, int number) {
    const auto found = std::ranges::lower_bound(texts, number, {}, &NumberedText::number);
    return found != texts.end() && found->number == number ? found->text.toString() : QString();
}

} // namespace quend::language
