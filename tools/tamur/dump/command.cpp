#include "command.h"

#include <CLI/CLI.hpp>

#include <memory>

#include "../exit_code.h"
#include "../import.h"
#include "../options.h"
#include "dump.h"

namespace tamur::tool {
namespace {

struct DumpOptions {
    std::string component;
    std::string file;
    std::vector<std::string> members;
    bool isPretty = false;
};

int DumpFile(const DumpOptions& options, const Console& console)
{
    const Members wanted(options.members);
    const Input input(options.file, console.in);
    const Imported imported = Import(options.component, input, host::LanguageOfLocale());
    WriteDump({.file = input.Name(),
               .version = imported.version,
               .servicePack = imported.servicePack,
               .reader = *imported.reader},
              wanted, options.isPretty, console.out);
    return exit_code::kFine;
}

}  // namespace

void AddDumpCommand(CLI::App& app, const std::string& component, Task& task)
{
    const auto options = std::make_shared<DumpOptions>();
    CLI::App* const command = app.add_subcommand("dump", "every record as JSON, one per line");
    command->footer(
        "docs/dump.md says what is in it, and docs/dump.schema.json for programs.\n"
        "Examples:\n"
        "  tamur dump hall.txt --pretty | less\n"
        "  tamur dump hall.txt --select nodes,bars > hall.json\n"
        "  tamur dump hall.txt | jq '.Filaires | length'\n"
        "Exit codes: 0 fine; 1 the file was not imported; 2 wrong usage, a file that cannot be "
        "read to\nits end, no component, or the output cannot be written.");
    AddFile(*command, options->file);
    command
        ->add_option("--select", options->members,
                     "only these tables, by their names in the dump or in docs/columns.md: "
                     "Nodes, bars; may be repeated")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->type_name("TABLE[,TABLE...]");
    command->add_flag("--pretty", options->isPretty, "one value per line");
    command->callback([&task, &component, options] {
        options->component = component;
        task = [options](const Console& console) { return DumpFile(*options, console); };
    });
}

}  // namespace tamur::tool
