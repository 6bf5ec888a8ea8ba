#include <gmock/gmock.h>

#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "tool_run.h"

namespace tamur::test {
namespace {

using nlohmann::json;

using Counts = std::map<std::string, std::size_t>;

// The tables that hold something.
Counts CountsOf(const json& dump)
{
    Counts counts;
    for (const auto& [name, table] : dump.items()) {
        if (table.is_array() && !table.empty()) counts[name] = table.size();
    }
    return counts;
}

// How many element lines there are of each kind, read without the component.
std::map<int, std::size_t> ElementLines(const std::string& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::map<int, std::size_t> lines;
    bool isInside = false;
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with('#')) {
            isInside = line.starts_with("#El");
        } else if (isInside) {
            ++lines[std::stoi(line)];
        }
    }
    return lines;
}

const std::vector<std::string> kSamples = {"portique", "batiment", "hall"};

TEST(Samples, PortalFrame)
{
    EXPECT_EQ(CountsOf(Dump(Sample("portique"))), (Counts{{"Materials", 1},
                                                          {"Sections", 4},
                                                          {"Attaches", 3},
                                                          {"Groupes", 5},
                                                          {"Filaires", 7},
                                                          {"AppuisPonctuels", 2},
                                                          {"Cas", 12},
                                                          {"Nodes", 7},
                                                          {"Lines", 1},
                                                          {"Deplacements", 1},
                                                          {"ChargesPonctuelles", 1},
                                                          {"ChargesLineaires", 8},
                                                          {"ChargesPoidsPropre", 4},
                                                          {"ChargesThermiques", 2},
                                                          {"Combinaisons", 7}}));
}

TEST(Samples, Building)
{
    EXPECT_EQ(CountsOf(Dump(Sample("batiment"))), (Counts{{"Materials", 3},
                                                          {"Sections", 3},
                                                          {"Attaches", 4},
                                                          {"Groupes", 9},
                                                          {"Filaires", 63},
                                                          {"Surfaciques", 19},
                                                          {"Ouvertures", 2},
                                                          {"Parois", 5},
                                                          {"AppuisPonctuels", 8},
                                                          {"AppuisLineaires", 2},
                                                          {"AppuisSurfaciques", 1},
                                                          {"Cas", 31},
                                                          {"Nodes", 36},
                                                          {"Masses", 2},
                                                          {"Lines", 3},
                                                          {"LinesInterieur", 3},
                                                          {"SurfacicSections", 2},
                                                          {"ChargesPonctuelles", 6},
                                                          {"ChargesLineaires", 8},
                                                          {"ChargesSurfaciques", 28},
                                                          {"ChargesPoidsPropre", 5},
                                                          {"ChargesThermiques", 1},
                                                          {"ChargesSismiques", 3},
                                                          {"Combinaisons", 17},
                                                          {"Enveloppes", 3}}));
}

TEST(Samples, Hall)
{
    EXPECT_EQ(CountsOf(Dump(Sample("hall"))), (Counts{{"Materials", 3},
                                                      {"Sections", 6},
                                                      {"Attaches", 2},
                                                      {"Groupes", 11},
                                                      {"Filaires", 55},
                                                      {"Surfaciques", 3},
                                                      {"Ouvertures", 3},
                                                      {"Parois", 6},
                                                      {"AppuisPonctuels", 12},
                                                      {"AppuisLineaires", 2},
                                                      {"AppuisSurfaciques", 1},
                                                      {"Cas", 11},
                                                      {"Nodes", 30},
                                                      {"Masses", 1},
                                                      {"Cables", 16},
                                                      {"Lines", 2},
                                                      {"LinesInterieur", 1},
                                                      {"Deplacements", 1},
                                                      {"SurfacicSections", 1},
                                                      {"ChargesPonctuelles", 2},
                                                      {"ChargesLineaires", 36},
                                                      {"ChargesSurfaciques", 1},
                                                      {"ChargesPoidsPropre", 5},
                                                      {"ChargesThermiques", 2},
                                                      {"Combinaisons", 5},
                                                      {"Enveloppes", 1}}));
}

