// How many errors are in a model, and whether the component is found by the name that it keeps.
#include <tamur/component.h>

#include <cstdio>

#include "host/check.h"

int main(int, char** arguments)
{
    tamur::host::Findings findings;
    (void)tamur::host::CheckFile(arguments[1], findings);
    const tamur::Component component(tamur::kComponentFile);
    std::printf("%zu\n", findings.CountOf(tamur::host::Severity::kError));
}
