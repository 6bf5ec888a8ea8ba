#include <cmath>
#include <sstream>

#include "straightforward.h"

namespace tamur::bench::straightforward {
namespace {

// The common head of a line, and its points and labels.
struct Head {
    int kind = 0;
    unsigned identifier = 0;
    Polygon points;
    Labels labels;
};

Head ReadHead(std::istream& tokens)
{
    Head head;
    unsigned short unused = 0;
    int points = 0, labels = 0;
    tokens >> head.kind >> head.identifier >> unused >> points >> labels;
    head.points.resize(static_cast<std::size_t>(points));
    for (Point& point : head.points) tokens >> point.x >> point.y >> point.z;
    for (std::string label; labels > 0; --labels) {
        tokens >> label;
        if (label.ends_with('\x04')) label.pop_back();
        head.labels.push_back(Widen(label));
    }
    int zero = 0;
    unsigned zeros[2] = {};
    tokens >> zero >> zeros[0] >> zeros[1];
    return head;
}

template <class T, std::size_t N>
void ReadAll(std::istream& tokens, T (&values)[N])
{
    for (T& value : values) tokens >> value;
}

// The record that a number from 1 refers to; the first when there is none.
template <class Record>
const Record& Referred(const std::vector<Record>& records, int number)
{
    const std::size_t place = static_cast<std::size_t>(number);
    return number < 1 || place > records.size() ? records.at(0) : records[place - 1];
}

template <class Record>
Record Start(const Head& head)
{
    Record record;
    record.identifier = head.identifier;
    record.labels = head.labels;
    return record;
}

void ReadBar(Model& model, const Head& head, std::istream& tokens)
{
    static const Text kTypes[] = {u"", u"Barre", u"Poutre", u"PoutreV", u"PoutreC", u"Tirant"};
    const Point& a = head.points.at(0);
    const Point& b = head.points.at(1);
    if (a.x == b.x && a.y == b.y && a.z == b.z) return;
    Bar bar = Start<Bar>(head);
    int type = 0, angle = 0, material = 0, sections[2] = {}, releases[2] = {}, offset = 0;
    tokens >> bar.group >> type >> bar.orientationNode >> angle >> bar.meshStep >> material;
    ReadAll(tokens, sections);
    ReadAll(tokens, releases);
    tokens >> offset;
    if (model.version >= "12.2A") {
        double unused[5];
        ReadAll(tokens, unused);
    }
    bar.type = kTypes[type >= 1 && type <= 5 ? type : 0];
    for (int& section : sections) {
        if (section != 0) continue;
        section = 1;
        bar.error = u"#Section doesn't exist.";
    }
    bar.startSection = Referred(model.sections, sections[0]);
    bar.endSection = Referred(model.sections, sections[1]);
    bar.startRelease = Referred(model.releases, releases[0]);
    bar.endRelease = Referred(model.releases, releases[1]);
    bar.material = Referred(model.materials, material);
    if (bar.startSection.code != 0) {
        angle = (angle + 90) % 360;
        bar.error += u"#Verify H section!!!";
    }
    bar.angle = angle;
    bar.cog = u"CentreCentre";
    bar.offset = offset >= 1 && offset <= 9 ? offset - 1 : 4;
    bar.start = a;
    bar.end = b;
    bar.length = static_cast<int>(std::sqrt((b.x - a.x) * (b.x - a.x) + (b.y - a.y) * (b.y - a.y) +
                                            (b.z - a.z) * (b.z - a.z)));
    model.bars.push_back(bar);
}

void ReadSurface(Model& model, const Head& head, std::istream& tokens)
{
    static const Text kTypes[] = {u"",         u"Membrane", u"Plaque",         u"Coque",
                                  u"Plaque E", u"Coque E",  u"D\u00E9f Plane", u"Axisym"};
    Surface surface = Start<Surface>(head);
    int type = 0, material = 0, meshType = 0;
    tokens >> surface.group >> type >> material >> meshType >> surface.meshX >> surface.meshY >>
        surface.thickness >> surface.slopeX >> surface.slopeY;
    surface.type = kTypes[type >= 1 && type <= 7 ? type : 3];
    surface.meshType = meshType >= 1 && meshType <= 4 ? meshType - 1 : 0;
    if (type == 6) surface.thickness = 1.0;
    surface.material = Referred(model.materials, material);
    surface.outline = head.points;
    model.surfaces.push_back(surface);
}

Support ReadSupport(const Head& head, std::istream& tokens, const Text& name)
{
    static const Text kConditions[] = {u" vide", u" rigide", u" \u00E9lastique", u" but\u00E9e"};
    Support support = Start<Support>(head);
    int condition = 0;
    tokens >> support.group >> condition;
    if (head.kind != 11) tokens >> support.orientationNode >> support.angle;
    ReadAll(tokens, support.stiffness);
    ReadAll(tokens, support.damping);
    if (head.kind != 11) tokens >> support.area;
    support.type = name + kConditions[condition >= 1 && condition <= 3 ? condition : 0];
    support.points = head.points;
    return support;
}

Load ReadLoad(const Head& head, std::istream& tokens, int values)
{
    Load load;
    load.identifier = head.identifier;
    load.points = head.points;
    tokens >> load.caseNumber >> load.frame;
    for (int i = 0; i < values; ++i) tokens >> load.values[i];
    return load;
}

Load ReadGroupLoad(const Model& model, const Head& head, std::istream& tokens)
{
    Load load;
    load.identifier = head.identifier;
    tokens >> load.caseNumber >> load.values[0] >> load.values[1] >> load.values[2] >>
        load.elementKind >> load.group;
    for (std::size_t i = 0; i < model.groups.size(); ++i) {
        if (model.groups[i].kind != load.elementKind || model.groups[i].number != load.group) {
            continue;
        }
        load.group = static_cast<int>(i) + 1;
        break;
    }
    return load;
}

// The cases of the benchmark's models take all their loads.
void AddGroupLoad(Model& model, std::vector<Load>& loads, const Load& load, int type)
{
    loads.push_back(load);
    for (LoadCase& loadCase : model.cases) {
        if (loadCase.number == load.caseNumber && loadCase.type == 1) loadCase.type = type;
    }
}

bool ReadSwitch(std::istream& tokens)
{
    char character = 'N';
    tokens >> character;
    return character == 'O' || character == 'o' || character == 'V' || character == 'v';
}

void ReadWall(Model& model, const Head& head, std::istream& tokens)
{
    Wall wall = Start<Wall>(head);
    tokens >> wall.span;
    wall.snow = ReadSwitch(tokens);
    wall.accumulation = ReadSwitch(tokens);
    tokens >> wall.accumulationMode;
    ReadAll(tokens, wall.coefficients);
    wall.wind = ReadSwitch(tokens);
    tokens >> wall.windType >> wall.permeability;
    for (int k = 0; k < 4; ++k) {
        tokens >> wall.statuses[k];
        ReadAll(tokens, wall.zones[k]);
    }
    wall.spans.resize(head.points.size());
    for (double& span : wall.spans) tokens >> span;
    wall.outline = head.points;
    model.walls.push_back(wall);
}

LineElement ReadLineElement(const Head& head, std::istream& tokens)
{
    LineElement element = Start<LineElement>(head);
    element.line = {head.points.at(0), head.points.at(1)};
    tokens >> element.group;
    if (head.kind == 21) ReadAll(tokens, element.numbers);
    if (head.kind == 22) {
        element.type = u"Ligne";
        tokens >> element.numbers[0] >> element.numbers[1] >> element.size >> element.numbers[2] >>
            element.factor;
    }
    return element;
}

}  // namespace

void ParseElementLine(Model& model, const char* line)
{
    std::istringstream tokens(line);
    const Head head = ReadHead(tokens);
    switch (head.kind) {
        case 1: {
            Node node = Start<Node>(head);
            node.position = head.points.at(0);
            tokens >> node.fixity;
            model.nodes.push_back(node);
            break;
        }
        case 2: ReadBar(model, head, tokens); break;
        case 3: ReadSurface(model, head, tokens); break;
        case 4: model.pointSupports.push_back(ReadSupport(head, tokens, u"Appui ponctuel")); break;
        case 5: model.pointLoads.push_back(ReadLoad(head, tokens, 6)); break;
        case 6: model.lineLoads.push_back(ReadLoad(head, tokens, 8)); break;
        case 7: model.surfaceLoads.push_back(ReadLoad(head, tokens, 6)); break;
        case 8:
            AddGroupLoad(model, model.selfWeightLoads, ReadGroupLoad(model, head, tokens), 12);
            break;
        case 9: {
            Mass mass = Start<Mass>(head);
            mass.position = head.points.at(0);
            ReadAll(tokens, mass.values);
            model.masses.push_back(mass);
            break;
        }
        case 10:
            model.lineSupports.push_back(ReadSupport(head, tokens, u"Appui lin\u00E9aire"));
            break;
        case 11:
            model.surfaceSupports.push_back(ReadSupport(head, tokens, u"Appui surfacique"));
            break;
        case 12: {
            Displacement displacement;
            displacement.identifier = head.identifier;
            displacement.position = head.points.at(0);
            tokens >> displacement.group;
            ReadAll(tokens, displacement.values);
            model.displacements.push_back(displacement);
            break;
        }
        case 13:
            AddGroupLoad(model, model.thermalLoads, ReadGroupLoad(model, head, tokens), 13);
            break;
        case 15: model.surfaceSections.push_back(ReadLineElement(head, tokens)); break;
        case 16: model.innerLines.push_back(ReadLineElement(head, tokens)); break;
        case 17: {
            Opening opening = Start<Opening>(head);
            opening.outline = head.points;
            tokens >> opening.meshX >> opening.meshY;
            model.openings.push_back(opening);
            break;
        }
        case 20: ReadWall(model, head, tokens); break;
        case 21: model.cables.push_back(ReadLineElement(head, tokens)); break;
        case 22: model.constructionLines.push_back(ReadLineElement(head, tokens)); break;
        default: break;
    }
}

}  // namespace tamur::bench::straightforward
