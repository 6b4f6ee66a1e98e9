// What a step is, and that undone and redone states show and store exactly what they did.

#include "QuendNames.h"
#include "RandomCases.h"
#include "WorksheetTest.h"

#include <functional>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

/// All that is shown and stored. The marks of raised payments are left out, because they pass by
/// themselves.
struct Picture {
    std::vector<std::tuple<Field, QString, bool, bool, Date>> shown;
    WorksheetState state;
    friend bool operator==(const Picture&, const Picture&) = default;
};

class WorksheetStepsTest : public WorksheetTest {
protected:
    WorksheetStepsTest() {
        m_worksheet.Clear();
        m_worksheet.OnStep([this](WorksheetStep step) { m_steps.push_back(std::move(step)); },
                           [this] { m_steps.clear(); });
    }

    void Begin(int offers) {
        m_worksheet.GrowOfferArrays(m_worksheet.HighestOfferRow(), Row{offers - 1});
        m_worksheet.Clear();
    }

    Picture Now() {
        Picture picture{{}, m_worksheet.State()};
        const auto add = [&](Field field) {
            const RecordingDisplay::Record record = m_display.Of(field);
            picture.shown.emplace_back(field, record.text, record.ticked,
                                       record.mark == Mark::Missing, record.date);
        };
        for (const FieldRule& rule : LoanFields()) {
            add({rule.id});
        }
        for (Row row{0}; row <= m_worksheet.HighestOfferRow(); ++row.value) {
            for (const FieldRule& rule : OfferFields()) {
                add({rule.id, row});
            }
        }
        return picture;
    }

    QString NameOfLast() const {
        if (m_steps.empty()) {
            return u"none"_s;
        }
        const StepName& name = m_steps.back().name;
        const QString kind = QString::number(static_cast<int>(name.kind));
        return kind + u' ' + RuleOf(name.field).control +
               (name.offer ? u" %1"_s.arg(name.offer->value) : QString());
    }

    std::vector<WorksheetStep> m_steps;
};

TEST_F(WorksheetStepsTest, AreWhatChangesAValue) {
    Begin(3);
    EnterOffers(2);
    EnterCurrentLoan();
    using enum FieldId;
    const auto store = [this](Field field, const QString& text) {
        return [=, this] { Store(field, text); };
    };
    const Field rate{InterestRate, Row{1}};
    const struct {
        const char* action;
        std::function<void()> act;
        std::size_t steps;
        QString name;
    } cases[] = {
        {"typed", store(rate, u"7"_s), 1, u"0 txtInterestRate 1"_s},
        {"the same value", store(rate, u"7"_s), 0, u"none"_s},
        {"left", [&] { m_worksheet.StoreAgain(rate, m_worksheet.Value(rate)); }, 0, u"none"_s},
        {"raises a payment", store({Term, Row{0}}, u"120"_s), 1, u"0 txtTerm 0"_s},
        {"sets a default term", store({InterestRate, Row{2}}, u"5"_s), 1, u"0 txtInterestRate 2"_s},
        {"a name", store({LoanName}, u"Home"_s), 1, u"0 cboLoanName"_s},
        {"costs", store({Costs, Row{0}}, u"950"_s), 1, u"0  0"_s},
        {"a refused payment", store({ActualPayment, Row{0}}, u"1"_s), 0, u"none"_s},
        {"sorted", [&] { m_worksheet.SortByInterest(); }, 0, u"none"_s},
        {"terms in years", [&] { m_worksheet.SetTermInMonths(false); }, 0, u"none"_s},
        {"two values as one",
         [&] {
             const Worksheet::Step step(m_worksheet);
             Store({Points, Row{0}}, u"1"_s);
             Store({LoanAmount}, u"90000"_s);
         },
         1, u"0 txtLoanAmount"_s},
        {"two values of a named step",
         [&] {
             const Worksheet::Step step(m_worksheet, StepName{StepKind::PasteCells, Points, {}});
             Store({Points, Row{0}}, u"2"_s);
             Store({LoanAmount}, u"80000"_s);
         },
         1, u"4 txtPoints"_s},
        {"cleared", [&] { m_worksheet.ClearOffer({2}); }, 1, u"1 txtInterestRate 2"_s},
        {"cleared again", [&] { m_worksheet.ClearOffer({2}); }, 0, u"none"_s},
        {"duplicated", [&] { m_worksheet.CopyOffer({0}, {2}); }, 1, u"2 txtInterestRate 0"_s},
        {"moved", [&] { m_worksheet.ExchangeOffers({1}, {2}); }, 1, u"3 txtInterestRate 1"_s},
        {"loaded",
         [&] {
             m_worksheet.StoreTogether([&] { Store(rate, u"3"_s); },
                                       [](Field, const auto& step) { step(); });
         },
         0, u"none"_s},
        {"new", [&] { m_worksheet.Clear(); }, 0, u"none"_s},
    };
    for (const auto& c : cases) {
        m_steps.clear();
        c.act();
        EXPECT_EQ(m_steps.size(), c.steps) << c.action;
        EXPECT_EQ(NameOfLast(), c.name) << c.action;
    }
}

/// Undo restores the payment that the step raised, without a message.
TEST_F(WorksheetStepsTest, RestoreWithoutRaisingPayments) {
    Begin(1);
    EnterOffers(1);
    const Field term{FieldId::Term, Row{0}};
    const Picture before = Now();
    Store(term, u"120"_s);
    const Picture after = Now();
    ASSERT_NE(before, after);
    m_display.ForgetCalls();
    const WorksheetStep step = m_steps.back();
    m_worksheet.Restore(step.before);
    EXPECT_EQ(Now(), before);
    m_worksheet.Restore(step.after);
    EXPECT_EQ(Now(), after);
    EXPECT_EQ(m_display.PaymentsRaised() + m_display.PaymentsRefused(), 0);
}

