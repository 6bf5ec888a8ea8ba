// One file with everything, or a file for each kind of elements and each case, and one that names
// them.
#include <cerrno>
#include <fstream>
#include <pugixml.hpp>
#include <system_error>

#include "host/export/vtk/model_parts.h"
#include "host/export/vtk/vtu_file.h"
#include "host/export/vtk/vtk_losses.h"
#include "host/export/writers.h"

namespace tamur::host {

void WriteVtu(const Source& source, const std::filesystem::path& path, Output& output,
              ExportReport& report)
{
    AddVtkLosses(source, report);
    const std::filesystem::path file = output.AddFile(path);
    VtkPoints points(source.structure);
    std::vector<VtkPart> parts;
    ForEachPart(source, report, points, [&](VtkPart&& part) { parts.push_back(std::move(part)); });
    WriteVtuFile(file, points.All(), parts, report.steps);
}

// The parts are in a folder with the name of the file, without its ending.
void WriteVtm(const Source& source, const std::filesystem::path& path, Output& output,
              ExportReport& report)
{
    AddVtkLosses(source, report);
    const std::filesystem::path list = output.AddFile(path);
    std::filesystem::path folder = path;
    folder.replace_extension();
    const std::filesystem::path parts = output.AddFolder(folder, ".vtu");

    pugi::xml_document document;
    pugi::xml_node file = document.append_child("VTKFile");
    file.append_attribute("type") = "vtkMultiBlockDataSet";
    file.append_attribute("version") = "1.0";
    file.append_attribute("byte_order") = "LittleEndian";
    pugi::xml_node blocks = file.append_child("vtkMultiBlockDataSet");
    VtkPoints points(source.structure);
    int count = 0;
    ForEachPart(source, report, points, [&](VtkPart&& part) {
        const std::string name = std::to_string(count) + ".vtu";
        WriteVtuFile(parts / name, points.All(), {&part, 1}, report.steps);
        points.Clear();
        pugi::xml_node block = blocks.append_child("DataSet");
        block.append_attribute("index") = count++;
        block.append_attribute("name") = part.name.c_str();
        block.append_attribute("file") = (Utf8Of(folder.filename()) + '/' + name).c_str();
    });
    std::ofstream out(list, std::ios::binary);
    document.save(out, " ", pugi::format_default, pugi::encoding_utf8);
    out.close();
    if (!out) FailToWrite();
}

}  // namespace tamur::host
