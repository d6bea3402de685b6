#include "lib/containers/RangeAvlTree.h"

#include "tests/AssertionRecorder.h"
#include "tests/lib/containers/Interval.h"
#include "tests/lib/containers/TreeChecker.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <random>
#include <vector>

namespace {

using Tree = Inspected_T<base::RangeAvlTree<Item, Interval>>;

/// A tree and a vector that go through the same random operations.
class Twin {
public:
    static constexpr int k_Operations = 1000000;

    enum Operation : std::size_t {
        k_InsertBefore,
        k_InsertAfter,
        k_InsertAtEnds,
        k_Rebuild,
        k_Compare,
        k_Filter,
        k_Kinds
    };

    void Step() {
        const auto dice = m_Random() % 1000;
        if (dice < 1)
            Rebuild();
        else if (dice < 6)
            Compare();
        else if (dice < 56)
            Filter();
        else if (dice < 156)
            InsertAtEnds();
        else
            InsertNextTo(m_Random() % (m_Model.size() + 1), dice % 2 == 0);
    }

    /// All that a tree promises, against the model.
    void Check() const {
        const std::vector<base::AvlNode*> nodes = CheckTree_T(*m_Tree);
        ASSERT_EQ(nodes.size(), m_Model.size());
        for (std::size_t i = 0; i < nodes.size(); ++i)
            ASSERT_EQ(static_cast<Tree::Node*>(nodes[i])->m_Payload.m_Value, m_Model[i].m_Item) << "at " << i;
        CheckBound(m_Tree->GetRootNode());
    }

    const std::array<int, k_Kinds>& GetCounts() const { return m_Counts; }
    std::size_t GetGreatestSize() const { return m_GreatestSize; }
    void Drop() { m_Tree.reset(); }

private:
    struct Entry {
        Item m_Item;
        Tree::Iterator::ParentClass m_Place; ///< where the tree has it
    };

    static Interval CheckBound(const Tree::Node* node) {
        if (!node)
            return {};
        const Interval left = CheckBound(static_cast<const Tree::Node*>(base::AvlNode::GetLeft(node)));
        const Interval right = CheckBound(static_cast<const Tree::Node*>(base::AvlNode::GetRight(node)));
        const Interval all = node->m_Payload.m_Value.m_Place.GetUnion(left).GetUnion(right);
        EXPECT_EQ(node->m_Payload.m_Bound, all);
        return all;
    }

    Item NewItem() {
        const int start = int(m_Random() % 10000);
        return {++m_LastId, {start, start + int(m_Random() % 30)}};
    }

    /// `at` may be one past the end: there ahead of the end is the back, and behind it the front.
    void InsertNextTo(std::size_t at, bool isBefore) {
        const Item item = NewItem();
        const bool isEnd = at == m_Model.size();
        const auto position = isEnd ? AtEnd() : m_Model[at].m_Place;
        const auto place = isBefore ? m_Tree->InsertBefore(position, item) : m_Tree->InsertAfter(position, item);
        std::size_t index = isBefore ? at : at + 1;
        if (isEnd && !isBefore)
            index = 0;
        m_Model.insert(m_Model.begin() + std::ptrdiff_t(index), Entry{item, place});
        m_GreatestSize = std::max(m_GreatestSize, m_Model.size());
        ++m_Counts[isBefore ? k_InsertBefore : k_InsertAfter];
    }

    void InsertAtEnds() {
        const bool isBefore = m_Random() % 2 == 0;
        const std::size_t last = m_Model.empty() ? 0 : m_Model.size() - 1;
        InsertNextTo(isBefore ? 0 : last, isBefore);
        ++m_Counts[k_InsertAtEnds];
    }

    /// A new tree of few or of many of the elements, so that small trees are visited as often as great ones.
    void Rebuild() {
        const std::size_t kept = m_Random() % (m_Random() % 2 == 0 ? 8 : m_Model.size() + 1);
        m_Model.resize(std::min(kept, m_Model.size()));
        std::vector<Item> items;
        for (const Entry& entry : m_Model)
            items.push_back(entry.m_Item);
        m_Tree = std::make_unique<Tree>(items, true);
        std::size_t i = 0;
        for (auto at = AtBegin(); at != m_Tree->end(); ++at, ++i)
            m_Model[i].m_Place = at;
        ++m_Counts[k_Rebuild];
    }

