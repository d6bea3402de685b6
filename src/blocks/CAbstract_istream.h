#ifndef QRL_BLOCKS_CABSTRACT_ISTREAM_H
#define QRL_BLOCKS_CABSTRACT_ISTREAM_H

#include <cstddef>
#include <string_view>

namespace io {

/// What an object of the tree needs in order to be read: the text that is left, and a way to consume some of it.
class CAbstract_istream {
public:
    CAbstract_istream() = default;
    CAbstract_istream(const CAbstract_istream&) = delete;
    CAbstract_istream& operator=(const CAbstract_istream&) = delete;
    virtual ~CAbstract_istream() = default;

    /// All text that hasn't been consumed yet. Valid as long as the stream.
    virtual std::string_view GetRest() const = 0;
    /// Consumes the first `count` bytes of the rest.
    virtual void Advance(size_t count) = 0;
};

} // namespace io

#endif
