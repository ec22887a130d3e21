#pragma once

#include "core/engine/EngineRef.h"
#include "core/time/Time.h"

#include <functional>
#include <irrlicht.h>
#include <memory>
#include <string>
#include <sys/types.h>

namespace skyvane {

class Context;
class FrameLoop;
class PlainPage;

/// A home for the program in the build folder while this lives: one for each process, so that two measurements at the
/// same time don't take each other's documents.
class BenchHome {
public:
    /// With that document, by default the demo's.
    explicit BenchHome(const std::string& config = "");
    ~BenchHome();
    BenchHome(const BenchHome&) = delete;
    BenchHome& operator=(const BenchHome&) = delete;

    /// Empty when it couldn't be made, which is told.
    const std::string& path() const { return path_; }
    std::string programPath() const { return path_ + "/skyvane"; }

private:
    std::string path_;
};

/// A window of the measured size. The display may refuse one for a moment; null, which is told, when it goes on to.
EngineRef<irr::IrrlichtDevice> openBenchWindow();

/// The program in a window of this process, its clock moved by hand: the pacer costs nothing. Beside it the plain page
/// that its frame is compared with. One at a time.
class DemoProgram {
public:
    /// With that document; the plain page stands empty beside it.
    /// `prepare` is called with the home before the program starts there.
    explicit DemoProgram(const std::string& config, const std::function<void(const std::string&)>& prepare = {});
    ~DemoProgram();
    DemoProgram(const DemoProgram&) = delete;
    DemoProgram& operator=(const DemoProgram&) = delete;

    bool isGood() const { return loop_ != nullptr; }
    Context& getContext() { return *context_; }
    irr::IrrlichtDevice* getDevice() { return device_.get(); }
    PlainPage& getPlainPage() { return *plain_; }

    double frameSeconds();
    double plainSeconds();
    /// Ends the box that the sensor shows at first, and settles.
    void begin();

private:
    BenchHome home_;
    ManualClock clock_;
    EngineRef<irr::IrrlichtDevice> device_;
    std::unique_ptr<Context> context_;
    std::unique_ptr<FrameLoop> loop_;
    std::unique_ptr<PlainPage> plain_;
};

/// flightfeed in real time, in the middle of its demo flight, while this lives.
class Feeder {
public:
    Feeder();
    ~Feeder();
    Feeder(const Feeder&) = delete;
    Feeder& operator=(const Feeder&) = delete;

private:
    pid_t process_;
};

/// Frames of the program while a flight comes in, against its plain page.
double frameRatio(DemoProgram& program, bool smoke);

} // namespace skyvane
