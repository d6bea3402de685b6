#ifndef QRL_ZUKEN_LISTVALUES_H
#define QRL_ZUKEN_LISTVALUES_H

#include "blocks/FuncView.h"
#include "lib/math/geometry/Point.h"

// What every reader asks of a list. Nothing here fails: what isn't there is empty or 0.

/// The first child of that name, to be read from its first argument; an empty list where there is none.
io::CBlock_func GetChild_G(const io::CBlock_func& list, const char* name);

/// Fills `query` with the first child of its name. False, with `query` as it was, where there is none.
bool FindChild_G(const io::CBlock_func& list, io::CBlock_func& query);

/// The number that the child of that name begins with; 0 where there is none.
///
///     (width 0.3)
double GetRealOf_G(io::FuncView list, const char* name);

/// The text that the child of that name begins with. A number is no text: it leaves the result empty.
///
///     (footLayer PAD_A)
AString GetTextOf_G(io::FuncView list, const char* name);

/// Reads what `list` begins with as a name, which may be a text or a whole number. What is neither leaves `name` as it
/// was.
///
///     (reference R17)  (reference 17)
void ReadName_G(io::CBlock_func& list, AString& name);

/// Replaces `text` by that of the value that `list` begins with, of whatever kind, as it stands in the file. Where
/// there is no value `text` stays as it was.
void ReadAnyText_G(const io::CBlock_func& list, AString& text);

/// What a list of a pin begins with: a whole number as such, so that 007 is pin 7, and any other value as its text.
///
///     (pin A1)  (pin 7)
AString ReadPinName_G(io::CBlock_func& pin);

/// The two numbers at the read position of `list`, times `scale`; a coordinate that isn't there is 0.
///
///     (pt 1200 -50)
geom::Point ReadPoint_G(io::FuncView list, double scale);

/// The shape of a `refer`: what its surface's geometry holds, or without one that surface itself.
///
///     (refer (surface (geometry (surface (vertex ...)))))
io::FuncView GetSurfaceShape_G(io::FuncView refer);

/// The position that the child `pt` tells, times `scale`.
geom::Point GetPointOf_G(io::FuncView list, double scale);

#endif
