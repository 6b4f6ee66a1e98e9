#include "frmCompare.h"

#include "AmountRules.h"
#include "Answer.h"
#include "Captions.h"
#include "CompareExport.h"
#include "CompareTextNumbers.h"
#include "CostsPage.h"
#include "FailureReport.h"
#include "FigureTable.h"
#include "Language.h"
#include "Loan.h"
#include "MessageQueue.h"
#include "OverTimePage.h"
#include "SchedulePage.h"
#include "Worksheet.h"
#include "ui_frmCompare.h"

#include <QAccessibleWidget>
#include <QCloseEvent>
#include <QScopedValueRollback>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace quend::compare {

namespace {

/// At first the window is where it covers least of the other: beside or below it if the screen has
/// room, otherwise at the screen's lower right.
void PlaceBeside(QWidget& window, const QWidget& other) {
    constexpr QSize usual(880, 600);
    const QRect screen = other.screen()->availableGeometry();
    const QRect frame = other.frameGeometry();
    const QSize border = frame.size() - other.size();
    const QSize size = usual.expandedTo(window.minimumSizeHint()).boundedTo(screen.size() - border);
    const QSize whole = size + border;
    QPoint place(screen.right() + 1 - whole.width(), screen.bottom() + 1 - whole.height());
    if (frame.right() + whole.width() <= screen.right()) {
        place = {frame.right() + 1, frame.top()};
    } else if (frame.bottom() + whole.height() <= screen.bottom()) {
        place = {frame.left(), frame.bottom() + 1};
    }
    window.resize(size);
    window.move(place.x(), std::max(place.y(), screen.top()));
}

/// To screen readers a plain widget is no window.
QAccessibleInterface* AccessibleWindow(const QString& name, QObject* object) {
    const bool isThis = name == QLatin1StringView("quend::compare::frmCompare");
    return isThis ? new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Window)
                  : nullptr;
}

} // namespace

frmCompare::frmCompare(Loan& window, CompareWorld world)
    : m_ui(std::make_unique<Ui::frmCompare>()), m_window(&window), m_world(std::move(world)),
      m_costs(new CostsPage(window.GetWorksheet(), window.GetMessages())),
      m_overTime(new OverTimePage(window.GetWorksheet().Texts().Formats())),
      m_schedule(new SchedulePage(window.GetWorksheet().Texts().Formats())) {
    QAccessible::installFactory(AccessibleWindow); // once, however often
    m_ui->setupUi(this);
    setAttribute(Qt::WA_QuitOnClose, false);
    for (ComparePage* page : std::initializer_list<ComparePage*>{m_costs, m_overTime, m_schedule}) {
        m_ui->tabPages->addTab(page, QString());
    }
    m_monthly = std::make_unique<AmountEntry>(
        *m_ui->txtMonthly, AmountRules(window.GetWorksheet(), window.GetMessages()));
    Form_Load();
    WireChoice();
    WireCommands();
}

frmCompare::~frmCompare() {
    if (isVisible()) {
        KeepArrangement();
    }
}

void frmCompare::Form_Load() {
    RenewLanguage();
    PlaceBeside(*this, *m_window);
    m_world.restoreGeometry(*this);
    m_costs->RestoreColumns(m_world.restoreColumns());
    ShowChoice();
}

void frmCompare::KeepArrangement() const {
    m_world.saveGeometry(*this);
    m_world.saveColumns(m_costs->SaveColumns());
}

void frmCompare::WireChoice() {
    const auto keep = [this] { KeepChoice(); };
    connect(m_ui->udYears, &QSpinBox::valueChanged, this, keep);
    for (const QRadioButton* choice : {m_ui->optIntended, m_ui->optRequired, m_ui->optMonthly}) {
        connect(choice, &QRadioButton::toggled, this, [this](bool checked) {
            if (checked) {
                KeepChoice();
            }
        });
    }
    connect(m_monthly.get(), &AmountEntry::Entered, this, keep);
    connect(m_overTime, &OverTimePage::HorizonChanged, m_ui->udYears, &QSpinBox::setValue);
    connect(m_costs, &CostsPage::CostsEntered, this, &frmCompare::CostsEntered);
}

