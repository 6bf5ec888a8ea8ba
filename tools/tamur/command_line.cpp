#include "command_line.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "check/command.h"
#include "diff/command.h"
#include "dump/command.h"
#include "exit_code.h"
#include "export/command.h"
#include "failure.h"
#include "info/command.h"
#include "view/command.h"

namespace tamur::tool {
namespace {

// "..." after a value says that several may follow it, which is not so where they are to be given
// with commas or by repeating the option.
class HelpTexts : public CLI::Formatter {
 public:
    std::string make_option_opts(const CLI::Option* option) const override
    {
        constexpr std::string_view kSeveral = " ...";
        std::string text = Formatter::make_option_opts(option);
        if (!option->get_allow_extra_args() && text.ends_with(kSeveral)) {
            text.resize(text.size() - kSeveral.size());
        }
        return text;
    }
};

// What is missing matters less than what is in its place, and of that the first in the user's
// order.
std::string WhatIsWrong(const CLI::App& app, const CLI::ParseError& error,
                        const std::vector<std::string>& given)
{
    const bool isUnknown = dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr ||
                           dynamic_cast<const CLI::RequiredError*>(&error) != nullptr;
    const std::vector<std::string> unknown = app.remaining(true);
    if (!isUnknown || unknown.empty()) return error.what();
    const auto first =
        std::find_first_of(given.begin(), given.end(), unknown.begin(), unknown.end());
    const std::string& word = first == given.end() ? unknown.front() : *first;
    if (word.starts_with('-')) return word + ": there is no such option";
    return word + (app.get_subcommands().empty() ? " is no subcommand" : ": one argument too many");
}

// What the arguments ask for; a help text is written at once.
Task ReadCommandLine(std::vector<std::string> arguments, std::ostream& out)
{
    std::string component;
    CLI::App app("Shows what TAMUR Reader reads from a model file, and what is wrong with it.",
                 "tamur");
    app.formatter(std::make_shared<HelpTexts>());
    app.footer(
        "Examples:\n"
        "  tamur info hall.txt                  what is in the model\n"
        "  tamur check --lang fr hall.txt       what is wrong with it, in French\n"
        "  tamur view hall.txt --open           the model in the browser\n"
        "  tamur export hall.txt --to xlsx      its tables as a workbook\n"
        "  tamur diff monday.txt friday.txt     what changed\n"
        "  tamur dump --select bars hall.txt    records as JSON\n"
        "Exit codes: 0 fine; 1 something was found (check), is different (diff), or a file was "
        "not\nimported (info, dump, export, view); 2 trouble, which for check and diff is a file "
        "that was\nnot imported too. `tamur COMMAND --help` says more.");
    app.set_version_flag("--version", "tamur " TAMUR_VERSION);
    app.add_option("--component", component,
                   "read the model through this component, not the one that is built in")
        ->type_name("PATH");
    app.require_subcommand(1);
    app.allow_windows_style_options(false);  // paths too may start with a slash

    Task task = [](const Console&) { return exit_code::kFine; };
    AddInfoCommand(app, component, task);
    AddCheckCommand(app, task);
    AddDumpCommand(app, component, task);
    AddDiffCommand(app, component, task);
    AddExportCommand(app, task);
    AddViewCommand(app, task);

    const std::vector<std::string> given = arguments;
    try {
        std::reverse(arguments.begin(), arguments.end());  // the parser takes them from the end
        app.parse(arguments);
    } catch (const CLI::Success& answer) {
        app.exit(answer, out, out);
    } catch (const CLI::ParseError& error) {
        const auto used = app.get_subcommands();
        throw std::runtime_error(WhatIsWrong(app, error, given) + " (see tamur " +
                                 (used.empty() ? "" : used.front()->get_name() + " ") + "--help)");
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

}  // namespace

int RunCommandLine(std::vector<std::string> arguments, const Console& console)
{
    try {
        const StopAtFirstFailure stop(console.out);
        const Task task = ReadCommandLine(std::move(arguments), console.out);
        const int code = task(console);
        console.out.flush();
        return code;
    } catch (...) {
        return TellFailure(console.errors);
    }
}

}  // namespace tamur::tool
