#include "command.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>

#include "../each_file.h"
#include "../failure.h"
#include "../input.h"
#include "../options.h"
#include "../progress.h"
#include "host/check.h"
#include "report.h"

namespace tamur::tool {
namespace {

// Enough of one kind to see the pattern.
constexpr std::size_t kShownOfEach = 5;

struct CheckOptions {
    std::vector<std::string> files;
    std::string format = "text";
    std::string colour;
    std::string language;
    host::CodeFilter filter;
    bool showsAll = false;
    bool countsNotes = false;
    bool exitsZero = false;
    bool showsBalance = false;
    bool showsSums = false;
    bool isQuiet = false;
};

Format FormatOf(const std::string& name)
{
    return name == "json" ? Format::kJson : name == "sarif" ? Format::kSarif : Format::kText;
}

Style StyleOf(const CheckOptions& options, const Console& console)
{
    return {.language = LanguageOf(options.language),
            .hasColours = HasColours(options.colour, console)};
}

int ExitCodeOf(const CheckOptions& options, const host::Findings& findings, bool wasImported)
{
    if (!wasImported) return exit_code::kTrouble;
    std::size_t counted =
        findings.CountOf(host::Severity::kError) + findings.CountOf(host::Severity::kWarning);
    if (options.countsNotes) counted += findings.CountOf(host::Severity::kNote);
    return counted != 0 && !options.exitsZero ? exit_code::kFound : exit_code::kFine;
}

int CheckOne(const CheckOptions& options, const Input& input, const Console& console,
             Report& report)
{
    host::Findings findings(options.showsAll ? host::Findings::kAll : kShownOfEach, options.filter);
    const host::Checked checked = [&] {
        const Progress progress(console.errors, console.isErrorsTerminal && !options.isQuiet,
                                "tamur: checking " + input.Name());
        return host::CheckFile(input.Path(), findings);
    }();
    // Why nothing was checked is said whatever was asked for.
    const auto& refusal = checked.imported.refusal;
    if (refusal && (options.isQuiet || findings.CountOf(refusal->code) == 0))
        throw ImportRefused(input, *refusal, LanguageOf(options.language));
    if (!options.isQuiet)
        report.Add({.file = input.Name(),
                    .findings = findings,
                    .checked = checked,
                    .showsBalance = options.showsBalance,
                    .showsSums = options.showsSums});
    return ExitCodeOf(options, findings, !refusal);
}

int CheckAll(const CheckOptions& options, const Console& console)
{
    const auto report =
        MakeReport(FormatOf(options.format), StyleOf(options, console), console.out);
    const int worst = ForEachFile(options.files, console, [&](const std::string& file) {
        return NeedingTheModel(
            file, [&] { return CheckOne(options, Input(file, console.in), console, *report); });
    });
    if (!options.isQuiet) report->Finish();
    return worst;
}

// A code, or the beginning of one, that names at least one; "TMR" and capitals may be left out.
std::string NamesCodes(std::string& id)
{
    if (!id.empty() && id[0] >= '0' && id[0] <= '9') id.insert(0, "TMR");
    std::transform(id.begin(), id.end(), id.begin(), [](char c) {
        return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    });
    for (const host::CodeInfo& info : host::AllCodes()) {
        if (IdOf(info.code).starts_with(id)) return std::string();
    }
    return "no code begins with " + id;
}

void AddCodes(CLI::App& command, const char* name, std::vector<std::string>& codes,
              const char* description)
{
    command.add_option(name, codes, description)
        ->delimiter(',')
        ->transform(CLI::Validator(NamesCodes, ""))
        ->allow_extra_args(false)
        ->type_name("CODE[,CODE...]");
}

}  // namespace

void AddCheckCommand(CLI::App& app, Task& task)
{
    const auto options = std::make_shared<CheckOptions>();
    CLI::App* const command =
        app.add_subcommand("check", "what is wrong with a file and the model in it, line by line");
    command->footer(
        "Examples:\n"
        "  tamur check hall.txt\n"
        "  tamur check --ignore TMR6 --lang fr hall.txt\n"
        "  tamur check --quiet hall.txt && echo fine\n"
        "  tamur check --format sarif --all export/*.txt > findings.sarif\n"
        "docs/check.md explains the codes.\n"
        "Exit codes: 0 no error and no warning; 1 some; 2 a file that cannot be checked, wrong "
        "usage,\nor the output cannot be written.");
    AddFiles(*command, options->files);
    AddChoice(*command, "--format", options->format, {"text", "json", "sarif"},
              "text (default), json or sarif");
    AddCodes(*command, "--select", options->filter.select,
             "only these codes: TMR101, or TMR1 for all that begin so; may be repeated");
    AddCodes(*command, "--ignore", options->filter.ignore, "all but these codes; may be repeated");
    AddLanguage(*command, options->language);
    AddColour(*command, options->colour);
    AddQuiet(*command, options->isQuiet);
    command->add_flag("--all", options->showsAll, "every finding, not the first of each code");
    command->add_flag("--balance", options->showsBalance, "what became of every line");
    command->add_flag("--sums", options->showsSums, "sums of loads, masses, lengths and areas");
    command->add_flag("--strict", options->countsNotes, "notes make exit code 1 too");
    command->add_flag("--exit-zero", options->exitsZero, "exit code 0 whatever is found");
    command->callback([&task, options] {
        task = [options](const Console& console) { return CheckAll(*options, console); };
    });
}

}  // namespace tamur::tool
