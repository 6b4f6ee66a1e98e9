#pragma once

#include <QByteArray>
#include <QString>

#include <set>
#include <vector>

/// A number in a property of a form's control, such as the number of a text.
struct FormNumber {
    QString form;     ///< the form's file
    QString property; ///< such as "captionText"
    int number = 0;
};

/// The numbers of these properties in one form. A form that is not valid XML fails the test.
std::vector<FormNumber> NumbersOfForm(const QString& form, const QByteArray& content,
                                      const std::set<QString>& properties);

/// The same for all forms of the program, without copies in build folders.
std::vector<FormNumber> NumbersOfForms(const std::set<QString>& properties);
