#include "Captions.h"

#include "Language.h"

#include <QByteArray>
#include <QList>
#include <QMetaObject>
#include <QObject>
#include <QString>
#include <QVariant>

#include <array>

namespace quend::language {

namespace {

constexpr const char* Ordinal = "_ordinal";

/// A dynamic property that holds a text's number, and the property that shows the text.
struct ShownText {
    const char* number = nullptr;
    const char* property = nullptr;
    const char* unless = nullptr; ///< a dynamic property: no text while it is true
    const char* kind = "QObject"; ///< the class of objects that show it
};

constexpr std::array ShownTexts{
    ShownText{TextProperty::ToolTip, "toolTip", TextProperty::ToolTipAway},
    ShownText{TextProperty::Name, "accessibleName"},
    ShownText{TextProperty::Name, "accessibleDescription", nullptr, "QComboBox"},
    ShownText{TextProperty::Active, "accessibleDescription", TextProperty::ActiveAway},
    ShownText{TextProperty::Hint, "placeholderText"},
};

/// The dynamic properties of an object. Most objects of a form have none, and reading a missing one
/// is slow: Qt compares the names of all properties of the class.
using Given = QList<QByteArray>;

bool IsShownBy(const ShownText& shown, const QObject& object, const Given& given) {
    return given.contains(shown.number) && object.inherits(shown.kind) &&
           object.metaObject()->indexOfProperty(shown.property) >= 0 &&
           !(shown.unless != nullptr && given.contains(shown.unless) &&
             object.property(shown.unless).toBool());
}

/// In order of preference: the text of a group box or label comes before the window title, which
/// every widget has.
constexpr std::array CaptionProperties{"title", "text", "windowTitle"};

bool HasProperty(const QObject& object, const char* property) {
    return object.metaObject()->indexOfProperty(property) >= 0;
}

const char* CaptionPropertyOf(const QObject& object) {
    for (const char* property : CaptionProperties) {
        if (HasProperty(object, property)) {
            return property;
        }
    }
    return nullptr;
}

/// The form's own text, read before the first text of a language replaces it.
QString DesignText(QObject& object, const char* property) {
    const QByteArray keptAs = QByteArray("_design_") + property;
    QVariant kept = object.property(keptAs.constData());
    if (!kept.isValid()) {
        kept = object.property(property);
        object.setProperty(keptAs.constData(), kept);
    }
    return kept.toString();
}

/// The text to use if the language has none: the form's own, or English if the form has none
/// either.
QString TextInstead(int number, const QString& designText) {
    const QString english = Language::DefaultText(number);
    return designText.isEmpty() && !english.isNull() ? english : designText;
}

void Show(QObject& object, const char* property, int number, int ordinal) {
    const QString designText = DesignText(object, property);
    QString text = Language::Instance().Text(number);
    if (text.isNull()) {
        text = TextInstead(number, designText);
    }
    if (ordinal > 0) {
        text.replace(QStringLiteral("%1"), QString::number(ordinal));
    }
    object.setProperty(property, text);
}

/// The form's caption is in months; English is better than a caption with the wrong unit.
void ShowInYears(QObject& object, const char* property, int number) {
    const QString designText = DesignText(object, property);
    const QString text = GetResourceText(number);
    object.setProperty(property, text.isNull() ? designText : text);
}

void ApplyCaption(QObject& object, TermUnit unit, const Given& given) {
    const bool inYears = unit == TermUnit::Years && given.contains(TextProperty::CaptionInYears);
    if (!inYears && !given.contains(TextProperty::Caption)) {
        return;
    }
    const char* property = CaptionPropertyOf(object);
    if (property == nullptr) {
        return;
    }
    if (inYears) {
        ShowInYears(object, property, object.property(TextProperty::CaptionInYears).toInt());
    } else {
        Show(object, property, object.property(TextProperty::Caption).toInt(), 0);
    }
}

int OrdinalOf(const QObject& object, const Given& given, int ordinalAround) {
    return given.contains(Ordinal) ? object.property(Ordinal).toInt() : ordinalAround;
}

void ApplyToObject(QObject& object, TermUnit unit, const Given& given, int ordinal) {
    ApplyCaption(object, unit, given);
    for (const ShownText& shown : ShownTexts) {
        if (IsShownBy(shown, object, given)) {
            const bool isName = qstrcmp(shown.number, TextProperty::Name) == 0;
            Show(object, shown.property, object.property(shown.number).toInt(),
                 isName ? ordinal : 0);
        }
    }
}

void ApplyToTree(QObject& object, TermUnit unit, int ordinalAround) {
    const Given given = object.dynamicPropertyNames();
    const int ordinal = OrdinalOf(object, given, ordinalAround);
    if (!given.isEmpty()) {
        ApplyToObject(object, unit, given, ordinal);
    }
    for (QObject* child : object.children()) {
        ApplyToTree(*child, unit, ordinal);
    }
}

} // namespace

void ApplyTexts(QObject& window, TermUnit unit, int ordinal) {
    if (ordinal > 0) {
        window.setProperty(Ordinal, ordinal);
    }
    ApplyToTree(window, unit, 0);
}

QString WithoutAccessKey(const QString& caption) {
    QString shown;
    for (qsizetype at = 0; at < caption.size(); ++at) {
        if (caption.at(at) == u'&' && at + 1 < caption.size()) {
            ++at;
        }
        shown += caption.at(at);
    }
    return shown;
}

} // namespace quend::language
