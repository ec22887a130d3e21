#include "core/engine/MipmappedTexture.h"

#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace skyvane {
namespace {

class PictureFiles : public testing::Test {
protected:
    ~PictureFiles() override { std::remove(path.c_str()); }

    EngineRef<irr::video::IImage> read(const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
        return readArgbImage(driver, path);
    }
    /// A picture of 3 by 2 pixels as the engine writes it by that ending.
    std::string written(const char* ending) {
        const std::string file = path + ending;
        const auto image = EngineRef<irr::video::IImage>::adopt(
            driver->createImage(irr::video::ECF_A8R8G8B8, irr::core::dimension2du(3, 2)));
        image->fill(irr::video::SColor(0xff102030));
        EXPECT_TRUE(driver->writeImageToFile(image.get(), file.c_str()));
        std::ifstream in(file, std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(in), {}};
        std::remove(file.c_str());
        return bytes;
    }

    const std::string path = "/tmp/skyvane-picture-" + std::to_string(::getpid()) + ".png";
    EngineRef<irr::IrrlichtDevice> device =
        EngineRef<irr::IrrlichtDevice>::adopt(irr::createDevice(irr::video::EDT_NULL));
    irr::video::IVideoDriver* driver = device->getVideoDriver();
};

TEST_F(PictureFiles, thatArePngAreRead) {
    const auto image = read(written(".png"));
    ASSERT_TRUE(image.get());
    EXPECT_EQ(image->getDimension(), irr::core::dimension2du(3, 2));
    EXPECT_EQ(image->getPixel(2, 1).color, 0xff102030u);
}

TEST_F(PictureFiles, ofAnotherKindOrSizeAreRefusedByWhateverNameTheyCome) {
    EXPECT_FALSE(read(written(".bmp")).get()) << "the engine would take it by its content";
    std::string png = written(".png");
    png[18] = 0x7f; // a width of 32515 pixels
    EXPECT_FALSE(read(png).get());
    EXPECT_FALSE(read(png.substr(0, 20)).get());
    EXPECT_FALSE(read("").get());
}

} // namespace
} // namespace skyvane
