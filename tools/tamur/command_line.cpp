#include "command_line.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <new>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "check.h"
#include "diff.h"
#include "dump.h"
#include "import.h"
#include "info.h"

namespace tamur::tool {
namespace {

constexpr int kFine = 0;
constexpr int kRefused = 1;
constexpr int kUsage = 2;

struct CommandLine {
    std::string component;
    std::string file;
    bool isPretty = false;
    DiffCommand diff;
    void (*write)(const CommandLine& line, ITAMURStructureReader& reader,
                  std::ostream& out) = nullptr;
};

void Info(const CommandLine& line, ITAMURStructureReader& reader, std::ostream& out)
{
    WriteInfo(reader, line.file, out);
}

void Dump(const CommandLine& line, ITAMURStructureReader& reader, std::ostream& out)
{
    WriteDump(reader, line.isPretty, out);
}

void Check(const CommandLine& line, ITAMURStructureReader&, std::ostream& out)
{
    const std::size_t findings = WriteCheck(line.file, out);
    if (findings == 0) out << "nothing was dropped or replaced\n";
}

// Nothing when the command line is answered by itself, by a help text.
std::optional<CommandLine> ReadCommandLine(std::vector<std::string> arguments, std::ostream& out)
{
    CommandLine line;
    CLI::App app("Shows what TAMUR Reader reads from a model file.", "tamur");
    app.footer(
        "Exit codes: 0 fine; 1 the file was not imported; 2 wrong usage, the component "
        "cannot be\nloaded, or the output cannot be written.");
    app.set_version_flag("--version", "tamur " TAMUR_VERSION);
    app.add_option("--component", line.component,
                   "the component to load, instead of the one beside this program")
        ->type_name("PATH");
    app.require_subcommand(1);
    app.allow_windows_style_options(false);  // paths too may start with a slash

    const auto addCommand = [&](const char* name, const char* description, auto write) {
        CLI::App* const command = app.add_subcommand(name, description);
        command->add_option("FILE", line.file, "the model file")->required()->type_name("");
        command->callback([&line, write] { line.write = write; });
        return command;
    };
    addCommand("info", "settings, extent, how many there are of everything, messages", Info);
    addCommand("check", "the lines that the import drops or changes, and why", Check);
    addCommand("dump", "every record as JSON, one per line", Dump)
        ->add_flag("--pretty", line.isPretty, "one value per line");
    AddDiffCommand(app, line.diff);

    try {
        std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the end
        app.parse(arguments);
    } catch (const CLI::Success& answer) {
        app.exit(answer, out, out);
        return std::nullopt;
    }
    return line;
}

void Write(const CommandLine& line, std::ostream& out)
{
    const Component component = LoadComponent(line.component);
    const auto reader = Import(component, line.file);
    line.write(line, *reader, out);
    if (!out.flush()) throw std::runtime_error("the output cannot be written");
}

template <class... Parts>
int Fail(std::ostream& errors, int code, const Parts&... why)
{
    ((errors << "tamur: ") << ... << why) << '\n';
    return code;
}

}  // namespace

int RunCommandLine(std::vector<std::string> arguments, std::ostream& out, std::ostream& errors)
{
    CommandLine line;
    try {
        const auto parsed = ReadCommandLine(std::move(arguments), out);
        if (!parsed) return kFine;
        line = *parsed;
        if (line.diff.isAsked) return RunDiff(line.component, line.diff, out, errors);
        Write(line, out);
        return kFine;
    } catch (const CLI::ParseError& error) {
        return Fail(errors, kUsage, error.what(), " (see tamur --help)");
    } catch (const ImportRefused& error) {
        return Fail(errors, kRefused, line.file, ": ", error.what());
    } catch (const std::bad_alloc&) {
        return Fail(errors, kRefused, line.file, ": not enough memory");
    } catch (const std::exception& error) {
        return Fail(errors, kUsage, line.file, ": ", error.what());
    }
}

}  // namespace tamur::tool
