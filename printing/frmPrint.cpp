#include "frmPrint.h"

#include "CMouse.h"
#include "Captions.h"
#include "FailureReport.h"
#include "Language.h"
#include "ui_frmPrint.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QTimer>

#include <exception>
#include <utility>

namespace quend::printing {

namespace {

std::unique_ptr<Ui::frmPrint> FormOf(frmPrint& window) {
    auto form = std::make_unique<Ui::frmPrint>();
    form->setupUi(&window);
    return form;
}

/// A name on one line; a long one is shortened in the middle, because names differ at the ends.
QString Shortened(const QString& name, const QFontMetrics& metrics) {
    constexpr int longest = 60; // characters of average width
    return metrics.elidedText(name, Qt::ElideMiddle, longest * metrics.averageCharWidth());
}

bool IsReturn(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

/// Runs a step of the job. Its failure becomes the job's outcome, which the command reports.
PrintOutcome OutcomeOf(const std::function<PrintOutcome()>& step) {
    try {
        return step();
    } catch (const std::exception& failure) {
        return {PrintFault::Failed, FailureDescription(failure)};
    }
}

} // namespace

frmPrint::frmPrint(QWidget& owner, Job job, PrinterInterface& printer, Pace pace)
    : QDialog(&owner), m_ui(FormOf(*this)), m_owner(&owner), m_job(std::move(job)),
      m_printer(&printer), m_pace(std::move(pace)), m_tmrPrint(new QTimer(this)) {
    m_tmrPrint->setObjectName(QStringLiteral("tmrPrint"));
    m_tmrPrint->setInterval(m_pace.shownAtLeast);
    connect(m_tmrPrint, &QTimer::timeout, this, &frmPrint::tmrPrint_Timer);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmPrint::cmdCancel_Click);
    m_ui->cmdCancel->installEventFilter(this);
    Form_Load();
}

frmPrint::~frmPrint() = default;

void frmPrint::Form_Load() {
    QLabel& message = *m_ui->lblPrintingText;
    message.setText(m_job.message.arg(Shortened(m_job.name, message.fontMetrics())));
    adjustSize();
    const QRect main = m_owner->frameGeometry();
    move(main.left() + (main.width() - width()) / 2, main.top() + (main.height() - height()) / 2);
    m_printCancelled = false;
}

/// Return is never Cancel here, whatever the desktop's rule for buttons: the Return that pressed
/// Print may be repeated or held while this window opens.
bool frmPrint::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && IsReturn(static_cast<const QKeyEvent&>(*event))) {
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void frmPrint::keyPressEvent(QKeyEvent* event) {
    if (!IsReturn(*event)) {
        QDialog::keyPressEvent(event);
    }
}

/// Runs once the window is visible, however the desktop gives it the focus.
void frmPrint::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!std::exchange(m_activated, true)) {
        QMetaObject::invokeMethod(this, &frmPrint::Form_Activate, Qt::QueuedConnection);
    }
}

void frmPrint::Form_Activate() {
    if (m_unloaded) {
        return;
    }
    CMouse mouse;
    mouse.SetPointer(MousePointer::Hourglass);
    ApplyPrintCaptions();
    m_printFinished = false;
    if (!m_endsSoon) {
        m_tmrPrint->start();
    }
    m_drawing = true;
    const PrintOutcome drawn = OutcomeOf([this] { return DrawDocument(); });
    m_drawing = false;
    if (m_unloaded) {
        Q_EMIT Unloaded();
    } else if (drawn.fault != PrintFault::None) {
        Arrived(drawn);
    } else {
        m_printFinished = true;
        if (!m_tmrPrint->isActive()) {
            Form_Unload();
        }
    }
}

void frmPrint::ApplyPrintCaptions() { ApplyTexts(*this, TermUnit::Years); }

/// Stops when it is cancelled.
PrintOutcome frmPrint::DrawDocument() {
    bool more = true;
    while (more && !m_printCancelled) {
        more = m_job.drawing->DrawNext();
        Yield();
    }
    return {};
}

void frmPrint::Yield() const {
    if (m_pace.yield) {
        m_pace.yield();
    } else {
        QCoreApplication::processEvents();
    }
}

void frmPrint::tmrPrint_Timer() {
    m_tmrPrint->stop();
    if (m_printFinished) {
        Form_Unload();
    }
}

void frmPrint::cmdCancel_Click() {
    if (m_unloaded) {
        return;
    }
    m_printCancelled = true;
    Form_Unload();
}

void frmPrint::closeEvent(QCloseEvent* event) {
    event->accept();
    cmdCancel_Click();
}

void frmPrint::EndSoon() {
    m_endsSoon = true;
    if (m_tmrPrint->isActive()) {
        tmrPrint_Timer();
    }
}

/// The pages of a cancelled job are not sent.
void frmPrint::Form_Unload() {
    if (m_printCancelled) {
        Unload();
    } else if (!m_handingOver.joinable()) {
        GiveToPrinter();
    }
}

void frmPrint::GiveToPrinter() {
    HandOver handOver;
    const PrintOutcome prepared = OutcomeOf([&]() -> PrintOutcome {
        m_job.drawing->Finish();
        handOver = m_printer->Document(m_job.drawing->Pages());
        return {};
    });
    if (prepared.fault != PrintFault::None) {
        Arrived(prepared);
        return;
    }
    m_handingOver = std::jthread([this, handOver = std::move(handOver)](std::stop_token stop) {
        const PrintOutcome outcome = OutcomeOf([&] { return handOver(stop); });
        QMetaObject::invokeMethod(
            this, [this, outcome] { Arrived(outcome); }, Qt::QueuedConnection);
    });
}

/// A cancelled job ends here, too, because only now nothing of it is running.
void frmPrint::Arrived(const PrintOutcome& outcome) {
    m_handingOver = {};
    if (m_printCancelled) {
        Q_EMIT Unloaded();
    } else {
        m_outcome = outcome;
        Unload();
    }
}

/// During drawing or sending, Unloaded is emitted only after that has returned.
void frmPrint::Unload() {
    if (std::exchange(m_unloaded, true)) {
        return;
    }
    m_tmrPrint->stop();
    hide();
    m_handingOver.request_stop();
    if (!m_drawing && !m_handingOver.joinable()) {
        Q_EMIT Unloaded();
    }
}

} // namespace quend::printing
