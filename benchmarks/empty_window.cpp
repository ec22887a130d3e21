// The baseline of the start: opens the engine's window as the program does, draws one empty frame and ends.
#include <irrlicht.h>

#include <cstdlib>

int main(int argc, char** argv) {
    irr::SIrrlichtCreationParameters parameters;
    parameters.DriverType = irr::video::EDT_OPENGL;
    parameters.WindowSize =
        irr::core::dimension2d<irr::u32>(argc > 1 ? static_cast<irr::u32>(std::atoi(argv[1])) : 1280,
                                         argc > 2 ? static_cast<irr::u32>(std::atoi(argv[2])) : 720);
    parameters.Bits = 32;
    parameters.Stencilbuffer = true;
    irr::IrrlichtDevice* device = irr::createDeviceEx(parameters);
    if (!device)
        return 1;
    device->run();
    device->getVideoDriver()->beginScene(true, true, irr::video::SColor(255, 0, 0, 0));
    device->getVideoDriver()->endScene();
    device->drop();
    return 0;
}
