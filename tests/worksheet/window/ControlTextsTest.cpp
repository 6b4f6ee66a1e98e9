// Every control and menu entry has its texts, in every language.
//
// The forms must give these texts by number (captionText, toolTipText, helpTopic, accessibleText):
//   the window               a caption
//   a menu, a menu entry     a caption and a help topic
//   a label                  a caption and a help topic; a tooltip, too, if it names a control
//   a button                 a caption or a name for screen readers, a tooltip and a help topic
//   any input control, scroll bar or result
//                            a tooltip and a help topic, and a name: its own or its label's
// Frames, lines and the inner parts of Qt's own controls need none.

#include "Language.h"
#include "QuendNames.h"
#include "WindowFixture.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Appearance {
    const char* name;
    int language;
    bool termInMonths;
};

void PrintTo(const Appearance& appearance, std::ostream* out) { *out << appearance.name; }

const std::vector<Appearance> Appearances = {
    {"EnglishYears", English, false},
    {"EnglishMonths", English, true},
    {"SpanishYears", Spanish, false},
    {"SpanishMonths", Spanish, true},
};

enum Need : unsigned {
    None = 0,
    Caption = 1,
    ToolTip = 2,
    HelpTopic = 4,
    CaptionOrName = 8,
    AnyName = 16,
};

unsigned NeedsOf(const QObject& object) {
    if (const auto* label = qobject_cast<const QLabel*>(&object)) {
        const bool announces = label->objectName() == u"lblAnnounced"; // what a command has done
        return HelpTopic | (announces ? None : Caption) | (label->buddy() ? ToolTip : None);
    }
    if (qobject_cast<const QPushButton*>(&object)) {
        return CaptionOrName | ToolTip | HelpTopic;
    }
    if (qobject_cast<const QLineEdit*>(&object) || qobject_cast<const QComboBox*>(&object) ||
        qobject_cast<const QAbstractSpinBox*>(&object) ||
        qobject_cast<const QAbstractButton*>(&object) || qobject_cast<const QScrollBar*>(&object)) {
        return ToolTip | HelpTopic | AnyName;
    }
    if (const auto* menu = qobject_cast<const QMenu*>(&object)) {
        // The menu bar has an internal menu for titles without room.
        const bool ofTheBar = menu->objectName().isEmpty() && menu->title().isEmpty();
        return ofTheBar ? None : Caption | HelpTopic;
    }
    if (const auto* action = qobject_cast<const QAction*>(&object)) {
        const bool titleOfMenu = action->menu() != nullptr;
        return action->isSeparator() || titleOfMenu ? None : Caption | HelpTopic;
    }
    return qobject_cast<const QMainWindow*>(&object) ? Caption : None;
}

class ControlTexts : public WindowTest, public ::testing::WithParamInterface<Appearance> {
protected:
    ControlTexts() {
        Open({.language = GetParam().language, .termInMonths = GetParam().termInMonths});
    }

