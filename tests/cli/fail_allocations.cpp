// Preloaded into the program, lets allocations of the C library fail.
//
// QRL_FAIL_ALLOCATION=K    the K-th allocation of the run fails
// QRL_FAIL_ALLOCATION=K+   that one and all behind it fail
// QRL_COUNT_ALLOCATIONS=F  writes the number of allocations to the file F when the run ends

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>

// What the C library's own functions are called where others stand in for them.
extern "C" {
void* __libc_malloc(size_t size) noexcept;
void* __libc_calloc(size_t count, size_t size) noexcept;
void* __libc_realloc(void* memory, size_t size) noexcept;
void* __libc_memalign(size_t alignment, size_t size) noexcept;
}

namespace {

unsigned long g_Allocations = 0;
unsigned long g_First = 0; ///< number of the first allocation that fails
unsigned long g_Last = 0;

/// The environment is read at the first allocation: libraries allocate before this one is initialised.
void ReadSettings() {
    g_First = ULONG_MAX;
    const char* text = std::getenv("QRL_FAIL_ALLOCATION");
    if (text == nullptr)
        return;
    char* end = nullptr;
    g_First = std::strtoul(text, &end, 10);
    g_Last = *end == '+' ? ULONG_MAX : g_First;
}

bool IsToFail() {
    if (g_Allocations++ == 0)
        ReadSettings();
    const bool fails = g_Allocations >= g_First && g_Allocations <= g_Last;
    if (fails)
        errno = ENOMEM;
    return fails;
}

struct Report {
    ~Report() {
        const char* name = std::getenv("QRL_COUNT_ALLOCATIONS");
        if (name == nullptr)
            return;
        const unsigned long count = g_Allocations;
        if (std::FILE* file = std::fopen(name, "w"); file != nullptr) {
            std::fprintf(file, "%lu\n", count);
            std::fclose(file);
        }
    }
} g_Report;

} // namespace

extern "C" {

void* malloc(size_t size) noexcept { return IsToFail() ? nullptr : __libc_malloc(size); }

void* calloc(size_t count, size_t size) noexcept { return IsToFail() ? nullptr : __libc_calloc(count, size); }

void* realloc(void* memory, size_t size) noexcept { return IsToFail() ? nullptr : __libc_realloc(memory, size); }

void* aligned_alloc(size_t alignment, size_t size) noexcept {
    return IsToFail() ? nullptr : __libc_memalign(alignment, size);
}

int posix_memalign(void** memory, size_t alignment, size_t size) noexcept {
    *memory = IsToFail() ? nullptr : __libc_memalign(alignment, size);
    return *memory == nullptr ? ENOMEM : 0;
}

} // extern "C"
