#include "blocks/CBlock_deferred.h"

#include "blocks/CBlock_open_func.h"
#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace io {
namespace {

/// Item(index)
void AppendItem(size_t index, CBlock& items) {
    CBlock_open_func item(items, "Item");
    item << static_cast<int>(index);
}

CBlockDeferredPtr Deferred(const char* name, size_t count, const CBlock_deferred::Maker& maker) {
    return CBlockDeferredPtr(new CBlock_deferred(name, count, maker));
}

TEST(CBlock_deferredTest, ItIsWrittenAsABlockOfTheSameItems) {
    CBlock root("Root");
    root << Deferred("Items", 3, AppendItem);
    root << CBlock_named_value("Last", AString("x"));
    EXPECT_EQ(TextOf(root), "Root {\n"
                            "\tItems {\n"
                            "\t\tItem(0)\n"
                            "\t\tItem(1)\n"
                            "\t\tItem(2)\n"
                            "\t}\n"
                            "\tLast = \"x\"\n"
                            "}\n");
}

TEST(CBlock_deferredTest, APlaceMayMakeNoItemOrSeveral) {
    const auto make = [](size_t index, CBlock& items) {
        for (size_t i = 0; i < index % 3; ++i)
            AppendItem(index, items);
    };
    const CBlock_deferred block("Items", 7, make);
    EXPECT_EQ(TextOf(block), "Items {\n\tItem(1)\n\tItem(2)\n\tItem(2)\n\tItem(4)\n\tItem(5)\n\tItem(5)\n}\n");
}

TEST(CBlock_deferredTest, WithoutPlacesOrItemsItIsAnEmptyBlock) {
    EXPECT_EQ(TextOf(CBlock_deferred("A", 0, AppendItem)), "A {\n}\n");
    EXPECT_EQ(
        TextOf(CBlock_deferred("two words", 5, [](size_t /*index*/, CBlock& /*items*/) {})), "\"two words\" {\n}\n");
}

TEST(CBlock_deferredTest, DeferredBlocksNestInEachOther) {
    const auto makeInner = [](size_t index, CBlock& items) {
        items << Deferred("Inner", index, AppendItem);
        items << CBlock_func("Between");
    };
    CBlock root("Root");
    root << Deferred("Outer", 3, makeInner);
    EXPECT_EQ(TextOf(root), "Root {\n"
                            "\tOuter {\n"
                            "\t\tInner {\n"
                            "\t\t}\n"
                            "\t\tBetween()\n"
                            "\t\tInner {\n"
                            "\t\t\tItem(0)\n"
                            "\t\t}\n"
                            "\t\tBetween()\n"
                            "\t\tInner {\n"
                            "\t\t\tItem(0)\n"
                            "\t\t\tItem(1)\n"
                            "\t\t}\n"
                            "\t\tBetween()\n"
                            "\t}\n"
                            "}\n");
}

TEST(CBlock_deferredTest, ItemsAreMadeInOrderAndOnlyWhenTheyAreWritten) {
    std::vector<size_t> made;
    const auto make = [&made](size_t index, CBlock& items) {
        made.push_back(index);
        AppendItem(index, items);
    };
    CBlock root("Root");
    root << Deferred("Items", 2, make);
    EXPECT_EQ(made, std::vector<size_t>());
    const std::string text = TextOf(root);
    EXPECT_EQ(made, (std::vector<size_t>{0, 1}));
    EXPECT_EQ(TextOf(root), text);
    EXPECT_EQ(made, (std::vector<size_t>{0, 1, 0, 1}));
}

TEST(CBlock_deferredTest, ACopyOfItsParentSharesIt) {
    CBlock root("Root");
    root << Deferred("Items", 2, AppendItem);
    const CBlock copy = root;
    root.Clear();
    EXPECT_EQ(TextOf(root), "Root {\n}\n");
    EXPECT_EQ(TextOf(copy), "Root {\n\tItems {\n\t\tItem(0)\n\t\tItem(1)\n\t}\n}\n");
}

TEST(CBlock_deferredTest, ItHoldsNothingAndCannotBeRead) {
    CBlock_deferred block("Items", 2, AppendItem);
    EXPECT_TRUE(block.IsBlock());
    EXPECT_TRUE(block.Empty());
    EXPECT_EQ(block.Size(), 0);
    EXPECT_EQ(block.Name(), AString("Items"));
    EXPECT_FALSE(block.Unpack(AString("Items {\n}\n")));
    TextIstream nothing("");
    EXPECT_FALSE(block.read(nothing));
    block.Name("Other");
    block.Clear();
    EXPECT_EQ(TextOf(block), "Other {\n}\n");
}

TEST(CBlock_deferredTest, TheMemoryOfManyItemsIsThatOfOne) {
    size_t most = 0;
    const auto make = [&most](size_t index, CBlock& items) {
        AppendItem(index, items);
        most = std::max(most, items.SizeOf(true));
    };
    const CBlock_deferred block("Items", 100'000, make);
    EXPECT_EQ(TextOf(block).size(),
        std::string("Items {\n}\n").size() + 100'000 * std::string("\tItem()\n").size() + 488'890);
    EXPECT_LT(most, 1000U);
}

} // namespace
} // namespace io
