#pragma once

#include "LanguageComponent.h"
#include "TextTable.h"

namespace quend::language {

/// The built-in English texts, so that a lookup works without a loaded component. They come from
/// the same table as the English component.
class DefaultTexts final : public LanguageComponent {
public:
    DefaultTexts();

    QString Text(int id) const override { return m_table.Text(id); }

private:
    TextTable m_table;
};

} // namespace quend::language
