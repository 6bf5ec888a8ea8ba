#include "host/check.h"

namespace tamur::host {

ImportedFile CheckFile(const std::string& utf8Path, Findings& findings)
{
    return ImportFile(utf8Path, findings);
}

}  // namespace tamur::host
