#include "input.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <random>
#include <stdexcept>

namespace tamur::tool {
namespace {

namespace fs = std::filesystem;

fs::path PathOf(const std::string& utf8)
{
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string Utf8Of(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

bool IsPipe(const fs::path& path)
{
    std::error_code ignored;
    const fs::file_type type = fs::status(path, ignored).type();
    return type == fs::file_type::fifo || type == fs::file_type::socket;
}

// No name that somebody could have taken before.
std::string NewName()
{
    std::random_device random;
    std::string name = "tamur-";
    for (int i = 0; i < 4; ++i) name += std::to_string(random());
    return name + ".txt";
}

void Copy(std::istream& in, std::ostream& out)
{
    std::array<char, 65536> block;
    while (in && out) {
        in.read(block.data(), block.size());
        out.write(block.data(), in.gcount());
    }
    if (in.bad()) throw std::runtime_error("the input cannot be read");
    if (!out.flush()) throw std::runtime_error("the temporary folder cannot be written");
}

}  // namespace

Input::Input(const std::string& name, std::istream& standardInput)
    : name_(name == "-"    ? "stdin"
            : name.empty() ? "\"\""
                           : name),
      path_(name)
{
    if (name == "-") {
        Spool(standardInput);
    } else if (IsPipe(PathOf(name))) {
        std::ifstream pipe(PathOf(name), std::ios::binary);
        if (!pipe) throw std::runtime_error(name + ": the pipe cannot be opened");
        Spool(pipe);
    }
}

void Input::Spool(std::istream& in)
{
    std::error_code noFolder;
    const fs::path folder = fs::temp_directory_path(noFolder);
    if (noFolder) throw std::runtime_error("there is no folder for temporary files");
    spooled_ = folder / NewName();
    path_ = Utf8Of(spooled_);
    try {
        std::ofstream out(spooled_, std::ios::binary);
        std::error_code ignored;
        fs::permissions(spooled_, fs::perms::owner_read | fs::perms::owner_write, ignored);
        Copy(in, out);
    } catch (...) {
        std::error_code ignored;
        fs::remove(spooled_, ignored);
        throw;
    }
}

void RequireOneStandardInput(const std::vector<std::string>& names)
{
    if (std::count(names.begin(), names.end(), "-") > 1) {
        throw std::runtime_error("- can be given once: it is standard input");
    }
}

Input::~Input()
{
    std::error_code ignored;
    if (!spooled_.empty()) fs::remove(spooled_, ignored);
}

}  // namespace tamur::tool
