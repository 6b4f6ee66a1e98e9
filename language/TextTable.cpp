#include "TextTable.h"

#include <QStringList>

#include <algorithm>
#include <limits>
#include <optional>

namespace quend::language {

namespace {

constexpr int WholeTable = 0;

/// The text with its escapes resolved; no value for an unknown escape.
std::optional<QString> Unescaped(QStringView text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\\') {
            result += text[i];
            continue;
        }
        ++i;
        if (i == text.size() || (text[i] != u'n' && text[i] != u'\\')) {
            return std::nullopt;
        }
        result += text[i] == u'n' ? QChar(u'\n') : QChar(u'\\');
    }
    return result;
}

bool IsDigits(QStringView key) {
    return std::all_of(key.begin(), key.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

TextTable TextTable::Parse(QStringView source) {
    TextTable table;
    int line = 0;
    for (const QStringView content : source.split(u'\n')) {
        table.ReadLine(++line, content.trimmed());
    }
    if (table.m_languageName.isEmpty()) {
        table.AddFault(WholeTable, QStringLiteral("no line \"language = …\""));
    }
    if (table.m_tag.isEmpty()) {
        table.AddFault(WholeTable, QStringLiteral("no line \"tag = …\""));
    }
    return table;
}

QString TextTable::Text(int id) const {
    const auto found = m_texts.find(id);
    return found == m_texts.end() ? QString() : found->second;
}

void TextTable::ReadLine(int line, QStringView content) {
    if (content.isEmpty() || content.startsWith(u'#')) {
        return;
    }
    const qsizetype equals = content.indexOf(u'=');
    const QStringView key = content.first(std::max<qsizetype>(equals, 0)).trimmed();
    if (key.isEmpty()) {
        AddFault(line, QStringLiteral("neither a note nor \"number = text\""));
        return;
    }
    const std::optional<QString> value = Unescaped(content.sliced(equals + 1).trimmed());
    if (!value) {
        AddFault(line, QStringLiteral("a backslash before neither \"n\" nor a backslash"));
    } else if (value->isEmpty()) {
        AddFault(line, QStringLiteral("nothing after the equals sign"));
    } else if (IsDigits(key)) {
        ReadText(line, key, *value);
    } else {
        ReadHeader(line, key, *value);
    }
}

void TextTable::ReadHeader(int line, QStringView key, const QString& value) {
    if (key != u"language" && key != u"tag") {
        AddFault(line, QStringLiteral("\"%1\" is no number").arg(key));
        return;
    }
    QString& header = key == u"tag" ? m_tag : m_languageName;
    if (!header.isEmpty()) {
        AddFault(line, QStringLiteral("a second \"%1\"").arg(key));
        return;
    }
    header = value;
}

void TextTable::ReadText(int line, QStringView key, const QString& text) {
    const qulonglong number = key.toULongLong(); // 0 also if too large
    if (number == 0 || number > std::numeric_limits<int>::max()) {
        AddFault(line, QStringLiteral("the number %1 is out of range").arg(key));
    } else if (!m_texts.emplace(static_cast<int>(number), text).second) {
        AddFault(line, QStringLiteral("a second text %1").arg(number));
    }
}

void TextTable::AddFault(int line, const QString& description) {
    m_faults.push_back({line, description});
}

} // namespace quend::language
