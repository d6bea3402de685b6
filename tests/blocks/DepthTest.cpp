#include "tests/blocks/BlockText.h"

#include <gtest/gtest.h>

#include <functional>
#include <pthread.h>
#include <string>
#include <string_view>

namespace io {
namespace {

constexpr int k_Million = 1000000;

/// Runs `action` in a thread whose stack has room for a few thousand calls at most.
void RunOnSmallStack(const std::function<void()>& action) {
    constexpr size_t k_Stack = 256 * 1024;
    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, k_Stack), 0);
    const auto start = [](void* argument) -> void* {
        (*static_cast<const std::function<void()>*>(argument))();
        return nullptr;
    };
    pthread_t thread = {};
    std::function<void()> copy = action;
    ASSERT_EQ(pthread_create(&thread, &attributes, start, &copy), 0);
    EXPECT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
}

std::string Repeated(std::string_view text, int count) {
    std::string result;
    result.reserve(text.size() * static_cast<size_t>(count));
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

/// How often `query` can be stepped into.
int DepthByQuery(CBlock_func func) {
    int depth = 0;
    for (bool isOk = true; isOk; ++depth)
        func >> func >> Query_ok(isOk);
    return depth;
}

/// The same by way of the first argument.
int DepthByItem(CBlock_ptr<CBlock_func> func) {
    int depth = 0;
    for (; func.Item() != nullptr; ++depth) {
        const CBlock_func& at = *func.Item();
        func = at.Empty() ? CBlock_ptr<CBlock_func>() : CBlock_ptr<CBlock_func>(at.Item(at.begin()));
    }
    return depth;
}

/// A million funcs "a", each by reference the only argument of the one around it.
CBlock_ptr<CBlock_func> NestedReferences(int& alive) {
    CBlock_ptr<CBlock_func> inner = NewCounted("a", alive);
    for (int i = 1; i < k_Million; ++i) {
        CBlock_ptr<CBlock_func> outer = NewCounted("a", alive);
        *outer.Item() << inner;
        inner = outer;
    }
    return inner;
}

TEST(DepthTest, AMillionNestedListsAreReadAndFreed) {
    RunOnSmallStack([] {
        for (const std::string& end : {Repeated(")", k_Million), std::string()}) {
            const ListResult result = ReadLists(Repeated("(a", k_Million) + end);
            EXPECT_TRUE(result.m_IsOk);
            EXPECT_EQ(result.m_Output, "");
            EXPECT_EQ(result.m_Block.Size(), 1);
        }
    });
}

TEST(DepthTest, AMillionNestedListsThatBreakAreFreed) {
    RunOnSmallStack([] {
        const ListResult result = ReadLists(Repeated("(a", k_Million) + "((");
        EXPECT_FALSE(result.m_IsOk);
        EXPECT_EQ(result.m_Output, "Parsing failed at line: 1 near (\n");
        EXPECT_TRUE(result.m_Block.Empty());
    });
}

TEST(DepthTest, AMillionOpeningParenthesesFailAtTheFirst) {
    RunOnSmallStack([] {
        const ListResult result = ReadLists(Repeated("(\n", k_Million));
        EXPECT_FALSE(result.m_IsOk);
        EXPECT_EQ(result.m_Output, "Parsing failed at line: 1 near \n");
    });
}

TEST(DepthTest, AMillionNestedListsAreCopiedAndWalked) {
    RunOnSmallStack([] {
        const CBlock_func func = FuncOf(Repeated("(a", k_Million));
        CBlock_func changed = func;
        changed << 1;
        CBlock_func outer("outer");
        outer << changed;
        EXPECT_EQ(DepthByQuery(func), k_Million);
        EXPECT_EQ(DepthByQuery(changed), k_Million);
        EXPECT_EQ(DepthByItem(CBlock_ptr<CBlock_func>(new CBlock_func(func))), k_Million);
        EXPECT_EQ(outer.Size(), 1);
    });
}

TEST(DepthTest, AMillionNestedListsAreWrittenAndReadBack) {
    RunOnSmallStack([] {
        const CBlock_func func = FuncOf(Repeated("(a", k_Million));
        const std::string expected = Repeated("a(", k_Million) + Repeated(")", k_Million) + '\n';
        EXPECT_TRUE(TextOf(func) == expected);
        CBlock_func back("");
        TextIstream stream(expected);
        EXPECT_TRUE(back.read(stream));
        EXPECT_EQ(DepthByQuery(back), k_Million);
        TextIstream cut(std::string_view(expected).substr(0, expected.size() - 2));
        EXPECT_FALSE(back.read(cut));
    });
}

TEST(DepthTest, AMillionNestedReferencesAreWalkedWrittenAndFreed) {
    RunOnSmallStack([] {
        int alive = 0;
        {
            const CBlock_ptr<CBlock_func> func = NestedReferences(alive);
            EXPECT_EQ(alive, k_Million);
            EXPECT_EQ(DepthByItem(func), k_Million);
            EXPECT_EQ(DepthByQuery(*func.Item()), k_Million);
            EXPECT_TRUE(TextOf(*func.Item()) == Repeated("a(", k_Million) + Repeated(")", k_Million) + '\n');
        }
        EXPECT_EQ(alive, 0);
    });
}

TEST(DepthTest, AMillionNestedReferencesAreSharedByACopy) {
    RunOnSmallStack([] {
        int alive = 0;
        {
            CBlock_func copy("");
            {
                const CBlock_ptr<CBlock_func> func = NestedReferences(alive);
                copy = *func.Item();
                copy << 1;
            }
            EXPECT_EQ(alive, k_Million - 1) << "the outermost is a copy";
            EXPECT_EQ(DepthByQuery(copy), k_Million);
        }
        EXPECT_EQ(alive, 0);
    });
}

TEST(DepthTest, SteppingDownFreesTheOuterReferencesOneByOne) {
    RunOnSmallStack([] {
        int alive = 0;
        CBlock_func func = *NestedReferences(alive).Item();
        EXPECT_EQ(alive, k_Million - 1);
        func >> func;
        func >> func;
        EXPECT_EQ(alive, k_Million - 3);
        func.Clear();
        EXPECT_EQ(alive, 0);
    });
}

TEST(DepthTest, AMillionNestedBlocksAreBuiltCopiedAndFreed) {
    RunOnSmallStack([] {
        CBlockPtr outermost("B");
        for (int i = 1; i < k_Million; ++i) {
            CBlockPtr outer("B");
            *outer << outermost;
            outermost = outer;
        }
        CBlock copy = *outermost;
        copy << CBlock_func("f");
        outermost = CBlockPtr("other");
        int depth = 1;
        for (CBlock_ptr<CBlock> at(copy.Item(copy.begin())); !at->Empty(); ++depth)
            at = CBlock_ptr<CBlock>(at->Item(at->begin()));
        EXPECT_EQ(depth, k_Million - 1);
    });
}

TEST(DepthTest, NestedBlocksAndBrokenFuncsStandOneTabDeeperAtEachLevel) {
    constexpr int k_Depth = 1000;
    RunOnSmallStack([] {
        CBlock block("B");
        CBlock_func func("f");
        func << 0;
        for (int i = 1; i < k_Depth; ++i) {
            CBlock outerBlock("B");
            outerBlock << block;
            block = outerBlock;
            CBlock_func outerFunc("f");
            outerFunc << i << func;
            func = outerFunc;
        }
        std::string opened;
        std::string closed;
        std::string broken;
        for (int i = 0; i < k_Depth; ++i) {
            const std::string tabs(static_cast<size_t>(i), '\t');
            opened += tabs + "B {\n";
            closed.insert(0, tabs + "}\n");
            broken += tabs + "f(" + std::to_string(k_Depth - 1 - i) + (i + 1 < k_Depth ? ",\n" : "");
        }
        EXPECT_TRUE(TextOf(block) == opened + closed);
        EXPECT_TRUE(TextOf(func) == broken + std::string(k_Depth, ')') + '\n');
    });
}

} // namespace
} // namespace io
