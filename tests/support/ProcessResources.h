#ifndef TESTS_SUPPORT_PROCESSRESOURCES_H
#define TESTS_SUPPORT_PROCESSRESOURCES_H

#include <QDir>
#include <QFile>

#include <malloc.h>
#include <unistd.h>

namespace testsupport {

/// Bytes that are allocated now. 0 under AddressSanitizer, which allocates in its own way.
inline qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
}

/// Bytes of memory that are in use now, whoever allocated them.
inline qint64 residentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    file.open(QIODevice::ReadOnly);
    return file.readAll().split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
}

/// How many threads and file descriptors this process has.
struct ProcessResources
{
    int threads = entries("/proc/self/task");
    int descriptors = entries("/proc/self/fd");

    bool operator==(const ProcessResources& other) const
    {
        return threads == other.threads && descriptors == other.descriptors;
    }

private:
    static int entries(const char* folder)
    {
        return int(QDir(QLatin1String(folder))
                       .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                       .size());
    }
};

} // namespace testsupport

#endif
