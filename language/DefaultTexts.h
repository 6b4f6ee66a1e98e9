#pragma once

#include "LanguageComponent.h"
#include "TextTable.h"

/// The English texts that are part of the program itself, so that a lookup never fails for want of
/// a loaded component. They come from the same table as the English component.
class DefaultTexts final : public LanguageComponent {
public:
    DefaultTexts();

    QString Text(int id) const override { return m_table.Text(id); }

private:
    TextTable m_table;
};
