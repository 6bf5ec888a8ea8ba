#include "models/seeds.h"

#include <string_view>

namespace tamur::test {
namespace {

using std::string_literals::operator""s;

constexpr std::string_view kVersions[] = {"12.1", "12.2A", "14.1E", "15.0", "9.9"};

constexpr std::string_view kLeading[] = {
    "#Groupes\n2 3 2 Poutres_principales Oui\n3 1 6 - N\n1 2 2 App v\n4 5 3 _ o\n5 6 1\n",
    "#Materiaux\nBETON 3.2e10 0.2 25000 1e-5 0.05\nS235 2.1e11 0.3 78500 1.2e-5 0.02\n",
    "#Mat\x82riaux\nC25 inf nan 0x1p3 1e400 -1e-400\n\nX\n",
    "#Geometries\nI30*1*0.5*20 1 2 3 4 5 6 7 8 9 10 11 2 S 0 0 1 0 5 6\nR20*30 1 2 3\n",
    "#G\x82om\x82tries\nH30*1*0.5*20 1 2 3 4 5 6 7 8 9 10 11 0 C 0.5\n"
    "T30*2*1*20*3 1 2 3 4 5 6 7 8 9 10 11 3 F 0 0 1 0 1 1 0.25\nT10*2*30*20*1 1 1\n",
    "#Attaches\nE0 0\nART1 7 Rotule A B\nBAD x\nR 300 t g d\n",
};

constexpr std::string_view kCases[] = {
    "#Cas\n1 G 1 G 0\n2 Q 1 Q 0\n",
    "#Cas\n1 G 1 G 0\n2 Q 1 Q 0\n10 ELU 2 ELU 0\n11 ELS 2 ELS 0\n12 N 2 N 0\n"
    "#TAB_PARAM_CAS\n10 2 2 1.5 1 1.35 1 0.1 32767 0\n11 2 10 1 99 1 32767 0\n12 2 11 1 32767 0\n"
    "10 2 1 1\n12 2 32767 0\n",
    "#Cas\n1 G 1 G 0\n3 MOD 3 M 0\n#TAB_PARAM_CAS\n"
    "3 3 3 90 90 90 1 1 1 2 1 0 0 0 0 0 0 0 0 0 0 0 0 1 w 41 O w 0.05 0.04 0.03\n"
    "3 3 2 80 80 80 0 1 1\n3 3 -4\n",
    "#Cas\n1 G 1 G 0\n4 SX 4 S 0\n#TAB_PARAM_CAS\n"
    "4 4 N O N w 1 2 3 O 1 2 0.5 0.1 2.5 0.5 abc inf inf "
    "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26 27 28 29 30 31 32 33 34 "
    "35 36 37 38 39 2 1.5 10 w w 1 O w 3 1.2 4 O\n4 4 O O O w 1 2 3 N 1 2 0.5 0.1\n",
    "#Cas\n1 G 1 G 0\n2 Q 1 Q 0\n9 ENV 9 E 0\n5 V 6 W 0\n3 T 257 T 0\n#TAB_PARAM_CAS\n"
    "9 9 1 1 2 3 4 5 6 7 8 O 2 1 2\n9 9 1\n9 7 1 2\n9 9 0 0 0 0 0 0 0 0 0 N 9999 1\n",
};

constexpr std::string_view kElements[] = {
    "1 7 0 1 0 1.5 2.5 0 0 0 0 3\n1 8 0 1 2 -1.25e3 +2.5 .5 A12\x04 \x04 0 0 0 255\n",
    "2 1 0 2 1 0 0 0 3 4 0.5 B1 0 0 0 3 2 7 300 1 1 1 2 1 2 9 1 2 3 4 5\n"
    "2 2 0 2 0 0 0 0 0 0 0 0 0 0\n2 3 0 2 0 1e200 0 0 -1e200 0 0 0 0 0 1 6 0 2147483647 1 0 0 0 "
    "9\n",
    "3 1 0 4 1 0 0 0 1 0 0 1 1 0 0 1 0 D\xE9 0 0 0 1 6 1 3 2 2 0.2 0.01 0.02\n3 2 0 0 0\n",
    "4 1 0 1 1 0 0 0 A 0 0 0 1 2 5 45 1 2 3 4 5 6 1 2 3 4 5 6 0.5\n",
    "5 1 0 1 0 1 2 3 0 0 0 1 2 10 20 30 1 2 3\n",
    "6 1 0 2 0 0 0 0 1 0 0 0 0 0 1 1 10 20 0 0 -1 0 0 0\n",
    "7 1 0 3 0 0 0 0 1 0 0 1 1 0 0 0 0 1 3 1 2 3 0 0 -500\n",
    "8 1 0 0 0 0 0 0 1 0 0 -1 2 3\n8 2 0 0 0 0 0 0 1 0 0 -1 2 99\n8 3 0 0 0 0 0 0 1 0 0 -2 2 3\n",
    "9 1 0 1 1 0 0 0 M 0 0 0 1 2 3 4 5 6\n",
    "10 1 0 2 1 0 0 0 1 0 0 L 0 0 0 1 2 0 30 1 2 3 4 5 6 1 2 3 4 5 6 0.5\n",
    "11 1 0 3 0 0 0 0 1 0 0 1 1 0 0 0 0 1 3 1 2 3 4 5 6 1 2 3 4 5 6\n",
    "12 1 0 1 0 0 0 0 0 0 0 1 0.1 0.2 0.3 0.4 0.5 0.6\n",
    "13 1 0 0 0 0 0 0 2 20 0 0 3 1\n13 2 0 0 0 0 0 0 1 20 0 0 2 3\n13 3 0 0 0 0 0 0 98 1 0 0 0 0\n",
    "14 1 0 1 0 0 0 0\n0\n23 1\n-1 1\n",
    "15 1 0 2 0 0 0 0 1 1 1 0 0 0 2\n",
    "16 1 0 2 1 0 0 0 1 1 1 I 0 0 0 4\n",
    "17 1 0 4 0 0 0 0 1 0 0 1 1 0 0 1 0 0 0 0 2 3\n",
    "20 1 0 4 1 0 0 0 1 0 0 1 1 0 0 1 0 P 0 0 0 1 ON2 0.5 1 2 3 4 v5 0.1 1 .1 .2 .3 2 .1 .2 .3 "
    "3 .1 .2 .3 4 .1 .2 .3 0.5 0.5 0.25 0.25\n20 2 0 0 0\n",
    "21 1 0 2 0 0 0 0 10 0 0 0 0 0 1 0 1 2\n",
    "22 1 0 2 1 0 0 0 5 0 0 C 0 0 0 1 0 5 1.0 2 1.5\n",
};

// Lists and labels as dense as a line can have them: what the import reserves for the longest is
// used up, so that a byte too few shows.
constexpr std::string_view kDense =
    "#Version\n15.0\n#SP\n2\n#Espace\n1\n#Tolerance\n0.001\n#Rigide\n1\n"
    "#Geometries\nS 1 2 3 4 5 6 7 8 9 10 11 6 S 1 1 2 2 3 3 4 4 5 5 6 6 7\n"
    "#Cas\n1 G 1 G 0\n2 Q 1 Q 0\n3 M 3 M 0\n4 S 4 S 0\n9 E 9 E 0\n10 C 2 C 0\n#TAB_PARAM_CAS\n"
    "3 3 9 9 9 9 1 1 1 2 1 0 0 0 0 0 0 0 0 0 0 0 0 1 w 41 O w 1 2 3 4 5 6 7 8 9\n"
    "4 4 N O N w 1 2 3 O 1 2 5 1 1 2 2 3 3 4 4 inf inf\n"
    "9 9 1 1 2 3 4 5 6 7 8 O 9 1 2 3 4 5 6 7 8 9\n"
    "10 2 2 1.5 1 1.35 4 1 32767 0\n"
    "#Elements\n1 1 0 1 20 1 2 3 AB CD EF GH IJ KL MN OP QR ST AB CD EF GH IJ KL MN OP QR ST 0 0 "
    "0\n"
    "1 2 0 1 3 1 2 3 A BCD E 0 0 0\n1 3 0 1 0 1 2 3 0 0 0\n"
    "2 1 0 2 20 0 0 0 3 4 5 AB CD EF GH IJ KL MN OP QR ST AB CD EF GH IJ KL MN OP QR ST 0 0 0\n"
    "3 1 0 3 0 0 0 0 1 0 0 1 1 0 0 0 0\n20 1 0 3 0 0 0 0 1 0 0 1 1 0 0 0 0\n";

template <std::size_t N>
std::string_view Cycle(const std::string_view (&texts)[N], std::size_t i)
{
    return texts[i % N];
}

std::string WithCarriageReturns(const std::string& text)
{
    std::string out;
    for (const char c : text) {
        if (c == '\n') out += '\r';
        out += c;
    }
    return out;
}

}  // namespace

std::vector<Seed> Seeds()
{
    constexpr std::size_t kMixed = 112;
    std::vector<Seed> seeds;
    for (std::size_t i = 0; i < kMixed; ++i) {
        std::string text = "#Version\n"s;
        text += Cycle(kVersions, i);
        text += "\n#SP\n2\n#Espace\n1\n#Tolerance\n0.001\n#Rigide\n1\n";
        for (std::size_t k = 0; k < 3; ++k) text += Cycle(kLeading, i + 2 * k);
        text += Cycle(kCases, i);
        text += "#Elements\n";
        for (std::size_t k = 0; k < 5; ++k) text += Cycle(kElements, i + 4 * k);
        if (i % 8 == 7) text += "#Fin\n";
        if (i % 4 == 3) text = WithCarriageReturns(text);
        seeds.push_back({"seed " + std::to_string(i), text});
    }
    seeds.push_back({"dense", std::string(kDense)});
    return seeds;
}

}  // namespace tamur::test
