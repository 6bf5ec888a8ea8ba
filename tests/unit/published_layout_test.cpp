// The contract's header against the published layout: nothing to run, it compiles or it does not.
#include <TAMURReader.h>

#include <cstddef>
#include <type_traits>

namespace tamur {
namespace {

#define RECORD(record, size) \
    static_assert(sizeof(record) == (size) && std::is_standard_layout_v<record>);
#define FIELD(record, field, type, offset)              \
    static_assert(offsetof(record, field) == (offset)); \
    static_assert(std::is_same_v<decltype(record::field), type>);
#include "support/published/records.def"
#undef FIELD
#undef RECORD

#define ENUMERATION(enumeration) \
    static_assert(std::is_enum_v<enumeration> && sizeof(enumeration) == sizeof(LONG));
#define ENUMERATOR(enumeration, name, value) static_assert(name == (value));
#include "support/published/enumerations.def"
#undef ENUMERATOR
#undef ENUMERATION

static_assert(sizeof(LONG) == 4 && sizeof(int) == 4 && sizeof(OLECHAR) == 2);

}  // namespace
}  // namespace tamur
