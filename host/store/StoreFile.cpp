#include "store/StoreFile.h"

#include "model/StoreError.h"
#include "store/StoreSchema.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <QtEndian>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ko {

namespace StoreFile {

namespace {

// Places in the header of an SQLite file.
constexpr int HeaderSize = 100;
constexpr int VersionOffset = 60;
constexpr int ApplicationOffset = 68;
constexpr char Magic[] = "SQLite format 3"; // with its final zero

// And of its rollback journal.
constexpr char JournalMagic[] = "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7";
constexpr int JournalPagesOffset = 16; // pages of the database before the transaction

[[noreturn]] void fail(StoreError::Kind kind, const QString& file, const QString& detail)
{
    throw StoreFailure{StoreError::make(kind, file, detail)};
}

StoreError::Kind kindOf(int code)
{
    if (code == EACCES || code == EPERM || code == EROFS)
        return StoreError::ReadOnly;
    return code == ENOSPC || code == EDQUOT ? StoreError::DiskFull : StoreError::CannotOpen;
}

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

QByteArray readHeader(const QString& file)
{
    // Without waiting: nobody may ever write into a pipe.
    const int descriptor = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        fail(errno == ENXIO ? StoreError::NotAFile : StoreError::CannotOpen, file, systemError());
    QFile reader;
    reader.open(descriptor, QIODevice::ReadOnly, QFile::AutoCloseHandle);
    struct stat info = {};
    if (::fstat(descriptor, &info) != 0 || !S_ISREG(info.st_mode))
        fail(StoreError::NotAFile, file, QLatin1String("no regular file"));
    // All of it will be looked through, and SQLite asks for page after page.
    ::posix_fadvise(reader.handle(), 0, 0, POSIX_FADV_WILLNEED);
    return reader.read(HeaderSize);
}

quint32 numberAt(const QByteArray& header, int offset)
{
    return qFromBigEndian<quint32>(header.constData() + offset);
}

/// Whether power was lost while the very first transaction went into the file, its first page not yet
/// there. SQLite makes it an empty one again, as its journal says it was.
bool wasCutAtCreation(const QString& file, const QByteArray& header)
{
    if (header.count('\0') != header.size())
        return false;
    QFile journal(file + QLatin1String("-journal"));
    if (!journal.open(QIODevice::ReadOnly))
        return false;
    const QByteArray start = journal.read(JournalPagesOffset + 4);
    return start.size() == JournalPagesOffset + 4 && start.startsWith(JournalMagic) &&
           numberAt(start, JournalPagesOffset) == 0;
}

void checkHeader(const QString& file, const QByteArray& header, int version)
{
    if (!header.startsWith(QByteArray(Magic, sizeof Magic)))
        fail(StoreError::NotADatabase, file, QLatin1String("no SQLite header"));
    if (header.size() < HeaderSize)
        fail(StoreError::Damaged, file, QLatin1String("the header is cut off"));
    if (numberAt(header, ApplicationOffset) != StoreSchema::ApplicationId)
        fail(StoreError::OtherProgram, file, QLatin1String("application id"));
    if (numberAt(header, VersionOffset) > quint32(version))
        fail(StoreError::NewerVersion, file,
             QString::fromLatin1("version %1").arg(numberAt(header, VersionOffset)));
}

} // namespace

const char* const Companions[3] = {"-wal", "-shm", "-journal"};

QString resolved(const QString& file)
{
    // By hand, because the toolkit has a meaning of its own for names that begin with ":".
    const bool isAbsolute = file.startsWith(QLatin1Char('/'));
    QFileInfo info(isAbsolute ? file : QDir::currentPath() + QLatin1Char('/') + file);
    // A link to a file that is not there yet: SQLite makes it where the link points.
    for (int links = 0; links < 40 && info.isSymLink() && !info.exists(); ++links)
        info.setFile(info.symLinkTarget());
    if (info.exists())
        return info.canonicalFilePath();
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? info.absoluteFilePath()
                            : QDir::cleanPath(folder + QLatin1Char('/') + info.fileName());
}

bool isSame(const QString& file, const QString& other)
{
    struct stat a = {};
    struct stat b = {};
    return ::stat(QFile::encodeName(file).constData(), &a) == 0 &&
           ::stat(QFile::encodeName(other).constData(), &b) == 0 && a.st_dev == b.st_dev &&
           a.st_ino == b.st_ino;
}

bool belongsToDatabase(const QString& file)
{
    const auto isDatabase = [](const QString& name) {
        QFile reader(name);
        return QFileInfo(name).isFile() && reader.open(QIODevice::ReadOnly) &&
               reader.read(sizeof Magic) == QByteArray(Magic, sizeof Magic);
    };
    const QString name = resolved(file);
    return isDatabase(name) ||
           std::any_of(std::begin(Companions), std::end(Companions), [&](const char* end) {
               return name.endsWith(QLatin1String(end)) && isDatabase(name.chopped(int(qstrlen(end))));
           });
}

bool create(const QString& file)
{
    const int descriptor =
        ::open(QFile::encodeName(file).constData(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0 && errno == EEXIST)
        return false;
    if (descriptor < 0)
        fail(kindOf(errno), file, systemError());
    ::fchmod(descriptor, S_IRUSR | S_IWUSR); // an odd umask takes bits away
    ::close(descriptor);
    return true;
}

void keepPrivate(const QString& file)
{
    const auto restrict = [](const QString& name) {
        const QByteArray path = QFile::encodeName(name);
        struct stat info = {};
        if (::stat(path.constData(), &info) != 0)
            return;
        const mode_t shared = info.st_mode & S_IWGRP ? S_IRWXO : S_IRWXG | S_IRWXO;
        if (info.st_mode & shared)
            ::chmod(path.constData(), info.st_mode & ~shared & 07777); // fails where it is another user's
    };
    restrict(file);
    for (const char* end : Companions)
        restrict(file + QLatin1String(end));
}

void removeWithCompanions(const QString& file)
{
    for (const char* end : Companions)
        QFile::remove(file + QLatin1String(end));
    QFile::remove(file);
}

bool flushFolder(const QString& file)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(file).absolutePath());
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool flushed = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return flushed;
}

