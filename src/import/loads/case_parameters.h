// The lines of "#TAB_PARAM_CAS". Each reads what follows the case number and the kind.
#pragma once

#include <cstdint>

#include "import/file/model_file.h"
#include "import/scan/stream_scanner.h"
#include "model/model.h"

namespace tamur {

// Kind 2. Needs its own case and every combined case in the case table as it is then: one that is
// missing or disabled disables this case too, and so the combinations further down that use it.
void ReadCombination(StreamScanner& tokens, std::int32_t caseNumber, Model& model,
                     const ModelFile& file);

// Kind 3. Overwrites the model's one record as far as the line goes. Once a line has made a damping
// array, the number of modes of every later line ends as 0.
void ReadModes(StreamScanner& tokens, Model& model, const ModelFile& file);

// Kind 4.
void ReadSeismicCase(StreamScanner& tokens, std::int32_t caseNumber, Model& model,
                     const ModelFile& file);

// Kind 9.
void ReadEnvelope(StreamScanner& tokens, std::int32_t caseNumber, Model& model,
                  const ModelFile& file);

// Flags are one character, a capital O for yes.
inline bool ReadFlag(StreamScanner& tokens)
{
    char flag = '\0';
    tokens >> flag;
    return flag == 'O';
}

}  // namespace tamur
