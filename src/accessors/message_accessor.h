// The accessor over the warnings of the import.
#pragma once

#include <vector>

#include "TAMURReader.h"
#include "model/model.h"

namespace tamur {

// Owns the texts that it lends.
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

    std::vector<std::unique_ptr<OLECHAR, Freed>> texts_;
};

}  // namespace tamur
