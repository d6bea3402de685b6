#ifndef QRL_TESTS_LIB_CONTAINERS_INTERVAL_H
#define QRL_TESTS_LIB_CONTAINERS_INTERVAL_H

#include <algorithm>
#include <ostream>

/// A one-dimensional stand-in for a bounding box: what a tree needs of a bound, and nothing of geometry. Closed; empty
/// when the ends are crossed. Counts how often a walk asks it.
struct Interval {
    int m_Min = 1;
    int m_Max = 0;

    bool IsEmpty() const { return m_Min > m_Max; }
    bool Intersects(const Interval& other) const {
        ++s_Questions;
        return !IsEmpty() && !other.IsEmpty() && m_Min <= other.m_Max && other.m_Min <= m_Max;
    }
    Interval GetUnion(const Interval& other) const {
        if (IsEmpty() || other.IsEmpty())
            return IsEmpty() ? other : *this;
        return {std::min(m_Min, other.m_Min), std::max(m_Max, other.m_Max)};
    }
    Interval GetIntersection(const Interval& other) const {
        return Intersects(other) ? Interval{std::max(m_Min, other.m_Min), std::min(m_Max, other.m_Max)} : Interval{};
    }
    int GetHalfPerimeter() const { return m_Max - m_Min; }
    bool operator==(const Interval& other) const {
        return (IsEmpty() && other.IsEmpty()) || (m_Min == other.m_Min && m_Max == other.m_Max);
    }

    static inline long s_Questions = 0;
};

inline std::ostream& operator<<(std::ostream& out, const Interval& interval) {
    return out << '[' << interval.m_Min << ", " << interval.m_Max << ']';
}

/// An element with an identity and a place.
struct Item {
    int m_Id = 0;
    Interval m_Place;

    Interval GetBox() const { return m_Place; }
    bool operator==(const Item& other) const = default;
};

#endif
