#include "DemoProgram.h"

#include "Bench.h"
#include "PlainPage.h"

#include "core/Context.h"
#include "core/FrameLoop.h"
#include "gui/windows/CMBox.h"

#include <GL/gl.h>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace skyvane {
namespace {

void say(const char* trouble) {
    std::fprintf(stderr, "The program can't be measured: %s.\n", trouble);
}

} // namespace

BenchHome::BenchHome(const std::string& config)
    : path_(benchBuildFolder() + "/bench-home-" + std::to_string(::getpid())) {
    const std::string command = "tools/demo/prepare-home.sh " + benchBuildFolder() + " " + path_ + " " + config;
    if (std::system((command + " >/dev/null").c_str()) == 0)
        return;
    say("its home can't be made");
    path_.clear();
}

BenchHome::~BenchHome() {
    std::error_code ignored;
    if (!path_.empty())
        std::filesystem::remove_all(path_, ignored);
}

EngineRef<irr::IrrlichtDevice> openBenchWindow() {
    for (int attempt = 0; attempt < 3; ++attempt) {
        auto device = EngineRef<irr::IrrlichtDevice>::adopt(
            irr::createDevice(irr::video::EDT_OPENGL, {1280, 720}, 32, false, true, false, nullptr));
        if (device) {
            device->getLogger()->setLogLevel(irr::ELL_NONE);
            return device;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
    }
    say("no window opens");
    return {};
}

DemoProgram::DemoProgram(const std::string& config, const std::function<void(const std::string&)>& prepare)
    : home_(config) {
    setClock(&clock_);
    if (!home_.path().empty() && prepare)
        prepare(home_.path());
    if (!home_.path().empty())
        device_ = openBenchWindow();
    if (!device_)
        return;
    context_ = std::make_unique<Context>(device_.get(), home_.programPath().c_str(), true);
    loop_ = std::make_unique<FrameLoop>(*context_);
    plain_ = std::make_unique<PlainPage>(device_->getVideoDriver(), home_.path() + "/media/");
}

DemoProgram::~DemoProgram() {
    plain_.reset();
    loop_.reset();
    context_.reset();
    device_.reset();
    setClock(nullptr);
}

double DemoProgram::frameSeconds() {
    return secondsOf([this] {
        loop_->runFrame();
        glFinish();
    });
}

double DemoProgram::plainSeconds() {
    irr::video::IVideoDriver* driver = device_->getVideoDriver();
    return secondsOf([this, driver] {
        device_->run();
        driver->beginScene(true, true, irr::video::SColor(0xff000000));
        plain_->draw();
        driver->endScene();
        glFinish();
    });
}

void DemoProgram::begin() {
    frameSeconds();
    const auto children = device_->getGUIEnvironment()->getRootGUIElement()->getChildren();
    for (irr::gui::IGUIElement* element : children)
        if (dynamic_cast<CMBox*>(element))
            element->remove();
    frameSeconds();
}

Feeder::Feeder() : process_(::fork()) {
    if (process_ == 0) {
        const std::string program = benchBuildFolder() + "/tools/flightfeed/flightfeed";
        ::execl(program.c_str(), program.c_str(), "--from", "100", static_cast<char*>(nullptr));
        ::_exit(127);
    }
}

Feeder::~Feeder() {
    if (process_ > 0) {
        ::kill(process_, SIGTERM);
        ::waitpid(process_, nullptr, 0);
    }
}

double frameRatio(DemoProgram& program, bool smoke) {
    const int rounds = smoke ? 5 : 300;
    const Feeder feeder;
    for (int i = 0; i < 30; ++i)
        program.frameSeconds();
    return ratioOfMedians(
        rounds, [&program] { return program.frameSeconds(); }, [&program] { return program.plainSeconds(); });
}

} // namespace skyvane
