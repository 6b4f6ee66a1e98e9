#include "Captions.h"

#include "Language.h"

#include <QByteArray>
#include <QMetaObject>
#include <QObject>
#include <QString>
#include <QVariant>

#include <array>

namespace {

constexpr const char* CaptionNumber = "captionText";
constexpr const char* CaptionNumberInYears = "captionTextInYears";
constexpr const char* AccessibleText = "accessibleText";
constexpr const char* Ordinal = "_ordinal";

/// A dynamic property that holds a text's number, and the property that shows the text.
struct ShownText {
    const char* number = nullptr;
    const char* property = nullptr;
    const char* unless = nullptr; ///< a dynamic property: no text while it is true
    const char* kind = "QObject"; ///< the class of objects that show it
};

constexpr std::array ShownTexts{
    ShownText{"toolTipText", "toolTip", "toolTipAway"},
    ShownText{AccessibleText, "accessibleName"},
    ShownText{AccessibleText, "accessibleDescription", nullptr, "QComboBox"},
    ShownText{"activeText", "accessibleDescription", "activeTextAway"},
    ShownText{"hintText", "placeholderText"},
};

bool IsShownBy(const ShownText& shown, const QObject& object) {
    return object.property(shown.number).isValid() && object.inherits(shown.kind) &&
           object.metaObject()->indexOfProperty(shown.property) >= 0 &&
           !(shown.unless != nullptr && object.property(shown.unless).toBool());
}

/// In order of preference: what a group box or label shows comes before the title of a window,
/// which every widget has.
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

/// The form's own text, read before the first text of a language takes its place.
QString DesignText(QObject& object, const char* property) {
    const QByteArray keptAs = QByteArray("_design_") + property;
    QVariant kept = object.property(keptAs.constData());
    if (!kept.isValid()) {
        kept = object.property(property);
        object.setProperty(keptAs.constData(), kept);
    }
    return kept.toString();
}

/// What stands where the language has no text: the form's own, or English where the form left it
/// open.
QString TextInstead(int number, const QString& designText) {
    const QString english = Language::Instance().DefaultText(number);
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

/// A form's caption speaks of months: in years, English is nearer than a caption of the wrong unit.
void ShowInYears(QObject& object, const char* property, int number) {
    const QString designText = DesignText(object, property);
    const QString text = GetResourceText(number);
    object.setProperty(property, text.isNull() ? designText : text);
}

void ApplyCaption(QObject& object, TermUnit unit) {
    const char* property = CaptionPropertyOf(object);
    const QVariant number = object.property(CaptionNumber);
    const QVariant inYears = object.property(CaptionNumberInYears);
    if (property == nullptr) {
        return;
    }
    if (unit == TermUnit::Years && inYears.isValid()) {
        ShowInYears(object, property, inYears.toInt());
    } else if (number.isValid()) {
        Show(object, property, number.toInt(), 0);
    }
}

void ApplyToTree(QObject& object, TermUnit unit, int ordinalAround) {
    const QVariant ownOrdinal = object.property(Ordinal);
    const int ordinal = ownOrdinal.isValid() ? ownOrdinal.toInt() : ordinalAround;
    ApplyCaption(object, unit);
    for (const ShownText& shown : ShownTexts) {
        if (IsShownBy(shown, object)) {
            const bool isName = qstrcmp(shown.number, AccessibleText) == 0;
            Show(object, shown.property, object.property(shown.number).toInt(),
                 isName ? ordinal : 0);
        }
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
