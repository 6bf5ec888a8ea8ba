// What is read besides the settings that hosts see: the version text and the service pack.
#include "import/tables/global_settings.h"

#include <gtest/gtest.h>

#include "support/memory_source.h"

namespace tamur {
namespace {

void Read(Model& model, const std::string& content)
{
    test::MemorySource source(content);
    ModelFile file(source);
    EXPECT_TRUE(ReadVersion(model, file));
}

std::string VersionOf(const std::string& line)
{
    Model model;
    Read(model, "#Version\n" + line);
    return model.version;
}

std::int32_t ServicePackOf(const std::string& line)
{
    Model model;
    Read(model, "#SP\n" + line);
    return model.servicePack;
}

TEST(VersionText, IsTheWholeLineAsWritten)
{
    EXPECT_EQ(VersionOf("10.1\n"), "10.1");
    EXPECT_EQ(VersionOf("10.1"), "10.1");
    EXPECT_EQ(VersionOf(" 10.1\n"), " 10.1");
    EXPECT_EQ(VersionOf("12.2A SP 3 \t\n"), "12.2A SP 3 \t");
    EXPECT_EQ(VersionOf("#SP\n3\n"), "#SP");
}

TEST(VersionText, IsEmptyWithoutALine)
{
    EXPECT_EQ(VersionOf(""), "");
    EXPECT_EQ(VersionOf("\n12.1\n"), "");
    Model model;
    Read(model, "12.1\n");
    EXPECT_EQ(model.version, "");
}

TEST(VersionText, KeepsItsFirst255Characters)
{
    const std::string longest(255, 'v');
    EXPECT_EQ(VersionOf(longest + "\n"), longest);
    EXPECT_EQ(VersionOf(longest + "w\n"), longest);
    EXPECT_EQ(VersionOf(longest + std::string(60000, 'w') + "\n"), longest);
}

TEST(ServicePack, IsTheIntegerThatTheLineStartsWith)
{
    EXPECT_EQ(ServicePackOf("3\n"), 3);
    EXPECT_EQ(ServicePackOf("3"), 3);
    EXPECT_EQ(ServicePackOf("3abc\n"), 3);
    EXPECT_EQ(ServicePackOf(" \t3\n"), 3);
    EXPECT_EQ(ServicePackOf("-2\n"), -2);
    EXPECT_EQ(ServicePackOf("+2\n"), 2);
    EXPECT_EQ(ServicePackOf("3.9\n"), 3);
}

TEST(ServicePack, IsZeroForALineThatIsNoNumber)
{
    EXPECT_EQ(ServicePackOf("abc\n"), 0);
    EXPECT_EQ(ServicePackOf(" \n"), 0);
    EXPECT_EQ(ServicePackOf("#Version\n"), 0);
}

TEST(ServicePack, IsMinusOneWithoutALine)
{
    Model model;
    Read(model, "#Version\n12.1\n");
    EXPECT_EQ(model.servicePack, -1);
    EXPECT_EQ(ServicePackOf(""), -1);
    EXPECT_EQ(ServicePackOf("\n3\n"), -1);
}

TEST(ServicePack, AndVersionStartAgainWithEveryFile)
{
    Model model;
    Read(model, "#Version\n12.1\n#SP\n3\n");
    ASSERT_EQ(model.version, "12.1");
    ASSERT_EQ(model.servicePack, 3);
    Read(model, "#Espace\n1\n");
    EXPECT_EQ(model.version, "");
    EXPECT_EQ(model.servicePack, -1);
}

}  // namespace
}  // namespace tamur
