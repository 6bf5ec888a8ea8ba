#include <cstdio>

#include "platform/platform.h"

namespace {

constexpr UINT kOneOkButton = 0;
constexpr int kOk = 1;

int WriteToStandardError(const OLECHAR* text, const OLECHAR* caption, UINT, void*)
{
    (void)std::fprintf(stderr, "%s: %s\n", tamur::ToUtf8(caption).c_str(),
                       tamur::ToUtf8(text).c_str());
    return kOk;
}

TamurMessageBoxHandler currentHandler = WriteToStandardError;
void* currentContext = nullptr;

}  // namespace

void TamurSetMessageBoxHandler(TamurMessageBoxHandler handler, void* context)
{
    currentHandler = handler != nullptr ? handler : WriteToStandardError;
    currentContext = handler != nullptr ? context : nullptr;
}

void tamur::platform::ShowMessageBox(const OLECHAR* text, const OLECHAR* caption)
{
    currentHandler(text, caption, kOneOkButton, currentContext);
}
