#pragma once

#include <QString>
#include <QStringView>

#include <type_traits>

/// Whether neither type converts to the other, unless a call names the conversion.
template <class One, class Other>
constexpr bool IsApart = !std::is_convertible_v<One, Other> && !std::is_convertible_v<Other, One>;

/// Whether a type is apart from all others, itself excepted, and from numbers and texts.
template <class Value, class... Others>
constexpr bool
    IsApartFrom = (... && (std::is_same_v<Value, Others> || IsApart<Value, Others>)) &&
                  IsApart<Value, double>&& IsApart<Value, int>&& IsApart<Value, bool>&& IsApart<
                      Value, QString>&& IsApart<Value, QStringView>;

/// The same for each pair of a list.
template <class... Values>
constexpr bool AreApart = (... && IsApartFrom<Values, Values...>);
