#ifndef QRL_BLOCKS_LONGFILENAME_H
#define QRL_BLOCKS_LONGFILENAME_H

#include "blocks/AString.h"

/// The name of a file, with or without folders, as the user gave it. Names no file when empty.
class LongFileName {
public:
    LongFileName() = default;
    explicit LongFileName(AString path) : m_Path(std::move(path)) {}

    /// True for anything that is there and is no directory, readable or not. A link counts as what it points at.
    bool Exists() const;

    /// Replaces the extension of the last path component by `newExt`, which includes the dot, or adds it where there is
    /// none. The extension begins at the last dot; a dot at the start of the component begins none.
    void ChangeExt(const AString& newExt);

    const AString& FilePath() const { return m_Path; }

private:
    AString m_Path;
};

#endif
