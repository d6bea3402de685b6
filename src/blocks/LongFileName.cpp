#include "blocks/LongFileName.h"

#include <sys/stat.h>

bool LongFileName::Exists() const {
    struct stat info = {};
    return stat(m_Path.QRL_ANSI().c_str(), &info) == 0 && !S_ISDIR(info.st_mode);
}

void LongFileName::ChangeExt(const AString& newExt) {
    const std::string path = m_Path.QRL_ANSI();
    const size_t slash = path.rfind('/');
    const size_t component = slash == std::string::npos ? 0 : slash + 1;
    const size_t dot = path.rfind('.');
    const bool hasExtension = dot != std::string::npos && dot > component;
    m_Path = AString(std::string_view(path).substr(0, hasExtension ? dot : path.size())) + newExt;
}
