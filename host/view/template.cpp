#include "host/view/template.h"

#ifdef _WIN32
#define TAMUR_READ_ONLY ".section .rdata,\"dr\"\n"
#define TAMUR_BACK ".text\n"
#else
#define TAMUR_READ_ONLY ".pushsection .rodata\n"
#define TAMUR_BACK ".popsection\n"
#endif

// The assembler takes the file as it is: as a text of the compiler it would take seconds.
asm(TAMUR_READ_ONLY
    ".globl tamur_page_template\n"
    "tamur_page_template:\n"
    ".incbin \"" TAMUR_TEMPLATE
    "\"\n"
    ".globl tamur_page_template_end\n"
    "tamur_page_template_end:\n"
    ".byte 0\n" TAMUR_BACK);

extern "C" {
extern const char tamur_page_template[];
extern const char tamur_page_template_end[];
}

namespace tamur::host::view {

std::string_view PageTemplate()
{
    return {tamur_page_template,
            static_cast<std::size_t>(tamur_page_template_end - tamur_page_template)};
}

}  // namespace tamur::host::view
