#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

/// The sources of one help file: its pages, and the project that names them.
struct HelpPages {
    explicit HelpPages(const std::string& identifier);

    QString PathOf(const QString& file) const { return folder + u'/' + file; }

    QString folder;
    QMap<QString, QString> pages;        ///< by file name
    QMap<QString, QSet<QString>> places; ///< the anchors of each page
    QStringList contents;                ///< pages in the table of contents
    QMap<QString, QString> keywords;     ///< the target of each keyword
    QMap<QString, QString> topics;       ///< the target of each topic number
    QStringList files;
};

/// The languages that have help.
std::vector<std::string> HelpIdentifiers();

/// Reads a whole file as text.
QString TextOfFile(const QString& path);

/// Every match of the expression's first group in the text.
QStringList AllOf(const QString& expression, const QString& text);
