#ifndef QRL_BENCHMARKS_CHILDPROCESS_H
#define QRL_BENCHMARKS_CHILDPROCESS_H

#include <functional>

/// Peak memory in bytes of a process of its own that does `work`, less what it takes to do nothing. Work that ends
/// abnormally ends this process too.
double MeasurePeakMemory(const std::function<void()>& work);

#endif
