#include "CompareExport.h"

#include "CompareTextNumbers.h"
#include "ExportDialog.h"
#include "FigureTable.h"
#include "Language.h"
#include "NotSaved.h"
#include "SaveFile.h"

namespace quend::compare {

namespace {

struct ExportFormat {
    int filter; ///< the number of its text
    QChar separator;
};

constexpr ExportFormat Semicolons{TextNumber::ExportSemicolons, u';'};
constexpr ExportFormat Commas{TextNumber::ExportCommas, u','};

QByteArray TableOf(const ComparePage& page, const QLocale& locale, QChar separator) {
    TextSymbols symbols = SymbolsOf(locale);
    symbols.separator = separator;
    if (symbols.decimal == separator) {
        symbols.decimal = u'.';
    }
    return SeparatedValues(page.Table().AllCells(), symbols);
}

} // namespace

QString ExportPage(const ComparePage& page, QWidget& parent, const CompareWorld& world,
                   const QLocale& locale) {
    std::vector<ExportFormat> formats{Commas, Semicolons};
    if (SymbolsOf(locale).separator == Semicolons.separator) {
        std::swap(formats.front(), formats.back());
    }
    QStringList filters;
    for (const ExportFormat& format : formats) {
        filters << GetResourceText(format.filter);
    }
    const QString pdf = GetResourceText(TextNumber::ExportPdf);
    filters << pdf;
    const ExportFile file = world.askForFile(parent, page.Title(), filters);
    if (file.name.isEmpty()) {
        return {};
    }
    if (file.filter == pdf || file.name.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) {
        return world.exportPdf(file.name, page.Title(),
                               [&page](const printing::Paper& paper) { return page.Draw(paper); });
    }
    const auto chosen = filters.indexOf(file.filter);
    const auto& format = formats.at(chosen < 0 ? 0U : static_cast<std::size_t>(chosen));
    return NotSavedText(file.name, SaveFile(file.name, TableOf(page, locale, format.separator)));
}

} // namespace quend::compare
