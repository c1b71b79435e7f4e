#ifndef TESTS_SUPPORT_FILELOCKLINES_H
#define TESTS_SUPPORT_FILELOCKLINES_H

#include <QFile>
#include <QStringList>

#include <sys/stat.h>

namespace testsupport {

inline QStringList lockLinesOnce(const QString& database)
{
    QStringList inodes;
    for (const char* end : {"", "-wal", "-shm"}) {
        struct stat info = {};
        if (::stat(QFile::encodeName(database + QLatin1String(end)).constData(), &info) == 0)
            inodes.append(QString::number(info.st_ino));
    }
    QFile locks(QLatin1String("/proc/locks"));
    if (!locks.open(QIODevice::ReadOnly))
        qFatal("the locks cannot be read");
    QStringList found;
    const QStringList lines = QString::fromLatin1(locks.readAll()).split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        // 1: POSIX  ADVISORY  READ 4711 00:2f:123456 1073741826 1073742335
        const QStringList words = line.simplified().split(QLatin1Char(' '));
        if (words.size() >= 8 && inodes.contains(words.at(5).section(QLatin1Char(':'), -1)))
            found.append(words.at(3) + QLatin1Char(' ') +
                         QStringList(words.mid(5, 3)).join(QLatin1Char(' ')));
    }
    found.sort();
    return found;
}

/// The locks that any process has on a database and on what SQLite keeps beside it: kind of access, file and
/// bytes, in order. From the system, without opening the files.
inline QStringList lockLines(const QString& database)
{
    // The system gives its list in pieces, between which other processes lock and unlock: lines may be
    // missing.
    QStringList before;
    QStringList lines = lockLinesOnce(database);
    for (int times = 0; times < 10 && lines != before; ++times) {
        before = lines;
        lines = lockLinesOnce(database);
    }
    return lines;
}

} // namespace testsupport

#endif
