#include "failures/failing_files.h"

#include <algorithm>
#include <array>
#include <utility>

#include "failures/file_call_counts.h"

namespace tamur::test {
namespace {

constexpr std::uint64_t kNever = ~std::uint64_t{0};

struct State {
    bool isActive = false;
    std::array<std::uint64_t, 4> calls = {};
    std::int64_t filesOpen = 0;
    std::size_t piece = 0;
    std::uint64_t failingOffset = kNever;
    FileCall failing = FileCall::kOpen;
    std::uint64_t failAt = kNever;
    Failing how = Failing::kOnce;
    std::uint64_t disturbed = kNever;
    std::function<void()> happens;
} state;

}  // namespace

bool IsActive()
{
    return state.isActive;
}

bool MaySucceed(FileCall call)
{
    if (!state.isActive) return true;
    const std::uint64_t number = ++state.calls[static_cast<std::size_t>(call)];
    if (call != state.failing || number < state.failAt) return true;
    return number > state.failAt && state.how == Failing::kOnce;
}

std::size_t AllowedRead(std::uint64_t offset, std::size_t size)
{
    if (!state.isActive) return size;
    const std::uint64_t number = state.calls[static_cast<std::size_t>(FileCall::kRead)] + 1;
    if (number == state.disturbed) state.happens();
    if (!MaySucceed(FileCall::kRead) || offset >= state.failingOffset) return kReadFails;
    return static_cast<std::size_t>(
        std::min<std::uint64_t>({size, state.piece, state.failingOffset - offset}));
}

void NoteOpened()
{
    if (state.isActive) ++state.filesOpen;
}

void NoteClosed()
{
    if (state.isActive) --state.filesOpen;
}

FailingFiles::FailingFiles(std::size_t piece)
{
    state = {};
    state.piece = piece;
    state.isActive = true;
}

FailingFiles::~FailingFiles()
{
    state.isActive = false;
}

void FailingFiles::FailAt(FileCall call, std::uint64_t number, Failing how)
{
    state.failing = call;
    state.failAt = number;
    state.how = how;
}

void FailingFiles::FailReadsFrom(std::uint64_t offset)
{
    state.failingOffset = offset;
}

void FailingFiles::BeforeRead(std::uint64_t number, std::function<void()> happens)
{
    state.disturbed = number;
    state.happens = std::move(happens);
}

std::uint64_t FailingFiles::Calls(FileCall call) const
{
    return state.calls[static_cast<std::size_t>(call)];
}

std::int64_t FailingFiles::FilesOpen() const
{
    return state.filesOpen;
}

}  // namespace tamur::test
