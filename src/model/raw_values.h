#pragma once

#include <QtCore/QLatin1StringView>
#include <QtCore/QStringList>
#include <QtCore/QStringView>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace tallyvane::model {

/// The stored texts of the cases of `E`, in declaration order. Specialised beside each enumeration,
/// whose cases count up from zero.
template <typename E>
inline constexpr std::array<QLatin1StringView, 0> rawValues{};

/// The stored text of one case.
template <typename E>
constexpr QLatin1StringView rawValue(E value) {
    return rawValues<E>[static_cast<std::size_t>(std::to_underlying(value))];
}

/// The case stored as `text`, which must match exactly.
template <typename E>
std::optional<E> fromRawValue(QStringView text) {
    const auto found = std::ranges::find_if(
        rawValues<E>, [text](QLatin1StringView stored) { return stored == text; });
    if (found == rawValues<E>.end()) {
        return std::nullopt;
    }
    return static_cast<E>(found - rawValues<E>.begin());
}

/// Every case, in declaration order.
template <typename E>
inline constexpr auto allCases = [] {
    std::array<E, rawValues<E>.size()> cases{};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        cases[i] = static_cast<E>(i);
    }
    return cases;
}();

} // namespace tallyvane::model
