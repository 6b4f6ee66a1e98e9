#include "CompareFixture.h"

#include "ComparisonOfWorksheet.h"
#include "Drawing.h"
#include "DrawnItems.h"
#include "EnterValues.h"
#include "FigureColumns.h"
#include "FigureTable.h"
#include "PagePainter.h"
#include "TableText.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QTabWidget>

using quend::printing::DrawDocument;

namespace {

quend::printing::PrintedPages PagesOf(const DrawDocument& draw) {
    const quend::printing::FontMetrics metrics;
    const auto drawing = draw({.space = QSizeF(9000, 13000),
                               .metrics = &metrics,
                               .font = {.family = QApplication::font().family(), .points = 9},
                               .legalNotice = {}});
    return quend::printing::DrawWhole(*drawing);
}

} // namespace

CompareTest::CompareTest() = default;
CompareTest::~CompareTest() { m_commands.reset(); }

CompareWorld CompareTest::World() {
    return {.print =
                [this](QWidget& parent, const QString& title, const DrawDocument& draw) {
                    EXPECT_EQ(&parent, CompareWindow());
                    m_outside.printed << title;
                    const auto pages = PagesOf(draw).pages;
                    m_outside.pages = pages.size();
                    m_outside.texts.clear();
                    for (const auto& page : pages) {
                        m_outside.texts << TextsOf(page);
                    }
                },
            .exportPdf =
                [this](const QString& file, const QString&, const DrawDocument& draw) {
                    m_outside.pdfs << file;
                    m_outside.pages = PagesOf(draw).pages.size();
                    return m_outside.pdfFault;
                },
            .askForFile =
                [this](QWidget&, const QString& name, const QStringList& filters) {
                    m_outside.suggested = name;
                    m_outside.filters = filters;
                    return m_outside.file;
                },
            .restoreGeometry = [this](QWidget&) { ++m_outside.restored; },
            .saveGeometry = [this](const QWidget&) { ++m_outside.saved; },
            .restoreColumns = [this] { return m_outside.columns; },
            .saveColumns = [this](const QByteArray& columns) { m_outside.columns = columns; }};
}

void CompareTest::OpenMain(const Start& start) {
    EndCommands(); // before their window
    Open(start);
    m_commands = std::make_unique<CompareCommands>(Window(), World());
}

void CompareTest::EnterInto(FieldId field, Row row, QStringView text) {
    EnterText(SheetToWrite(), {field, row}, text.toString());
}

void CompareTest::FillSheet() {
    Worksheet& sheet = SheetToWrite();
    sheet.SetLoanName(QStringLiteral("Our new home"));
    sheet.SetLoanAmount(Money::FromDouble(200'000));
    sheet.SetLoanTerm(Months{360});
    sheet.SetCurrentInterestRate(Rate::FromFraction(0.0725));
    sheet.SetCurrentBalance(Money::FromDouble(200'000));
    sheet.SetCurrentActualPayment(Money::FromDouble(1'500));
    sheet.Store({FieldId::ActPaymentFrequency}, FrequencyCode(QStringLiteral("M")));
    struct Offer {
        const char16_t* who;
        double rate;
        double points;
        double payment;
    };
    Row row{0};
    for (const auto& [who, rate, points, payment] :
         {Offer{u"Cedar & Sons", 0.06, 0, 2'500}, Offer{u"Lakeside", 0.055, 2, 0},
          Offer{u"No rate", 0, 0, 0}}) {
        EnterOffer(sheet, row,
                   {{FieldId::Who, QString::fromUtf16(who)},
                    {FieldId::InterestRate, Rate::FromFraction(rate)},
                    {FieldId::Points, Percent::FromPercent(points)},
                    {FieldId::Term, Months{360}},
                    {FieldId::Frequency, FrequencyCode(QStringLiteral("M"))},
                    {FieldId::ActualPayment, Money::FromDouble(payment)}});
        ++row.value;
    }
    sheet.ClearDirty();
    Settle();
    Messages().Clear();
}

void CompareTest::OpenCompare(const Start& start) {
    OpenMain(start);
    FillSheet();
    PressCtrlK();
    User().Activate();
}

void CompareTest::PressCtrlK() {
    Press(Qt::Key_K, Qt::ControlModifier);
    Settle();
}

QWidget* CompareTest::CompareWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == u"frmCompare") {
            return window;
        }
    }
    return nullptr;
}

void CompareTest::ShowPage(int page) {
    User().Get<QTabWidget>(u"tabPages").setCurrentIndex(page);
    Settle();
}

QAbstractItemModel& CompareTest::Table(QStringView name) {
    return *User().Get<quend::compare::FigureTable>(name).model();
}

QString CompareTest::Cell(int row, Figure figure) {
    return Table(u"tblCosts").index(row, static_cast<int>(figure)).data().toString();
}

QStringList CompareTest::Column(Figure figure) {
    QStringList cells;
    for (int row = 0; row < Table(u"tblCosts").rowCount(); ++row) {
        cells << Cell(row, figure);
    }
    return cells;
}

QStringList CompareTest::Headings(QStringView table) {
    QStringList headings;
    const QAbstractItemModel& model = Table(table);
    for (int column = 0; column < model.columnCount(); ++column) {
        headings << quend::compare::HeadingIn(model, column);
    }
    return headings;
}

QStringList CompareTest::TabTitles() {
    const auto& tabs = User().Get<QTabWidget>(u"tabPages");
    QStringList titles;
    for (int page = 0; page < tabs.count(); ++page) {
        titles << tabs.tabText(page).remove(u'&');
    }
    return titles;
}

quend::comparison::ComparisonResult CompareTest::Expected() {
    auto input = ToComparison(Sheet());
    input.years = Window().GetSettings().compareYears;
    input.choice = Window().GetSettings().comparePayments;
    input.monthlyPayment = Window().GetSettings().compareMonthly;
    return quend::comparison::Compare(input);
}

QString CompareTest::Currency(const std::optional<Money>& amount) const {
    return amount ? Sheet().Texts().Formats().Currency(*amount) : QString();
}
