#include "model/ZukenPCBParser.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace {

/// Whether both patterns of a name with a dot at its end match.
bool EndsInDot(const AString& reference) {
    static const AString k_AnyAndDot = "*.";
    static const AString k_AnyWithDot = "*.*";
    return reference.Match(k_AnyAndDot) && reference.Match(k_AnyWithDot);
}

} // namespace

/// A net names a pin as `<component>.<pin index>`, so a component's name must not end in a dot: all dots of such a name
/// become underscores. A dot within a name stays.
AString ZukenPCBParser::MakeComponentName(const AString& reference) {
    static const AString k_Dot = ".";
    static const AString k_Underscore = "_";
    AString name = reference;
    if (EndsInDot(reference)) {
        name = ReplaceAll(reference, k_Dot, k_Underscore);
        // Nothing is done yet about a name that another reference has too: the two components share it.
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): it doesn't follow the count of shared texts
        static_cast<void>(nameMap.HasName(name));
    }
    nameMap.Set(reference, name);
    return name;
}

AString ZukenPCBParser::GetComponentName(const AString& reference) { return nameMap.Get(reference); }

AString ZukenPCBParser::ReplaceAll(const AString& text, const AString& from, const AString& to) {
    std::u16string replaced(text.c_str(), text.size());
    const std::u16string_view taken(from.c_str(), from.size());
    const std::u16string_view given(to.c_str(), to.size());
    size_t at = replaced.find(taken);
    while (at != std::u16string::npos) {
        replaced.replace(at, taken.size(), given);
        // What was passed holds no `from`, but the end of it can be the beginning of one.
        at = replaced.find(taken, at - std::min(at, taken.size() - 1));
    }
    return AString(replaced);
}
