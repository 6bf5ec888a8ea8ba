// An array as VTK's files have it: in blocks, each compressed by zlib.
#pragma once

#include <cstddef>
#include <cstdint>
#include <ostream>
#include <span>
#include <vector>

namespace tamur::host {

class CompressedArray {
 public:
    // `size` bytes will follow.
    CompressedArray(std::ostream& out, std::uint64_t size);

    void Write(std::span<const std::byte> bytes);
    void WriteZeros(std::uint64_t count);
    // After all of it. Bytes that readers pass over are added until what is written since
    // `begin` is `rest` more than a multiple of four.
    void End(std::streampos begin, unsigned rest);

 private:
    void Flush();
    void Put(const std::vector<std::byte>& compressed);

    std::ostream& out_;
    std::streampos start_;
    std::size_t batch_;                  // bytes that are compressed together, in as many threads
    std::vector<std::uint64_t> header_;  // blocks, their size, that of the last, compressed sizes
    std::vector<std::byte> pending_;
};

}  // namespace tamur::host
