#include "JsonReader.h"

#include <QLocale>
#include <QSet>
#include <QStringDecoder>

#include <rapidjson/error/error.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace quend::comparison {

std::optional<double> JsonScalar::Number() const {
    // Not QByteArrayView::toDouble, which is zero beyond the range instead of infinite.
    const double number = QLocale::c().toDouble(QString::fromLatin1(bytes));
    return std::isfinite(number) ? std::optional(number) : std::nullopt;
}

std::optional<QString> JsonScalar::Text() const {
    // Not QString::fromUtf8, which drops a U+FEFF at the start.
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    QString text = decode(bytes);
    return decode.hasError() ? std::nullopt : std::optional(std::move(text));
}

namespace {

constexpr std::size_t MostLevels = 32;

/// A name from a file, which may be long or hold anything, as a part of a message.
QString Shown(const QByteArray& name) {
    constexpr qsizetype Most = 40;
    QString shown = QString::fromUtf8(name).left(Most);
    for (QChar& c : shown) {
        if (!c.isPrint()) {
            c = QChar::ReplacementCharacter;
        }
    }
    return shown;
}

/// Where in the text the reader is: the containers that are open, outermost first.
class OpenContainers {
public:
    std::size_t Levels() const { return m_levels.size(); }
    void Open(JsonContainer container) { m_levels.push_back({container, {}, {}, 0}); }
    void Close() { m_levels.pop_back(); }
    /// False if the object has had a member of that name.
    bool AddMember(const QByteArray& name) {
        Level& object = m_levels.back();
        object.member = name;
        const auto before = object.members.size();
        object.members.insert(name);
        return object.members.size() > before;
    }
    void AddElement() {
        if (!m_levels.empty()) {
            ++m_levels.back().elements;
        }
    }
    /// Such as "offers[2].rate".
    QString Path() const {
        QString path;
        for (const Level& level : m_levels) {
            if (level.container == JsonContainer::List) {
                path += QStringLiteral("[%1]").arg(level.elements);
            } else {
                path += (path.isEmpty() ? QString() : QStringLiteral(".")) + Shown(level.member);
            }
        }
        return path;
    }

private:
    struct Level {
        JsonContainer container = JsonContainer::Object;
        QByteArray member; ///< the last one
        QSet<QByteArray> members;
        int elements = 0;
    };

    std::vector<Level> m_levels;
};

/// Passes what RapidJSON finds to the events; its functions return false to end the run.
class Handler : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Handler> {
public:
    explicit Handler(JsonEvents& events) : m_events(&events) {}

    const Fault& FoundFault() const { return m_fault; }
    QString Path() const { return m_open.Path(); }

    bool Null() { return Value({}); }
    bool Bool(bool flag) { return Value({JsonScalar::Type::Flag, flag, {}}); }
    bool RawNumber(const char* digits, rapidjson::SizeType length, bool /*copy*/) {
        return Value({JsonScalar::Type::Number, false, {digits, static_cast<qsizetype>(length)}});
    }
    bool String(const char* text, rapidjson::SizeType length, bool /*copy*/) {
        return Value({JsonScalar::Type::Text, false, {text, static_cast<qsizetype>(length)}});
    }
    bool Key(const char* text, rapidjson::SizeType length, bool /*copy*/) {
        const QByteArray name(text, static_cast<qsizetype>(length));
        if (!m_open.AddMember(name)) {
            return Take(FileFault::Duplicate);
        }
        m_events->Key(name);
        return true;
    }
    bool StartObject() { return Open(JsonContainer::Object); }
    bool EndObject(rapidjson::SizeType /*members*/) { return Close(); }
    bool StartArray() { return Open(JsonContainer::List); }
    bool EndArray(rapidjson::SizeType /*elements*/) { return Close(); }

private:
    bool Take(Fault fault) {
        m_fault = fault;
        return !fault;
    }
    bool Value(const JsonScalar& value) {
        m_open.AddElement();
        return Take(m_events->Value(value));
    }
    bool Open(JsonContainer container) {
        m_open.AddElement();
        if (m_open.Levels() == MostLevels) {
            return Take(FileFault::TooDeep);
        }
        const bool goesOn = Take(m_events->Open(container));
        if (goesOn) {
            m_open.Open(container);
        }
        return goesOn;
    }
    bool Close() {
        m_open.Close();
        m_events->Close();
        return true;
    }

    JsonEvents* m_events;
    OpenContainers m_open;
    Fault m_fault;
};

int LineAt(QByteArrayView json, std::size_t offset) {
    const auto before = json.first(std::min(static_cast<qsizetype>(offset), json.size()));
    return 1 + static_cast<int>(std::count(before.begin(), before.end(), '\n'));
}

QByteArrayView WithoutByteOrderMark(QByteArrayView json) {
    constexpr QByteArrayView Mark("\xEF\xBB\xBF");
    return json.startsWith(Mark) ? json.sliced(Mark.size()) : json;
}

// Numbers as texts, because they are then exact, and only those in use are converted.
constexpr unsigned Flags = rapidjson::kParseIterativeFlag | rapidjson::kParseValidateEncodingFlag |
                           rapidjson::kParseNumbersAsStringsFlag;

/// Why a run that did not reach the end ended.
FileError ErrorOf(const rapidjson::ParseResult& result, Handler& handler, QByteArrayView text) {
    const int line = LineAt(text, result.Offset());
    if (result.Code() == rapidjson::kParseErrorNumberTooBig) {
        constexpr QByteArrayView TooBig("1e999");
        handler.RawNumber(TooBig.data(), static_cast<rapidjson::SizeType>(TooBig.size()), false);
        return {handler.FoundFault().value_or(FileFault::NotANumber), line, handler.Path()};
    }
    if (handler.FoundFault()) {
        return {*handler.FoundFault(), line, handler.Path()};
    }
    return {FileFault::NotJson, line, {}};
}

} // namespace

std::optional<FileError> ReadJson(const QByteArray& json, JsonEvents& events) {
    if (json.size() > MostBytes) {
        return FileError{FileFault::TooLarge, 1, {}};
    }
    const QByteArrayView text = WithoutByteOrderMark(json);
    Handler handler(events);
    rapidjson::MemoryStream stream(text.data(), static_cast<std::size_t>(text.size()));
    rapidjson::Reader reader;
    const rapidjson::ParseResult result = reader.Parse<Flags>(stream, handler);
    if (result.IsError()) {
        return ErrorOf(result, handler, text);
    }
    if (static_cast<qsizetype>(stream.Tell()) < text.size()) { // RapidJSON ends at a zero byte
        return FileError{FileFault::NotJson, LineAt(text, stream.Tell()), {}};
    }
    return std::nullopt;
}

} // namespace quend::comparison
