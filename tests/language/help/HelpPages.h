#pragma once

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

/// The sources of one help file: its pages as they are written, and the project that names them.
struct HelpPages {
    explicit HelpPages(const std::string& identifier);

    QString PathOf(const QString& file) const { return folder + u'/' + file; }

    QString folder;
    QMap<QString, QString> pages;        ///< by file name
    QMap<QString, QSet<QString>> places; ///< the named places of each page
    QStringList contents;                ///< pages in the table of contents
    QMap<QString, QString> keywords;     ///< where each leads
    QMap<QString, QString> topics;       ///< where each topic number leads
    QStringList files;
};

/// The languages that have a help.
std::vector<std::string> HelpIdentifiers();

/// A whole file as text.
QString TextOfFile(const QString& path);

/// What the first group finds, everywhere in the text.
QStringList AllOf(const QString& expression, const QString& text);
