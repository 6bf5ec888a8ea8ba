// What following an import costs: the component linked in, with and without an observer.
#include <tamur/utf8.h>

#include "com/object.h"
#include "context.h"
#include "generator.h"
#include "host/file/imported_file.h"
#include "reader/observed_reader.h"
#include "reader/structure_reader.h"

namespace tamur::bench {
namespace {

class Silent final : public ImportObserver {
 public:
    void OnText(std::string_view) override {}
    void OnSection(SectionHeader, std::uint64_t) override {}
    void OnLine(std::string_view, bool) override {}
    void OnFinding(tamur::Finding) override {}
    void OnRefusal(Refusal) override {}
};

ComPtr<ITAMURStructureReader> NewPlainReader()
{
    ComPtr<ITAMURStructureReader> reader;
    auto* const created = new com::CComObject<CTAMURStructureReader>;
    created->AddRef();
    *reader.Put() = created;
    return reader;
}

double TimeImportBy(ITAMURStructureReader& reader, const std::string& path)
{
    const String name(FromUtf8(path).c_str());
    return Timed([&] { Check(reader.Import(name.Get()), "Import"); });
}

double TimeCheck(const std::string& path)
{
    constexpr std::size_t kShown = 20;
    host::Findings findings(kShown);
    host::ImportedFile imported;  // goes after the time is taken, as the readers do
    return Timed([&] { imported = host::ImportFile(path, findings); });
}

}  // namespace

void MeasureObserver(Context& context)
{
    const ModelFile file({.elements = context.Large()});
    const std::string path = file.Path().string();
    Silent silent;
    const auto samples =
        context.Measure({[&] { return TimeImportBy(*NewPlainReader(), path); },
                         [&] { return TimeImportBy(*NewObservedReader(silent), path); },
                         [&] { return TimeCheck(path); }});
    context.report.Add({"import with an observer that does nothing / without one",
                        Quotients(samples[1], samples[0]), 1.1, 1.03});
    context.report.Add({"check of the file / import", Quotients(samples[2], samples[0])});
}

}  // namespace tamur::bench
