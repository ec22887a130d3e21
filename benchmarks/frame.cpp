// A whole frame of the demo page with a flight coming in, against its quads drawn plainly.
#include "Bench.h"
#include "PlainPage.h"

#include "core/Context.h"
#include "core/FrameLoop.h"
#include "core/engine/EngineRef.h"
#include "core/time/Time.h"

#include <GL/gl.h>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <sys/wait.h>
#include <unistd.h>

namespace skyvane {

namespace {

/// The program in a window of this process, its clock moved by hand: the pacer costs nothing.
class DemoProgram {
public:
    explicit DemoProgram(const std::string& home) {
        setClock(&clock_);
        device_ = EngineRef<irr::IrrlichtDevice>::adopt(
            irr::createDevice(irr::video::EDT_OPENGL, {1280, 720}, 32, false, true, false, nullptr));
        if (!device_)
            return;
        device_->getLogger()->setLogLevel(irr::ELL_NONE);
        context_ = std::make_unique<Context>(device_.get(), (home + "/skyvane").c_str(), true);
        loop_ = std::make_unique<FrameLoop>(*context_);
        plain_ = std::make_unique<PlainPage>(device_->getVideoDriver(), home + "/media/");
    }
    ~DemoProgram() {
        loop_.reset();
        context_.reset();
        device_.reset();
        setClock(nullptr);
    }

    bool isGood() const { return loop_ != nullptr; }

    double frameSeconds() {
        return secondsOf([this] {
            loop_->runFrame();
            glFinish();
        });
    }

    double plainSeconds() {
        irr::video::IVideoDriver* driver = device_->getVideoDriver();
        return secondsOf([this, driver] {
            device_->run();
            driver->beginScene(true, true, irr::video::SColor(0xff000000));
            plain_->draw();
            driver->endScene();
            glFinish();
        });
    }

    /// Ends the box that the sensor shows at first.
    void dismissBoxes() { device_->getGUIEnvironment()->clear(); }

private:
    ManualClock clock_;
    EngineRef<irr::IrrlichtDevice> device_;
    std::unique_ptr<Context> context_;
    std::unique_ptr<FrameLoop> loop_;
    std::unique_ptr<PlainPage> plain_;
};

/// flightfeed in real time, in the middle of its demo flight, while this lives.
class Feeder {
public:
    explicit Feeder(const std::string& program) : process_(::fork()) {
        if (process_ == 0) {
            ::execl(program.c_str(), program.c_str(), "--from", "100", static_cast<char*>(nullptr));
            ::_exit(127);
        }
    }
    ~Feeder() {
        if (process_ > 0) {
            ::kill(process_, SIGTERM);
            ::waitpid(process_, nullptr, 0);
        }
    }
    Feeder(const Feeder&) = delete;
    Feeder& operator=(const Feeder&) = delete;

private:
    pid_t process_;
};

double frameRatio(bool smoke) {
    const std::string& build = benchBuildFolder();
    const std::string home = build + "/bench-home";
    if (std::system(("tools/demo/prepare-home.sh " + build + " " + home + " >/dev/null").c_str()) != 0)
        return std::nan("");
    DemoProgram program(home);
    if (!program.isGood())
        return std::nan("");
    program.frameSeconds();
    program.dismissBoxes();
    const int rounds = smoke ? 5 : 300;
    const Feeder feeder(build + "/tools/flightfeed/flightfeed");
    for (int i = 0; i < 30; ++i)
        program.frameSeconds();
    return ratioOfMedians(
        rounds, [&program] { return program.frameSeconds(); }, [&program] { return program.plainSeconds(); });
}

} // namespace

std::vector<Bench> frameBenches() {
    return {{"dials.frame", Bench::Bound::AtMost, 1.5, frameRatio}};
}

} // namespace skyvane
