#include "generator.h"

#include <algorithm>
#include <charconv>

namespace tamur::bench {
namespace {

constexpr int kGroups = 30;
constexpr int kMaterials = 20;
constexpr int kSections = 200;
constexpr int kReleases = 8;
constexpr int kCases = 100;

struct Kind {
    int number;
    int perTenThousand;
    int points;
    const char* label;    // how its labels start; null when it has none
    const char* columns;  // 1..30 and +-500: any between; angle, stiffnesses: some; the rest as is
};

constexpr const char* kWallColumns =
    "1 O N 0 1.00 0.80 0.80 1.20 1.20 V 2 0.050 1 0.80 0.30 -0.20 1 0.80 0.30 -0.20 "
    "1 0.80 0.30 -0.20 1 0.80 0.30 -0.20 1.00 1.00 1.00 1.00";

// The loads of the kinds 8 and 13 are all alike: a case takes only loads that are.
constexpr Kind kKinds[] = {
    {1, 4500, 1, "N", "0..63"},
    {2, 2500, 2, "B",
     "1..30 1..5 0 angle 10 1..20 1..200 1..200 1..8 1..8 5 0.00 0.00 0.00 0.00 0.00"},
    {3, 1200, 4, "S", "1..30 1..5 1..20 1 8 8 0.200 0.0 0.0"},
    {4, 400, 1, "AP", "1..30 1..3 0 0 stiffnesses 0.25"},
    {5, 200, 1, nullptr, "1..100 1 +-500 +-500 +-500 +-500 +-500 +-500"},
    {6, 400, 2, nullptr, "1..100 1 +-500 +-500 +-500 +-500 +-500 +-500 +-500 +-500"},
    {7, 300, 4, nullptr, "1..100 1 +-500 +-500 +-500 +-500 +-500 +-500"},
    {10, 50, 2, "AL", "1..30 1..3 0 0 stiffnesses 0.25"},
    {11, 30, 4, "AS", "1..30 2 stiffnesses"},
    {17, 150, 4, "O", "4 4"},
    {20, 150, 4, "P", kWallColumns},
    {9, 30, 1, "M", "+-1000 +-1000 +-1000 +-1000 +-1000 +-1000"},
    {12, 20, 1, nullptr, "1..30 +-1 +-1 +-1 +-1 +-1 +-1"},
    {21, 20, 2, nullptr, "1..30 0 1..100 1"},
    {16, 25, 2, "LI", "0..9"},
    {22, 10, 2, "LC", "1..30 0 10 0.500 1 1.00"},
    {15, 5, 2, nullptr, "1"},
    {8, 5, 0, nullptr, "1 0 0 -1 2 1"},
    {13, 5, 0, nullptr, "2 20 0 0 2 1"},
};

// SplitMix64: small, and the same everywhere.
class Random {
 public:
    std::uint64_t Next()
    {
        std::uint64_t z = state_ += 0x9E3779B97F4A7C15;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
        return z ^ (z >> 31);
    }
    // In [0, limit).
    int Below(int limit) { return static_cast<int>(Next() % static_cast<std::uint64_t>(limit)); }
    // In [0, limit), with six decimals.
    double Real(int limit) { return Below(limit * 1000) * 1e-3 + Below(1000) * 1e-6; }

