#include "ReportInputReader.h"

#include "Captions.h"
#include "Field.h"
#include "Language.h"
#include "Loan.h"
#include "LoanForm.h"
#include "OfferColumns.h"
#include "OfferRows.h"
#include "PrintedPage.h"
#include "TextNumbers.h"

#include <QFontInfo>
#include <QLayout>
#include <QScrollArea>

#include <algorithm>
#include <array>

namespace quend::printing {

namespace {

/// A field and its label.
struct EntryOf {
    const char* label;
    FieldId field;
};

constexpr std::array Header{
    EntryOf{"lblLoanName", FieldId::LoanName},
    EntryOf{"lblLoanType", FieldId::LoanType},
    EntryOf{"lblLoanAmount", FieldId::LoanAmount},
    EntryOf{"lblLoanTerm", FieldId::LoanTerm},
    EntryOf{"lblAnnualTaxes", FieldId::AnnualTaxes},
    EntryOf{"lblAnnualInsurance", FieldId::AnnualInsurance},
    EntryOf{"lblMonthlyEscrow", FieldId::MonthlyEscrow},
};

constexpr std::array CurrentFirstHalf{
    EntryOf{"lblCurLoanAmount", FieldId::CurLoanAmount},
    EntryOf{"lblCurLoanTerm", FieldId::CurLoanTerm},
    EntryOf{"lblCurInterestRate", FieldId::CurInterestRate},
    EntryOf{"lblCurrentBalance", FieldId::CurrentBalance},
    EntryOf{"lblCurPaymentFrequency", FieldId::CurPaymentFrequency},
    EntryOf{"lblCurPayment", FieldId::CurPayment},
};

constexpr std::array CurrentSecondHalf{
    EntryOf{"lblCurActualPayment", FieldId::CurActualPayment},
    EntryOf{"lblActPaymentFrequency", FieldId::ActPaymentFrequency},
    EntryOf{"lblNextPayment", FieldId::NextPayment},
    EntryOf{"lblCurPayoffDate", FieldId::CurPayoffDate},
    EntryOf{"lblCurAmountLeft", FieldId::CurAmountLeft},
    EntryOf{"lblCurInterestLeft", FieldId::CurInterestLeft},
};

/// The side of a field's text.
Side SideOf(const FieldRule& rule) { return rule.IsNumber() ? Side::Right : Side::Left; }

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

QString TickOf(const QWidget& box) {
    return box.property("checked").toBool() ? QStringLiteral("x") : QString();
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
    const QWidget& Control(const FieldRule& rule, int row) const {
        return Control(QStringLiteral("%1(%2)").arg(rule.control).arg(row));
    }

    QRectF PlaceOf(const QWidget& control) const {
        return QRectF(QRect(control.mapTo(m_origin, QPoint(0, 0)), control.size()));
    }

    FormLabel Label(const char* name) const {
        const QWidget& control = Control(name);
        return {.caption = WithoutAccessKey(control.property("text").toString()),
                .place = PlaceOf(control),
                .side = SideOf(control),
                .points = QFontInfo(control.font()).pointSizeF(),
                .bold = control.font().bold()};
    }

    FormEntry Entry(const EntryOf& entry) const {
        const FieldRule& rule = RuleOf(entry.field);
        const QWidget& field = Control(QString(rule.control));
        return {.label = Label(entry.label),
                .field = PlaceOf(field),
                .text = TextOf(field),
                .side = SideOf(rule)};
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

    FormColumn Column(const FieldRule& rule) const {
        const QWidget& control = Control(rule, 0);
        return {.left = static_cast<double>(control.x()),
                .width = static_cast<double>(control.width()),
                .side = SideOf(rule)};
    }

    FormRow Row(int row) const {
        FormRow texts;
        for (const FieldRule& rule : OfferFields()) {
            texts.push_back(rule.kind == ValueKind::Flag ? TickOf(Control(rule, row))
                                                         : TextOf(Control(rule, row)));
        }
        return texts;
    }

private:
    const Loan* m_window;
    const QWidget* m_origin;
};

void ReadOffers(const Reader& reader, int highestRow, ReportInput& form) {
    for (const FieldRule& rule : OfferFields()) {
        form.columns.push_back(reader.Column(rule));
    }
    for (int row = 0; row <= highestRow; ++row) {
        form.rows.push_back(reader.Row(row));
    }
    form.fieldHeight = reader.Control(RuleOf(FieldId::Points), 0).height();
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
    form.fontFamily = LabelFamily(window);
    form.fontHeight = QFontMetricsF(window.font()).height();
    form.current = reader.Label("lblCurrent");
    form.header = reader.Entries(Header);
    form.lines = {reader.Line("Line1"), reader.Line("Line2"), reader.Line("Line3"),
                  reader.Line("Line4")};
    form.currentFirstHalf = reader.Entries(CurrentFirstHalf);
    form.currentSecondHalf = reader.Entries(CurrentSecondHalf);
    for (const OfferHeading& heading : OfferHeadings()) {
        form.headings.push_back(reader.Label(heading.control));
    }
    ReadOffers(reader, highestRow, form);
    form.legalNotice = GetResourceText(TextNumber::LegalNotice);
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
    Q_DISABLE_COPY_MOVE(OtherWidth)
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

QString LabelFamily(const Loan& window) {
    return QFontInfo(window.Form().lblLoanName->font()).family();
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
