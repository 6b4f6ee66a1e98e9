// The questions of the print dialogs and the effects of the answers, with a real print server.

#include "Language.h"
#include "LoanForm.h"
#include "PrintServerFixture.h"
#include "QuendNames.h"
#include "TextNumbers.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QtEndian>

#include <cmath>
#include <span>
#include <stdexcept>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// In points, such as "612 x 792".
QString PageSizeOf(const QString& document) {
    const QString info = PrintServer::Run(QStringLiteral("pdfinfo"), {document});
    const QRegularExpression size(QStringLiteral("Page size:\\s*([0-9.]+) x ([0-9.]+)"));
    const auto found = size.match(info);
    return QStringLiteral("%1 x %2")
        .arg(std::lround(found.captured(1).toDouble()))
        .arg(std::lround(found.captured(2).toDouble()));
}

/// The number of copies that the server received for the job with this number.
int CopiesOf(int job) {
    QFile file(InServerFolder(QStringLiteral("spool/c%1").arg(job, 5, 10, QLatin1Char('0'))));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("there is no such job");
    }
    const QByteArray attributes = file.readAll();
    const QByteArray name("\x21\0\6copies\0\4", 11);
    const qsizetype at = attributes.indexOf(name);
    return at < 0 ? 1 : qFromBigEndian<qint32>(attributes.constData() + at + name.size());
}

void ShowAllOptions(const QPrintDialog& dialog) {
    for (auto* button : dialog.findChildren<QPushButton*>()) {
        if (button->text().endsWith(u">>")) {
            button->click();
        }
    }
}