    /// Every control and menu entry, including those of a row appended later.
    QList<QObject*> Objects() {
        Click(u"txtPoints(5)");
        QList<QObject*> objects{&Window()};
        Collect(Window(), objects);
        return objects;
    }
    static bool HasNumber(const QObject& object, const char* property) {
        return object.property(property).toInt() > 0;
    }
    static QString NameOf(const QObject& object) {
        auto* interface = QAccessible::queryAccessibleInterface(const_cast<QObject*>(&object));
        return interface ? interface->text(QAccessible::Name) : QString();
    }

private:
    /// Skips the inner parts of Qt's own controls.
    static void Collect(const QObject& around, QList<QObject*>& objects) {
        for (QObject* object : around.children()) {
            const bool needs = NeedsOf(*object) != None;
            if (object->objectName().startsWith(u"qt_") &&
                object->objectName() != u"qt_scrollarea_viewport") {
                continue;
            }
            if (needs) {
                objects.append(object);
            }
            if (!needs || qobject_cast<const QMenu*>(object)) {
                Collect(*object, objects);
            }
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Appearances, ControlTexts, ::testing::ValuesIn(Appearances),
                         [](const auto& appearance) { return appearance.param.name; });

TEST_P(ControlTexts, NoneIsMissing) {
    const QList<QObject*> objects = Objects();
    EXPECT_GT(objects.size(), 100);
    for (const QObject* object : objects) {
        SCOPED_TRACE(object->metaObject()->className() +
                     (' ' + object->objectName().toStdString()) + " in " +
                     (object->parent() ? object->parent()->objectName().toStdString() : ""));
        const unsigned needs = NeedsOf(*object);
        EXPECT_FALSE(object->objectName().isEmpty());
        EXPECT_TRUE(!(needs & Caption) || HasNumber(*object, "captionText"));
        EXPECT_TRUE(!(needs & ToolTip) || HasNumber(*object, "toolTipText"));
        EXPECT_TRUE(!(needs & HelpTopic) || HasNumber(*object, "helpTopic"));
        EXPECT_TRUE(!(needs & CaptionOrName) || HasNumber(*object, "captionText") ||
                    HasNumber(*object, "accessibleText"));
        EXPECT_TRUE(!(needs & AnyName) || !NameOf(*object).isEmpty());
    }
}

TEST_P(ControlTexts, EveryNumberHasItsTextInTheLanguage) {
    for (const QObject* object : Objects()) {
        for (const char* property :
             {"captionText", "captionTextInYears", "toolTipText", "accessibleText"}) {
            if (HasNumber(*object, property)) {
                EXPECT_FALSE(
                    Language::Instance().Text(object->property(property).toInt()).isEmpty())
                    << object->objectName().toStdString() << ' ' << property;
            }
        }
    }
}

TEST_P(ControlTexts, EveryTextIsShown) {
    for (const QObject* object : Objects()) {
        SCOPED_TRACE(object->objectName().toStdString());
        const QVariant inYears = object->property("captionTextInYears");
        const int caption = inYears.isValid() && !GetParam().termInMonths
                                ? inYears.toInt()
                                : object->property("captionText").toInt();
        if (caption > 0) {
            const char* property = object == &Window()                  ? "windowTitle"
                                   : qobject_cast<const QMenu*>(object) ? "title"
                                                                        : "text";
            EXPECT_EQ(object->property(property).toString(), Language::Instance().Text(caption));
        }
        // The results of a row show theirs only while there is something to report.
        if (HasNumber(*object, "toolTipText") &&
            !object->objectName().startsWith(u"txtPayoffDate") &&
            !object->objectName().startsWith(u"txtInterest(") &&
            object->objectName() != u"txtCurPayoffDate") {
            EXPECT_EQ(object->property("toolTip").toString(),
                      Language::Instance().Text(object->property("toolTipText").toInt()));
        }
    }
}

TEST_P(ControlTexts, EveryFieldOfARowIsNamedWithItsRow) {
    const QString offer = GetParam().language == English ? u"Offer %1, "_s : u"Oferta %1, "_s;
    Click(u"txtPoints(5)");
    Press(Qt::Key_Down);
    SwitchLanguage(English + Spanish - GetParam().language);
    SwitchLanguage(GetParam().language);
    ASSERT_EQ(RowCount(), 8);
    QStringList names;
    for (int row = 0; row < RowCount(); ++row) {
        for (const FieldRule& field : OfferFields()) {
            const QString name = NameOf(Control(RowName(QString(field.control), row)));
            EXPECT_TRUE(name.startsWith(offer.arg(row + 1))) << name.toStdString();
            EXPECT_FALSE(names.contains(name)) << name.toStdString();
            names.append(name);
        }
    }
    EXPECT_EQ(names.at(2), GetParam().language == English ? u"Offer 1, interest rate"
                                                          : u"Oferta 1, tasa de interés");
}

TEST_P(ControlTexts, EveryFieldOfTheUpperBandsHasADifferentName) {
    QStringList names;
    for (const FieldRule& field : LoanFields()) {
        const QString name = NameOf(Control(QString(field.control)));
        EXPECT_FALSE(name.isEmpty()) << QString(field.control).toStdString();
        EXPECT_FALSE(names.contains(name)) << name.toStdString();
        EXPECT_FALSE(name.contains(u'%')) << name.toStdString();
        names.append(name);
    }
}

} // namespace
