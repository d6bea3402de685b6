#include "tests/zuken/BoardSections.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A side file that goes at the end of the scope.
class SideFile {
public:
    explicit SideFile(std::string_view text) {
        std::string folder = testing::TempDir() + "qrl_side_XXXXXX";
        EXPECT_NE(mkdtemp(folder.data()), nullptr);
        m_Folder = folder;
        std::ofstream(GetPath(), std::ios::binary) << text;
    }
    SideFile(const SideFile&) = delete;
    SideFile& operator=(const SideFile&) = delete;
    ~SideFile() { std::filesystem::remove_all(m_Folder); }

    std::string GetPath() const { return m_Folder + "/board.txt"; }

private:
    std::string m_Folder;
};

constexpr char k_Title[] = "Reference PartNumber Value DNP\n";

/// A board with R1 and A. without part numbers and U1 with one, amended by a side file.
BoardResult Amend(std::string_view sideText) {
    BoardResult board = ReadBoard({.m_Components = "(component (reference R1)) (component (reference U1) (part LM317))"
                                                   "(component (reference A.))"});
    const SideFile file(sideText);
    testing::internal::CaptureStdout();
    EXPECT_FALSE(board.m_Parser->ParseTextFile(LongFileName(file.GetPath().c_str())));
    board.m_Output = testing::internal::GetCapturedStdout();
    return board;
}

/// The same with a title line.
BoardResult AmendBy(const std::string& lines) { return Amend(k_Title + lines); }

const Component& ComponentOf(const BoardResult& board, const char* name) {
    return *board.m_Parser->FindComponent(name);
}

std::vector<std::string> Split(const char* line) {
    std::vector<AString> fields;
    const int count = ZukenPCBParser::SplitTextLine(line, fields);
    EXPECT_EQ(count, static_cast<int>(fields.size()));
    return TextsOf(fields);
}

} // namespace

TEST(ZukenPCBParser_TextFileTest, LineGivesPartNumberAndValue) {
    const BoardResult board = AmendBy("R1 RC0603 10k\n");
    EXPECT_EQ("RC0603", ComponentOf(board, "R1").partNumber.QRL_ANSI());
    EXPECT_EQ("10k", ComponentOf(board, "R1").value.QRL_ANSI());
    EXPECT_TRUE(ComponentOf(board, "R1").active);
    EXPECT_EQ("", board.m_Output);
}

TEST(ZukenPCBParser_TextFileTest, PartNumberOfTheBoardFileWins) {
    const BoardResult board = AmendBy("U1 LM350 3A\n");
    EXPECT_EQ("LM317", ComponentOf(board, "U1").partNumber.QRL_ANSI());
    EXPECT_EQ("3A", ComponentOf(board, "U1").value.QRL_ANSI());
}

TEST(ZukenPCBParser_TextFileTest, LaterLineReplacesTheValueAlone) {
    const BoardResult board = AmendBy("R1 RC0603 10k\nR1 RC0805 22k\n");
    EXPECT_EQ("RC0603", ComponentOf(board, "R1").partNumber.QRL_ANSI());
    EXPECT_EQ("22k", ComponentOf(board, "R1").value.QRL_ANSI());
}

TEST(ZukenPCBParser_TextFileTest, QuotedFieldCannotHoldABlank) {
    EXPECT_THAT(Split("R1 \"100 nF\" 10k"), ElementsAre("R1", "100", "nF", "10k"));
    const BoardResult board = AmendBy("R1 \"100 nF\" 10k\n");
    EXPECT_EQ("100", ComponentOf(board, "R1").partNumber.QRL_ANSI());
    EXPECT_EQ("nF", ComponentOf(board, "R1").value.QRL_ANSI());
    EXPECT_TRUE(ComponentOf(board, "R1").active);
}

TEST(ZukenPCBParser_TextFileTest, FifthFieldKeepsTheComponentActive) {
    EXPECT_TRUE(ComponentOf(AmendBy("R1 ABC 10k YES extra\n"), "R1").active);
}

TEST(ZukenPCBParser_TextFileTest, FourthFieldYesInAnyCaseMakesTheComponentInactive) {
    EXPECT_FALSE(ComponentOf(AmendBy("R1 ABC 10k yes\n"), "R1").active);
    EXPECT_FALSE(ComponentOf(AmendBy("R1 ABC 10k \"YES\"\n"), "R1").active);
    EXPECT_TRUE(ComponentOf(AmendBy("R1 ABC 10k NO\n"), "R1").active);
    EXPECT_TRUE(ComponentOf(AmendBy("R1 ABC YES\n"), "R1").active) << "the third one is the value";
}

TEST(ZukenPCBParser_TextFileTest, FirstLineOfThreeFieldsIsTheTitleWhateverItSays) {
    const BoardResult board = Amend("R1 first\n\n# R1 COMMENT 1\nR1 TITLE 10k\nR1 ABC 22k\n");
    EXPECT_EQ("ABC", ComponentOf(board, "R1").partNumber.QRL_ANSI());
    EXPECT_EQ("22k", ComponentOf(board, "R1").value.QRL_ANSI());
}

