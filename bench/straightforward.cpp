#include "straightforward.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <functional>
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

// Calls `read` for every data line of the section.
void ForEachLine(std::FILE* file, const char* header,
                 const std::function<void(std::istream&)>& read)
{
    std::rewind(file);
    char line[kLineBuffer];
    do {
        if (!ReadLine(file, line)) return;
    } while (std::strcmp(line, header) != 0);
    while (ReadLine(file, line) && line[0] != '#') {
        if (line[0] == '\0') continue;
        std::istringstream tokens(line);
        read(tokens);
    }
}

Text Widen(const std::string& text)
{
    Text wide;
    for (const char c : text) wide += static_cast<char16_t>(static_cast<unsigned char>(c));
    return wide;
}

Text ReadText(std::istream& tokens)
{
    std::string word;
    tokens >> word;
    return Widen(word);
}

void ReadMaterial(Model& model, std::istream& tokens)
{
    Material material;
    material.name = ReadText(tokens);
    tokens >> material.e >> material.nu >> material.weight >> material.alpha >> material.damping;
    model.materials.push_back(material);
}

void ReadSection(Model& model, std::istream& tokens)
{
    Section section;
    section.name = ReadText(tokens);
    int points = 0;
    for (double& property : section.properties) tokens >> property;
    tokens >> points >> section.code;
    section.outline.resize(static_cast<std::size_t>(points) * (section.code == 'S' ? 3 : 2));
    for (double& coordinate : section.outline) tokens >> coordinate;
    tokens >> section.radius;
    model.sections.push_back(section);
}

void ReadRelease(Model& model, std::istream& tokens)
{
    Release release;
    release.name = ReadText(tokens);
    tokens >> release.code;
    release.title = ReadText(tokens);
    release.geometry = ReadText(tokens);
    release.definition = ReadText(tokens);
    model.releases.push_back(release);
}

// The common head of a line, and its points and labels.
struct Head {
    int kind = 0;
    Element element;
    std::vector<Point> points;
};

Head ReadHead(std::istream& tokens)
{
    Head head;
    unsigned short unused = 0;
    int points = 0, labels = 0;
    tokens >> head.kind >> head.element.identifier >> unused >> points >> labels;
    head.points.resize(static_cast<std::size_t>(points));
    for (Point& point : head.points) tokens >> point.x >> point.y >> point.z;
    for (std::string label; labels > 0; --labels) {
        tokens >> label;
        if (label.ends_with('\x04')) label.pop_back();
        head.element.labels.push_back(Widen(label));
    }
    int zero = 0;
    unsigned zeros[2] = {};
    tokens >> zero >> zeros[0] >> zeros[1];
    return head;
}

// The record that a number from 1 refers to; the first when there is none.
template <class Record>
const Record& Referred(const std::vector<Record>& records, int number)
{
    const std::size_t place = static_cast<std::size_t>(number);
    return number < 1 || place > records.size() ? records.at(0) : records[place - 1];
}

void ReadNode(Model& model, const Head& head, std::istream& tokens)
{
    Node node = {head.element, head.points.at(0)};
    tokens >> node.fixity;
    model.nodes.push_back(node);
}

int LengthBetween(const Point& a, const Point& b)
{
    const double x = b.x - a.x, y = b.y - a.y, z = b.z - a.z;
    return static_cast<int>(std::sqrt(x * x + y * y + z * z));
}

void ReadBar(Model& model, const Head& head, std::istream& tokens)
{
    static const Text kTypes[] = {u"", u"Barre", u"Poutre", u"PoutreV", u"PoutreC", u"Tirant"};
    Bar bar;
    static_cast<Element&>(bar) = head.element;
    bar.start = head.points.at(0);
    bar.end = head.points.at(1);
    int type = 0, angle = 0, material = 0, sections[2] = {}, releases[2] = {}, offset = 0;
    tokens >> bar.group >> type >> bar.orientationNode >> angle >> bar.meshStep >> material >>
        sections[0] >> sections[1] >> releases[0] >> releases[1] >> offset;
    double unused = 0;
    for (int i = 0; i < 5 && model.version >= "12.2A"; ++i) tokens >> unused;
    bar.type = kTypes[type >= 1 && type <= 5 ? type : 0];
    bar.startSection = Referred(model.sections, sections[0]);
    bar.endSection = Referred(model.sections, sections[1]);
    bar.startRelease = Referred(model.releases, releases[0]);
    bar.endRelease = Referred(model.releases, releases[1]);
    bar.material = Referred(model.materials, material);
    if (bar.startSection.code != 0) {
        angle = (angle + 90) % 360;
        bar.error = u"#Verify H section!!!";
    }
    bar.angle = angle;
    bar.cog = u"CentreCentre";
    bar.offset = offset >= 1 && offset <= 9 ? offset - 1 : 4;
    bar.length = LengthBetween(bar.start, bar.end);
    model.bars.push_back(bar);
}

void ReadSurface(Model& model, const Head& head, std::istream& tokens)
{
    static const Text kTypes[] = {u"",         u"Membrane", u"Plaque",         u"Coque",
                                  u"Plaque E", u"Coque E",  u"D\u00E9f Plane", u"Axisym"};
    Surface surface;
    static_cast<Element&>(surface) = head.element;
    int type = 0, material = 0, meshType = 0;
    tokens >> surface.group >> type >> material >> meshType >> surface.meshX >> surface.meshY >>
        surface.thickness >> surface.slopeX >> surface.slopeY;
    surface.type = kTypes[type >= 1 && type <= 7 ? type : 3];
    surface.meshType = meshType >= 1 && meshType <= 4 ? meshType - 1 : 0;
    surface.material = Referred(model.materials, material);
    surface.outline = head.points;
    model.surfaces.push_back(surface);
}

void ReadOther(Model& model, const Head& head, std::istream& tokens)
{
    Other other = {head.element, head.points};
    for (double& column : other.columns) tokens >> column;
    model.others.at(static_cast<std::size_t>(head.kind)).push_back(other);
}

void ReadElement(Model& model, std::istream& tokens)
{
    const Head head = ReadHead(tokens);
    switch (head.kind) {
        case 1: ReadNode(model, head, tokens); break;
        case 2: ReadBar(model, head, tokens); break;
        case 3: ReadSurface(model, head, tokens); break;
        default: ReadOther(model, head, tokens);
    }
}

}  // namespace

void Import(Model& model, const std::filesystem::path& path)
{
    const File file(std::fopen(path.string().c_str(), "rt"), &std::fclose);
    if (file == nullptr) throw std::runtime_error("cannot read " + path.string());
    const auto read = [&](const char* header, void (*readLine)(Model&, std::istream&)) {
        ForEachLine(file.get(), header, [&](std::istream& tokens) { readLine(model, tokens); });
    };
    read("#Version", [](Model& of, std::istream& tokens) { tokens >> of.version; });
    read("#Materiaux", ReadMaterial);
    read("#Geometries", ReadSection);
    read("#Attaches", ReadRelease);
    read("#Elements", ReadElement);
}

Counts CountsOf(const Model& model)
{
    Counts counts = {};
    for (std::size_t kind = 0; kind < model.others.size(); ++kind) {
        counts[kind] = std::ssize(model.others[kind]);
    }
    counts[1] = std::ssize(model.nodes);
    counts[2] = std::ssize(model.bars);
    counts[3] = std::ssize(model.surfaces);
    counts[kMaterials] = std::ssize(model.materials);
    counts[kSections] = std::ssize(model.sections);
    counts[kReleases] = std::ssize(model.releases);
    return counts;
}

}  // namespace tamur::bench::straightforward