    /// Equal to a tree built from the same elements, and to none with one element changed.
    void Compare() {
        std::vector<Item> items;
        for (const Entry& entry : m_Model)
            items.push_back(entry.m_Item);
        EXPECT_TRUE(*m_Tree == Tree(items, true));
        if (!items.empty()) {
            items[m_Random() % items.size()].m_Id = 0;
            EXPECT_FALSE(*m_Tree == Tree(items, true));
        }
        ++m_Counts[k_Compare];
    }

    /// What meets a narrow filter is what a look at every element finds.
    void Filter() {
        const int start = int(m_Random() % 10000);
        const Interval filter = {start, start + int(m_Random() % 40)};
        std::vector<Item> expected;
        for (const Entry& entry : m_Model) {
            if (entry.m_Item.m_Place.Intersects(filter))
                expected.push_back(entry.m_Item);
        }
        std::vector<Item> found;
        for (auto at = m_Tree->begin(base::k_SkipOutside, filter); at != m_Tree->end(); ++at) {
            if (at->m_Place.Intersects(filter))
                found.push_back(*at);
        }
        EXPECT_EQ(found, expected);
        ++m_Counts[k_Filter];
    }

    Tree::Iterator::ParentClass AtBegin() const { return static_cast<const Tree::ParentClass&>(*m_Tree).begin(); }
    Tree::Iterator::ParentClass AtEnd() const { return static_cast<const Tree::ParentClass&>(*m_Tree).end(); }

    std::mt19937 m_Random{987654321}; // NOLINT(cert-msc32-c,cert-msc51-cpp)
    std::unique_ptr<Tree> m_Tree = std::make_unique<Tree>();
    std::vector<Entry> m_Model;
    int m_LastId = 0;
    std::size_t m_GreatestSize = 0;
    std::array<int, k_Kinds> m_Counts{};
};

TEST(TreeModelTest, AMillionRandomOperationsLeaveWhatAVectorHolds) {
    const AssertionRecorder assertions;
    Twin twin;
    for (int i = 0; i < Twin::k_Operations; ++i) {
        twin.Step();
        if (i < 10000 || i % 1000 == 0)
            twin.Check();
        ASSERT_FALSE(testing::Test::HasFailure()) << "operation " << i;
    }
    twin.Check();
    twin.Drop(); // the pool reports what doesn't come back
    EXPECT_THAT(AssertionRecorder::Take(), testing::IsEmpty());
    for (const int count : twin.GetCounts())
        EXPECT_GT(count, 500);
    EXPECT_GT(twin.GetGreatestSize(), 2000U);
}

TEST(TreeModelTest, UnorderedInsertsHoldEveryElementOnce) {
    const AssertionRecorder assertions;
    std::mt19937 random(55); // NOLINT(cert-msc32-c,cert-msc51-cpp)
    Tree tree;
    std::vector<bool> seen;
    for (int id = 0; id < 3000; ++id) {
        const int start = int(random() % 10000);
        tree.Insert({id, {start, start + int(random() % 30)}});
        if (id < 300 || id % 100 == 0)
            CheckTree_T(tree);
    }
    seen.resize(3000);
    for (const Item& item : tree) {
        EXPECT_FALSE(seen[std::size_t(item.m_Id)]);
        seen[std::size_t(item.m_Id)] = true;
    }
    EXPECT_THAT(seen, testing::Each(true));
    EXPECT_THAT(AssertionRecorder::Take(), testing::IsEmpty());
}

TEST(TreeModelTest, UnorderedInsertsKeepTheBoundsTight) {
    // Places in a random order: a narrow walk must stay far from a look at all 4096, as it would be in list order.
    std::mt19937 random(56); // NOLINT(cert-msc32-c,cert-msc51-cpp)
    std::vector<Item> items;
    for (int id = 0; id < 4096; ++id)
        items.push_back({id, {10 * id, 10 * id + 1}});
    std::shuffle(items.begin(), items.end(), random);
    const Tree tree(items, false);
    Interval::s_Questions = 0;
    for (int at = 0; at < 4096; at += 64) {
        int visits = 0;
        for (auto it = tree.begin(base::k_SkipOutside, {10 * at, 10 * at}); it != tree.end(); ++it)
            ++visits;
        EXPECT_GE(visits, 1);
    }
    EXPECT_LT(Interval::s_Questions / 64, 4096 / 10);
}

} // namespace
