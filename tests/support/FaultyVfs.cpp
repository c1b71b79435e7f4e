#include "support/FaultyVfs.h"

#include <QByteArray>
#include <QtGlobal>

#include <algorithm>
#include <vector>

#include <sqlite3.h>

namespace testsupport {

namespace {

struct File
{
    sqlite3_file base;
    sqlite3_file* real;
};

/// How a file was before a write that is not synced.
struct Undo
{
    sqlite3_file* file;
    sqlite3_int64 offset;
    QByteArray bytes;
    sqlite3_int64 size;
};

enum Operation { Open, Read, Write, Sync, Truncate, Delete };

struct Disk
{
    sqlite3_vfs* real = nullptr;
    FaultyVfs::Fault fault = FaultyVfs::FaultCount; // none
    int countdown = 0;
    bool hit = false;
    bool dead = false;
    std::vector<Undo> cache;
};

Disk& disk()
{
    static Disk only;
    return only;
}

bool cutsPower()
{
    return disk().fault == FaultyVfs::PowerCut || disk().fault == FaultyVfs::CacheIsLost;
}

bool concerns(Operation operation)
{
    switch (disk().fault) {
    case FaultyVfs::OpenFails:
        return operation == Open;
    case FaultyVfs::ReadFails:
        return operation == Read;
    case FaultyVfs::WriteFails:
    case FaultyVfs::WritesFail:
    case FaultyVfs::DiskFull:
        return operation == Write;
    case FaultyVfs::SyncFails:
    case FaultyVfs::SyncsFail:
        return operation == Sync;
    case FaultyVfs::PowerCut:
    case FaultyVfs::CacheIsLost:
        return operation != Open && operation != Read;
    case FaultyVfs::FaultCount:
        break;
    }
    return false;
}

int codeOf(Operation operation)
{
    static const int codes[] = {SQLITE_CANTOPEN,    SQLITE_IOERR_READ,     SQLITE_IOERR_WRITE,
                                SQLITE_IOERR_FSYNC, SQLITE_IOERR_TRUNCATE, SQLITE_IOERR_DELETE};
    return disk().fault == FaultyVfs::DiskFull ? SQLITE_FULL : codes[operation];
}

void loseCache()
{
    for (auto undo = disk().cache.rbegin(); undo != disk().cache.rend(); ++undo) {
        const sqlite3_io_methods* methods = undo->file->pMethods;
        int result = SQLITE_OK;
        if (!undo->bytes.isEmpty())
            result =
                methods->xWrite(undo->file, undo->bytes.constData(), int(undo->bytes.size()), undo->offset);
        if (result != SQLITE_OK || methods->xTruncate(undo->file, undo->size) != SQLITE_OK)
            qFatal("what was not synced could not be taken back");
    }
    disk().cache.clear();
}

/// Whether the operation is to fail. \a now is set for the one at which the fault begins.
bool fails(Operation operation, bool* now = nullptr)
{
    if (disk().dead)
        return true;
    if (!concerns(operation))
        return false;
    if (disk().hit)
        return !FaultyVfs::passes(disk().fault);
    if (--disk().countdown > 0)
        return false;
    disk().hit = true;
    disk().dead = cutsPower();
    if (now)
        *now = true;
    if (disk().fault == FaultyVfs::CacheIsLost)
        loseCache();
    return true;
}

sqlite3_file* realOf(sqlite3_file* file)
{
    return reinterpret_cast<File*>(file)->real;
}

void forget(const sqlite3_file* real)
{
    disk().cache.erase(std::remove_if(disk().cache.begin(), disk().cache.end(),
                                      [real](const Undo& undo) { return undo.file == real; }),
                       disk().cache.end());
}

int closeFile(sqlite3_file* file)
{
    sqlite3_file* real = realOf(file);
    forget(real);
    return real->pMethods->xClose(real);
}

int readFile(sqlite3_file* file, void* data, int size, sqlite3_int64 offset)
{
    if (fails(Read))
        return codeOf(Read);
    return realOf(file)->pMethods->xRead(realOf(file), data, size, offset);
}

void remember(sqlite3_file* real, int size, sqlite3_int64 offset)
{
    Undo undo{real, offset, QByteArray(), 0};
    if (real->pMethods->xFileSize(real, &undo.size) != SQLITE_OK)
        qFatal("the size of a file could not be read");
    undo.bytes.resize(int(qBound(sqlite3_int64(0), undo.size - offset, sqlite3_int64(size))));
    if (!undo.bytes.isEmpty() &&
        real->pMethods->xRead(real, undo.bytes.data(), int(undo.bytes.size()), offset) != SQLITE_OK)
        qFatal("what is written over could not be read");
    disk().cache.push_back(undo);
}

int writeFile(sqlite3_file* file, const void* data, int size, sqlite3_int64 offset)
{
    sqlite3_file* real = realOf(file);
    bool now = false;
    if (fails(Write, &now)) {
        if (now && cutsPower())
            real->pMethods->xWrite(real, data, size / 2, offset);
        return codeOf(Write);
    }
    if (disk().fault == FaultyVfs::CacheIsLost)
        remember(real, size, offset);
    return real->pMethods->xWrite(real, data, size, offset);
}

int truncateFile(sqlite3_file* file, sqlite3_int64 size)
{
    if (fails(Truncate))
        return codeOf(Truncate);
    return realOf(file)->pMethods->xTruncate(realOf(file), size);
}

/// The real disk is spared: what was written to it stays, as long as nobody cuts its power.
int syncFile(sqlite3_file* file, int)
{
    if (fails(Sync))
        return codeOf(Sync);
    forget(realOf(file));
    return SQLITE_OK;
}

int fileSize(sqlite3_file* file, sqlite3_int64* size)
{
    return realOf(file)->pMethods->xFileSize(realOf(file), size);
}

int lockFile(sqlite3_file* file, int level)
{
    return realOf(file)->pMethods->xLock(realOf(file), level);
}

int unlockFile(sqlite3_file* file, int level)
{
    return realOf(file)->pMethods->xUnlock(realOf(file), level);
}

int checkReservedLock(sqlite3_file* file, int* result)
{
    return realOf(file)->pMethods->xCheckReservedLock(realOf(file), result);
}

int fileControl(sqlite3_file* file, int operation, void* argument)
{
    return realOf(file)->pMethods->xFileControl(realOf(file), operation, argument);
}

int sectorSize(sqlite3_file* file)
{
    return realOf(file)->pMethods->xSectorSize(realOf(file));
}

int deviceCharacteristics(sqlite3_file* file)
{
    return realOf(file)->pMethods->xDeviceCharacteristics(realOf(file));
}

int shmMap(sqlite3_file* file, int region, int size, int extend, void volatile** memory)
{
    return realOf(file)->pMethods->xShmMap(realOf(file), region, size, extend, memory);
}

int shmLock(sqlite3_file* file, int offset, int count, int flags)
{
    return realOf(file)->pMethods->xShmLock(realOf(file), offset, count, flags);
}

void shmBarrier(sqlite3_file* file)
{
    realOf(file)->pMethods->xShmBarrier(realOf(file));
}

int shmUnmap(sqlite3_file* file, int remove)
{
    return realOf(file)->pMethods->xShmUnmap(realOf(file), remove);
}

/// Version 2: without the calls that map the file into memory, so that every access is seen here.
const sqlite3_io_methods fileMethods = {2,
                                        closeFile,
                                        readFile,
                                        writeFile,
                                        truncateFile,
                                        syncFile,
                                        fileSize,
                                        lockFile,
                                        unlockFile,
                                        checkReservedLock,
                                        fileControl,
                                        sectorSize,
                                        deviceCharacteristics,
                                        shmMap,
                                        shmLock,
                                        shmBarrier,
                                        shmUnmap,
                                        nullptr,
                                        nullptr};

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    auto* opened = reinterpret_cast<File*>(file);
    opened->base.pMethods = nullptr; // nothing to close
    opened->real = reinterpret_cast<sqlite3_file*>(opened + 1);
    if (fails(Open))
        return codeOf(Open);
    const int result = disk().real->xOpen(disk().real, name, opened->real, flags, outFlags);
    if (opened->real->pMethods)
        opened->base.pMethods = &fileMethods;
    return result;
}

int deleteFile(sqlite3_vfs*, const char* name, int syncFolder)
{
    return fails(Delete) ? codeOf(Delete) : disk().real->xDelete(disk().real, name, syncFolder);
}

sqlite3_vfs vfs;

} // namespace

