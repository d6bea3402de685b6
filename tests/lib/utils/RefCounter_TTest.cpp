#include "lib/utils/RefCounter_T.h"

#include "tests/AssertionRecorder.h"

#include <gmock/gmock.h>

#include <cstddef>
#include <cstdint>
#include <new>
#include <utility>

namespace {

bool g_FailNothrowNew = false;

} // namespace

// The count's block is asked for with std::nothrow; this lets a test refuse it.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    if (g_FailNothrowNew)
        return nullptr;
    try {
        return ::operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Tells how many of its kind are alive.
struct Counted {
    explicit Counted(int value) : m_Value(value) { ++s_Alive; }
    Counted(const Counted& other) : m_Value(other.m_Value) { ++s_Alive; }
    ~Counted() { --s_Alive; }
    Counted& operator=(const Counted&) = delete;
    Counted(Counted&&) = delete;
    Counted& operator=(Counted&&) = delete;

    int m_Value;
    static int s_Alive;
};
int Counted::s_Alive = 0;

using Handle = base::RefCounter_T<Counted>;

class RefCounter_TTest : public testing::Test {
protected:
    void SetUp() override { Counted::s_Alive = 0; }
    void TearDown() override {
        EXPECT_EQ(Counted::s_Alive, 0);
        EXPECT_THAT(AssertionRecorder::Take(), IsEmpty());
    }

    AssertionRecorder m_Assertions;
};

TEST_F(RefCounter_TTest, HoldsTwoPointers) {
    EXPECT_EQ(sizeof(Handle), 2 * sizeof(void*));
    EXPECT_EQ(sizeof(MRefCount), sizeof(std::uint32_t));
}

TEST_F(RefCounter_TTest, DefaultIsNull) { EXPECT_TRUE(Handle().IsNull()); }

TEST_F(RefCounter_TTest, TakingANullPointerIsNull) {
    const Handle handle(nullptr);
    EXPECT_TRUE(handle.IsNull());
    EXPECT_TRUE(handle.IsUnique());
}

TEST_F(RefCounter_TTest, NullIsUnique) { EXPECT_TRUE(Handle().IsUnique()); }

TEST_F(RefCounter_TTest, OwnerDeletesItsObject) {
    {
        const Handle handle(new Counted(7));
        EXPECT_FALSE(handle.IsNull());
        EXPECT_TRUE(handle.IsUnique());
        EXPECT_EQ(Counted::s_Alive, 1);
    }
    EXPECT_EQ(Counted::s_Alive, 0);
}

TEST_F(RefCounter_TTest, GivesAccessToItsObject) {
    Handle handle(new Counted(7));
    handle->m_Value = 8;
    EXPECT_EQ((*handle).m_Value, 8);
    const Handle& constant = handle;
    EXPECT_EQ(constant->m_Value, 8);
    EXPECT_EQ(&*constant, &*handle);
}

TEST_F(RefCounter_TTest, CopySharesTheObject) {
    const Handle first(new Counted(7));
    {
        const Handle second(first); // NOLINT(performance-unnecessary-copy-initialization)
        EXPECT_EQ(&*second, &*first);
        EXPECT_EQ(Counted::s_Alive, 1);
        EXPECT_FALSE(first.IsUnique());
        EXPECT_FALSE(second.IsUnique());
    }
    EXPECT_TRUE(first.IsUnique());
}

TEST_F(RefCounter_TTest, CopyOfNullIsNull) {
    const Handle null;
    const Handle copy(null); // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_TRUE(copy.IsNull());
}

TEST_F(RefCounter_TTest, LastOfManyDeletesTheObject) {
    Handle last;
    {
        const Handle first(new Counted(7));
        const Handle second(first); // NOLINT(performance-unnecessary-copy-initialization)
        last = second;
    }
    EXPECT_EQ(Counted::s_Alive, 1);
    EXPECT_EQ(last->m_Value, 7);
    EXPECT_TRUE(last.IsUnique());
}

TEST_F(RefCounter_TTest, MoveLeavesNull) {
    Handle first(new Counted(7));
    const Handle second(std::move(first));
    EXPECT_TRUE(first.IsNull()); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_TRUE(second.IsUnique());
    EXPECT_EQ(second->m_Value, 7);
}

TEST_F(RefCounter_TTest, MoveAssignmentReleasesTheOldObject) {
    Handle first(new Counted(7));
    Handle second(new Counted(8));
    second = std::move(first);
    EXPECT_EQ(Counted::s_Alive, 1);
    EXPECT_TRUE(first.IsNull()); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_EQ(second->m_Value, 7);
}

TEST_F(RefCounter_TTest, AssignmentReleasesTheOldObject) {
    Handle first(new Counted(7));
    const Handle second(new Counted(8));
    first = second;
    EXPECT_EQ(Counted::s_Alive, 1);
    EXPECT_EQ(first->m_Value, 8);
    EXPECT_FALSE(second.IsUnique());
}

TEST_F(RefCounter_TTest, AssigningNullReleases) {
    Handle handle(new Counted(7));
    const Handle null;
    handle = null;
    EXPECT_TRUE(handle.IsNull());
    EXPECT_EQ(Counted::s_Alive, 0);
}

TEST_F(RefCounter_TTest, SelfAssignmentLeavesTheCount) {
    Handle first(new Counted(7));
    {
        const Handle second(first); // NOLINT(performance-unnecessary-copy-initialization)
        const Handle& same = first;
        first = same;
    }
    // Had the assignment counted up, the count would be 2 now; had it counted down, the object would be gone.
    EXPECT_TRUE(first.IsUnique());
    EXPECT_EQ(Counted::s_Alive, 1);
}

TEST_F(RefCounter_TTest, AssigningACopyOfTheSameDataLeavesTheCount) {
    Handle first(new Counted(7));
    {
        Handle second(first);
        first = second;
        second = std::move(first);
    }
    EXPECT_TRUE(first.IsUnique()); // NOLINT(bugprone-use-after-move,clang-analyzer-cplusplus.Move)
    EXPECT_EQ(Counted::s_Alive, 1);
}

TEST_F(RefCounter_TTest, MakeUniqueDoesNothingToAnOnlyHolder) {
    Handle handle(new Counted(7));
    const Counted* before = &*handle;
    handle.MakeUnique();
    EXPECT_EQ(&*handle, before);
}

TEST_F(RefCounter_TTest, MakeUniqueOfNullStaysNull) {
    Handle handle;
    handle.MakeUnique();
    EXPECT_TRUE(handle.IsNull());
}

TEST_F(RefCounter_TTest, MakeUniqueLeavesTheOthersOneFewerAndTheirData) {
    const Handle first(new Counted(7));
    Handle third;
    {
        const Handle second(first); // NOLINT(performance-unnecessary-copy-initialization)
        third = first;
        third.MakeUnique();
        third->m_Value = 9;
        EXPECT_EQ(Counted::s_Alive, 2);
        EXPECT_FALSE(first.IsUnique()); // first and second are left
        EXPECT_EQ(first->m_Value, 7);
        EXPECT_EQ(second->m_Value, 7);
    }
    EXPECT_TRUE(first.IsUnique());
    EXPECT_TRUE(third.IsUnique());
    EXPECT_EQ(third->m_Value, 9);
}

TEST_F(RefCounter_TTest, AccessThroughNullIsReported) {
    Handle null;
    const Handle& constant = null;
    EXPECT_EQ(null.operator->(), nullptr);
    EXPECT_EQ(constant.operator->(), nullptr);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("m_DataPtr, RefCounter_T", "m_DataPtr, RefCounter_T"));
}

