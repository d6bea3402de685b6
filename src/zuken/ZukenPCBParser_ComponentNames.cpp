#include "model/ZukenPCBParser.h"

#include <algorithm>

/// A net names a pin as `<component>.<pin index>`, so a component's name must not end in a dot: all dots of such a name
/// become underscores. A dot within a name stays.
AString ZukenPCBParser::MakeComponentName(const AString& reference) {
    AString name = reference;
    if (reference.Match("*.") && reference.Match("*.*")) {
        name = ReplaceAll(reference, ".", "_");
        // Nothing is done yet about a name that another reference has too: the two components share it.
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): it doesn't follow the count of shared texts
        static_cast<void>(nameMap.HasName(name));
    }
    nameMap.Set(reference, name);
    return name;
}

AString ZukenPCBParser::GetComponentName(const AString& reference) { return nameMap.Get(reference); }

AString ZukenPCBParser::ReplaceAll(const AString& text, const AString& from, const AString& to) {
    AString replaced = text;
    size_t at = replaced.find(from);
    while (at != AString::npos) {
        replaced.replace(at, from.size(), to);
        // What was passed holds no `from`, but the end of it can be the beginning of one.
        at = replaced.find(from, at - std::min(at, from.size() - 1));
    }
    return replaced;
}
