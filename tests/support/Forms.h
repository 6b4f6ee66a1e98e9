#pragma once

#include <QByteArray>
#include <QString>

#include <set>
#include <vector>

/// A number that a form gives to a property of one of its controls, such as the number of a text.
struct FormNumber {
    QString form;     ///< the form's file
    QString property; ///< such as "captionText"
    int number = 0;
};

/// The numbers of these properties in one form. A form that is no XML fails the test.
std::vector<FormNumber> NumbersOfForm(const QString& form, const QByteArray& content,
                                      const std::set<QString>& properties);

/// The same of all the program's forms. A copy in a build folder is none of them.
std::vector<FormNumber> NumbersOfForms(const std::set<QString>& properties);
