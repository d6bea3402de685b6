#include "blocks/CBase_grammar.h"
#include "blocks/CToken_istream.h"
#include "model/ZukenPCBParser.h"

#include <iostream>

namespace {

/// Columns of a line; the last one is optional.
enum Column : size_t { k_Reference, k_PartNumber, k_Value, k_NotFitted, k_ColumnCount };

constexpr size_t k_NeededColumns = k_NotFitted;

void ReportUnknownReference(const AString& reference) {
    std::cout << "Could find component with refid " << reference.QRL_ANSI() << '\n' << std::flush;
}

} // namespace

bool ZukenPCBParser::ParseTextFile(const LongFileName& fileName) {
    if (!fileName.Exists())
        return false;
    io::CToken_grammar grammar;
    grammar.CommentCharSet("#");
    io::CToken_istream stream(fileName, grammar, io::CToken_istream::k_SideText);
    if (!stream.fail())
        ReadTextLines(stream);
    return false;
}

/// The first line with enough columns is the title:
///
///     Reference PartNumber Value DNP
///     R10 R0805-189 1k YES
///     "U2" "QFP48-035" "IC100"
void ZukenPCBParser::ReadTextLines(io::CToken_istream& stream) {
    bool isTitleRead = false;
    while (!stream.eof()) {
        AString line;
        stream.NewLine(line);
        std::vector<AString> fields;
        SplitTextLine(line, fields);
        if (fields.size() < k_NeededColumns)
            continue;
        if (isTitleRead)
            AmendComponent(fields);
        isTitleRead = true;
    }
}

int ZukenPCBParser::SplitTextLine(const AString& line, std::vector<AString>& fields) {
    std::vector<AString> pieces;
    line.TokenizeString(" \"", pieces);
    const size_t before = fields.size();
    for (AString& piece : pieces) {
        piece.Trim();
        if (!piece.empty())
            fields.push_back(std::move(piece));
    }
    return static_cast<int>(fields.size() - before);
}

/// The part number of the board file wins, the value of the side file does.
void ZukenPCBParser::AmendComponent(const std::vector<AString>& fields) {
    Component* component = FindComponent(GetComponentName(fields[k_Reference]));
    if (component == nullptr) {
        ReportUnknownReference(fields[k_Reference]);
        return;
    }
    if (component->partNumber.empty())
        component->partNumber = fields[k_PartNumber];
    component->value = fields[k_Value];
    if (fields.size() == k_ColumnCount && fields[k_NotFitted].CompareNoCase("YES") == 0)
        component->active = false;
}
