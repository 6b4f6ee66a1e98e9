#pragma once

#include "WorksheetFile.h"

#include <QByteArrayView>
#include <QString>

#include <optional>

namespace quend::comparison {

/// None: no fault.
using Fault = std::optional<FileFault>;

/// A value of a JSON text that contains no others. Its texts are valid only while it is reported.
struct JsonScalar {
    enum class Type { Null, Flag, Number, Text };

    Type type = Type::Null;
    bool flag = false;
    QByteArrayView bytes; ///< the digits of a number; a text in UTF-8, without its escapes

    /// None where the number is beyond the range of double.
    std::optional<double> Number() const;
    /// None for an unpaired surrogate, which UTF-8 cannot hold but an escape can.
    std::optional<QString> Text() const;
};

enum class JsonContainer { Object, List };

/// Takes the values of a JSON text in their order; each function may refuse what it is given.
class JsonEvents {
public:
    JsonEvents() = default;
    JsonEvents(const JsonEvents&) = delete;
    JsonEvents& operator=(const JsonEvents&) = delete;
    JsonEvents(JsonEvents&&) = delete;
    JsonEvents& operator=(JsonEvents&&) = delete;
    virtual ~JsonEvents() = default;

    virtual void Key(QByteArrayView name) = 0; ///< of the next value
    virtual Fault Value(const JsonScalar& value) = 0;
    virtual Fault Open(JsonContainer container) = 0;
    virtual void Close() = 0;
};

/// Reads one JSON value, a byte order mark before it allowed. Reports the first fault: in the JSON
/// (NotJson, TooLarge, TooDeep, Duplicate; NotANumber for a number beyond the range of double that
/// the events do not refuse), or one by the events. The cost is linear in the bytes.
std::optional<FileError> ReadJson(const QByteArray& json, JsonEvents& events);

} // namespace quend::comparison
