// Any text as a worksheet name or as a text about a lender: what the store accepts is read back
// unchanged.

#include "EnterValues.h"
#include "Fuzzing.h"
#include "HostileTexts.h"
#include "Language.h"
#include "QuendNames.h"
#include "Sheet.h"
#include "StoreFolder.h"
#include "WorksheetStore.h"

#include <gtest/gtest.h>

namespace {

class WorksheetNameFuzz : public testing::Test {
protected:
    WorksheetNameFuzz() {
        Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), QStringLiteral("Loan"));
    }

    void Try(const std::string& input) const {
        // Half of a surrogate pair becomes U+FFFD.
        const QString text = QString::fromUtf8(TextOf(input).toUtf8());
        const WorksheetStore store(m_folder.Store());
        Sheet sheet;
        const bool nameFits = WorksheetStore::FaultOf(text) == NameFault::None;
        const QString name = nameFits ? text : QStringLiteral("any");
        const QString who = WorksheetStore::CanHoldLender(text) ? text : QString();
        sheet.worksheet.SetLoanName(name);
        sheet.worksheet.Store({FieldId::Points, Row{0}}, Percent::FromPercent(1.0));
        EnterText(sheet.worksheet, {FieldId::Who, Row{0}}, who);
        store.Save(sheet.worksheet);
        EXPECT_EQ(store.Names(), QStringList(name));
        Sheet again;
        EXPECT_TRUE(store.Load(again.worksheet, name, [](Row) {}).failures.empty());
        EXPECT_EQ(again.worksheet.LoanName(), name);
        EXPECT_EQ(std::as_const(again.worksheet).OfferOfRow(Row{0}).Who(), who);
        EXPECT_NO_THROW(store.Delete(name));
        EXPECT_TRUE(store.Names().isEmpty());
    }

    const FuzzTarget m_target{"text", [this](const std::string& input) { Try(input); }};

private:
    StoreFolder m_folder;
};

TEST_F(WorksheetNameFuzz, TheCorpusComesBackOrIsRefused) { m_target.TryCorpus(); }

TEST_F(WorksheetNameFuzz, AnyTextComesBackOrIsRefused) {
    m_target.TryAtRandom([](FuzzRandom& random) {
        return Patched(random, HostilePieces) +
               (random.OneIn(2) ? Patched(random, HostilePieces) : "");
    });
}

} // namespace
