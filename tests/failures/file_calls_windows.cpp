// What stands in for the system's file functions.
#include <windows.h>

#include "failures/file_call_counts.h"
#include "linked/stand_in.h"

using namespace tamur::test;

REAL_FUNCTION(CreateFileA)
REAL_FUNCTION(GetFileType)
REAL_FUNCTION(ReadFile)
REAL_FUNCTION(CloseHandle)

namespace {

BOOL Fail(DWORD error)
{
    SetLastError(error);
    return FALSE;
}

}  // namespace

extern "C" {

HANDLE WINAPI InPlaceOfCreateFileA(LPCSTR path, DWORD access, DWORD sharing,
                                   LPSECURITY_ATTRIBUTES security, DWORD creation, DWORD flags,
                                   HANDLE pattern)
{
    if (!MaySucceed(FileCall::kOpen)) {
        Fail(ERROR_TOO_MANY_OPEN_FILES);
        return INVALID_HANDLE_VALUE;
    }
    const HANDLE file =
        REAL(CreateFileA)(path, access, sharing, security, creation, flags, pattern);
    if (file != INVALID_HANDLE_VALUE) NoteOpened();
    return file;
}

DWORD WINAPI InPlaceOfGetFileType(HANDLE file)
{
    return MaySucceed(FileCall::kAskForKind) ? REAL(GetFileType)(file) : FILE_TYPE_UNKNOWN;
}

BOOL WINAPI InPlaceOfReadFile(HANDLE file, LPVOID buffer, DWORD size, LPDWORD got,
                              LPOVERLAPPED position)
{
    const std::uint64_t offset = (std::uint64_t{position->OffsetHigh} << 32) | position->Offset;
    const std::size_t allowed = AllowedRead(offset, size);
    if (allowed == kReadFails) return Fail(ERROR_CRC);
    return REAL(ReadFile)(file, buffer, static_cast<DWORD>(allowed), got, position);
}

BOOL WINAPI InPlaceOfCloseHandle(HANDLE file)
{
    NoteClosed();
    const BOOL result = REAL(CloseHandle)(file);
    return MaySucceed(FileCall::kClose) ? result : Fail(ERROR_CRC);
}

}  // extern "C"

STAND_IN(CreateFileA)
STAND_IN(GetFileType)
STAND_IN(ReadFile)
STAND_IN(CloseHandle)
