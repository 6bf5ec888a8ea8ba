// Import of a path that the system opens, and of one that it does not.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "support/cannot_open.h"
#include "support/component_under_test.h"

namespace tamur::test {

inline WideString WideOf(const std::filesystem::path& path)
{
    return path.string<OLECHAR>();
}

inline std::string Utf8Of(const std::filesystem::path& path)
{
    return Utf8(WideStringView(WideOf(path)));
}

inline HRESULT Import(const WideString& path)
{
    const BSTR name = SysAllocStringLen(path.data(), static_cast<UINT>(path.size()));
    const HRESULT result = NewReader()->Import(name);
    SysFreeString(name);
    return result;
}

inline void ExpectImported(const WideString& path)
{
    const CaughtMessageBoxes boxes;
    EXPECT_EQ(Import(path), S_OK) << Utf8(WideStringView(path));
    EXPECT_TRUE(boxes.Boxes().empty());
}

inline void ExpectRefused(const WideString& path, const std::string& shown)
{
    SCOPED_TRACE(shown);
    const CaughtMessageBoxes boxes;
    EXPECT_EQ(Import(path), E_FAIL);
    ExpectCannotOpen(boxes, shown);
}

inline void ExpectRefused(const std::filesystem::path& path)
{
    ExpectRefused(WideOf(path), Utf8Of(path));
}

inline std::string Replaced(std::string text, std::string_view what, std::string_view by)
{
    return text.replace(text.find(what), what.size(), by);
}

}  // namespace tamur::test
