#ifndef QRL_MODEL_CORNERROUND_H
#define QRL_MODEL_CORNERROUND_H

/// A corner of a line or a loop that is to be rounded. A plain value.
struct CornerRound {
    double x = 0.0;
    double y = 0.0;
    double radius = 0.0;
};

#endif