TEST_F(ServerOnlyTest, ACancelledDialogLeavesNoTrace) {
    Begin();
    Print([](QPrintDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(Job(), nullptr);
    ExpectNoTrace();
}

TEST_F(ServerOnlyTest, TheDialogAsksForPaperAndCopiesAlone) {
    Begin();
    int asked = 0;
    Print([&](QPrintDialog& dialog) {
        ++asked;
        for (const auto option :
             {QAbstractPrintDialog::PrintSelection, QAbstractPrintDialog::PrintPageRange,
              QAbstractPrintDialog::PrintCurrentPage, QAbstractPrintDialog::PrintToFile}) {
            EXPECT_FALSE(dialog.testOption(option)) << option;
        }
        ShowAllOptions(dialog);
        for (const char* choice : {"printRange", "pagesRadioButton", "pageSetCombo"}) {
            const auto* widget = dialog.findChild<QWidget*>(QLatin1String(choice));
            ASSERT_NE(widget, nullptr) << choice;
            EXPECT_FALSE(widget->isVisible()) << choice;
        }
        EXPECT_TRUE(dialog.findChild<QSpinBox*>(QStringLiteral("copies"))->isVisible());
        EXPECT_EQ(dialog.minPage(), 1);
        EXPECT_EQ(dialog.maxPage(), 9999);
        EXPECT_EQ(dialog.printer()->printerName(), u"Lab");
        EXPECT_EQ(dialog.printer()->pageLayout().pageSize().id(), QPageSize::Letter);
        EXPECT_EQ(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->text(),
                  u"Cancel");
        dialog.reject();
    });
    EXPECT_EQ(asked, 1);
}

TEST_F(ServerOnlyTest, TheDialogsSpeakTheLanguageInUse) {
    struct {
        int language;
        QStringList print;
        QStringList setUp;
        QStringView landscape;
    } const table[]{
        {English,
         {u"Print"_s, u"&Print"_s, u"Cancel"_s},
         {u"Print Setup"_s, u"OK"_s, u"Cancel"_s},
         u"Landscape"},
        {Spanish,
         {u"Imprimir"_s, u"Im&primir"_s, u"Cancelar"_s},
         {u"Configurar impresión"_s, u"Aceptar"_s, u"Cancelar"_s},
         u"Apaisado"},
    };
    Begin();
    for (const std::size_t which : {0U, 1U, 0U}) {
        const auto& row = std::span(table)[which];
        SwitchLanguage(row.language);
        QStringList shown;
        const auto look = [&](QPrintDialog& dialog) {
            const auto* buttons = dialog.findChild<QDialogButtonBox*>();
            shown += {dialog.windowTitle(), buttons->button(QDialogButtonBox::Ok)->text(),
                      buttons->button(QDialogButtonBox::Cancel)->text().remove(u'&')};
            dialog.reject();
        };
        Print(look);
        const DialogAnswer setUp(look);
        Window().Form().mnuFilePrintSetup->trigger();
        EXPECT_EQ(shown, row.print + row.setUp);
        EXPECT_EQ(QCoreApplication::translate("QPageSetupWidget", "Landscape"), row.landscape);
    }
}

TEST_F(ServerOnlyTest, SetUpChoosesThePrinterAndStartsNoJob) {
    AddOther();
    Begin();
    {
        const DialogAnswer answer([](QPrintDialog& dialog) {
            EXPECT_EQ(dialog.windowTitle(), u"Print Setup");
            for (auto* list : dialog.findChildren<QComboBox*>()) {
                if (list->findText(QStringLiteral("Other")) >= 0) {
                    list->setCurrentIndex(list->findText(QStringLiteral("Other")));
                }
            }
            Accept(dialog);
        });
        Window().Form().mnuFilePrintSetup->trigger();
        EXPECT_EQ(answer.Count(), 1);
    }
    EXPECT_EQ(Job(), nullptr);
    EXPECT_TRUE(PrintServer::Jobs().isEmpty());
    EXPECT_EQ(QPrinterInfo::defaultPrinterName(), u"Other");
    EXPECT_TRUE(PrintServer::Run(QStringLiteral("lpstat"), {QStringLiteral("-d")})
                    .contains(QStringLiteral("Other")));
    Print([](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.printer()->printerName(), u"Other");
        dialog.reject();
    });
}

/// Makes a choice in the properties of the open dialog, which are a dialog, too.
void InProperties(const QPrintDialog& dialog, const std::function<void(QWidget&)>& choose) {
    QTimer::singleShot(0, &dialog, [choose] {
        QWidget& properties = *QApplication::activeModalWidget();
        choose(properties);
        properties.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    for (auto* button : dialog.findChildren<QPushButton*>()) {
        if (button->text().contains(u"roperties")) {
            button->click();
        }
    }
}

QComboBox& ListNamed(const QObject& dialog, const char* name) {
    return *dialog.findChild<QComboBox*>(QLatin1String(name));
}

/// The displayed paper, the orientation, and the top margin in points.
QString ShownPage(const QWidget& properties) {
    const auto unit = ListNamed(properties, "unitCombo").currentData().value<QPageLayout::Unit>();
    const double top = properties.findChild<QDoubleSpinBox*>(QStringLiteral("topMargin"))->value();
    const QMarginsF margins =
        QPageLayout(QPageSize(QPageSize::A0), QPageLayout::Portrait, {0, top, 0, 0}, unit)
            .margins(QPageLayout::Point);
    return ListNamed(properties, "pageSizeCombo").currentText() +
           (properties.findChild<QRadioButton*>(QStringLiteral("landscape"))->isChecked()
                ? QStringLiteral(" lying ")
                : QStringLiteral(" upright ")) +
           QString::number(std::lround(margins.top()));
}

QString PageOf(const QPrinter& printer) {
    const QPageLayout page = printer.pageLayout();
    return page.pageSize().key() +
           (page.orientation() == QPageLayout::Landscape ? QStringLiteral(" lying ")
                                                         : QStringLiteral(" upright ")) +
           QString::number(std::lround(page.margins(QPageLayout::Point).top()));
}

void ChooseLyingA4(QWidget& properties) {
    auto& papers = ListNamed(properties, "pageSizeCombo");
    papers.setCurrentIndex(papers.findText(QStringLiteral("A4")));
    properties.findChild<QRadioButton*>(QStringLiteral("landscape"))->click();
    auto& units = ListNamed(properties, "unitCombo");
    units.setCurrentIndex(2); // points
    Q_EMIT units.activated(2);
    properties.findChild<QDoubleSpinBox*>(QStringLiteral("topMargin"))->setValue(100);
}

TEST_F(ServerOnlyTest, ThePageChosenInSetUpIsPrinted) {
    Begin();
    FillRows(1);
    {
        const DialogAnswer answer([](QPrintDialog& dialog) {
            InProperties(dialog, [](QWidget& properties) {
                EXPECT_EQ(ShownPage(properties), u"Letter upright 18");
                ChooseLyingA4(properties);
            });
            Accept(dialog);
        });
        Window().Form().mnuFilePrintSetup->trigger();
        EXPECT_EQ(answer.Count(), 1);
    }
    Print([](QPrintDialog& dialog) {
        EXPECT_EQ(PageOf(*dialog.printer()), u"A4 lying 100");
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    ASSERT_TRUE(WaitForPaper(1));
    EXPECT_EQ(PageSizeOf(Printed().front()), u"842 x 595"); // A4 landscape
}

TEST_F(ServerOnlyTest, ThePageOfTheLastDialogIsThatOfTheNext) {
    Begin();
    Print([](QPrintDialog& dialog) {
        InProperties(dialog, ChooseLyingA4);
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    Print([](QPrintDialog& dialog) { dialog.reject(); });
    Print(); // without opening the properties
    ASSERT_TRUE(WaitForEnd());
    Print([](QPrintDialog& dialog) {
        InProperties(
            dialog, [](QWidget& properties) { EXPECT_EQ(ShownPage(properties), u"A4 lying 100"); });
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    Print([](QPrintDialog& dialog) {
        EXPECT_EQ(PageOf(*dialog.printer()), u"A4 lying 100");
        dialog.reject();
    });
}

/// The chosen paper is used, although it is the one of the previous printer.
TEST_F(ServerOnlyTest, ThePaperChosenForAnotherPrinterHolds) {
    AddOther();
    Begin();
    Print([](QPrintDialog& dialog) {
        InProperties(dialog, ChooseLyingA4);
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    Print([](QPrintDialog& dialog) {
        auto& printers = ListNamed(dialog, "printers");
        printers.setCurrentIndex(printers.findText(QStringLiteral("Other")));
        InProperties(dialog, ChooseLyingA4);
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    Print([](QPrintDialog& dialog) {
        EXPECT_EQ(dialog.printer()->printerName(), u"Other");
        EXPECT_EQ(PageOf(*dialog.printer()), u"A4 lying 100");
        dialog.reject();
    });
}

TEST_F(ServerOnlyTest, CopiesAreThoseOfOneJob) {
    Begin();
    FillRows(1);
    const auto copies = [](QPrintDialog& dialog) {
        return dialog.findChild<QSpinBox*>(QStringLiteral("copies"));
    };
    Print([&](QPrintDialog& dialog) {
        copies(dialog)->setValue(3);
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    Print([&](QPrintDialog& dialog) {
        EXPECT_EQ(copies(dialog)->value(), 1);
        Accept(dialog);
    });
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(CopiesOf(1), 3);
    EXPECT_EQ(CopiesOf(2), 1);
}

QAction* ActionOf(const QObject& preview, const char* text) {
    for (auto* action : preview.findChildren<QAction*>()) {
        if (action->text() == QLatin1String(text)) {
            return action;
        }
    }
    throw std::runtime_error(std::string("there is no action ") + text);
}

TEST_F(ServerOnlyTest, WhatIsTurnedInThePreviewIsPrintedFromIt) {
    Begin();
    FillRows(1);
    const AnswerTo<QPrintPreviewDialog> answer([](QPrintPreviewDialog& preview) {
        EXPECT_EQ(PageOf(*preview.printer()), u"Letter upright 18");
        ActionOf(preview, "Landscape")->trigger();
        const DialogAnswer cancel([](QPrintDialog& dialog) { dialog.reject(); });
        ActionOf(preview, "Print")->trigger();
        EXPECT_TRUE(preview.isVisible());
        const DialogAnswer print([](QPrintDialog& dialog) {
            EXPECT_EQ(PageOf(*dialog.printer()), u"Letter lying 18");
            Accept(dialog);
        });
        ActionOf(preview, "Print")->trigger();
        EXPECT_FALSE(preview.isVisible());
    });
    Window().Form().mnuFilePrintPreview->trigger();
    EXPECT_EQ(answer.Count(), 1);
    ASSERT_TRUE(WaitForEnd());
    ASSERT_TRUE(WaitForPaper(1));
    EXPECT_EQ(PageSizeOf(Printed().front()), u"792 x 612");
}

TEST_F(ServerOnlyTest, NoPrinterAtAllIsReportedInsteadOfAsking) {
    PrintServer::Run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), QStringLiteral("Lab")});
    Begin();
    FillRows(1);
    const DialogAnswer answer(Accept);
    Window().Form().mnuFilePrint->trigger();
    EXPECT_EQ(answer.Count(), 0);
    EXPECT_EQ(Job(), nullptr);
    EXPECT_EQ(Text(u"cboLoanName"), u"Our home");
    ExpectNoTrace({GetResourceText(TextNumber::NoPrinter)});
}

} // namespace
