#include "hostile_families.h"

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

void AddNode(std::string& text, int identifier)
{
    Add(text, {"1", Number(identifier), "0 1 0 1.5 2.5 3.5 0 0 0 63"});
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

// As many copies of `piece` as make up a line of the greatest length, behind `start`.
void AddLongLine(std::string& text, std::string_view start, std::string_view piece)
{
    const std::size_t begin = text.size();
    text += start;
    while (text.size() - begin + piece.size() <= kLongestLine) text += piece;
    text += '\n';
}

// --- cases and their parameters

void CombinationsThatNameEachOther(std::string& text, int size)
{
    text += "#Cas\n";
    for (int i = 1; i <= size; ++i) Add(text, {Number(i), "S 1 G 0"});
    for (int i = 1; i <= size; ++i) Add(text, {Number(size + i), "C 2 ELU 0"});
    text += "#TAB_PARAM_CAS\n";
    for (int i = 1; i <= size; ++i) {
        Add(text,
            {Number(size + i), "2", Number(i), "1.35", Number(2 * size + 1 - i), "1.5 32767 0"});
    }
}

void CombinationsThatDisableEachOther(std::string& text, int size)
{
    text += "#Cas\n";
    for (int i = 1; i <= size; ++i) Add(text, {Number(i), "C 2 ELU 0"});
    text += "#TAB_PARAM_CAS\n";
    for (int i = 1; i <= size; ++i) Add(text, {Number(i), "2", Number(i - 1), "1 32767 0"});
}

void OneCaseNumberManyTimes(std::string& text, int size)
{
    text += "#Cas\n";
    for (int i = 0; i < size; ++i) text += "7 C 2 ELU 0\n";
    text += "7 S 1 G 0\n#TAB_PARAM_CAS\n";
    for (int i = 0; i < size; ++i) text += "7 2 7 1.0 32767 0\n";
    text += "#Elements\n";
    for (int i = 0; i < size; ++i) AddGroupLoad(text, "8", "7", 1, "1");
}

void LongCombinations(std::string& text, int size)
{
    text += "#Cas\n1 C 2 ELU 0\n";
    for (int i = 2; i <= 5000; ++i) Add(text, {Number(i), "S 1 G 0"});
    text += "#TAB_PARAM_CAS\n";
    for (int i = 0; i < size; ++i) {
        text += "1 2 ";
        for (int k = 5000; k > 1; --k) text += Number(k) + " 1 ";
        text += "32767 0\n";
    }
}

void ListsThatAnnounceMuch(std::string& text, int size)
{
    text += "#Cas\n1 E 9 E 0\n#TAB_PARAM_CAS\n";
    for (int i = 0; i < size; ++i) AddLongLine(text, "1 9 0 0 0 0 0 0 0 0 0 N 49000 ", "x");
}

// --- loads that look for something

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
    for (int i = 1; i <= size; ++i) Add(text, {Number(i), "S 1 G 0"});
    text += "#Elements\n";
    for (int i = 1; i <= size; ++i) AddGroupLoad(text, "8", Number(i), 1, "1");
    for (int i = 1; i <= size; ++i) AddGroupLoad(text, "13", Number(i), 1, "1");
}

// --- elements

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
    for (int i = 1; i <= size; ++i) text += "T30*2*1*20*3 1 1 1 1 1 1 1 1 1 1 1 2 F 0 1 2 3 4\n";
    text += "#Elements\n";
    for (int i = 1; i <= size; ++i) AddBar(text, i, Number(i));
}

void PolygonsThatAnnounceMuch(std::string& text, int size)
{
    text += "#Elements\n";
    for (int i = 0; i < size; ++i) AddLongLine(text, "3 1 0 49000 0 ", "x");
}

void LabelsOfOneCharacter(std::string& text, int size)
{
    text += "#Elements\n";
    for (int i = 0; i < size; ++i) AddLongLine(text, "1 1 0 1 24950 0 0 0", " \xE9");
}

void RealsOfManyDigits(std::string& text, int size)
{
    text += "#Elements\n";
    for (int i = 0; i < size; ++i) AddLongLine(text, "1 1 0 1 0 0.", "49999999999999999");
}

// --- lines

void LongLines(std::string& text, int size)
{
    text += "#Elements\n";
    for (int i = 0; i < size; ++i) AddLongLine(text, "", "x");
}

void LongLinesOfBlanks(std::string& text, int size)
{
    text += "#Elements\n";
    for (int i = 0; i < size; ++i) AddLongLine(text, "1", " ");
}

void OneLine(std::string& text, int size)
{
    text += "#Elements\n";
    text.append(static_cast<std::size_t>(size), '1');
}

void EmptyLines(std::string& text, int size)
{
    text += "#Elements\n";
    text.append(static_cast<std::size_t>(size), '\n');
}

void CarriageReturns(std::string& text, int size)
{
    text += "#Elements\n";
    for (int i = 0; i < size; ++i) text += "\r\r\n";
}

void HeaderLines(std::string& text, int size)
{
    for (int i = 0; i < size; ++i) text += "#\n#Cas \n";
}

void OneHeaderManyTimes(std::string& text, int size)
{
    for (int i = 1; i <= size; ++i) {
        text += "#Elements\n";
        AddNode(text, i);
    }
}

void NumberSigns(std::string& text, int size)
{
    text += "#Elements\n";
    for (int i = 0; i < size; ++i) AddLongLine(text, " ", "#");
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
        {"one huge outline, many bars", BarsWithOneHugeOutline, 200000},
        {"as many sections as bars", BarsOfAsManySections, 50000},
        {"polygons that announce more than they hold", PolygonsThatAnnounceMuch, 200},
        {"labels of one character", LabelsOfOneCharacter, 300},
        {"reals of many digits", RealsOfManyDigits, 500},
        {"lines of the greatest length", LongLines, 2000},
        {"long lines of blanks", LongLinesOfBlanks, 500},
        {"one line without an end", OneLine, 50000000},
        {"empty lines", EmptyLines, 5000000},
        {"carriage returns", CarriageReturns, 1000000},
        {"header lines", HeaderLines, 1000000},
        {"one header many times", OneHeaderManyTimes, 300000},
        {"number signs", NumberSigns, 500},
    };
    return families;
}

}  // namespace tamur::bench
