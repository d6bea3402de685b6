// usage COMMAND...: runs a command and prints, behind all that it prints on standard error, its CPU seconds and its
// peak memory in bytes. A process inherits the peak of the one that starts it, so this one is small.

#include <cstdio>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double GetSeconds(const timeval& time) {
    constexpr double k_PerSecond = 1e6;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / k_PerSecond;
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: usage COMMAND...\n", stderr);
        return 2;
    }
    const pid_t child = fork();
    if (child == 0) {
        execv(argv[1], argv + 1);
        std::perror(argv[1]);
        _exit(127);
    }
    int status = 0;
    rusage used = {};
    if (child < 0 || wait4(child, &status, 0, &used) != child || status != 0)
        return 1;
    constexpr long k_Kibibyte = 1024;
    std::fprintf(
        stderr, "%.6f %ld\n", GetSeconds(used.ru_utime) + GetSeconds(used.ru_stime), used.ru_maxrss * k_Kibibyte);
    return 0;
}
