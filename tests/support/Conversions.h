#pragma once

#include <QString>
#include <QStringView>

#include <type_traits>

/// Whether neither type converts to the other, unless a call names the conversion.
template <class One, class Other>
constexpr bool IsApart = !std::is_convertible_v<One, Other> && !std::is_convertible_v<Other, One>;

/// Whether a type is apart from all others, itself excepted.
template <class Value, class... Others>
constexpr bool IsApartFrom = (... && (std::is_same_v<Value, Others> || IsApart<Value, Others>));

/// Whether each type of a list is apart from the others, and from numbers and texts.
template <class... Values>
constexpr bool AreApart = (... &&
                           IsApartFrom<Values, Values..., double, int, bool, QString, QStringView>);
