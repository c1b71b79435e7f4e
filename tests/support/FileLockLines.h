#ifndef TESTS_SUPPORT_FILELOCKLINES_H
#define TESTS_SUPPORT_FILELOCKLINES_H

#include <QDir>
#include <QFile>
#include <QStringList>

#include <sys/stat.h>

namespace testsupport {

/// The locks that this process has on a database and on what SQLite keeps beside it: kind of access, file and
/// bytes, in order. As the system tells them of each descriptor, without opening the files: its list of all
/// locks comes in pieces, and lacks lines where other processes lock and unlock meanwhile.
inline QStringList lockLines(const QString& database)
{
    QStringList inodes;
    for (const char* end : {"", "-wal", "-shm"}) {
        struct stat info = {};
        if (::stat(QFile::encodeName(database + QLatin1String(end)).constData(), &info) == 0)
            inodes.append(QString::number(info.st_ino));
    }
    QStringList found;
    const QFileInfoList descriptors = QDir(QLatin1String("/proc/self/fdinfo")).entryInfoList(QDir::Files);
    for (const QFileInfo& descriptor : descriptors) {
        QFile info(descriptor.filePath());
        if (!info.open(QIODevice::ReadOnly))
            continue; // the one by which the folder was read
        const QStringList lines = QString::fromLatin1(info.readAll()).split(QLatin1Char('\n'));
        for (const QString& line : lines) {
            // lock: 1: OFDLCK ADVISORY READ -1 00:2f:123456 1073741826 1073742335
            const QStringList words = line.simplified().split(QLatin1Char(' '));
            if (words.value(0) == QLatin1String("lock:") &&
                inodes.contains(words.value(6).section(QLatin1Char(':'), -1)))
                found.append(words.mid(4).join(QLatin1Char(' ')));
        }
    }
    found.sort();
    return found;
}

} // namespace testsupport

#endif
