#include "AboutCommands.h"
#include "ProgramIcon.h"
#include "QuendNames.h"
#include "StoreFolder.h"
#include "VersionRecord.h"
#include "WindowFixture.h"
#include "frmAbout.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace {

/// User actions in the dialog, and what it shows.
class About : public WindowTest, public ::testing::WithParamInterface<int> {
protected:
    void SetUp() override { Open({.language = GetParam()}); }
    void TearDown() override {
        QApplication::setFont(m_font);
        QApplication::setPalette(m_palette);
    }

    /// Chooses the menu entry and runs the action while the dialog is open.
    void While(const std::function<void(QDialog&)>& deed) {
        const AboutCommands about(Window(), m_folder.Store(),
                                  {.installed = [this] { return m_tool; },
                                   .start =
                                       [this](const QString& path) {
                                           m_started.append(path);
                                           return true;
                                       }});
        bool done = false;
        QTimer::singleShot(0, &Window(), [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog &&
                        WaitFor([&] { return dialog->isAncestorOf(QApplication::focusWidget()); }));
            deed(*dialog);
            done = true;
            dialog->close();
        });
        Window().findChild<QAction*>(QStringLiteral("mnuHelpAbout"))->trigger();
        EXPECT_TRUE(done);
    }
    static QString TextOf(const QDialog& dialog, const char* label) {
        return dialog.findChild<QLabel*>(QString::fromLatin1(label))->text();
    }

    StoreFolder m_folder;
    std::optional<QString> m_tool;
    QStringList m_started;

private:
    QFont m_font = QApplication::font();
    QPalette m_palette = QApplication::palette();
};

INSTANTIATE_TEST_SUITE_P(Languages, About, ::testing::Values(English, Spanish),
                         [](const auto& language) {
                             return language.param == English ? "English" : "Spanish";
                         });

TEST_P(About, ShowsTheVersionRecord) {
    const bool english = GetParam() == English;
    While([&](const QDialog& dialog) {
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(dialog.windowTitle(),
                  english ? u"About Quend Loan..." : u"Acerca de Quend Loan...");
        EXPECT_EQ(TextOf(dialog, "lblTitle"), QLatin1String(VersionRecord::ProductName));
        EXPECT_EQ(TextOf(dialog, "lblVersion"), QStringLiteral("%1 %2.%3.%4")
                                                    .arg(english ? u"Version" : u"Versión")
                                                    .arg(VersionRecord::Major)
                                                    .arg(VersionRecord::Minor)
                                                    .arg(VersionRecord::Revision));
        EXPECT_EQ(TextOf(dialog, "lblDescription"),
                  english ? u"A loan calculator for people shopping for a loan"
                          : u"Una calculadora de préstamos para quien busca un préstamo");
        EXPECT_EQ(TextOf(dialog, "lblDisclaimer"),
                  english ? u"Copyright 2026 Quend Halverworks. Figures are estimates and no offer "
                            u"of credit."
                          : u"Copyright 2026 Quend Halverworks. Las cifras son estimaciones y no "
                            u"una oferta de crédito.");
        auto* icon = dialog.findChild<QLabel*>(QStringLiteral("picIcon"));
        EXPECT_FALSE(icon->pixmap().isNull());
        EXPECT_EQ(QAccessible::queryAccessibleInterface(icon)->text(QAccessible::Name),
                  english ? u"Icon of Quend Loan" : u"Icono de Quend Loan");
    });
}

TEST_P(About, KeyboardAloneSuffices) {
    m_tool = QStringLiteral("/usr/bin/tool");
    for (const Qt::Key ending : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space}) {
        While([&](QDialog& dialog) {
            EXPECT_EQ(FocusName(), u"cmdOK");
            QTest::keyClick(dialog.windowHandle(), ending);
            EXPECT_FALSE(dialog.isVisible());
        });
    }
    While([this](QDialog& dialog) {
        QTest::keyClick(dialog.windowHandle(), Qt::Key_S, Qt::AltModifier);
        EXPECT_TRUE(WaitFor([this] { return !m_started.isEmpty(); }));
        QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
        EXPECT_EQ(FocusName(), u"cmdSysInfo");
        EXPECT_TRUE(dialog.isVisible());
    });
    EXPECT_EQ(m_started, QStringList(*m_tool));
}

TEST_P(About, SystemInfoThatIsMissingIsReported) {
    While([](const QDialog& dialog) {
        dialog.findChild<QPushButton*>(QStringLiteral("cmdSysInfo"))->click();
    });
    EXPECT_EQ(SettledMessages(),
              QStringList(GetParam() == English
                              ? QStringLiteral("System Information Is Unavailable At This Time")
                              : QStringLiteral("La información del sistema no está disponible en "
                                               "este momento")));
    EXPECT_EQ(m_started, QStringList());
}

TEST_P(About, NothingIsCutOffAtAnyScaleOrPalette) {
    for (const double scale : {0.75, 1.0, 2.0, 3.0}) {
        QFont font = QApplication::font();
        font.setPointSizeF(10 * scale);
        QApplication::setFont(font);
        QApplication::setPalette(QPalette(scale > 1 ? QColor(40, 40, 44) : QColor(239, 239, 239)));
        While([&](const QDialog& dialog) {
            SCOPED_TRACE(scale);
            for (const QLabel* label : dialog.findChildren<QLabel*>()) {
                const int needed = label->hasHeightForWidth()
                                       ? label->heightForWidth(label->width())
                                       : label->sizeHint().height();
                EXPECT_GE(label->height(), needed) << label->objectName().toStdString();
                EXPECT_TRUE(dialog.rect().contains(label->geometry()));
            }
            for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
                EXPECT_GE(button->width(), button->minimumSizeHint().width());
            }
        });
    }
}

TEST_P(About, EveryPartHasAHelpTopic) {
    While([](const QDialog& dialog) {
        for (const QWidget* part : dialog.findChildren<QWidget*>()) {
            EXPECT_GE(part->property("helpTopic").toInt(), 2030)
                << part->objectName().toStdString();
        }
    });
}

TEST(ProgramIcon, IsThereInEverySize) {
    for (const int size : {16, 32, 48, 64, 128, 256}) {
        EXPECT_EQ(ProgramIcon().pixmap(size).size(), QSize(size, size));
    }
}

} // namespace
