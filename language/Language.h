#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <vector>

namespace quend::language {

class LanguageComponent;
struct LanguageLabel;

/// One language that the user can choose.
struct LanguageEntry {
    int number; ///< as in the setting "CurrentLanguage": 1 English, 2 Spanish, 3 and up others
    QString component; ///< the component's name without file extension, such as "Loan40a.Resources"
    QString name;      ///< in the language itself, such as "Español"
    QString tag;       ///< such as "span"
    QString helpFile;  ///< full path; the file need not exist
};

/// The current language: the available languages, the chosen one, and its texts. One per process.
/// Does not update window captions (ApplyTexts does) and does not save the setting (the store
/// does).
class Language {
public:
    static Language& Instance();

    Q_DISABLE_COPY_MOVE(Language)

    /// Looks for components in the program's folder and resets the state: CurrentLanguage() is 0
    /// and the texts are the built-in English ones.
    /// `programName` is the executable's name without extension, such as "Loan".
    void SetUp(const QString& programFolder, const QString& programName);

    /// As passed to SetUp; empty before.
    const QString& ProgramFolder() const { return m_programFolder; }

    /// English (1) and Spanish (2), listed even if their components are missing, then every other
    /// component found, numbered from 3 in order of identifier.
    const std::vector<LanguageEntry>& Entries() const { return m_entries; }

    /// The setting: above 0 chosen, 0 never chosen, below 0 detected but not yet confirmed.
    int CurrentLanguage() const { return m_currentLanguage; }
    /// Sets only the setting; the texts do not change.
    void SetCurrentLanguage(int language) { m_currentLanguage = language; }

    /// The tag and the help file of the language last loaded or settled; English before that.
    const QString& LanguageTag() const { return m_languageTag; }
    const QString& HelpFile() const { return m_helpFile; }

    /// Chooses by the user's language identifier (0 if there is none): CurrentLanguage() becomes -2
    /// for Spanish of any country, minus the number of another component for this identifier or its
    /// language, or else -1. Uses the texts of that component, or the built-in ones if it is
    /// missing or broken. Never throws.
    void DetectLanguage(std::uint16_t languageId);
    /// Turns a detected language into a chosen one (-2 becomes 2) and keeps its texts. A chosen
    /// language stays; 0 and numbers without an entry become English, whose texts may still have to
    /// be loaded.
    void SettleDetectedLanguage();

    /// Loads the texts, tag and help file of this entry and makes it the CurrentLanguage(). Throws
    /// ComponentFailure if there is no such entry or its component is missing or broken; nothing
    /// changes then.
    void LoadLanguage(int language);

    /// The text in the current language; a null QString if the language lacks the number, even if
    /// English has it. Captions use this, and show their design-time text then.
    QString Text(int id);
    /// The built-in English text; a null QString for an unknown number.
    static QString DefaultText(int id);
    /// The text in every available language that has it, the current one first. Slow, because it
    /// loads the components of the others.
    QStringList TextInEveryLanguage(int id);

private:
    Language();
    ~Language() = default;

    void FindEntries();
    void AddEntry(const QString& identifier, const QString& component, const LanguageLabel& label);
    const LanguageEntry* EntryOfNumber(int number) const;
    const LanguageEntry* EntryOfComponent(const QString& component) const;
    void TakeTagAndHelpOf(const LanguageEntry& entry);

    QString m_programFolder;
    QString m_programName;
    std::vector<LanguageEntry> m_entries;
    int m_currentLanguage = 0;
    QString m_languageTag;
    QString m_helpFile;
    // Owned by the loaded library, which stays in memory until the process ends.
    const LanguageComponent* m_component = nullptr;
};

/// The text of this number in the current language, else in English, else (for an unknown number) a
/// null QString.
QString GetResourceText(int id);

} // namespace quend::language
