#include "store/FileLocks.h"

#include <cerrno>
#include <cstdarg>
#include <map>
#include <mutex>
#include <string>
#include <unordered_map>
#include <utility>

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ko {

namespace FileLocks {

namespace {

#ifdef F_OFD_SETLK

/// The file once more. For writing, if that is allowed: a connection that writes may come after one that only
/// reads, and a write lock takes a descriptor for writing.
int openForLocks(int descriptor)
{
    if ((::fcntl(descriptor, F_GETFL) & O_ACCMODE) == O_RDONLY) {
        const std::string path = "/proc/self/fd/" + std::to_string(descriptor);
        const int writing = ::open(path.c_str(), O_RDWR | O_CLOEXEC);
        if (writing >= 0)
            return writing;
    }
    return ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
}

/// Which descriptor the locks of a file are set through. SQLite counts the locks of all connections to a file
/// together and sets them through any of their descriptors, so they must meet in one open file description.
class LockTable
{
public:
    /// -1 when the file cannot have such locks.
    int lockDescriptor(int descriptor)
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        const auto known = m_users.find(descriptor);
        if (known != m_users.end())
            return m_files[known->second].lock;
        struct stat info = {};
        if (::fstat(descriptor, &info) != 0)
            return -1;
        const Key key(info.st_dev, info.st_ino);
        File& file = m_files[key];
        if (file.users++ == 0)
            file.lock = openForLocks(descriptor);
        m_users.emplace(descriptor, key);
        return file.lock;
    }

    void close(int descriptor)
    {
        const std::lock_guard<std::mutex> guard(m_mutex);
        const auto user = m_users.find(descriptor);
        if (user == m_users.end())
            return;
        const auto file = m_files.find(user->second);
        m_users.erase(user);
        if (--file->second.users > 0)
            return;
        if (file->second.lock >= 0)
            ::close(file->second.lock);
        m_files.erase(file);
    }

private:
    typedef std::pair<dev_t, ino_t> Key;
    struct File
    {
        int lock = -1;
        int users = 0;
    };

    std::mutex m_mutex;
    std::unordered_map<int, Key> m_users;
    std::map<Key, File> m_files;
};

/// Never destroyed: databases may be closed after the destructors of static objects have run.
LockTable& table()
{
    static LockTable* const table = new LockTable;
    return *table;
}

int ofdCommand(int command)
{
    switch (command) {
    case F_GETLK:
        return F_OFD_GETLK;
    case F_SETLK:
        return F_OFD_SETLK;
    case F_SETLKW:
        return F_OFD_SETLKW;
    default:
        return -1;
    }
}

int keepingFcntl(int descriptor, int command, ...) // NOLINT(cert-dcl50-cpp): the system call's own signature
{
    va_list arguments;
    va_start(arguments, command);
    void* const argument = va_arg(arguments, void*);
    va_end(arguments);
    const int instead = ofdCommand(command);
    const int lock = instead < 0 ? -1 : table().lockDescriptor(descriptor);
    if (lock < 0)
        return ::fcntl(descriptor, command, argument);
    auto* const range = static_cast<struct flock*>(argument);
    range->l_pid = 0; // demanded, and SQLite does not set it
    return ::fcntl(lock, instead, range);
}

int keepingClose(int descriptor)
{
    table().close(descriptor);
    return ::close(descriptor);
}

template <class Function>
sqlite3_syscall_ptr systemCall(Function* function)
{
    return reinterpret_cast<sqlite3_syscall_ptr>(function);
}

bool install()
{
    if (sqlite3_initialize() != SQLITE_OK)
        return false;
    sqlite3_vfs* const vfs = sqlite3_vfs_find("unix");
    return vfs && vfs->iVersion >= 3 &&
           vfs->xSetSystemCall(vfs, "close", systemCall(&keepingClose)) == SQLITE_OK &&
           vfs->xSetSystemCall(vfs, "fcntl", systemCall(&keepingFcntl)) == SQLITE_OK;
}

#else

bool install()
{
    return false;
}

#endif

// When the library is loaded: a connection that is open already would lock one way and unlock the other.
const bool installed = install();

} // namespace

bool areKept()
{
    return installed;
}

} // namespace FileLocks

} // namespace ko
