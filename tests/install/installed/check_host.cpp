// Prints the errors in a model, and finds the component by the name that it keeps.
#include <tamur/component.h>

#include <cstdio>

#include "host/check.h"

using namespace tamur::host;

int main(int, char** arguments)
{
    const tamur::Component component(tamur::kComponentFile);
    Findings findings;
    const Checked checked = CheckFile(arguments[1], findings);
    if (!checked.imported.reader) return 1;  // the file was refused; the findings say why
    for (const Finding& finding : findings.InFileOrder()) {
        if (InfoOf(finding.code).severity != Severity::kError) continue;
        std::printf("%u: %s [%s]\n", finding.place.line,
                    TextOf(finding, Language::kEnglish).c_str(), IdOf(finding.code).c_str());
    }
}
