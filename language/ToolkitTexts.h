#pragma once

#include <QTranslator>

/// The toolkit's own texts (menus of fields, dialogs for files and printers, names of keys) in the
/// language in use: from the toolkit's catalogue for that language, looked for beside the program
/// and then where the toolkit keeps them, and from our own table where the catalogue has them wrong
/// or not. In English, and in a language that names no catalogue, the toolkit speaks for itself and
/// nothing is read. Without the catalogue's file the toolkit's texts stay English, but for those of
/// ours.
class ToolkitTexts : public QTranslator {
public:
    /// Takes up the language in use; for the start and each switch.
    void Renew();

    QString translate(const char* context, const char* source, const char* comment,
                      int count) const override;
    bool isEmpty() const override { return false; }
};
