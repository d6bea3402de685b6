#include "blocks/FuncRange.h"

namespace io {

FuncRange::Iterator::Iterator(const TreeView& parent)
    : m_Parent(parent), m_At(parent.GetBegin()), m_End(parent.GetEnd()), m_Func(parent) {
    Settle();
}

FuncRange::Iterator& FuncRange::Iterator::operator++() {
    m_At = m_At->GetNext();
    Settle();
    return *this;
}

/// Goes on to the next node that is a func, itself or by reference.
void FuncRange::Iterator::Settle() {
    for (; m_At != m_End; m_At = m_At->GetNext())
        if (m_Func.Enter(m_Parent, *m_At))
            return;
}

} // namespace io
