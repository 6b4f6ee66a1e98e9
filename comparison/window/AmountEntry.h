#pragma once

// First, because moc 6.4 cannot read <concepts> as the first header of the standard library.
#include <QObject>

#include "CompareNames.h"
#include "DisplayFormats.h"
#include "Money.h"

#include <functional>
#include <optional>

class QKeyEvent;
class QLineEdit;

namespace quend::compare {

/// An amount that is typed outside the worksheet, in the way of its fields: the bare number while
/// it is edited, currency otherwise; zero is empty. A text that is no amount is refused: it stays,
/// selected, with the focus.
class AmountEntry : public QObject {
    Q_OBJECT

public:
    struct Rules {
        DisplayFormats formats;
        /// None for a text that is no amount; the user has been told why.
        std::function<std::optional<Money>(const QString& text)> read;
    };
    /// The edit must outlive the entry.
    AmountEntry(QLineEdit& edit, Rules rules);

    Money Value() const { return m_value; }
    void SetValue(Money value);
    /// Takes the text as if the field was left. False if it was refused.
    bool Commit();

Q_SIGNALS:
    void Entered();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool OnKey(const QKeyEvent& key);
    void Show();

    QLineEdit* m_edit;
    Rules m_rules;
    Money m_value;
};

} // namespace quend::compare
