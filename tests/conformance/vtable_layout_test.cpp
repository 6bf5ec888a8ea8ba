// Every method in its published slot and no slot more, as C hosts see the interfaces.
#define CINTERFACE
#include <TAMURReader.h>

#include "support/published/slots.h"

namespace tamur::test {
namespace {

#define VTABLE(name, base, identifier) \
    static_assert(sizeof(name##Vtbl) == SlotCount(#name) * sizeof(void*));
#define METHOD(interfaceName, method, slot) \
    static_assert(offsetof(interfaceName##Vtbl, method) == (slot) * sizeof(void*));
#include "support/published/interfaces.def"
#undef METHOD
#undef VTABLE

}  // namespace
}  // namespace tamur::test
