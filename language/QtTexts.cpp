#include "QtTexts.h"

#include "Language.h"
#include "TextNumbers.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include <algorithm>
#include <array>
#include <string_view>

namespace quend::language {

namespace {

/// A source text of Qt, and the number of the program's own text for it.
struct OwnText {
    std::string_view context;
    std::string_view source;
    int number;
};

constexpr std::array OwnTexts{
    OwnText{"QFileDialog", "File &name:", TextNumber::FileName},
    OwnText{"QFileDialog", "Files of type:", TextNumber::FileType},
    OwnText{"QFileDialog", "Go to the parent directory", TextNumber::FolderAbove},
    OwnText{"QFileDialog", "Change to list view mode", TextNumber::FileList},
    OwnText{"QFileDialog", "Show &hidden files", TextNumber::HiddenFiles},
    OwnText{"QFileDialog", "%1\nFile not found.\nPlease verify the correct file name was given.",
            TextNumber::FileNotFound},
    OwnText{"QPrintSettingsOutput", "Collate", TextNumber::Collate},
    OwnText{"QPrintSettingsOutput", "Double Sided Printing", TextNumber::DoubleSided},
    OwnText{"QPrintSettingsOutput", "Off", TextNumber::DoubleSidedOff},
    OwnText{"QPrintSettingsOutput", "Long side binding", TextNumber::LongSide},
    OwnText{"QPrintSettingsOutput", "Short side binding", TextNumber::ShortSide},
    OwnText{"QPageSize", "Custom (%1in x %2in)", TextNumber::PaperInInches},
    OwnText{"QPageSize", "Statement", TextNumber::PaperStatement},
    OwnText{"QShortcut", "Ctrl", TextNumber::KeyCtrl},
    OwnText{"QShortcut", "Shift", TextNumber::KeyShift},
};

bool Load(QTranslator& texts, const QString& catalogue) {
    // An empty path would mean the working folder.
    const QString beside = Language::Instance().ProgramFolder();
    return (!beside.isEmpty() && texts.load(catalogue, beside)) ||
           texts.load(catalogue, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
}

} // namespace

void QtTexts::Renew() {
    QCoreApplication::removeTranslator(this);
    const QString catalogue = GetResourceText(TextNumber::QtTexts);
    if (catalogue != Language::DefaultText(TextNumber::QtTexts)) {
        static_cast<void>(Load(*this, catalogue)); // the program's own texts work without it
        QCoreApplication::installTranslator(this);
    }
    // Deliver now: otherwise the buttons of a dialog opened meanwhile would get Qt's captions
    // again.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LanguageChange);
}

QString QtTexts::translate(const char* context, const char* source, const char* comment,
                           int count) const {
    const auto* found = std::ranges::find_if(OwnTexts, [&](const OwnText& own) {
        return own.source == source && own.context == context;
    });
    if (found != OwnTexts.end()) {
        return GetResourceText(found->number);
    }
    // The catalogue has the file types under an older context of Qt.
    const bool moved = std::string_view(context) == "QAbstractFileIconProvider";
    return QTranslator::translate(moved ? "QFileDialog" : context, source, comment, count);
}

} // namespace quend::language
