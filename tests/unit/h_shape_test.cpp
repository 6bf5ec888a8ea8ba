// Hosts do not see which sections were written as H shapes; the model knows it.
#include <gtest/gtest.h>

#include "import/tables/section_geometries.h"
#include "support/memory_source.h"

namespace tamur {
namespace {

std::vector<bool> HShapesOf(const std::string& content)
{
    test::MemorySource source(content);
    ModelFile file(source);
    Model model;
    EXPECT_TRUE(ReadSectionGeometries(model, file));
    std::vector<bool> shapes;
    for (std::size_t i = 0; i < model.barTables->sections.Size(); ++i) {
        shapes.push_back(model.barTables->sections[i].isHShape);
    }
    return shapes;
}

TEST(HShapes, AreTheNamesWrittenFromAnHForm)
{
    EXPECT_EQ(HShapesOf("#Geometries\nH30*1*0.5*20 1\nI30*1*0.5*20 1\nT30*2*1*20 1\nH30 1\nR 1\n"),
              (std::vector<bool>{true, false, false, false, false}));
}

TEST(HShapes, AreNotTheDefaultSection)
{
    EXPECT_EQ(HShapesOf(""), std::vector<bool>{false});
}

}  // namespace
}  // namespace tamur
