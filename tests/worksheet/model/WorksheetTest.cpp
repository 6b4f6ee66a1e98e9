#include "WorksheetTest.h"

#include "Language.h"

#include <algorithm>

using namespace Qt::StringLiterals;

std::vector<Field> OfferResults(Row row) {
    return {{FieldId::PandI, row},
            {FieldId::Payment, row},
            {FieldId::PayoffDate, row},
            {FieldId::Interest, row}};
}

std::vector<Field> Sorted(std::initializer_list<std::vector<Field>> lists) {
    std::vector<Field> all;
    for (const std::vector<Field>& list : lists) {
        all.insert(all.end(), list.begin(), list.end());
    }
    std::ranges::sort(all);
    return all;
}

WorksheetTest::WorksheetTest()
    : m_worksheet(m_display, FieldFormats(DisplayFormats(QLocale(u"en_US"_s)), true), [this] {
          ++m_offerSchedules;
          return Date::FromCalendar(2026, 3, 10);
      }) {
    Language::Instance().SetUp(QStringLiteral(QUEND_PROGRAM_DIR), u"Loan"_s);
}

void WorksheetTest::EnterOffers(int count) {
    m_worksheet.SetLoanAmount(Units(100'000));
    m_worksheet.GrowOfferArrays(m_worksheet.HighestOfferRow(), Row{count - 1});
    for (Row row{0}; row.value < count; ++row.value) {
        Store({FieldId::InterestRate, row}, u"6"_s);
        Store({FieldId::Term, row}, u"360"_s);
        Store({FieldId::Frequency, row}, u"Monthly"_s);
    }
}

void WorksheetTest::EnterCurrentLoan() {
    Store({FieldId::CurLoanAmount}, u"120000"_s);
    Store({FieldId::CurLoanTerm}, u"360"_s);
    Store({FieldId::CurInterestRate}, u"6.5"_s);
    Store({FieldId::CurrentBalance}, u"10000"_s);
    Store({FieldId::CurActualPayment}, u"1000"_s);
    Store({FieldId::ActPaymentFrequency}, u"Monthly"_s);
    m_worksheet.SetCurrentNextPayment(Date::FromCalendar(2026, 3, 1));
}

void WorksheetTest::StartCounting() {
    m_worksheet.ClearDirty();
    m_display.ForgetCalls();
    m_offerSchedules = 0;
}

std::vector<QString> WorksheetTest::TextsOf(const std::vector<Field>& fields) const {
    std::vector<QString> texts;
    texts.reserve(fields.size());
    for (const Field field : fields) {
        texts.push_back(TextOf(field));
    }
    return texts;
}