TEST(ZukenPCBParser_TextFileTest, TitleLineAloneChangesNothing) {
    const BoardResult board = Amend("R1 ABC 22k\n");
    EXPECT_EQ("", ComponentOf(board, "R1").partNumber.QRL_ANSI());
    EXPECT_EQ("", board.m_Output);
}

TEST(ZukenPCBParser_TextFileTest, ReferenceIsLookedUpAsTheBoardFileSpellsIt) {
    const BoardResult board = AmendBy("A. ABC 22k\nA_ DEF 33k\n");
    EXPECT_EQ("ABC", ComponentOf(board, "A_").partNumber.QRL_ANSI());
    EXPECT_EQ("22k", ComponentOf(board, "A_").value.QRL_ANSI());
    EXPECT_EQ("Could find component with refid A_\n", board.m_Output);
}

TEST(ZukenPCBParser_TextFileTest, UnknownReferenceIsReportedEachTime) {
    const BoardResult board = AmendBy("X9 ABC 22k\nR1 ABC 10k\nX9 ABC 22k\n");
    EXPECT_EQ("Could find component with refid X9\nCould find component with refid X9\n", board.m_Output);
    EXPECT_TRUE(board.m_Parser->GetNameMap().HasReference("X9"));
    EXPECT_EQ("10k", ComponentOf(board, "R1").value.QRL_ANSI());
}

TEST(ZukenPCBParser_TextFileTest, LineOfTwoFieldsIsPassedOver) {
    const BoardResult board = AmendBy("R1 ABC\nX9 ABC\n");
    EXPECT_EQ("", ComponentOf(board, "R1").partNumber.QRL_ANSI());
    EXPECT_EQ("", board.m_Output);
}

TEST(ZukenPCBParser_TextFileTest, LastLineNeedsNoEnd) {
    EXPECT_EQ("10k", ComponentOf(AmendBy("R1 ABC 10k"), "R1").value.QRL_ANSI());
    EXPECT_EQ("10k", ComponentOf(Amend("a b c\r\n  R1\t \"ABC\" 10k\t\r\n"), "R1").value.QRL_ANSI());
}

TEST(ZukenPCBParser_TextFileTest, CommentCharacterWithinALineIsText) {
    EXPECT_EQ("LM#317", ComponentOf(AmendBy("R1 LM#317 10k\n"), "R1").partNumber.QRL_ANSI());
    EXPECT_EQ("", ComponentOf(AmendBy("  # R1 LM317 10k\n"), "R1").partNumber.QRL_ANSI());
}

TEST(ZukenPCBParser_TextFileTest, MissingFileEndsWithoutALine) {
    const auto parser = MakeParser();
    testing::internal::CaptureStdout();
    EXPECT_FALSE(parser->ParseTextFile(LongFileName(AString((testing::TempDir() + "qrl_no_such.txt").c_str()))));
    EXPECT_FALSE(parser->ParseTextFile(LongFileName()));
    EXPECT_EQ("", testing::internal::GetCapturedStdout());
}

TEST(ZukenPCBParser_TextFileTest, FileThatCannotBeReadIsTreatedAsMissing) {
    // A socket is there, and nobody can open it, whatever the user's rights.
    const std::string path = testing::TempDir() + "qrl_side_socket_" + std::to_string(getpid());
    sockaddr_un address = {AF_UNIX, {}};
    ASSERT_LT(path.size(), sizeof address.sun_path);
    path.copy(address.sun_path, path.size());
    const int socketFile = socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(0, bind(socketFile, reinterpret_cast<const sockaddr*>(&address), sizeof address));
    const LongFileName fileName(path.c_str());
    EXPECT_TRUE(fileName.Exists());
    testing::internal::CaptureStdout();
    EXPECT_FALSE(MakeParser()->ParseTextFile(fileName));
    EXPECT_EQ("", testing::internal::GetCapturedStdout());
    close(socketFile);
    std::filesystem::remove(path);
}

TEST(ZukenPCBParser_TextFileTest, FieldsAreTrimmedAndEmptyOnesDropped) {
    EXPECT_THAT(Split("  R1 \"\" \t \"a\"b  "), ElementsAre("R1", "a", "b"));
    EXPECT_THAT(Split(""), IsEmpty());
    EXPECT_THAT(Split("\"R1\"\"ABC\""), ElementsAre("R1", "ABC"));
}

TEST(ZukenPCBParser_TextFileTest, FieldsAreAppended) {
    std::vector<AString> fields{"before"};
    EXPECT_EQ(2, ZukenPCBParser::SplitTextLine("a b", fields));
    EXPECT_THAT(TextsOf(fields), ElementsAre("before", "a", "b"));
}

TEST(ZukenPCBParser_TextFileTest, ParseReadsTheSideFileLast) {
    const SideFile file("a b c\nR1 ABC 10k\n");
    ZukenPCBParser parser(
        io::CBlock(), ReadListText("(pcf b (boardContainer (components (component (reference R1)))))"));
    const AssertionRecorder recorder;
    EXPECT_TRUE(parser.Parse(LongFileName(file.GetPath().c_str())));
    EXPECT_EQ("10k", parser.FindComponent("R1")->value.QRL_ANSI());
}
