#include "frmPrint.h"

#include "CMouse.h"
#include "Captions.h"
#include "Language.h"
#include "PrinterDoor.h"
#include "TextNumbers.h"
#include "ui_frmPrint.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QTimer>

#include <utility>

namespace {

std::unique_ptr<Ui::frmPrint> FormOf(frmPrint& window) {
    auto form = std::make_unique<Ui::frmPrint>();
    form->setupUi(&window);
    return form;
}

} // namespace

frmPrint::frmPrint(QWidget& owner, Job job, PrinterDoor& printer, Pace pace)
    : QDialog(&owner), m_ui(FormOf(*this)), m_owner(&owner), m_job(std::move(job)),
      m_printer(&printer), m_pace(std::move(pace)), m_tmrPrint(new QTimer(this)) {
    m_tmrPrint->setObjectName(QStringLiteral("tmrPrint"));
    m_tmrPrint->setInterval(m_pace.shownAtLeast);
    connect(m_tmrPrint, &QTimer::timeout, this, &frmPrint::tmrPrint_Timer);
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &frmPrint::cmdCancel_Click);
    Form_Load();
}

frmPrint::~frmPrint() = default;

void frmPrint::Form_Load() {
    m_ui->lblPrintingText->setText(GetResourceText(TextNumber::Printing) + m_job.loanName +
                                   QStringLiteral("..."));
    adjustSize();
    const QRect main = m_owner->frameGeometry();
    move(main.left() + (main.width() - width()) / 2, main.top() + (main.height() - height()) / 2);
    m_printCancelled = false;
}

/// Once it is on the screen, however the desktop gives it the keyboard.
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
    m_tmrPrint->start();
    m_drawing = true;
    const bool finished = DrawReport();
    m_drawing = false;
    if (m_unloaded) {
        Q_EMIT Unloaded();
    } else if (finished) {
        m_printFinished = true;
        if (!m_tmrPrint->isActive()) {
            Unload();
        }
    }
}

void frmPrint::ApplyPrintCaptions() { ApplyTexts(*this, TermUnit::Years); }

/// False when it was cancelled: nothing more is drawn then.
bool frmPrint::DrawReport() {
    for (const Report::Section section : Report::Sections) {
        (m_job.report.*section)();
        Yield();
        if (m_printCancelled) {
            return false;
        }
    }
    return true;
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
        Unload();
    }
}

void frmPrint::cmdCancel_Click() {
    if (m_unloaded) {
        return;
    }
    m_printCancelled = true;
    Unload();
}

void frmPrint::closeEvent(QCloseEvent* event) {
    event->accept();
    cmdCancel_Click();
}

void frmPrint::EndNow() {
    if (m_printFinished) {
        Unload();
    } else {
        cmdCancel_Click();
    }
}

/// While the report is being drawn the end is told only when that has come back.
void frmPrint::Unload() {
    if (std::exchange(m_unloaded, true)) {
        return;
    }
    m_tmrPrint->stop();
    hide();
    Form_Unload();
    if (!m_drawing) {
        Q_EMIT Unloaded();
    }
}

/// What was drawn for a cancelled job goes no further.
void frmPrint::Form_Unload() {
    if (!m_printCancelled) {
        m_job.report.PrintPageFooter();
        m_printer->Print(m_job.report.Pages());
    }
}
