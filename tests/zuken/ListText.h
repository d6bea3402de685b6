#ifndef QRL_TESTS_ZUKEN_LISTTEXT_H
#define QRL_TESTS_ZUKEN_LISTTEXT_H

#include "blocks/FuncRange.h"
#include "tests/BoardText.h"

/// The first list of `text`, as a reader is handed it.
inline io::CBlock_func ListOf(std::string_view text) {
    const io::CBlock lists = ReadListText(text);
    for (const io::CBlock_func& list : lists.Funcs())
        return list;
    ADD_FAILURE() << "no list in " << text;
    return io::CBlock_func("");
}

#endif
