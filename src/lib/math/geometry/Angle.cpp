#include "lib/math/geometry/Angle.h"

void geom::Angle::ReportUnknownMeasure() { QRL_ASSERT("Angle", "!\"This should never happen!\"", false); }