TEST_F(WorksheetStepsTest, AreCleanOnlyWhereASaveWouldStoreTheSame) {
    Begin(1);
    const Field taxes{FieldId::AnnualTaxes};
    Store(taxes, u"1200"_s);
    Store({FieldId::LoanName}, u"Home"_s);
    m_worksheet.ClearDirty(); // saved
    Store(taxes, u"2400"_s);
    ASSERT_EQ(m_steps.size(), 3U);
    const auto dirtyIn = [this](const WorksheetState& state) {
        m_worksheet.Restore(state);
        return m_worksheet.Dirty();
    };
    EXPECT_TRUE(dirtyIn(m_steps[2].after));
    EXPECT_FALSE(dirtyIn(m_steps[2].before));
    EXPECT_FALSE(dirtyIn(m_steps[1].before)) << "the name alone is nothing to save";
    EXPECT_TRUE(dirtyIn(m_steps[0].before));
    m_worksheet.MarkUnsaved();
    EXPECT_TRUE(dirtyIn(m_steps[2].before)) << "saved nowhere any more";
}

/// What a user may enter in any field, with the values at which results fail or vanish.
QString RandomText(Random& random, ValueKind kind) {
    static const std::vector<QString> amounts{
        u"0"_s,      u"1"_s,     u"0.01"_s, u"950"_s,
        u"250000"_s, u"99999"_s, u"-5"_s,   u"922337203685477"_s};
    static const std::vector<QString> rates{u"0"_s,     u"3"_s,   u"6.5"_s,
                                            u"0.001"_s, u"300"_s, u"99999"_s};
    static const std::vector<QString> terms{u"0"_s,   u"1"_s,    u"60"_s,
                                            u"360"_s, u"1200"_s, u"99999"_s};
    static const std::vector<QString> frequencies{u""_s, u"Monthly"_s, u"Weekly"_s, u"Quarterly"_s};
    switch (kind) {
    case ValueKind::Amount:
        return random.OneOf(amounts);
    case ValueKind::Rate:
    case ValueKind::Percent:
        return random.OneOf(rates);
    case ValueKind::WholeTerm:
    case ValueKind::FractionalTerm:
        return random.OneOf(terms);
    case ValueKind::Frequency:
        return random.OneOf(frequencies);
    default:
        return random.OneIn(2) ? u"Bank"_s : u""_s;
    }
}

Field RandomField(Random& random, Row highest) {
    const bool inRow = random.OneIn(2);
    const auto fields = inRow ? OfferFields() : LoanFields();
    const FieldRule rule = random.OneOf(std::vector(fields.begin(), fields.end()));
    return {rule.id, inRow ? Row{random.Int(0, highest.value)} : Field::NoRow};
}

FieldValue RandomValue(Random& random, const Worksheet& sheet, Field field) {
    const ValueKind kind = RuleOf(field.id).kind;
    if (kind == ValueKind::Flag) {
        return random.OneIn(2);
    }
    if (kind == ValueKind::Date) {
        return Date::FromCalendar(random.Int(1901, 2199), random.Int(1, 12), 28);
    }
    return sheet.Texts().Read(kind, RandomText(random, kind));
}

/// One action of a user; a failure to compute is reported in the window and ends nothing.
void Act(Random& random, Worksheet& sheet) {
    const auto offer = [&] { return OfferIndex{static_cast<std::size_t>(random.Whole(0, 3))}; };
    const int action = random.Int(0, 19);
    try {
        if (action == 0) {
            sheet.ClearOffer(offer());
        } else if (action == 1) {
            sheet.CopyOffer(offer(), offer());
        } else if (action == 2) {
            sheet.ExchangeOffers(offer(), offer());
        } else if (const Field field = RandomField(random, Row{3});
                   RuleOf(field.id).access == Access::Input) {
            sheet.StoreAgain(field,
                             action < 5 ? sheet.Value(field) : RandomValue(random, sheet, field));
        }
    } catch (const Failure&) {
        SUCCEED();
    }
}

TEST_F(WorksheetStepsTest, GiveBackExactlyWhatWas) {
    ForRandomCases(60, [this](Random& random) {
        Begin(4);
        std::vector<Picture> pictures{Now()};
        for (int action = 0; action < 40; ++action) {
            const std::size_t before = m_steps.size();
            Act(random, m_worksheet);
            ASSERT_LE(m_steps.size(), before + 1);
            if (m_steps.size() > before) {
                pictures.push_back(Now());
            }
            ASSERT_EQ(Now(), pictures.back()) << "changed without a step";
        }
        const std::vector<WorksheetStep> steps = m_steps;
        for (std::size_t i = steps.size(); i > 0; --i) {
            m_worksheet.Restore(steps[i - 1].before);
            ASSERT_EQ(Now(), pictures[i - 1]) << "step " << i << " undone";
        }
        for (std::size_t i = 0; i < steps.size(); ++i) {
            m_worksheet.Restore(steps[i].after);
            ASSERT_EQ(Now(), pictures[i + 1]) << "step " << i << " redone";
        }
        EXPECT_EQ(m_steps.size(), steps.size()) << "to undo is no step";
    });
}

} // namespace
