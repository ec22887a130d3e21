#include "core/Context.h"
#include "core/FrameLoop.h"
#include "core/engine/DesktopSize.h"
#include "core/engine/EngineRef.h"
#include "core/engine/ShowState.h"
#include "core/engine/StoredPngLoader.h"
#include "core/geometry/Rectangles.h"
#include "core/system/CommandLine.h"
#include "core/time/Time.h"

#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <irrlicht.h>
#include <malloc.h>
#include <memory>
#include <sys/mman.h>

using namespace skyvane;

namespace {

irr::core::dimension2d<irr::u32> windowSize(const CommandLine& line) {
    if (line.kind == CommandLine::Sized)
        return {line.width, line.height};
    const irr::core::dimension2d<unsigned> desktop = readDesktopSize();
    const irr::core::rect<int> most(0, 0, static_cast<int>(9 * desktop.Width / 10),
                                    static_cast<int>(9 * desktop.Height / 10));
    const irr::core::rect<int> window = makeXic(most, 1.7777778f);
    return {static_cast<irr::u32>(window.getWidth()), static_cast<irr::u32>(window.getHeight())};
}

EngineRef<irr::IrrlichtDevice> openWindow(const CommandLine& line) {
    auto device = EngineRef<irr::IrrlichtDevice>::adopt(
        irr::createDevice(irr::video::EDT_OPENGL, windowSize(line), 32, line.fullscreen, true, false, nullptr));
    if (device)
        device->setResizable(false);
    return device;
}

void prepareDevice(irr::IrrlichtDevice& device) {
    irr::video::IVideoDriver* driver = device.getVideoDriver();
    driver->addExternalImageLoader(EngineRef<StoredPngLoader>::adopt(new StoredPngLoader(driver)).get());
    driver->setViewPort({irr::core::position2di(0, 0), irr::core::dimension2di(driver->getScreenSize())});
    device.setWindowCaption(L"Skyvane");
    device.getLogger()->setLogLevel(irr::ELL_DEBUG);
}

void closeWindow(irr::IrrlichtDevice& device) {
    device.run();
    irr::video::IVideoDriver* driver = device.getVideoDriver();
    while (driver->getTextureCount() > 0)
        driver->removeTexture(driver->getTextureByIndex(0));
    device.run();
    device.run();
    device.closeDevice();
    while (device.run())
        Delay(1);
}

/// Pictures of a megabyte come and go while the program loads: kept in the heap, they don't have to be mapped, cleared
/// and unmapped by the kernel each time. Costs a heap that stays that much larger.
void keepLargeBlocksInHeap() {
    constexpr int bytes = 64 << 20;
    mallopt(M_MMAP_THRESHOLD, bytes);
    mallopt(M_TRIM_THRESHOLD, bytes);
}

/// Asks for the first part of the heap in large pages: touching thousands of small ones takes a good part of the start.
/// Where the kernel grants none, nothing is lost.
void askForLargePages() {
    constexpr std::uintptr_t bytes = 60 << 20, largePage = 2 << 20;
    void* heap = std::malloc(bytes + largePage);
    const std::uintptr_t first = (reinterpret_cast<std::uintptr_t>(heap) + largePage - 1) & ~(largePage - 1);
    if (heap)
        madvise(reinterpret_cast<void*>(first), bytes, MADV_HUGEPAGE);
    std::free(heap);
}

/// Why no window came, in words for the user.
int reportNoWindow() {
    std::fprintf(stderr, "Skyvane: no OpenGL window could be opened. Check that the graphics driver offers OpenGL 2 "
                         "(glxinfo tells) and that the size fits the screen.\n");
    return EXIT_FAILURE;
}

int runProgram(const CommandLine& line, const char* argv0) {
    EngineRef<irr::IrrlichtDevice> device = openWindow(line);
    if (!device)
        return reportNoWindow();
    std::signal(SIGPIPE, SIG_IGN);
    prepareDevice(*device);
    std::srand(static_cast<unsigned>(std::time(nullptr)));
    auto context = std::make_unique<Context>(device.get(), argv0, true);
    FrameLoop(*context).run();
    drawStateScreen(device.get(), L"Cleaning up, please wait...");
    device->run();
    context.reset();
    closeWindow(*device);
    device.reset();
    std::puts("Skyvane Exit");
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char** argv) {
    keepLargeBlocksInHeap();
    askForLargePages();
    const CommandLine line = parseCommandLine(argc, argv);
    if (line.kind == CommandLine::Bad)
        std::fprintf(stderr, "Skyvane: %s\n", line.trouble.c_str());
    if (line.kind == CommandLine::Bad || line.kind == CommandLine::Usage) {
        std::puts(usageText);
        return line.kind == CommandLine::Bad ? EXIT_FAILURE : EXIT_SUCCESS;
    }
    if (!isDisplayAvailable()) {
        std::fprintf(stderr, "Skyvane: no display can be reached. Start it in a desktop session, or set DISPLAY to the "
                             "X server that it shall use.\n");
        return EXIT_FAILURE;
    }
    return runProgram(line, argv[0]);
}
