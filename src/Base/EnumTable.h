#pragma once

#include <cstddef>

/// Is a table indexed by an enumeration complete and in its order? To be asked in a static_assert, so that a row that
/// is forgotten or swapped does not compile.
/// @param value the member of a row that says which value it belongs to
/// @param count number of values; they count from 0
template <class Row, std::size_t n, class Value>
constexpr bool isIndexedBy(const Row (&rows)[n], Value Row::*value, int count)
{
    for (std::size_t i = 0; i < n; ++i) {
        if (rows[i].*value != static_cast<Value>(i))
            return false;
    }
    return n == static_cast<std::size_t>(count);
}
