#include "MessageBoxes.h"

#include "Language.h"
#include "TextNumbers.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

void MessageBoxes::Show(const QString& text) {
    QMessageBox box(QMessageBox::NoIcon, GetResourceText(TextNumber::WindowTitle), text,
                    QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.button(QMessageBox::Ok)->setText(GetResourceText(TextNumber::Ok));
    box.exec();
}
