#include "dump.h"

#include "json_document.h"
#include "json_record.h"
#include "tables.h"

namespace tamur::tool {
namespace {

Json ModesOf(ITAMURStructureReader& reader)
{
    Record<TMRModes> modes;
    Check(GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor)->GetModes(modes.Put()),
          "GetModes");
    return ToJson(modes.Get());
}

}  // namespace

void WriteDump(ITAMURStructureReader& reader, bool isPretty, std::ostream& out)
{
    JsonDocument document(out, isPretty);
    const auto writeTable = [&document](const auto& table) {
        document.BeginArray(table.Name());
        for (auto record : table) document.Element(ToJson(record.Get()));
        document.EndArray();
    };

    VisitStructure(reader, writeTable);
    TMRStructureData data = StructureData(reader);
    document.Member("StructureGlobalData", ToJson(data));
    VisitLoads(reader, writeTable);
    document.Member("NbCombinaisonsSkipped", SkippedCombinations(reader));
    document.Member("Modes", ModesOf(reader));
    document.BeginArray("Messages");
    VisitMessages(reader, [&document](WideStringView text) { document.Element(ToUtf8(text)); });
    document.EndArray();
    document.End();
}

}  // namespace tamur::tool
