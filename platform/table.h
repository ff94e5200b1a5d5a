#pragma once

#include <array>
#include <cstddef>

namespace platform {

/// A fixed table of `Size` values with indexes 0 to `Size` - 1. Every access is checked: an index out of
/// bounds throws std::out_of_range. Assigning `{}` empties it.
template <typename Value, std::size_t Size>
class Table {
public:
    constexpr Value& operator[](int index) { return values_.at(static_cast<std::size_t>(index)); }
    constexpr const Value& operator[](int index) const { return values_.at(static_cast<std::size_t>(index)); }

    constexpr int size() const { return static_cast<int>(Size); }
    constexpr void fill(const Value& value) { values_.fill(value); }

    constexpr auto begin() { return values_.begin(); }
    constexpr auto end() { return values_.end(); }
    constexpr auto begin() const { return values_.begin(); }
    constexpr auto end() const { return values_.end(); }

    constexpr bool operator==(const Table&) const = default;

private:
    std::array<Value, Size> values_{};
};

} // namespace platform
