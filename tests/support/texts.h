// One text field of all records of a table, as UTF-8.
#pragma once

#include <string>
#include <vector>

#include "support/component_under_test.h"

namespace tamur::test {

template <class Records, class PublicRecord>
std::vector<std::string> Texts(const Records& records, BSTR PublicRecord::*field)
{
    std::vector<std::string> texts;
    for (const auto& record : records) texts.push_back(Utf8(record.Get().*field));
    return texts;
}

inline std::vector<std::string> MaterialNames(ITAMURStructureReader& reader)
{
    return Texts(Materials(reader), &TMRMaterial::MaterialName);
}
inline std::vector<std::string> SectionNames(ITAMURStructureReader& reader)
{
    return Texts(Sections(reader), &TMRSectionGeometry::SectionLib);
}
inline std::vector<std::string> ReleaseNames(ITAMURStructureReader& reader)
{
    return Texts(Attaches(reader), &TMRAttache::AttacheLib);
}
inline std::vector<std::string> GroupTitles(ITAMURStructureReader& reader)
{
    return Texts(Groupes(reader), &TMRGroupe::Titre);
}

// Lists of names, for expectations.
using Names = std::vector<std::string>;

}  // namespace tamur::test
