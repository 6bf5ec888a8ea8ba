#include "models/hostile_families.h"

#include <cstdint>
#include <initializer_list>
#include <string_view>

namespace tamur::bench {
namespace {

constexpr std::size_t kLongestLine = 49998;  // with its line feed, what one read takes

void Add(std::string& text, std::initializer_list<std::string_view> columns)
{
    for (const std::string_view column : columns) text.append(column).append(1, ' ');
    text.back() = '\n';
}

std::string Number(int value)
{
    return std::to_string(value);
}

void AddBar(std::string& text, int identifier, const std::string& section)
{
    Add(text, {"2", Number(identifier), "0 2 0 0 0 0 1 2 3 0 0 0 1 2 0 0 10 1", section, section,
               "1 1 5"});
}

// Kinds 8 and 13.
void AddGroupLoad(std::string& text, const char* kind, const std::string& loadCase, int value,
                  const std::string& group)
{
    Add(text, {kind, "1 0 0 0 0 0 0", loadCase, Number(value), "0 0 2", group});
}

// As many copies of `piece` as make up a line of the greatest length, after `start`.
void AddLongLine(std::string& text, std::string_view start, std::string_view piece)
{
    const std::size_t begin = text.size();
    text += start;
    while (text.size() - begin + piece.size() <= kLongestLine) text += piece;
    text += '\n';
}

void AddLongElements(std::string& text, int count, std::string_view start, std::string_view piece)
{
    text += "#Elements\n";
    for (int i = 0; i < count; ++i) AddLongLine(text, start, piece);
}

void AddCopies(std::string& text, int count, std::string_view piece)
{
    for (int i = 0; i < count; ++i) text += piece;
}

// A line for each number from `first` to `last`, with the same columns after it.
void AddNumbered(std::string& text, int first, int last, std::string_view columns)
{
    for (int i = first; i <= last; ++i) Add(text, {Number(i), columns});
}

void CombinationsThatNameEachOther(std::string& text, int size)
{
    text += "#Cas\n";
    AddNumbered(text, 1, size, "S 1 G 0");
    AddNumbered(text, size + 1, 2 * size, "C 2 ELU 0");
    text += "#TAB_PARAM_CAS\n";
    for (int i = 1; i <= size; ++i) {
        Add(text,
            {Number(size + i), "2", Number(i), "1.35", Number(2 * size + 1 - i), "1.5 32767 0"});
    }
}

void CombinationsThatDisableEachOther(std::string& text, int size)
{
    text += "#Cas\n";
    AddNumbered(text, 1, size, "C 2 ELU 0");
    text += "#TAB_PARAM_CAS\n";
    for (int i = 1; i <= size; ++i) Add(text, {Number(i), "2", Number(i - 1), "1 32767 0"});
}

void OneCaseNumberManyTimes(std::string& text, int size)
{
    text += "#Cas\n";
    AddCopies(text, size, "7 C 2 ELU 0\n");
    text += "7 S 1 G 0\n#TAB_PARAM_CAS\n";
    AddCopies(text, size, "7 2 7 1.0 32767 0\n");
    text += "#Elements\n";
    for (int i = 0; i < size; ++i) AddGroupLoad(text, "8", "7", 1, "1");
}

void LongCombinations(std::string& text, int size)
{
    std::string line = "1 2 ";
    for (int k = 5000; k > 1; --k) line += Number(k) + " 1 ";
    text += "#Cas\n1 C 2 ELU 0\n";
    AddNumbered(text, 2, 5000, "S 1 G 0");
    text += "#TAB_PARAM_CAS\n";
    AddCopies(text, size, line + "32767 0\n");
}

void ListsThatAnnounceMuch(std::string& text, int size)
{
    text += "#Cas\n1 E 9 E 0\n#TAB_PARAM_CAS\n";
    for (int i = 0; i < size; ++i) AddLongLine(text, "1 9 0 0 0 0 0 0 0 0 0 N 49000", " 7");
}

void LoadsThatSearchGroups(std::string& text, int size)
{
    text += "#Groupes\n";
    for (int i = 1; i <= size; ++i) Add(text, {"2", Number(i), "2 T O"});
    text += "#Cas\n1 S 1 G 0\n#Elements\n";
    for (int i = size; i >= 1; --i) AddGroupLoad(text, "8", "1", 1, Number(i));
    for (int i = 1; i <= size; ++i) AddGroupLoad(text, "8", "1", 1, Number(size + i));
}

void LoadsOfOneCaseRefused(std::string& text, int size)
{
    text += "#Cas\n1 S 1 G 0\n#Elements\n";
    for (int i = 0; i < size; ++i) AddGroupLoad(text, "8", "1", i, "1");
}

void LoadsRefusedOneByOne(std::string& text, int size)
{
    text += "#Cas\n1 S 1 G 0\n#Elements\n";
    for (int i = 0; i < size; ++i) AddGroupLoad(text, "8", "1", 1, "1");
    for (int i = 0; i < size; ++i) AddGroupLoad(text, "13", "1", 1, "1");
}

void LoadsOfManyCasesRefused(std::string& text, int size)
{
    text += "#Cas\n";
    AddNumbered(text, 1, size, "S 1 G 0");
    text += "#Elements\n";
    for (int i = 1; i <= size; ++i) AddGroupLoad(text, "8", Number(i), 1, "1");
    for (int i = 1; i <= size; ++i) AddGroupLoad(text, "13", Number(i), 1, "1");
}

void BarsWithOneHugeOutline(std::string& text, int size)
{
    text += "#Geometries\n";
    AddLongLine(text, "R1 1 1 1 1 1 1 1 1 1 1 1 12000 F", " 0 1");
    text += "#Elements\n";
    for (int i = 1; i <= size; ++i) AddBar(text, i, "1");
}

void BarsOfAsManySections(std::string& text, int size)
{
    text += "#Geometries\n";
    AddCopies(text, size, "T30*2*1*20*3 1 1 1 1 1 1 1 1 1 1 1 2 F 0 1 2 3 4\n");
    text += "#Elements\n";
    for (int i = 1; i <= size; ++i) AddBar(text, i, Number(i));
}

// Each load looks for its case and for the first load of it, somewhere else every time.
void LoadsOfCasesInRandomOrder(std::string& text, int size)
{
    text += "#Cas\n";
    AddNumbered(text, 1, size, "S 1 G 0");
    text += "#Elements\n";
    std::uint32_t random = 1;
    for (int i = 0; i < 2 * size; ++i) {
        random = random * 1664525 + 1013904223;
        AddGroupLoad(text, "8", Number(1 + static_cast<int>(random % unsigned(size))), 1, "1");
    }
}

void LinesThatAreCut(std::string& text, int size)
{
    text += "#Elements\n";
    for (int i = 0; i < size; ++i) text.append(60000, 'x').append(1, '\n');
}

void MinimalElements(std::string& text, int size)
{
    text += "#Elements\n";
    for (int i = 0; i < size; ++i) {
        for (const char* line : {"20\n", "11\n", "7\n", "3\n", "17\n", "8\n", "13\n"}) text += line;
    }
}

void OneHeaderManyTimes(std::string& text, int size)
{
    for (int i = 1; i <= size; ++i) {
        Add(text, {"#Elements\n1", Number(i), "0 1 0 1.5 2.5 3.5 0 0 0 63"});
    }
}

}  // namespace

const std::vector<HostileFamily>& HostileFamilies()
{
    static const std::vector<HostileFamily> families = {
        {"combinations that name each other", CombinationsThatNameEachOther, 100000},
        {"combinations that disable each other", CombinationsThatDisableEachOther, 200000},
        {"one case number many times", OneCaseNumberManyTimes, 200000},
        {"combinations of 5000 terms", LongCombinations, 200},
        {"lists that announce more than they hold", ListsThatAnnounceMuch, 400},
        {"loads that search groups", LoadsThatSearchGroups, 100000},
        {"loads of one case, refused", LoadsOfOneCaseRefused, 200000},
        {"loads of one case, refused one by one", LoadsRefusedOneByOne, 100000},
        {"loads of many cases, refused", LoadsOfManyCasesRefused, 50000},
        {"loads of cases in random order", LoadsOfCasesInRandomOrder, 100000, 3.2},
        {"minimal elements", MinimalElements, 50000},
        {"one huge outline, many bars", BarsWithOneHugeOutline, 200000},
        {"as many sections as bars", BarsOfAsManySections, 50000},
        {"polygons that announce more than they hold",
         [](std::string& text, int size) { AddLongElements(text, size, "3 1 0 49000 0 ", "x"); },
         2000},
        {"walls that announce more than they hold",
         [](std::string& text, int size) {
             AddLongElements(text, size, "20 1 0 49940 49940 ", "x");
         },
         2000},
        {"labels of one character",
         [](std::string& text, int size) {
             AddLongElements(text, size, "1 1 0 1 24950 0 0 0", " \xE9");
         },
         300},
        {"reals of many digits",
         [](std::string& text, int size) {
             AddLongElements(text, size, "1 1 0 1 0 0.", "49999999999999999");
         },
         500},
        {"lines of the greatest length",
         [](std::string& text, int size) { AddLongElements(text, size, "", "x"); }, 2000},
        {"lines that are cut", LinesThatAreCut, 500},
        {"NUL characters",
         [](std::string& text, int size) {
             (text += "#Elements\n").append(static_cast<std::size_t>(size), '\0');
         },
         50000000},
        {"long lines of blanks",
         [](std::string& text, int size) { AddLongElements(text, size, "1", " "); }, 500},
        {"one line without an end",
         [](std::string& text, int size) { AddCopies(text += "#Elements\n", size, "1"); },
         50000000},
        {"empty lines",
         [](std::string& text, int size) { AddCopies(text += "#Elements\n", size, "\n"); },
         5000000},
        {"carriage returns",
         [](std::string& text, int size) { AddCopies(text += "#Elements\n", size, "\r\r\n"); },
         1000000},
        {"header lines", [](std::string& text, int size) { AddCopies(text, size, "#\n#Cas \n"); },
         1000000},
        {"one header many times", OneHeaderManyTimes, 300000},
        {"number signs", [](std::string& text, int size) { AddLongElements(text, size, " ", "#"); },
         500},
    };
    return families;
}

const std::vector<MinimalLine>& MinimalLines()
{
    static const char* const kElements = "#Elements\n";
    // Cases of number 0, which columns that are missing mean.
    static const char* const kOfCase = "#Cas\n0 S 1\n#Elements\n";
    static const char* const kParameters = "#Cas\n1 C 2\n#TAB_PARAM_CAS\n";
    static const std::vector<MinimalLine> lines = {
        {"#Groupes\n", "a\n"},
        {"#Materiaux\n", "a\n"},
        {"#Materiaux\n", "a 1\n"},
        {"#Geometries\n", "a\n"},
        {"#Geometries\n", "a 1\n"},
        {"#Geometries\n", "a 1 1 1 1 1 1 1 1 1 1 1\n"},
        {"#Attaches\n", "a\n"},
        {"#Attaches\n", "a 1 a a a\n"},
        {"#Cas\n", "1a 1\n"},
        {kParameters, "1 2 1 1\n"},
        {kParameters, "1 3\n"},
        {kParameters, "1 4\n"},
        {kParameters, "1 9\n"},
        {kElements, "1 1 0 1\n"},
        {kElements, "2 1 0 2 0 1\n"},
        {kElements, "3\n"},
        {kElements, "3+1+0+0+0+0+0+0\n"},
        {kElements, "4 1 0 1\n"},
        {kElements, "4+1+0+1+0+0+0+0+0+0+0\n"},
        {kElements, "5 1 0 1\n"},
        {kElements, "6 1 0 2\n"},
        {kElements, "7\n"},
        {kElements, "7+1+0+0+0+0+0+0\n"},
        {kElements, "8\n"},
        {kOfCase, "8\n"},
        {kElements, "9 1 0 1\n"},
        {kElements, "10 1 0 2\n"},
        {kElements, "11\n"},
        {kElements, "11+1+0+0+0+0+0+0\n"},
        {kElements, "12 1 0 1\n"},
        {kElements, "13\n"},
        {kOfCase, "13\n"},
        {kElements, "15 1 0 2\n"},
        {kElements, "16 1 0 2\n"},
        {kElements, "17\n"},
        {kElements, "20\n"},
        {kElements, "20+1+0+0+0+0+0+0\n"},
        {kElements, "21 1 0 2\n"},
        {kElements, "22 1 0 2\n"},
    };
    return lines;
}

}  // namespace tamur::bench
