// What rules see, and how they speak.
#pragma once

#include <string>

#include "host/findings/findings.h"
#include "host/record_lines.h"
#include "host/structure/crossings.h"
#include "host/structure/load_cases.h"
#include "host/structure/structure.h"

namespace tamur::host {

struct Model {
    const Structure& structure;
    const LoadCases& cases;
    std::vector<bool> isSupported;  // each point: a support holds it
    Crossings crossings;
};

// The record that a finding is about.
struct About {
    Kind kind = Kind::kNone;
    Index rank = 0;
    std::int64_t identifier = Finding::kNoIdentifier;

    About() = default;
    About(Kind ofKind, Index ofRank, std::int64_t withIdentifier)
        : kind(ofKind), rank(ofRank), identifier(withIdentifier)
    {
    }
    // NOLINTNEXTLINE(google-explicit-constructor): every element can be spoken of
    About(const Element& element) : About(element.kind, element.rank, element.identifier) {}
};

class Report {
 public:
    Report(const RecordLines& lines, Findings& findings) : lines_(lines), findings_(findings) {}

    // makeValues() is called when the finding is held. What follows from a line that was misread
    // has been said of the line.
    template <class MakeValues>
    void Add(Code code, const About& about, const MakeValues& makeValues)
    {
        if (IsMisread(about)) return;
        if (!findings_.Holds(code)) return findings_.Count(code);
        findings_.Add({code,
                       {.line = lines_.At(about.kind, about.rank)},
                       about.kind,
                       about.identifier,
                       makeValues()});
    }
    [[nodiscard]] bool IsMisread(const About& about) const
    {
        return lines_.IsMisread(about.kind, about.rank);
    }
    // Whether the file or the model was said to have it already.
    [[nodiscard]] bool WasSaid(Code code) const { return findings_.CountOf(code) > 0; }
    void Add(Code code, const About& about)
    {
        Add(code, about, [] { return std::vector<std::string>(); });
    }

    // Of a case that was lost it has been said that it was.
    [[nodiscard]] bool IsLostCase(int number) const { return lines_.IsLostCase(number); }

 private:
    const RecordLines& lines_;
    Findings& findings_;
};

using Values = std::vector<std::string>;

// Six significant digits; a length with its unit.
[[nodiscard]] std::string Number(double value);
[[nodiscard]] std::string LengthText(double value);

// The rules: each looks for one thing, or for few that exclude each other.
using Rule = void (*)(const Model& model, Report& report);

void CheckSupportOfParts(const Model& model, Report& report);
void CheckSupports(const Model& model, Report& report);
void CheckSearch(const Model& model, Report& report);
void CheckFreeNodes(const Model& model, Report& report);
void CheckCoincidentNodes(const Model& model, Report& report);
void CheckIdentifiers(const Model& model, Report& report);
void CheckSameSurfaces(const Model& model, Report& report);
void CheckSameSupports(const Model& model, Report& report);
void CheckCaseNumbers(const Model& model, Report& report);
void CheckNearEnds(const Model& model, Report& report);
void CheckCrossings(const Model& model, Report& report);
void CheckSameBars(const Model& model, Report& report);
void CheckOverlaps(const Model& model, Report& report);
void CheckShortBars(const Model& model, Report& report);
void CheckJoints(const Model& model, Report& report);
void CheckOutlines(const Model& model, Report& report);
void CheckOpenings(const Model& model, Report& report);
void CheckLoadPlaces(const Model& model, Report& report);
void CheckCasesOfLoads(const Model& model, Report& report);
void CheckEmptyCases(const Model& model, Report& report);
void CheckCombinations(const Model& model, Report& report);
void CheckCircles(const Model& model, Report& report);
void CheckLoadColumns(const Model& model, Report& report);
void CheckGroups(const Model& model, Report& report);
void CheckGroupsOfLoads(const Model& model, Report& report);
void CheckUnused(const Model& model, Report& report);
void CheckMaterials(const Model& model, Report& report);
void CheckSections(const Model& model, Report& report);
void CheckThicknesses(const Model& model, Report& report);
void CheckCoordinates(const Model& model, Report& report);
void CheckLoadValues(const Model& model, Report& report);
void CheckUnitOfLength(const Model& model, Report& report);
void CheckTolerance(const Model& model, Report& report);

}  // namespace tamur::host
