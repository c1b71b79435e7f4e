#include "store/DraftFile.h"

#include "model/StoreError.h"
#include "store/StoreFile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace ko {

namespace {

const char Infix[] = ".new-";

/// Makes the file and returns its name. Two in one millisecond are told apart by waiting for the next.
QString create(const QString& target)
{
    QString name;
    do {
        const QDateTime now = QDateTime::currentDateTimeUtc();
        name = target + QLatin1String(Infix) + now.toString(QLatin1String("yyyyMMdd'T'HHmmsszzz'Z'"));
    } while (!StoreFile::create(name));
    return name;
}

/// -1 if somebody else has it.
int lock(const QString& file)
{
    // Not one of SQLite's locks, which it has on the same file.
    const int descriptor = ::open(QFile::encodeName(file).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor >= 0 && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0)
        return descriptor;
    if (descriptor >= 0)
        ::close(descriptor);
    return -1;
}

[[noreturn]] void fail(StoreError::Kind kind, const QString& file, const char* detail)
{
    throw StoreFailure{StoreError::make(kind, file, QLatin1String(detail))};
}

} // namespace

DraftFile::DraftFile(const QString& target)
    : m_target(target)
    , m_name(create(target))
    , m_lock(lock(m_name))
{
}

DraftFile::~DraftFile()
{
    StoreFile::removeWithCompanions(m_name);
    if (m_lock >= 0)
        ::close(m_lock);
}

bool DraftFile::publish()
{
    const QByteArray draft = QFile::encodeName(m_name);
    const QByteArray target = QFile::encodeName(m_target);
    // Not by rename(), which would replace a file that another program has made by now.
    if (::link(draft.constData(), target.constData()) != 0) {
        if (errno == EEXIST || QFileInfo::exists(m_target))
            return false;
        // No links on this file system.
        if (std::rename(draft.constData(), target.constData()) != 0)
            fail(StoreError::ReadOnly, m_target, "rename");
    }
    ::unlink(draft.constData());
    if (!StoreFile::flushFolder(m_target))
        fail(StoreError::Other, m_target, "the folder cannot be flushed");
    return true;
}

void DraftFile::removeLeftovers(const QString& database, const QString& folder)
{
    const QDateTime youngest =
        QDateTime::currentDateTime().addSecs(-10); // its maker may not have locked it yet
    const QFileInfo info(database);
    QFileInfoList drafts = info.dir().entryInfoList({info.fileName() + QLatin1String("*")}, QDir::Files);
    drafts += QDir(folder).entryInfoList(QDir::Files);
    for (const QFileInfo& draft : std::as_const(drafts)) {
        const int infix = int(draft.fileName().lastIndexOf(QLatin1String(Infix)));
        if (infix < 0 || !draft.fileName().endsWith(QLatin1Char('Z')) || draft.lastModified() > youngest)
            continue;
        const int held = lock(draft.filePath());
        if (held < 0)
            continue;
        StoreFile::removeWithCompanions(draft.filePath());
        ::close(held);
    }
    // What was saved of a damaged database, for a user who does not look at it for a day.
    const QFileInfoList folders =
        info.dir().entryInfoList({info.fileName() + QLatin1String(".recovery.??????")}, QDir::Dirs);
    for (const QFileInfo& saved : folders) {
        if (saved.lastModified() < youngest.addDays(-1))
            QDir(saved.filePath()).removeRecursively();
    }
}

} // namespace ko
