// No text is cut off, in either language and with a large font.

#include "DatePicker.h"
#include "DisplayFormats.h"
#include "FieldWidth.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>

#include <vector>

namespace {

struct Appearance {
    const char* name;
    QLocale locale;
    int language;
    bool termInMonths;
    double size; ///< of the font, relative to the desktop's font
};

void PrintTo(const Appearance& appearance, std::ostream* out) { *out << appearance.name; }

const std::vector<Appearance> Appearances = {
    {"English", UnitedStates, English, true, 1},       {"Spanish", Spain, Spanish, true, 1},
    {"SpanishYears", Spain, Spanish, false, 1},        {"German", Germany, English, false, 1},
    {"EnglishLarge", UnitedStates, English, false, 2}, {"SpanishLarge", Spain, Spanish, true, 2},
};

/// Sets the user's font during its lifetime.
class Letters {
public:
    explicit Letters(double size) {
        QFont font = m_before;
        font.setPointSizeF(font.pointSizeF() * size);
        QApplication::setFont(font);
    }
    Q_DISABLE_COPY_MOVE(Letters)
    ~Letters() { QApplication::setFont(m_before); }

private:
    QFont m_before = QApplication::font();
};

class TextFit : public WindowTest, public ::testing::WithParamInterface<Appearance> {
protected:
    TextFit() : m_letters(GetParam().size) {
        Open({.locale = GetParam().locale,
              .language = GetParam().language,
              .termInMonths = GetParam().termInMonths});
        Settle();
    }

    void ExpectEverythingFits() {
        ExpectFits<QLabel>();
        ExpectFits<QPushButton>();
        ExpectFits<QCheckBox>();
        ExpectFits<QComboBox>();
        ExpectFits<DatePicker>();
        ExpectFieldsFit();
    }
    static void ExpectFits(const QLineEdit& edit, const QString& text) {
        EXPECT_GE(TextRoomOf(edit), edit.fontMetrics().horizontalAdvance(text))
            << edit.objectName().toStdString() << ": " << text.toStdString();
        EXPECT_GE(edit.height(), edit.fontMetrics().height()) << edit.objectName().toStdString();
    }

private:
    template <class Kind>
    void ExpectFits() {
        for (const auto* control : Window().findChildren<Kind*>()) {
            if (!control->isVisible() || control->objectName() == u"cboLoanName") {
                continue; // a name may have any length
            }
            SCOPED_TRACE(control->objectName().toStdString());
            const auto* label = qobject_cast<const QLabel*>(control);
            const bool wraps = label && label->wordWrap();
            const int height =
                wraps ? control->heightForWidth(control->width()) : control->sizeHint().height();
            EXPECT_GE(control->height(), height);
            EXPECT_TRUE(wraps || control->width() >= control->sizeHint().width())
                << control->width() << " of " << control->sizeHint().width();
        }
    }
    void ExpectFieldsFit() {
        const DisplayFormats formats(GetParam().locale);
        const auto sampleOf = [&](const FieldRule& rule) {
            switch (rule.kind) {
            case ValueKind::Amount:
                return formats.Currency(::Money::FromDouble(888'888.88));
            case ValueKind::Rate:
                return formats.Percent(Rate::FromFraction(0.88888));
            case ValueKind::Percent:
                return formats.ThreeDecimals(88.888);
            case ValueKind::Date:
                return formats.ShortDate(Date::FromCalendar(2058, 12, 28));
            case ValueKind::WholeTerm:
            case ValueKind::FractionalTerm:
                return formats.GeneralNumber(GetParam().termInMonths ? 888 : 88.5);
            default:
                return QString();
            }
        };
        for (const FieldRule& rule : LoanFields()) {
            if (auto* edit = qobject_cast<QLineEdit*>(&Control(QString(rule.control)))) {
                ExpectFits(*edit, sampleOf(rule));
            }
        }
        for (const FieldRule& rule : OfferFields()) {
            if (auto* edit =
                    qobject_cast<QLineEdit*>(&Control(RowName(QString(rule.control), 0)))) {
                ExpectFits(*edit, sampleOf(rule));
            }
        }
    }

    Letters m_letters;
};

INSTANTIATE_TEST_SUITE_P(Appearances, TextFit, ::testing::ValuesIn(Appearances),
                         [](const auto& appearance) { return appearance.param.name; });

TEST_P(TextFit, AtTheStart) { ExpectEverythingFits(); }

TEST_P(TextFit, AtTheSmallestSizeOfTheWindow) {
    Window().resize(1, 1);
    Settle();
    ExpectEverythingFits();
}

TEST_P(TextFit, AfterAnotherLanguage) {
    SwitchLanguage(English + Spanish - GetParam().language);
    Settle();
    ExpectEverythingFits();
}

TEST_P(TextFit, WhenTheLettersGrow) {
    Window().resize(1, 1);
    const Letters larger(1.5);
    Settle();
    ExpectEverythingFits();
}

TEST_P(TextFit, EveryMenuTitleHasItsPlace) {
    const QMenuBar& bar = *Window().menuBar();
    for (QAction* title : bar.actions()) {
        EXPECT_TRUE(bar.rect().contains(bar.actionGeometry(title))) << title->text().toStdString();
    }
}

} // namespace
