// Imports into one reader, again and again: each costs what it adds, however much is there.
#include <fstream>
#include <stdexcept>
#include <string>

#include "component_subject.h"
#include "context.h"
#include "temporary_path.h"

namespace tamur::bench {
namespace {

constexpr int kImportsBefore = 799;

// A line for each number from 1 to `count`: what is before the number, the number, what is after.
void AddLines(std::string& text, int count, const char* before, const char* after)
{
    for (int i = 1; i <= count; ++i) text.append(before).append(std::to_string(i)).append(after);
}

void Combinations(std::string& text)
{
    text += "#Cas\n0 S 1 G 0\n";
    AddLines(text, 1700, "", " C 2 E 0\n");
    text += "#TAB_PARAM_CAS\n";
    AddLines(text, 1700, "", " 2 0 1.35 32767 0\n");
}

void SelfWeight(std::string& text)
{
    text += "#Cas\n";
    AddLines(text, 1200, "", " S 1 G 0\n");
    text += "#Elements\n";
    AddLines(text, 1200, "8 1 0 0 0 0 0 0 ", " 1 0 0 2 1\n");
}

// Each case loses the first of its self-weight loads, which an earlier import has read.
void LoadsThatTakeEarlierOnesAway(std::string& text)
{
    text += "#Cas\n";
    AddLines(text, 500, "", " S 1 G 0\n");
    text += "#Elements\n";
    for (const char* kind : {"8 ", "8 ", "13 "}) {
        AddLines(text, 500, (kind + std::string("1 0 0 0 0 0 0 ")).c_str(), " 1 0 0 2 1\n");
    }
}

void RefusedLoads(std::string& text)
{
    text += "#Elements\n";
    AddLines(text, 1800, "8 1 0 0 0 0 0 0 ", " 1 0 0 2 1\n");
}

void Groups(std::string& text)
{
    text += "#Groupes\n";
    AddLines(text, 2500, "2 ", " 2 Poutres_du_RdC O\n");
}

void BarsAndWhatTheyAreMadeOf(std::string& text)
{
    text += "#Geometries\n";
    AddLines(text, 200, "R", " 1 1 1 1 1 1 1 1 1 1 1 2 F 0 1 2 3 4\n");
    text += "#Attaches\n";
    AddLines(text, 500, "Libre", " 3 a b c\n");
    text += "#Elements\n";
    AddLines(text, 700, "2 ", " 0 2 1 0 0 0 1 2 3 A1 0 0 0 1 2 0 0 10 1 1 1 1 1 5\n");
}

struct Contents {
    const char* name;
    void (*write)(std::string& text);
};

constexpr Contents kContents[] = {
    {"combinations", Combinations},
    {"self-weight", SelfWeight},
    {"loads that take earlier ones away", LoadsThatTakeEarlierOnesAway},
    {"refused loads, a message each", RefusedLoads},
    {"groups", Groups},
    {"bars, sections and releases", BarsAndWhatTheyAreMadeOf},
};

void WriteFile(const Contents& contents, const std::filesystem::path& path)
{
    std::string text = "#Version\n14.1E\n#Espace\n2\n#Tolerance\n0.001\n#Rigide\n1\n";
    contents.write(text);
    if (!(std::ofstream(path, std::ios::binary) << text << std::flush)) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

// Seconds of one import, as a median: now and then one touches memory for the first time, which can
// take as long as ten imports and says nothing of them.
template <class TimeOne>
double TimeOfMany(TimeOne timeOne)
{
    constexpr int kImports = 15;
    Samples samples;
    for (int i = 0; i < kImports; ++i) samples.push_back(timeOne());
    return Median(samples);
}

}  // namespace

void MeasureRepeatedImports(Context& context)
{
    const TemporaryPath file;
    const std::filesystem::path& path = file.Get();
    for (const Contents& contents : kContents) {
        WriteFile(contents, path);
        const auto reader = TheComponent().CreateReader();
        for (int i = 0; i < kImportsBefore; ++i) Import(*reader, path);
        const auto timeAnother = [&] { return Timed([&] { Import(*reader, path); }); };
        // Each run adds to the reader: few of them, so that it stays what it is called.
        const auto samples =
            MeasureInTurns({[&] { return TimeOfMany([&] { return TimeImport(path); }); },
                            [&] { return TimeOfMany(timeAnother); }},
                           {context.isQuick ? 5 : 7, 0});
        context.report.Add({std::string("800th import / first: ") + contents.name,
                            Quotients(samples[1], samples[0]), 1.5, 1.2});
    }
}

}  // namespace tamur::bench
