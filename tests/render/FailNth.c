/* Preloaded into a program: the n-th call of a kind fails, as FAIL_CALL ("malloc", "open", "write",
   "sync", "rename" or "cut") and FAIL_AT say; with FAIL_COUNT_FILE how many calls there were is
   written there at the end. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <stdarg.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

void* __libc_malloc(size_t size);
void* __libc_calloc(size_t count, size_t size);
void* __libc_realloc(void* block, size_t size);

static atomic_long calls;
static long failAt = -1;
static const char* failCall = "";

__attribute__((constructor)) static void Begin(void) {
    const char* const at = getenv("FAIL_AT");
    const char* const call = getenv("FAIL_CALL");
    if (at == NULL || call == NULL) return;
    failCall = call;
    failAt = atol(at);
}

__attribute__((destructor)) static void End(void) {
    const char* const name = getenv("FAIL_COUNT_FILE");
    if (name == NULL) return;
    const long count = calls;
    failAt = -1;
    FILE* const file = fopen(name, "w");
    if (file == NULL) return;
    fprintf(file, "%ld\n", count);
    fclose(file);
}

static int IsToFail(const char* call, int error) {
    if (failAt < 0 || strcmp(call, failCall) != 0 || ++calls != failAt) return 0;
    errno = error;
    return 1;
}

void* malloc(size_t size) {
    return IsToFail("malloc", ENOMEM) ? NULL : __libc_malloc(size);
}

void* calloc(size_t count, size_t size) {
    return IsToFail("malloc", ENOMEM) ? NULL : __libc_calloc(count, size);
}

void* realloc(void* block, size_t size) {
    return IsToFail("malloc", ENOMEM) ? NULL : __libc_realloc(block, size);
}

static int OpenAs(const char* real, const char* path, int flags, int mode) {
    int (*open_)(const char*, int, ...) = (int (*)(const char*, int, ...))dlsym(RTLD_NEXT, real);
    return open_(path, flags, mode);
}

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int mode = va_arg(rest, int);
    va_end(rest);
    return IsToFail("open", EMFILE) ? -1 : OpenAs("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int mode = va_arg(rest, int);
    va_end(rest);
    return IsToFail("open", EMFILE) ? -1 : OpenAs("open64", path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int mode = va_arg(rest, int);
    va_end(rest);
    int (*openat_)(int, const char*, int, ...) =
        (int (*)(int, const char*, int, ...))dlsym(RTLD_NEXT, "openat");
    return IsToFail("open", EMFILE) ? -1 : openat_(folder, path, flags, mode);
}

ssize_t write(int file, const void* bytes, size_t count) {
    ssize_t (*write_)(int, const void*, size_t) =
        (ssize_t (*)(int, const void*, size_t))dlsym(RTLD_NEXT, "write");
    return IsToFail("write", ENOSPC) ? -1 : write_(file, bytes, count);
}

int fsync(int file) {
    int (*fsync_)(int) = (int (*)(int))dlsym(RTLD_NEXT, "fsync");
    return IsToFail("sync", EIO) ? -1 : fsync_(file);
}

int renameat(int from, const char* name, int to, const char* newName) {
    int (*renameat_)(int, const char*, int, const char*) =
        (int (*)(int, const char*, int, const char*))dlsym(RTLD_NEXT, "renameat");
    return IsToFail("rename", EACCES) ? -1 : renameat_(from, name, to, newName);
}

int ftruncate(int file, off_t size) {
    int (*ftruncate_)(int, off_t) = (int (*)(int, off_t))dlsym(RTLD_NEXT, "ftruncate");
    return IsToFail("cut", EIO) ? -1 : ftruncate_(file, size);
}

static FILE* OpenStream(const char* real, const char* path, const char* mode) {
    FILE* (*open_)(const char*, const char*) = (FILE * (*)(const char*, const char*))
        dlsym(RTLD_NEXT, real);
    return open_(path, mode);
}

FILE* fopen(const char* path, const char* mode) {
    return IsToFail("open", EMFILE) ? NULL : OpenStream("fopen", path, mode);
}

FILE* fopen64(const char* path, const char* mode) {
    return IsToFail("open", EMFILE) ? NULL : OpenStream("fopen64", path, mode);
}
