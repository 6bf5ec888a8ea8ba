// VTK's XML files of unstructured grids: a description, and arrays after it as compressed bytes.
#pragma once

#include <filesystem>
#include <span>

#include "host/export/steps.h"
#include "host/export/vtk/part.h"

namespace tamur::host {

// All parts as one grid: it has the arrays of each of them, which are 0 where a part has them not.
// Throws OutputError and ExportStopped.
void WriteVtuFile(const std::filesystem::path& path, const std::vector<Point>& points,
                  std::span<const VtkPart> parts, const Steps& steps);

}  // namespace tamur::host
