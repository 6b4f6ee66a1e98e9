#pragma once

#include "MessageQueue.h"

namespace quend::window {

/// Shows Qt message boxes over the active window. A message has the program's title, a question its
/// own.
class MessageBoxes : public MessageInterface {
public:
    void Show(const QString& text) override;
    Answer Ask(const Question& question) override;
};

} // namespace quend::window
