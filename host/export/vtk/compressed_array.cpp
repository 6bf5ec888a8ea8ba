#include "host/export/vtk/compressed_array.h"

#include <zlib.h>

#include <algorithm>
#include <future>
#include <stdexcept>
#include <thread>

namespace tamur::host {
namespace {

constexpr std::size_t kBlock = std::size_t{1} << 18;

std::vector<std::byte> Compressed(std::span<const std::byte> block)
{
    uLongf size = compressBound(static_cast<uLong>(block.size()));
    std::vector<std::byte> compressed(size);
    // Fails for want of memory only.
    if (compress2(reinterpret_cast<Bytef*>(compressed.data()), &size,
                  reinterpret_cast<const Bytef*>(block.data()), static_cast<uLong>(block.size()),
                  Z_BEST_SPEED) != Z_OK) {
        throw std::bad_alloc();
    }
    compressed.resize(size);
    return compressed;
}

std::size_t BlocksAtOnce()
{
    return std::clamp<std::size_t>(std::thread::hardware_concurrency(), 1, 8);
}

}  // namespace

CompressedArray::CompressedArray(std::ostream& out, std::uint64_t size)
    : out_(out), start_(out.tellp()), batch_(kBlock * BlocksAtOnce())
{
    const std::uint64_t blocks = (size + kBlock - 1) / kBlock;
    header_ = {blocks, kBlock, size % kBlock};
    // The sizes of the blocks come before them: their place is left.
    const std::vector<std::uint64_t> place(header_.size() + blocks);
    out.write(reinterpret_cast<const char*>(place.data()),
              static_cast<std::streamsize>(8 * place.size()));
    pending_.reserve(batch_);
}

void CompressedArray::Write(std::span<const std::byte> bytes)
{
    while (!bytes.empty()) {
        const std::size_t room = batch_ - pending_.size();
        const std::size_t count = std::min(room, bytes.size());
        pending_.insert(pending_.end(), bytes.begin(),
                        bytes.begin() + static_cast<std::ptrdiff_t>(count));
        bytes = bytes.subspan(count);
        if (count == room) Flush();
    }
}

void CompressedArray::WriteZeros(std::uint64_t count)
{
    static constexpr std::byte kZeros[4096] = {};
    const auto writeSome = [&](std::uint64_t most) {
        const std::uint64_t some = std::min<std::uint64_t>({most, count, sizeof kZeros});
        Write(std::span(kZeros).first(some));
        count -= some;
    };
    while (count > 0 && pending_.size() % kBlock != 0) writeSome(kBlock - pending_.size() % kBlock);
    if (count >= kBlock) {
        // Whole blocks are all alike.
        Flush();
        static const std::vector<std::byte> kZeroBlock = Compressed(std::vector<std::byte>(kBlock));
        for (; count >= kBlock; count -= kBlock) Put(kZeroBlock);
    }
    while (count > 0) writeSome(count);
}

void CompressedArray::Flush()
{
    std::vector<std::future<std::vector<std::byte>>> others;
    const auto block = [this](std::size_t start) {
        return std::span(pending_).subspan(start, std::min(kBlock, pending_.size() - start));
    };
    for (std::size_t start = kBlock; start < pending_.size(); start += kBlock) {
        others.push_back(std::async(std::launch::async, Compressed, block(start)));
    }
    if (!pending_.empty()) Put(Compressed(block(0)));
    for (auto& other : others) Put(other.get());
    pending_.clear();
}

void CompressedArray::Put(const std::vector<std::byte>& compressed)
{
    header_.push_back(compressed.size());
    out_.write(reinterpret_cast<const char*>(compressed.data()),
               static_cast<std::streamsize>(compressed.size()));
}

void CompressedArray::End(std::streampos begin, unsigned rest)
{
    Flush();
    if (header_.front() > 0) {
        // A disk that is full gives no places.
        while (out_ && static_cast<std::uint64_t>(out_.tellp() - begin) % 4 != rest) {
            out_.put('\0');
            ++header_.back();
        }
    }
    const std::streampos end = out_.tellp();
    out_.seekp(start_);
    out_.write(reinterpret_cast<const char*>(header_.data()),
               static_cast<std::streamsize>(8 * header_.size()));
    out_.seekp(end);
}

}  // namespace tamur::host
