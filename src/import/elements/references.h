// Numbers by which elements refer to materials, sections and releases.
#pragma once

#include <cstddef>
#include <cstdint>

#include "import/file/model_file.h"
#include "model/model.h"

namespace tamur {

// The place from 1 of record `number` of the current import, of which there are `count` after
// the first `earlier`. A number that names none gives the first record, 0 in an empty table.
inline std::uint32_t ResolveReference(std::int32_t number, std::size_t earlier, std::size_t count,
                                      const ModelFile& file, Finding replaced)
{
    if (number < 1 || static_cast<std::size_t>(number) > count) {
        file.Report(replaced);
        if (count == 0) return 0;
        number = 1;
    }
    return static_cast<std::uint32_t>(earlier + static_cast<std::size_t>(number));
}

// With the default material any number means that one.
inline std::uint32_t ResolveMaterial(std::int32_t number, const Model& model, const ModelFile& file)
{
    return ResolveReference(model.hasDefaultMaterial ? 1 : number, 0,
                            model.barTables->materials.Size(), file, Finding::kMaterialReplaced);
}

}  // namespace tamur
