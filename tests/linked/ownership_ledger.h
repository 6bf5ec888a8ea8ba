// Every string and block of task memory in this program, from the call that makes it to the call
// that frees it.
#pragma once

#include <cstddef>
#include <cstdint>

namespace tamur::test {

// Keeps the books while it lives. One at a time, for one thread.
class OwnershipLedger {
 public:
    OwnershipLedger();
    OwnershipLedger(const OwnershipLedger&) = delete;
    OwnershipLedger& operator=(const OwnershipLedger&) = delete;
    ~OwnershipLedger();

    [[nodiscard]] std::uint64_t Made() const;  // up to now
    [[nodiscard]] std::size_t Alive() const;
    [[nodiscard]] bool IsAlive(const void* stringOrBlock) const;

    // Frees of what was not alive, or by the function of the other kind. They are not carried out.
    [[nodiscard]] std::uint64_t WrongFrees() const;
};

}  // namespace tamur::test
