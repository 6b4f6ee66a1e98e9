// Print Preview and Export as PDF: the same pages as on paper.

#include "AnswerTo.h"
#include "CompareTextNumbers.h"
#include "DrawnItems.h"
#include "EnterValues.h"
#include "FakePrinter.h"
#include "Language.h"
#include "LoanForm.h"
#include "PdfDocument.h"
#include "PrintCommands.h"
#include "PrintServer.h"
#include "QuendNames.h"
#include "SystemPrinter.h"
#include "TextNumbers.h"
#include "VersionRecord.h"
#include "WindowFixture.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QToolBar>
#include <QToolButton>

#include <functional>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

QString Described(const QRectF& place) {
    return u"%1 %2 %3 %4"_s.arg(place.x()).arg(place.y()).arg(place.width()).arg(place.height());
}

QString Described(const PrintedBox& box) {
    return u"box %1 pen %2"_s.arg(Described(box.place)).arg(box.penWidth);
}

QString Described(const PrintedLine& line) {
    return u"line %1 pen %2"_s.arg(Described(QRectF(line.line.p1(), line.line.p2())))
        .arg(line.penWidth);
}

QString Described(const PrintedText& text) {
    return u"text %1 %2 '%3' %4 %5 %6%7"_s.arg(text.place.x())
        .arg(text.place.y())
        .arg(text.text, text.font.family)
        .arg(text.font.points)
        .arg(text.font.bold)
        .arg(text.font.italic);
}

QString Described(const PrintedPicture& picture) {
    return u"picture "_s + Described(picture.place);
}

/// Every item of every page, a line each.
QStringList Described(const PrintedPages& pages) {
    QStringList lines{Described(QRectF(QPointF(), pages.space))};
    for (const PrintedPage& page : pages.pages) {
        lines << u"page"_s;
        for (const PrintedItem& item : page.items) {
            lines << std::visit([](const auto& drawn) { return Described(drawn); }, item);
        }
    }
    return lines;
}

/// Without the time at which a document was made.
QByteArray Timeless(const QByteArray& pdf) {
    static const QRegularExpression time(u"\\(D:[^)]*\\)"_s);
    return QString::fromLatin1(pdf).replace(time, u"()"_s).toLatin1();
}

QByteArray Content(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QPageLayout Layout(QPageSize::PageSizeId size, QPageLayout::Orientation orientation,
                   double margin) {
    return {QPageSize(size), orientation, QMarginsF(margin, margin, margin, margin)};
}

class PreviewTest : public WindowTest {
protected:
    void Begin(const Start& start = {}, std::chrono::milliseconds shownAtLeast = 0ms) {
        Open(start);
        BeginWith(m_printer, shownAtLeast);
    }
    void BeginWith(PrinterInterface& printer, std::chrono::milliseconds shownAtLeast = 0ms) {
        m_commands = std::make_unique<PrintCommands>(
            Window(), printer, frmPrint::Pace{.shownAtLeast = shownAtLeast, .yield = {}},
            [this](QWidget&, const QString& name, const QStringList& filters) {
                m_proposed = name;
                m_filters = filters;
                return ExportFile{.name = m_file, .filter = filters.value(0)};
            });
    }
    void ShowPreview() { Window().Form().mnuFilePrintPreview->trigger(); }
    void Export(const QString& file) {
        m_file = file;
        Window().Form().mnuFileExportPdf->trigger();
    }
    void Print() {
        Window().Form().mnuFilePrint->trigger();
        ASSERT_TRUE(WaitForEnd());
    }
    bool WaitForEnd() {
        return WaitFor([this] { return !m_commands->IsBusy(); });
    }
    void FillRows(int count) {
        Fill(u"cboLoanName", u"Our home");
        for (int row = 0; row < count; ++row) {
            EnterText(SheetToWrite(), {FieldId::Who, Row{row}},
                      u"Bank %1 of the far prairie 🏦 "_s.arg(row).repeated(12).trimmed());
        }
    }
    FakePrinter& Printer() { return m_printer; }
    PrintCommands& Commands() { return *m_commands; }
    const QString& Proposed() const { return m_proposed; }
    const QStringList& Filters() const { return m_filters; }
    QString In(const QString& name) const { return m_folder.filePath(name); }
    QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files); }

