// Any text pasted, typed or dropped into any number field is stored, or refused with the right
// message; the field, the text and the worksheet stay intact.

#include "DragFixture.h"
#include "FailureReport.h"
#include "Fuzzing.h"
#include "HostileTexts.h"
#include "IsValidNumber.h"
#include "Language.h"
#include "MessageBoxes.h"
#include "NumberFields.h"
#include "QuendNames.h"
#include "QuietQt.h"
#include "TextNumbers.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class FieldFuzz : public DragTest {
protected:
    void Reopen(std::size_t number) {
        const std::array starts{Start{.locale = UnitedStates},
                                Start{.locale = Germany, .termInMonths = true},
                                Start{.locale = Spain, .language = Spanish},
                                Start{.locale = QLocale(QLocale::Arabic, QLocale::Egypt)}};
        Shut();
        Open(starts.at(number % starts.size()));
        m_formats.emplace(starts.at(number % starts.size()).locale);
        SheetToWrite().SetPaymentNoticeShown(true);
        m_refusal = GetParamText(number % starts.size() == 2);
    }
    static QString GetParamText(bool spanish) {
        return spanish ? u"Escriba un número de la forma"_s
                       : u"Please enter a number of the form"_s;
    }

    /// Chooses the field and the way the text is entered.
    void Try(const std::string& input) {
        const std::size_t number = std::hash<std::string>()(input);
        if (!IsOpen() || number % 97 == 0) {
            Reopen(number / 97);
        }
        const NumberField& field = NumberFields.at(number % NumberFields.size());
        number % 3 == 0 && field.name.contains(u'(')
            ? DropOn(field, TextOf(input))
            : PasteInto(field, TextOf(input), number % 2 == 0);
        ExpectAlive();
    }

    void PasteInto(const NumberField& field, const QString& text, bool asValue) {
        Enter(field.name);
        Press(Qt::Key_A, Qt::ControlModifier);
        const QString before = Text(field.name);
        Clip(text, asValue, field);
        Press(Qt::Key_V, Qt::ControlModifier);
        const QString written = Text(field.name); // Qt drops what no line can hold
        if (!SettledMessages().isEmpty()) {       // a value that was refused at once
            EXPECT_EQ(written, before);
            Messages().Clear();
        }
        Tab();
        const QStringList told = SettledMessages();
        if (FocusName() == field.name) {
            ASSERT_EQ(told.size(), 1);
            EXPECT_TRUE(told[0] == m_refusal + field.picture.toString() || told[0] == Overflow())
                << told[0].toStdString();
            EXPECT_EQ(Text(field.name), written);
            EXPECT_EQ(Edit(field.name).selectedText(), written);
            Press(Qt::Key_Delete);
            Tab();
        } else {
            EXPECT_TRUE(IsValidNumber(written, decimals(field), m_formats->DecimalSeparator()));
            for (const QString& message : told) { // a result that no field can hold
                EXPECT_EQ(message, Overflow());
            }
        }
        EXPECT_NE(FocusName(), field.name);
        Messages().Clear();
    }
    void DropOn(const NumberField& field, const QString& text) {
        const QString before = Text(field.name);
        const Offered offered = Drop(field.name, text);
        const QStringList told = SettledMessages();
        for (const QString& message : told) {
            EXPECT_TRUE(message == Overflow() || message == NoNumber) << message.toStdString();
        }
        if (!offered.accepted) {
            EXPECT_EQ(Text(field.name), before);
        }
        Messages().Clear();
    }
    void ExpectAlive() {
        EXPECT_TRUE(Window().isVisible());
        EXPECT_TRUE(Messages().Questions().empty());
        EXPECT_GE(RowCount(), 6);
        EXPECT_LE(RowCount(), 16);
    }

private:
    const QuietQt m_quiet; // Qt warns of missing letters in some scripts
    bool IsOpen() { return m_formats.has_value(); }
    static QString Overflow() {
        return GetResourceText(TextNumber::NumberTooLarge) + u"\nerrn=6  src=Loan  desc=Overflow"_s;
    }
    static int decimals(const NumberField& field) {
        const qsizetype point = field.picture.indexOf(u'.');
        const bool term = field.name.startsWith(u"txtTerm");
        return point < 0 ? 0 : term ? 3 : static_cast<int>(field.picture.size() - point - 1);
    }
    static void Clip(const QString& text, bool asValue, const NumberField& field) {
        auto data = std::make_unique<QMimeData>();
        data->setText(text);
        data->setHtml(u"<b>"_s + text);
        if (asValue) {
            data->setData(u"application/x-quend-loan-value"_s, field.name.toLatin1());
        }
        QApplication::clipboard()->setMimeData(data.release());
    }
    const QString NoNumber = u"errn=13  src=Loan  desc=Type mismatch"_s;
    std::optional<DisplayFormats> m_formats;
    QString m_refusal;
};

TEST_F(FieldFuzz, TheCorpusIsStoredOrRefused) {
    FuzzTarget("text", [this](const std::string& input) { Try(input); }).TryCorpus();
}

TEST_F(FieldFuzz, AnyTextIsStoredOrRefused) {
    const FuzzTarget target("text", [this](const std::string& input) { Try(input); });
    target.TryAtRandom(
        [&](FuzzRandom& random) {
            return random.OneIn(4) ? Damaged(random, random.AnyOf(target.Corpus()))
                                   : Patched(random, HostilePieces);
        },
        2);
}

/// Names and paths may have any length; the buttons below them stay reachable.
TEST_F(FieldFuzz, NoMessageIsHigherThanTheScreen) {
    MessageBoxes boxes;
    const QObject boxesOwner;
    for (const QString& text :
         {QString(30'000, u'x'), QStringLiteral("two words ").repeated(3'000),
          QStringLiteral("line\n").repeated(20), QString::fromUtf8("\U0001F3E0").repeated(9'000)}) {
        int shown = 0;
        QTimer::singleShot(0, &boxesOwner, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                ++shown;
                EXPECT_LE(box->height(), box->screen()->availableGeometry().height());
                EXPECT_LE(box->width(), box->screen()->availableGeometry().width());
                box->reject();
            }
        });
        boxes.Show(text);
        EXPECT_EQ(shown, 1);
    }
}

} // namespace
