#include "WindowTexts.h"

#include "QuendNames.h"
#include "TextNumbers.h"
#include "TextTable.h"
#include "TextsOfControls.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QSet>

#include <algorithm>
#include <array>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// In the order of the lists.
const std::vector Types{TextNumber::LoanTypeMortgage,   TextNumber::LoanTypeAuto,
                        TextNumber::LoanTypeBusiness,   TextNumber::LoanTypeConstruction,
                        TextNumber::LoanTypeHomeEquity, TextNumber::LoanTypeDebtConsolidation};
const std::vector Frequencies{TextNumber::FrequencyMonthly, TextNumber::FrequencyTwiceAMonth,
                              TextNumber::FrequencyEveryTwoWeeks,
                              TextNumber::FrequencyEveryFourWeeks};

QHash<int, QString> ReadTable(const char* identifier) {
    QFile file(QStringLiteral(QUEND_SOURCE_DIR "/language/components/%1/texts.txt")
                   .arg(QLatin1String(identifier)));
    if (!file.open(QIODevice::ReadOnly)) {
        throw std::runtime_error("no texts to compare with");
    }
    QHash<int, QString> texts;
    const TextTable table = TextTable::Parse(QString::fromUtf8(file.readAll()));
    for (const auto& [number, text] : table.Texts()) {
        texts.insert(number, text);
    }
    return texts;
}

bool HasLetters(const QString& text) {
    return std::ranges::any_of(text, [](QChar c) { return c.isLetter(); });
}

template <class Kind>
QString TextOf(const QObject& object) {
    return static_cast<const Kind&>(object).text();
}
QString MenuTitle(const QObject& object) { return static_cast<const QMenu&>(object).title(); }
QString None(const QObject& /*object*/) { return {}; }

/// Returns the function that reads a control's caption.
auto CaptionReader(const QObject& object) {
    if (qobject_cast<const QLabel*>(&object) != nullptr) {
        return &TextOf<QLabel>;
    }
    if (qobject_cast<const QAbstractButton*>(&object) != nullptr) {
        return &TextOf<QAbstractButton>;
    }
    if (qobject_cast<const QMenu*>(&object) != nullptr) {
        return &MenuTitle;
    }
    const auto* action = qobject_cast<const QAction*>(&object);
    return action != nullptr && action->menu() == nullptr ? &TextOf<QAction> : &None;
}

const QWidget& AsWidget(const QObject& object) { return static_cast<const QWidget&>(object); }
QString Tip(const QObject& object) { return AsWidget(object).toolTip(); }
QString Name(const QObject& object) { return AsWidget(object).accessibleName(); }
QString Description(const QObject& object) { return AsWidget(object).accessibleDescription(); }

/// The date and the interest of a payoff only sometimes have a tooltip.
bool MayBeAway(const QString& name) {
    return name.contains(u"PayoffDate"_s) || name.startsWith(u"txtInterest("_s);
}

} // namespace

WindowTexts::WindowTexts() : m_tables{ReadTable("000"), ReadTable("40a")} {}

QStringList WindowTexts::Complaints(const QWidget& window, const ReferenceModel& model,
                                    bool thorough) {
    const bool same = m_window == &window && m_spanish == model.spanish &&
                      m_inMonths == model.inMonths && m_rows == model.offers.size();
    if (!same) {
        ListAll(window, model);
    }
    QStringList complaints = m_unaccounted + ComplaintsOfSorting(model.sorted);
    const QString title = TitleOf(model);
    if (window.windowTitle() != title || window.isWindowModified() != model.dirty) {
        complaints.append(u"the title is “%1” instead of “%2”"_s.arg(window.windowTitle(), title));
    }
    const auto compare = [&](const Seen& seen) {
        const QString shown = seen.read(*seen.object);
        if (shown != seen.text && !(shown.isEmpty() && seen.mayBeAway)) {
            complaints.append(u"%1 of %2 is “%3” instead of “%4”"_s.arg(
                QLatin1String(seen.what), seen.object->objectName(), shown, seen.text));
        }
    };
    std::ranges::for_each(m_written, compare);
    if (thorough || !same) {
        std::ranges::for_each(m_told, compare);
        complaints += ComplaintsOfLists(window);
    }
    return complaints;
}

/// With the place of the mark of unsaved changes.
QString WindowTexts::TitleOf(const ReferenceModel& model) const {
    const QString program = Text(TextNumber::WindowTitle);
    QString name = model.loan.name;
    if (model.IsUnnamed()) {
        return model.dirty ? program + u"[*]"_s : program;
    }
    return name.replace(u"[*]"_s, u"[*][*]"_s) + u"[*] — "_s + program;
}

