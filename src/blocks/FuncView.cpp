#include "blocks/FuncView.h"

namespace io {

FuncView FuncView::Find(std::string_view name) const {
    for (const FuncView func : Funcs())
        if (func.NameIs(name))
            return func;
    return {};
}

FuncView& FuncView::operator>>(AString& value) {
    std::string_view text;
    if (m_Next != m_End && NodeValue(*m_Next).Query(text)) {
        value = AString(text);
        m_Next = m_Next->GetNext();
    }
    return *this;
}

} // namespace io
