#include "CompareCommands.h"

#include "FailureReport.h"
#include "Loan.h"
#include "LoanForm.h"
#include "WhyLeftOut.h"
#include "Worksheet.h"
#include "frmCompare.h"
#include "frmFindPayment.h"

#include <QAction>

#include <initializer_list>
#include <utility>

namespace quend::compare {

namespace {

/// The offer at a place, as a row of the main window.
Row RowAt(const Worksheet& sheet, int place) {
    return sheet.RowOfOffer(OfferIndex{static_cast<std::size_t>(place) - 1});
}

/// The loan of a row of the main window; that held today for Field::NoRow.
int PlaceOf(const Worksheet& sheet, Row row) {
    return row == Field::NoRow ? CurrentLoanPlace
                               : static_cast<int>(sheet.OfferIndexOfRow(row).value) + 1;
}

/// For a question beside the comparison window, whose worksheet must change only when it shows it.
ComparedWorksheet ReadOnce(Loan& window) {
    ComparisonReader reader(window);
    reader.Read();
    return reader.Compared();
}

/// The keys of these entries work in the other window, too, for what is entered there.
void ShareKeys(std::initializer_list<QAction*> entries, QWidget& other) {
    for (QAction* entry : entries) {
        auto* key = new QAction(&other);
        key->setShortcuts(entry->shortcuts());
        QObject::connect(key, &QAction::triggered, entry, &QAction::trigger);
        other.addAction(key);
    }
}

} // namespace

CompareCommands::CompareCommands(Loan& window, CompareWorld world)
    : m_window(&window), m_world(std::move(world)), m_reader(window) {
    const Ui::Loan& form = window.Form();
    const auto wire = [this](QAction& entry, void (CompareCommands::*handler)()) {
        entry.setEnabled(true);
        connect(&entry, &QAction::triggered, this,
                [this, handler] { m_window->Report().Guard([&] { (this->*handler)(); }); });
    };
    wire(*form.mnuToolsCompare, &CompareCommands::mnuToolsCompare_Click);
    wire(*form.mnuToolsFindPayment, &CompareCommands::mnuToolsFindPayment_Click);
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this,
            [this] { m_window->Report().Guard([this] { ShowChanges(); }); });
    connect(&window, &Loan::WorksheetChanged, this, &CompareCommands::FollowWorksheet);
    window.installEventFilter(this);
    window.OnNeverEnding([this](Row row) { return Enough(row); });
    window.OnFindPayment([this](Field field) {
        FindPayment(PlaceOf(m_window->GetWorksheet(), field.row), *m_window);
    });
    connect(&window, &Loan::LanguageChanged, this, &CompareCommands::FollowLanguage);
}

CompareCommands::~CompareCommands() {
    m_window->OnNeverEnding({});
    m_window->OnFindPayment({});
}

/// The comparison window closes with the main window: a program without that would be left over,
/// because a refused entry may keep the comparison window open.
bool CompareCommands::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_window && event->type() == QEvent::Hide && !event->spontaneous()) {
        m_compare.reset();
    }
    return false;
}

/// What is being typed in the main window belongs to the worksheet.
void CompareCommands::mnuToolsCompare_Click() {
    if (!m_window->Commit()) {
        return;
    }
    m_reader.Read();
    if (!m_compare) {
        m_compare = std::make_unique<frmCompare>(*m_window, m_world);
        ShareKeys({m_window->Form().mnuEditUndo, m_window->Form().mnuEditRedo}, *m_compare);
        connect(m_compare.get(), &frmCompare::CostsEntered, this, &CompareCommands::EnterCosts);
        connect(m_compare.get(), &frmCompare::ChoiceChanged, this,
                &CompareCommands::FollowWorksheet);
    }
    m_compare->Show(m_reader.Compared());
    m_compare->Present();
}

void CompareCommands::mnuToolsFindPayment_Click() {
    const auto places = PlacesToAskAbout(ReadOnce(*m_window));
    FindPayment(places.empty() ? CurrentLoanPlace : places.front(), *m_window);
}

/// The answer is stored as if it was typed: the same table of fields, the same checks.
void CompareCommands::FindPayment(int place, QWidget& parent) {
    if (!m_window->Commit()) {
        return;
    }
    Worksheet& sheet = m_window->GetWorksheet();
    const ComparedWorksheet compared = ReadOnce(*m_window);
    frmFindPayment dialog(compared, sheet, place, m_window->GetMessages(), &parent);
    if (dialog.exec() != QDialog::Accepted || !dialog.Answer().value) {
        return;
    }
    const FieldId field = dialog.Answer().field;
    const bool inRow = field == FieldId::ActualPayment || field == FieldId::InterestRate;
    sheet.Store(inRow ? Field{field, RowAt(sheet, dialog.Place())} : Field{field},
                *dialog.Answer().value);
    m_window->Reenter();
}

QString CompareCommands::Enough(Row row) {
    const Worksheet& sheet = m_window->GetWorksheet();
    return EnoughFor(ReadOnce(*m_window), PlaceOf(sheet, row), sheet.Texts().Formats());
}

void CompareCommands::FollowWorksheet() {
    if (m_compare && m_compare->isVisible() && !m_later.isActive()) {
        m_later.start(0);
    }
}

void CompareCommands::ShowChanges() {
    if (m_compare && m_compare->isVisible() && m_reader.Read()) {
        m_compare->Show(m_reader.Compared());
    }
}

void CompareCommands::FollowLanguage() {
    if (m_compare) {
        m_compare->RenewLanguage();
    }
}

void CompareCommands::EnterCosts(int place, Money costs) {
    m_window->Report().Guard([&] {
        Worksheet& sheet = m_window->GetWorksheet();
        sheet.Store({FieldId::Costs, RowAt(sheet, place)}, costs);
    });
}

} // namespace quend::compare
