#pragma once

#include <QTranslator>

namespace quend::language {

/// Translates Qt's own texts (context menus of fields, dialogs for files and printers, names of
/// keys) into the current language. They come from Qt's catalogue for that language, searched
/// beside the program and then in Qt's folder, and from the program's own table where the catalogue
/// is wrong or incomplete. For English, and for a language that names no catalogue, nothing is read
/// and Qt's texts stay. If the catalogue's file is missing, Qt's texts stay English, except for
/// those in the program's table.
class QtTexts : public QTranslator {
public:
    /// Applies the current language. Call at start and after each switch.
    void Renew();

    QString translate(const char* context, const char* source, const char* comment,
                      int count) const override;
    bool isEmpty() const override { return false; }
};

} // namespace quend::language
