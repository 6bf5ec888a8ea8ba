// The accessor over the warnings of the import.
#pragma once

#include <vector>

#include "TAMURReader.h"
#include "model/model.h"

namespace tamur {

// Has a copy of the messages, and owns the texts that it lends: each is made when it is first asked
// for.
class CTMRMessageAccessor : public ITMRMessageAccessor {
 public:
    // Throws std::bad_alloc.
    explicit CTMRMessageAccessor(const Model& model);
    CTMRMessageAccessor(const CTMRMessageAccessor&) = delete;
    CTMRMessageAccessor& operator=(const CTMRMessageAccessor&) = delete;

    IUnknown* FindInterface(REFIID riid);

    HRESULT STDMETHODCALLTYPE GetNbMessages(LONG* count) noexcept override;
    HRESULT STDMETHODCALLTYPE GetMessageAtRank(LONG rank, BSTR* text) noexcept override;

 private:
    struct Freed {
        void operator()(OLECHAR* text) const { SysFreeString(text); }
    };

    struct Message {
        ImportMessage read;
        std::unique_ptr<OLECHAR, Freed> text;
    };

    std::vector<Message> messages_;
};

}  // namespace tamur
