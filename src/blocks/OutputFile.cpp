#include "blocks/OutputFile.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace io {

namespace {

constexpr mode_t k_AllMayReadAndWrite = 0666; ///< what the umask takes from
constexpr int k_MaxLinks = 40;
constexpr int k_MaxTemporaries = 1000;

std::string FolderOf(const std::string& path) {
    const size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

/// The path behind a chain of symbolic links, also when nothing is there. Empty where a link can't be read.
std::string FollowLinks(std::string path) {
    char target[PATH_MAX];
    for (int i = 0; i < k_MaxLinks; ++i) {
        const ssize_t size = readlink(path.c_str(), target, sizeof target);
        if (size < 0 && errno != EINVAL && errno != ENOENT)
            return {};
        if (size < 0)
            break;
        const std::string next(target, static_cast<size_t>(size));
        path = next.starts_with('/') ? next : FolderOf(path).append(next);
    }
    return path;
}

OutputFile* g_NewestTemporary = nullptr; ///< start of the list of outputs that have a temporary file

} // namespace

void OutputFile::Write(std::string_view bytes) {
    if (m_State == State::k_Untouched && !Open())
        return;
    while (m_State == State::k_Open && !bytes.empty()) {
        const ssize_t written = write(m_Descriptor, bytes.data(), bytes.size());
        if (written >= 0)
            bytes.remove_prefix(static_cast<size_t>(written));
        else if (errno != EINTR)
            Fail(errno);
    }
}

void OutputFile::Commit() {
    Write({});
    if (m_State != State::k_Open)
        return;
    const int closed = close(std::exchange(m_Descriptor, -1));
    if (closed != 0 || (!m_Temporary.empty() && rename(m_Temporary.c_str(), m_Target.c_str()) != 0)) {
        Fail(errno);
        return;
    }
    m_State = State::k_Done;
    ForgetTemporary();
}

void OutputFile::DiscardAll() noexcept {
    for (; g_NewestTemporary != nullptr; g_NewestTemporary = g_NewestTemporary->m_NextTemporary)
        unlink(g_NewestTemporary->m_Temporary.c_str());
}

bool OutputFile::Open() {
    struct stat old = {};
    const bool exists = stat(m_Name.c_str(), &old) == 0;
    // The links of /dev/stdout to a pipe can be opened and not followed. What is there but can't be looked at, such as
    // a chain of links without an end, is left alone: its kind and its permissions are unknown.
    if (exists && !S_ISREG(old.st_mode))
        m_Descriptor = open(m_Name.c_str(), O_WRONLY | O_CLOEXEC);
    else if (exists || errno == ENOENT)
        OpenTemporary();
    if (m_Descriptor < 0 || (exists && !m_Temporary.empty() && fchmod(m_Descriptor, old.st_mode & ALLPERMS) != 0)) {
        Fail(errno);
        return false;
    }
    m_State = State::k_Open;
    return true;
}

/// The name begins with a dot and holds the number of the process, so that runs side by side don't meet.
void OutputFile::OpenTemporary() {
    m_Target = FollowLinks(m_Name);
    if (m_Target.empty())
        return;
    const std::string start = FolderOf(m_Target) + ".qrl-" + std::to_string(getpid()) + "-";
    for (int i = 0; i < k_MaxTemporaries && m_Descriptor < 0; ++i) {
        m_Temporary = start + std::to_string(i);
        m_Descriptor = open(m_Temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, k_AllMayReadAndWrite);
        if (m_Descriptor < 0 && errno != EEXIST && errno != EINTR)
            break;
    }
    if (m_Descriptor >= 0)
        m_NextTemporary = std::exchange(g_NewestTemporary, this);
    else
        m_Temporary.clear();
}

void OutputFile::ForgetTemporary() {
    for (OutputFile** link = &g_NewestTemporary; *link != nullptr; link = &(*link)->m_NextTemporary) {
        if (*link == this) {
            *link = m_NextTemporary;
            break;
        }
    }
    m_Temporary.clear();
}

void OutputFile::Fail(int reason) {
    Discard();
    m_State = State::k_Failed;
    std::fprintf(stderr, "%s: %s\n", m_Name.c_str(), std::strerror(reason));
}

void OutputFile::Discard() {
    if (m_Descriptor >= 0)
        close(std::exchange(m_Descriptor, -1));
    if (!m_Temporary.empty())
        unlink(m_Temporary.c_str());
    ForgetTemporary();
}

} // namespace io
