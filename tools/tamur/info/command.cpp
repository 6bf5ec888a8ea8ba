#include "command.h"

#include <CLI/CLI.hpp>

#include <memory>

#include "../each_file.h"
#include "../json_text.h"
#include "../options.h"
#include "../progress.h"
#include "json.h"
#include "text.h"

namespace tamur::tool {
namespace {

struct InfoOptions {
    std::string component;
    std::vector<std::string> files;
    std::string language;
    std::string format = "text";
    bool hasJson = false;

    [[nodiscard]] bool IsJson() const { return hasJson || format == "json"; }
};

ModelSummary SummaryOf(const InfoOptions& options, const std::string& file, const Console& console)
{
    const Input input(file, console.in);
    const Progress progress(console.errors, console.isErrorsTerminal,
                            "tamur: reading " + input.Name());
    return Summarize(options.component, input, LanguageOf(options.language));
}

int InfoAsText(const InfoOptions& options, const Console& console)
{
    const host::Language language = LanguageOf(options.language);
    bool isFirst = true;
    return ForEachFile(options.files, console, [&](const std::string& file) {
        const ModelSummary summary = SummaryOf(options, file, console);
        if (!isFirst) console.out << '\n';
        isFirst = false;
        WriteInfo(summary, language, console.out);
        return exit_code::kFine;
    });
}

int InfoAsJson(const InfoOptions& options, const Console& console)
{
    Json models = Json::array();
    const int code = ForEachFile(options.files, console, [&](const std::string& file) {
        try {
            models.push_back(JsonOf(SummaryOf(options, file, console)));
        } catch (...) {
            models.push_back(JsonOfFailure(file));
            throw;
        }
        return exit_code::kFine;
    });
    const Json document = {{"tool", {{"name", "tamur"}, {"version", TAMUR_VERSION}}},
                           {"files", models}};
    console.out << JsonText(document, 2) << '\n';
    return code;
}

int Info(const InfoOptions& options, const Console& console)
{
    return options.IsJson() ? InfoAsJson(options, console) : InfoAsText(options, console);
}

}  // namespace

void AddInfoCommand(CLI::App& app, const std::string& component, Task& task)
{
    const auto options = std::make_shared<InfoOptions>();
    CLI::App* const command = app.add_subcommand(
        "info", "settings, extent, how many there are of everything, sums of loads and lengths");
    command->footer(
        "Examples:\n"
        "  tamur info hall.txt\n"
        "  tamur info --json export/*.txt > models.json\n"
        "  unzip -p hall.zip hall.txt | tamur info -\n"
        "Exit codes: 0 fine; 1 a file was not imported; 2 wrong usage, a file that cannot be read "
        "to\nits end, no component, or the output cannot be written.");
    AddFiles(*command, options->files);
    AddChoice(*command, "--format", options->format, {"text", "json"},
              "text (default) or json, for programs: docs/info.md");
    command->add_flag("--json", options->hasJson, "the same as --format json");
    AddLanguage(*command, options->language);
    command->callback([&task, &component, options] {
        options->component = component;
        task = [options](const Console& console) { return Info(*options, console); };
    });
}

}  // namespace tamur::tool
