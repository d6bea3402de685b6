#ifndef QRL_LIB_MATH_GEOMETRY_EXCEPTION_H
#define QRL_LIB_MATH_GEOMETRY_EXCEPTION_H

namespace geom {

/// What a shape's constructor may throw when no shape can be made. Nothing in the kernel throws it: trouble is told by
/// assertions and result records. Segment::GetPolygon catches it and so gives a polygon whatever its constructor does.
enum class Exception {
    k_NoShape,
};

} // namespace geom

#endif
