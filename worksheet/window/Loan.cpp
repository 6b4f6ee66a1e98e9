#include "Loan.h"

#include "CalendarDate.h"
#include "Captions.h"
#include "DatePicker.h"
#include "FieldWidth.h"
#include "Language.h"
#include "LenderEdit.h"
#include "Lists.h"
#include "TextNumbers.h"
#include "TypedDate.h"
#include "ui_Loan.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QPainter>
#include <QScreen>

#include <utility>

namespace quend::window {

namespace {

/// Screen readers also find the edits inside some controls.
void NameInnerEdits(const Ui::Loan& form) {
    constexpr const char* number = "accessibleText";
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

DatePicker::Writing WritingOf(const Worksheet& worksheet) {
    const DisplayFormats& formats = worksheet.Texts().Formats();
    return {.locale = formats.Locale(),
            .first = QDate(FirstTypedYear, 1, 1),
            .last = ToCalendar(Date::Last()),
            .write = [&](const QDate& date) { return formats.ShortDate(FromCalendar(date)); },
            .read =
                [&](const QString& text) {
                    const auto date = ReadTypedDate(text, formats, worksheet.Today());
                    return date ? ToCalendar(*date) : QDate();
                },
            .parts = [&](const QString& text) { return DateParts(text, formats); }};
}

TermUnit UnitOf(const Settings& settings) {
    return settings.termInMonths ? TermUnit::Months : TermUnit::Years;
}

} // namespace

Loan::Loan(const World& world, Settings settings)
    : m_settings(std::move(settings)), m_ui(FormOf(*this)), m_messages(*world.messages),
      m_report(m_messages), m_controls(ControlsOf(*this)),
      m_display(m_controls, {.raised = [this] { m_notice.Start(); },
                             .refused = [this] { m_notice.TellRefused(); },
                             .sorted = [this](SortOrder order) { m_offers.ShowSortOrder(order); },
                             .offerShown = [this] { ShowHint(); }}),
      m_worksheet(m_display, {DisplayFormats(world.locale), m_settings.termInMonths}, world.today),
      m_columns(*m_ui->picHeadings, m_controls),
      m_rows({m_ui->picScroll, m_ui->picCanvas, m_ui->vsbLoans}, m_worksheet, m_controls,
             m_columns),
      m_notice(*this, m_worksheet, m_messages, [this] { m_worksheet.ClearRaisedMarks(); }),
      m_discipline(m_worksheet, m_controls, m_rows, m_messages),
      m_handlers(m_worksheet, m_controls, m_discipline), m_focus(m_handlers, m_controls, m_report),
      m_offers(*this), m_values(m_worksheet, m_controls, m_focus, m_discipline),
      m_dragHandlers(m_values, m_controls), m_dragScroll(m_rows, *m_ui->picScroll),
      m_dragging({this, m_ui->picScroll}, m_dragHandlers, m_controls, m_dragScroll, m_report),
      m_clipboard(m_values, m_controls, m_messages, m_report),
      m_languages(*m_ui->mnuToolsLanguage, {m_ui->mnuToolsLanguageOpt1, m_ui->mnuToolsLanguageOpt2},
                  {.commit = [this] { return m_focus.Commit(); },
                   .guard = [this](const auto& handler) { m_report.Guard(handler); },
                   .renew = [this] { RenewLanguage(); }}),
      m_resultKeys(*this, m_controls, m_rows) {
    WireFields();
    m_report.Guard([this] { Form_Load(); });
}

Loan::~Loan() = default;

void Loan::Form_Load() {
    Language& language = Language::Instance();
    if (language.CurrentLanguage() < 1) {
        language.SettleDetectedLanguage();
    } else {
        m_report.Guard([&] { language.LoadLanguage(language.CurrentLanguage()); });
        language.SettleDetectedLanguage(); // replaces the number of a language that does not exist
    }
    m_toolkitTexts.Renew();
    m_languages.MarkCurrent();
    m_rows.CreateRows(Row{m_settings.loansDisplayed});
    ApplyCaptions();
    RefillLists();
    m_loaded = true;
    MeasureFields();
    resize(sizeHint());
    LoadWallpaper();
    m_ui->dtNextPayment->SetWriting(WritingOf(m_worksheet));
    m_worksheet.SetCurrentNextPayment(m_worksheet.Today());
    m_worksheet.SetPaymentNoticeShown(false);
    m_worksheet.ClearDirty();
}

/// A field that cannot be stored keeps the window open, so that nothing typed is lost.
bool Loan::Form_Unload() { return m_focus.Commit() && (!m_mayClose || m_mayClose()); }

void Loan::mnuFileExit_Click() { close(); }

void Loan::closeEvent(QCloseEvent* event) { event->setAccepted(Form_Unload()); }

void Loan::WireFields() {
    m_focus.Watch(*this);
    m_resultKeys.Watch(*this);
    m_wholeText.Watch(*this);
    for (const FieldRule& rule : LoanFields()) {
        WireChoice({rule.id});
    }
    connect(m_ui->dtNextPayment, &DatePicker::Picked, this,
            [this] { m_report.Guard([this] { m_handlers.dtNextPayment_Change(); }); });
    connect(&m_rows, &OfferRows::RowCreated, this, &Loan::WireRow);
    connect(m_ui->mnuFileExit, &QAction::triggered, this, &Loan::mnuFileExit_Click);
}

void Loan::WireRow(int row, const QWidget* controls) {
    m_focus.Watch(*controls);
    m_resultKeys.Watch(*controls);
    m_wholeText.Watch(*controls);
    m_dragging.Watch(Row{row});
    m_clipboard.Watch(Row{row});
    WireChoice({FieldId::Frequency, Row{row}});
    m_offers.Watch(*m_controls.ControlOf<LenderEdit>({FieldId::Who, Row{row}}), Row{row});
    const Field points{FieldId::FinancePoints, Row{row}};
    connect(m_controls.ControlOf<QCheckBox>(points), &QCheckBox::clicked, this,
            [this, points] { m_report.Guard([&] { m_handlers.Click(points); }); });
    ApplyRowCaptions(Row{row});
}

/// A choice from a list is stored at once, not only when the list is left.
void Loan::WireChoice(Field field) {
    if (RuleOf(field.id).IsChoice()) {
        connect(m_controls.ControlOf<QComboBox>(field), &QComboBox::activated, this,
                [this, field] { m_report.Guard([&] { m_handlers.Click(field); }); });
    }
}

void Loan::ApplyCaptions() { ApplyTexts(*this, UnitOf(m_settings)); }

void Loan::ApplyRowCaptions(Row row) {
    QWidget* controls = m_controls.ControlOf({FieldId::Who, row})->parentWidget();
    ApplyTexts(*controls, UnitOf(m_settings), row.value + 1);
}

void Loan::RefillLists() {
    const auto refill = [](QComboBox& list, void (&fill)(QComboBox&)) {
        list.clear();
        fill(list);
    };
    refill(*m_ui->cboLoanType, FillLoanTypeList);
    refill(*m_ui->cboCurPaymentFrequency, FillFrequencyList);
    refill(*m_ui->cboActPaymentFrequency, FillFrequencyList);
    for (Row row{0}; row <= m_rows.HighestOfferRow(); ++row.value) {
        refill(*m_controls.ControlOf<QComboBox>({FieldId::Frequency, row}), FillFrequencyList);
    }
    m_worksheet.ShowChoices();
}

void Loan::RenewLanguage() {
    m_toolkitTexts.Renew();
    ApplyCaptions();
    RefillLists();
    MeasureAgain();
}

/// A window that showed everything must still do so.
void Loan::MeasureAgain() {
    const bool showedAll = m_ui->scrWindow->ShowsAll();
    MeasureFields();
    if (showedAll) {
        const QSize missing = m_ui->scrWindow->Missing();
        ResizeBy(missing.expandedTo(QSize(0, 0)));
    }
}

void Loan::MeasureFields() {
    const DisplayFormats& formats = m_worksheet.Texts().Formats();
    for (const FieldRule& rule : LoanFields()) {
        if (auto* edit = m_controls.ControlOf<QLineEdit>({rule.id})) {
            edit->setMinimumWidth(LeastFieldWidth(rule.id, edit->fontMetrics(), formats));
        } else if (rule.IsChoice()) {
            // Qt keeps the minimum width of the first font.
            QWidget* list = m_controls.ControlOf({rule.id});
            list->setMinimumWidth(list->sizeHint().width());
        }
    }
    m_columns.Measure(formats);
    const int shown = m_rows.LoansDisplayed().value + 1;
    m_ui->picScroll->setMinimumSize(m_columns.MinimumWidth(), shown * m_columns.RowHeight());
    // For both: otherwise the higher one would take room above and below the other.
    m_ui->picScroll->setMaximumHeight(shown * m_columns.RowHeight() * 3 / 2);
    m_ui->vsbLoans->setMaximumHeight(m_ui->picScroll->maximumHeight());
    m_rows.Layout();
    m_ui->scrWindow->updateGeometry();
}

/// Fits the window to a changed number of rows.
void Loan::FitHeight() { ResizeBy({0, m_ui->scrWindow->Missing().height()}); }

/// Does not grow beyond the screen, unless it is larger already. A maximized or full-screen window
/// keeps its size.
void Loan::ResizeBy(QSize change) {
    if (!isMaximized() && !isFullScreen()) {
        const QSize frame = frameGeometry().size() - size();
        const QSize most = (screen()->availableGeometry().size() - frame).expandedTo(size());
        resize((size() + change).boundedTo(most));
    }
}

/// The hint below the rows disappears once every started offer is complete.
void Loan::ShowHint() {
    bool anyComplete = false;
    bool anyLacking = false;
    for (Row row{0}; row <= m_rows.HighestOfferRow(); ++row.value) {
        const auto isEmpty = [&](FieldId field) {
            return m_controls.ControlOf<QLineEdit>({field, row})->text().isEmpty();
        };
        const bool isComplete = !isEmpty(FieldId::PandI);
        const bool isBegun = !isEmpty(FieldId::InterestRate) || !isEmpty(FieldId::Term);
        anyComplete = anyComplete || isComplete;
        anyLacking = anyLacking || (isBegun && !isComplete);
    }
    m_ui->lblHint->setVisible(anyLacking || !anyComplete);
}

void Loan::ShowEdited() const {
    if (const auto edited = m_focus.Edited()) {
        m_worksheet.Show(*edited);
    }
}

void Loan::MarkNameMissing() { m_display.ShowMark({FieldId::LoanName}, Mark::Missing); }

void Loan::ClearNameMark() { m_display.ShowMark({FieldId::LoanName}, Mark::None); }

void Loan::ApplySettings(const Settings& settings) {
    const Settings before = std::exchange(m_settings, settings);
    if (before.wallpaper != m_settings.wallpaper) {
        LoadWallpaper();
    }
    m_worksheet.SetTermInMonths(m_settings.termInMonths);
    ApplyCaptions();
    m_rows.SetLoansDisplayed(Row{m_settings.loansDisplayed});
    MeasureFields();
    if (before.loansDisplayed != m_settings.loansDisplayed) {
        FitHeight();
    }
    Reenter();
}

void Loan::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (m_loaded && (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)) {
        // Queued, so that every control has handled the change first.
        QMetaObject::invokeMethod(this, &Loan::MeasureAgain, Qt::QueuedConnection);
    }
}

/// If the picture cannot be loaded, tells the user once and drops the path.
void Loan::LoadWallpaper() {
    if (!m_wallpaper.Load(m_settings.wallpaper)) {
        m_messages.Post(GetResourceText(TextNumber::PictureNotLoaded) + u' ' +
                        m_settings.wallpaper);
        m_settings.wallpaper.clear();
    }
    // Captions get the window's colour as background, so that they are readable over any picture.
    for (QLabel* caption : findChildren<QLabel*>()) {
        caption->setAutoFillBackground(m_wallpaper.IsSet());
    }
    update();
}

void Loan::paintEvent(QPaintEvent* event) {
    QMainWindow::paintEvent(event);
    QPainter painter(this);
    m_wallpaper.Paint(painter, size());
}

} // namespace quend::window
