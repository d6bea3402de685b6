#ifndef QRL_BLOCKS_TEXTSTREAMS_H
#define QRL_BLOCKS_TEXTSTREAMS_H

#include "blocks/CAbstract_istream.h"
#include "blocks/CAbstract_ostream.h"

#include <string>
#include <string_view>

namespace io {

/// Reads from text that the caller keeps.
class TextIstream : public CAbstract_istream {
public:
    explicit TextIstream(std::string_view text) : m_Rest(text) {}
    std::string_view GetRest() const override { return m_Rest; }
    void Advance(size_t count) override { m_Rest.remove_prefix(count); }

private:
    std::string_view m_Rest;
};

/// Collects what is put.
class TextOstream : public CAbstract_ostream {
public:
    void Put(std::string_view text) override { m_Text += text; }
    const std::string& GetText() const { return m_Text; }

private:
    std::string m_Text;
};

} // namespace io

#endif
