#ifndef QRL_TESTS_NEUTRAL_WRITTENBOARD_H
#define QRL_TESTS_NEUTRAL_WRITTENBOARD_H

#include "neutral/ZukenConverter.h"
#include "tests/BoardText.h"
#include "tests/blocks/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// The text of the neutral file of a model.
inline std::string WrittenText(ZukenPCBParser& parser) {
    const TemporaryFolder folder;
    const std::string path = folder.PathOf("board.qrl");
    ZukenConverter converter(LongFileName(), LongFileName(), LongFileName(), LongFileName(AString(path.c_str())));
    EXPECT_FALSE(converter.Write(parser));
    return ContentOf(path);
}

/// All blocks of a name in the text of a neutral file, in order, each with the lines from its name to its closing
/// brace, without the indentation of the first.
inline std::vector<std::string> BlocksOf(const std::string& text, const std::string& name) {
    std::vector<std::string> blocks;
    const std::string head = name + " {\n";
    for (size_t at = text.find(head); at != std::string::npos; at = text.find(head, at + 1)) {
        const size_t lineStart = text.rfind('\n', at) + 1;
        const std::string indent = text.substr(lineStart, at - lineStart);
        if (indent.find_first_not_of('\t') != std::string::npos)
            continue;
        const size_t end = text.find("\n" + indent + "}\n", at) + 1;
        std::string block;
        for (size_t line = lineStart; line <= end; line = text.find('\n', line) + 1)
            block += text.substr(line + indent.size(), text.find('\n', line) + 1 - line - indent.size());
        blocks.push_back(block);
    }
    return blocks;
}

#endif
