#include "blocks/NodeList.h"

#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <sys/resource.h>

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace io {
namespace {

/// The text of all nodes in the order of memory, each with its extent: `a4 1 b2 c1`.
std::string NodesOf(const NodeList& nodes) {
    std::string text;
    for (const Node* node = nodes.GetRoot() + nodes.GetRoot()->GetOwnNodes(); node != nodes.GetEnd();
         node += node->GetOwnNodes())
        text += std::string(node->GetText()) + std::to_string(node->GetExtent()) + ' ';
    return text;
}

// A sanitizer takes more address space than the limit leaves.
#ifndef __SANITIZE_ADDRESS__
/// Builds a large tree of which much more is expected than this process may have.
[[noreturn]] void GrowBeyondTheExpectedInLittleMemory() {
    constexpr rlim_t k_AddressSpace = rlim_t{128} << 20;
    const rlimit limit = {k_AddressSpace, k_AddressSpace};
    setrlimit(RLIMIT_AS, &limit);
    NodeList nodes(NodeKind::k_Func, "root");
    nodes.ExpectText(size_t{1} << 32);
    constexpr int k_Nodes = 1000000;
    for (int i = 0; i < k_Nodes; ++i)
        nodes.Append(Node(NodeKind::k_Int, i));
    std::_Exit(nodes.GetEnd() - nodes.GetRoot() == k_Nodes + 1 && nodes.GetEnd()[-1].GetInt() == k_Nodes - 1 ? 0 : 1);
}

TEST(NodeListDeathTest, ATreeThatFitsIsBuiltAlsoWhereWhatIsExpectedOfItDoesNot) {
    EXPECT_EXIT(GrowBeyondTheExpectedInLittleMemory(), testing::ExitedWithCode(0), "");
}
#endif

TEST(NodeListTest, ARootStandsAlone) {
    const NodeList nodes(NodeKind::k_Func, "root");
    EXPECT_EQ(nodes.GetRoot()->GetKind(), NodeKind::k_Func);
    EXPECT_EQ(nodes.GetRoot()->GetText(), "root");
    EXPECT_EQ(nodes.GetRoot()->GetFirstChild(), nodes.GetEnd());
    EXPECT_TRUE(nodes.IsInnermostEmpty());
    EXPECT_FALSE(nodes.HasOpen());
}

TEST(NodeListTest, NamesAndTextsOfEveryLengthAreKept) {
    for (size_t size = 0; size < 60; ++size) {
        const std::string text(size, static_cast<char>('a' + size % 26));
        NodeList nodes(NodeKind::k_Block, text);
        nodes.AppendText(NodeKind::k_Word, text);
        nodes.Open(NodeKind::k_Func, text);
        nodes.AppendText(NodeKind::k_Text, text);
        nodes.Close();
        const Node* word = nodes.GetRoot()->GetFirstChild();
        const Node* func = word->GetNext();
        EXPECT_EQ(nodes.GetRoot()->GetText(), text);
        EXPECT_EQ(word->GetText(), text);
        EXPECT_EQ(func->GetText(), text);
        EXPECT_EQ(func->GetFirstChild()->GetText(), text);
        EXPECT_EQ(func->GetFirstChild()->GetNext(), nodes.GetEnd());
        EXPECT_EQ(func->GetNext(), nodes.GetEnd());
    }
}

TEST(NodeListTest, ShortTextsTakeOneNodeAndLongOnesMore) {
    struct Row {
        size_t m_Size;
        size_t m_Nodes; ///< one, or one and 8 bytes of size with the text, in pieces of 16
    };
    for (const Row& row : {Row{0, 1}, Row{14, 1}, Row{15, 3}, Row{24, 3}, Row{25, 4}, Row{40, 4}, Row{41, 5}}) {
        NodeList nodes(NodeKind::k_Func, "root");
        nodes.AppendText(NodeKind::k_Text, std::string(row.m_Size, 'x'));
        EXPECT_EQ(nodes.GetRoot()->GetFirstChild()->GetExtent(), row.m_Nodes) << row.m_Size;
    }
}

TEST(NodeListTest, OpenNodesTakeWhatIsAppended) {
    NodeList nodes(NodeKind::k_Func, "root");
    nodes.Open(NodeKind::k_Func, "a");
    EXPECT_TRUE(nodes.HasOpen());
    EXPECT_TRUE(nodes.IsInnermostEmpty());
    EXPECT_EQ(nodes.GetInnermost().GetText(), "a");
    nodes.AppendText(NodeKind::k_Word, "x");
    EXPECT_FALSE(nodes.IsInnermostEmpty());
    nodes.Open(NodeKind::k_Func, "b");
    EXPECT_EQ(nodes.GetInnermost().GetText(), "b");
    nodes.Close();
    EXPECT_EQ(nodes.GetInnermost().GetText(), "a");
    nodes.AppendText(NodeKind::k_Word, "y");
    nodes.Close();
    EXPECT_FALSE(nodes.HasOpen());
    nodes.AppendText(NodeKind::k_Word, "z");
    EXPECT_EQ(NodesOf(nodes), "a4 x1 b1 y1 z1 ");
}

TEST(NodeListTest, ValuesAreKept) {
    NodeList nodes(NodeKind::k_Func, "root");
    nodes.Append(Node(NodeKind::k_Int, -2147483647 - 1));
    nodes.Append(Node(NodeKind::k_Double, -0.1));
    nodes.Append(Node(NodeKind::k_Bool, true));
    nodes.Append(Node(NodeKind::k_Bool, false));
    nodes.AppendToken(CToken());
    const Node* at = nodes.GetRoot() + 1;
    EXPECT_EQ(at[0].GetInt(), -2147483647 - 1);
    EXPECT_EQ(at[1].GetDouble(), -0.1);
    EXPECT_TRUE(at[2].GetBool());
    EXPECT_FALSE(at[3].GetBool());
    EXPECT_EQ(at[4].GetKind(), NodeKind::k_Empty);
    EXPECT_EQ(at + 5, nodes.GetEnd());
}

TEST(NodeListTest, APaddedWordIsKeptWithoutItsPadding) {
    const std::string padded = "word" + std::string(30, '#');
    NodeList nodes(NodeKind::k_Func, "root");
    nodes.AppendPaddedWord(std::string_view(padded).substr(0, 4));
    nodes.AppendPaddedWord(std::string_view(padded).substr(0, 0));
    nodes.AppendPaddedWord(std::string_view(padded).substr(0, 14));
    nodes.AppendPaddedWord(std::string_view(padded).substr(0, 15));
    EXPECT_EQ(NodesOf(nodes), "word1 1 word##########1 word###########3 ");
}

TEST(NodeListTest, APaddedNameIsKeptWithoutItsPadding) {
    const std::string padded = "name" + std::string(30, '#');
    NodeList nodes(NodeKind::k_Func, "root");
    for (const size_t size : {4U, 0U, 10U, 11U})
        nodes.OpenPadded(std::string_view(padded).substr(0, size));
    nodes.AppendText(NodeKind::k_Word, "x");
    while (nodes.HasOpen())
        nodes.Close();
    EXPECT_EQ(NodesOf(nodes), "name7 6 name######5 name#######4 x1 ") << "the last name takes three nodes";
}

TEST(NodeListTest, ACopySharesTheNodesUntilOneChanges) {
    NodeList nodes(NodeKind::k_Func, "root");
    nodes.AppendText(NodeKind::k_Word, "x");
    const NodeList copy = nodes;
    EXPECT_EQ(copy.GetRoot(), nodes.GetRoot());
    nodes.AppendText(NodeKind::k_Word, "y");
    EXPECT_NE(copy.GetRoot(), nodes.GetRoot());
    EXPECT_EQ(NodesOf(nodes), "x1 y1 ");
    EXPECT_EQ(NodesOf(copy), "x1 ");
}

TEST(NodeListTest, AListCanBeCopiedWhileANodeIsOpen) {
    NodeList nodes(NodeKind::k_Func, "root");
    nodes.Open(NodeKind::k_Func, "a");
    NodeList copy = nodes;
    copy.AppendText(NodeKind::k_Word, "x");
    copy.Close();
    nodes.AppendText(NodeKind::k_Word, "y");
    nodes.AppendText(NodeKind::k_Word, "z");
    nodes.Close();
    EXPECT_EQ(NodesOf(copy), "a2 x1 ");
    EXPECT_EQ(NodesOf(nodes), "a3 y1 z1 ");
}

TEST(NodeListTest, AMoveLeavesAListThatCanBeUsed) {
    NodeList nodes(NodeKind::k_Func, "root");
    NodeList moved = std::move(nodes);
    moved.AppendText(NodeKind::k_Word, "x");
    nodes = moved;
    EXPECT_EQ(NodesOf(nodes), "x1 ");
}

TEST(NodeListTest, APartIsCopiedAsATreeOfItsOwn) {
    NodeList nodes(NodeKind::k_Func, "root");
    nodes.Open(NodeKind::k_Func, "a very long name");
    nodes.Open(NodeKind::k_Func, "b");
    nodes.AppendText(NodeKind::k_Word, "x");
    nodes.Close();
    nodes.Close();
    nodes.AppendText(NodeKind::k_Word, "z");
    const Node* part = nodes.GetRoot()->GetFirstChild();
    NodeList copy = NodeList::CopyOf(part, part->GetNext());
    EXPECT_EQ(copy.GetRoot()->GetText(), "a very long name");
    EXPECT_EQ(NodesOf(copy), "b2 x1 ");
    copy.AppendText(NodeKind::k_Word, "y");
    EXPECT_EQ(NodesOf(copy), "b2 x1 y1 ");
}

TEST(NodeListTest, AnAppendedTreeGetsItsExtent) {
    NodeList part(NodeKind::k_Func, "part");
    part.AppendText(NodeKind::k_Word, "x");
    NodeList nodes(NodeKind::k_Func, "root");
    nodes.AppendTree(part.GetRoot(), part.GetEnd());
    nodes.AppendText(NodeKind::k_Word, "y");
    EXPECT_EQ(NodesOf(nodes), "part2 x1 y1 ");
}

TEST(NodeListTest, ATreeOfMoreNodesThanAnIndexCountsIsRefused) {
    // The bound is met before any node is looked at, so that none need be there.
    const NodeList part(NodeKind::k_Func, "part");
    const auto root = reinterpret_cast<uintptr_t>(part.GetRoot());
    const auto* end = reinterpret_cast<const Node*>(root + (uintptr_t{1} << 32) * sizeof(Node));
    NodeList nodes(NodeKind::k_Func, "root");
    EXPECT_THROW(nodes.AppendTree(part.GetRoot(), end), std::length_error);
    EXPECT_EQ(NodesOf(nodes), "");
}

TEST(NodeListTest, MemoryForGrowthCanBeGivenBack) {
    NodeList nodes(NodeKind::k_Func, "root");
    for (int i = 0; i < 1000; ++i)
        nodes.AppendText(NodeKind::k_Word, "x");
    const size_t before = nodes.GetMemory();
    EXPECT_GE(before, 1001 * sizeof(Node));
    nodes.ShrinkToFit();
    EXPECT_LE(nodes.GetMemory(), before);
    EXPECT_LT(nodes.GetMemory(), 1011 * sizeof(Node));
    nodes.AppendText(NodeKind::k_Word, "y");
    EXPECT_EQ(nodes.GetEnd() - nodes.GetRoot(), 1002);
}

TEST(NodeListTest, AListThatGrowsLargeKeepsItsNodes) {
    constexpr int k_Count = 1000000;
    for (const size_t expected : {size_t{0}, size_t{100}, size_t{2} * k_Count, size_t{64} * k_Count}) {
        NodeList nodes(NodeKind::k_Func, "root");
        nodes.ExpectText(expected);
        for (int i = 0; i < k_Count; ++i)
            nodes.Append(Node(NodeKind::k_Int, i));
        nodes.ShrinkToFit();
        EXPECT_LT(nodes.GetMemory(), (k_Count + 10) * sizeof(Node));
        int wrong = 0;
        for (int i = 0; i < k_Count; ++i)
            wrong += nodes.GetRoot()[1 + i].GetInt() == i ? 0 : 1;
        EXPECT_EQ(wrong, 0) << expected;
        EXPECT_EQ(nodes.GetEnd() - nodes.GetRoot(), 1 + k_Count);
    }
}

TEST(NodeListTest, WhatIsExpectedOfASmallListTakesNoMemory) {
    NodeList nodes(NodeKind::k_Func, "root");
    nodes.ExpectText(size_t{1} << 40);
    for (int i = 0; i < 100; ++i)
        nodes.Append(Node(NodeKind::k_Int, i));
    EXPECT_LT(nodes.GetMemory(), 300 * sizeof(Node));
}

TEST(NodeListTest, ASharedListIsNotMovedToGiveMemoryBack) {
    NodeList nodes(NodeKind::k_Func, "root");
    const NodeList copy = nodes;
    const size_t before = nodes.GetMemory();
    nodes.ShrinkToFit();
    EXPECT_EQ(nodes.GetMemory(), before);
    EXPECT_EQ(nodes.GetRoot(), copy.GetRoot());
}

TEST(NodeListTest, ReferencesAreCountedInEveryTreeThatHoldsThem) {
    int alive = 0;
    {
        NodeList copy(NodeKind::k_Func, "copy");
        {
            NodeList nodes(NodeKind::k_Func, "root");
            CBlock_ptr<CBlock_func> func = NewCounted("f", alive);
            nodes.AppendReference(func.Item());
            nodes.AppendReference(nullptr);
            copy.AppendTree(nodes.GetRoot(), nodes.GetEnd());
        }
        EXPECT_EQ(alive, 1);
    }
    EXPECT_EQ(alive, 0);
}

TEST(NodeListTest, ABrokenOffListDropsItsReferences) {
    int alive = 0;
    {
        NodeList nodes(NodeKind::k_Func, "root");
        nodes.Open(NodeKind::k_Func, "open");
        CBlock_ptr<CBlock_func> func = NewCounted("f", alive);
        nodes.AppendReference(func.Item());
        nodes.AppendText(NodeKind::k_Text, "a text that is longer than its node");
    }
    EXPECT_EQ(alive, 0);
}

} // namespace
} // namespace io
