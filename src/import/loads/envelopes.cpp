#include "import/loads/case_parameters.h"
#include "import/file/read_list.h"

namespace tamur {
namespace {

void ReadLetters(StreamScanner& tokens, EnvelopeLetters& letters)
{
    tokens >> letters.n >> letters.a >> letters.f >> letters.s;
}

}  // namespace

void ReadEnvelope(StreamScanner& tokens, std::int32_t caseNumber, Model& model,
                  const ModelFile& file)
{
    Envelope envelope;
    envelope.caseNumber = caseNumber;
    tokens >> envelope.quantity;
    ReadLetters(tokens, envelope.envelopes);
    ReadLetters(tokens, envelope.values);
    envelope.keepsCase = ReadFlag(tokens);
    std::int32_t count = 0;
    tokens >> count;
    envelope.cases = ReadList<std::int32_t>(tokens, ListCount(count, file), model.arena);
    if (tokens.Failed()) file.Report(Finding::kUnreadableColumn);
    model.envelopes.Append(envelope);
}

}  // namespace tamur
