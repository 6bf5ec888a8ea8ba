// The models that failures are tried on, as files.
#pragma once

#include "models/seeds.h"
#include "support/effort.h"
#include "support/model_text.h"
#include "support/read_everything.h"

namespace tamur::test {

inline std::vector<Seed> SomeSeeds()
{
    const std::vector<Seed> all = Seeds();
    std::vector<Seed> some;
    for (std::size_t i = 0; i < all.size(); i += kEvery) some.push_back(all[i]);
    return some;
}

// What an import gives: its result, and everything the reader then serves.
struct Outcome {
    HRESULT result;
    std::uint64_t digest;

    bool operator==(const Outcome&) const = default;
};

inline Outcome ImportUndisturbed(const std::filesystem::path& path)
{
    const auto reader = NewReader();
    const HRESULT result = ImportFile(*reader, path);
    return {result, ReadEverything(*reader)};
}

}  // namespace tamur::test
