// The data of a view: columns, tables and the page around them.
#include <gmock/gmock.h>
#include <zlib.h>

#include <bit>
#include <cmath>
#include <fstream>
#include <limits>
#include <sstream>

#include "host/view/compressed.h"
#include "host/view/data_block.h"

namespace tamur::host::view {
namespace {

struct ColumnVector {
    std::string kind, values, description, bytes;
};

std::vector<ColumnVector> ReadColumnVectors()
{
    std::ifstream file(TAMUR_VECTORS "/columns.txt");
    std::vector<ColumnVector> vectors;
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line.front() == '#') continue;
        std::istringstream parts(line);
        ColumnVector vector;
        for (std::string* part :
             {&vector.kind, &vector.values, &vector.description, &vector.bytes}) {
            std::getline(parts, *part, '|');
        }
        vectors.push_back(std::move(vector));
    }
    return vectors;
}

double RealOf(const std::string& word)
{
    if (word == "nan") return std::numeric_limits<double>::quiet_NaN();
    if (word == "inf") return std::numeric_limits<double>::infinity();
    if (word == "-inf") return -std::numeric_limits<double>::infinity();
    return std::stod(word);
}

std::string HexOf(const std::string& bytes)
{
    constexpr const char* kDigits = "0123456789abcdef";
    std::string hex;
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        hex += kDigits[value >> 4];
        hex += kDigits[value & 15];
    }
    return hex;
}

TEST(ViewColumns, AreWrittenAsTheSharedTableSays)
{
    int count = 0;
    for (const ColumnVector& vector : ReadColumnVectors()) {
        DataBlock block;
        std::vector<std::int32_t> ints;
        std::vector<double> reals;
        std::istringstream words(vector.values);
        for (std::string word; words >> word;) {
            if (vector.kind == "ints") {
                ints.push_back(static_cast<std::int32_t>(std::stol(word)));
            } else {
                reals.push_back(RealOf(word));
            }
        }
        const std::string description =
            vector.kind == "ints" ? block.AddInts(ints) : block.AddReals(reals);
        EXPECT_EQ(description, vector.description) << vector.values;
        EXPECT_EQ(HexOf(block.Bytes()), vector.bytes) << vector.values;
        ++count;
    }
    EXPECT_GE(count, 15);
}

TEST(ViewBytes, AreInflatedToWhatTheyWere)
{
    std::string bytes;
    for (int i = 0; i < 1000000; ++i) bytes += static_cast<char>(i * i % 251);
    for (const std::string& text : {std::string(), std::string("a"), bytes}) {
        const std::string deflated = Deflated(text);
        std::string inflated(text.size() + 1, '\0');
        uLongf size = static_cast<uLongf>(inflated.size());
        ASSERT_EQ(uncompress(reinterpret_cast<Bytef*>(inflated.data()), &size,
                             reinterpret_cast<const Bytef*>(deflated.data()),
                             static_cast<uLong>(deflated.size())),
                  Z_OK);
        inflated.resize(size);
        EXPECT_TRUE(inflated == text);
    }
}

TEST(ViewBytes, AreTextInBase64)
{
    const auto base64 = [](std::string_view bytes) {
        std::string out;
        AppendBase64(out, bytes);
        return out;
    };
    EXPECT_EQ(base64(""), "");
    EXPECT_EQ(base64("f"), "Zg==");
    EXPECT_EQ(base64("fo"), "Zm8=");
    EXPECT_EQ(base64("foo"), "Zm9v");
    EXPECT_EQ(base64("foob"), "Zm9vYg==");
    EXPECT_EQ(base64(std::string_view("\xFF\x00\xFE", 3)), "/wD+");
}

}  // namespace
}  // namespace tamur::host::view
