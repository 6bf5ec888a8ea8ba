#include "support/read_everything.h"

#include <cstring>
#include <type_traits>
#include <vector>

namespace tamur::test {
namespace {

class Digest {
 public:
    template <class Value>
    void Field(const char*, Value& value)
    {
        if constexpr (std::is_same_v<Value, BSTR>) {
            AddText(value);
        } else if constexpr (std::is_class_v<Value>) {
            VisitFields(value, *this);
        } else {
            AddBytes(&value, sizeof value);
        }
    }
    template <class Value>
    void Array(const char*, Value* values, int count)
    {
        for (int i = 0; i < count; ++i) Field(nullptr, values[i]);
    }

    template <class Records>
    void AddAll(const Records& records)
    {
        LONG count = records.Size();
        Field(nullptr, count);
        for (auto record : records) VisitFields(record.Get(), *this);
    }

    [[nodiscard]] std::uint64_t Value() const { return value_; }

 private:
    void AddText(BSTR text)
    {
        const UINT length = SysStringByteLen(text);
        AddBytes(&length, sizeof length);
        if (text == nullptr) return;
        AddBytes(text, length + sizeof(OLECHAR));  // with its NUL
        Check(text[length / sizeof(OLECHAR)] == 0 ? S_OK : E_FAIL, "a string's NUL");
    }
    void AddBytes(const void* bytes, std::size_t size)
    {
        for (std::size_t i = 0; i < size; ++i) {
            value_ = (value_ ^ static_cast<const unsigned char*>(bytes)[i]) * 0x100000001B3;
        }
    }

    std::uint64_t value_ = 0xCBF29CE484222325;
};

void AddNodesInBulk(Digest& digest, ITAMURStructureReader& reader)
{
    const auto nodes = Nodes(reader);
    std::vector<TMRNode> all(static_cast<std::size_t>(nodes.Size()) + 1);
    Check(nodes.TheAccessor().GetNodes(all.data()), "GetNodes");
    all.pop_back();
    for (TMRNode& node : all) {
        VisitFields(node, digest);
        VisitFields(node, FieldFreer());
    }
}

void AddTheRest(Digest& digest, ITAMURStructureReader& reader)
{
    const auto loads = GetAccessor(reader, &ITAMURStructureReader::GetChargeAccessor);
    Record<TMRModes> modes;
    Check(loads->GetModes(modes.Put()), "GetModes");
    VisitFields(modes.Get(), digest);
    int skipped = 0;
    Check(loads->GetNbCombinaisonsSkipped(&skipped), "GetNbCombinaisonsSkipped");
    digest.Field(nullptr, skipped);

    const auto messages = GetAccessor(reader, &ITAMURStructureReader::GetMessageAccessor);
    LONG count = 0;
    Check(messages->GetNbMessages(&count), "GetNbMessages");
    for (LONG rank = 0; rank < count; ++rank) {
        BSTR lent = nullptr;
        Check(messages->GetMessageAtRank(rank, &lent), "GetMessageAtRank");
        digest.Field(nullptr, lent);
    }

    TMRStructureData settings;
    Check(reader.GetStructureGlobalData(&settings), "GetStructureGlobalData");
    VisitFields(settings, digest);
}

}  // namespace

std::uint64_t ReadEverything(ITAMURStructureReader& reader)
{
    Digest digest;
    ForEachTable(reader, [&](const auto& table) { digest.AddAll(table); });
    AddNodesInBulk(digest, reader);
    AddTheRest(digest, reader);
    return digest.Value();
}

}  // namespace tamur::test
