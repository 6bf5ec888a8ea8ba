#include "accessors/message_accessor.h"

#include "accessors/accessor_interface.h"
#include "prompts/prompts.h"

namespace tamur {

CTMRMessageAccessor::CTMRMessageAccessor(const Model& model)
{
    const Table<ImportMessage>& messages = model.messages;
    texts_.reserve(messages.Size());
    for (std::size_t i = 0; i < messages.Size(); ++i) {
        const WideString text = FormatPrompt(messages[i].prompt, messages[i].caseNumber);
        texts_.emplace_back(SysAllocStringLen(text.data(), static_cast<UINT>(text.size())));
        if (texts_.back() == nullptr) platform::ThrowBadAlloc();
    }
}

IUnknown* CTMRMessageAccessor::FindInterface(REFIID riid)
{
    return IsAccessorInterface(riid, IID_ITMRMessageAccessor) ? this : nullptr;
}

HRESULT CTMRMessageAccessor::GetNbMessages(LONG* count) noexcept
{
    *count = static_cast<LONG>(texts_.size());
    return S_OK;
}

HRESULT CTMRMessageAccessor::GetMessageAtRank(LONG rank, BSTR* text) noexcept
{
    if (rank < 0 || static_cast<std::size_t>(rank) >= texts_.size()) return E_FAIL;
    *text = texts_[static_cast<std::size_t>(rank)].get();
    return S_OK;
}

}  // namespace tamur
