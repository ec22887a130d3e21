#include "core/engine/AssetFiles.h"

#include "core/engine/EngineRef.h"
#include "core/files/Paths.h"
#include "core/ini/UnicodeCfgParser.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <irrlicht.h>

namespace skyvane {
namespace {

TEST(AssetFiles, readsWholeFilesThroughTheEngine) {
    const auto device = EngineRef<irr::IrrlichtDevice>::adopt(irr::createDevice(irr::video::EDT_NULL));
    ASSERT_TRUE(device);
    irr::io::IFileSystem* files = device->getFileSystem();
    const std::string path = testing::TempDir() + "AssetFiles_test.txt";
    std::string table;
    for (int i = 0; i < 3000; ++i)
        table += "\xC2\xB0,b;";
    ASSERT_TRUE(writeStringToFile(path, table));

    std::string content = "old";
    EXPECT_TRUE(readFileWithAssetSupport(files, path, content));
    EXPECT_EQ(content, table);
    UnicodeCfgParser parser(2);
    parser.parseFromUTF8File(files, path.c_str());
    ASSERT_EQ(parser.getResult().size(), 3000u);
    EXPECT_EQ(parser.getResult().back(), (UnicodeCfgParser::Row{L"\u00B0", L"b"}));

    std::remove(path.c_str());
    EXPECT_FALSE(readFileWithAssetSupport(files, path, content));
    EXPECT_EQ(content, "");
    parser.parseFromUTF8File(files, path.c_str());
    EXPECT_TRUE(parser.getResult().empty());
}

} // namespace
} // namespace skyvane
