#pragma once

#include <initializer_list>

namespace nsProc {

/// A short list in a table of constants, with room for N elements.
template <class T, int N>
class ConstList
{
public:
    constexpr ConstList() = default;
    constexpr ConstList(std::initializer_list<T> values)
    {
        for (const T& value : values)
            m_values[m_count++] = value;
    }

    constexpr const T* begin() const { return m_values; }
    constexpr const T* end() const { return m_values + m_count; }
    constexpr int count() const { return m_count; }
    constexpr bool contains(const T& value) const
    {
        for (const T& element : *this) {
            if (element == value)
                return true;
        }
        return false;
    }

private:
    T m_values[N] = {};
    int m_count = 0;
};

} // namespace nsProc
