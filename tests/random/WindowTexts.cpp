#include "WindowTexts.h"

#include "TextTable.h"

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

/// The numbers of the texts of one control; 0 where it has none.
struct Texts {
    const char* control;
    int written;
    int tip;
    int name = 0;
    int writtenInYears = 0;
};

constexpr std::array OfTheLoan{
    Texts{"lblLoanName", 201, 300},
    Texts{"cboLoanName", 0, 300},
    Texts{"lblLoanType", 202, 301},
    Texts{"cboLoanType", 0, 301},
    Texts{"lblLoanAmount", 203, 302},
    Texts{"txtLoanAmount", 0, 302},
    Texts{"lblLoanTerm", 204, 303, 0, 205},
    Texts{"txtLoanTerm", 0, 303},
    Texts{"lblAnnualTaxes", 206, 304},
    Texts{"txtAnnualTaxes", 0, 304},
    Texts{"lblAnnualInsurance", 207, 305},
    Texts{"txtAnnualInsurance", 0, 305},
    Texts{"lblMonthlyEscrow", 208, 306},
    Texts{"txtMonthlyEscrow", 0, 306},
    Texts{"lblCurrent", 209, 307},
    Texts{"lblCurLoanAmount", 210, 310},
    Texts{"txtCurLoanAmount", 0, 310, 400},
    Texts{"lblCurLoanTerm", 211, 311, 0, 212},
    Texts{"txtCurLoanTerm", 0, 311, 401},
    Texts{"lblCurInterestRate", 213, 312},
    Texts{"txtCurInterestRate", 0, 312, 402},
    Texts{"lblCurPaymentFrequency", 214, 313},
    Texts{"cboCurPaymentFrequency", 0, 313, 403},
    Texts{"lblCurPayment", 215, 314},
    Texts{"txtCurPayment", 0, 314, 404},
    Texts{"lblCurrentBalance", 216, 315},
    Texts{"txtCurrentBalance", 0, 315, 405},
    Texts{"lblCurActualPayment", 217, 316},
    Texts{"txtCurActualPayment", 0, 316, 406},
    Texts{"lblActPaymentFrequency", 218, 317},
    Texts{"cboActPaymentFrequency", 0, 317, 407},
    Texts{"lblNextPayment", 219, 318},
    Texts{"dtNextPayment", 0, 318, 408},
    Texts{"lblCurAmountLeft", 220, 319},
    Texts{"txtCurAmountLeft", 0, 319, 409},
    Texts{"lblCurInterestLeft", 221, 320},
    Texts{"txtCurInterestLeft", 0, 320, 410},
    Texts{"lblCurPayoffDate", 222, 321},
    Texts{"txtCurPayoffDate", 0, 321, 411},
    Texts{"cmdShare", 240, 343},
    Texts{"cmdWhatsThis", 0, 344, 344},
    Texts{"lblPoints", 230, 330},
    Texts{"lblInterestRate", 231, 332},
    Texts{"lblTerm", 232, 333},
    Texts{"lblPandI", 233, 334},
    Texts{"lblPayment", 234, 335},
    Texts{"lblFrequency", 235, 336},
    Texts{"lblActualPayment", 236, 337},
    Texts{"cmdPayoffDate", 237, 338},
    Texts{"cmdInterest", 238, 340},
    Texts{"lblWho", 239, 342},
    Texts{"vsbLoans", 0, 345, 345},
    Texts{"lblHint", 450, 0},
    Texts{"mnuFile", 250, 0},
    Texts{"mnuFileNew", 251, 0},
    Texts{"mnuFileSave", 252, 0},
    Texts{"mnuFileDelete", 253, 0},
    Texts{"mnuFilePrintSetup", 254, 0},
    Texts{"mnuFilePrint", 255, 0},
    Texts{"mnuFileExit", 256, 0},
    Texts{"mnuTools", 257, 0},
    Texts{"mnuToolsOptions", 258, 0},
    Texts{"mnuToolsLanguage", 259, 0},
    Texts{"mnuToolsLanguageOpt(1)", 260, 0},
    Texts{"mnuToolsLanguageOpt(2)", 261, 0},
    Texts{"mnuHelp", 262, 0},
    Texts{"mnuHelpContents", 263, 0},
    Texts{"mnuHelpSearch", 264, 0},
    Texts{"mnuHelpAbout", 64, 0},
};

constexpr std::array OfAnOffer{
    Texts{"chkPoints", 0, 331, 420},       Texts{"txtPoints", 0, 330, 421},
    Texts{"txtInterestRate", 0, 332, 422}, Texts{"txtTerm", 0, 333, 423},
    Texts{"cboFrequency", 0, 336, 424},    Texts{"txtPandI", 0, 334, 425},
    Texts{"txtPayment", 0, 335, 426},      Texts{"txtActualPayment", 0, 337, 427},
    Texts{"txtPayoffDate", 0, 339, 428},   Texts{"txtInterest", 0, 341, 429},
    Texts{"txtWho", 0, 342, 430},
};

/// In the order of the lists.
const std::vector Types{83, 10, 11, 19, 39, 29};
const std::vector Frequencies{114, 111, 112, 115};

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
QString TitleOf(const QObject& object) { return static_cast<const QMenu&>(object).title(); }
QString None(const QObject& /*object*/) { return {}; }

