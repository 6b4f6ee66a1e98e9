#pragma once

#include "Messages.h"

/// The toolkit's message boxes, over the active window. A message stands under the program's own
/// title, a question under a title of its own.
class MessageBoxes : public MessageDoor {
public:
    void Show(const QString& text) override;
    Answer Ask(const Question& question) override;
};
