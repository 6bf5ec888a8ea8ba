#include "command.h"

#include <CLI/CLI.hpp>

#include <memory>
#include <stdexcept>

#include "../exit_code.h"
#include "../failure.h"
#include "../import.h"
#include "../input.h"
#include "../options.h"
#include "../progress.h"
#include "host/export/export.h"
#include "host/findings/plain_text.h"
#include "stop_signals.h"
#include "summary.h"

namespace tamur::tool {
namespace {

// Of each code of a finding, where a target has findings.
constexpr std::size_t kFindingsOfEach = 1000;

struct ExportArguments {
    std::string file;
    std::string target;
    std::string output;
    std::string language;
    host::Wanted wanted;
    bool mayReplace = false;
    bool isQuiet = false;
};

std::string NamesOfTargets()
{
    std::string names;
    for (const host::Target& target : host::AllTargets()) {
        names += (names.empty() ? "" : ", ") + std::string(target.name);
    }
    return names;
}

// By --to, or by the name of the output.
const host::Target& TargetOf(const ExportArguments& options)
{
    const host::Target* const target = options.target.empty() ? host::TargetOfOutput(options.output)
                                                              : host::FindTarget(options.target);
    if (target == nullptr) {
        throw std::runtime_error(
            options.target.empty()
                ? "what to write does not follow from the output's name: give --to, one of " +
                      NamesOfTargets()
                : options.target + " is none of: " + NamesOfTargets());
    }
    return *target;
}

int Export(const ExportArguments& options, const Console& console)
{
    const host::Language language = LanguageOf(options.language);
    const host::Target& target = TargetOf(options);
    const Input input(options.file, console.in);
    host::Findings findings(kFindingsOfEach);
    host::ImportedFile file;
    {
        const Progress progress(console.errors, console.isErrorsTerminal && !options.isQuiet,
                                "tamur: reading " + input.Name());
        file = host::ImportFile(input.Path(), findings);
    }
    RequireModel(file, input, language);

    const host::ExportOptions what{.output = options.output.empty()
                                                 ? host::DefaultOutput(input.Name(), target)
                                                 : host::PathOf(options.output),
                                   .wanted = options.wanted,
                                   .mayReplace = options.mayReplace};
    host::ExportReport report;
    {
        const StopSignals signals(report.steps);
        const Progress progress(console.errors, console.isErrorsTerminal && !options.isQuiet,
                                "tamur: writing " + host::Utf8Of(what.output),
                                [&report] { return report.steps.Percent(); });
        SpeakingIn(language,
                   [&] { host::ExportModel(input.Name(), file, findings, target, what, report); });
    }
    if (options.isQuiet) return exit_code::kFine;
    console.out << host::PlainText(host::Utf8Of(what.output)) << '\n';
    WriteSummary(report.losses, language, console.out);
    return exit_code::kFine;
}

std::string Footer()
{
    std::string text = "Kinds (docs/export.md says what each holds):\n";
    for (const host::Target& target : host::AllTargets()) {
        text += "  " + std::string(target.name) +
                std::string(8 - std::min<std::size_t>(target.name.size(), 7), ' ') +
                std::string(target.what.In(host::Language::kEnglish)) + '\n';
    }
    return text +
           "Examples:\n"
           "  tamur export hall.txt --to xlsx\n"
           "  tamur export hall.txt -o hall.saf.xlsx --force\n"
           "  tamur export hall.txt --to vtu --case 101\n"
           "Exit codes: 0 written; 1 the file was not imported; 2 wrong usage, or the output "
           "cannot be\nwritten: then nothing is, and what was there stays.";
}

}  // namespace

void AddExportCommand(CLI::App& app, Task& task)
{
    const auto options = std::make_shared<ExportArguments>();
    CLI::App* const command =
        app.add_subcommand("export", "the model in a form that other programs read");
    command->footer(Footer());
    AddFile(*command, options->file);
    command->add_option("--to", options->target, "what to write (default: by the name of OUT)")
        ->type_name("KIND");
    AddOutput(*command, options->output,
              "where (default: the name of FILE with another ending, in this folder)");
    command
        ->add_option("--case", options->wanted.cases,
                     "only the loads of this case; of a combination or an envelope, those of its "
                     "cases; may be repeated")
        ->allow_extra_args(false)
        ->type_name("N");
    command
        ->add_option("--group", options->wanted.groups,
                     "only this group and what is on it: its title, or bars:3, surfaces:3, "
                     "point-supports:3, line-supports:3, surface-supports:3; may be repeated")
        ->allow_extra_args(false)
        ->type_name("GROUP");
    command->add_flag("--force", options->mayReplace, "replace what is there");
    AddLanguage(*command, options->language);
    AddQuiet(*command, options->isQuiet);
    command->callback([&task, options] {
        task = [options](const Console& console) { return Export(*options, console); };
    });
}

}  // namespace tamur::tool
