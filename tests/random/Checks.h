#pragma once

#include "ComparisonCheck.h"
#include "QuendNames.h"
#include "ReferenceModel.h"
#include "WindowTexts.h"

#include <QStringList>

#include <array>
#include <span>
#include <vector>

class RandomUser;

/// Compares the window with the reference model after every step. Each check is one invariant; a
/// violation becomes a complaint.
class Checks {
public:
    QStringList Complaints(RandomUser& user);

private:
    struct Check {
        const char* name;
        void (Checks::*look)(RandomUser& user);
    };
    static std::span<const Check> All();

    void Messages(RandomUser& user);
    void Questions(RandomUser& user);
    void RowsAreThere(RandomUser& user);
    void BandsShow(RandomUser& user);
    void OffersShow(RandomUser& user);
    void Marks(RandomUser& user);
    void Dirty(RandomUser& user);
    void Focus(RandomUser& user);
    void Order(RandomUser& user);
    void Scrolling(RandomUser& user);
    void Captions(RandomUser& user);
    void NamesKept(RandomUser& user);
    void Comparison(RandomUser& user);

    /// The expected texts of an offer's fields in the order of the columns. They are cached while
    /// their inputs are unchanged.
    struct Row {
        ModelOffer offer;
        Plain::Count amount = 0;
        Plain::Count escrow = 0;
        int manner = -1; ///< country, language and unit of term
        std::vector<QString> texts;
    };
    const std::vector<QString>& TextsOf(const ReferenceModel& model, int row);
    void Say(const QString& complaint) { m_complaints.append(complaint); }
    void Compare(RandomUser& user, Field field, const QString& expected);

    std::array<Row, MostRows> m_rows;
    WindowTexts m_texts;
    ComparisonCheck m_comparison;
    QStringList m_complaints;
    int m_looks = 0;
};
