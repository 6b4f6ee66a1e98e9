// The built-in texts: those of the English component, compiled from the same table.

#include "Language.h"
#include "NumberedText.h"

namespace quend::language {

namespace {

constexpr NumberedText Texts[]{
#include "DefaultTexts.inc"
};

} // namespace

QString Language::DefaultText(int id) { return TextOfNumber(Texts, id); }

} // namespace quend::language
