#include "report.h"

namespace tamur::tool {

std::unique_ptr<Report> MakeReport(Format format, Style style, std::ostream& out)
{
    switch (format) {
        case Format::kJson: return MakeJsonReport(style, out);
        case Format::kSarif: return MakeSarifReport(style, out);
        default: return MakeTextReport(style, out);
    }
}

}  // namespace tamur::tool
