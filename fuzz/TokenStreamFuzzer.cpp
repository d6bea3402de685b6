#include "fuzz/FuzzTarget.h"

#include "blocks/CBase_grammar.h"
#include "blocks/CToken_istream.h"

/// The tokens of any text come to its end. A string that is never closed is passed over with the rest of its line.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    BeQuiet();
    io::CDelimiter_grammar grammar("()");
    grammar.CommentCharSet(";");
    io::CToken_istream stream(TextOfInput(data, size), grammar, io::CToken_istream::k_Expressions);
    long lastLine = 1;
    while (!stream.AtEnd()) {
        const size_t left = stream.GetRest().size();
        io::CToken token;
        AString line;
        try {
            stream >> token;
        } catch (const io::XStreamioError&) {
            stream.NewLine(line);
        }
        Require(token.GetText().size() <= left, "a token is a part of the text");
        Require(stream.GetRest().size() < left, "each token or line consumes something");
        Require(stream.LineNumber() >= lastLine, "lines are counted on");
        lastLine = stream.LineNumber();
    }
    return 0;
}
