#include "frmAbout.h"

#include "Captions.h"
#include "Language.h"
#include "ProgramIcon.h"
#include "TextNumbers.h"
#include "VersionRecord.h"
#include "ui_frmAbout.h"

namespace quend::extras {

namespace {

/// Layouts give wrapped text too little height with large fonts.
void FixSize(QLabel& label) {
    constexpr int letters = 44;
    label.setFixedWidth(letters * label.fontMetrics().averageCharWidth());
    label.setFixedHeight(label.heightForWidth(label.width()));
}

} // namespace

frmAbout::frmAbout(QWidget& parent, const std::function<void()>& startSysInfo)
    : QDialog(&parent), m_ui(std::make_unique<Ui::frmAbout>()) {
    m_ui->setupUi(this);
    Form_Load();
    connect(m_ui->cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->cmdSysInfo, &QPushButton::clicked, this, startSysInfo);
}

frmAbout::~frmAbout() = default;

void frmAbout::Form_Load() {
    using namespace VersionRecord;
    ApplyTexts(*this, TermUnit::Years);
    setWindowTitle(GetResourceText(TextNumber::About).mid(1));
    QFont large = font();
    large.setBold(true);
    large.setPointSizeF(1.6 * large.pointSizeF());
    m_ui->lblTitle->setFont(large);
    m_ui->lblTitle->setText(QString::fromUtf8(ProductName));
    m_ui->lblVersion->setText(GetResourceText(TextNumber::Version) +
                              QStringLiteral(" %1.%2.%3").arg(Major).arg(Minor).arg(Revision));
    FixSize(*m_ui->lblDescription);
    FixSize(*m_ui->lblDisclaimer);
    constexpr int size = 64;
    m_ui->picIcon->setPixmap(ProgramIcon().pixmap(QSize(size, size), devicePixelRatio()));
    m_ui->cmdOK->setFocus();
}

} // namespace quend::extras
