// Every expected name below was worked out by hand from the drawings.
//
// The letters are those of the dimensions in the order in which the name as written has them:
//
//   I a*b*c*d                 H a*b*c*d                 T a*b*c*d*e
//
//   |<---- a ---->|           |<---- b ---->|           |<---- a ---->|
//   +-------------+ -         +-------------+ -         +-------------+ -
//   |             | b         |             | a         |             | b
//   +----+   +----+ -         +----+   +----+ -         +--+   +------+ -
//        |<c>|                     |<d>|                |<e>|<c>|
//        |   |      d              |   |      c            |   |        d
//   +----+   +----+ -         +----+   +----+ -            +---+        -
//   |             | b         |             | a
//   +-------------+ -         +-------------+ -
//
// I and H become the same I: total height, web thickness, flange width, flange thickness.
//
// A T without e, or with its web in the middle, becomes: total height, thickness of the lower
// part, width of the upper part, thickness of the upper part. Any other T becomes: thickness of
// the narrower part (the web), total height, then for the left and for the right of the web how
// far the flange stands out, how thick it is there, and at which height it starts.
#include "import/tables/section_name.h"

#include <gtest/gtest.h>

#include <vector>

namespace tamur {
namespace {

struct Named {
    const char* written;
    const char* expected;
};

void ExpectNames(const std::vector<Named>& names, bool areHShapes = false)
{
    for (const Named& each : names) {
        const SectionName name = NormaliseSectionName(each.written);
        EXPECT_EQ(name.text, each.expected) << each.written;
        EXPECT_EQ(name.isHShape, areHShapes) << each.written;
    }
}

void ExpectAsWritten(const std::vector<const char*>& names)
{
    for (const char* const name : names) ExpectNames({{name, name}});
}

// clang-format off

TEST(SectionName, IGivesHeightWebAndFlange)
{
    ExpectNames({
        // written              height*web*flange:w*t    height = 2b + d
        {"I30*1*0.5*20",        "I22*0.5*30*1"},         // 2 + 20
        {"I15*1.07*0.71*27.86", "I30*0.71*15*1.07"},     // 2.14 + 27.86, an IPE 300 in cm
        {"I0.3*0.02*0.01*0.5",  "I0.54*0.01*0.3*0.02"},  // 0.04 + 0.5, in metres
        {"I30*0*0.5*20",        "I20*0.5*30*0"},         // no flange thickness
        {"I30*1*0*20",          "I22*0*30*1"},           // no web
        {"I0*1*0.5*20",         "I22*0.5*0*1"},          // no flange width
        {"I30*1*0.5*0",         "I2*0.5*30*1"},          // nothing between the flanges
        {"I0*0*0*0",            "I0*0*0*0"},
    });
}

TEST(SectionName, HGivesTheIThatItIs)
{
    ExpectNames({
        // written          height*web*flange:w*t   height = 2a + c
        {"H30*1*0.5*20",    "I60.5*20*1*30"},    // 60 + 0.5
        {"H1.5*20*17*0.9",  "I20*0.9*20*1.5"},   // 3 + 17, an HEB 200 in cm
        {"H14*300*262*8.5", "I290*8.5*300*14"},  // 28 + 262, an HEA 300 in mm
        {"H0*20*17*0.9",    "I17*0.9*20*0"},     // no flange thickness
        {"H1.5*0*17*0.9",   "I20*0.9*0*1.5"},    // no flange width
        {"H1.5*20*0*0.9",   "I3*0.9*20*1.5"},    // nothing between the flanges
        {"H1.5*20*17*0",    "I20*0*20*1.5"},     // no web
        {"H0*0*0*0",        "I0*0*0*0"},
    }, true);
}

TEST(SectionName, CentredTGivesHeightWebAndFlange)
{
    ExpectNames({
        // written                height*web*flange:w*t   height = d + b; middle: e = (a - c)/2
        {"T30*2*1*20",            "T22*1*30*2"},        // no e
        {"T30*2*1*20*",           "T22*1*30*2"},        // e announced and missing
        {"T30*2*1*20*abc",        "T22*1*30*2"},        // e is no number
        {"T30*2*1*20*-5",         "T22*1*30*2"},        // e negative: taken as missing
        {"T30*2*1*20*14.5",       "T22*1*30*2"},        // e = 29/2
        {"T30*2*1*20*14.500001",  "T22*1*30*2"},        // a micron off is still the middle
        {"T30*2*1*20*14.499999",  "T22*1*30*2"},
        {"T10*2*10*20*0",         "T22*10*10*2"},       // flange as wide as the web: middle is 0
        {"T10*2*10*20*0.000001",  "T22*10*10*2"},
        {"T2*20*10*3",            "T23*10*2*20"},       // upside down, no e
        {"T1.2*0.2*0.3*0.5*0.45", "T0.7*0.3*1.2*0.2"},  // a slab beam in metres, e = 0.9/2
        {"T0*2*1*20",             "T22*1*0*2"},         // no flange width
        {"T30*0*1*20",            "T20*1*30*0"},        // no flange thickness
        {"T30*2*0*20",            "T22*0*30*2"},        // no web thickness
        {"T30*2*0*20*15",         "T22*0*30*2"},        // e = 30/2
        {"T30*2*1*0",             "T2*1*30*2"},         // no web height
        {"T0*0*0*0",              "T0*0*0*0"},
        {"T0*0*0*0*0",            "T0*0*0*0"},
    });
}

// The upper part is the wider one (a > c) and the flange: b thick, starting at height 0.
//   T web * (d + b) * left * b / 0 * right * b / 0     left = e, right = (a - c) - e
TEST(SectionName, TWithItsFlangeAtTheTopNamesBothSidesOfTheWeb)
{
    ExpectNames({
        // written               web*height*left/height*right/height
        {"T30*2*1*20*10",        "T1*22*10*2/0*19*2/0"},            // 29 - 10
        {"T30*2*1*20*20",        "T1*22*20*2/0*9*2/0"},             // 29 - 20
        {"T30*2*1*20*14.5001",   "T1*22*14.5001*2/0*14.4999*2/0"},  // just off the middle
        {"T120*20*30*50*30",     "T30*70*30*20/0*60*20/0"},         // an edge beam: 90 - 30
        {"T1.2*0.2*0.3*0.5*0.3", "T0.3*0.7*0.3*0.2/0*0.6*0.2/0"},   // the same in metres: 0.9 - 0.3
        {"T30*2*1*20*0",         "T1*22*0*0/0*29*2/0"},             // e = 0: no left side
        {"T80*15*20*45*0",       "T20*60*0*0/0*60*15/0"},           // an L
        {"T30*2*1*20*0.000001",  "T1*22*1e-06*0/0*29*2/0"},         // e so small: not thick there
        {"T30*2*1*20*29",        "T1*22*29*2/0*0*0/0"},             // e = a - c: no right side
        {"T80*15*20*45*60",      "T20*60*60*15/0*0*0/0"},           // an L the other way round
        {"T30*2*1*20*40",        "T1*22*40*2/0*-11*2/0"},           // web off the flange: 29 - 40
        {"T30*2*0*20*10",        "T0*22*10*2/0*20*2/0"},            // zero web: 30 - 10
        {"T30*2*1*0*10",         "T1*2*10*2/0*19*2/0"},             // web without height
        {"T30*0*1*20*10",        "T1*20*0*0/0*0*0/0"},              // b = 0: no flange at all
        {"T30*0*1*20*0",         "T1*20*0*0/0*0*0/0"},
        {"T30*0.000001*1*20*10", "T1*20*0*1e-06/0*0*1e-06/0"},      // b so small: no widths
    });
}

// The upper part is the narrower one (a <= c) and becomes the web: the flange is the lower part,
// d thick, starting at height b.
//   T web * (d + b) * left * d / b * right * d / b     left = e, right = c - a - e
// Its right side is told to be flush from a - c, not from c - a, so that it never is.
TEST(SectionName, TWithItsFlangeAtTheBottomNamesBothSidesOfTheWeb)
{
    ExpectNames({
        // written              web*height*left/height*right/height
        {"T2*20*10*3*1",        "T2*23*1*3/20*7*3/20"},       // 10 - 2 - 1
        {"T2*20*10*3*4",        "T2*23*4*3/20*4*3/20"},       // in the middle, and yet two-sided
        {"T30*60*90*25*20",     "T30*85*20*25/60*40*25/60"},  // a crane beam: 90 - 30 - 20
        {"T2*20*10*3*0",        "T2*23*0*0/0*8*3/20"},        // e = 0: no left side
        {"T2*20*10*3*0.000001", "T2*23*1e-06*0/0*8*3/20"},    // e so small: not thick there
        {"T2*20*10*3*8",        "T2*23*8*3/20*0*3/20"},       // e = c - a: no width on the right
        {"T2*20*10*3*12",       "T2*23*12*3/20*-4*3/20"},     // web off the flange
        {"T10*2*10*20*5",       "T10*22*5*20/2*-5*20/2"},     // both as wide (a = c)
        {"T0*20*10*3*4",        "T0*23*4*3/20*6*3/20"},       // zero web: 10 - 0 - 4
        {"T2*20*10*0*4",        "T2*20*4*0/20*4*0/20"},       // flange without thickness
        {"T2*0*10*3*4",         "T2*3*0*3/0*0*3/0"},          // b = 0: no widths
        {"T2*0*10*3*0",         "T2*3*0*0/0*0*3/0"},
        {"T2*0.000001*10*3*4",  "T2*3*0*3/1e-06*0*3/1e-06"},  // b so small: no widths either
    });
}

TEST(SectionName, SeparatorsGoWithTheDimensions)
{
    ExpectNames({
        // written          separators of the name, in the order of those written: / - : ;
        {"I30/1-0.5:20",    "I22/0.5-30:1"},         // 1 2 3
        {"T30/2-1:20",      "T22:1-30/2"},           // 3 2 1
        {"T30/2-1:20;14.5", "T22:1-30/2"},           // the fourth is dropped
        {"T30/2-1:20;10",   "T1/22-10/2/0-19/2/0"},  // 1 2 1 . 2 1 .
        {"T2/20-10:3;4",    "T2/23-4/3/20-4/3/20"},  // 1 2 1 . 2 1 .
        {"I30x1x0.5x20",    "I22x0.5x30x1"},
        {"T30x2x1x20",      "T22x1x30x2"},
    });
    ExpectNames({{"H1.5/20-17:0.9", "I20/0.9-20:1.5"}}, true);
}

TEST(SectionName, WhatFollowsTheDimensionsIsDropped)
{
    ExpectNames({
        {"I30*1*0.5*20*7",    "I22*0.5*30*1"},
        {"I30*1*0.5*20cm",    "I22*0.5*30*1"},
        {"T30*2*1*20*14.5*9", "T22*1*30*2"},
        {"T30*2*1*20*10_bis", "T1*22*10*2/0*19*2/0"},
    });
    ExpectNames({{"H1.5*20*17*0.9_bis", "I20*0.9*20*1.5"}}, true);
}

// Six significant digits, no zeros at the end, an exponent of two digits where the number is
// below 0.0001 or has more than six digits before the point.
TEST(SectionName, NumbersArePrintedShort)
{
    ExpectNames({
        {"I30.50*1.0*0.50*20.0",    "I22*0.5*30.5*1"},
        {"I030*01*.5*020.",         "I22*0.5*30*1"},
        {"I+30*+1*+0.5*+20",        "I22*0.5*30*1"},
        {"I12.34567*1*0.5*20",      "I22*0.5*12.3457*1"},
        {"I12.34561*1*0.5*20",      "I22*0.5*12.3456*1"},
        {"I123456.7*1*0.5*20",      "I22*0.5*123457*1"},
        {"I100000*1*0.5*20",        "I22*0.5*100000*1"},
        {"I999999.7*1*0.5*20",      "I22*0.5*1e+06*1"},
        {"I1000000*1*0.5*20",       "I22*0.5*1e+06*1"},
        {"I1234567*1*0.5*20",       "I22*0.5*1.23457e+06*1"},
        {"I1e15*1*0.5*20",          "I22*0.5*1e+15*1"},
        {"I30*1*0.0001*20",         "I22*0.0001*30*1"},
        {"I30*1*0.00012345678*20",  "I22*0.000123457*30*1"},
        {"I30*1*0.00001*20",        "I22*1e-05*30*1"},
        {"I30*1*0.000012345678*20", "I22*1.23457e-05*30*1"},
        {"I30*1*1e-100*20",         "I22*1e-100*30*1"},
        {"I30*0.0001*0.5*20",       "I20.0002*0.5*30*0.0001"},  // 0.0002 + 20
        {"I30*0.00001*0.5*20",      "I20*0.5*30*1e-05"},        // 20.00002 has seven digits
        {"I30*1*-0*20",             "I22*-0*30*1"},             // minus zero is not negative
    });
}

// Dimensions are read as the C library reads numbers.
TEST(SectionName, DimensionsMayHaveExponentsAndBeHexadecimal)
{
    ExpectNames({
        {"I3e1*1*0.5*20",    "I22*0.5*30*1"},
        {"I30e1*2*5E-1*20",  "I24*0.5*300*2"},        // 4 + 20
        {"T3e1*2*1*2e1*1e1", "T1*22*10*2/0*19*2/0"},
        {"I0x1E*1*0.5*0x14", "I22*0.5*30*1"},
    });
}

// clang-format on

TEST(SectionName, OfAnotherFormStaysAsWritten)
{
    ExpectAsWritten({"", "R20*30", "R20", "C20", "L100*10", "rond", "\xC9", "30*1*0.5*20",
                     "i30*1*0.5*20", "h30*1*0.5*20", "t30*2*1*20", "U30*1*0.5*20"});
}

TEST(SectionName, WithoutDimensionsAfterTheLetterStaysAsWritten)
{
    ExpectAsWritten({"T", "I", "H", "TUBE60*3*1*1", "IPE300", "HEA200", "HEB_300", "T*30*2*1*20",
                     "I*30*1*0.5*20", "II30*1*0.5*20"});
}

TEST(SectionName, WithAMissingDimensionStaysAsWritten)
{
    ExpectAsWritten({"T30", "T30*", "T30*2", "T30*2*1", "T30*2*1*", "T30*2*1*abc", "T30**1*20",
                     "I30", "I30*1", "I30*1*20", "I30*1*20*", "I30*1*0.5*x", "I30*x*0.5*20", "H30",
                     "H30*1*20", "H30*1*20*", "H30*1**20"});
}

// The point belongs to the number before it, so it separates nothing.
TEST(SectionName, WithPointsBetweenTheDimensionsStaysAsWritten)
{
    ExpectAsWritten({"I30.1.2.20", "H30.1.2.20", "T30.2.1.20"});
}

TEST(SectionName, WithANegativeDimensionStaysAsWritten)
{
    ExpectAsWritten({"T-30*2*1*20", "T30*-2*1*20", "T30*2*-1*20", "T30*2*1*-20", "T30*2*1*-20*10",
                     "T-0.000001*2*1*20", "I-30*1*0.5*20", "I30*-1*0.5*20", "I30*1*-0.5*20",
                     "I30*1*0.5*-20", "H-30*1*0.5*20", "H30*-1*0.5*20", "H30*1*-0.5*20",
                     "H30*1*0.5*-20"});
}

TEST(SectionName, WithADimensionThatIsNoNumberStaysAsWritten)
{
    ExpectAsWritten({"Tnan*2*1*20", "I30*nan*0.5*20", "H30*1*0.5*nan"});
}

}  // namespace
}  // namespace tamur
