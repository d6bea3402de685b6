#include "blocks/CToken_ostream.h"

#include "tests/AssertionRecorder.h"
#include "tests/blocks/BlockText.h"
#include "tests/blocks/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace io {
namespace {

LongFileName NameOf(const std::string& path) { return LongFileName(AString(std::string_view(path))); }

CBlock SampleBlock() {
    CBlock block("Root");
    CBlock_func func("f");
    func << 1 << "\xFF";
    block << func << CBlock_named_value("u", AString("mm"));
    return block;
}

constexpr const char* k_SampleText = "Root {\n\tf(1, \"\xFF\")\n\tu = \"mm\"\n}\n";

TEST(CToken_ostreamTest, ABlockIsWrittenInItsTextForm) {
    const TemporaryFolder folder;
    CToken_ostream stream(NameOf(folder.PathOf("out.qrl")), CToken_ostream::k_Text);
    stream << SampleBlock();
    stream.Close();
    EXPECT_FALSE(stream.fail());
    EXPECT_EQ(ContentOf(folder.PathOf("out.qrl")), k_SampleText);
    EXPECT_EQ(folder.List(), std::vector<std::string>{"out.qrl"});
}

TEST(CToken_ostreamTest, ObjectsFollowOneAnother) {
    const TemporaryFolder folder;
    CToken_ostream stream(NameOf(folder.PathOf("out")), CToken_ostream::k_Text);
    stream << CBlock_func("f") << CBlock_named_value("n", AString("x")) << CBlock_value(AString("v"));
    stream.Close();
    EXPECT_EQ(ContentOf(folder.PathOf("out")), "f()\nn = \"x\"\n\"v\"");
}

TEST(CToken_ostreamTest, NothingStandsThereBeforeTheClose) {
    const TemporaryFolder folder;
    folder.Put("out", "old");
    {
        CToken_ostream stream(NameOf(folder.PathOf("out")), CToken_ostream::k_Text);
        EXPECT_EQ(folder.List(), std::vector<std::string>{"out"});
        stream << SampleBlock();
        EXPECT_EQ(ContentOf(folder.PathOf("out")), "old");
    }
    EXPECT_EQ(ContentOf(folder.PathOf("out")), "old");
    EXPECT_EQ(folder.List(), std::vector<std::string>{"out"});
}

TEST(CToken_ostreamTest, ALargeTreeIsWrittenWhole) {
    const TemporaryFolder folder;
    CBlock block("B");
    std::string expected = "B {\n";
    for (int i = 0; i < 50000; ++i) {
        CBlock_func func("Vertex");
        func << i << 0.5 << "Round";
        block << func;
        expected += "\tVertex(" + std::to_string(i) + ", 0.5, \"Round\")\n";
    }
    CToken_ostream stream(NameOf(folder.PathOf("out")), CToken_ostream::k_Text);
    stream << block;
    stream.Close();
    EXPECT_TRUE(ContentOf(folder.PathOf("out")) == expected + "}\n");
}

TEST(CToken_ostreamTest, AFailurePrintsOneLine) {
    const TemporaryFolder folder;
    const std::string path = folder.PathOf("none/out");
    CToken_ostream stream(NameOf(path), CToken_ostream::k_Text);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    stream << SampleBlock() << SampleBlock();
    stream.Close();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), path + ": No such file or directory\n");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_TRUE(stream.fail());
}

TEST(CToken_ostreamTest, ANameThatIsNoUtf8NamesItsFile) {
    const TemporaryFolder folder;
    CToken_ostream stream(NameOf(folder.PathOf("\xFF.qrl")), CToken_ostream::k_Text);
    stream << SampleBlock();
    stream.Close();
    EXPECT_EQ(folder.List(), std::vector<std::string>{"\xFF.qrl"});
}

TEST(CToken_ostreamTest, AnyOtherFlagsFailAnAssertionAndTextIsWritten) {
    const TemporaryFolder folder;
    AssertionRecorder recorder;
    CToken_ostream stream(NameOf(folder.PathOf("out")), 1);
    EXPECT_EQ(AssertionRecorder::Take(), std::vector<std::string>{"flags == k_Text, CToken_ostream"});
    stream << SampleBlock();
    stream.Close();
    EXPECT_EQ(ContentOf(folder.PathOf("out")), k_SampleText);
}

TEST(CToken_ostreamTest, WhatIsWrittenIsReadBackFromTheFile) {
    const TemporaryFolder folder;
    CToken_ostream output(NameOf(folder.PathOf("out")), CToken_ostream::k_Text);
    output << SampleBlock();
    output.Close();
    CToken_istream input(NameOf(folder.PathOf("out")), CToken_grammar(), CToken_istream::k_Expressions);
    CBlock block;
    EXPECT_TRUE(block.read(input));
    EXPECT_TRUE(input.AtEnd());
    EXPECT_EQ(Outline(block), Outline(SampleBlock()));
}

} // namespace
} // namespace io
