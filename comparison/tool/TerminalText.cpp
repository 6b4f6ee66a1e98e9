#include "TerminalText.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <cstddef>

namespace quend::tool {

namespace {

struct Range {
    char32_t first;
    char32_t last;
};

/// Scripts and pictographs that terminals show in two places.
constexpr std::array WideRanges{
    Range{0x1100, 0x115F},   Range{0x231A, 0x231B},   Range{0x23E9, 0x23EC},
    Range{0x2614, 0x2615},   Range{0x26AA, 0x26AB},   Range{0x2705, 0x2705},
    Range{0x2728, 0x2728},   Range{0x2795, 0x2797},   Range{0x2B1B, 0x2B1C},
    Range{0x2B50, 0x2B50},   Range{0x2E80, 0x303E},   Range{0x3041, 0xA4CF},
    Range{0xA960, 0xA97C},   Range{0xAC00, 0xD7A3},   Range{0xF900, 0xFAFF},
    Range{0xFE30, 0xFE6F},   Range{0xFF00, 0xFF60},   Range{0xFFE0, 0xFFE6},
    Range{0x1F1E6, 0x1F202}, Range{0x1F300, 0x1F64F}, Range{0x1F680, 0x1F6FF},
    Range{0x1F900, 0x1FAFF}, Range{0x20000, 0x3FFFD},
};

int PlacesOfCharacter(char32_t character) {
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        break;
    }
    return std::ranges::any_of(WideRanges,
                               [character](const Range& range) {
                                   return character >= range.first && character <= range.last;
                               })
               ? 2
               : 1;
}

QString Aligned(const QString& text, int places, Align align) {
    const QString blanks(std::max(0, places - PlacesOf(text)), u' ');
    return align == Align::Left ? text + blanks : blanks + text;
}

QString WithoutEndBlanks(QString line) {
    while (line.endsWith(u' ')) {
        line.chop(1);
    }
    return line;
}

/// Each line of the headings as a row; the last line of each is in the last row.
std::vector<QStringList> HeadingRows(const std::vector<TextColumn>& columns) {
    qsizetype height = 0;
    for (const TextColumn& column : columns) {
        height = std::max(height, column.heading.count(u'\n') + 1);
    }
    std::vector<QStringList> rows(static_cast<std::size_t>(height));
    for (const TextColumn& column : columns) {
        QStringList lines = column.heading.split(u'\n');
        while (lines.size() < height) {
            lines.prepend(QString());
        }
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rows[i].append(lines[static_cast<qsizetype>(i)]);
        }
    }
    return rows;
}

} // namespace

QString PlainText(QStringView text) {
    QString plain;
    for (const char32_t character : text.toUcs4()) {
        switch (QChar::category(character)) {
        case QChar::Other_Control:
        case QChar::Separator_Line:
        case QChar::Separator_Paragraph:
            plain.append(u' ');
            break;
        case QChar::Other_Format: // such as those that turn the direction of what follows
        case QChar::Other_Surrogate:
            break;
        default:
            plain.append(QChar::fromUcs4(character));
        }
    }
    return plain.trimmed();
}

int PlacesOf(QStringView text) {
    int places = 0;
    for (const char32_t character : text.toUcs4()) {
        places += PlacesOfCharacter(character);
    }
    return places;
}

QString CutTo(const QString& text, int places) {
    if (PlacesOf(text) <= places) {
        return text;
    }
    QString cut;
    int used = 1; // the sign of the cut
    for (const char32_t character : text.toUcs4()) {
        used += PlacesOfCharacter(character);
        if (used > places) {
            break;
        }
        cut.append(QChar::fromUcs4(character));
    }
    return cut.trimmed() + u'…';
}

QString Wrapped(const QString& text, int indent) {
    constexpr int Width = 79;
    QString wrapped;
    for (const QString& line : text.split(u'\n')) {
        int used = 0;
        for (const QString& word : line.split(u' ')) {
            const bool isFirst = used == 0;
            const int places = PlacesOf(word) + (isFirst ? 0 : 1);
            const bool fits = used + places <= Width - indent;
            if (isFirst || !fits) {
                wrapped +=
                    (isFirst ? QString() : QStringLiteral("\n")) + QString(indent, u' ') + word;
                used = PlacesOf(word);
            } else {
                wrapped += u' ' + word;
                used += places;
            }
        }
        wrapped = WithoutEndBlanks(wrapped) + u'\n';
    }
    return wrapped;
}

QString AlignedLines(const std::vector<TextColumn>& columns, const std::vector<QStringList>& rows) {
    std::vector<QStringList> all = HeadingRows(columns);
    all.insert(all.end(), rows.begin(), rows.end());
    std::vector<int> widths(columns.size(), 0);
    for (const QStringList& row : all) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            widths[i] = std::max(widths[i], PlacesOf(row[static_cast<qsizetype>(i)]));
        }
    }
    QString lines;
    for (const QStringList& row : all) {
        QStringList cells;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            cells.append(Aligned(row[static_cast<qsizetype>(i)], widths[i], columns[i].align));
        }
        lines += WithoutEndBlanks(cells.join(QStringLiteral("  "))) + u'\n';
    }
    return lines;
}

} // namespace quend::tool
