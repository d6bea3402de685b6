#include "lib/utils/Allocators_T.h"

#include "tests/AssertionRecorder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <new>
#include <random>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Payload {
    explicit Payload(int value) : m_Value(value) { ++s_Alive; }
    ~Payload() { --s_Alive; }
    Payload(const Payload&) = delete;
    Payload& operator=(const Payload&) = delete;
    Payload(Payload&&) = delete;
    Payload& operator=(Payload&&) = delete;

    double m_Weight = 0;
    int m_Value;
    static int s_Alive;
};
int Payload::s_Alive = 0;

using Pool = base::BlockAllocator_T<Payload>;

Payload* New(Pool& pool, int value) { return ::new (pool.Allocate()) Payload(value); }

std::vector<Payload*> NewMany(Pool& pool, int count) {
    std::vector<Payload*> objects;
    for (int i = 0; i < count; ++i)
        objects.push_back(New(pool, i));
    return objects;
}

void DeleteAll(Pool& pool, const std::vector<Payload*>& objects) {
    for (Payload* object : objects)
        pool.Deallocate(object);
}

class Allocators_TTest : public testing::Test {
protected:
    void SetUp() override { Payload::s_Alive = 0; }
    void TearDown() override {
        EXPECT_EQ(Payload::s_Alive, 0);
        EXPECT_THAT(AssertionRecorder::Take(), IsEmpty());
    }

    AssertionRecorder m_Assertions;
};

TEST_F(Allocators_TTest, HasNoBlockAtFirst) {
    const Pool pool(4);
    EXPECT_EQ(pool.GetTotalSlots(), 0U);
    EXPECT_EQ(pool.GetUsedBlocks(), 0U);
    EXPECT_EQ(pool.GetFreeCount(), 0U);
}

TEST_F(Allocators_TTest, BlocksDouble) {
    Pool pool(4);
    std::vector<Payload*> objects;
    std::vector<std::uint32_t> totals;
    for (int i = 0; i < 13; ++i) {
        objects.push_back(New(pool, i));
        totals.push_back(pool.GetTotalSlots());
    }
    // Blocks of 4, 8 and 16; the 5th and the 13th object open the second and the third.
    EXPECT_THAT(totals, ElementsAre(4, 4, 4, 4, 12, 12, 12, 12, 12, 12, 12, 12, 28));
    EXPECT_EQ(pool.GetTotalSlots(), 28U);
    EXPECT_EQ(pool.GetUsedBlocks(), 13U);
    DeleteAll(pool, objects);
}

TEST_F(Allocators_TTest, SlotsOfABlockAreNeighbours) {
    Pool pool(4);
    const std::vector<Payload*> objects = NewMany(pool, 4);
    for (std::size_t i = 1; i < objects.size(); ++i)
        EXPECT_EQ(reinterpret_cast<std::byte*>(objects[i]) - reinterpret_cast<std::byte*>(objects[i - 1]),
            std::ptrdiff_t(sizeof(Payload)));
    DeleteAll(pool, objects);
}

TEST_F(Allocators_TTest, FreedSlotIsReusedAndNoBlockAdded) {
    Pool pool(4);
    std::vector<Payload*> objects = NewMany(pool, 5);
    const void* freed = objects[2];
    pool.Deallocate(objects[2]);
    EXPECT_EQ(pool.GetFreeCount(), 1U);
    EXPECT_EQ(pool.GetUsedBlocks(), 4U);
    objects[2] = New(pool, 7);
    EXPECT_EQ(objects[2], freed);
    EXPECT_EQ(pool.GetTotalSlots(), 12U);
    EXPECT_EQ(pool.GetFreeCount(), 0U);
    DeleteAll(pool, objects);
}

TEST_F(Allocators_TTest, LastFreedIsReusedFirst) {
    Pool pool(4);
    const std::vector<Payload*> objects = NewMany(pool, 3);
    DeleteAll(pool, objects);
    EXPECT_EQ(pool.GetFreeCount(), 3U);
    const std::vector<Payload*> again = NewMany(pool, 3);
    EXPECT_THAT(again, ElementsAre(objects[2], objects[1], objects[0]));
    DeleteAll(pool, again);
}

