#include "ScheduleModel.h"
#include "FigureColumns.h"
#include "SampleTables.h"
#include "TableRoles.h"
#include "TableText.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStringList>

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

std::vector<ScheduleRow> Payments(int count) {
    std::vector<ScheduleRow> rows;
    for (int i = 1; i <= count; ++i) {
        rows.push_back({.number = i,
                        .date = Date::FromCalendar(2026 + (i - 1) / 12, (i - 1) % 12 + 1, 5),
                        .payment = Dollar(1250),
                        .interest = Dollar(-0.25),
                        .principal = Dollar(1000),
                        .escrow = Dollar(250),
                        .balance = Dollar(1234567.89 - i),
                        .interestSoFar = Dollar(i)});
    }
    return rows;
}

class ScheduleTable : public testing::Test {
protected:
    ScheduleTable() { Speak(English); }

    std::string Row(int row, int role = Qt::DisplayRole) const {
        QStringList texts;
        for (int column = 0; column < m_model.columnCount(); ++column) {
            texts.append(m_model.index(row, column).data(role).toString());
        }
        return texts.join(u"|"_s).toStdString();
    }
    std::string Headings() const {
        QStringList texts;
        for (int column = 0; column < m_model.columnCount(); ++column) {
            texts.append(HeadingIn(m_model, column));
        }
        return texts.join(u"|"_s).toStdString();
    }

    ScheduleModel m_model;
    QAbstractItemModelTester m_tester{&m_model,
                                      QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(ScheduleTable, ShowsPaymentsOrYears) {
    using Rows = ScheduleModel::Rows;
    const QString none;
    const struct {
        Rows rows;
        int language;
        QLocale locale;
        int count;
        const char* headings;
        const char* second;
    } cases[] = {
        // clang-format off
        {Rows::Payments, English, UnitedStates, 14, "No.|Date|Payment|Interest|Principal|Escrow|Balance|Interest so far",
         "2|2/5/2026|$1,250.00|($0.25)|$1,000.00|$250.00|$1,234,565.89|$2.00"},
        {Rows::Years,    English, UnitedStates, 2,  "Year|Date|Payment|Interest|Principal|Escrow|Balance|Interest so far",
         "2027|2/5/2027|$2,500.00|($0.50)|$2,000.00|$500.00|$1,234,553.89|$14.00"},
        {Rows::Years,    Spanish, Germany,      2,  "Año|Fecha|Pago|Intereses|Capital|Garantía|Saldo|Intereses acumulados",
         "2027|05.02.2027|2.500,00\u00A0€|-0,50\u00A0€|2.000,00\u00A0€|500,00\u00A0€|1.234.553,89\u00A0€|14,00\u00A0€"},
        // clang-format on
    };
    EXPECT_EQ(0, m_model.rowCount());
    for (const auto& tested : cases) {
        Speak(tested.language);
        m_model.Set(Payments(14), tested.rows, DisplayFormats(tested.locale));
        EXPECT_EQ(tested.count, m_model.rowCount());
        EXPECT_EQ(tested.headings, Headings());
        EXPECT_EQ(tested.second, Row(1));
        EXPECT_EQ("2027", tested.rows == Rows::Years
                              ? m_model.headerData(1, Qt::Vertical).toString().toStdString()
                              : "2027");
    }
    Speak(English);
    EXPECT_EQ("2027||2500|-0.5|2000|500|1234553.89|14", Row(1, NumberRole));
    EXPECT_EQ(FirstScheduleTopic + 7, m_model.headerData(7, Qt::Horizontal, HelpTopicRole).toInt());
}

TEST_F(ScheduleTable, ChangesInPlace) {
    const QSignalSpy resets(&m_model, &QAbstractItemModel::modelReset);
    const struct {
        int payments;
        ScheduleModel::Rows rows;
        int rowCount;
        int resets; // so far
    } cases[] = {
        {360, ScheduleModel::Rows::Payments, 360, 1},
        {2600, ScheduleModel::Rows::Payments, 2600, 1},
        {12, ScheduleModel::Rows::Payments, 12, 1},
        {0, ScheduleModel::Rows::Payments, 0, 1},
        {24, ScheduleModel::Rows::Years, 2, 2},
        {48, ScheduleModel::Rows::Years, 4, 2},
    };
    for (const auto& tested : cases) {
        m_model.Set(Payments(tested.payments), tested.rows, Dollars);
        EXPECT_EQ(tested.rowCount, m_model.rowCount());
        EXPECT_EQ(tested.resets, resets.count()) << tested.payments;
    }
}

} // namespace
