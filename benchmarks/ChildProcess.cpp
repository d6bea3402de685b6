#include "benchmarks/ChildProcess.h"

#include <cstdio>
#include <cstdlib>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double RunInChild(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child == 0) {
        work();
        _exit(0);
    }
    int status = 0;
    rusage usage = {};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        std::fputs("the measured work failed\n", stderr);
        std::exit(1);
    }
    constexpr double k_BytesPerKibibyte = 1024;
    return static_cast<double>(usage.ru_maxrss) * k_BytesPerKibibyte;
}

} // namespace

double MeasurePeakMemory(const std::function<void()>& work) {
    return RunInChild(work) - RunInChild([] {});
}
