/* Preloaded into a program: the n-th allocation (but for fontconfig's) or opening fails, as FAIL_CALL
   ("malloc" or "open") and FAIL_AT say; with FAIL_COUNT_FILE how many calls there were is written
   there at the end. */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <link.h>
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
static int countsMalloc;

__attribute__((constructor)) static void Begin(void) {
    const char* const at = getenv("FAIL_AT");
    const char* const call = getenv("FAIL_CALL");
    if (at == NULL || call == NULL) return;
    countsMalloc = strcmp(call, "malloc") == 0;
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

static int IsToFail(int isMalloc, int error) {
    if (failAt < 0 || isMalloc != countsMalloc || ++calls != failAt) return 0;
    errno = error;
    return 1;
}

/* Fontconfig 2.14 keeps a lock of its own where an allocation fails while it reads a cache, and then
   waits for it without end. */
static int IsOfFontconfig(void* caller) {
    struct dl_find_object object;
    return _dl_find_object(caller, &object) == 0 &&
           strstr(object.dlfo_link_map->l_name, "libfontconfig") != NULL;
}

static int IsAllocationToFail(void* caller) {
    return countsMalloc && !IsOfFontconfig(caller) && IsToFail(1, ENOMEM);
}

void* malloc(size_t size) {
    return IsAllocationToFail(__builtin_return_address(0)) ? NULL : __libc_malloc(size);
}

void* calloc(size_t count, size_t size) {
    return IsAllocationToFail(__builtin_return_address(0)) ? NULL : __libc_calloc(count, size);
}

void* realloc(void* block, size_t size) {
    return IsAllocationToFail(__builtin_return_address(0)) ? NULL : __libc_realloc(block, size);
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
    return IsToFail(0, EMFILE) ? -1 : OpenAs("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int mode = va_arg(rest, int);
    va_end(rest);
    return IsToFail(0, EMFILE) ? -1 : OpenAs("open64", path, flags, mode);
}

static FILE* OpenStream(const char* real, const char* path, const char* mode) {
    FILE* (*open_)(const char*, const char*) = (FILE * (*)(const char*, const char*))
        dlsym(RTLD_NEXT, real);
    return open_(path, mode);
}

FILE* fopen(const char* path, const char* mode) {
    return IsToFail(0, EMFILE) ? NULL : OpenStream("fopen", path, mode);
}

FILE* fopen64(const char* path, const char* mode) {
    return IsToFail(0, EMFILE) ? NULL : OpenStream("fopen64", path, mode);
}
