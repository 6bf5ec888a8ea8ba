#include "accessors/message_accessor.h"

#include "accessors/accessor_interface.h"
#include "com/guarded.h"
#include "prompts/prompts.h"

namespace tamur {
namespace {

BSTR MakeText(const ImportMessage& message)
{
    const WideString text = FormatPrompt(message.prompt, message.caseNumber);
    BSTR made = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (made == nullptr) platform::ThrowBadAlloc();
    return made;
}

}  // namespace

CTMRMessageAccessor::CTMRMessageAccessor(const Model& model) : messages_(model.messages.Size())
{
    for (std::size_t i = 0; i < messages_.size(); ++i) messages_[i].read = model.messages[i];
}

IUnknown* CTMRMessageAccessor::FindInterface(REFIID riid)
{
    return IsAccessorInterface(riid, IID_ITMRMessageAccessor) ? this : nullptr;
}

HRESULT CTMRMessageAccessor::GetNbMessages(LONG* count) noexcept
{
    *count = static_cast<LONG>(messages_.size());
    return S_OK;
}

HRESULT CTMRMessageAccessor::GetMessageAtRank(LONG rank, BSTR* text) noexcept
{
    if (rank < 0 || static_cast<std::size_t>(rank) >= messages_.size()) return E_FAIL;
    Message& message = messages_[static_cast<std::size_t>(rank)];
    const HRESULT result = com::Guarded([&] {
        if (message.text == nullptr) message.text.reset(MakeText(message.read));
        return S_OK;
    });
    *text = message.text.get();
    return result;
}

}  // namespace tamur
