#ifndef QRL_BLOCKS_CSTREAMIO_OBJECT_H
#define QRL_BLOCKS_CSTREAMIO_OBJECT_H

#include "blocks/AString.h"

#include <cstdint>
#include <string>

namespace io {

class CAbstract_istream;
class CAbstract_ostream;

/// Anything that can be read from and written to a stream in the text form of the neutral file.
///
/// An object can be counted: `CBlock_ptr` and trees that hold it by reference share it, and the last one deletes it. A
/// copy starts with a count of its own.
class CStreamio_object {
public:
    CStreamio_object() = default;
    CStreamio_object(const CStreamio_object& /*other*/) {}
    CStreamio_object& operator=(const CStreamio_object& /*other*/) { return *this; }
    CStreamio_object(CStreamio_object&& /*other*/) noexcept {}
    CStreamio_object& operator=(CStreamio_object&& /*other*/) noexcept { return *this; }
    virtual ~CStreamio_object() = default;

    /// Replaces the content by the text form at which `stream` stands, and consumes that. False, with object and stream
    /// unchanged, when the text there isn't exactly what `write` puts for an object of this kind.
    virtual bool read(CAbstract_istream& stream) = 0;
    /// Puts the text form. That of a func, named value or block ends in a line end.
    virtual void write(CAbstract_ostream& stream) const = 0;

    /// The text form with each line `depth` levels deeper, cut behind `maxSize` bytes unless that is below 0.
    virtual AString Pack(int depth, int maxSize) const;
    virtual AString Pack() const { return Pack(0, -1); }
    /// The text form as the bytes that `write` puts.
    virtual std::string BinaryPack() const;
    /// Replaces the content by that of a text form. False when `text` isn't exactly one; the object is then unchanged,
    /// unless `text` begins with one.
    virtual bool Unpack(const AString& text);
    /// How many bytes `write` puts on `stream`; the same for every stream.
    virtual size_t BinarySize(const CAbstract_ostream& stream) const;

    void AddReference() const { ++m_References; }
    /// Takes back one `AddReference`, and deletes the object with the last one. Null is ignored.
    static void Release(const CStreamio_object* object);

private:
    mutable uint32_t m_References = 0;
};

} // namespace io

#endif
