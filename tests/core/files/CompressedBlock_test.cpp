#include "core/files/CompressedBlock.h"

#include <gtest/gtest.h>

#include <cstring>
#include <random>
#include <sstream>
#include <vector>

namespace skyvane {
namespace {

std::string blockOf(const std::string& bytes) {
    std::ostringstream out;
    EXPECT_EQ(
        compressBufferToFile(out, reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<int>(bytes.size())),
        0);
    return out.str();
}

std::string withClaim(std::string block, int32_t length) {
    std::memcpy(&block[0], &length, sizeof length);
    return block;
}

bool isRefused(const std::string& block) {
    std::istringstream in(block);
    int length = 0;
    return compressedFileToBuffer(in, length) == nullptr;
}

TEST(CompressedBlock, hasItsGoldenBytes) {
    const unsigned char golden[] = {3,    0,    0,    0,                                               // length
                                    0x78, 0xDA, 0x4B, 0x4C, 0x4A, 0x06, 0x00, 0x02, 0x4D, 0x01, 0x27}; // "abc"
    EXPECT_EQ(blockOf("abc"), std::string(reinterpret_cast<const char*>(golden), sizeof golden));
}

TEST(CompressedBlock, comesBackAndLeavesTheInputBehindIt) {
    std::mt19937 random(7);
    std::string noise(700000, '\0');
    for (char& byte : noise)
        byte = static_cast<char>(random());
    const std::string zeros(3000000, '\0');
    std::istringstream in(blockOf(noise) + blockOf(zeros) + "next");
    for (const std::string& expected : {noise, zeros}) {
        int length = 0;
        const auto buffer = compressedFileToBuffer(in, length);
        ASSERT_NE(buffer, nullptr);
        EXPECT_TRUE(expected == std::string(reinterpret_cast<char*>(buffer.get()), static_cast<size_t>(length)));
    }
    std::string rest;
    in >> rest;
    EXPECT_EQ(rest, "next");
}

TEST(CompressedBlock, readsNothingBehindALengthOfZero) {
    std::istringstream in(withClaim(blockOf("abc"), 0));
    int length = 5;
    EXPECT_EQ(compressedFileToBuffer(in, length), nullptr);
    EXPECT_EQ(in.tellg(), 4);
}

TEST(CompressedBlock, refusesWhatIsHostile) {
    const std::string block = blockOf(std::string(100000, 'a'));
    EXPECT_FALSE(isRefused(block));
    EXPECT_TRUE(isRefused(""));
    EXPECT_TRUE(isRefused(withClaim(block, -1)));
    EXPECT_TRUE(isRefused(withClaim(block, 99999))) << "gives more than it claims";
    EXPECT_TRUE(isRefused(withClaim(block, 100001))) << "gives less";
    EXPECT_TRUE(isRefused(withClaim(block, 0x7FFFFFFF)));
    EXPECT_TRUE(isRefused(withClaim(block, longestCompressedBlock))) << "can't be in so few bytes";
    for (size_t length = 0; length < block.size(); ++length)
        EXPECT_TRUE(isRefused(block.substr(0, length))) << length;
    std::string broken = block;
    broken[6] = static_cast<char>(broken[6] ^ 0x55);
    EXPECT_TRUE(isRefused(broken));
}

TEST(CompressedBlock, staysInsideTheCallersBuffer) {
    const std::string block = blockOf(std::string(1000, 'a'));
    std::vector<unsigned char> buffer(1001, 'z');
    std::istringstream in(block + block + withClaim(block, 999));
    int length = 1000;
    EXPECT_EQ(compressedFileToBuffer(in, length, buffer.data()), buffer.data());
    EXPECT_EQ(length, 1000);
    EXPECT_EQ(buffer[999], 'a');
    in.seekg(static_cast<std::streamoff>(block.size()));
    buffer.assign(1001, 'z');
    length = 999;
    EXPECT_EQ(compressedFileToBuffer(in, length, buffer.data()), nullptr);
    EXPECT_EQ(buffer[0], 'z');
    in.clear();
    in.seekg(static_cast<std::streamoff>(2 * block.size()));
    length = 999;
    EXPECT_EQ(compressedFileToBuffer(in, length, buffer.data()), nullptr) << "bursts its claim";
    EXPECT_EQ(buffer[999], 'z');
}

} // namespace
} // namespace skyvane
