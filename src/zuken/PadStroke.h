#ifndef QRL_ZUKEN_PADSTROKE_H
#define QRL_ZUKEN_PADSTROKE_H

#include "blocks/CBlock_func.h"

/// The box that stands for a pad which the file draws as one stroke of a pen. Its position is not kept.
struct PadStroke {
    double m_Width = 0.0;
    double m_Height = 0.0;
};

/// Reads the stroke from its first point, with the pen's width, to its last one; all lengths times `scale`:
///
///     (line (penShape SQUARE) (vertex (pt -55000 0 (width 60000)) (pt 55000 0)))
///
/// A level stroke is as long as its ends are apart and as high as the pen; any other one is as wide as the pen and as
/// high as it rises, however far it leans. The pen adds nothing at the ends, and its shape makes no difference. What is
/// missing counts 0.
PadStroke ReadPadStroke_G(const io::CBlock_func& line, double scale);

#endif
