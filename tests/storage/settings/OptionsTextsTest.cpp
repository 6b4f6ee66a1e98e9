// The texts of the Options dialog: complete in every language, not cut off, unique access keys.

#include "CountSpin.h"
#include "Language.h"
#include "OptionsFixture.h"
#include "QuendNames.h"
#include "SettingsStore.h"
#include "TextNumbers.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

enum Need : unsigned {
    Caption = 1,
    ToolTip = 2,
    Name = 4,
};

/// The controls, and which texts each needs by number. All have a help topic.
struct Expected {
    QStringView name;
    unsigned needs;
};

const std::vector<Expected> Controls = {
    {u"frmOptions", Caption},
    {u"lblLoans", Caption | ToolTip},
    {u"udLoans", ToolTip | Name},
    {u"fraTerm", Caption | Name},
    {u"optTerm(0)", Caption | ToolTip | Name},
    {u"optTerm(1)", Caption | ToolTip | Name},
    {u"fraWallpaper", Caption | Name},
    {u"lblWallpaper", Caption | ToolTip},
    {u"txtWallpaper", ToolTip | Name},
    {u"cmdWallpaper", Caption | ToolTip | Name},
    {u"picWallpaper", ToolTip | Name},
    {u"OKButton", Caption | ToolTip | Name},
    {u"CancelButton", Caption | ToolTip | Name},
};

class OptionsTexts : public OptionsDialog, public ::testing::WithParamInterface<int> {
protected:
    void SetUp() override { Open({}, GetParam()); }
    void TearDown() override { QApplication::setFont(m_font); }

    QWidget& Widget(QStringView name) { return name == u"frmOptions" ? Dialog() : Control(name); }
    static QString TextOf(const QWidget& control, const char* number) {
        const int text = control.property(number).toInt();
        EXPECT_GT(text, 0) << control.objectName().toStdString() << ' ' << number;
        QString words = Language::Instance().Text(text);
        EXPECT_FALSE(words.isEmpty()) << control.objectName().toStdString() << ' ' << number;
        return words;
    }
    static QString NameOf(QWidget& control) {
        auto* interface = QAccessible::queryAccessibleInterface(&control);
        return interface ? interface->text(QAccessible::Name) : QString();
    }
    void ExpectNothingIsCut();

private:
    QFont m_font = QApplication::font();
};

INSTANTIATE_TEST_SUITE_P(Languages, OptionsTexts, ::testing::Values(English, Spanish),
                         [](const auto& language) {
                             return language.param == English ? "English" : "Spanish";
                         });

TEST_P(OptionsTexts, EveryControlHasItsOwn) {
    QStringList names;
    std::vector<int> topics;
    for (const Expected& tested : Controls) {
        SCOPED_TRACE(tested.name.toString().toStdString());
        QWidget& control = Widget(tested.name);
        if ((tested.needs & Caption) != 0) {
            const char* property = qobject_cast<QDialog*>(&control)     ? "windowTitle"
                                   : qobject_cast<QGroupBox*>(&control) ? "title"
                                                                        : "text";
            EXPECT_EQ(control.property(property).toString(), TextOf(control, "captionText"));
        }
        if ((tested.needs & ToolTip) != 0) {
            EXPECT_EQ(control.toolTip(), TextOf(control, "toolTipText"));
        }
        if ((tested.needs & Name) != 0) {
            EXPECT_FALSE(NameOf(control).isEmpty());
            EXPECT_FALSE(names.contains(NameOf(control))) << NameOf(control).toStdString();
            names.append(NameOf(control));
        }
        EXPECT_GE(control.property("helpTopic").toInt(), 2000);
    }
    EXPECT_EQ(Control(u"cmdWallpaper").property("text").toString(), u"...");
}

TEST_P(OptionsTexts, NoControlIsForgotten) {
    for (const QWidget* control : Dialog().findChildren<QWidget*>()) {
        const bool isOfTheToolkit = control->objectName().startsWith(u"qt_");
        const bool isInTheSpin = control->objectName() == u"txtLoans";
        const bool isListed =
            std::ranges::find(Controls, control->objectName(), &Expected::name) != Controls.end();
        EXPECT_TRUE(isListed || isOfTheToolkit || isInTheSpin)
            << control->objectName().toStdString();
    }
}

TEST_P(OptionsTexts, RefusalNamesTheRange) {
    const QString refusal = Language::Instance().Text(TextNumber::OffersRefused);
    EXPECT_TRUE(refusal.contains(QString::number(FewestOffersDisplayed)));
    EXPECT_TRUE(refusal.contains(QString::number(MostOffersDisplayed)));
}

TEST_P(OptionsTexts, AccessKeysAreTakenOnceAndLead) {
    struct Case {
        QStringView of;
        QStringView to;
    };
    const std::vector<Case> cases = {
        {u"lblLoans", u"udLoans"},
        {u"optTerm(0)", u"optTerm(0)"},
        {u"optTerm(1)", u"optTerm(1)"},
        {u"lblWallpaper", u"txtWallpaper"},
    };
    QString taken;
    for (const Case& tested : cases) {
        const QString caption = Text(tested.of);
        const qsizetype mark = caption.indexOf(u'&');
        ASSERT_GE(mark, 0) << caption.toStdString();
        const QChar key = caption.at(mark + 1).toUpper();
        EXPECT_FALSE(taken.contains(key)) << caption.toStdString();
        taken.append(key);
        Control(u"CancelButton").setFocus();
        Press(static_cast<Qt::Key>(key.unicode()), Qt::AltModifier);
        EXPECT_EQ(FocusName(), tested.to) << caption.toStdString();
    }
}

void OptionsTexts::ExpectNothingIsCut() {
    SettledMessages();
    for (const QWidget* control : Dialog().findChildren<QWidget*>()) {
        SCOPED_TRACE(control->objectName().toStdString());
        if (qobject_cast<const QLabel*>(control) || qobject_cast<const QAbstractButton*>(control) ||
            qobject_cast<const CountSpin*>(control)) {
            const bool shrinks = control->objectName() == u"picWallpaper";
            const QSize least = shrinks ? control->minimumSizeHint() : control->sizeHint();
            EXPECT_GE(control->width(), least.width());
            EXPECT_GE(control->height(), least.height());
        }
        if (const auto* group = qobject_cast<const QGroupBox*>(control)) {
            EXPECT_GE(group->width(), group->minimumSizeHint().width());
        }
        EXPECT_TRUE(control->parentWidget()->rect().contains(control->geometry()));
    }
    const auto& picture = Get<QLabel>(u"picWallpaper");
    const QString words = Language::Instance().Text(TextNumber::PictureNotShown);
    EXPECT_GE(picture.contentsRect().width(), picture.fontMetrics().horizontalAdvance(words) / 2);
    const int room = Get<QLineEdit>(u"txtLoans").width();
    EXPECT_GE(room, Dialog().fontMetrics().horizontalAdvance(u"15"_s) + 4);
}

TEST_P(OptionsTexts, NothingIsCut) {
    ExpectNothingIsCut();
    Dialog().resize(Dialog().minimumSizeHint());
    ExpectNothingIsCut();
}

TEST_P(OptionsTexts, NothingIsCutInLargeLetters) {
    QFont large = QApplication::font();
    large.setPointSizeF(large.pointSizeF() * 2);
    QApplication::setFont(large);
    Open({}, GetParam());
    ExpectNothingIsCut();
    Dialog().resize(Dialog().minimumSizeHint());
    ExpectNothingIsCut();
}

} // namespace
