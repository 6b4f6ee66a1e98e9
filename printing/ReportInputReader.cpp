#include "ReportInputReader.h"

#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "PrintedPage.h"
#include "VersionRecord.h"

#include <QFontInfo>
#include <QLayout>
#include <QScrollArea>

#include <algorithm>
#include <array>

namespace quend::printing {

namespace {

struct EntryOf {
    const char* label;
    const char* field;
    Side side;
};

constexpr std::array Header{
    EntryOf{"lblLoanName", "cboLoanName", Side::Left},
    EntryOf{"lblLoanType", "cboLoanType", Side::Left},
    EntryOf{"lblLoanAmount", "txtLoanAmount", Side::Right},
    EntryOf{"lblLoanTerm", "txtLoanTerm", Side::Right},
    EntryOf{"lblAnnualTaxes", "txtAnnualTaxes", Side::Right},
    EntryOf{"lblAnnualInsurance", "txtAnnualInsurance", Side::Right},
    EntryOf{"lblMonthlyEscrow", "txtMonthlyEscrow", Side::Right},
};

constexpr std::array CurrentFirstHalf{
    EntryOf{"lblCurLoanAmount", "txtCurLoanAmount", Side::Right},
    EntryOf{"lblCurLoanTerm", "txtCurLoanTerm", Side::Right},
    EntryOf{"lblCurInterestRate", "txtCurInterestRate", Side::Right},
    EntryOf{"lblCurrentBalance", "txtCurrentBalance", Side::Right},
    EntryOf{"lblCurPaymentFrequency", "cboCurPaymentFrequency", Side::Left},
    EntryOf{"lblCurPayment", "txtCurPayment", Side::Right},
};

constexpr std::array CurrentSecondHalf{
    EntryOf{"lblCurActualPayment", "txtCurActualPayment", Side::Right},
    EntryOf{"lblActPaymentFrequency", "cboActPaymentFrequency", Side::Left},
    EntryOf{"lblNextPayment", "dtNextPayment", Side::Left},
    EntryOf{"lblCurPayoffDate", "txtCurPayoffDate", Side::Left},
    EntryOf{"lblCurAmountLeft", "txtCurAmountLeft", Side::Right},
    EntryOf{"lblCurInterestLeft", "txtCurInterestLeft", Side::Right},
};

constexpr std::array Headings{"lblPoints",   "lblInterestRate", "lblTerm",          "lblFrequency",
                              "lblPandI",    "lblPayment",      "lblActualPayment", "cmdPayoffDate",
                              "cmdInterest", "lblWho"};

struct ColumnOf {
    const char* control;
    Side side;
};

constexpr std::array<ColumnOf, OfferColumnCount> Columns{{
    {"chkPoints", Side::Left},
    {"txtPoints", Side::Right},
    {"txtInterestRate", Side::Right},
    {"txtTerm", Side::Right},
    {"cboFrequency", Side::Left},
    {"txtPandI", Side::Right},
    {"txtPayment", Side::Right},
    {"txtActualPayment", Side::Right},
    {"txtPayoffDate", Side::Left},
    {"txtInterest", Side::Right},
    {"txtWho", Side::Left},
}};

/// Makes every line break "\r\n" and turns other control characters into blanks.
QString Cleaned(QString text) {
    text.replace(LineBreak, QLatin1String("\n"));
    for (QChar& character : text) {
        if (character == u'\r' || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator) {
            character = u'\n';
        } else if (character != u'\n' && !character.isPrint() && !character.isSurrogate()) {
            character = u' ';
        }
    }
    return text.replace(u'\n', LineBreak);
}

QString TextOf(const QWidget& control) {
    for (const char* property : {"currentText", "text"}) {
        const QVariant text = control.property(property);
        if (text.isValid()) {
            return Cleaned(text.toString());
        }
    }
    return {};
}

/// The alignment of a label's or button's caption.
Side SideOf(const QWidget& control) {
    const QVariant alignment = control.property("alignment");
    if (!alignment.isValid()) {
        return Side::Centre; // the default of buttons
    }
    const Qt::Alignment side =
        QStyle::visualAlignment(control.layoutDirection(), alignment.value<Qt::Alignment>());
    if (side.testFlag(Qt::AlignHCenter)) {
        return Side::Centre;
    }
    return side.testFlag(Qt::AlignRight) ? Side::Right : Side::Left;
}

/// Reads one window, control by control.
class Reader {
public:
    explicit Reader(const Loan& window)
        : m_window(&window), m_origin(window.Form().centralWidget) {}

    const QWidget& Control(const QString& name) const {
        const auto* control = m_window->findChild<QWidget*>(name);
        Q_ASSERT(control);
        return *control;
    }
    const QWidget& Control(const char* name) const { return Control(QLatin1String(name)); }
    const QWidget& Control(const char* name, int row) const {
        return Control(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(row));
    }

    QRectF PlaceOf(const QWidget& control) const {
        return QRectF(QRect(control.mapTo(m_origin, QPoint(0, 0)), control.size()));
    }

    FormLabel Label(const char* name) const {
        const QWidget& control = Control(name);
        return {.caption = ShownCaption(control.property("text").toString()),
                .place = PlaceOf(control),
                .side = SideOf(control),
                .points = QFontInfo(control.font()).pointSizeF(),
                .bold = control.font().bold()};
    }

