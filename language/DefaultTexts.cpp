// The built-in texts: those of the English component, compiled from the same table.

#include "Language.h"
#include "NumberedText.h"

#include <array>

namespace quend::language {

namespace {

constexpr auto Texts = std::to_array<NumberedText>({
#include "DefaultTexts.inc"
});

} // namespace

QString Language::DefaultText(int id) { return TextOfNumber(Texts, id); }

} // namespace quend::language
