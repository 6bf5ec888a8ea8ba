#include "generator.h"

#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

namespace tamur::bench {
namespace {

constexpr int kMaterials = 20;
constexpr int kSections = 200;
constexpr int kReleases = 8;
constexpr int kGroups = 30;

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

struct Share {
    int kind;
    int perTenThousand;
    int points;
    const char* label;  // how its labels start; null when it has none
};

constexpr Share kShares[] = {
    {1, 4500, 1, "N"},    {2, 2500, 2, "B"},    {3, 1200, 4, "S"},    {4, 400, 1, "AP"},
    {5, 200, 1, nullptr}, {6, 400, 2, nullptr}, {7, 300, 4, nullptr}, {10, 50, 2, "AL"},
    {11, 30, 4, "AS"},    {17, 150, 4, "O"},    {20, 150, 4, "P"},    {9, 30, 1, "M"},
    {12, 20, 1, nullptr}, {21, 20, 2, nullptr}, {16, 25, 2, "LI"},    {22, 10, 2, "LC"},
    {15, 5, 2, nullptr},  {8, 5, 0, nullptr},   {13, 5, 0, nullptr},
};

class Generator {
 public:
    Generator(const ModelOptions& options, TextWriter& out) : options_(options), out_(out) {}

    void Write()
    {
        if (options_.place == ElementsPlace::kFirst) Elements();
        Settings();
        Groups();
        Materials();
        Sections();
        Releases();
        Cases();
        if (options_.place == ElementsPlace::kLast) Elements();
    }

 private:
    void Settings()
    {
        for (const char* line : {"#Version", "14.1E", "#SP", "2", "#Espace", "2", "#Tolerance",
                                 "0.001", "#Rigide", "1"}) {
            out_.Line(line);
        }
    }

    void Groups()
    {
        out_.Line("#Groupes");
        for (int i = 1; i <= kGroups; ++i) {
            out_.Integer(2 + i % 2).Integer(i).Integer(1 + i % 5);
            out_.Word("Groupe_de_niveau_" + std::to_string(i)).Word(i % 3 == 0 ? "Non" : "Oui");
            out_.EndLine();
        }
    }

    void Materials()
    {
        out_.Line("#Materiaux");
        for (int i = 1; i <= kMaterials; ++i) {
            out_.Word("C" + std::to_string(20 + i)).Real(30e9 + i * 1e8, 0).Real(0.2, 2);
            out_.Real(25000, 1).Word("1e-05").Real(0.04, 2).EndLine();
        }
    }

