#include "fuzz/TreeTwin.h"

#include "fuzz/FuzzTarget.h"

#include <algorithm>

void TreeTwin::Insert(size_t place, bool isBefore, const Interval& interval) {
    const size_t at = place % (m_Model.size() + 1);
    const bool isEnd = at == m_Model.size();
    const Item item = {static_cast<int>(m_Model.size()), interval};
    const Plain::Iterator position = isEnd ? static_cast<const Plain&>(*m_Tree).end() : m_Places[at];
    const Plain::Iterator made = isBefore ? m_Tree->InsertBefore(position, item) : m_Tree->InsertAfter(position, item);
    // Behind the end is the front.
    const size_t index = isBefore ? at : isEnd ? 0 : at + 1;
    m_Model.insert(m_Model.begin() + static_cast<ptrdiff_t>(index), item);
    m_Places.insert(m_Places.begin() + static_cast<ptrdiff_t>(index), made);
    m_Unordered.Insert(item);
}

std::vector<Item> TreeTwin::FindIn(const Tree& tree, const Interval& filter) {
    std::vector<Item> found;
    for (Tree::Iterator at = tree.begin(base::k_SkipOutside, filter); at != tree.end(); ++at)
        if (at->m_Place.Intersects(filter))
            found.push_back(*at);
    return found;
}

void TreeTwin::Filter(const Interval& filter) const {
    std::vector<Item> expected;
    for (const Item& item : m_Model)
        if (item.m_Place.Intersects(filter))
            expected.push_back(item);
    Require(FindIn(*m_Tree, filter) == expected, "a walk with a filter meets what a look at each element finds");
    std::vector<Item> unordered = FindIn(m_Unordered, filter);
    const auto byId = [](const Item& a, const Item& b) { return a.m_Id < b.m_Id; };
    std::sort(unordered.begin(), unordered.end(), byId);
    std::sort(expected.begin(), expected.end(), byId);
    Require(unordered == expected, "so does one in a tree without an order");
}

void TreeTwin::Rebuild() {
    Compare();
    m_Tree = std::make_unique<Tree>(m_Model, true);
    m_Places.clear();
    for (Plain::Iterator at = static_cast<const Plain&>(*m_Tree).begin(); at != m_Tree->end(); ++at)
        m_Places.push_back(at);
}

void TreeTwin::Compare() const {
    Require(m_Tree->GetSize() == m_Model.size() && m_Unordered.GetSize() == m_Model.size(),
        "both trees hold every element");
    size_t index = 0;
    for (const Item& item : *m_Tree)
        Require(index < m_Model.size() && item == m_Model[index++], "the tree has the order of the vector");
    Require(*m_Tree == Tree(m_Model, true), "the tree equals one that is built at once");
}
