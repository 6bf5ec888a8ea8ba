#include "dump.h"

#include <string>

#include "json_record.h"
#include "tables.h"

namespace tamur::tool {
namespace {

constexpr int kIndent = 2;

// An object whose members are written as they come, so that a large model needs no tree of it.
class JsonDocument {
 public:
    JsonDocument(std::ostream& out, bool isPretty) : out_(out), isPretty_(isPretty) { out_ << "{"; }

    void End() { out_ << "\n}\n"; }

    void Member(const char* name, const Json& value)
    {
        BeginMember(name);
        Write(value, 1);
    }

    void BeginArray(const char* name)
    {
        BeginMember(name);
        out_ << '[';
        isFirstElement_ = true;
    }
    void Element(const Json& value)
    {
        out_ << (isFirstElement_ ? "\n" : ",\n");
        isFirstElement_ = false;
        if (isPretty_) out_ << std::string(2 * kIndent, ' ');
        Write(value, 2);
    }
    void EndArray()
    {
        if (!isFirstElement_) out_ << '\n' << std::string(isPretty_ ? kIndent : 0, ' ');
        out_ << ']';
    }

 private:
    void BeginMember(const char* name)
    {
        out_ << (isFirstMember_ ? "\n" : ",\n");
        isFirstMember_ = false;
        if (isPretty_) out_ << std::string(kIndent, ' ');
        out_ << Json(name).dump() << (isPretty_ ? ": " : ":");
    }

    void Write(const Json& value, int depth)
    {
        if (!isPretty_) {
            out_ << value.dump();
            return;
        }
        // Line feeds within texts are escaped: those that are there are the layout's.
        const std::string margin(static_cast<std::size_t>(depth * kIndent), ' ');
        for (const char c : value.dump(kIndent)) {
            out_ << c;
            if (c == '\n') out_ << margin;
        }
    }

    std::ostream& out_;
    bool isPretty_;
    bool isFirstMember_ = true;
    bool isFirstElement_ = true;
};

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
