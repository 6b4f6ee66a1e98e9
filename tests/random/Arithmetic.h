#pragma once

#include <QChar>
#include <QDate>

#include <cstdint>

/// The arithmetic of loans once more, written down as plainly as it can be said and slow: it shares
/// nothing with the program's own, so that the two can be held against each other.
namespace Plain {

/// A number that its kind cannot hold.
struct TooLarge {};
/// A debt that no number of payments repays.
struct NeverRepaid : TooLarge {};

/// Room for any sum of two amounts, and for their product with a number of periods.
__extension__ typedef __int128 Wide; // NOLINT(modernize-use-using): only so is it no warning

/// Money: whole ten-thousandths.
using Count = std::int64_t;

/// Halves to even, from a number of units.
Count Whole(double units);
/// The same in whole cents.
Count WholeCents(double units);
/// Halves to even.
Count ToCents(Count amount);
Count Sum(Count left, Count right);
Count Less(Count left, Count right);
double Units(Count amount);

/// A frequency is its letter; a null character is none.
Count MonthlyEscrow(Count taxes, Count insurance);
Count EscrowOf(QChar frequency, Count monthlyEscrow);
Count PrincipalAndInterest(Count principal, double rate, int months, QChar frequency);

struct Debt {
    Count balance = 0;
    double rate = 0;
    Count payment = 0;
    Count escrow = 0;
    QChar frequency;
    QDate start;
};

struct Repaid {
    QDate date;
    Count interest = 0;
    Count paid = 0; ///< only where it is asked for
};

/// Pays one period after another. Throws NeverRepaid or TooLarge.
Repaid Repay(const Debt& debt, bool addsPayments);

} // namespace Plain
