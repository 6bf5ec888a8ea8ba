#include "platform/platform.h"

void tamur::platform::ShowMessageBox(const OLECHAR* text, const OLECHAR* caption)
{
    MessageBoxW(nullptr, text, caption, 0);
}