    void Sections()
    {
        out_.Line("#Geometries");
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

    void Releases()
    {
        out_.Line("#Attaches");
        for (int i = 0; i < kReleases; ++i) {
            out_.Word("ART" + std::to_string(i)).Integer(i).Word("Rotule").Word("Geom").Word("Def");
            out_.EndLine();
        }
    }

    // Static cases, then what has parameters: a modal analysis, seismic cases, envelopes, and
    // the combinations behind all of them.
    void Cases()
    {
        const int last = options_.cases;
        out_.Line("#Cas");
        for (int i = 1; i <= last; ++i) {
            const int type = i <= last - 6 ? 1 : i == last - 5 ? 3 : i <= last - 3 ? 4 : 9;
            out_.Integer(i).Word("Cas_de_charge").Integer(type).Word("G").Integer(0).EndLine();
        }
        for (int i = 1; i <= options_.combinations; ++i) {
            out_.Integer(last + i).Word("Combinaison").Integer(2).Word("ELU").Integer(0).EndLine();
        }
        out_.Line("#TAB_PARAM_CAS");
        Modes(last - 5);
        Seismic(last - 4);
        Seismic(last - 3);
        for (int i = last - 2; i <= last; ++i) Envelope(i);
        for (int i = 1; i <= options_.combinations; ++i) Combination(last + i);
    }

    void Modes(int number)
    {
        constexpr int kModes = 10;
        out_.Integer(number).Integer(3).Integer(kModes).Real(90, 1).Real(90, 1).Real(90, 1);
        out_.Integer(1);
        for (int i = 0; i < 8; ++i) out_.Integer(i + 1).Real(0.2, 2);
        out_.Integer(1).Word("x").Integer(41).Word("O").Word("x");
        for (int i = 0; i < kModes; ++i) out_.Real(0.05, 3);
        out_.EndLine();
    }

    void Seismic(int number)
    {
        out_.Integer(number).Integer(4).Word("O").Word("N").Word("N").Word("EC8").Real(1, 1);
        out_.Real(1, 1).Real(1.5, 1).Word("N").Integer(1).Integer(0).Real(0, 1);
        for (int i = 0; i < 40; ++i) out_.Real(i * 0.1, 3).Real(2.5, 3);
        out_.Word("inf").Word("inf");
        for (int i = 0; i < 39; ++i) out_.Word("0");
        out_.Integer(1).Real(1.5, 2).Real(0, 1).Word("0").Word("0").Integer(2).Word("N").Word("0");
        out_.Integer(1).Real(1, 1).Integer(3).Word("N").EndLine();
    }

    void Envelope(int number)
    {
        out_.Integer(number).Integer(9);
        for (int i = 0; i < 9; ++i) out_.Integer(i % 3);
        out_.Word("O").Integer(20);
        for (int i = 1; i <= 20; ++i) out_.Integer(i);
        out_.EndLine();
    }

    void Combination(int number)
    {
        out_.Integer(number).Integer(2);
        for (int i = 0; i < 8; ++i) {
            out_.Integer(1 + random_.Below(options_.cases - 6)).Real(i % 2 == 0 ? 1.35 : 1.5, 2);
        }
        out_.Integer(32767).Integer(0).EndLine();
    }

    void Elements()
    {
        out_.Line("#Elements");
        for (std::uint64_t i = 1; i <= options_.elements; ++i) Element(static_cast<int>(i));
    }

    const Share& PickShare()
    {
        int place = random_.Below(10000);
        const Share* share = kShares;
        while (place >= share->perTenThousand) place -= (share++)->perTenThousand;
        return *share;
    }

    void Element(int identifier)
    {
        const Share& share = PickShare();
        // Most have one label, some two, every tenth none.
        const int chance = random_.Below(100);
        const int labels = share.label == nullptr || chance < 10 ? 0 : chance < 95 ? 1 : 2;
        out_.Integer(share.kind).Integer(identifier).Integer(0).Integer(share.points);
        out_.Integer(labels);
        Points(share.points);
        for (int i = 0; i < labels; ++i) Label(share.label, identifier, i);
        out_.Integer(0).Integer(0).Integer(0);
        Columns(share.kind, share.points);
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

    int Group() { return 1 + random_.Below(kGroups); }
    int Case() { return 1 + random_.Below(options_.cases - 6); }

    void Reals(int count, int limit)
    {
        for (int i = 0; i < count; ++i) out_.Real(random_.Real(2 * limit) - limit, 3);
    }

    // Few supports are elastic; their stiffnesses are written with an exponent.
    void Stiffnesses()
    {
        const bool isElastic = random_.Below(10) == 0;
        for (int i = 0; i < 6; ++i) out_.Word(isElastic && i < 3 ? "1.25e+08" : "0");
        for (int i = 0; i < 6; ++i) out_.Word("0");
    }

    void Columns(int kind, int points)
    {
        switch (kind) {
            case 1: out_.Integer(random_.Below(64)); break;
            case 2:
                out_.Integer(Group()).Integer(1 + random_.Below(5)).Integer(0);
                out_.Integer(random_.Below(4) * 90).Integer(10);
                out_.Integer(1 + random_.Below(kMaterials));
                out_.Integer(1 + random_.Below(kSections)).Integer(1 + random_.Below(kSections));
                out_.Integer(1 + random_.Below(kReleases)).Integer(1 + random_.Below(kReleases));
                out_.Integer(5);
                for (int i = 0; i < 5; ++i) out_.Real(0, 2);
                break;
            case 3:
                out_.Integer(Group()).Integer(1 + random_.Below(5));
                out_.Integer(1 + random_.Below(kMaterials)).Integer(1).Integer(8).Integer(8);
                out_.Real(0.2, 3).Real(0, 1).Real(0, 1);
                break;
            case 4:
            case 10:
                out_.Integer(Group()).Integer(1 + random_.Below(3)).Integer(0).Integer(0);
                Stiffnesses();
                out_.Real(0.25, 2);
                break;
            case 5:
                out_.Integer(Case()).Integer(1);
                Reals(6, 500);
                break;
            case 6:
                out_.Integer(Case()).Integer(1);
                Reals(8, 500);
                break;
            case 7:
                out_.Integer(Case()).Integer(1);
                Reals(6, 500);
                break;
            // All alike: a case takes only loads that are.
            case 8: out_.Word("1 0 0 -1 2 1"); break;
            case 13: out_.Word("2 20 0 0 2 1"); break;
            case 9: Reals(6, 1000); break;
            case 11:
                out_.Integer(Group()).Integer(2);
                Stiffnesses();
                break;
            case 12:
                out_.Integer(Group());
                Reals(6, 1);
                break;
            case 15: out_.Integer(1); break;
            case 16: out_.Integer(random_.Below(10)); break;
            case 17: out_.Integer(4).Integer(4); break;
            case 20: Wall(points); break;
            case 21: out_.Integer(Group()).Integer(0).Integer(Case()).Integer(1); break;
            default:
                out_.Integer(Group()).Integer(0).Integer(10).Real(0.5, 3).Integer(1).Real(1, 2);
        }
    }

    void Wall(int points)
    {
        out_.Integer(1).Word("O").Word("N").Integer(0).Real(1, 2).Real(0.8, 2).Real(0.8, 2);
        out_.Real(1.2, 2).Real(1.2, 2).Word("V").Integer(2).Real(0.05, 3);
        for (int i = 0; i < 4; ++i) out_.Integer(1).Real(0.8, 2).Real(0.3, 2).Real(-0.2, 2);
        for (int i = 0; i < points; ++i) out_.Real(1, 2);
    }

    const ModelOptions& options_;
    TextWriter& out_;
    Random random_;
};

std::string NameOf(const ModelOptions& options)
{
    return std::to_string(options.elements) +
           (options.lineEnd == LineEnd::kCrLf ? "-crlf" : "-lf") +
           (options.numbers == NumberStyle::kFull ? "-full" : "-short") +
           (options.place == ElementsPlace::kFirst ? "-first-" : "-last-") +
           std::to_string(options.cases) + "-" + std::to_string(options.combinations) + ".txt";
}

}  // namespace

ModelFileInfo WriteModel(const ModelOptions& options, const std::filesystem::path& path)
{
    TextWriter out(path, options.lineEnd, options.numbers);
    Generator(options, out).Write();
    return {path, out.Bytes(), out.Lines()};
}

ModelFiles::ModelFiles()
{
    std::string pattern = (std::filesystem::temp_directory_path() / "tamur-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    folder_ = pattern;
}

ModelFiles::~ModelFiles()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

const ModelFileInfo& ModelFiles::Get(const ModelOptions& options)
{
    const std::string name = NameOf(options);
    auto file = files_.find(name);
    if (file == files_.end()) {
        file = files_.emplace(name, WriteModel(options, folder_ / name)).first;
    }
    return file->second;
}

void ModelFiles::Drop(const ModelOptions& options)
{
    const auto file = files_.find(NameOf(options));
    if (file == files_.end()) return;
    std::filesystem::remove(file->second.path);
    files_.erase(file);
}

}  // namespace tamur::bench