private:
    QTemporaryDir m_folder;
    FakePrinter m_printer;
    QString m_file; ///< what the user chooses
    QString m_proposed;
    QStringList m_filters;
    std::unique_ptr<PrintCommands> m_commands;
};

TEST_F(PreviewTest, PreviewFileAndPaperHaveTheSamePages) {
    const std::vector<QPageLayout> table{
        Layout(QPageSize::Letter, QPageLayout::Portrait, 18),
        Layout(QPageSize::Letter, QPageLayout::Landscape, 18),
        Layout(QPageSize::A4, QPageLayout::Portrait, 100),
        Layout(QPageSize::A5, QPageLayout::Landscape, 36), // several pages
    };
    Begin();
    FillFirstOffer();
    FillRows(4);
    for (const QPageLayout& page : table) {
        Printer().page = page;
        Printer().space = SpaceOf(page);
        ShowPreview();
        const QString file = In(u"report.pdf"_s);
        Export(file);
        Print();
        const PrintedPages& paper = Printer().printed.back();
        EXPECT_EQ(Described(Printer().previewed.back()), Described(paper));
        const PdfSettings settings{.title = u"Our home"_s,
                                   .creator = QString::fromUtf8(VersionRecord::ProductName),
                                   .layout = page};
        EXPECT_TRUE(Timeless(Content(file)) == Timeless(PdfOf(paper, settings)));
        EXPECT_EQ(PageCount(file), static_cast<qsizetype>(paper.pages.size()));
    }
    EXPECT_GT(Printer().printed.back().pages.size(), 1U);
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(PreviewTest, TheFieldBeingEditedIsStoredFirst) {
    Begin();
    Enter(u"txtLoanAmount");
    Type(u"2500");
    ShowPreview();
    EXPECT_EQ(Sheet().LoanAmount(), Money::FromDouble(2500));
    EXPECT_TRUE(TextsOf(Printer().previewed.at(0).pages.at(0)).contains(u"$2,500.00"));
    EXPECT_EQ(Text(u"txtLoanAmount"), u"2500");
    Edit(u"txtLoanAmount").selectAll();
    Type(u"2600");
    Export(In(u"report.pdf"_s));
    EXPECT_TRUE(PageText(In(u"report.pdf"_s), 1).contains(u"$2,600.00"));
    EXPECT_EQ(Announced(), u"Saved as “%1”."_s.arg(In(u"report.pdf"_s)));
}

TEST_F(PreviewTest, ARefusedFieldStopsThem) {
    Begin();
    Enter(u"txtInterestRate(0)");
    Type(u"1.2.3");
    ShowPreview();
    EXPECT_EQ(SettledMessages().size(), 1);
    Messages().Clear();
    Export(In(u"report.pdf"_s));
    EXPECT_EQ(SettledMessages().size(), 1);
    EXPECT_TRUE(Printer().previewed.empty());
    EXPECT_EQ(Proposed(), QString());
    EXPECT_TRUE(Files().isEmpty());
    EXPECT_EQ(Text(u"txtInterestRate(0)"), u"1.2.3");
}

TEST_F(PreviewTest, PrintingFromItIsThatOfTheMenu) {
    struct {
        const char* why;
        bool answer;
        PrintOutcome chance;
        PrintOutcome outcome;
        bool closes;
        std::size_t printed;
        QString reported;
    } const table[]{
        {"printed", true, {}, {}, true, 1, {}},
        {"cancelled", false, {}, {}, false, 0, {}},
        {"no printer",
         true,
         {PrintFault::NoPrinter},
         {},
         false,
         0,
         GetResourceText(TextNumber::NoPrinter)},
        {"refused later",
         true,
         {},
         {PrintFault::NoServer},
         true,
         0,
         GetResourceText(TextNumber::NoPrintServer)},
    };
    Begin();
    for (const auto& row : table) {
        Printer().answer = row.answer;
        Printer().chance = row.chance;
        Printer().outcome = row.outcome;
        Printer().printed.clear();
        bool closes = false;
        Printer().whilePreviewing = [&](QWidget& parent, const Preview& preview) {
            closes = preview.print(parent);
            EXPECT_FALSE(Commands().IsBusy()) << row.why;
            return closes;
        };
        ShowPreview();
        EXPECT_EQ(closes, row.closes) << row.why;
        EXPECT_EQ(Commands().IsBusy(), row.closes) << row.why;
        ASSERT_TRUE(WaitForEnd());
        EXPECT_EQ(Printer().printed.size(), row.printed) << row.why;
        EXPECT_EQ(SettledMessages(),
                  row.reported.isEmpty() ? QStringList() : QStringList{row.reported})
            << row.why;
        Messages().Clear();
    }
}

TEST_F(PreviewTest, AFailureOfThePrintDialogLeavesThePreviewOpen) {
    Begin();
    Printer().whileAsking = [] { throw std::runtime_error("no printing system"); };
    Printer().whilePreviewing = [&](QWidget& parent, const Preview& preview) {
        return preview.print(parent);
    };
    ShowPreview();
    EXPECT_FALSE(Commands().IsBusy());
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(PreviewTest, TheyWaitForTheJob) {
    Begin({}, 1h);
    Window().Form().mnuFilePrint->trigger();
    EXPECT_TRUE(Commands().IsBusy());
    ShowPreview();
    Export(In(u"report.pdf"_s));
    EXPECT_TRUE(Printer().previewed.empty());
    EXPECT_EQ(Proposed(), QString());
    Window().findChild<frmPrint*>()->reject();
    ASSERT_TRUE(WaitForEnd());
}

TEST_F(PreviewTest, APageWithoutRoomIsReported) {
    Begin();
    Printer().page = Layout(QPageSize::Letter, QPageLayout::Portrait, 300);
    const QStringList reported{GetResourceText(TextNumber::MarginsTooWide)};
    ShowPreview();
    EXPECT_TRUE(Printer().previewed.at(0).pages.empty());
    EXPECT_EQ(SettledMessages(), reported);
    Messages().Clear();
    Export(In(u"report.pdf"_s));
    EXPECT_EQ(SettledMessages(), reported);
    EXPECT_TRUE(Files().isEmpty());
}

TEST_F(PreviewTest, AFileThatCannotBeSavedIsReportedAndNothingIsLeft) {
    const QString device = u"/dev/full"_s;
    const QString folder = In(u"missing/report.pdf"_s);
    const QString longName = In(QString(300, u'x'));
    struct {
        QString file;
        QString reported; // its beginning
    } const table[]{
        {QString(), QString()}, // cancelled
        {folder, GetResourceText(TextNumber::FileNoFolder).arg(folder)},
        {device, GetResourceText(TextNumber::FileIsNone).arg(device)},
        {longName, GetResourceText(TextNumber::FileNotSaved).arg(longName) + u"\n\n"_s},
    };
    Begin();
    for (const auto& row : table) {
        Export(row.file);
        EXPECT_TRUE(SettledMessages().join(u'|').startsWith(row.reported))
            << row.reported.toStdString();
        EXPECT_EQ(SettledMessages().isEmpty(), row.reported.isEmpty());
        EXPECT_EQ(Announced(), u"");
        Messages().Clear();
    }
    EXPECT_TRUE(Files().isEmpty());
}

TEST_F(PreviewTest, TheyNameTheWorksheetInBothLanguages) {
    struct {
        int language;
        QStringView worksheet;
        QStringView title;
        QStringView file;
    } const table[]{
        {English, u"Our home", u"Print Preview: Our home", u"Our home.pdf"},
        {English, u" ", u"Print Preview: Worksheet", u"Worksheet.pdf"},
        {Spanish, u"Casa", u"Vista previa: Casa", u"Casa.pdf"},
        {Spanish, u" ", u"Vista previa: Hoja de trabajo", u"Hoja de trabajo.pdf"},
    };
    Begin();
    for (const auto& row : table) {
        SwitchLanguage(row.language);
        Fill(u"cboLoanName", row.worksheet);
        ShowPreview();
        EXPECT_EQ(Printer().titles.back(), row.title);
        Export(QString());
        EXPECT_EQ(Proposed(), row.file);
        EXPECT_EQ(Filters(), QStringList{u"PDF (*.pdf)"_s});
    }
}

/// Qt's dialog, where no print server answers.
class PreviewWithoutPrinters : public PreviewTest {
protected:
    PreviewWithoutPrinters() { qputenv("CUPS_SERVER", "/nonexistent/server"); }
    ~PreviewWithoutPrinters() override { qunsetenv("CUPS_SERVER"); }
    Q_DISABLE_COPY_MOVE(PreviewWithoutPrinters)

    void Look(const std::function<void(QPrintPreviewDialog&)>& look) {
        const AnswerTo<QPrintPreviewDialog> answer([&](QPrintPreviewDialog& dialog) {
            look(dialog);
            dialog.close();
        });
        ShowPreview();
        EXPECT_EQ(answer.Count(), 1);
    }
    static QAction* Named(const QPrintPreviewDialog& dialog, const QString& text) {
        for (QAction* action : dialog.findChildren<QAction*>()) {
            if (action->text() == text) {
                return action;
            }
        }
        throw std::runtime_error("there is no action " + text.toStdString());
    }
};

TEST_F(PreviewWithoutPrinters, ItShowsThePageOfAFileAndKeepsChanges) {
    Begin();
    SystemPrinter printer(GetResourceText);
    BeginWith(printer);
    FillFirstOffer();
    FillRows(4);
    int lying = 0;
    const QPageLayout upright = PageOfFile(QLocale(), QPageLayout::Portrait);
    Look([&](QPrintPreviewDialog& dialog) {
        EXPECT_TRUE(dialog.printer()->pageLayout().isEquivalentTo(upright));
        auto& pages = *dialog.findChild<QPrintPreviewWidget*>();
        EXPECT_EQ(pages.pageCount(), 1);
        Named(dialog, u"Landscape"_s)->trigger();
        lying = pages.pageCount();
        EXPECT_GT(lying, 1);
    });
    Look([&](QPrintPreviewDialog& dialog) {
        EXPECT_EQ(dialog.printer()->pageLayout().orientation(), QPageLayout::Landscape);
        EXPECT_EQ(dialog.findChild<QPrintPreviewWidget*>()->pageCount(), lying);
    });
    Export(In(u"report.pdf"_s));
    EXPECT_EQ(PageCount(In(u"report.pdf"_s)), lying);
    EXPECT_TRUE(SettledMessages().isEmpty());
}

TEST_F(PreviewWithoutPrinters, ItsPrintSaysThatNothingCanPrint) {
    Begin();
    SystemPrinter printer(GetResourceText);
    BeginWith(printer);
    Look([&](QPrintPreviewDialog& dialog) {
        Named(dialog, u"Print"_s)->trigger();
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(SettledMessages(), QStringList{GetResourceText(TextNumber::NoPrintServer)});
    });
    EXPECT_FALSE(Commands().IsBusy());
}

TEST_F(PreviewWithoutPrinters, ItIsNamedForReadersAndKeysInBothLanguages) {
    struct {
        int language;
        QStringView print;
        QStringList fields; // sorted
    } const table[]{
        {English, u"Print", {u"Page"_s, u"Zoom"_s}},
        {Spanish, u"Imprimir", {u"Ampliación"_s, u"Página"_s}},
        {English, u"Print", {u"Page"_s, u"Zoom"_s}},
    };
    Begin();
    SystemPrinter printer(GetResourceText);
    BeginWith(printer);
    for (const auto& row : table) {
        SwitchLanguage(row.language);
        Look([&](QPrintPreviewDialog& dialog) {
            EXPECT_EQ(dialog.property("helpTopic").toInt(), 1141);
            EXPECT_EQ(Named(dialog, row.print.toString())->shortcut(),
                      QKeySequence(QKeySequence::Print));
            const auto& bar = *dialog.findChild<QToolBar*>();
            QStringList fields;
            for (const auto* field : bar.findChildren<QLineEdit*>()) {
                fields << field->accessibleName();
            }
            fields.sort();
            EXPECT_EQ(fields, row.fields);
            for (const QAction* action : bar.actions()) {
                const QWidget* button = bar.widgetForAction(const_cast<QAction*>(action)); // NOLINT
                if (!action->text().isEmpty()) {
                    EXPECT_EQ(button->focusPolicy(), Qt::TabFocus) << action->text().toStdString();
                }
            }
        });
    }
}

} // namespace
