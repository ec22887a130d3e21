#include "core/system/CommandLine.h"

#include <gtest/gtest.h>
#include <vector>

namespace skyvane {
namespace {

CommandLine parse(std::vector<const char*> arguments) {
    arguments.insert(arguments.begin(), "skyvane");
    return parseCommandLine(static_cast<int>(arguments.size()), arguments.data());
}

} // namespace

TEST(CommandLine, TakesNoneTwoOrThreeParameters) {
    EXPECT_EQ(CommandLine::Automatic, parse({}).kind);
    EXPECT_EQ(CommandLine::Usage, parse({"1280"}).kind);
    EXPECT_EQ(CommandLine::Usage, parse({"1280", "720", "1", "2"}).kind);

    const CommandLine sized = parse({"1280", "0720"});
    EXPECT_EQ(CommandLine::Sized, sized.kind);
    EXPECT_EQ(1280u, sized.width);
    EXPECT_EQ(720u, sized.height) << "base 10, not octal";
    EXPECT_FALSE(sized.fullscreen);
    EXPECT_FALSE(parse({"800", "600", "0"}).fullscreen);
    EXPECT_TRUE(parse({"800", "600", "-7"}).fullscreen);
}

TEST(CommandLine, SaysWhichParameterMakesNoSense) {
    for (const char* edge : {"0", "-5", "16385", "abc", "", "12x", "99999999999999999999", "0x10"}) {
        EXPECT_EQ(CommandLine::Bad, parse({edge, "720"}).kind) << edge;
        const CommandLine line = parse({"1280", edge});
        EXPECT_EQ(CommandLine::Bad, line.kind) << edge;
        EXPECT_NE(std::string::npos, line.trouble.find("height")) << line.trouble;
        EXPECT_NE(std::string::npos, line.trouble.find(edge)) << line.trouble;
    }
    EXPECT_EQ(CommandLine::Sized, parse({"16384", "1"}).kind);
    EXPECT_EQ(CommandLine::Bad, parse({"1280", "720", "yes"}).kind);
}

} // namespace skyvane
