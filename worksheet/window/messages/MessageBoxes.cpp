#include "MessageBoxes.h"

#include "Language.h"
#include "TextNumbers.h"
#include "WindowNames.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

#include <array>

namespace quend::window {

namespace {

struct ButtonText {
    QMessageBox::StandardButton button;
    int text;
};

constexpr std::array ButtonTexts{
    ButtonText{QMessageBox::Ok, TextNumber::Ok},
    ButtonText{QMessageBox::Yes, TextNumber::Yes},
    ButtonText{QMessageBox::No, TextNumber::No},
    ButtonText{QMessageBox::Cancel, TextNumber::Cancel},
};

/// Names and paths may have any length, and the box does not scroll: a long text loses its middle.
QString FitForABox(const QString& text) {
    constexpr qsizetype most = 1'600;
    return text.size() <= most ? text : text.first(most / 2) + u'…' + text.last(most / 2);
}

/// The standard button that was pressed.
int Run(QMessageBox::Icon icon, const QString& title, const QString& text,
        QMessageBox::StandardButtons buttons) {
    QMessageBox box(icon, title, FitForABox(text), buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    for (const ButtonText& shown : ButtonTexts) {
        if (QAbstractButton* button = box.button(shown.button)) {
            button->setText(GetResourceText(shown.text));
        }
    }
    return box.exec();
}

} // namespace

void MessageBoxes::Show(const QString& text) {
    Run(QMessageBox::NoIcon, GetResourceText(TextNumber::WindowTitle), text, QMessageBox::Ok);
}

Answer MessageBoxes::Ask(const Question& question) {
    QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No;
    buttons.setFlag(QMessageBox::Cancel, question.mayCancel);
    const int pressed = Run(QMessageBox::Question, question.title, question.text, buttons);
    if (pressed == QMessageBox::Yes) {
        return Answer::Yes;
    }
    return pressed == QMessageBox::No || !question.mayCancel ? Answer::No : Answer::Cancel;
}

} // namespace quend::window
