// Types of a type library, in words.
#pragma once

#include <memory>
#include <string>

#include "support/component_under_test.h"
#include "windows/paths.h"

namespace tamur::test {

inline ComPtr<ITypeLib> LoadTypeLibrary(const std::wstring& path)
{
    ComPtr<ITypeLib> library;
    Check(LoadTypeLibEx(path.c_str(), REGKIND_NONE, library.Put()), "LoadTypeLibEx");
    return library;
}

std::string LibraryName(ITypeLib& library);
std::string TextOf(REFGUID guid);

class TypeDescription {
 public:
    TypeDescription(ITypeLib& library, UINT index);
    explicit TypeDescription(ComPtr<ITypeInfo> info);
    TypeDescription(const TypeDescription&) = delete;
    TypeDescription& operator=(const TypeDescription&) = delete;
    ~TypeDescription() { info_->ReleaseTypeAttr(attributes_); }

    const TYPEATTR* operator->() const { return attributes_; }
    [[nodiscard]] std::string Name() const { return Documentation(false, MEMBERID_NIL); }
    [[nodiscard]] std::string Help() const { return Documentation(true, MEMBERID_NIL); }
    [[nodiscard]] std::string Identifier() const { return TextOf(attributes_->guid); }

    // The base or implemented interface of that index.
    [[nodiscard]] TypeDescription Referenced(UINT index) const;

    // A field, constant or method. Must not outlive the type.
    template <class Description>
    struct Member {
        std::string name;
        std::string type;  // as the contract writes it; of a method its result
        std::shared_ptr<const Description> description;
    };

    [[nodiscard]] Member<VARDESC> Variable(UINT index) const;
    [[nodiscard]] Member<FUNCDESC> Function(UINT index) const;

 private:
    [[nodiscard]] std::string Documentation(bool help, MEMBERID member) const;
    [[nodiscard]] std::string InWords(const TYPEDESC& type) const;
    [[nodiscard]] ComPtr<ITypeInfo> Follow(HREFTYPE reference) const;

    ComPtr<ITypeInfo> info_;
    TYPEATTR* attributes_ = nullptr;
};

}  // namespace tamur::test
