#ifndef QRL_FUZZ_FUZZTARGET_H
#define QRL_FUZZ_FUZZTARGET_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

/// What the fuzzer and the replay of the corpus call with each input.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

/// The first statement of each target. Failed assertions are reported and survived by design, and messages about bad
/// input are expected: both go nowhere.
void BeQuiet();

/// Ends the program with a find when what should hold doesn't.
void Require(bool condition, const char* what);

inline std::string_view TextOfInput(const uint8_t* data, size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Takes values from an input, bit by bit as they stand there. Behind the end all values are zero.
class InputBits {
public:
    InputBits(const uint8_t* data, size_t size) : m_Rest(TextOfInput(data, size)) {}

    bool IsEmpty() const { return m_Rest.empty(); }

    template <class T>
    T Take() {
        T value = {};
        const size_t size = m_Rest.size() < sizeof value ? m_Rest.size() : sizeof value;
        std::memcpy(&value, m_Rest.data(), size);
        m_Rest.remove_prefix(size);
        return value;
    }

private:
    std::string_view m_Rest;
};

#endif