/// What tells the text that is written on it.
auto CaptionReader(const QObject& object) {
    if (qobject_cast<const QLabel*>(&object) != nullptr) {
        return &TextOf<QLabel>;
    }
    if (qobject_cast<const QAbstractButton*>(&object) != nullptr) {
        return &TextOf<QAbstractButton>;
    }
    if (qobject_cast<const QMenu*>(&object) != nullptr) {
        return &TitleOf;
    }
    const auto* action = qobject_cast<const QAction*>(&object);
    return action != nullptr && action->menu() == nullptr ? &TextOf<QAction> : &None;
}

const QWidget& AsWidget(const QObject& object) { return static_cast<const QWidget&>(object); }
QString Title(const QObject& object) { return AsWidget(object).windowTitle(); }
QString Tip(const QObject& object) { return AsWidget(object).toolTip(); }
QString Name(const QObject& object) { return AsWidget(object).accessibleName(); }
QString Description(const QObject& object) { return AsWidget(object).accessibleDescription(); }

/// The date and the interest of a payoff have a tip only at times.
bool MayBeAway(const QString& name) {
    return name.contains(u"PayoffDate"_qs) || name.startsWith(u"txtInterest("_qs);
}

} // namespace

WindowTexts::WindowTexts() : m_tables{ReadTable("000"), ReadTable("40a")} {}

QStringList WindowTexts::Complaints(const QWidget& window, const Book& book, bool thorough) {
    const bool same = m_window == &window && m_spanish == book.spanish &&
                      m_inMonths == book.inMonths && m_rows == book.offers.size();
    if (!same) {
        ListAll(window, book);
    }
    QStringList complaints = m_unaccounted + ComplaintsOfSorting(book.sorted);
    const auto compare = [&](const Seen& seen) {
        const QString shown = seen.read(*seen.object);
        if (shown != seen.text && !(shown.isEmpty() && seen.mayBeAway)) {
            complaints.append(u"%1 of %2 is “%3” instead of “%4”"_qs.arg(
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

const QObject& WindowTexts::Named(const QString& name) const {
    const QObject* object = m_objects.value(name);
    if (object == nullptr) {
        throw std::runtime_error("there is no " + name.toStdString());
    }
    return *object;
}

void WindowTexts::ListAll(const QWidget& window, const Book& book) {
    m_window = &window;
    m_spanish = book.spanish;
    m_inMonths = book.inMonths;
    m_rows = book.offers.size();
    m_objects.clear();
    m_written.clear();
    m_told.clear();
    m_unaccounted.clear();
    for (const QObject* object : window.findChildren<QObject*>()) {
        m_objects.insert(object->objectName(), object);
    }
    ListLoan(window);
    ListUnaccounted(window);
    for (std::size_t row = 0; row < m_rows; ++row) {
        ListRow(static_cast<int>(row));
    }
}

void WindowTexts::ListLoan(const QWidget& window) {
    m_written.push_back({&window, "title", Title, Text(200)});
    for (const Texts& texts : OfTheLoan) {
        const QObject& object = Named(QString::fromLatin1(texts.control));
        const bool inYears = texts.writtenInYears != 0 && !m_inMonths;
        ListWritten(object, inYears ? texts.writtenInYears : texts.written);
        ListTold(object, texts.tip, texts.name, 0);
    }
}

void WindowTexts::ListRow(int row) {
    for (const Texts& texts : OfAnOffer) {
        const QString name = QString::fromLatin1(texts.control) + u"(%1)"_qs.arg(row);
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
        const QString told = Text(name).replace(u"%1"_qs, QString::number(ordinal));
        m_told.push_back({&object, "name", Name, told});
        if (object.inherits("QComboBox")) {
            m_told.push_back({&object, "description", Description, told});
        }
    }
}

/// Whatever else bears a text has come to the window unnoticed by this account.
void WindowTexts::ListUnaccounted(const QWidget& window) {
    QSet<const QObject*> known;
    for (const Seen& seen : m_written) {
        known.insert(seen.object);
    }
    for (const QObject* object : window.findChildren<QObject*>()) {
        const QString text = CaptionReader(*object)(*object);
        if (HasLetters(text) && !known.contains(object)) {
            m_unaccounted.append(
                u"nobody accounts for “%1” of “%2”"_qs.arg(text, object->objectName()));
        }
    }
}

/// The heading that the offers are sorted by tells so.
QStringList WindowTexts::ComplaintsOfSorting(char sorted) const {
    struct Heading {
        QString name;
        char by;
        int text;
    };
    static const std::array headings{Heading{u"cmdPayoffDate"_qs, 'P', 346},
                                     Heading{u"cmdInterest"_qs, 'I', 347}};
    QStringList complaints;
    for (const Heading& heading : headings) {
        const QString told = Description(Named(heading.name));
        if (told != (sorted == heading.by ? Text(heading.text) : QString())) {
            complaints.append(u"%1 tells “%2”"_qs.arg(heading.name, told));
        }
    }
    return complaints;
}

/// What can be chosen.
QStringList WindowTexts::ComplaintsOfLists(const QWidget& window) const {
    QStringList complaints;
    for (const auto* list : window.findChildren<QComboBox*>()) {
        if (list->objectName() == u"cboLoanName"_qs) {
            continue;
        }
        QStringList expected;
        for (const int number : list->objectName() == u"cboLoanType"_qs ? Types : Frequencies) {
            expected.append(Text(number));
        }
        QStringList shown;
        for (int entry = 0; entry < list->count(); ++entry) {
            shown.append(list->itemText(entry));
        }
        if (shown != expected) {
            complaints.append(u"%1 offers %2 instead of %3"_qs.arg(
                list->objectName(), shown.join(u'|'), expected.join(u'|')));
        }
    }
    return complaints;
}
