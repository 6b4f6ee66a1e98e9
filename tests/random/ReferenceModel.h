#pragma once

#include "Arithmetic.h"
#include "Field.h"
#include "Forms.h"
#include "QuendNames.h"

#include <QChar>
#include <QDate>
#include <QString>
#include <QStringList>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <variant>
#include <vector>

inline constexpr std::size_t MostRows = 16;
inline const QDate Today(2026, 11, 21);

/// The inputs of one offer.
struct ModelOffer {
    bool financed = false;
    double points = 0;
    double rate = 0;
    int term = 0;
    QChar frequency;
    Plain::Count actual = 0;
    Plain::Count costs = 0; ///< entered in the comparison window
    QString who;
    Plain::Count interest = 0; ///< of the last schedule, for sorting

    friend bool operator==(const ModelOffer&, const ModelOffer&) = default;
};

/// The results of an offer. Zero, or no day, is an empty field.
struct ModelResults {
    Plain::Count pAndI = 0;
    Plain::Count payment = 0;
    QDate payoff;
    Plain::Count interest = 0;
    bool failed = false;
};

struct ModelLoan {
    QString name;
    QString type; ///< a letter, or none
    Plain::Count amount = 0;
    int term = 0;
    Plain::Count taxes = 0;
    Plain::Count insurance = 0;
    Plain::Count escrow = 0;
};

struct ModelCurrentLoan {
    Plain::Count amount = 0;
    int term = 0;
    double rate = 0;
    QChar frequency;
    Plain::Count payment = 0;
    Plain::Count balance = 0;
    Plain::Count actual = 0;
    QChar actualFrequency;
    QDate next = Today;
    Plain::Count left = 0;
    Plain::Count interestLeft = 0;
    QDate payoff;
};

/// All values that undo and redo give back.
struct ModelValues {
    ModelLoan loan;
    ModelCurrentLoan current;
    std::vector<ModelOffer> offers;
    std::set<FieldId> missing;
};

/// A worksheet as saved.
struct SavedWorksheet {
    QString name;
    ModelLoan loan;
    ModelCurrentLoan current;
    std::vector<ModelOffer> offers;
};

/// Names that differ only in case are equal. Letters are folded one by one.
inline QString FoldedName(QString name) {
    for (QChar& letter : name) {
        letter = letter.toUpper();
    }
    return name;
}

/// The reference model of a worksheet. It follows the rules of the worksheet but uses none of its
/// code. It takes the user's entries, and predicts what every control must show and every message.
/// It knows nothing of controls, focus and keys.
class ReferenceModel {
public:
    explicit ReferenceModel(std::size_t country) : forms(country) {}

    using Number = std::variant<Plain::Count, double, int>;

    // Events. Failures become expected messages.
    void Leave(Field field, const QString& text);
    void StoreChoice(Field field, const QString& text);
    /// Leaving a list or a ticked box. An unchanged value is not reported again.
    void LeaveChoice(Field field, const QString& text);
    void LeaveTick(int row, bool ticked);
    void StoreTick(int row, bool ticked);
    void StoreDay(QDate day);
    /// The place of the offer in the worksheet, from 1.
    void StoreCosts(int place, Plain::Count costs);
    void StoreWho(int row, const QString& who);
    /// A value dropped or pasted on an offer's field. False if the text is no number in range: then
    /// nothing changes.
    bool Drop(Field field, const QString& text);
    /// Stores cells to the right and down from a field. False if some are not taken.
    bool PasteCells(Field from, const std::vector<QStringList>& rows);
    void ClearOffer(int row);
    /// The row of the copy; none if there is no room.
    std::optional<int> DuplicateOffer(int row);
    /// By one place in the order of entry. The row that then shows the offer; none if it stays.
    std::optional<int> MoveOffer(int row, int by);
    void EnterRow(int row);
    void GrowTo(std::size_t rows);
    void SortByPayoff();
    void SortByInterest();
    /// The timer of the notice has expired.
    void NoticeIsDue();

    ModelValues Values() const { return {loan, current, offers, missing}; }
    /// Undo and redo mark no raised payments.
    void Restore(const ModelValues& values);