TEST_F(Allocators_TTest, ReturningDestroysTheObject) {
    Pool pool(4);
    Payload* object = New(pool, 1);
    EXPECT_EQ(Payload::s_Alive, 1);
    pool.Deallocate(object);
    EXPECT_EQ(Payload::s_Alive, 0);
}

TEST_F(Allocators_TTest, ObjectsSmallerThanAPointerKeepTheirValues) {
    base::BlockAllocator_T<char> pool(2);
    std::vector<char*> objects;
    for (char c = 'a'; c <= 'z'; ++c)
        objects.push_back(::new (pool.Allocate()) char(c));
    pool.Deallocate(objects[0]);
    EXPECT_EQ(std::count_if(objects.begin() + 1, objects.end(), [](const char* c) { return *c < 'b' || *c > 'z'; }), 0);
    for (std::size_t i = 1; i < objects.size(); ++i)
        pool.Deallocate(objects[i]);
    EXPECT_EQ(pool.GetUsedBlocks(), 0U);
}

TEST_F(Allocators_TTest, RandomTrafficKeepsEveryObject) {
    Pool pool(4);
    std::vector<Payload*> objects;
    std::vector<int> values;
    std::mt19937 random(20240229); // NOLINT(cert-msc32-c,cert-msc51-cpp)
    for (int i = 0; i < 20000; ++i) {
        if (objects.empty() || random() % 3 != 0) {
            objects.push_back(New(pool, i));
            values.push_back(i);
        } else {
            const std::size_t at = random() % objects.size();
            ASSERT_EQ(objects[at]->m_Value, values[at]);
            pool.Deallocate(objects[at]);
            objects[at] = objects.back();
            values[at] = values.back();
            objects.pop_back();
            values.pop_back();
        }
        ASSERT_EQ(pool.GetUsedBlocks(), objects.size());
    }
    for (std::size_t i = 0; i < objects.size(); ++i)
        ASSERT_EQ(objects[i]->m_Value, values[i]);
    DeleteAll(pool, objects);
    EXPECT_EQ(pool.GetUsedBlocks(), 0U);
}

TEST_F(Allocators_TTest, ReturningNullIsReported) {
    Pool pool(4);
    pool.Deallocate(nullptr);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("obj, Allocators_T"));
    EXPECT_EQ(pool.GetUsedBlocks(), 0U);
}

TEST_F(Allocators_TTest, ReturningMoreThanWasTakenIsReported) {
    Pool lender(1);
    Payload* object = New(lender, 1);
    {
        Pool pool(1);
        pool.Deallocate(object);
        EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("m_UsedBlocks >= 1, Allocators_T"));
    }
    // The count ran below 0, so it isn't 0 at the end either; and the lender misses its slot.
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("m_UsedBlocks == 0, Allocators_T"));
    ::new (static_cast<void*>(object)) Payload(1);
    lender.Deallocate(object);
}

TEST_F(Allocators_TTest, SlotsInUseAtTheEndAreReported) {
    { EXPECT_NE(Pool(4).Allocate(), nullptr); }
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("m_UsedBlocks == 0, Allocators_T"));
}

TEST_F(Allocators_TTest, BlockWithoutSlotsIsReported) {
    Pool pool(0);
    EXPECT_THROW(pool.Allocate(), std::bad_alloc);
    EXPECT_THAT(AssertionRecorder::Take(), ElementsAre("from_array, Allocators_T"));
    EXPECT_EQ(pool.GetUsedBlocks(), 0U);
}

TEST_F(Allocators_TTest, SizeBeyondTheAddressSpaceFailsAndDoesNotWrap) {
#if defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "the address sanitizer ends the program on a failed request";
#else
    struct Huge {
        std::byte m_Bytes[std::size_t(1) << 60U];
    };
    base::BlockAllocator_T<Huge> pool(16); // 16 times 2^60 bytes is 0 modulo 2^64
    EXPECT_THROW(pool.Allocate(), std::bad_alloc);
    EXPECT_EQ(pool.GetTotalSlots(), 0U);
    EXPECT_EQ(pool.GetUsedBlocks(), 0U);
#endif
}

} // namespace
