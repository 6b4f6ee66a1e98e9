// Texts, access keys and sizes of the comparison window and of Find a Payment.

#include "CompareFixture.h"
#include "Language.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

struct Appearance {
    const char* name;
    int language;
    double size; ///< of the font, relative to the desktop's font
};

void PrintTo(const Appearance& appearance, std::ostream* out) { *out << appearance.name; }

QChar AccessKeyOf(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == u'&' && text[++i] != u'&') {
            return text[i].toLower();
        }
    }
    return {};
}

class CompareForms : public CompareTest, public ::testing::WithParamInterface<Appearance> {
protected:
    CompareForms() {
        QFont font = m_before;
        font.setPointSizeF(font.pointSizeF() * GetParam().size);
        QApplication::setFont(font);
    }
    Q_DISABLE_COPY_MOVE(CompareForms)
    ~CompareForms() override {
        EndCommands();
        Shut();
        QApplication::setFont(m_before);
    }

    /// Looks at each page of the comparison window, and at the dialog.
    void InEachForm(const std::function<void(QWidget&)>& look) {
        OpenCompare({.language = GetParam().language});
        EnterInto(FieldId::Costs, Row{0}, u"1234.5");
        for (int page = 0; page < 3; ++page) {
            SCOPED_TRACE(TabTitles().at(page).toStdString());
            ShowPage(page);
            look(*CompareWindow());
        }
        bool looked = false;
        QTimer::singleShot(0, &Window(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            Settle();
            look(*dialog);
            looked = true;
            dialog->reject();
        });
        Window().findChild<QAction*>(u"mnuToolsFindPayment"_s)->trigger();
        EXPECT_TRUE(looked);
    }
    /// The visible controls of a kind, without the inner parts of Qt's own controls.
    template <class Kind>
    static QList<Kind*> Visible(const QWidget& window) {
        QList<Kind*> found;
        for (auto* control : window.findChildren<Kind*>()) {
            const bool isInner = control->objectName().isEmpty() ||
                                 control->objectName().startsWith(u"qt_") ||
                                 control->objectName().startsWith(u"Scroll");
            if (control->isVisible() && !isInner) {
                found.append(control);
            }
        }
        return found;
    }
    static QString NameOf(QObject& object) {
        auto* interface = QAccessible::queryAccessibleInterface(&object);
        return interface ? interface->text(QAccessible::Name) : QString();
    }
    template <class Kind>
    static void ExpectFits(const QWidget& window) {
        for (const auto* control : Visible<Kind>(window)) {
            SCOPED_TRACE(control->objectName().toStdString());
            const auto* label = qobject_cast<const QLabel*>(control);
            const bool wraps = label && label->wordWrap();
            EXPECT_GE(control->height(), wraps ? control->heightForWidth(control->width())
                                               : control->sizeHint().height());
            EXPECT_TRUE(wraps || control->width() >= control->sizeHint().width())
                << control->width() << " of " << control->sizeHint().width();
        }
    }

private:
    QFont m_before = QApplication::font();
};

INSTANTIATE_TEST_SUITE_P(Appearances, CompareForms,
                         ::testing::Values(Appearance{"English", English, 1},
                                           Appearance{"Spanish", Spanish, 1},
                                           Appearance{"EnglishLarge", English, 2},
                                           Appearance{"SpanishLarge", Spanish, 2}),
                         [](const auto& appearance) { return appearance.param.name; });

TEST_P(CompareForms, EveryControlHasTopicNameAndTexts) {
    InEachForm([](QWidget& window) {
        for (QWidget* control : Visible<QWidget>(window)) {
            SCOPED_TRACE(control->objectName().toStdString());
            const bool isInput =
                qobject_cast<QAbstractButton*>(control) || qobject_cast<QLineEdit*>(control) ||
                qobject_cast<QComboBox*>(control) || qobject_cast<QAbstractSpinBox*>(control) ||
                qobject_cast<QTableView*>(control) || control->objectName() == u"chtOverTime";
            if (isInput || qobject_cast<QLabel*>(control)) {
                EXPECT_GT(control->property("helpTopic").toInt(), 0);
            }
            EXPECT_TRUE(!isInput || !NameOf(*control).isEmpty());
            for (const auto& [number, shown] :
                 {std::pair("captionText", "text"), std::pair("toolTipText", "toolTip"),
                  std::pair("accessibleText", "accessibleName")}) {
                if (control->objectName() == u"chtOverTime") {
                    continue; // it names itself by what it shows
                }
                const int text = control->property(number).toInt();
                const QVariant value = control->property(shown);
                EXPECT_TRUE(text == 0 || !value.isValid() ||
                            value.toString().startsWith(Language::Instance().Text(text)))
                    << number;
            }
        }
    });
}

TEST_P(CompareForms, AccessKeysAreTakenOnce) {
    InEachForm([](QWidget& window) {
        QHash<QChar, QString> taken;
        const auto take = [&](const QString& text) {
            const QChar key = AccessKeyOf(text);
            EXPECT_TRUE(key.isNull() || !taken.contains(key))
                << text.toStdString() << ": " << taken.value(key).toStdString();
            taken.insert(key, text);
        };
        for (const QLabel* label : Visible<QLabel>(window)) {
            if (label->buddy() != nullptr) {
                take(label->text());
            }
        }
        for (const auto* button : Visible<QAbstractButton>(window)) {
            take(button->text());
            const bool closes = button->objectName() == u"cmdClose"; // Escape or Alt+F4 does
            EXPECT_TRUE(closes || !AccessKeyOf(button->text()).isNull())
                << button->objectName().toStdString();
        }
        if (const auto* tabs = window.findChild<QTabWidget*>()) {
            for (int page = 0; page < tabs->count(); ++page) {
                take(tabs->tabText(page));
            }
        }
        EXPECT_GT(taken.size(), 6);
    });
}

TEST_P(CompareForms, NothingIsCutOff) {
    InEachForm([](QWidget& window) {
        for (const bool smallest : {false, true}) {
            if (smallest) {
                window.resize(1, 1);
                Settle();
            }
            ExpectFits<QLabel>(window);
            ExpectFits<QPushButton>(window);
            ExpectFits<QRadioButton>(window);
            ExpectFits<QCheckBox>(window);
            ExpectFits<QComboBox>(window);
            ExpectFits<QSpinBox>(window);
        }
    });
}

} // namespace
