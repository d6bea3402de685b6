#ifndef QRL_LIB_UTILS_ARENA_H
#define QRL_LIB_UTILS_ARENA_H

#include <cstddef>
#include <memory_resource>

namespace base {

/// Memory for what is made piece by piece and goes all at once. A piece costs a few instructions and lies behind the
/// one before it; giving a single piece back does nothing. The blocks that pieces are cut from grow to that of large
/// memory and no further, so that little is left over in the last one.
class Arena : public std::pmr::memory_resource {
public:
    Arena() = default;
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;
    ~Arena() override;

private:
    /// Stands at the begin of a block, ahead of the pieces.
    struct Block {
        Block* m_Next;
        size_t m_Size;
    };

    void* do_allocate(size_t size, size_t alignment) override;
    void do_deallocate(void* /*memory*/, size_t /*size*/, size_t /*alignment*/) override {}
    bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override { return this == &other; }
    void AddBlock(size_t needed);

    Block* m_Blocks = nullptr;
    std::byte* m_At = nullptr;
    size_t m_Left = 0;
    size_t m_NextSize = 0;
};

} // namespace base

#endif
