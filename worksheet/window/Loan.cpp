#include "Loan.h"

#include "Captions.h"
#include "DatePicker.h"
#include "DateWriting.h"
#include "Language.h"
#include "LenderEdit.h"
#include "Lists.h"
#include "LoanParts.h"
#include "TextNumbers.h"
#include "ui_Loan.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>

#include <utility>

namespace quend::window {

namespace {

/// Screen readers also find the edits inside some controls.
void NameInnerEdits(const Ui::Loan& form) {
    constexpr const char* number = TextProperty::Name;
    form.cboLoanName->lineEdit()->setProperty(number, TextNumber::LoanNameEdit);
    form.dtNextPayment->findChild<QLineEdit*>()->setProperty(number,
                                                             form.dtNextPayment->property(number));
}

std::unique_ptr<Ui::Loan> FormOf(Loan& window) {
    auto form = std::make_unique<Ui::Loan>();
    form->setupUi(&window);
    NameInnerEdits(*form);
    // Keeps its space while hidden, so that the layout does not move.
    QSizePolicy policy = form->lblHint->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    form->lblHint->setSizePolicy(policy);
    // The window paints the background picture behind it; a scroll area would fill the background.
    form->centralWidget->setAutoFillBackground(false);
    return form;
}

ControlMap ControlsOf(const QWidget& window) {
    ControlMap controls;
    controls.Add(window, LoanFields());
    return controls;
}

TermUnit UnitOf(const Settings& settings) {
    return settings.termInMonths ? TermUnit::Months : TermUnit::Years;
}

/// The hint below the rows disappears once every started offer is complete.
void ShowHint(HintLine& hint, const ControlMap& controls, const OfferRows& rows) {
    bool anyComplete = false;
    bool anyLacking = false;
    for (Row row{0}; row <= rows.HighestOfferRow(); ++row.value) {
        const auto isEmpty = [&](FieldId field) {
            return controls.ControlOf<QLineEdit>({field, row})->text().isEmpty();
        };
        const bool isComplete = !isEmpty(FieldId::PandI);
        const bool isBegun = !isEmpty(FieldId::InterestRate) || !isEmpty(FieldId::Term);
        anyComplete = anyComplete || isComplete;
        anyLacking = anyLacking || (isBegun && !isComplete);
    }
    hint.ShowHint(anyLacking || !anyComplete);
}

} // namespace

Loan::Parts::Parts(Loan& window, const World& world, Settings initial)
    : settings(std::move(initial)), messages(*world.messages), report(messages),
      controls(ControlsOf(window)), hint(*window.m_ui->lblHint), title(window, worksheet),
      display(controls, {.raised = [this] { notice.Start(); },
                         .refused = [this] { notice.TellRefused(); },
                         .sorted = [this](SortOrder order) { offers.ShowSortOrder(order); },
                         .offerShown = [this] { ShowHint(hint, controls, rows); },
                         .changed =
                             [this, &window] {
                                 title.ShowLater();
                                 Q_EMIT window.WorksheetChanged();
                             }}),
      worksheet(display, {DisplayFormats(world.locale), settings.termInMonths}, world.today),
      columns(*window.m_ui->picHeadings, controls),
      rows({window.m_ui->picScroll, window.m_ui->picCanvas, window.m_ui->vsbLoans}, worksheet,
           controls, columns, report),
      size(window, *window.m_ui, controls, columns, rows, worksheet.Texts().Formats()),
      notice(window, worksheet, messages, [this] { worksheet.ClearRaisedMarks(); }),
      behaviour(worksheet, controls, rows, messages), handlers(worksheet, controls, behaviour),
      focus(handlers, controls, report), offers(window),
      values(worksheet, controls, focus, behaviour), dragHandlers(values, controls),
      dragScroll(rows, *window.m_ui->picScroll, report),
      dragging({&window, window.m_ui->picScroll}, worksheet, dragHandlers, controls, dragScroll,
               report),
      fileDrop(window, report), clipboard(values, controls, messages, report),
      languages(*window.m_ui->mnuToolsLanguage,
                {window.m_ui->mnuToolsLanguageOpt1, window.m_ui->mnuToolsLanguageOpt2},
                {.commit = [this] { return focus.Commit(); },
                 .renew = [&window] { window.RenewLanguage(); }},
                report),
      resultKeys(window, controls, rows), payoffAdvice(worksheet, controls, report),
      undo(window, worksheet, controls, focus, rows, notice), rowCommands(window, controls, focus),
      table(window, controls) {}

Loan::Loan(const World& world, Settings settings) : m_ui(FormOf(*this)) {
    m_parts = std::make_unique<Parts>(*this, world, std::move(settings));
    WireFields();
    m_parts->report.Guard([this] { Form_Load(); });
}

Loan::~Loan() = default;

void Loan::Form_Load() {
    Language& language = Language::Instance();
    if (language.CurrentLanguage() < 1) {
        language.SettleDetectedLanguage();
    } else {
        m_parts->report.Guard([&] { language.LoadLanguage(language.CurrentLanguage()); });
        language.SettleDetectedLanguage(); // replaces the number of a language that does not exist
    }
    m_parts->qtTexts.Renew();
    m_parts->languages.MarkCurrent();
    m_parts->rows.CreateRows(Row{m_parts->settings.loansDisplayed});
    ApplyCaptions();
    RefillLists();
    m_parts->loaded = true;
    m_parts->size.Measure();
    resize(sizeHint());
    LoadWallpaper();
    m_ui->dtNextPayment->SetWriting(DateWritingOf(m_parts->worksheet));
    m_parts->worksheet.SetCurrentNextPayment(m_parts->worksheet.Today());
    m_parts->worksheet.SetPaymentNoticeShown(false);
    m_parts->worksheet.ClearDirty();
    m_parts->undo.Empty();
}

/// A field that cannot be stored keeps the window open, so that nothing typed is lost.
bool Loan::Form_Unload() {
    return m_parts->focus.Commit() && (!m_parts->mayClose || m_parts->mayClose());
}

void Loan::mnuFileExit_Click() { close(); }

void Loan::closeEvent(QCloseEvent* event) {
    bool closes = false;
    m_parts->report.Guard([&] { closes = Form_Unload(); });
    event->setAccepted(closes);
}

void Loan::WireFields() {
    m_parts->focus.Watch(*this);
    m_parts->resultKeys.Watch(*this);
    m_parts->wholeText.Watch(*this);
    m_parts->payoffAdvice.Watch({FieldId::CurPayoffDate});
    m_parts->clipboard.WatchCurrentPayment();
    m_parts->clipboard.OnRowMenu(
        [this](QMenu& menu, Row row) { m_parts->rowCommands.AddTo(menu, row); });
    for (const FieldRule& rule : LoanFields()) {
        WireChoice({rule.id});
    }
    connect(m_ui->dtNextPayment, &DatePicker::Picked, this, [this] {
        m_parts->report.Guard([this] { m_parts->handlers.dtNextPayment_Change(); });
    });
    connect(&m_parts->rows, &OfferRows::RowCreated, this, &Loan::WireRow);
    connect(m_ui->mnuFileExit, &QAction::triggered, this, &Loan::mnuFileExit_Click);
}

void Loan::WireRow(int row, QWidget* controls) {
    m_parts->focus.Watch(*controls);
    m_parts->resultKeys.Watch(*controls);
    m_parts->wholeText.Watch(*controls);
    m_parts->payoffAdvice.Watch({FieldId::PayoffDate, Row{row}});
    m_parts->dragging.Watch(Row{row});
    m_parts->clipboard.Watch(Row{row});
    m_parts->undo.Watch(*controls);
    m_parts->rowCommands.Watch(Row{row}, *controls);
    m_parts->table.Watch(Row{row});
    WireChoice({FieldId::Frequency, Row{row}});
    m_parts->offers.Watch(*m_parts->controls.ControlOf<LenderEdit>({FieldId::Who, Row{row}}),
                          Row{row});
    const Field points{FieldId::FinancePoints, Row{row}};
    connect(m_parts->controls.ControlOf<QCheckBox>(points), &QCheckBox::clicked, this,
            [this, points] { m_parts->report.Guard([&] { m_parts->handlers.Click(points); }); });
    ApplyRowCaptions(Row{row});
    Q_EMIT WorksheetChanged();
}

/// A choice from a list is stored at once, not only when the list is left.
void Loan::WireChoice(Field field) {
    if (RuleOf(field.id).IsChoice()) {
        connect(m_parts->controls.ControlOf<QComboBox>(field), &QComboBox::activated, this,
                [this, field] { m_parts->report.Guard([&] { m_parts->handlers.Click(field); }); });
    }
}

void Loan::ApplyCaptions() {
    ApplyTexts(*this, UnitOf(m_parts->settings));
    ShowTitle();
}

void Loan::ApplyRowCaptions(Row row) {
    QWidget* controls = m_parts->controls.ControlOf({FieldId::Who, row})->parentWidget();
    ApplyTexts(*controls, UnitOf(m_parts->settings), row.value + 1);
}

void Loan::RefillLists() {
    const auto refill = [](QComboBox& list, void (&fill)(QComboBox&)) {
        list.clear();
        fill(list);
    };
    refill(*m_ui->cboLoanType, FillLoanTypeList);
    refill(*m_ui->cboCurPaymentFrequency, FillFrequencyList);
    refill(*m_ui->cboActPaymentFrequency, FillFrequencyList);
    for (Row row{0}; row <= m_parts->rows.HighestOfferRow(); ++row.value) {
        refill(*m_parts->controls.ControlOf<QComboBox>({FieldId::Frequency, row}),
               FillFrequencyList);
    }
    m_parts->worksheet.ShowChoices();
}

void Loan::RenewLanguage() {
    m_parts->qtTexts.Renew();
    ApplyCaptions();
    RefillLists();
    m_parts->size.MeasureAgain();
    Q_EMIT LanguageChanged();
}

Worksheet& Loan::GetWorksheet() { return m_parts->worksheet; }

OfferRows& Loan::Rows() { return m_parts->rows; }

MessageQueue& Loan::GetMessages() { return m_parts->messages; }

const FailureReport& Loan::Report() const { return m_parts->report; }

const Settings& Loan::GetSettings() const { return m_parts->settings; }

void Loan::OnUnload(std::function<bool()> mayClose) { m_parts->mayClose = std::move(mayClose); }

void Loan::OnNeverEnding(std::function<QString(Row)> advice) {
    m_parts->payoffAdvice.Ask(std::move(advice));
}

void Loan::OnFindPayment(std::function<void(Field)> find) {
    m_parts->clipboard.OnFindPayment(std::move(find));
}

void Loan::OnFileDropped(std::function<void(const QString&)> open) {
    m_parts->fileDrop.OnDropped(std::move(open));
}

bool Loan::Commit() { return m_parts->focus.Commit(); }

void Loan::ForgetSteps() { m_parts->undo.Empty(); }

void Loan::Reenter() { m_parts->focus.Reenter(); }

void Loan::ShowEdited() const {
    if (const auto edited = m_parts->focus.Edited()) {
        m_parts->worksheet.Show(*edited);
    }
}

void Loan::MarkNameMissing() { m_parts->display.ShowMark({FieldId::LoanName}, Mark::Missing); }

void Loan::ClearNameMark() { m_parts->display.ShowMark({FieldId::LoanName}, Mark::None); }

void Loan::ShowTitle() { m_parts->title.Show(); }

void Loan::Announce(const QString& text) { m_parts->hint.Announce(text); }

void Loan::ApplySettings(const Settings& settings) {
    const Settings before = std::exchange(m_parts->settings, settings);
    if (before.wallpaper != m_parts->settings.wallpaper) {
        LoadWallpaper();
    }
    m_parts->worksheet.SetTermInMonths(m_parts->settings.termInMonths);
    ApplyCaptions();
    m_parts->rows.SetLoansDisplayed(Row{m_parts->settings.loansDisplayed});
    m_parts->size.Measure();
    if (before.loansDisplayed != m_parts->settings.loansDisplayed) {
        m_parts->size.FitHeight();
    }
    Reenter();
}

void Loan::KeepComparison(int years, comparison::PaymentChoice payments, Money monthly) {
    m_parts->settings.compareYears = years;
    m_parts->settings.comparePayments = payments;
    m_parts->settings.compareMonthly = monthly;
}

void Loan::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (m_parts && m_parts->loaded &&
        (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)) {
        // Queued, so that every control has handled the change first.
        QMetaObject::invokeMethod(
            this, [this] { m_parts->size.MeasureAgain(); }, Qt::QueuedConnection);
    }
}

/// If the picture cannot be loaded, tells the user once and drops the path.
void Loan::LoadWallpaper() {
    if (!m_parts->wallpaper.Load(m_parts->settings.wallpaper)) {
        m_parts->messages.Post(GetResourceText(TextNumber::PictureNotLoaded) + u' ' +
                               m_parts->settings.wallpaper);
        m_parts->settings.wallpaper.clear();
    }
    // Captions get the window's colour as background, so that they are readable over any picture.
    for (QLabel* caption : findChildren<QLabel*>()) {
        caption->setAutoFillBackground(m_parts->wallpaper.IsSet());
    }
    update();
}

void Loan::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    QPainter painter(this);
    m_parts->wallpaper.Paint(painter, size());
}

} // namespace quend::window
