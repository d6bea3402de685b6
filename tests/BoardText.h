#ifndef QRL_TESTS_BOARDTEXT_H
#define QRL_TESTS_BOARDTEXT_H

#include "blocks/CBase_grammar.h"
#include "blocks/CToken_istream.h"
#include "blocks/ReadBlock.h"
#include "model/ZukenPCBParser.h"
#include "tests/AssertionRecorder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string_view>

/// The lists of an exported file, whose text has to be readable.
inline io::CBlock ReadListText(std::string_view text) {
    io::CDelimiter_grammar grammar("()");
    grammar.CommentCharSet(";");
    io::CToken_istream stream(text, grammar, io::CToken_istream::k_Expressions);
    io::CBlock block("data");
    EXPECT_TRUE(io::ReadBlock(stream, block)) << text;
    return block;
}

/// The board that a board file and a footprint file of these texts describe, read to the end, without a side file.
/// What is reported on the way, as of a board without any copper, goes nowhere.
inline std::unique_ptr<ZukenPCBParser> ParseBoard(std::string_view pcfText, std::string_view ftfText = {}) {
    const AssertionRecorder recorder;
    auto parser = std::make_unique<ZukenPCBParser>(ReadListText(ftfText), ReadListText(pcfText));
    parser->Parse(LongFileName());
    return parser;
}

#endif
