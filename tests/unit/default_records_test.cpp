// The flags that say that a table holds the import's own record, and the mark of H shapes; hosts
// see neither.
#include <gtest/gtest.h>

#include "import/tables/materials.h"
#include "import/tables/section_geometries.h"
#include "support/memory_source.h"

namespace tamur {
namespace {

using Reader = bool (*)(Model&, ModelFile&);

void Read(Reader reader, Model& model, const std::string& content)
{
    test::MemorySource source(content);
    ModelFile file(source);
    ASSERT_TRUE(reader(model, file));
}

TEST(DefaultMaterial, IsFlaggedOnlyByTheImportThatMadeIt)
{
    Model model;
    Read(ReadMaterials, model, "");
    EXPECT_TRUE(model.hasDefaultMaterial);
    Read(ReadMaterials, model, "#Materiaux\n");
    EXPECT_FALSE(model.hasDefaultMaterial) << "the table holds a record already";
    Read(ReadMaterials, model, "#Materiaux\nA 1\n");
    EXPECT_FALSE(model.hasDefaultMaterial);
    EXPECT_EQ(model.barTables->materials.Size(), 2u);
}

TEST(DefaultMaterial, IsFlaggedForASectionWithoutLines)
{
    Model model;
    Read(ReadMaterials, model, "#Materiaux\n\n#Cas\n");
    EXPECT_TRUE(model.hasDefaultMaterial);
}

TEST(DefaultSection, IsFlaggedOnlyByTheImportThatMadeIt)
{
    Model model;
    Read(ReadSectionGeometries, model, "#Geometries\n");
    EXPECT_TRUE(model.hasDefaultSection);
    Read(ReadSectionGeometries, model, "");
    EXPECT_FALSE(model.hasDefaultSection);
    EXPECT_EQ(model.barTables->sections.Size(), 0u);
    Read(ReadSectionGeometries, model, "#Geometries\nA 1\n");
    EXPECT_FALSE(model.hasDefaultSection);
    EXPECT_EQ(model.barTables->sections.Size(), 1u);
}

TEST(HShape, IsMarkedOnlyWhereTheNameWasRewrittenFromAnH)
{
    Model model;
    Read(ReadSectionGeometries, model,
         "#Geometries\nH30*1*0.5*20\nH30*1*20\nI30*1*0.5*20\nHEA200\nH1.5*20*17*0.9\n");
    ASSERT_EQ(model.barTables->sections.Size(), 5u);
    const bool kExpected[] = {true, false, false, false, true};
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(model.barTables->sections[i].isHShape, kExpected[i]) << i;
}

}  // namespace
}  // namespace tamur
