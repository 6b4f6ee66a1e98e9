#pragma once

#include <QTranslator>

/// Gives the toolkit's own menus of text fields their texts in the language in use, while this
/// object lives. Other texts of the toolkit stay as they are.
class ToolkitTexts : public QTranslator {
public:
    ToolkitTexts();

    QString translate(const char* context, const char* source, const char* comment,
                      int count) const override;
    bool isEmpty() const override { return false; }
};
