#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>
#include <vector>

class DefaultTexts;
class LanguageComponent;
struct LanguageLabel;

/// One language that the user can choose.
struct LanguageEntry {
    int number; ///< as the setting "CurrentLanguage" holds it: 1 English, 2 Spanish, 3 and up
    QString component; ///< the component's name without a file ending, such as "Loan40a.Resources"
    QString name;      ///< the language's own name for itself, such as "Español"
    QString tag;       ///< such as "span"
    QString helpFile;  ///< full path; the file need not exist
};

/// The language in use: which there are, which was chosen, and its texts. One per process.
/// It does not renew any window's captions (ApplyTexts does), nor keep the setting (the store
/// does).
class Language {
public:
    static Language& Instance();

    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;
    Language(Language&&) = delete;
    Language& operator=(Language&&) = delete;

    /// Looks for components in the program's folder and forgets what was chosen and loaded before:
    /// CurrentLanguage() is 0 and the texts are the built-in English ones.
    /// `programName` is the executable's name without ending, such as "Loan".
    void SetUp(const QString& programFolder, const QString& programName);

    /// As given to SetUp; empty before.
    const QString& ProgramFolder() const { return m_programFolder; }

    /// English (1) and Spanish (2), listed even where their components are missing, then every
    /// other component found, numbered from 3 in order of identifier.
    const std::vector<LanguageEntry>& Entries() const { return m_entries; }

    /// The setting: above 0 chosen, 0 never chosen, below 0 detected but not yet settled.
    int CurrentLanguage() const { return m_currentLanguage; }
    /// Stores the setting alone; no texts change.
    void SetCurrentLanguage(int language) { m_currentLanguage = language; }

    /// The tag and the help file of the language last loaded or settled; before that, English.
    const QString& LanguageTag() const { return m_languageTag; }
    const QString& HelpFile() const { return m_helpFile; }

    /// Chooses by the user's language identifier (0 when there is none): CurrentLanguage() becomes
    /// -2 for Spanish of any country, else -1, or minus the number of a further component made for
    /// this identifier or for its language. Takes that component's texts; where there is none, or
    /// it is broken, the built-in texts. Never throws.
    void DetectLanguage(std::uint16_t languageId);
    /// The component names that the last DetectLanguage tried, in order: one, or two when the first
    /// could not be loaded.
    const QStringList& NamesTried() const { return m_namesTried; }
    /// Turns a detected language into a chosen one (-2 becomes 2), its texts staying as they are.
    /// A language already chosen is left alone; 0 and numbers without an entry become English,
    /// whose texts may still have to be loaded.
    void SettleDetectedLanguage();

    /// Takes the texts, tag and help file of this entry and makes it the CurrentLanguage().
    /// Throws ComponentFailure when there is no such entry or its component is missing or broken;
    /// everything then stays as it was.
    void LoadLanguage(int language);

    /// The text as the language in use has it; a null QString when that one does not know the
    /// number, even where English does. Captions use this: their design-time text then stands.
    QString Text(int id);
    /// The built-in English text; a null QString for an unknown number.
    QString DefaultText(int id);
    /// The text in every language there is, the one in use first; without those that do not know
    /// it. Loads the components of the others, so it is slow.
    QStringList TextInEveryLanguage(int id);

private:
    Language();
    ~Language();

    void FindEntries();
    void AddEntry(const QString& identifier, const QString& component, const LanguageLabel& label);
    const LanguageEntry* EntryOfNumber(int number) const;
    const LanguageEntry* EntryOfComponent(const QString& component) const;
    void TakeTagAndHelpOf(const LanguageEntry& entry);

    QString m_programFolder;
    QString m_programName;
    std::vector<LanguageEntry> m_entries;
    QStringList m_namesTried;
    int m_currentLanguage = 0;
    QString m_languageTag;
    QString m_helpFile;
    // Belongs to the loaded library, which stays in memory to the end of the process.
    const LanguageComponent* m_component = nullptr;
    std::unique_ptr<const DefaultTexts> m_defaultTexts;
};

/// The text of this number for code that needs one: the language in use, else English, else (a
/// number that nobody knows) a null QString.
QString GetResourceText(int id);
