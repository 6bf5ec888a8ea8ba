#include "import.h"

#include <fstream>

#include "import/driver.h"
#include "message_boxes.h"
#include "process.h"
#include <tamur/utf8.h>

namespace tamur::tool {
namespace {

#ifdef _WIN32
constexpr char kComponentName[] = "TAMURReader.dll";
#else
constexpr char kComponentName[] = "libTAMURReader.so";
#endif

std::filesystem::path PathOf(const std::string& utf8)
{
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

std::ifstream Open(const std::string& file)
{
    // As the component has it: a folder is no file, and a pipe would be waited for.
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(PathOf(file), ignored)) return std::ifstream();
    return std::ifstream(PathOf(file), std::ios::binary);
}

bool ReadLine(std::istream& stream, std::string& line)
{
    if (!std::getline(stream, line)) return false;
    if (line.ends_with('\r')) line.pop_back();
    return true;
}

// The component shows the same box for a file that it cannot open and for one that is too old.
std::string WhyRefused(const std::string& file, bool wasBoxShown)
{
    if (!Open(file).is_open()) return "the file cannot be opened";
    if (!wasBoxShown) return "a section is missing: #Espace, #Tolerance and #Rigide are needed";
    const std::string version = VersionOf(file);
    if (version.empty()) return "no version: this is no model file";
    // On Windows the component's path is one of the ANSI code page.
    if (IsVersionSupported(version)) return "the component cannot open a file of this name";
    return "version " + version + " is too old: 10.1 or later is needed";
}

}  // namespace

Component LoadComponent(const std::string& path)
{
    return Component(path.empty() ? (ExecutableFolder() / kComponentName) : PathOf(path));
}

ComPtr<ITAMURStructureReader> Import(const Component& component, const std::string& file)
{
    ComPtr<ITAMURStructureReader> reader = component.CreateReader();
    const String name(FromUtf8(file).c_str());
    const SilencedMessageBoxes boxes(component);
    const HRESULT result = reader->Import(name.Get());
    if (result == E_OUTOFMEMORY) throw ImportRefused("not enough memory");
    if (FAILED(result)) throw ImportRefused(WhyRefused(file, boxes.WasShown()));
    return reader;
}

std::string VersionOf(const std::string& file)
{
    std::ifstream stream = Open(file);
    std::string line;
    while (ReadLine(stream, line)) {
        if (line != "#Version") continue;
        if (!ReadLine(stream, line)) break;
        for (char& c : line) {
            if (c < ' ' || c > '~') c = '?';  // whatever it is, it must not upset a terminal
        }
        return line;
    }
    return std::string();
}

}  // namespace tamur::tool
