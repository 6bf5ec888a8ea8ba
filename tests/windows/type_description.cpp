#include "windows/type_description.h"

namespace tamur::test {
namespace {

std::string TakeText(BSTR text)
{
    const std::string taken = Utf8(text);
    SysFreeString(text);
    return taken;
}

ComPtr<ITypeInfo> InfoOf(ITypeLib& library, UINT index)
{
    ComPtr<ITypeInfo> info;
    Check(library.GetTypeInfo(index, info.Put()), "GetTypeInfo");
    return info;
}

}  // namespace

std::string LibraryName(ITypeLib& library)
{
    BSTR name = nullptr;
    Check(library.GetDocumentation(-1, &name, nullptr, nullptr, nullptr), "GetDocumentation");
    return TakeText(name);
}

std::string TextOf(REFGUID guid)
{
    wchar_t text[40] = {};
    StringFromGUID2(guid, text, static_cast<int>(std::size(text)));
    return Utf8(WideStringView(text));
}

TypeDescription::TypeDescription(ITypeLib& library, UINT index)
    : TypeDescription(InfoOf(library, index))
{
}

TypeDescription::TypeDescription(ComPtr<ITypeInfo> info) : info_(std::move(info))
{
    Check(info_->GetTypeAttr(&attributes_), "GetTypeAttr");
}

TypeDescription TypeDescription::Referenced(UINT index) const
{
    HREFTYPE reference = 0;
    Check(info_->GetRefTypeOfImplType(index, &reference), "GetRefTypeOfImplType");
    return TypeDescription(Follow(reference));
}

TypeDescription::Member<VARDESC> TypeDescription::Variable(UINT index) const
{
    VARDESC* got = nullptr;
    Check(info_->GetVarDesc(index, &got), "GetVarDesc");
    const std::shared_ptr<const VARDESC> description(
        got, [this, got](const VARDESC*) { info_->ReleaseVarDesc(got); });
    return {Documentation(false, got->memid), InWords(got->elemdescVar.tdesc), description};
}

TypeDescription::Member<FUNCDESC> TypeDescription::Function(UINT index) const
{
    FUNCDESC* got = nullptr;
    Check(info_->GetFuncDesc(index, &got), "GetFuncDesc");
    const std::shared_ptr<const FUNCDESC> description(
        got, [this, got](const FUNCDESC*) { info_->ReleaseFuncDesc(got); });
    return {Documentation(false, got->memid), InWords(got->elemdescFunc.tdesc), description};
}

std::string TypeDescription::Documentation(bool help, MEMBERID member) const
{
    BSTR text = nullptr;
    Check(info_->GetDocumentation(member, help ? nullptr : &text, help ? &text : nullptr, nullptr,
                                  nullptr),
          "GetDocumentation");
    return TakeText(text);
}

std::string TypeDescription::InWords(const TYPEDESC& type) const
{
    switch (type.vt) {
        case VT_I1: return "char";
        case VT_UI1: return "unsigned char";
        case VT_I4: return "LONG";
        case VT_INT: return "int";
        case VT_R8: return "double";
        case VT_BSTR: return "BSTR";
        case VT_HRESULT: return "HRESULT";
        case VT_PTR: return InWords(*type.lptdesc) + "*";
        case VT_USERDEFINED: return TypeDescription(Follow(type.hreftype)).Name();
        case VT_CARRAY:
            return InWords(type.lpadesc->tdescElem) + "[" +
                   std::to_string(type.lpadesc->rgbounds[0].cElements) + "]";
        default: return "type " + std::to_string(type.vt);
    }
}

ComPtr<ITypeInfo> TypeDescription::Follow(HREFTYPE reference) const
{
    ComPtr<ITypeInfo> info;
    Check(info_->GetRefTypeInfo(reference, info.Put()), "GetRefTypeInfo");
    return info;
}

}  // namespace tamur::test
