#include "LoanStore.h"

#include "Language.h"
#include "LoadedLoan.h"
#include "LoanValues.h"
#include "StoreNames.h"
#include "TextNumbers.h"

#include <QTextBoundaryFinder>

namespace {

std::string KeyOf(const QString& name) { return std::string(BaseKey) + '\\' + name.toStdString(); }

/// As a user counts: a letter with its accents is one.
qsizetype CharactersOf(const QString& text) {
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype count = 0;
    while (finder.toNextBoundary() != -1) {
        ++count;
    }
    return count;
}

void WriteOffer(const RegistryAPI& store, const std::string& key, const CLoan& offer, int number,
                const StoredTexts& texts) {
    for (const KeptValue<CLoan>& value : KeptOfferValues()) {
        store.SetValue(StoreRoot, key, OfferPrefix(number) + value.name, value.type,
                       value.write(offer, texts));
    }
}

void Write(const RegistryAPI& store, const std::string& key, const Worksheet& worksheet) {
    const StoredTexts texts(worksheet.Texts().Formats());
    for (const KeptValue<Worksheet>& value : KeptLoanValues()) {
        store.SetValue(StoreRoot, key, value.name, value.type, value.write(worksheet, texts));
    }
    std::int32_t count = 0;
    for (const CLoan& offer : worksheet.OffersAsEntered()) {
        if (LoanStore::IsWorthKeeping(offer)) {
            WriteOffer(store, key, offer, ++count, texts);
        }
    }
    store.SetValue(StoreRoot, key, LoanCountName, RegistryType::Number, count);
    store.SetValue(StoreRoot, key, DateFormatName, RegistryType::Text, texts.DateFormat());
}

} // namespace

bool LoanStore::IsEmptyName(const QString& name) {
    return name.isEmpty() || name == QStringLiteral(" ");
}

bool LoanStore::CanHold(const QString& name) {
    constexpr qsizetype longest = 255;
    const QStringList newLoan = Language::Instance().TextInEveryLanguage(TextNumber::NewLoan);
    return name.size() <= longest && !name.contains(u'\\') && !name.contains(QChar::Null) &&
           !newLoan.contains(name);
}

bool LoanStore::CanHoldLender(const QString& who) {
    constexpr qsizetype longest = 1023;
    return CharactersOf(who) <= longest;
}

bool LoanStore::IsWorthKeeping(const CLoan& offer) {
    return !offer.Who().isEmpty() || !offer.ActualPayment().IsZero() || offer.FinancePoints() ||
           offer.InterestRate() != 0 || offer.Points() != 0;
}

QStringList LoanStore::Names() const {
    const std::vector<std::string> keys = m_store.GetSubKeys(StoreRoot, BaseKey);
    QStringList names;
    for (const std::string& key : keys) {
        names.append(QString::fromStdString(key));
    }
    // What stands for "none" are more blanks than any name holds.
    constexpr qsizetype none = 260;
    if (names.size() == 1 && names.front() == QString(none, u' ')) {
        names.clear();
    }
    return names;
}

bool LoanStore::Exists(const QString& name) const {
    return m_store.KeyExists(StoreRoot, KeyOf(name));
}

void LoanStore::Save(Worksheet& worksheet) const {
    const std::string key = KeyOf(worksheet.LoanName());
    m_store.InOneStep([&](const RegistryAPI& store) {
        // The whole key first, so that no offer of an earlier, longer save survives.
        store.DeleteKey(StoreRoot, key);
        store.CreateKey(StoreRoot, key);
        Write(store, key, worksheet);
    });
    worksheet.ClearDirty();
}

std::vector<Failure> LoanStore::Load(Worksheet& worksheet, const QString& name,
                                     const std::function<void(Row)>& growTo) const {
    LoadedLoan loaded(worksheet.Texts().Formats());
    m_store.ReadInOneStep([&](const RegistryAPI& store) { loaded.Read(store, KeyOf(name)); });
    return loaded.Put(worksheet, name, growTo);
}

bool LoanStore::Delete(const QString& name) const {
    m_store.DeleteKey(StoreRoot, KeyOf(name));
    return !Exists(name);
}