 private:
    std::uint64_t state_ = 20240229;
};

int Number(std::string_view text)
{
    int value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

class Generator {
 public:
    Generator(const ModelOptions& options, TextWriter& out) : options_(options), out_(out) {}

    void Write()
    {
        if (options_.place == ElementsPlace::kFirst) Elements();
        for (const char* line : {"#Version", "14.1E", "#SP", "2", "#Espace", "2", "#Tolerance",
                                 "0.001", "#Rigide", "1"}) {
            Line(line);
        }
        Tables();
        Sections();
        Cases();
        if (options_.place == ElementsPlace::kLast) Elements();
    }

 private:
    void Line(std::string_view text) { out_.Word(text).EndLine(); }

    void Tables()
    {
        Line("#Groupes");
        for (int i = 1; i <= kGroups; ++i) {
            out_.Integer(2 + i % 2).Integer(i).Integer(1 + i % 5);
            out_.Word("Groupe_de_niveau_" + std::to_string(i)).Word(i % 3 == 0 ? "Non" : "Oui");
            out_.EndLine();
        }
        Line("#Materiaux");
        for (int i = 1; i <= kMaterials; ++i) {
            out_.Word("C" + std::to_string(20 + i)).Real(30e9 + i * 1e8, 0);
            Columns("0.20 25000.0 1e-05 0.04");
            out_.EndLine();
        }
        Line("#Attaches");
        for (int i = 0; i < kReleases; ++i) {
            out_.Word("ART" + std::to_string(i)).Integer(i).Word("Rotule Geom Def").EndLine();
        }
    }

    void Sections()
    {
        Line("#Geometries");
        constexpr const char* kNames[] = {"R20*30", "IPE200", "I30*1*0.5*20", "T30*2*1*20"};
        for (int i = 0; i < kSections; ++i) {
            out_.Word(kNames[i % 4]);
            for (int k = 0; k < 11; ++k) out_.Real(random_.Real(1) * 0.1, 8);
            const int points = 8 + i % 17;
            out_.Integer(points).Word("F");
            for (int k = 0; k < 2 * points; ++k) out_.Real(random_.Real(1) - 0.5, 4);
            out_.Real(0.015, 4).EndLine();
        }
    }

    void Cases()
    {
        Line("#Cas");
        for (int i = 1; i <= kCases; ++i) out_.Integer(i).Word("Cas_de_charge 1 G 0").EndLine();
        for (int i = 1; i <= options_.combinations; ++i) {
            out_.Integer(kCases + i).Word("Combinaison 2 ELU 0").EndLine();
        }
        Line("#TAB_PARAM_CAS");
        for (int i = 1; i <= options_.combinations; ++i) {
            out_.Integer(kCases + i).Integer(2);
            for (int k = 0; k < 4; ++k) Columns("1..100 1.35 1..100 1.50");
            Line("32767 0");
        }
    }

    void Elements()
    {
        Line("#Elements");
        for (std::uint64_t i = 1; i <= options_.elements; ++i) Element(static_cast<int>(i));
    }

    const Kind& PickKind()
    {
        int place = random_.Below(10000);
        const Kind* kind = kKinds;
        while (place >= kind->perTenThousand) place -= (kind++)->perTenThousand;
        return *kind;
    }

    void Element(int identifier)
    {
        const Kind& kind = PickKind();
        // Most have one label, some two, every tenth none.
        const int chance = random_.Below(100);
        const int labels = kind.label == nullptr || chance < 10 ? 0 : chance < 95 ? 1 : 2;
        out_.Integer(kind.number).Integer(identifier).Word("0").Integer(kind.points);
        out_.Integer(labels);
        Points(kind.points);
        for (int i = 0; i < labels; ++i) Label(kind.label, identifier, i);
        out_.Word("0 0 0");
        Columns(kind.columns);
        out_.EndLine();
    }

    // A place in the building, a member from there, or a panel.
    void Points(int count)
    {
        const double x = random_.Real(120), y = random_.Real(60), z = random_.Below(40) * 3.25;
        const double dx = 1 + random_.Real(7), dy = 1 + random_.Real(5);
        const double across[4][2] = {{0, 0}, {dx, 0}, {dx, dy}, {0, dy}};
        for (int i = 0; i < count; ++i) out_.Real(x + across[i][0]).Real(y + across[i][1]).Real(z);
    }

    void Label(const char* start, int identifier, int rank)
    {
        std::string label = start + std::to_string(identifier);
        if (rank == 1) label = "Niveau_" + std::to_string(identifier % 40);
        if (identifier % 500 == 0) label += "_\xE9tage";
        if (identifier % 20 == 0) label += '\x04';
        out_.Word(label);
    }

    void Columns(std::string_view columns)
    {
        while (!columns.empty()) {
            const std::size_t end = std::min(columns.find(' '), columns.size());
            Column(columns.substr(0, end));
            columns.remove_prefix(std::min(end + 1, columns.size()));
        }
    }

    void Column(std::string_view column)
    {
        const std::size_t point = column.find('.');
        if (const std::size_t dots = column.find(".."); dots != column.npos) {
            const int least = Number(column);
            out_.Integer(least + random_.Below(Number(column.substr(dots + 2)) - least + 1));
        } else if (column.starts_with("+-")) {
            const int most = Number(column.substr(2));
            out_.Real(random_.Real(2 * most) - most, 3);
        } else if (column == "angle") {
            out_.Integer(random_.Below(4) * 90);
        } else if (column == "stiffnesses") {
            // Few supports are elastic.
            out_.Word(random_.Below(10) == 0 ? "1.25e+08 1.25e+08 1.25e+08" : "0 0 0");
            out_.Word("0 0 0 0 0 0 0 0 0");
        } else if (point != column.npos) {
            out_.Real(std::stod(std::string(column)), static_cast<int>(column.size() - point) - 1);
        } else {
            out_.Word(column);
        }
    }

    const ModelOptions& options_;
    TextWriter& out_;
    Random random_;
};

}  // namespace

ModelFile::ModelFile(const ModelOptions& options)
{
    TextWriter out(Path(), options.lineEnd, options.numbers);
    Generator(options, out).Write();
    lines_ = out.Lines();
}

double ModelFile::Bytes() const
{
    return static_cast<double>(std::filesystem::file_size(Path()));
}

}  // namespace tamur::bench