FaultyVfs::FaultyVfs()
{
    disk() = Disk();
    disk().real = sqlite3_vfs_find(nullptr);
    vfs = *disk().real; // the rest needs no file of ours
    vfs.szOsFile = int(sizeof(File)) + disk().real->szOsFile;
    vfs.zName = "faulty";
    vfs.xOpen = openFile;
    vfs.xDelete = deleteFile;
    if (sqlite3_vfs_register(&vfs, 1) != SQLITE_OK)
        qFatal("the faulty disk could not be registered");
}

FaultyVfs::~FaultyVfs()
{
    sqlite3_vfs_unregister(&vfs);
    sqlite3_vfs_register(disk().real, 1);
}

const char* FaultyVfs::name(Fault fault)
{
    static const char* const names[FaultCount] = {"open fails",  "read fails", "write fails",
                                                  "writes fail", "sync fails", "syncs fail",
                                                  "disk full",   "power cut",  "cache is lost"};
    return names[fault];
}

bool FaultyVfs::passes(Fault fault)
{
    return fault == OpenFails || fault == ReadFails || fault == WriteFails || fault == SyncFails;
}

void FaultyVfs::failAt(Fault fault, int n)
{
    disk().fault = fault;
    disk().countdown = n;
    disk().hit = false;
    disk().cache.clear();
}

bool FaultyVfs::stop()
{
    disk().fault = FaultCount;
    disk().dead = false;
    disk().cache.clear();
    return disk().hit;
}

} // namespace testsupport