const QObject& WindowTexts::Named(const QString& name) const {
    const QObject* object = m_objects.value(name);
    if (object == nullptr) {
        throw std::runtime_error("there is no " + name.toStdString());
    }
    return *object;
}

void WindowTexts::ListAll(const QWidget& window, const ReferenceModel& model) {
    m_window = &window;
    m_spanish = model.spanish;
    m_inMonths = model.inMonths;
    m_rows = model.offers.size();
    m_objects.clear();
    m_written.clear();
    m_told.clear();
    m_unaccounted.clear();
    for (const QObject* object : window.findChildren<QObject*>()) {
        m_objects.insert(object->objectName(), object);
    }
    ListLoan();
    ListUnaccounted(window);
    for (std::size_t row = 0; row < m_rows; ++row) {
        ListRow(static_cast<int>(row));
    }
}

void WindowTexts::ListLoan() {
    for (const TextsOfControl& texts : TextsOfTheLoan) {
        const QObject& object = Named(QString::fromLatin1(texts.control));
        const bool inYears = texts.writtenInYears != 0 && !m_inMonths;
        ListWritten(object, inYears ? texts.writtenInYears : texts.written);
        ListTold(object, texts.tip, texts.name, 0);
    }
}

void WindowTexts::ListRow(int row) {
    for (const TextsOfControl& texts : TextsOfAnOffer) {
        const QString name = QString::fromLatin1(texts.control) + u"(%1)"_s.arg(row);
        ListTold(Named(name), texts.tip, texts.name, row + 1);
    }
}

void WindowTexts::ListWritten(const QObject& object, int number) {
    if (number != 0) {
        m_written.push_back({&object, "caption", CaptionReader(object), Text(number)});
    }
}

void WindowTexts::ListTold(const QObject& object, int tip, int name, int ordinal) {
    if (tip != 0) {
        m_told.push_back({&object, "tip", Tip, Text(tip), MayBeAway(object.objectName())});
    }
    if (name != 0) {
        const QString told = Text(name).replace(u"%1"_s, QString::number(ordinal));
        m_told.push_back({&object, "name", Name, told});
        if (object.inherits("QComboBox")) {
            m_told.push_back({&object, "description", Description, told});
        }
    }
}

/// Lists every other control with a text: the reference model does not know it.
void WindowTexts::ListUnaccounted(const QWidget& window) {
    QSet<const QObject*> known;
    for (const Seen& seen : m_written) {
        known.insert(seen.object);
    }
    // These change with what was done.
    for (const char* const name :
         {"lblAnnounced", "mnuFileBringBack", "mnuEditUndo", "mnuEditRedo"}) {
        known.insert(&Named(QString::fromLatin1(name)));
    }
    for (const QObject* object : window.findChildren<QObject*>()) {
        const QString text = CaptionReader(*object)(*object);
        if (HasLetters(text) && !known.contains(object)) {
            m_unaccounted.append(
                u"nobody accounts for “%1” of “%2”"_s.arg(text, object->objectName()));
        }
    }
}

/// The heading of the sorted column says so in its accessible description.
QStringList WindowTexts::ComplaintsOfSorting(char sorted) const {
    struct Heading {
        QString name;
        char by;
        int text;
    };
    static const std::array headings{Heading{u"cmdPayoffDate"_s, 'P', 346},
                                     Heading{u"cmdInterest"_s, 'I', 347}};
    QStringList complaints;
    for (const Heading& heading : headings) {
        const QString told = Description(Named(heading.name));
        if (told != (sorted == heading.by ? Text(heading.text) : QString())) {
            complaints.append(u"%1 tells “%2”"_s.arg(heading.name, told));
        }
    }
    return complaints;
}

/// The entries of the lists.
QStringList WindowTexts::ComplaintsOfLists(const QWidget& window) const {
    QStringList complaints;
    for (const auto* list : window.findChildren<QComboBox*>()) {
        if (list->objectName() == u"cboLoanName"_s) {
            continue;
        }
        QStringList expected;
        for (const int number : list->objectName() == u"cboLoanType"_s ? Types : Frequencies) {
            expected.append(Text(number));
        }
        QStringList shown;
        for (int entry = 0; entry < list->count(); ++entry) {
            shown.append(list->itemText(entry));
        }
        if (shown != expected) {
            complaints.append(u"%1 offers %2 instead of %3"_s.arg(
                list->objectName(), shown.join(u'|'), expected.join(u'|')));
        }
    }
    return complaints;
}
