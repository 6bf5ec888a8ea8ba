// What the sheets of one workbook share: the model, and by which names its parts are known.
#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "host/export/saf/layouts.h"
#include "host/export/saf/names.h"
#include "host/export/target.h"
#include "host/geometry/frames.h"
#include "host/structure/box_tree.h"

namespace tamur::host::saf {

// Of a load whose number is none of Model::cases.
inline constexpr LossText kLoadWithoutCase = {
    LossType::kNot, {"its case is no load case", "son cas n'est pas un cas de charge"}};

// Of a search that Model::steps ended: nobody knows what it would have found.
inline constexpr LossText kSearchEnded = {
    LossType::kNot,
    {"what it lies on is not known: too much lies in one place, or has too many corners",
     "ce sur quoi il est posé n'est pas connu : trop d'éléments au même endroit, ou trop de "
     "points"}};

struct Model {
    Model(const Source& from, ExportReport& to, Book& into);

    const Source& source;
    const Structure& structure;
    ExportReport& report;
    Book& book;
    Layouts layouts;
    Ids ids;
    Names innerEdges;

    std::vector<std::string> materials;       // by their places in their tables
    std::vector<std::string> points;          // by their places in the structure
    std::vector<bool> isPointUsed;            // others are not written
    std::vector<std::string> bars, surfaces;  // the same; empty when they are not written
    std::map<int, std::string> cases;         // by their numbers
    // Those with the weight of all bars and surfaces, downwards and once, and nothing else: the
    // receiver computes it.
    std::set<int> selfWeightCases;

    [[nodiscard]] const std::string& PointName(Index point)
    {
        isPointUsed[point] = true;
        return points[point];
    }
    // The title of the first group of those elements that has that number; "" when there is none.
    [[nodiscard]] const std::string& LayerOf(int elements, int number) const;
    // Where the node of that identifier is; null when there is none.
    [[nodiscard]] const Point* NodeAt(std::int64_t identifier) const;

    [[nodiscard]] bool Takes(const Element& element) const
    {
        return source.selection.Takes(element.kind, element.rank);
    }
    void Lose(const Element& element, const LossText& text)
    {
        report.losses.Add(element.kind, text);
    }

    // What one load on a group becomes is a row for each element: of very many loads on very many
    // elements only so many rows are written as a file of that size can be about.
    Budget rows;
    // Steps of searches. When they are spent, what was not found may be there all the same.
    Budget steps;

 private:
    std::map<std::pair<int, int>, std::string> layers_;
    std::map<std::int64_t, Index> nodes_;  // points by identifiers
};

// Each writes some sheets and gives names to what is in them, in this order.
void WriteMaterials(Model& model);
void NamePoints(Model& model);
void WriteBars(Model& model);      // with their sections and hinges
void WriteSurfaces(Model& model);  // with openings, inner lines and walls
void WriteSupports(Model& model);
void FindSelfWeightCases(Model& model);
void WriteCases(Model& model);  // and combinations
void WriteLoads(Model& model);
void WriteGroupLoads(Model& model);
void WritePoints(Model& model);  // those that were used
void CountWhatIsNotWritten(Model& model);

}  // namespace tamur::host::saf
