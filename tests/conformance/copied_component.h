// The component loaded and unloaded by a test.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/component_under_test.h"
#include "support/loaded_library.h"

namespace tamur::test {

// A copy of the component in a place of its own: it is loaded for these tests alone.
class CopiedComponent : public testing::Test {
 protected:
    CopiedComponent()
    {
        std::filesystem::create_directory(folder_);
        std::filesystem::copy_file(LoadedPath(), path_);
    }
    ~CopiedComponent() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    void LoadUseAndUnload() const
    {
        const Component component(path_.string());
        const auto reader = component.CreateReader();
        const auto accessor = GetAccessor(*reader, &ITAMURStructureReader::GetNodeAccessor);
        EXPECT_FALSE(component.CanUnloadNow());
    }

    [[nodiscard]] bool IsLoaded() const { return test::IsLoaded(path_); }

 private:
    static std::filesystem::path LoadedPath()
    {
        return LibraryOf(TheComponent().Function<void*>("DllGetClassObject"));
    }

    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() /
        ("tamur-copy-" + std::to_string(testing::UnitTest::GetInstance()->random_seed()) + "-" +
         std::to_string(reinterpret_cast<std::uintptr_t>(this)));
    std::filesystem::path path_ = folder_ / LoadedPath().filename();
};

}  // namespace tamur::test
