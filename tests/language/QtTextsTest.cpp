// Qt's own texts, as its menus and dialogs request them.

#include "QtTexts.h"
#include "QuendNames.h"

#include "Language.h"
#include "ProgramFolder.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>

#include <gtest/gtest.h>

#include <vector>

namespace {

std::string Said(const char* context, const char* source) {
    return QCoreApplication::translate(context, source).toStdString();
}

QString Catalogue(const QString& language) {
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath) + QStringLiteral("/qtbase_") +
           language + QStringLiteral(".qm");
}

class QtTextsInUse : public testing::Test {
protected:
    static constexpr int InEnglish = 1;
    static constexpr int InSpanish = 2;
    static constexpr int InThird = 3;

    QtTextsInUse() {
        m_folder.PutAll();
        Language::Instance().SetUp(m_folder.Path(), QStringLiteral("Loan"));
    }
    void Switch(int language) {
        Language::Instance().LoadLanguage(language);
        m_texts.Renew();
    }

    ProgramFolder m_folder;
    QtTexts m_texts;
};

struct ToolkitCase {
    const char* context;
    const char* source;
    const char* spanish;
};

const std::vector<ToolkitCase> ToolkitCases{
    // From Qt's catalogue
    {"QLineEdit", "&Undo", "&Deshacer"},
    {"QLineEdit", "Select All", "Seleccionar todo"},
    {"QAbstractSpinBox", "&Step up", "&Aumentar"},
    {"QFileDialog", "Look in:", "Ver en:"},
    {"QFileDialog", "&Open", "&Abrir"},
    {"QFileSystemModel", "Date Modified", "Última modificación"},
    {"QPrintDialog", "&Print", "Im&primir"},
    {"QPageSetupWidget", "Landscape", "Apaisado"},
    {"QPlatformTheme", "Cancel", "Cancelar"},
    {"QAbstractFileIconProvider", "Folder", "Carpeta"},
    // From the program's texts
    {"QFileDialog", "File &name:", "&Nombre de archivo:"},
    {"QFileDialog", "Files of type:", "Archivos de tipo:"},
    {"QFileDialog", "Go to the parent directory", "Ir al directorio superior"},
    {"QFileDialog", "Change to list view mode", "Cambiar a modo de vista de lista"},
    {"QFileDialog", "Show &hidden files", "Mostrar los arc&hivos ocultos"},
    {"QFileDialog", "%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nNo se encuentra el archivo.\nCompruebe que el nombre esté bien escrito."},
    {"QPrintSettingsOutput", "Collate", "Intercalar"},
    {"QPageSize", "Custom (%1in x %2in)", "Personalizado (%1 x %2 pulgadas)"},
    {"QPageSize", "Statement", "Media carta"},
    {"QPrintSettingsOutput", "Double Sided Printing", "Impresión a doble cara"},
    {"QPrintSettingsOutput", "Off", "No"},
    {"QPrintSettingsOutput", "Long side binding", "Encuadernar por el lado largo"},
    {"QPrintSettingsOutput", "Short side binding", "Encuadernar por el lado corto"},
    {"QShortcut", "Ctrl", "Ctrl"},
    {"QShortcut", "Shift", "Mayús"},
};

TEST_F(QtTextsInUse, TheLanguageInUse) {
    ASSERT_TRUE(QFile::exists(Catalogue(QStringLiteral("es")))) << "qt6-translations-l10n";
    for (const int language : {InEnglish, InSpanish, InEnglish, InSpanish}) {
        Switch(language);
        for (const ToolkitCase& tested : ToolkitCases) {
            EXPECT_EQ(Said(tested.context, tested.source),
                      language == InSpanish ? tested.spanish : tested.source);
        }
    }
}

TEST_F(QtTextsInUse, EnglishWithoutReadingAnything) {
    m_texts.Renew();
    EXPECT_EQ(m_texts.filePath(), QString());
    EXPECT_EQ(Said("QLineEdit", "&Undo"), "&Undo");
}

TEST_F(QtTextsInUse, ByTheCatalogueBesideTheProgram) {
    m_folder.PutBytes(QStringLiteral("qtbase_es.qm"), BytesOf(Catalogue(QStringLiteral("fr"))));
    Switch(InSpanish);
    EXPECT_EQ(Said("QFileDialog", "&Open"), "&Ouvrir");
    EXPECT_EQ(Said("QFileDialog", "File &name:"), "&Nombre de archivo:");
}

TEST_F(QtTextsInUse, ByTheSystemsCatalogueWhereThatBesideTheProgramIsDamaged) {
    m_folder.PutBytes(QStringLiteral("qtbase_es.qm"), "no catalogue");
    Switch(InSpanish);
    EXPECT_EQ(Said("QFileDialog", "&Open"), "&Abrir");
}

/// The third language names a catalogue that does not exist, and one of the program's texts for Qt.
TEST_F(QtTextsInUse, EnglishAndOursWithoutACatalogue) {
    Switch(InSpanish);
    Switch(InThird);
    EXPECT_EQ(Said("QFileDialog", "&Open"), "&Open");
    EXPECT_EQ(Said("QFileDialog", "File &name:"), "&Dateiname:");
    EXPECT_EQ(Said("QFileDialog", "Files of type:"), "Files of type:");
    EXPECT_EQ(Said("QPlatformTheme", "Cancel"), "Cancel");
}

} // namespace
