#include "fuzz/FuzzTarget.h"

#include "blocks/NeutralReader.h"
#include "blocks/NeutralWriter.h"
#include "blocks/TextStreams.h"

/// What the strict reader accepts is written back to the same bytes: trees, named values and values, one behind the
/// other.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    BeQuiet();
    const std::string_view text = TextOfInput(data, size);
    io::NeutralReader reader(text);
    io::TextOstream again;
    io::NeutralWriter writer(again);
    for (bool isAccepted = true; isAccepted;) {
        isAccepted = false;
        if (const auto tree = reader.ReadTree()) {
            writer.Write(*tree);
            isAccepted = true;
        } else if (const auto named = reader.ReadNamedValue()) {
            writer.WriteNamedValue(named->m_Name, named->m_Value);
            isAccepted = true;
        }
    }
    if (const auto value = reader.ReadValue())
        writer.WriteValue(*value);
    Require(again.GetText() == text.substr(0, reader.GetConsumed()), "what is accepted is written back");
    return 0;
}
