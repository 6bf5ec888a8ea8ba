#include <vector>

#include "import/loads/case_parameters.h"
#include "import/scan/format_scanner.h"

namespace tamur {
namespace {

// The flag of Z is there but counts for nothing: Z is what neither X nor Y is.
std::int32_t ReadDirection(StreamScanner& tokens)
{
    const bool x = ReadFlag(tokens);
    const bool y = ReadFlag(tokens);
    (void)ReadFlag(tokens);
    return x ? 0 : y ? 1 : 2;
}

double* Store(Arena& arena, const std::vector<double>& values)
{
    double* const stored = arena.Array<double>(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) stored[i] = values[i];
    return stored;
}

// Pairs of period and acceleration, up to a pair with "inf" or to the end of the line.
void ReadSpectrum(StreamScanner& tokens, Arena& arena, SeismicCase& seismic)
{
    constexpr std::string_view kEndOfSpectrum = "inf";
    std::vector<double> periods, accelerations;
    for (;;) {
        std::string_view period, acceleration;
        tokens >> period >> acceleration;
        if (period.empty() || period == kEndOfSpectrum || acceleration == kEndOfSpectrum) break;
        periods.push_back(WordToReal(period));
        accelerations.push_back(WordToReal(acceleration));
    }
    seismic.pointCount = static_cast<std::int32_t>(periods.size());
    seismic.periods = Store(arena, periods);
    seismic.accelerations = Store(arena, accelerations);
}

void SkipWords(StreamScanner& tokens, int count)
{
    for (; count > 0; --count) tokens.Skip<std::string_view>();
}

}  // namespace

void ReadSeismicCase(StreamScanner& tokens, std::int32_t caseNumber, Model& model,
                     const ModelFile& file)
{
    SeismicCase seismic;
    seismic.caseNumber = caseNumber;
    seismic.direction = ReadDirection(tokens);
    SkipWords(tokens, 1);
    tokens.Skip<double>() >> seismic.displacementReduction >> seismic.forceReduction;
    seismic.computesReduction = ReadFlag(tokens);
    tokens >> seismic.signChoice >> seismic.mode;
    tokens.Skip<double>();
    ReadSpectrum(tokens, model.arena, seismic);
    constexpr int kWordsBehindSpectrum = 39;
    SkipWords(tokens, kWordsBehindSpectrum);
    tokens >> seismic.workClass >> seismic.ductility >> seismic.soilLayer;
    SkipWords(tokens, 2);
    tokens >> seismic.site;
    seismic.risk = ReadFlag(tokens);
    SkipWords(tokens, 1);
    tokens >> seismic.soilKind >> seismic.topography >> seismic.zone;
    seismic.limitsDampings = ReadFlag(tokens);
    if (tokens.Failed()) file.Report(Finding::kUnreadableColumn);
    model.seismicCases.Append(seismic);
}

}  // namespace tamur
