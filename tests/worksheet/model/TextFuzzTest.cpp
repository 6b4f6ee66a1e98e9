// Any text in any field, typed, pasted or dropped, in any locale, is either a number that shows and
// reads back the same, or refused.

#include "EnterValues.h"
#include "Failure.h"
#include "Fuzzing.h"
#include "HostileTexts.h"
#include "IsValidNumber.h"
#include "QuendNames.h"
#include "Sheet.h"
#include "TransferRules.h"

#include <QRegularExpression>

#include <cmath>
#include <map>
#include <utility>

namespace {

const std::vector<QLocale>& EveryLocale() {
    static const std::vector<QLocale> locales = [] {
        const QList<QLocale> all =
            QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
        return std::vector<QLocale>(all.begin(), all.end());
    }();
    return locales;
}

/// One locale for each number format.
std::vector<QLocale> EveryHabit() {
    std::map<QStringList, QLocale> habits;
    for (const QLocale& locale : EveryLocale()) {
        habits.insert({{locale.decimalPoint(), locale.groupSeparator(), locale.negativeSign(),
                        locale.zeroDigit()},
                       locale});
    }
    std::vector<QLocale> locales;
    locales.reserve(habits.size());
    for (const auto& [habit, locale] : habits) {
        locales.push_back(locale);
    }
    return locales;
}

/// A separate implementation of the number form, as a reference model.
bool HasForm(const QString& text, int decimals, QChar separator) {
    const QString fraction = decimals == 0
                                 ? QString()
                                 : QStringLiteral("(%1[0-9]{0,%2})?")
                                       .arg(QRegularExpression::escape(QString(separator)))
                                       .arg(decimals);
    const QRegularExpression form(
        QRegularExpression::anchoredPattern(QStringLiteral("[+-]?[0-9]*") + fraction));
    return form.match(text).hasMatch();
}

bool HasDigit(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

bool IsFinite(const FieldValue& number) {
    const auto* rate = std::get_if<Rate>(&number);
    const auto* points = std::get_if<Percent>(&number);
    return (rate == nullptr || std::isfinite(rate->Fraction())) &&
           (points == nullptr || std::isfinite(points->Value()));
}

/// Checks what reading and showing guarantee for one number.
void ExpectShowsAndReadsTheSame(const FieldFormats& texts, ValueKind kind,
                                const FieldValue& number) {
    ASSERT_TRUE(IsFinite(number));
    const QString entry = texts.EntryText(number);
    EXPECT_EQ(entry.isEmpty(), IsZero(number));
    EXPECT_EQ(texts.DisplayText(number).isEmpty(), IsZero(number));
    EXPECT_TRUE(IsValidNumber(entry, 400, texts.Formats().DecimalSeparator()))
        << entry.toStdString();
    if (kind != ValueKind::WholeTerm || texts.TermInMonths()) { // in years only whole ones are read
        EXPECT_EQ(texts.EntryText(texts.Read(kind, entry)), entry);
    }
}

void EnterInto(Sheet& sheet, Field field, const QString& text) {
    const FieldRule& rule = RuleOf(field.id);
    const FieldFormats& texts = sheet.worksheet.Texts();
    const bool form = HasForm(text, rule.decimals, texts.Formats().DecimalSeparator());
    EXPECT_EQ(IsValidNumber(text, rule.decimals, texts.Formats().DecimalSeparator()), form);
    const QString before = sheet.worksheet.EntryText(field);
    try {
        const bool accepted = sheet.worksheet.Read(field.id, text).has_value();
        EXPECT_EQ(accepted, form && (text.isEmpty() || HasDigit(text)));
        if (!accepted) {
            return;
        }
        ExpectShowsAndReadsTheSame(texts, rule.kind, texts.Read(rule.kind, text));
    } catch (const OverflowFailure&) {
        EXPECT_TRUE(form && HasDigit(text));
        EXPECT_EQ(sheet.worksheet.EntryText(field), before);
        return;
    }
    try {
        EnterText(sheet.worksheet, field, text);
    } catch (const OverflowFailure&) { // a result is out of range; the number itself is stored
    }
}

void DropInto(Sheet& sheet, Field field, const QString& text) {
    const FieldRule& rule = RuleOf(field.id);
    const bool may = MayDrop(sheet.worksheet, field.id, text);
    const QChar separator = sheet.worksheet.Texts().Formats().DecimalSeparator();
    EXPECT_EQ(may,
              !rule.IsNumber() || (!text.isEmpty() && HasForm(text, rule.decimals, separator)));
    if (!may) {
        return;
    }
    try {
        sheet.worksheet.Store(field, ReadDropped(sheet.worksheet, field.id, text));
    } catch (const ConversionFailure&) {
        EXPECT_FALSE(HasDigit(text));
        return;
    } catch (const OverflowFailure&) {
        return;
    }
    if (!rule.IsNumber()) {
        QString who = std::as_const(sheet.worksheet).OfferOfRow(field.row).Who();
        EXPECT_FALSE(who.remove(QStringLiteral("\r\n")).contains(u'\n'));
        return;
    }
    const QString given = DraggedText(sheet.worksheet, field, QString());
    EXPECT_TRUE(IsValidNumber(given, 400, separator)) << given.toStdString();
}

void TryIn(const QLocale& locale, const QString& text) {
    SCOPED_TRACE(locale.name().toStdString());
    Sheet sheet(locale, 2);
    sheet.worksheet.SetTermInMonths(text.size() % 2 == 0);
    for (const FieldRule& rule : LoanFields()) {
        if (rule.IsNumber() && rule.access == Access::Input) {
            EnterInto(sheet, {rule.id}, text);
        }
    }
    EnterInto(sheet, {FieldId::Costs, Row{0}}, text);
    for (const FieldRule& rule : OfferFields()) {
        if (rule.IsNumber() && rule.access == Access::Input) {
            EnterInto(sheet, {rule.id, Row{0}}, text);
        }
        if (IsDraggable(rule.id)) {
            DropInto(sheet, {rule.id, Row{1}}, text);
        }
    }
}

TEST(TextFuzz, TheCorpusKeepsThePromisesHoweverNumbersAreWritten) {
    ASSERT_GT(EveryLocale().size(), 500U);
    const std::vector<QLocale> locales = EveryHabit();
    EXPECT_GT(locales.size(), 10U);
    FuzzTarget("text", [&](const std::string& input) {
        for (const QLocale& locale : locales) {
            TryIn(locale, TextOf(input));
        }
    }).TryCorpus();
}

TEST(TextFuzz, AnyTextKeepsThePromises) {
    const FuzzTarget target("text", [](const std::string& input) {
        TryIn(EveryLocale().at(std::hash<std::string>()(input) % EveryLocale().size()),
              TextOf(input));
    });
    target.TryAtRandom([&](FuzzRandom& random) {
        return random.OneIn(4) ? Damaged(random, random.AnyOf(target.Corpus()))
                               : Patched(random, HostilePieces);
    });
}

} // namespace
