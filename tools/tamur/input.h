// The file that a command reads.
#pragma once

#include <filesystem>
#include <istream>
#include <string>
#include <vector>

namespace tamur::tool {

// "-" is standard input. That, and what else cannot be read at any place (a pipe), is copied to a
// file in the temporary folder that only this user can read; it goes with the object.
class Input {
 public:
    // `name` in UTF-8. Throws std::runtime_error when there is nothing to read or no place for it;
    // a file that is missing is left for the import to refuse.
    Input(const std::string& name, std::istream& standardInput);
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;
    ~Input();

    [[nodiscard]] const std::string& Path() const { return path_; }  // UTF-8
    [[nodiscard]] const std::string& Name() const { return name_; }  // for people

 private:
    void Spool(std::istream& in);

    std::string name_;
    std::string path_;
    std::filesystem::path spooled_;
};

// Throws std::runtime_error when standard input is among them twice: the second is at its end.
void RequireOneStandardInput(const std::vector<std::string>& names);

}  // namespace tamur::tool
