#include "core/engine/Screenshot.h"

#include "core/engine/EngineRef.h"
#include "core/log/Logger.h"

#include <GL/gl.h>
#include <algorithm>
#include <vector>

namespace skyvane {
namespace {

std::vector<unsigned char> readBackBuffer(int width, int height) {
    std::vector<unsigned char> pixels(static_cast<std::size_t>(width) * height * 3);
    GLint buffer = GL_BACK;
    glGetIntegerv(GL_READ_BUFFER, &buffer);
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glPixelStorei(GL_PACK_ROW_LENGTH, 0);
    glReadBuffer(GL_BACK);
    glReadPixels(0, 0, width, height, GL_RGB, GL_UNSIGNED_BYTE, pixels.data());
    glPopClientAttrib();
    glReadBuffer(static_cast<GLenum>(buffer));
    return pixels;
}

void flipRows(std::vector<unsigned char>& pixels, int width, int height) {
    const std::size_t pitch = static_cast<std::size_t>(width) * 3;
    for (int row = 0; row < height / 2; ++row) {
        const auto upper = pixels.begin() + row * pitch;
        std::swap_ranges(upper, upper + pitch, pixels.begin() + (height - 1 - row) * pitch);
    }
}

} // namespace

std::string nextScreenshotName(const std::string& path, irr::io::IFileSystem* fileSystem) {
    const irr::io::path former = fileSystem->getWorkingDirectory();
    if (!fileSystem->changeWorkingDirectoryTo(path.c_str()))
        return {};
    const auto list = EngineRef<irr::io::IFileList>::adopt(fileSystem->createFileList());
    unsigned number = list ? list->getFileCount() : 0;
    fileSystem->changeWorkingDirectoryTo(former);
    std::string name;
    do
        name = path + std::to_string(number++) + ".png";
    while (fileSystem->existFile(name.c_str()));
    return name;
}

bool saveScreenshot(const std::string& path, irr::io::IFileSystem* fileSystem, irr::video::IVideoDriver* driver) {
    const std::string name = nextScreenshotName(path, fileSystem);
    if (name.empty()) {
        logText("No screenshot: the folder " + path + " can't be opened.\n");
        return false;
    }
    const irr::core::dimension2d<irr::u32> size = driver->getScreenSize();
    const int width = static_cast<int>(size.Width);
    const int height = static_cast<int>(size.Height);
    std::vector<unsigned char> pixels = readBackBuffer(width, height);
    flipRows(pixels, width, height);
    const auto image = EngineRef<irr::video::IImage>::adopt(
        driver->createImageFromData(irr::video::ECF_R8G8B8, size, pixels.data(), true, false));
    if (!image || !driver->writeImageToFile(image.get(), name.c_str())) {
        logText("No screenshot: " + name + " can't be written.\n");
        return false;
    }
    logText("Screenshot: " + name + "\n");
    return true;
}

} // namespace skyvane
