// What the component takes from the operating system, and nothing else does: everything in
// this header has one implementation in windows/ and one in linux/ with the same behaviour.
#pragma once

#include <oaidl.h>
#include <tamur/utf8.h>
#include <windows.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace tamur::platform {

// Converts text in the ANSI code page of the calling thread (Windows-1252 where there is none).
// `wide` has room for `length` characters; returns how many were written.
std::size_t WidenAnsi(const char* text, std::size_t length, OLECHAR* wide);

// The path as the file functions take it: ANSI code page on Windows, UTF-8 elsewhere, ended at
// the first NUL. Characters without a counterpart become a similar one or "?".
std::string NarrowPath(const OLECHAR* path);
WideString WidenPath(const std::string& path);

// A modal box with one OK button and no owner. On Linux see TamurSetMessageBoxHandler.
void ShowMessageBox(const OLECHAR* text, const OLECHAR* caption);

// Ends the process as the run time does when a caller breaks a contract.
[[noreturn]] void FailContract(const char* what);

// Running out of memory is an error here, not the end of the process, but throwing an exception can
// take memory itself. What may throw std::bad_alloc is begun by seeing to it that there will be
// some; false when even that cannot be had.
[[nodiscard]] bool PrepareForBadAlloc() noexcept;
[[noreturn]] void ThrowBadAlloc();

// Memory in large pieces, uninitialised and 8-byte aligned. Throws std::bad_alloc.
[[nodiscard]] void* AllocateBlock(std::size_t size);
void FreeBlock(void* block) noexcept;

// Bytes at offsets. A source that fails, in any way, looks as if it ended there.
class BlockSource {
 public:
    virtual ~BlockSource() = default;

    // Reads up to `size` bytes at `offset`; fewer than asked is not the end, 0 is.
    [[nodiscard]] virtual std::size_t ReadAt(std::uint64_t offset, char* buffer,
                                             std::size_t size) = 0;
};

// Opens a regular file; null when there is none or it cannot be opened.
[[nodiscard]] std::unique_ptr<BlockSource> OpenFile(const std::string& path);

}  // namespace tamur::platform
