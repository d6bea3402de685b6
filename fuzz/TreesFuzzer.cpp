#include "fuzz/FuzzTarget.h"
#include "fuzz/TreeTwin.h"

/// A tree that goes through any operations holds what a vector holds that goes through the same.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    BeQuiet();
    InputBits bits(data, size);
    TreeTwin twin;
    while (!bits.IsEmpty()) {
        const auto operation = bits.Take<uint8_t>();
        const auto place = bits.Take<uint8_t>();
        const Interval interval = {bits.Take<int8_t>(), bits.Take<int8_t>()};
        if (operation % 8 == 0)
            twin.Filter(interval);
        else if (operation % 8 == 1)
            twin.Rebuild();
        else
            twin.Insert(place, operation % 2 == 0, interval);
    }
    twin.Compare();
    return 0;
}
