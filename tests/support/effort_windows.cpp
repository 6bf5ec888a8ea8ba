#include "support/effort.h"

namespace tamur::test {

const std::size_t kEvery = 16;      // opening files is slow
const int kStreamedLines = 300000;  // streams are slow, and the library is the same
const std::size_t kEveryAuditedChange = 1999;

}  // namespace tamur::test
