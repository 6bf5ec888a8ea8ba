#include "command.h"

#include <CLI/CLI.hpp>

#include <cmath>
#include <memory>

#include "../exit_code.h"
#include "../failure.h"
#include "../options.h"
#include "json.h"
#include "text.h"

namespace tamur::tool {
namespace {

struct DiffOptions {
    std::string component;
    std::string before;
    std::string after;
    std::string format = "text";
    std::string language;  // empty: the user's
    double tolerance = 0;
    bool showsAll = false;
    bool isQuiet = false;
};

Imported ImportWhole(const DiffOptions& options, const Input& input)
{
    return NeedingTheModel(input.Name(), [&] {
        return Import(options.component, input, LanguageOf(options.language));
    });
}

int Diff(const DiffOptions& options, const Console& console)
{
    RequireOneStandardInput({options.before, options.after});
    const Input before(options.before, console.in), after(options.after, console.in);
    const Imported from = ImportWhole(options, before), to = ImportWhole(options, after);
    const DiffResult result{.before = {before.Name(), from.version},
                            .after = {after.Name(), to.version},
                            .model = host::Compare(*from.reader, *to.reader, options.tolerance)};
    if (options.isQuiet) {
        // The exit code says it.
    } else if (options.format == "json") {
        WriteDiffJson(result, console.out);
    } else {
        WriteDiffText(result, LanguageOf(options.language), options.showsAll, console.out);
    }
    return result.IsEmpty() ? exit_code::kFine : exit_code::kDifferent;
}

}  // namespace

void AddDiffCommand(CLI::App& app, const std::string& component, Task& task)
{
    const auto options = std::make_shared<DiffOptions>();
    CLI::App* const diff = app.add_subcommand("diff", "what changed from one file to another");
    diff->footer(
        "Examples:\n"
        "  tamur diff monday.txt friday.txt\n"
        "  tamur diff --tolerance 0.001 monday.txt friday.txt\n"
        "  tamur diff --quiet monday.txt friday.txt || echo changed\n"
        "Exit codes: 0 the same; 1 different; 2 wrong usage, or a file was not imported.");
    diff->add_option("BEFORE", options->before, "the model file before; - is standard input")
        ->required()
        ->type_name("");
    diff->add_option("AFTER", options->after, "the model file after; - is standard input")
        ->required()
        ->type_name("");
    AddChoice(*diff, "--format", options->format, {"text", "json"}, "text (default) or json");
    AddLanguage(*diff, options->language);
    AddQuiet(*diff, options->isQuiet);
    diff->add_option("--tolerance", options->tolerance,
                     "coordinates that far apart are the same, and other reals that differ by that "
                     "part of the larger one")
        ->type_name("NUMBER");
    diff->add_flag("--all", options->showsAll, "every change, not the first of each kind only");
    diff->callback([&task, &component, options] {
        // NaN is in no range, and in all that are checked with "less".
        if (!(options->tolerance >= 0) || std::isinf(options->tolerance)) {
            throw CLI::ValidationError("--tolerance", "not 0 or more");
        }
        options->component = component;
        task = [options](const Console& console) { return Diff(*options, console); };
    });
}

}  // namespace tamur::tool
