// Which load cases may carry self-weight and thermal loads.
#pragma once

#include <cstdint>

#include "import/file/model_file.h"
#include "model/model.h"

namespace tamur {

// A static case carries either self-weight or thermal loads, and all of them are alike. Each is
// called when a load of its kind was appended. A case that breaks the rule is disabled: its
// loads of that kind go, and the first of the other kind too, each with a message.
void CheckSelfWeightCas(Model& model, const ModelFile& file, std::int32_t caseNumber);
void CheckThermalCas(Model& model, const ModelFile& file, std::int32_t caseNumber);

}  // namespace tamur
