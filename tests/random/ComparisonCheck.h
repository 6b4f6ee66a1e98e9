#pragma once

#include "ComparedWorksheet.h"
#include "DisplayFormats.h"
#include "QuendNames.h"

#include <QStringList>

class QAbstractItemModel;
class RandomUser;

/// Every figure in the table of costs is that of the comparison of what is entered.
class ComparisonCheck {
public:
    /// None while the comparison window is closed.
    QStringList Complaints(RandomUser& user);

private:
    void Read(RandomUser& user);
    void CompareRow(const QAbstractItemModel& shown, int row, const DisplayFormats& formats);

    compare::ComparedWorksheet m_expected; ///< compared again only after its input has changed
    QStringList m_complaints;
};
