// What stands in for the system's file functions.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>

#include "failures/file_call_counts.h"
#include "linked/stand_in.h"

using namespace tamur::test;

REAL_FUNCTION(open)
REAL_FUNCTION(fstat)
REAL_FUNCTION(pread)
REAL_FUNCTION(close)

namespace {

int Fail(int error)
{
    errno = error;
    return -1;
}

}  // namespace

extern "C" {

int InPlaceOfopen(const char* path, int flags, ...)
{
    std::va_list rest;
    va_start(rest, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
    va_end(rest);
    if (!MaySucceed(FileCall::kOpen)) return Fail(EMFILE);
    const int descriptor = REAL(open)(path, flags, mode);
    if (descriptor >= 0) NoteOpened();
    return descriptor;
}

int InPlaceOffstat(int descriptor, struct stat* status)
{
    if (!MaySucceed(FileCall::kAskForKind)) return Fail(EIO);
    return REAL(fstat)(descriptor, status);
}

ssize_t InPlaceOfpread(int descriptor, void* buffer, size_t size, off_t offset)
{
    // A signal may interrupt any read: that is not an error, and is tried here before each one.
    static bool isInterrupted = false;
    isInterrupted = IsActive() && !isInterrupted;
    if (isInterrupted) return Fail(EINTR);
    const std::size_t allowed = AllowedRead(static_cast<std::uint64_t>(offset), size);
    if (allowed == kReadFails) return Fail(EIO);
    return REAL(pread)(descriptor, buffer, allowed, offset);
}

int InPlaceOfclose(int descriptor)
{
    NoteClosed();
    const int result = REAL(close)(descriptor);
    return MaySucceed(FileCall::kClose) ? result : Fail(EIO);
}

}  // extern "C"

STAND_IN(open)
STAND_IN(fstat)
STAND_IN(pread)
STAND_IN(close)
