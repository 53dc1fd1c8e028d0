#include "sqlite/FailingVfs.h"

#include <sqlite3.h>

#include <stdexcept>

namespace SqliteBackendTests {

namespace {

int g_writes = 0;
int g_failing = 0;

/// In front of the file of the system's own VFS, which lies behind it.
struct File {
    sqlite3_file base;

    sqlite3_file* Own() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

sqlite3_file* OwnOf(sqlite3_file* file) {
    return reinterpret_cast<File*>(file)->Own();
}

bool IsFull() {
    ++g_writes;
    return g_failing != 0 && g_writes >= g_failing;
}

int Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset) {
    return IsFull() ? SQLITE_FULL : OwnOf(file)->pMethods->xWrite(OwnOf(file), bytes, count, offset);
}

int Close(sqlite3_file* file) {
    return OwnOf(file)->pMethods->xClose(OwnOf(file));
}

int Read(sqlite3_file* file, void* bytes, int count, sqlite3_int64 offset) {
    return OwnOf(file)->pMethods->xRead(OwnOf(file), bytes, count, offset);
}

int Truncate(sqlite3_file* file, sqlite3_int64 size) {
    return OwnOf(file)->pMethods->xTruncate(OwnOf(file), size);
}

int Sync(sqlite3_file* file, int flags) {
    return OwnOf(file)->pMethods->xSync(OwnOf(file), flags);
}

int FileSize(sqlite3_file* file, sqlite3_int64* size) {
    return OwnOf(file)->pMethods->xFileSize(OwnOf(file), size);
}

int Lock(sqlite3_file* file, int level) {
    return OwnOf(file)->pMethods->xLock(OwnOf(file), level);
}

int Unlock(sqlite3_file* file, int level) {
    return OwnOf(file)->pMethods->xUnlock(OwnOf(file), level);
}

int CheckReservedLock(sqlite3_file* file, int* result) {
    return OwnOf(file)->pMethods->xCheckReservedLock(OwnOf(file), result);
}

int FileControl(sqlite3_file* file, int operation, void* argument) {
    return OwnOf(file)->pMethods->xFileControl(OwnOf(file), operation, argument);
}

int SectorSize(sqlite3_file* file) {
    return OwnOf(file)->pMethods->xSectorSize(OwnOf(file));
}

int DeviceCharacteristics(sqlite3_file* file) {
    return OwnOf(file)->pMethods->xDeviceCharacteristics(OwnOf(file));
}

sqlite3_io_methods MakeMethods() {
    sqlite3_io_methods methods{};
    methods.iVersion = 1;
    methods.xClose = Close;
    methods.xRead = Read;
    methods.xWrite = Write;
    methods.xTruncate = Truncate;
    methods.xSync = Sync;
    methods.xFileSize = FileSize;
    methods.xLock = Lock;
    methods.xUnlock = Unlock;
    methods.xCheckReservedLock = CheckReservedLock;
    methods.xFileControl = FileControl;
    methods.xSectorSize = SectorSize;
    methods.xDeviceCharacteristics = DeviceCharacteristics;
    return methods;
}

sqlite3_vfs* g_system = nullptr;

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    static const sqlite3_io_methods methods = MakeMethods();
    const int result = g_system->xOpen(g_system, name, OwnOf(file), flags, outFlags);
    file->pMethods = OwnOf(file)->pMethods != nullptr ? &methods : nullptr;
    return result;
}

sqlite3_vfs& TheVfs() {
    static sqlite3_vfs vfs{};
    return vfs;
}

} // namespace

FailingVfs::FailingVfs() {
    g_system = sqlite3_vfs_find(nullptr);
    sqlite3_vfs& vfs = TheVfs();
    vfs = *g_system;
    vfs.zName = "full disk";
    vfs.pNext = nullptr;
    vfs.szOsFile = g_system->szOsFile + static_cast<int>(sizeof(File));
    vfs.xOpen = Open;
    FailWrite(0);
    if (sqlite3_vfs_register(&vfs, 1) != SQLITE_OK)
        throw std::runtime_error("the VFS cannot be registered");
}

FailingVfs::~FailingVfs() {
    sqlite3_vfs_unregister(&TheVfs());
    sqlite3_vfs_register(g_system, 1);
}

void FailingVfs::FailWrite(int number) {
    g_failing = number;
    g_writes = 0;
}

int FailingVfs::Writes() {
    return g_writes;
}

} // namespace SqliteBackendTests
