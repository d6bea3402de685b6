#ifndef QRL_BLOCKS_CABSTRACT_OSTREAM_H
#define QRL_BLOCKS_CABSTRACT_OSTREAM_H

#include <string_view>

namespace io {

/// What an object of the tree needs in order to be written: a place that takes text, piece by piece.
class CAbstract_ostream {
public:
    CAbstract_ostream() = default;
    CAbstract_ostream(const CAbstract_ostream&) = delete;
    CAbstract_ostream& operator=(const CAbstract_ostream&) = delete;
    virtual ~CAbstract_ostream() = default;

    /// Takes the next piece. Pieces should be large: each call can cost a call of the system.
    virtual void Put(std::string_view text) = 0;
};

} // namespace io

#endif
