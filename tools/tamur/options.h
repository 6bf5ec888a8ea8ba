// Options that several commands have, with the same words for each.
#pragma once

#include <string>
#include <vector>

#include "console.h"
#include "host/language.h"

namespace CLI {
class App;
}

namespace tamur::tool {

void AddFile(CLI::App& command, std::string& file);
void AddFiles(CLI::App& command, std::vector<std::string>& files);
// Where to write; `description` says what is written there without it.
void AddOutput(CLI::App& command, std::string& output, const char* description);
// One of those words; what is allowed is said when it is none.
void AddChoice(CLI::App& command, const char* name, std::string& choice,
               const std::vector<std::string>& words, const char* description);
// "en" or "fr"; empty: the user's.
void AddLanguage(CLI::App& command, std::string& language);
[[nodiscard]] host::Language LanguageOf(const std::string& option);
// "auto" unless it is given.
void AddColour(CLI::App& command, std::string& colour);
[[nodiscard]] bool HasColours(const std::string& colour, const Console& console);
// Nothing is said but what goes wrong; what was found is in the exit code.
void AddQuiet(CLI::App& command, bool& isQuiet);

}  // namespace tamur::tool
