// One model file for a command.
#pragma once

#include <tamur/component.h>

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>

#include "host/file/imported_file.h"
#include "host/findings/findings.h"
#include "host/record_lines.h"
#include "input.h"

namespace tamur::tool {

// There is no model of a file, or not the whole; what() says which file and why.
class NoModel : public std::runtime_error {
 public:
    NoModel(const Input& input, const host::Finding& why, host::Language language);
    NoModel(const Input& input, const std::string& why);

    [[nodiscard]] const std::string& Code() const { return code_; }  // "TMR004"; may be empty
    [[nodiscard]] const std::string& Why() const { return why_; }

 private:
    std::string code_;
    std::string why_;
};

// The file could not be imported.
class ImportRefused : public NoModel {
 public:
    using NoModel::NoModel;
};

// A part of it could not be read.
class NotReadToItsEnd : public NoModel {
 public:
    using NoModel::NoModel;
};

struct Imported {
    std::unique_ptr<Component> component;  // what serves the reader; null: the one built in
    ComPtr<ITAMURStructureReader> reader;
    std::string version;            // as written, UTF-8
    std::int32_t servicePack = -1;  // -1 when the file says none
    host::RecordLines lines;        // only with findings
};

// The model of that file, read by the component that is built in, or by the one at that path. What
// is wrong with the file is added to `findings`, if given; without, it takes less time. Throws
// ImportRefused and NotReadToItsEnd, in that language; ComponentError when there is no component.
[[nodiscard]] Imported Import(const std::string& componentPath, const Input& input,
                              host::Language language, host::Findings& findings);
[[nodiscard]] Imported Import(const std::string& componentPath, const Input& input,
                              host::Language language);
// Throws these for what has no model.
void RequireModel(const host::ImportedFile& file, const Input& input, host::Language language);

}  // namespace tamur::tool
