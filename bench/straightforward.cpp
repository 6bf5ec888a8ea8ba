#include "straightforward.h"

#include <cstdlib>
#include <cstring>
#include <functional>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>

namespace tamur::bench::straightforward {
namespace {

constexpr int kLineBuffer = 50000;

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// False at the end of the file.
bool ReadLine(std::FILE* file, char* line)
{
    if (std::fgets(line, kLineBuffer, file) == nullptr) return false;
    std::size_t length = std::strlen(line);
    if (length > 0 && line[length - 1] == '\n') line[--length] = '\0';
    if (length > 0 && line[length - 1] == '\r') line[--length] = '\0';
    return true;
}

bool FindHeader(std::FILE* file, const char* header)
{
    std::rewind(file);
    char line[kLineBuffer];
    while (ReadLine(file, line)) {
        if (std::strcmp(line, header) == 0) return true;
    }
    return false;
}

// Calls `read` for every data line of the section.
void ForEachLine(std::FILE* file, const char* header, const std::function<void(const char*)>& read)
{
    if (!FindHeader(file, header)) return;
    char line[kLineBuffer];
    while (ReadLine(file, line)) {
        if (line[0] == '\0') continue;
        if (line[0] == '#') break;
        read(line);
    }
}

std::string ReadValue(std::FILE* file, const char* header)
{
    char line[kLineBuffer] = "";
    if (FindHeader(file, header)) ReadLine(file, line);
    return line;
}

void ReadSettings(Model& model, std::FILE* file)
{
    model.version = ReadValue(file, "#Version");
    model.servicePack = std::atoi(ReadValue(file, "#SP").c_str());
    std::sscanf(ReadValue(file, "#Espace").c_str(), "%d", &model.space);
    std::sscanf(ReadValue(file, "#Tolerance").c_str(), "%lf", &model.tolerance);
    std::sscanf(ReadValue(file, "#Rigide").c_str(), "%d", &model.rigid);
}

void ReadGroups(Model& model, std::FILE* file)
{
    ForEachLine(file, "#Groupes", [&](const char* line) {
        Group group;
        char title[256] = "", shown[256] = "";
        std::sscanf(line, "%d %d %d %255s %255s", &group.kind, &group.number, &group.type, title,
                    shown);
        for (char* at = title; *at != '\0'; ++at) {
            if (*at == '_') *at = ' ';
        }
        group.title = Widen(title);
        group.isShown = std::strchr("OoVv", shown[0]) != nullptr;
        model.groups.push_back(group);
    });
}

void ReadMaterials(Model& model, std::FILE* file)
{
    ForEachLine(file, "#Materiaux", [&](const char* line) {
        Material material;
        char name[256] = "";
        std::sscanf(line, "%255s%lf%lf%lf%lf%lf", name, &material.e, &material.nu, &material.weight,
                    &material.alpha, &material.damping);
        material.name = Widen(name);
        model.materials.push_back(material);
    });
}

void ReadSections(Model& model, std::FILE* file)
{
    ForEachLine(file, "#Geometries", [&](const char* line) {
        std::istringstream tokens(line);
        Section section;
        std::string name;
        int points = 0;
        tokens >> name;
        for (double& property : section.properties) tokens >> property;
        tokens >> points >> section.code;
        section.outline.resize(static_cast<std::size_t>(points) * (section.code == 'S' ? 3 : 2));
        for (double& coordinate : section.outline) tokens >> coordinate;
        tokens >> section.radius;
        section.name = Widen(name);
        model.sections.push_back(section);
    });
}

void ReadReleases(Model& model, std::FILE* file)
{
    ForEachLine(file, "#Attaches", [&](const char* line) {
        Release release;
        char name[256] = "", title[256] = "", geometry[256] = "", definition[256] = "";
        std::sscanf(line, "%255s%d%255s%255s%255s", name, &release.code, title, geometry,
                    definition);
        release.name = Widen(name);
        release.title = Widen(title);
        release.geometry = Widen(geometry);
        release.definition = Widen(definition);
        model.releases.push_back(release);
    });
}

void ReadCases(Model& model, std::FILE* file)
{
    ForEachLine(file, "#Cas", [&](const char* line) {
        LoadCase loadCase;
        char title[256] = "", code[256] = "";
        int unused = 0;
        std::sscanf(line, "%d %255s %d %255s %d", &loadCase.number, title, &loadCase.type, code,
                    &unused);
        loadCase.title = Widen(title);
        loadCase.code = Widen(code);
        model.cases.push_back(loadCase);
    });
}

bool HasCase(const Model& model, int number)
{
    for (const LoadCase& loadCase : model.cases) {
        if (loadCase.number == number) return loadCase.type != 0;
    }
    return false;
}

bool ReadFlag(std::istream& tokens)
{
    char flag = 'N';
    tokens >> flag;
    return flag == 'O';
}

void SkipWords(std::istream& tokens, int count)
{
    for (std::string word; count > 0; --count) tokens >> word;
}

void ReadCombination(Model& model, int number, std::istream& tokens)
{
    if (!HasCase(model, number)) return;
    std::map<int, double> terms;
    int other = 0;
    for (double factor = 0; tokens >> other >> factor && other != 32767;) {
        if (!HasCase(model, other)) return;
        terms[other] += factor;
    }
    Combination combination;
    combination.number = number;
    for (const auto& [caseNumber, factor] : terms) {
        combination.cases.push_back(caseNumber);
        combination.factors.push_back(factor);
    }
    model.combinations.push_back(combination);
}

void ReadModes(Model& model, std::istream& tokens)
{
    Modes& modes = model.modes;
    int computes = 0, method = 0;
    tokens >> modes.count >> modes.percents[0] >> modes.percents[1] >> modes.percents[2] >>
        modes.massChoice;
    for (int i = 0; i < 8; ++i) tokens >> modes.cases[i] >> modes.factors[i];
    tokens >> computes;
    SkipWords(tokens, 1);
    tokens >> method;
    modes.computesDampings = computes == 1;
    modes.method = method == 41 ? 0 : 1;
    modes.residual = ReadFlag(tokens);
    SkipWords(tokens, 1);
    modes.dampings.resize(static_cast<std::size_t>(modes.count));
    for (double& damping : modes.dampings) tokens >> damping;
}

void ReadSeismicCase(Model& model, int number, std::istream& tokens)
{
    SeismicCase seismic;
    seismic.number = number;
    const bool isX = ReadFlag(tokens), isY = ReadFlag(tokens);
    ReadFlag(tokens);
    seismic.direction = isX ? 0 : isY ? 1 : 2;
    SkipWords(tokens, 2);
    tokens >> seismic.displacements >> seismic.forces;
    seismic.calculates = ReadFlag(tokens);
    tokens >> seismic.sign >> seismic.mode;
    SkipWords(tokens, 1);
    for (std::string a, b; tokens >> a >> b && a != "inf" && b != "inf";) {
        seismic.periods.push_back(std::atof(a.c_str()));
        seismic.accelerations.push_back(std::atof(b.c_str()));
    }
    SkipWords(tokens, 39);
    tokens >> seismic.work >> seismic.ductility >> seismic.layer;
    SkipWords(tokens, 2);
    tokens >> seismic.site;
    seismic.risk = ReadFlag(tokens);
    SkipWords(tokens, 1);
    tokens >> seismic.soil >> seismic.topography >> seismic.zone;
    seismic.limits = ReadFlag(tokens);
    model.seismicCases.push_back(seismic);
}

void ReadEnvelope(Model& model, int number, std::istream& tokens)
{
    Envelope envelope;
    envelope.number = number;
    for (int& parameter : envelope.parameters) tokens >> parameter;
    envelope.keepsCase = ReadFlag(tokens);
    int count = 0;
    tokens >> count;
    envelope.cases.resize(static_cast<std::size_t>(count));
    for (int& caseNumber : envelope.cases) tokens >> caseNumber;
    model.envelopes.push_back(envelope);
}

void ReadParameters(Model& model, std::FILE* file)
{
    ForEachLine(file, "#TAB_PARAM_CAS", [&](const char* line) {
        std::istringstream tokens(line);
        int number = 0, kind = 0;
        tokens >> number >> kind;
        if (kind == 2) ReadCombination(model, number, tokens);
        if (kind == 3) ReadModes(model, tokens);
        if (kind == 4) ReadSeismicCase(model, number, tokens);
        if (kind == 9) ReadEnvelope(model, number, tokens);
    });
}

template <class Records>
std::int64_t Size(const Records& records)
{
    return static_cast<std::int64_t>(records.size());
}

}  // namespace

Text Widen(const std::string& text)
{
    Text wide;
    for (const char c : text) wide += static_cast<char16_t>(static_cast<unsigned char>(c));
    return wide;
}

void Import(Model& model, const std::filesystem::path& path)
{
    const File file(std::fopen(path.string().c_str(), "rt"), &std::fclose);
    if (file == nullptr) throw std::runtime_error("cannot read " + path.string());
    ReadSettings(model, file.get());
    ReadGroups(model, file.get());
    ReadMaterials(model, file.get());
    ReadSections(model, file.get());
    ReadReleases(model, file.get());
    ReadCases(model, file.get());
    ReadParameters(model, file.get());
    ForEachLine(file.get(), "#Elements", [&](const char* line) { ParseElementLine(model, line); });
}

Counts CountsOf(const Model& model)
{
    Counts counts;
    auto& elements = counts.elements;
    elements[1] = Size(model.nodes);
    elements[2] = Size(model.bars);
    elements[3] = Size(model.surfaces);
    elements[4] = Size(model.pointSupports);
    elements[5] = Size(model.pointLoads);
    elements[6] = Size(model.lineLoads);
    elements[7] = Size(model.surfaceLoads);
    elements[8] = Size(model.selfWeightLoads);
    elements[9] = Size(model.masses);
    elements[10] = Size(model.lineSupports);
    elements[11] = Size(model.surfaceSupports);
    elements[12] = Size(model.displacements);
    elements[13] = Size(model.thermalLoads);
    elements[15] = Size(model.surfaceSections);
    elements[16] = Size(model.innerLines);
    elements[17] = Size(model.openings);
    elements[20] = Size(model.walls);
    elements[21] = Size(model.cables);
    elements[22] = Size(model.constructionLines);
    counts.groups = Size(model.groups);
    counts.materials = Size(model.materials);
    counts.sections = Size(model.sections);
    counts.releases = Size(model.releases);
    counts.cases = Size(model.cases);
    counts.combinations = Size(model.combinations);
    counts.envelopes = Size(model.envelopes);
    counts.seismicCases = Size(model.seismicCases);
    return counts;
}

}  // namespace tamur::bench::straightforward
