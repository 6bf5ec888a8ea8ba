#include "support/effort.h"

namespace tamur::test {

const std::size_t kEvery = 1;
const int kStreamedLines = 2000000;
const std::size_t kEveryAuditedChange = 199;

}  // namespace tamur::test
