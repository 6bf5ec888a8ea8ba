// Sums of a model, as a table for people.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "host/language.h"
#include "host/sums/sums.h"

namespace tamur::tool {

// `sections` are the names of bar sections, by the places that the sums have.
void WriteSums(const host::Sums& sums, const std::vector<std::string>& sections,
               host::Language language, std::ostream& out);

}  // namespace tamur::tool
