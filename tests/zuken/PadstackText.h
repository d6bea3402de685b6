#ifndef QRL_TESTS_ZUKEN_PADSTACKTEXT_H
#define QRL_TESTS_ZUKEN_PADSTACKTEXT_H

#include "model/BasePad.h"
#include "model/Padstack.h"

#include <string>
#include <vector>

/// What a sequence of a padstack holds, place by place: "1:small" for a pad with its layer number, "1:?" for an entry
/// without a pad, and "-" for no entry.
inline std::vector<std::string> Show(const Padstack::LayerPads& pads) {
    std::vector<std::string> shown;
    for (const PadstackLayerPad* entry : pads) {
        if (entry == nullptr)
            shown.emplace_back("-");
        else
            shown.push_back(
                std::to_string(entry->layer) + ":" + (entry->pad == nullptr ? "?" : entry->pad->GetName().QRL_ANSI()));
    }
    return shown;
}

#endif
