#include "import/loads/case_parameters.h"

namespace tamur {
namespace {

void ReadLetters(StreamScanner& tokens, EnvelopeLetters& letters)
{
    tokens >> letters.n >> letters.a >> letters.f >> letters.s;
}

}  // namespace

void ReadEnvelope(StreamScanner& tokens, std::int32_t caseNumber, const Line& line, Model& model,
                  const ModelFile& file)
{
    Envelope envelope;
    envelope.caseNumber = caseNumber;
    tokens >> envelope.quantity;
    ReadLetters(tokens, envelope.envelopes);
    ReadLetters(tokens, envelope.values);
    envelope.keepsCase = ReadFlag(tokens);
    tokens >> envelope.caseCount;
    envelope.caseCount = ListCount(envelope.caseCount, line, file);
    const std::size_t count = static_cast<std::size_t>(envelope.caseCount);
    std::int32_t* const cases = model.arena.Array<std::int32_t>(count);
    for (std::size_t i = 0; i < count; ++i) tokens >> cases[i];
    envelope.cases = cases;
    if (tokens.Failed()) file.Report(Finding::kUnreadableColumn);
    model.envelopes.Append(envelope);
}

}  // namespace tamur
