// What writes each target; see Target::write.
#pragma once

#include "host/export/target.h"

namespace tamur::host {

void WriteCsv(const Source& source, const std::filesystem::path& path, Output& output,
              ExportReport& report);
void WriteXlsx(const Source& source, const std::filesystem::path& path, Output& output,
               ExportReport& report);
void WriteSaf(const Source& source, const std::filesystem::path& path, Output& output,
              ExportReport& report);

void WriteVtu(const Source& source, const std::filesystem::path& path, Output& output,
              ExportReport& report);
void WriteVtm(const Source& source, const std::filesystem::path& path, Output& output,
              ExportReport& report);
void WriteGlb(const Source& source, const std::filesystem::path& path, Output& output,
              ExportReport& report);

}  // namespace tamur::host
