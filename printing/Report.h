#pragma once

#include "Drawing.h"
#include "PageDrawing.h"
#include "ReportInput.h"

#include <array>
#include <cstddef>

namespace quend::printing {

/// Draws the report of a worksheet on pages in memory: the window on paper, black on white, its
/// offers split over as many pages as they need. Computes nothing and reads nothing from the
/// window. The job (frmPrint) decides when to draw, when to stop and whether anything is printed.
class Report : public Drawing {
public:
    /// `space`: the printable part of a page in twips. The metrics must outlive the report.
    Report(ReportInput form, QSizeF space, const TextMetrics& metrics);

    /// Whether the first page has room for the loan and one offer row below it.
    bool HasRoomForARow() const;

    // The sections; draw each once, in this order.
    void PrintLoanHeader();
    void PrintCurrentLoanFirstHalf();
    void PrintCurrentLoanSecondHalf();
    void PrintOffers();

    using Section = void (Report::*)();
    static constexpr std::array<Section, 4> Sections{
        &Report::PrintLoanHeader, &Report::PrintCurrentLoanFirstHalf,
        &Report::PrintCurrentLoanSecondHalf, &Report::PrintOffers};

    /// The legal notice at the foot of the page; call for the last page after everything is drawn.
    void PrintPageFooter();

    bool Fits() const override { return HasRoomForARow(); }
    bool DrawNext() override;
    void Finish() override { PrintPageFooter(); }
    const PrintedPages& Pages() const override { return m_page.Pages(); }

    /// The widest window whose text is still legible on a page of this printable width (twips).
    static double WidestWindow(double scaleWidth, double points, double pixelsPerPoint);

private:
    void Prepare();
    void TakeScaleFactor();
    double TypeScale() const;
    void TakeLabelFont(const FormLabel& label);
    void PrintCaption(const FormLabel& label, double top);
    void PrintEntry(const FormEntry& entry);
    void PrintEntries(const std::vector<FormEntry>& entries);
    void PrintColumnHeaders();
    void PrintRow(const FormRow& row);
    void PrintRowPart(FormRow& texts);
    void PrintHighRow(FormRow& texts);
    void StartNewPage();
    void PrintPageNumber();

    const FormLabel& lblLoanName() const { return m_form.header.front().label; }
    QString LenderTextOf(const FormRow& row) const;
    double LineHeight() const;
    double HeightOf(qsizetype lines) const;
    double RowLimit() const;
    double ColumnWidth(std::size_t column) const;

    ReportInput m_form;
    PageDrawing m_page;
    std::size_t m_sectionsDrawn = 0;
    double m_footerReserve = 0; ///< twips
    double m_rowTop = 0;        ///< window units, like all that follow
    double m_rowHeight = 0;
    double m_lenderColumnWidth = 0;
};

} // namespace quend::printing