    // The saved worksheets.
    void Clear();
    void Save();
    void Load(const QString& name);
    void Throw(const QString& name) { saved.erase(FoldedName(name)); }
    bool Holds(const QString& name) const { return saved.contains(FoldedName(name)); }
    QStringList Names() const;

    // Expected contents.
    bool Accepts(Field field, const QString& text) const;
    /// The failure when the text is read; empty for none.
    QString FailureOf(Field field, const QString& text) const;
    bool MayDrop(FieldId field, const QString& text) const;
    QString EntryText(Field field) const;
    QString Shown(Field field) const;
    bool IsTicked(int row) const { return OfferIn(row).financed; }
    bool IsMissing(FieldId field) const { return missing.contains(field); }
    bool IsRaised(int row) const { return raised.contains(order.at(Place(row))); }
    ModelResults ResultsOf(const ModelOffer& offer) const;
    /// The payment computed for an offer; zero if there is none, or it is out of range.
    Plain::Count PaymentOf(int row) const;

    ModelOffer& OfferIn(int row) { return offers.at(order.at(Place(row))); }
    const ModelOffer& OfferIn(int row) const { return offers.at(order.at(Place(row))); }

    Forms forms;
    bool spanish = false;
    bool inMonths = false;
    ModelLoan loan;
    ModelCurrentLoan current;
    std::vector<ModelOffer> offers;
    std::vector<std::size_t> order;
    char sorted = 0; ///< 'P' by payoff date, 'I' by interest, 0 unsorted
    std::set<std::size_t> raised;
    std::set<FieldId> missing;
    bool nameMissing = false;
    bool IsBlank(int row) const;
    bool IsUnnamed() const { return loan.name.isEmpty() || loan.name == u" "; }
    bool dirty = false;
    bool noticeShown = false;
    bool noticeComes = false;
    std::map<QString, SavedWorksheet> saved; ///< by folded name
    /// The beginnings of messages that have not appeared yet.
    QStringList expected;

    void Expect(int text, const QString& rest = {});
    /// `never`: the payments never repay the loan.
    void ExpectFailure(int number, bool never = false);
    /// Runs the action; a failure must be reported.
    void Guard(const std::function<void()>& action);
    /// The same for values that are stored again: failures are reported only after a change.
    void GuardAgain(const std::function<void()>& action);

private:
    static std::size_t Place(int row) { return static_cast<std::size_t>(row); }
    enum Part : unsigned { Escrow = 1, Offers = 2, Payment = 4, Schedule = 8 };

    template <class Value>
    void Put(Value& stored, const Value& value) {
        if (stored != value) {
            stored = value;
            dirty = true;
        }
    }
    Number Read(FieldId field, const QString& text) const;
    int ReadTerm(FieldId field, const QString& text) const;
    void StoreNumber(Field field, const Number& number);
    void StoreOfferNumber(Field field, const Number& number);
    void StoreActual(int row, Plain::Count payment);
    void SetRate(ModelOffer& offer, double rate);

    void Recalculate(unsigned parts);
    void RecalculateEscrow();
    void RecalculateOffer(std::size_t index);
    void RecalculatePayment();
    void RecalculateSchedule();

    Plain::Count Principal(const ModelOffer& offer) const;
    Plain::Count LeastPayment(const ModelOffer& offer) const;
    bool Raise(ModelOffer& offer);
    void MarkRaised(std::size_t index);
    Plain::Repaid Payoff(const ModelOffer& offer) const;
    Plain::Repaid RunPayoff(ModelOffer& offer);
    template <class KeyOf>
    void SortBy(char by, KeyOf keyOf);
    void ShowOffers();
    void ShowOffer(ModelOffer& offer);
    void Replace(std::size_t index, const ModelOffer& offer);
    bool PasteCell(Field field, const QString& cell);

    Number NumberOf(Field field) const;
    QString ShownResult(Field field) const;
    QString TypeText(const QString& code) const;
    QString FrequencyText(QChar code) const;
    QChar FrequencyCode(const QString& text) const;

    double AsKept(double number) const;
    SavedWorksheet Page() const;
    bool LoadOffer(int row, const ModelOffer& kept);
    void Store(Field field, const QString& text);
    bool Try(const std::function<void()>& action);
};
