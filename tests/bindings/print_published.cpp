// Prints the published records, with the numbers that this compiler gives them, and the published
// enumerations, interfaces and classes, one a line: what declarations in other languages must say.
#include <TAMURReader.h>

#include <cstddef>
#include <cstdio>
#include <type_traits>

namespace {

// f: real, i: signed, u: unsigned, p: pointer, r: record; for an array that of its values.
template <class Type>
constexpr char KindOf()
{
    using Value = std::remove_all_extents_t<Type>;
    if (std::is_pointer_v<Value>) return 'p';
    if (std::is_floating_point_v<Value>) return 'f';
    if (std::is_class_v<Value>) return 'r';
    return std::is_unsigned_v<Value> ? 'u' : 'i';
}

template <class Field>
void PrintField(const char* name, std::size_t offset)
{
    std::printf("field %s %zu %zu %c\n", name, offset, sizeof(Field), KindOf<Field>());
}

}  // namespace

#define RECORD(record, size) std::printf("record %s %zu\n", #record, sizeof(record));
#define FIELD(record, field, type, offset) \
    PrintField<decltype(record::field)>(#record "." #field, offsetof(record, field));
#define ENUMERATION(enumeration)
#define ENUMERATOR(enumeration, name, value) \
    std::printf("value %s.%s %d\n", #enumeration, #name, static_cast<int>(name));
#define VTABLE(name, base, identifier) \
    std::printf("interface %s %s %s\n", #name, #base, identifier);
#define METHOD(name, method, slot) std::printf("method %s.%s %d\n", #name, #method, slot);
#define COCLASS(name, identifier, defaultInterface, help) \
    std::printf("class %s %s\n", #name, identifier);

int main()
{
#include "support/published/records.def"
#include "support/published/enumerations.def"
#include "support/published/interfaces.def"
#include "support/published/coclasses.def"
}
