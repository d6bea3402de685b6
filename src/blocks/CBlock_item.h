#ifndef QRL_BLOCKS_CBLOCK_ITEM_H
#define QRL_BLOCKS_CBLOCK_ITEM_H

#include "blocks/CStreamio_object.h"
#include "blocks/CToken.h"

namespace io {

/// An entry of a block: a value, a func, a named value or another block.
class CBlock_item : public CStreamio_object {
public:
    /// The name, empty for a value.
    virtual AString Name() const = 0;
    /// Replaces the name. A value has none and keeps it so.
    virtual void Name(const AString& name) = 0;
    /// The name as a token, valid until the item changes or goes.
    virtual const CToken& NameToken() const = 0;
    virtual bool IsNamed() const { return true; }

    /// Whether nothing is held: no argument, no item, no token.
    virtual bool Empty() const { return Size() == 0; }
    /// How many arguments or items are held; 1 for a value or named value, 0 for an empty one.
    virtual int Size() const = 0;
    /// Drops what is held and keeps the name.
    virtual void Clear() = 0;

    virtual bool IsNamedValue() const { return false; }
    virtual bool IsValue() const { return false; }
    virtual bool IsBlock() const { return false; }
    virtual bool IsFunc() const { return false; }
    /// Whether what is held stands in positions that have a meaning, as arguments do.
    virtual bool IsVec() const { return false; }
    /// Bytes of memory that the object takes; with `withTree` also those of the tree that it stands in.
    virtual size_t SizeOf(bool withTree) const = 0;
};

/// An entry that can also stand as an argument of a func: a func or a value.
class CBlock_func_arg : public CBlock_item {
public:
    /// The text with a closing 0, for a buffer that the caller knows to be large enough.
    virtual bool Query(wchar_t* value) const = 0;
    /// The reads by type. Each returns false, with the target unchanged, where the argument is of another kind, as a
    /// func is of any. Text is given for every value, as it stands in the file.
    virtual bool Query(bool& value) const = 0;
    virtual bool Query(AString& value) const = 0;
    virtual bool Query(unsigned long long& value) const = 0;
    virtual bool Query(long long& value) const = 0;
    virtual bool Query(unsigned long& value) const = 0;
    virtual bool Query(unsigned int& value) const = 0;
    virtual bool Query(unsigned short& value) const = 0;
    virtual bool Query(long& value) const = 0;
    virtual bool Query(int& value) const = 0;
    virtual bool Query(short& value) const = 0;
    virtual bool Query(float& value) const = 0;
    virtual bool Query(double& value) const = 0;
};

} // namespace io

#endif
