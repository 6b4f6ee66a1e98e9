#pragma once

#include "QuendNames.h"
#include "WorksheetDisplay.h"

#include <map>
#include <vector>

/// A display without a window: keeps the last contents of each field, and counts the calls. It
/// checks nothing by itself.
class RecordingDisplay final : public WorksheetDisplay {
public:
    /// The contents of one field, and how often each part was shown.
    struct Record {
        QString text;
        Mark mark = Mark::None;
        bool ticked = false;
        bool toolTip = false;
        Date date;
        int texts = 0;
        int marks = 0;
        int ticks = 0;
        int toolTips = 0;
        int dates = 0;
    };

    void ShowText(Field field, const QString& text) override {
        Record& record = m_records[field];
        record.text = text;
        ++record.texts;
        m_texts.push_back(field);
    }
    void ShowTicked(Field field, bool ticked) override {
        Record& record = m_records[field];
        record.ticked = ticked;
        ++record.ticks;
    }
    void ShowDate(Field field, Date date) override {
        Record& record = m_records[field];
        record.date = date;
        ++record.dates;
    }
    void ShowMark(Field field, Mark mark) override {
        Record& record = m_records[field];
        record.mark = mark;
        ++record.marks;
    }
    void ShowToolTip(Field field, bool shown) override {
        Record& record = m_records[field];
        record.toolTip = shown;
        ++record.toolTips;
    }
    void ShowSortOrder(SortOrder order) override { m_sortOrders.push_back(order); }
    void PaymentRaised() override { ++m_paymentsRaised; }
    void PaymentRefused() override { ++m_paymentsRefused; }

    /// For a field that was never shown: empty, unmarked, all counts zero.
    Record Of(Field field) const {
        const auto found = m_records.find(field);
        return found == m_records.end() ? Record() : found->second;
    }
    QString TextOf(Field field) const { return Of(field).text; }

    /// The fields whose texts were shown, in the order of the calls; one entry per call.
    const std::vector<Field>& TextsInOrder() const { return m_texts; }
    /// Every order that was shown, in the order of the calls.
    const std::vector<SortOrder>& SortOrders() const { return m_sortOrders; }
    int PaymentsRaised() const { return m_paymentsRaised; }
    int PaymentsRefused() const { return m_paymentsRefused; }

    /// Resets the counts to zero; the contents of the fields stay.
    void ForgetCalls() {
        for (auto& [field, record] : m_records) {
            record.texts = record.marks = record.ticks = record.toolTips = record.dates = 0;
        }
        m_texts.clear();
        m_sortOrders.clear();
        m_paymentsRaised = 0;
        m_paymentsRefused = 0;
    }

private:
    std::map<Field, Record> m_records;
    std::vector<Field> m_texts;
    std::vector<SortOrder> m_sortOrders;
    int m_paymentsRaised = 0;
    int m_paymentsRefused = 0;
};
