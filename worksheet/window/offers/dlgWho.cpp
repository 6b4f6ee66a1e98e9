#include "dlgWho.h"

#include "Captions.h"
#include "FailureReport.h"
#include "Worksheet.h"
#include "ui_dlgWho.h"

#include <QKeyEvent>

namespace quend::window {

namespace {

/// The field is sized for this many characters and lines, and for at least half as many.
constexpr int Characters = 56;
constexpr int Lines = 6;

} // namespace

dlgWho::dlgWho(Worksheet& worksheet, OfferIndex whoOfferIndex, QWidget& parent,
               const FailureReport& report)
    : QDialog(&parent), m_ui(std::make_unique<Ui::dlgWho>()), m_worksheet(&worksheet),
      m_whoOfferIndex(whoOfferIndex) {
    m_ui->setupUi(this);
    Form_Load();
    m_ui->txtWho->installEventFilter(this);
    connect(m_ui->cmdOK, &QPushButton::clicked, this,
            [this, report] { report.Guard([this] { cmdOK_Click(); }); });
    connect(m_ui->cmdCancel, &QPushButton::clicked, this, &dlgWho::cmdCancel_Click);
}

dlgWho::~dlgWho() = default;

void dlgWho::Form_Load() {
    ApplyTexts(*this, TermUnit::Years);
    QPlainTextEdit& txtWho = *m_ui->txtWho;
    txtWho.setPlainText(m_worksheet->Offer(m_whoOfferIndex).Who());
    txtWho.moveCursor(QTextCursor::End);
    m_linesLoaded = LinesShown();
    const QSize room(txtWho.fontMetrics().averageCharWidth() * Characters,
                     txtWho.fontMetrics().lineSpacing() * Lines);
    txtWho.setMinimumSize(room / 2);
    resize((sizeHint() - txtWho.sizeHint() + room).expandedTo(minimumSizeHint()));
}

/// The text exactly as in the field; lines end with a paragraph separator.
QString dlgWho::LinesShown() const { return m_ui->txtWho->document()->toRawText(); }

void dlgWho::cmdOK_Click() {
    QString lines = LinesShown();
    if (lines != m_linesLoaded) {
        lines.replace(QChar::ParagraphSeparator, QStringLiteral("\r\n"));
        m_worksheet->Store({FieldId::Who, m_worksheet->RowOfOffer(m_whoOfferIndex)}, lines);
    }
    accept();
}

void dlgWho::cmdCancel_Click() { reject(); }

/// The return key triggers the OK button, as in any dialog; with Shift or Ctrl it ends a line.
bool dlgWho::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return QDialog::eventFilter(watched, event);
    }
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) {
        return false;
    }
    if ((key.modifiers() & (Qt::ShiftModifier | Qt::ControlModifier)) != 0) {
        m_ui->txtWho->insertPlainText(QStringLiteral("\n"));
        m_ui->txtWho->ensureCursorVisible();
    } else {
        m_ui->cmdOK->click();
    }
    return true;
}

} // namespace quend::window
