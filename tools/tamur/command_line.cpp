#include "command_line.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

#include "check/command.h"
#include "diff/command.h"
#include "dump.h"
#include "exit_code.h"
#include "export/command.h"
#include "host/findings/plain_text.h"
#include "import.h"
#include "info.h"
#include "input.h"
#include "view/command.h"

namespace tamur::tool {
namespace {

// What `info` and `dump` are told.
struct Options {
    std::string component;
    std::string file;
    bool isPretty = false;
};
using Show = void (*)(const Options& options, const Input& input, std::ostream& out);

void Info(const Options& options, const Input& input, std::ostream& out)
{
    WriteInfo(options.component, input, out);
}

void Dump(const Options& options, const Input& input, std::ostream& out)
{
    WriteDump(*Import(options.component, input).reader, options.isPretty, out);
}

// Adds a command that shows one file as the component serves it.
CLI::App* AddShowCommand(CLI::App& app, Task& task, const std::shared_ptr<Options>& options,
                         const char* name, const char* description, Show show)
{
    CLI::App* const command = app.add_subcommand(name, description);
    command->footer(
        "Exit codes: 0 fine; 1 the file was not imported; 2 wrong usage, a file that cannot be "
        "read "
        "to\nits end, no component, or the output cannot be written.");
    command->add_option("FILE", options->file, "the model file; - is standard input")
        ->required()
        ->type_name("");
    command->callback([&task, options, show] {
        task = [options, show](const Console& console) {
            show(*options, Input(options->file, console.in), console.out);
            return exit_code::kFine;
        };
    });
    return command;
}

// What the arguments ask for; a help text is written at once.
Task ReadCommandLine(std::vector<std::string> arguments, std::ostream& out)
{
    const auto options = std::make_shared<Options>();
    CLI::App app("Shows what TAMUR Reader reads from a model file, and what is wrong with it.",
                 "tamur");
    app.footer(
        "Exit codes: 0 fine; 1 something was found (check), is different (diff), or the file was "
        "not\nimported (info, dump, export); 2 trouble. `tamur COMMAND --help` says more.");
    app.set_version_flag("--version", "tamur " TAMUR_VERSION);
    app.add_option("--component", options->component,
                   "read the model through this component, not the one that is built in")
        ->type_name("PATH");
    app.require_subcommand(1);
    app.allow_windows_style_options(false);  // paths too may start with a slash

    Task task = [](const Console&) { return exit_code::kFine; };
    AddShowCommand(app, task, options, "info",
                   "settings, extent, how many there are of everything, messages", Info);
    AddCheckCommand(app, task);
    AddShowCommand(app, task, options, "dump", "every record as JSON, one per line", Dump)
        ->add_flag("--pretty", options->isPretty, "one value per line");
    AddDiffCommand(app, options->component, task);
    AddExportCommand(app, task);
    AddViewCommand(app, task);

    try {
        std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the end
        app.parse(arguments);
    } catch (const CLI::Success& answer) {
        app.exit(answer, out, out);
    } catch (const CLI::RequiredError&) {
        // What is missing matters less than what stands in its place.
        const std::vector<std::string> unknown = app.remaining();
        if (unknown.empty()) throw;
        throw CLI::ParseError(unknown.front() + " is no subcommand", CLI::ExitCodes::ExtrasError);
    }
    return task;
}

// While it lives, the first write that fails throws std::ios_base::failure.
class StopAtFirstFailure {
 public:
    explicit StopAtFirstFailure(std::ostream& out) : out_(out), before_(out.exceptions())
    {
        out_.exceptions(std::ios_base::badbit | std::ios_base::failbit);
    }
    StopAtFirstFailure(const StopAtFirstFailure&) = delete;
    StopAtFirstFailure& operator=(const StopAtFirstFailure&) = delete;
    ~StopAtFirstFailure()
    {
        out_.clear();
        out_.exceptions(before_);
    }

 private:
    std::ostream& out_;
    std::ios_base::iostate before_;
};

template <class... Parts>
int Fail(std::ostream& errors, int code, const Parts&... why)
{
    std::string text;
    (text.append(why), ...);
    errors << "tamur: " << host::PlainText(text, text.size()) << '\n';
    return code;
}

}  // namespace

int RunCommandLine(std::vector<std::string> arguments, const Console& console)
{
    try {
        const StopAtFirstFailure stop(console.out);
        const Task task = ReadCommandLine(std::move(arguments), console.out);
        const int code = task(console);
        console.out.flush();
        return code;
    } catch (const std::ios_base::failure&) {
        return Fail(console.errors, exit_code::kTrouble, "the output cannot be written");
    } catch (const CLI::ParseError& error) {
        return Fail(console.errors, exit_code::kTrouble, error.what(), " (see tamur --help)");
    } catch (const ImportRefused& error) {
        return Fail(console.errors, exit_code::kRefused, error.what());
    } catch (const std::bad_alloc&) {
        return Fail(console.errors, exit_code::kRefused, "not enough memory");
    } catch (const std::exception& error) {
        return Fail(console.errors, exit_code::kTrouble, error.what());
    }
}

}  // namespace tamur::tool