void check(const QString& file, int version)
{
    const QByteArray header = readHeader(file);
    if (!header.isEmpty() && !wasCutAtCreation(file, header))
        checkHeader(file, header, version);
    const QFileInfo info(file);
    if (!info.isWritable() || !QFileInfo(info.absolutePath()).isWritable())
        fail(StoreError::ReadOnly, file, QLatin1String("no permission to write"));
}

void checkHeader(const QString& file, int version)
{
    checkHeader(file, readHeader(file), version);
}

void moveAside(const QString& file)
{
    const QString time = QDateTime::currentDateTimeUtc().toString(QLatin1String("yyyyMMdd'T'HHmmsszzz'Z'"));
    const QString aside = file + QLatin1String(".damaged-") + time;
    const QFileInfo info(file);
    const bool isEmpty = info.isFile() && info.size() == 0;
    if (info.exists() && !(isEmpty ? QFile::remove(file) : QFile::rename(file, aside)))
        fail(StoreError::ReadOnly, file, QLatin1String("rename"));
    for (const char* end : Companions)
        QFile::rename(file + QLatin1String(end), aside + QLatin1String(end));
}

void readAhead(const QString& file)
{
    const off_t most = 256 * 1024 * 1024; // of a larger one, much is history
    const int descriptor = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::posix_fadvise(descriptor, 0, most, POSIX_FADV_WILLNEED);
    ::close(descriptor);
}

bool isDiskFull(const QString& file)
{
    // The smallest thing a store asks for is a 32 KB index of its write-ahead log.
    const QStorageInfo storage(QFileInfo(file).absolutePath());
    return storage.isValid() && storage.bytesAvailable() < 64 * 1024;
}

bool isNetworkFileSystem(const QByteArray& type)
{
    static const char* const names[] = {"9p",         "afs",  "ceph",  "cifs", "fuse.glusterfs",
                                        "fuse.sshfs", "gfs2", "ncpfs", "nfs",  "nfs4",
                                        "ocfs2",      "smb3", "smbfs"};
    return std::any_of(std::begin(names), std::end(names),
                       [&type](const char* name) { return type == name; });
}

bool isOnNetwork(const QString& file)
{
    return isNetworkFileSystem(QStorageInfo(QFileInfo(file).absolutePath()).fileSystemType());
}

} // namespace StoreFile

} // namespace ko
