#include "neutral/ZukenConverter.h"

#include "blocks/CBase_grammar.h"
#include "blocks/CToken_istream.h"
#include "blocks/ReadBlock.h"

bool ZukenConverter::Run() {
    if (!ftfName.Exists())
        return false;
    io::CBlock fpData("fpData");
    ReadFile(ftfName, fpData);
    if (!pcfName.Exists())
        return false;
    io::CBlock pcbData("pcbData");
    ReadFile(pcfName, pcbData);
    ZukenPCBParser parser(fpData, pcbData);
    parser.Parse(txtName);
    Write(parser);
    return true;
}

bool ZukenConverter::ReadFile(const LongFileName& fileName, io::CBlock& block) {
    io::CDelimiter_grammar grammar("()");
    grammar.CommentCharSet(";");
    io::CToken_istream stream(fileName, grammar, io::CToken_istream::k_Expressions);
    if (stream.fail())
        return false;
    io::ReadBlock(stream, block);
    stream.Close();
    return true;
}
