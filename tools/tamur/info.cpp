#include "info.h"

#include <algorithm>
#include <iomanip>
#include <limits>

#include "host/findings/plain_text.h"
#include "host/rules/check_model.h"
#include "import.h"
#include "messages.h"
#include "tables.h"
#include <tamur/utf8.h>

namespace tamur::tool {
namespace {

// Grows over every point that a record holds, by the types of its fields.
struct BoundingBox {
    static constexpr double kInfinity = std::numeric_limits<double>::infinity();
    TMR3DPnt low = {kInfinity, kInfinity, kInfinity};
    TMR3DPnt high = {-kInfinity, -kInfinity, -kInfinity};

    [[nodiscard]] bool IsEmpty() const { return low.x > high.x; }

    template <class Value>
    void Field(const char*, Value& value)
    {
        if constexpr (std::is_same_v<Value, TMR3DPnt>) {
            Add(value);
        } else if constexpr (std::is_class_v<Value>) {
            VisitFields(value, *this);
        }
    }
    template <class Value>
    void Array(const char*, Value* values, int count)
    {
        if constexpr (std::is_same_v<Value, TMR3DPnt>) std::for_each_n(values, count, Adder{this});
    }

 private:
    struct Adder {
        BoundingBox* box;
        void operator()(const TMR3DPnt& point) const { box->Add(point); }
    };

    void Add(const TMR3DPnt& point)
    {
        low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
    }
};

const char* NameOf(TMRWorkSpace workSpace)
{
    switch (workSpace) {
        case TMRWS_PLAN: return "plane frame";
        case TMRWS_GRILLE: return "grid";
        default: return "space frame";
    }
}

std::ostream& Entry(std::ostream& out, const char* name)
{
    return out << std::left << std::setw(28) << name << std::right;
}

void WriteSettings(const TMRStructureData& data, std::ostream& out)
{
    Entry(out, "working space") << NameOf(data.espaceDeTravail) << '\n';
    Entry(out, "tolerance") << data.tol3D << '\n';
    Entry(out, "rigid in bending")
        << (data.rigideEnFlexion == TMRStructureRigide ? "yes" : "no") << '\n';
}

void WriteBox(const BoundingBox& box, std::ostream& out)
{
    if (box.IsEmpty()) return;
    Entry(out, "extent in x") << box.low.x << " to " << box.high.x << '\n';
    Entry(out, "extent in y") << box.low.y << " to " << box.high.y << '\n';
    Entry(out, "extent in z") << box.low.z << " to " << box.high.z << '\n';
}

void WriteMessages(ITAMURStructureReader& reader, std::ostream& out)
{
    constexpr std::size_t kShown = 10;
    const MessageList messages = FirstMessages(reader, kShown);
    for (const CountedMessage& message : messages.first) {
        Entry(out, "message") << host::PlainText(message.text);
        if (message.count > 1) out << " (" << message.count << " times)";
        out << '\n';
    }
    if (messages.further != 0) Entry(out, "further messages") << messages.further << '\n';
}

void WriteFindings(const host::Findings& findings, std::ostream& out)
{
    Entry(out, "findings");
    const char* separator = "";
    for (const auto severity :
         {host::Severity::kError, host::Severity::kWarning, host::Severity::kNote}) {
        const std::size_t count = findings.CountOf(severity);
        if (count == 0) continue;
        out << separator << count << ' ' << NameOf(severity, host::Language::kEnglish)
            << (count > 1 ? "s" : "");
        separator = ", ";
    }
    out << (*separator == '\0' ? "none\n" : " (see tamur check)\n");
}

}  // namespace

void WriteInfo(const std::string& componentPath, const Input& input, std::ostream& out)
{
    host::Findings findings(0);
    const Imported imported = Import(componentPath, input, findings);
    ITAMURStructureReader& reader = *imported.reader;
    host::CheckModel(reader, imported.lines, findings);
    // Sums of decimal numbers show as they were meant.
    out << std::setprecision(12);
    Entry(out, "file") << host::PlainText(input.Name(), input.Name().size()) << '\n';
    Entry(out, "version") << host::PlainText(imported.version) << '\n';
    WriteSettings(StructureData(reader), out);

    BoundingBox box;
    VisitStructure(reader, [&box](const auto& table) {
        for (auto record : table) VisitFields(record.Get(), box);
    });
    WriteBox(box, out);

    out << '\n';
    const auto writeCount = [&out](const auto& table) {
        const LONG count = table.Size();
        if (count != 0) Entry(out, table.PlainName()) << count << '\n';
    };
    VisitStructure(reader, writeCount);
    VisitLoads(reader, writeCount);

    const int skipped = SkippedCombinations(reader);
    if (skipped != 0) Entry(out, "skipped combinations") << skipped << '\n';
    WriteMessages(reader, out);
    WriteFindings(findings, out);
}

}  // namespace tamur::tool
