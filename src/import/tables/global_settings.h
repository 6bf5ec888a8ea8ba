// The one-value sections: version, service pack, working space, tolerance, rigidity.
#pragma once

#include "import/file/model_file.h"
#include "model/model.h"

namespace tamur {

// Reads "#Version" and "#SP". Always true.
bool ReadVersion(Model& model, ModelFile& file);

// Reads "#Espace", "#Tolerance" and "#Rigide". False, with the settings as they were, when one
// of the headers is missing; a missing or unreadable value is 0.
bool ReadGlobalSettings(Model& model, ModelFile& file);

}  // namespace tamur
