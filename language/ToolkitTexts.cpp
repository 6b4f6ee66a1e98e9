#include "ToolkitTexts.h"

#include "Language.h"
#include "TextNumbers.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

/// A text as the toolkit's sources have it, and the number of ours.
struct ToolkitText {
    std::string_view source;
    int number;
};

constexpr std::array ToolkitTextTable{
    ToolkitText{"&Undo", TextNumber::EditUndo},
    ToolkitText{"&Redo", TextNumber::EditRedo},
    ToolkitText{"Cu&t", TextNumber::EditCut},
    ToolkitText{"&Copy", TextNumber::EditCopy},
    ToolkitText{"&Paste", TextNumber::EditPaste},
    ToolkitText{"Delete", TextNumber::EditDelete},
    ToolkitText{"Select All", TextNumber::EditSelectAll},
    ToolkitText{"&Select All", TextNumber::EditSelectAll},
};

} // namespace

ToolkitTexts::ToolkitTexts() { QCoreApplication::installTranslator(this); }

QString ToolkitTexts::translate(const char* context, const char* source, const char* /*comment*/,
                                int /*count*/) const {
    const std::string_view user(context);
    if (user != "QLineEdit" && user != "QAbstractSpinBox") {
        return {};
    }
    const auto* found = std::ranges::find(ToolkitTextTable, source, &ToolkitText::source);
    return found == ToolkitTextTable.end() ? QString() : GetResourceText(found->number);
}
