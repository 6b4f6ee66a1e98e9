#include "CsvText.h"

#include <QStringView>

namespace quend::tool {

namespace {

bool IsFormula(const QString& text) {
    const QStringView shown = QStringView(text).trimmed();
    return !shown.isEmpty() && QStringView(u"=+-@").contains(shown.front());
}

bool NeedsQuotes(const QByteArray& text) {
    return text.contains(',') || text.contains('"') || text.contains('\r') || text.contains('\n');
}

} // namespace

QByteArray CsvText(const QString& text) {
    QByteArray cell = (IsFormula(text) ? QByteArray("'") : QByteArray()) + text.toUtf8();
    if (!NeedsQuotes(cell)) {
        return cell;
    }
    return '"' + QByteArray(cell).replace("\"", "\"\"") + '"';
}

CsvLines& CsvLines::Add(QByteArrayView value) {
    if (!m_isFirst) {
        m_bytes.append(',');
    }
    m_isFirst = false;
    m_bytes.append(value);
    return *this;
}

void CsvLines::EndLine() {
    m_bytes.append("\r\n");
    m_isFirst = true;
}

} // namespace quend::tool