TEST(Samples, EveryKindAppearsAndEveryElementLineIsARecord)
{
    const std::map<int, std::string> tables = {{1, "Nodes"},
                                               {2, "Filaires"},
                                               {3, "Surfaciques"},
                                               {4, "AppuisPonctuels"},
                                               {5, "ChargesPonctuelles"},
                                               {6, "ChargesLineaires"},
                                               {7, "ChargesSurfaciques"},
                                               {8, "ChargesPoidsPropre"},
                                               {9, "Masses"},
                                               {10, "AppuisLineaires"},
                                               {11, "AppuisSurfaciques"},
                                               {12, "Deplacements"},
                                               {13, "ChargesThermiques"},
                                               {15, "SurfacicSections"},
                                               {16, "LinesInterieur"},
                                               {17, "Ouvertures"},
                                               {20, "Parois"},
                                               {21, "Cables"},
                                               {22, "Lines"}};
    std::set<int> seen;
    for (const std::string& sample : kSamples) {
        const json dump = Dump(Sample(sample));
        for (const auto& [kind, count] : ElementLines(Sample(sample))) {
            EXPECT_EQ(dump[tables.at(kind)].size(), count) << sample << ", kind " << kind;
            seen.insert(kind);
        }
    }
    EXPECT_EQ(seen.size(), tables.size());
}

TEST(Samples, NothingIsSkippedOrRemarkedUpon)
{
    for (const std::string& sample : kSamples) {
        const json dump = Dump(Sample(sample));
        EXPECT_EQ(dump["NbCombinaisonsSkipped"], 0) << sample;
        EXPECT_EQ(dump["Messages"], json::array()) << sample;
        for (const json& bar : dump["Filaires"]) {
            // What every bar with a section of the file gets.
            EXPECT_EQ(bar["ErrorMessage"], "#Verify H section!!!") << bar["identifier"];
            EXPECT_NE(bar["ElementType"], "") << bar["identifier"];
        }
    }
}

TEST(Samples, GroupLoadsFindTheirGroups)
{
    for (const std::string& sample : kSamples) {
        const json dump = Dump(Sample(sample));
        for (const char* table : {"ChargesPoidsPropre", "ChargesThermiques"}) {
            for (const json& load : dump[table]) {
                const std::size_t rank = load["NumGrp"].get<std::size_t>();
                ASSERT_LE(rank, dump["Groupes"].size());
                EXPECT_EQ(dump["Groupes"][rank - 1]["Elem"], load["ElemGrp"]);
            }
        }
    }
}

TEST(Samples, HallShowsSectionNamesAndAccents)
{
    const json dump = Dump(Sample("hall"));
    std::vector<std::string> names;
    for (const json& section : dump["Sections"]) names.push_back(section["SectionLib"]);
    EXPECT_THAT(names, testing::ElementsAre("I29*0.85*30*1.4", "I40*0.86*18*1.35", "IPE160",
                                            "T15*0.8*15*1", "T0.8*15*1.5*1/0*12.7*1/0", "RON24"));
    EXPECT_EQ(dump["Filaires"][2]["ElemLabels"], json({"Arbalétrier-1G"}));
    EXPECT_EQ(dump["Groupes"][3]["Titre"], "Sablières et faîtière");
}

TEST(Samples, BuildingHasItsSpectrumAndModes)
{
    const json dump = Dump(Sample("batiment"));
    const json& seismic = dump["ChargesSismiques"][1];
    EXPECT_EQ(seismic["iNumCas"], 12);
    EXPECT_EQ(seismic["iDirection"], 1);
    EXPECT_EQ(seismic["iPointsSpectrum"], 14);
    EXPECT_EQ(seismic["pPeriodsSpectrum"][1], 0.05);
    EXPECT_EQ(seismic["pAccelerationSpectrum"][1], 1.8563);
    EXPECT_EQ(seismic["iZone"], 3);
    EXPECT_EQ(dump["Modes"]["iNrOfModes"], 12);
    EXPECT_EQ(dump["Modes"]["pDampingValues"], json(std::vector<double>(12, 0.05)));
    EXPECT_EQ(dump["Enveloppes"][1]["pCases"], json({201, 202, 203, 204, 205}));
    // Version 14.1E with its second service pack: wind types above 2 move down by one.
    std::vector<int> windTypes;
    for (const json& wall : dump["Parois"]) windTypes.push_back(wall["iVentType"]);
    EXPECT_THAT(windTypes, testing::ElementsAre(1, 2, 2, 3, 4));
}

}  // namespace
}  // namespace tamur::test
