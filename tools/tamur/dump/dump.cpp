#include "dump.h"

#include "../tables.h"
#include "host/json/json_writer.h"
#include "pretty_json.h"
#include "record_json.h"

namespace tamur::tool {
namespace {

using host::JsonWriter;

Record<TMRModes> ModesOf(ITAMURStructureReader& reader)
{
    Record<TMRModes> modes;
    Check(GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor)->GetModes(modes.Put()),
          "GetModes");
    return modes;
}

class Dump {
 public:
    Dump(const DumpedModel& model, const Members& wanted, std::ostream& out)
        : model_(model), wanted_(wanted), out_(out), records_(model.reader, out_)
    {
    }

    void Write()
    {
        out_.Begin('{');
        WriteOrigin();
        const auto writeTable = [this](const auto& table) { WriteTable(table); };
        VisitStructure(model_.reader, writeTable);
        if (Starts(Members::kSettings)) {
            TMRStructureData data = StructureData(model_.reader);
            records_.Write(data);
        }
        VisitLoads(model_.reader, writeTable);
        if (Starts(Members::kSkipped)) out_.Number(SkippedCombinations(model_.reader));
        if (Starts(Members::kModes)) records_.Write(ModesOf(model_.reader).Get());
        if (Starts(Members::kMessages)) WriteMessages();
        out_.EndLine();
        out_.End('}');
        out_.EndLine();
        out_.Flush();
    }

 private:
    // Whether the member is wanted; its value comes next.
    bool Starts(const char* name)
    {
        if (!wanted_.Has(name)) return false;
        out_.NextLine();
        out_.Key(name);
        return true;
    }

    // Always there: which model it is.
    void WriteOrigin()
    {
        out_.NextLine();
        out_.Key("File");
        out_.Text(FromUtf8(model_.file));  // what is no UTF-8 is replaced
        out_.NextLine();
        out_.Key("Version");
        out_.Text(model_.version);
        out_.NextLine();
        out_.Key("ServicePack");
        if (model_.servicePack < 0) return out_.Null();
        out_.Number(model_.servicePack);
    }

    template <class Table>
    void WriteTable(const Table& table)
    {
        if (!Starts(table.Name())) return;
        out_.Begin('[');
        const LONG size = table.Size();
        for (LONG rank = 0; rank < size; ++rank) {
            auto record = table.At(rank);
            out_.NextLine();
            records_.Write(record.Get());
        }
        if (size != 0) out_.EndLine();
        out_.End(']');
    }

    void WriteMessages()
    {
        bool isEmpty = true;
        out_.Begin('[');
        VisitMessages(model_.reader, [&](WideStringView text) {
            isEmpty = false;
            out_.NextLine();
            out_.Text(text);
        });
        if (!isEmpty) out_.EndLine();
        out_.End(']');
    }

    const DumpedModel& model_;
    const Members& wanted_;
    JsonWriter out_;
    RecordWriter records_;
};

}  // namespace

void WriteDump(const DumpedModel& model, const Members& wanted, bool isPretty, std::ostream& out)
{
    if (!isPretty) return Dump(model, wanted, out).Write();
    PrettyJson layout(out);
    std::ostream laidOut(&layout);
    laidOut.exceptions(out.exceptions());
    Dump(model, wanted, laidOut).Write();
}

}  // namespace tamur::tool
