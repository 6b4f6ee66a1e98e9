#pragma once

#include "Messages.h"

class QWidget;

/// The toolkit's message boxes, over the active window: a text and an OK button, under the
/// program's own title.
class MessageBoxes : public MessageDoor {
public:
    void Show(const QString& text) override;
};
