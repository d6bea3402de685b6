#ifndef QRL_TESTS_BOARDTEXT_H
#define QRL_TESTS_BOARDTEXT_H

#include "blocks/CBase_grammar.h"
#include "blocks/CToken_istream.h"
#include "blocks/FuncRange.h"
#include "blocks/ReadBlock.h"
#include "model/ZukenPCBParser.h"
#include "tests/AssertionRecorder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// The lists of an exported file, whose text has to be readable.
inline io::CBlock ReadListText(std::string_view text) {
    io::CDelimiter_grammar grammar("()");
    grammar.CommentCharSet(";");
    io::CToken_istream stream(text, grammar, io::CToken_istream::k_Expressions);
    io::CBlock block("data");
    EXPECT_TRUE(io::ReadBlock(stream, block)) << text;
    return block;
}

/// The first list of `text`.
inline io::CBlock_func ListOf(std::string_view text) {
    const io::CBlock block = ReadListText(text);
    EXPECT_GT(block.Size(), 0) << text;
    return *block.Funcs().begin();
}

/// The board that a board file and a footprint file of these texts describe, read to the end, without a side file.
/// What is reported on the way, as of a board without any copper, goes nowhere.
class BoardOf : public ZukenPCBParser {
public:
    explicit BoardOf(std::string_view pcfText, std::string_view ftfText = {})
        : ZukenPCBParser(ReadListText(ftfText), ReadListText(pcfText)) {
        const AssertionRecorder recorder;
        EXPECT_TRUE(Parse(LongFileName()));
    }
};

/// The same on the heap, for a board that has to outlive the place where it is made.
inline std::unique_ptr<ZukenPCBParser> ParseBoard(std::string_view pcfText, std::string_view ftfText = {}) {
    return std::make_unique<BoardOf>(pcfText, ftfText);
}

/// The stackup, top to bottom.
inline std::vector<Layer*> LayersOf(const ZukenPCBParser& parser) {
    std::vector<Layer*> layers;
    const int count = parser.GetConductiveLayers(layers);
    EXPECT_EQ(count, static_cast<int>(layers.size()));
    return layers;
}

/// A board file with one layer for each of the numbers 1 to `count`.
inline std::string BoardWithLayers(int count) {
    std::string text = "(pcf b (technologyContainer (technology t (conductiveLayer";
    for (int number = 1; number <= count; ++number)
        text += " (layerNumber " + std::to_string(number) + ")";
    return text + "))))";
}

#endif