    FormEntry Entry(const EntryOf& entry) const {
        const QWidget& field = Control(entry.field);
        return {.label = Label(entry.label),
                .field = PlaceOf(field),
                .text = TextOf(field),
                .side = entry.side};
    }

    template <class Table>
    std::vector<FormEntry> Entries(const Table& table) const {
        std::vector<FormEntry> entries;
        entries.reserve(table.size());
        for (const EntryOf& entry : table) {
            entries.push_back(Entry(entry));
        }
        return entries;
    }

    /// From end to end, through the middle of the frame.
    QLineF Line(const char* name) const {
        const QRectF place = PlaceOf(Control(name));
        return {place.left(), place.center().y(), place.right(), place.center().y()};
    }

    FormColumn Column(const ColumnOf& column) const {
        const QWidget& control = Control(column.control, 0);
        return {.left = static_cast<double>(control.x()),
                .width = static_cast<double>(control.width()),
                .side = column.side};
    }

    FormRow Row(int row) const {
        FormRow texts;
        for (std::size_t column = 0; column < OfferColumnCount; ++column) {
            texts.at(column) = TextOf(Control(Columns.at(column).control, row));
        }
        const bool financed = Control(Columns.front().control, row).property("checked").toBool();
        texts.front() = financed ? QStringLiteral("x") : QString();
        return texts;
    }

private:
    const Loan* m_window;
    const QWidget* m_origin;
};

void ReadOffers(const Reader& reader, int highestRow, ReportInput& form) {
    std::ranges::transform(Columns, form.columns.begin(),
                           [&](const ColumnOf& column) { return reader.Column(column); });
    for (int row = 0; row <= highestRow; ++row) {
        form.rows.push_back(reader.Row(row));
    }
    form.fieldHeight = reader.Control("txtPoints", 0).height();
    form.scrollBarWidth = reader.Control("vsbLoans").width();
    const QRectF area = reader.PlaceOf(reader.Control("picScroll"));
    form.offersLeft = area.left();
    form.offersTop = area.top();
}

ReportInput Read(const Loan& window, int highestRow) {
    const Reader reader(window);
    ReportInput form;
    form.width = window.Form().centralWidget->width();
    form.pixelsPerPoint = PixelsPerPoint(window);
    form.fontFamily = QFontInfo(reader.Control("lblLoanName").font()).family();
    form.fontHeight = QFontMetricsF(window.font()).height();
    form.current = reader.Label("lblCurrent");
    form.header = reader.Entries(Header);
    form.lines = {reader.Line("Line1"), reader.Line("Line2"), reader.Line("Line3"),
                  reader.Line("Line4")};
    form.currentFirstHalf = reader.Entries(CurrentFirstHalf);
    form.currentSecondHalf = reader.Entries(CurrentSecondHalf);
    for (const char* heading : Headings) {
        form.headings.push_back(reader.Label(heading));
    }
    ReadOffers(reader, highestRow, form);
    form.legalNotice = QString::fromUtf8(
        VersionRecord::WordsIn(Language::Instance().LanguageTag().toStdString()).legalNotice);
    return form;
}

/// Lays the window's controls out at another width, invisibly, during its lifetime.
class OtherWidth {
public:
    OtherWidth(QScrollArea& frame, int width)
        : m_frame(&frame), m_controls(frame.widget()), m_before(m_controls->size()) {
        m_controls->setUpdatesEnabled(false);
        m_frame->setWidgetResizable(false);
        Resize(QSize(width, m_before.height()));
    }
    OtherWidth(const OtherWidth&) = delete;
    OtherWidth& operator=(const OtherWidth&) = delete;
    OtherWidth(OtherWidth&&) = delete;
    OtherWidth& operator=(OtherWidth&&) = delete;
    ~OtherWidth() {
        Resize(m_before);
        m_frame->setWidgetResizable(true);
        m_controls->setUpdatesEnabled(true);
    }

private:
    void Resize(QSize size) {
        m_controls->resize(size);
        m_controls->layout()->activate();
    }

    QScrollArea* m_frame;
    QWidget* m_controls;
    QSize m_before;
};

} // namespace

double PixelsPerPoint(const Loan& window) { return window.logicalDpiX() / 72.0; }

double LabelPoints(const Loan& window) {
    return QFontInfo(window.Form().lblLoanName->font()).pointSizeF();
}

QString ShownCaption(const QString& caption) {
    QString shown;
    for (qsizetype at = 0; at < caption.size(); ++at) {
        if (caption.at(at) == u'&' && at + 1 < caption.size()) {
            ++at;
        }
        shown += caption.at(at);
    }
    return shown;
}

ReportInput ReadForm(Loan& window, double widest) {
    QWidget& controls = *window.Form().centralWidget;
    const int highestRow = window.Rows().HighestOfferRow().value;
    window.ShowEdited();
    const int width = std::max(controls.minimumSizeHint().width(), static_cast<int>(widest));
    ReportInput form;
    if (controls.width() > width) {
        const OtherWidth narrower(*window.Form().scrWindow, width);
        form = Read(window, highestRow);
    } else {
        form = Read(window, highestRow);
    }
    window.Reenter();
    return form;
}

} // namespace quend::printing