TEST_F(RefCounter_TTest, MissingCountIsStoredAndReported) {
    auto* data = new Counted(7);
    {
        g_FailNothrowNew = true;
        Handle handle(data);
        g_FailNothrowNew = false;
        EXPECT_EQ(handle->m_Value, 7);
        EXPECT_TRUE(handle.IsUnique());
        handle.MakeUnique();
        EXPECT_EQ(&*handle, data);
        EXPECT_THAT(AssertionRecorder::Take(),
            ElementsAre("!m_DataPtr == !m_CounterPtr, RefCounter_T", "!m_DataPtr == !m_CounterPtr, RefCounter_T"));
        Handle copy(handle);
        EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!m_DataPtr == !m_CounterPtr, RefCounter_T"));
        Handle assigned;
        assigned = copy;
        EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("!m_DataPtr == !m_CounterPtr, RefCounter_T"));
    }
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("m_DataPtr && m_CounterPtr && *m_CounterPtr > 0, RefCounter_T",
                                               "m_DataPtr && m_CounterPtr && *m_CounterPtr > 0, RefCounter_T",
                                               "m_DataPtr && m_CounterPtr && *m_CounterPtr > 0, RefCounter_T"));
    EXPECT_EQ(Counted::s_Alive, 1); // without a count nobody knows that it is the last, so the object stays
    delete data;
}

} // namespace
