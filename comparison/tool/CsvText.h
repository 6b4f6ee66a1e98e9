#pragma once

#include "ToolNames.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace quend::tool {

/// A text as a cell of comma-separated values: quoted where it has to be, and after an apostrophe
/// where a spreadsheet would take it for a formula.
QByteArray CsvText(const QString& text);

/// Lines of comma-separated values, ended by CR LF. Does not quote: values are numbers, dates and
/// words, or texts by CsvText.
class CsvLines {
public:
    CsvLines& Add(QByteArrayView value);
    void EndLine();
    const QByteArray& Bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    bool m_isFirst = true;
};

} // namespace quend::tool
