#include "Language.h"

#include "ComponentFile.h"
#include "Failure.h"
#include "LanguageComponent.h"

#include <algorithm>
#include <array>
#include <optional>

namespace quend::language {

namespace {

constexpr int English = 1;
constexpr int Spanish = 2;
constexpr std::uint16_t PrimaryLanguage = 0xFF;
constexpr std::uint16_t PrimarySpanish = 0x0A;

/// A language that is listed even if its component is missing; its component name does not depend
/// on the executable's name.
struct KnownLanguage {
    int number;
    const char* identifier;
    const char* name;
    const char* tag;
};

constexpr std::array KnownLanguages{
    KnownLanguage{English, "000", "English", "engl"},
    KnownLanguage{Spanish, "40a", "Español", "span"},
};

QString Hexadecimal(unsigned number, int digits) {
    return QStringLiteral("%1").arg(number, digits, 16, QLatin1Char('0')).toUpper();
}

} // namespace

Language& Language::Instance() {
    static Language language;
    return language;
}

Language::Language() { SetUp(QString(), QStringLiteral("Loan")); }

void Language::SetUp(const QString& programFolder, const QString& programName) {
    m_programFolder = programFolder;
    m_programName = programName;
    m_currentLanguage = 0;
    m_component = nullptr;
    FindEntries();
    TakeTagAndHelpOf(m_entries.front());
}

void Language::FindEntries() {
    m_entries.clear();
    for (const KnownLanguage& known : KnownLanguages) {
        const QString identifier = QString::fromUtf8(known.identifier);
        AddEntry(identifier, ComponentFile::ComponentName(QStringLiteral("Loan"), identifier),
                 {QString::fromUtf8(known.name), QString::fromUtf8(known.tag)});
    }
    for (const QString& identifier : ComponentFile::Identifiers(m_programFolder, m_programName)) {
        const QString component = ComponentFile::ComponentName(m_programName, identifier);
        if (EntryOfComponent(component) != nullptr) {
            continue; // its file need not be read
        }
        const std::optional<LanguageLabel> label =
            ComponentFile::Label(ComponentFile::Find(m_programFolder, component));
        if (label) {
            AddEntry(identifier, component, *label);
        }
    }
}

void Language::AddEntry(const QString& identifier, const QString& component,
                        const LanguageLabel& label) {
    const QString helpFile =
        m_programFolder + QStringLiteral("/loan") + identifier + QStringLiteral(".hlp");
    const int number = static_cast<int>(m_entries.size()) + 1;
    m_entries.push_back({number, component, label.name, label.tag, helpFile});
}

const LanguageEntry* Language::EntryOfNumber(int number) const {
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const auto& entry) { return entry.number == number; });
    return found == m_entries.end() ? nullptr : &*found;
}

const LanguageEntry* Language::EntryOfComponent(const QString& component) const {
    const auto found = std::find_if(m_entries.begin(), m_entries.end(), [&](const auto& entry) {
        return entry.component.compare(component, Qt::CaseInsensitive) == 0;
    });
    return found == m_entries.end() ? nullptr : &*found;
}

void Language::TakeTagAndHelpOf(const LanguageEntry& entry) {
    m_languageTag = entry.tag;
    m_helpFile = entry.helpFile;
}

void Language::DetectLanguage(std::uint16_t languageId) {
    const unsigned primary = languageId & PrimaryLanguage;
    m_currentLanguage = primary == PrimarySpanish ? -Spanish : -English;
    // First the component for the language and country, then the one for the language alone.
    for (const QString& identifier :
         {Hexadecimal(languageId, 1), QStringLiteral("4") + Hexadecimal(primary, 2)}) {
        const QString name = ComponentFile::ComponentName(m_programName, identifier);
        m_component = ComponentFile::Load(ComponentFile::Find(m_programFolder, name));
        if (m_component != nullptr) {
            const LanguageEntry* entry = EntryOfComponent(name);
            m_currentLanguage = entry != nullptr ? -entry->number : m_currentLanguage;
            return;
        }
    }
}

void Language::SettleDetectedLanguage() {
    if (EntryOfNumber(m_currentLanguage) != nullptr) {
        return;
    }
    const LanguageEntry* detected = EntryOfNumber(-m_currentLanguage);
    const LanguageEntry& entry = detected != nullptr ? *detected : m_entries.front();
    m_currentLanguage = entry.number;
    TakeTagAndHelpOf(entry);
}

void Language::LoadLanguage(int language) {
    const LanguageEntry* entry = EntryOfNumber(language);
    const LanguageComponent* component =
        entry == nullptr
            ? nullptr
            : ComponentFile::Load(ComponentFile::Find(m_programFolder, entry->component));
    if (component == nullptr) {
        throw ComponentFailure("LoadLanguage");
    }
    m_component = component;
    m_currentLanguage = entry->number;
    TakeTagAndHelpOf(*entry);
}

QString Language::Text(int id) {
    return m_component != nullptr ? m_component->Text(id) : DefaultText(id);
}

QStringList Language::TextInEveryLanguage(int id) {
    QStringList texts{Text(id), DefaultText(id)};
    for (const LanguageEntry& entry : m_entries) {
        const auto* component =
            ComponentFile::Load(ComponentFile::Find(m_programFolder, entry.component));
        texts.append(component != nullptr ? component->Text(id) : QString());
    }
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts;
}

QString GetResourceText(int id) {
    Language& language = Language::Instance();
    const QString text = language.Text(id);
    return text.isNull() ? Language::DefaultText(id) : text;
}

} // namespace quend::language
