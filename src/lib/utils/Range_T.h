#ifndef QRL_LIB_UTILS_RANGE_T_H
#define QRL_LIB_UTILS_RANGE_T_H

#include "lib/utils/Assert.h"

#include <algorithm>

namespace base {

/// A closed interval of an ordered value type: both ends belong to it, and equal ends hold one value.
///
/// A range whose lower end lies above its upper end is empty. So "nothing" needs no flag and costs one comparison.
/// Operations that make an empty range always write the pair (1, 0). Copies are as cheap as two values.
template <class T>
class Range_T {
public:
    /// An empty range, stored as (1, 0).
    constexpr Range_T() : m_Min(1), m_Max(0) {
        if (!IsEmpty())
            ReportNotEmpty();
    }
    /// The range that holds `value` alone.
    constexpr explicit Range_T(T value) : m_Min(value), m_Max(value) {}
    /// The range between two values in any order; it is never empty.
    constexpr Range_T(T a, T b) : m_Min(std::min(a, b)), m_Max(std::max(a, b)) {}

    constexpr bool IsEmpty() const { return m_Min > m_Max; }

    /// The ends, the middle and the size. Of an empty range they are reported and computed from what is stored.
    T GetMin() const;
    T GetMax() const;
    /// A range of one value gives exactly that value, also where doubling it would overflow.
    T GetCenter() const;
    T GetSize() const;

    /// Both ends moved outward by `e`. A negative `e` beyond half the size doesn't end in emptiness: the ends cross
    /// and make a range of size 2|e| - size. Who wants shrinking to end in emptiness tests for it first.
    Range_T GetExpanded(T e) const;
    /// -1 for a value below the range, 1 for one above it, 0 for one in it.
    int GetPosition(T value) const;

    /// Whether the two share a value; ranges that touch do, an empty one shares nothing.
    constexpr bool Intersects(const Range_T& other) const;
    /// What the two share, (1, 0) when that is nothing.
    constexpr Range_T GetIntersection(const Range_T& other) const;
    /// The smallest range that holds both; an empty one adds nothing.
    constexpr Range_T GetUnion(const Range_T& other) const;
    /// Grows the range so that it holds `value`.
    constexpr void Extend(T value) { *this = GetUnion(Range_T(value)); }

    /// Exact comparison of both ends. Empty ranges are equal whatever they store.
    constexpr bool operator==(const Range_T& other) const;

private:
    constexpr void SetEnds(T min, T max) {
        m_Min = min;
        m_Max = max;
    }
    static void ReportNotEmpty() { QRL_ASSERT("Range_T", "IsEmpty()", false); }

    T m_Min;
    T m_Max;
};

template <class T>
T Range_T<T>::GetMin() const {
    QRL_ASSERT("Range_T", "!IsEmpty()", !IsEmpty());
    return m_Min;
}

template <class T>
T Range_T<T>::GetMax() const {
    QRL_ASSERT("Range_T", "!IsEmpty()", !IsEmpty());
    return m_Max;
}

template <class T>
T Range_T<T>::GetCenter() const {
    QRL_ASSERT("Range_T", "!IsEmpty()", !IsEmpty());
    return m_Min == m_Max ? m_Min : (m_Min + m_Max) * 0.5;
}

template <class T>
T Range_T<T>::GetSize() const {
    QRL_ASSERT("Range_T", "!IsEmpty()", !IsEmpty());
    return m_Max - m_Min;
}

template <class T>
Range_T<T> Range_T<T>::GetExpanded(T e) const {
    QRL_ASSERT("Range_T", "!IsEmpty()", !IsEmpty());
    return Range_T(m_Min - e, m_Max + e);
}

template <class T>
int Range_T<T>::GetPosition(T value) const {
    QRL_ASSERT("Range_T", "!IsEmpty()", !IsEmpty());
    if (m_Min > value)
        return -1;
    return value > m_Max ? 1 : 0;
}

template <class T>
constexpr bool Range_T<T>::Intersects(const Range_T& other) const {
    if (IsEmpty() || other.IsEmpty())
        return false;
    return !(other.m_Min > m_Max) && !(m_Min > other.m_Max);
}

template <class T>
constexpr Range_T<T> Range_T<T>::GetIntersection(const Range_T& other) const {
    Range_T shared;
    if (Intersects(other))
        shared.SetEnds(std::max(m_Min, other.m_Min), std::min(m_Max, other.m_Max));
    return shared;
}

template <class T>
constexpr Range_T<T> Range_T<T>::GetUnion(const Range_T& other) const {
    if (other.IsEmpty())
        return *this;
    if (IsEmpty())
        return other;
    Range_T both;
    both.SetEnds(std::min(m_Min, other.m_Min), std::max(m_Max, other.m_Max));
    return both;
}

template <class T>
constexpr bool Range_T<T>::operator==(const Range_T& other) const {
    if (IsEmpty() || other.IsEmpty())
        return IsEmpty() && other.IsEmpty();
    return m_Min == other.m_Min && m_Max == other.m_Max;
}

} // namespace base

#endif
