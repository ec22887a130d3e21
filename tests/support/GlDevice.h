#pragma once

#include <GL/gl.h>
#include <cstdlib>
#include <irrlicht.h>
#include <string>
#include <vector>

extern "C" struct _XDisplay* XOpenDisplay(const char* name); // the X headers' macros and the test framework don't mix

namespace skyvane {

/// A window with OpenGL for tests that draw, and its pixels. One at a time.
///
///     GlDevice gl(200, 100);
///     if (!gl)
///         GTEST_SKIP() << "no display";
///     gl.begin(); ... draw ...; gl.end();
///     gl.pixel(10, 20);
class GlDevice {
public:
    GlDevice(unsigned width, unsigned height) : width_(width), height_(height) {
        irr::SIrrlichtCreationParameters parameters;
        parameters.DriverType = irr::video::EDT_OPENGL;
        parameters.WindowSize = irr::core::dimension2d<irr::u32>(width, height);
        parameters.Stencilbuffer = true;
        parameters.LoggingLevel = irr::ELL_ERROR;
        if (std::getenv("DISPLAY") && keepServer())
            device_ = irr::createDeviceEx(parameters);
    }
    ~GlDevice() {
        if (!device_)
            return;
        device_->closeDevice();
        device_->run();
        device_->drop();
    }
    GlDevice(const GlDevice&) = delete;
    GlDevice& operator=(const GlDevice&) = delete;

    explicit operator bool() const { return device_ != nullptr; }
    irr::IrrlichtDevice* device() const { return device_; }
    irr::video::IVideoDriver* driver() const { return device_->getVideoDriver(); }

    void begin(irr::video::SColor background = irr::video::SColor(0xff000000)) {
        device_->run();
        driver()->beginScene(true, true, background);
    }
    /// Ends the frame and reads its pixels.
    void end() {
        driver()->endScene();
        grab();
    }
    /// Reads the pixels of a frame that somebody else has ended.
    void grab() {
        pixels_.resize(3u * width_ * height_);
        glReadBuffer(GL_BACK);
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        glReadPixels(0, 0, static_cast<int>(width_), static_cast<int>(height_), GL_RGB, GL_UNSIGNED_BYTE,
                     pixels_.data());
    }
    /// Opaque, of the frame that ended last; y counts from the top.
    irr::video::SColor pixel(int x, int y) const {
        const unsigned char* p = &pixels_.at(3u * ((height_ - 1u - static_cast<unsigned>(y)) * width_ + x));
        return irr::video::SColor(255, p[0], p[1], p[2]);
    }
    /// Writes that frame as a picture when SKYVANE_TEST_PICTURES names a folder.
    void savePicture(const char* name) const {
        const char* folder = std::getenv("SKYVANE_TEST_PICTURES");
        if (!folder)
            return;
        irr::video::IImage* image =
            driver()->createImage(irr::video::ECF_R8G8B8, irr::core::dimension2d<irr::u32>(width_, height_));
        for (unsigned y = 0; y < height_; ++y)
            for (unsigned x = 0; x < width_; ++x)
                image->setPixel(x, y, pixel(static_cast<int>(x), static_cast<int>(y)));
        driver()->writeImageToFile(image, (std::string(folder) + "/" + name).c_str());
        image->drop();
    }

private:
    /// A server without clients starts anew and refuses connections meanwhile: one stays for the whole process.
    static bool keepServer() {
        static _XDisplay* const connection = XOpenDisplay(nullptr);
        return connection != nullptr;
    }

    irr::IrrlichtDevice* device_ = nullptr;
    unsigned width_;
    unsigned height_;
    std::vector<unsigned char> pixels_;
};

} // namespace skyvane
