#ifndef QRL_TESTS_NEUTRAL_SECTIONTEXT_H
#define QRL_TESTS_NEUTRAL_SECTIONTEXT_H

#include "blocks/TextStreams.h"
#include "neutral/ZukenConverter.h"

#include <string>

/// A converter that is only asked for sections.
inline ZukenConverter SectionConverter() {
    const LongFileName noFile;
    return {noFile, noFile, noFile, noFile};
}

/// The text of `root` in the neutral file.
inline std::string TextOf(const io::CBlock& root) {
    io::TextOstream stream;
    root.write(stream);
    return stream.GetText();
}

#endif