void frmCompare::WireCommands() {
    const auto wire = [this](QPushButton& button, void (frmCompare::*handler)()) {
        connect(&button, &QPushButton::clicked, this,
                [this, handler] { m_window->Report().Guard([&] { (this->*handler)(); }); });
    };
    wire(*m_ui->cmdCopy, &frmCompare::cmdCopy_Click);
    wire(*m_ui->cmdExport, &frmCompare::cmdExport_Click);
    wire(*m_ui->cmdPrint, &frmCompare::cmdPrint_Click);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QWidget::close);
}

ComparePage& frmCompare::Page() const {
    return *static_cast<ComparePage*>(m_ui->tabPages->currentWidget());
}

void frmCompare::Show(const ComparedWorksheet& worksheet) {
    m_worksheet = &worksheet;
    setWindowTitle(WindowTitle());
    m_ui->lblAnswer->setText(
        AnswerOf(worksheet, m_window->GetWorksheet().Texts().Formats()).join(u'\n'));
    ShowChoice();
    m_costs->Show(worksheet);
    m_overTime->Show(worksheet);
    m_schedule->Show(worksheet);
}

QString frmCompare::WindowTitle() const {
    const QString name = m_worksheet != nullptr ? m_worksheet->name.simplified() : QString();
    return name.isEmpty() ? GetResourceText(TextNumber::CompareTitleUnnamed)
                          : GetResourceText(TextNumber::CompareTitle).arg(name);
}

void frmCompare::Present() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void frmCompare::RenewLanguage() {
    ApplyTexts(*this, TermUnit::Years);
    for (int i = 0; i < m_ui->tabPages->count(); ++i) {
        m_ui->tabPages->setTabText(i, m_ui->tabPages->widget(i)->windowTitle());
    }
    ShowYearsUnit();
    if (m_worksheet != nullptr) {
        Show(*m_worksheet);
    }
}

void frmCompare::ShowYearsUnit() {
    m_ui->lblYearsUnit->setText(GetResourceText(
        m_ui->udYears->value() == 1 ? TextNumber::HorizonYear : TextNumber::HorizonYears));
}

/// Shows the settings, which may have changed elsewhere.
void frmCompare::ShowChoice() {
    const QScopedValueRollback showing(m_showingChoice, true);
    const Settings& settings = m_window->GetSettings();
    m_ui->udYears->setValue(settings.compareYears);
    m_ui->optIntended->setChecked(settings.comparePayments == PaymentChoice::Intended);
    m_ui->optRequired->setChecked(settings.comparePayments == PaymentChoice::Required);
    m_ui->optMonthly->setChecked(settings.comparePayments == PaymentChoice::Monthly);
    m_ui->txtMonthly->setEnabled(settings.comparePayments == PaymentChoice::Monthly);
    // A refused text is given up with the choice that it belongs to.
    if (settings.comparePayments != PaymentChoice::Monthly ||
        m_monthly->Value() != settings.compareMonthly) {
        m_monthly->SetValue(settings.compareMonthly);
    }
    ShowYearsUnit();
}

void frmCompare::KeepChoice() {
    if (m_showingChoice) {
        return;
    }
    const PaymentChoice payments = m_ui->optIntended->isChecked()   ? PaymentChoice::Intended
                                   : m_ui->optRequired->isChecked() ? PaymentChoice::Required
                                                                    : PaymentChoice::Monthly;
    m_window->KeepComparison(m_ui->udYears->value(), payments, m_monthly->Value());
    ShowChoice();
    Q_EMIT ChoiceChanged();
}

bool frmCompare::CommitEntries() { return m_monthly->Commit() && m_costs->CommitEntry(); }

void frmCompare::cmdCopy_Click() { Page().Table().Copy(); }

void frmCompare::cmdExport_Click() {
    if (!CommitEntries()) {
        return;
    }
    const QString fault =
        ExportPage(Page(), *this, m_world, m_window->GetWorksheet().Texts().Formats().Locale());
    if (!fault.isEmpty()) {
        m_window->GetMessages().Post(fault);
    }
}

void frmCompare::cmdPrint_Click() {
    if (!CommitEntries()) {
        return;
    }
    const ComparePage& page = Page();
    m_world.print(*this, page.Title(),
                  [&page](const printing::Paper& paper) { return page.Draw(paper); });
}

/// An entry that is refused keeps the window open, so that nothing typed is lost.
void frmCompare::closeEvent(QCloseEvent* event) {
    if (!CommitEntries()) {
        event->ignore();
        return;
    }
    KeepArrangement();
    event->accept();
}

} // namespace quend::compare
