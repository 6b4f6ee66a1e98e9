// The figures in the examples of the help are those that the program computes. A figure is in a
// span whose class names it.

#include "HelpFigures.h"
#include "CalendarDate.h"
#include "DisplayFormats.h"
#include "HelpPages.h"

#include <QLocale>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <string>
#include <variant>

namespace {

struct Speech {
    const char* identifier;
    QLocale locale;
    const char* date;
};

/// Writes each kind of figure as the pages of one language do.
class Writer {
public:
    explicit Writer(const Speech& speech) : m_speech(&speech), m_formats(speech.locale) {}

    QString operator()(Money amount) const { return m_formats.Currency(amount.RoundedToCents()); }
    QString operator()(Rate rate) const {
        return m_formats.Percent(rate).replace(u'%', QStringLiteral(" %"));
    }
    QString operator()(int months) const { return QString::number(months); }
    QString operator()(Date date) const {
        return m_speech->locale.toString(ToCalendar(date), QString::fromLatin1(m_speech->date));
    }

private:
    const Speech* m_speech;
    DisplayFormats m_formats;
};

class FiguresOfHelp : public testing::TestWithParam<Speech> {};

INSTANTIATE_TEST_SUITE_P(
    Every, FiguresOfHelp,
    testing::Values(Speech{"000", QLocale(QLocale::English, QLocale::UnitedStates), "MMMM d, yyyy"},
                    Speech{"40a", QLocale(QLocale::Spanish, QLocale::Mexico),
                           "d 'de' MMMM 'de' yyyy"}),
    [](const auto& tested) { return std::string(tested.param.identifier); });

TEST_P(FiguresOfHelp, AreTheProgramsOwn) {
    int checked = 0;
    const HelpFigures figures;
    const HelpPages help(GetParam().identifier);
    const QRegularExpression span(QStringLiteral("<span class=\"([^\"]*)\">([^<]*)</span>"));
    for (auto page = help.pages.begin(); page != help.pages.end(); ++page) {
        for (auto match = span.globalMatch(*page); match.hasNext(); ++checked) {
            const auto found = match.next();
            const QString shown = std::visit(Writer(GetParam()), figures.Of(found.captured(1)));
            EXPECT_EQ(shown.toStdString(), found.captured(2).toStdString())
                << page.key().toStdString() << ": " << found.captured(1).toStdString();
        }
    }
    EXPECT_GT(checked, 100);
}

/// Amounts with cents, and rates to the thousandth, are always computed, so each is in a span.
TEST_P(FiguresOfHelp, NothingIsLeftUnchecked) {
    const HelpPages help(GetParam().identifier);
    const QRegularExpression span(QStringLiteral("<span[^>]*>[^<]*</span>"));
    const QRegularExpression computed(QStringLiteral("\\$[\\d,]+\\.\\d|\\d\\.\\d{3} ?%"));
    for (auto page = help.pages.begin(); page != help.pages.end(); ++page) {
        QString rest = *page;
        rest.remove(span);
        EXPECT_FALSE(computed.match(rest).hasMatch())
            << page.key().toStdString() << ": " << computed.match(rest).captured().toStdString();
    }
}

} // namespace
