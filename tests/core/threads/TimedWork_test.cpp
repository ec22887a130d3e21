#include "core/threads/AFunctionWithTimeout.h"
#include "core/threads/AParallelFunction.h"
#include "core/threads/ThreadPool.h"
#include "core/time/Time.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <unistd.h>

#ifdef __SANITIZE_THREAD__
// Leaving a thread from its signal handler frees memory there, which is what that way of ending a thread does.
extern "C" const char* __tsan_default_suppressions() {
    return "signal:AFunctionWithTimeout\n";
}
#endif

namespace skyvane {
namespace {

std::atomic<int> livingValues{0};

struct Number : IValue {
    explicit Number(int n) : number(n) { ++livingValues; }
    ~Number() override { --livingValues; }
    int number;
};

// Its input tells the worker what to wait for, so that nothing of the object is needed.
struct Task : Number {
    Task(int n, std::shared_future<void> until) : Number(n), open(std::move(until)) {}
    std::shared_future<void> open;
    std::promise<void> entered;
};

class Doubler : public AParallelFunction {
public:
    explicit Doubler(double exitWait) : AParallelFunction(exitWait) {}
    ~Doubler() override { endWork(); }

protected:
    std::unique_ptr<IValue> actualFunction(IValue* input) override {
        auto* task = static_cast<Task*>(input);
        task->entered.set_value();
        task->open.wait();
        return std::make_unique<Number>(2 * task->number);
    }
};

TEST(AParallelFunction, runsOnceAtATime) {
    std::promise<void> open;
    Doubler doubler(10.0);
    EXPECT_TRUE(doubler.isFinished());
    EXPECT_EQ(doubler.getResult(), nullptr);
    ASSERT_TRUE(doubler.execute(nullptr, std::make_unique<Task>(4, open.get_future().share())));
    EXPECT_FALSE(doubler.isFinished());
    EXPECT_EQ(doubler.waitForFinish(0.0), nullptr);
    const int before = livingValues;
    EXPECT_FALSE(doubler.execute(nullptr, std::make_unique<Number>(5)));
    EXPECT_EQ(livingValues, before) << "a refused input goes at once";
    open.set_value();
    const auto* result = static_cast<Number*>(doubler.waitForFinish(60.0));
    ASSERT_NE(result, nullptr);
    EXPECT_EQ(result->number, 8);
    EXPECT_EQ(doubler.getResult(), result);
}

TEST(AParallelFunction, replacesInputAndResultOnThePool) {
    testing::internal::CaptureStdout(); // the pool talks
    {
        ThreadPool pool(1);
        Doubler doubler(10.0);
        std::promise<void> open;
        open.set_value();
        const std::shared_future<void> opened = open.get_future().share();
        for (int i = 0; i < 20; ++i) {
            ASSERT_TRUE(doubler.execute(&pool, std::make_unique<Task>(i, opened)));
            const auto* result = static_cast<Number*>(doubler.waitForFinish(60.0));
            ASSERT_NE(result, nullptr);
            EXPECT_EQ(result->number, 2 * i);
        }
    }
    EXPECT_NE(testing::internal::GetCapturedStdout(), "");
    for (int i = 0; livingValues > 0 && i < 1000; ++i)
        Delay(1);
    EXPECT_EQ(livingValues, 0);
}

TEST(AParallelFunction, abandonsAHungWorker) {
    std::promise<void> open;
    ManualClock clock;
    setClock(&clock);
    {
        Doubler doubler(3600.0);
        auto task = std::make_unique<Task>(1, open.get_future().share());
        std::future<void> entered = task->entered.get_future();
        doubler.execute(nullptr, std::move(task));
        entered.wait();
        EXPECT_EQ(doubler.waitForFinish(60.0), nullptr);
        EXPECT_NEAR(Secs(), 60.0, 0.01);
    }
    EXPECT_NEAR(Secs(), 3660.0, 0.01) << "waits the exit wait, and once only";
    setClock(nullptr);
    EXPECT_EQ(livingValues, 1) << "the worker's input";
    open.set_value();
    for (int i = 0; livingValues > 0 && i < 1000; ++i)
        Delay(1);
    EXPECT_EQ(livingValues, 0);
}

class Blocking : public AFunctionWithTimeout {
public:
    Blocking(std::shared_future<void> until, std::promise<void>* cleaned)
        : open_(std::move(until)), cleaned_(cleaned) {}

protected:
    void actualFunction() override { open_.wait(); }
    void cleanUp() override {
        std::promise<void>* cleaned = cleaned_;
        delete this;
        cleaned->set_value();
    }

private:
    std::shared_future<void> open_;
    std::promise<void>* cleaned_;
};

class Sleeping : public AFunctionWithTimeout {
public:
    bool ended = false;

protected:
    void actualFunction() override {
        sleep(3600);
        ended = true;
    }
    void cleanUp() override {}
};

TEST(AFunctionWithTimeout, tellsWhatEndsInTime) {
    std::promise<void> open;
    open.set_value();
    Blocking work(open.get_future().share(), nullptr);
    EXPECT_TRUE(work.executeWithTimeout(60.0, false));
    EXPECT_TRUE(work.executeWithTimeout(60.0, true)) << "and can be run again";
}

TEST(AFunctionWithTimeout, endsABlockedThread) {
    Sleeping work;
    EXPECT_FALSE(work.executeWithTimeout(0.03, false));
    EXPECT_FALSE(work.executeWithTimeout(0.0, false)) << "before the thread has begun";
    EXPECT_FALSE(work.ended);
}

TEST(AFunctionWithTimeout, leavesAThreadThatCleansUp) {
    std::promise<void> open;
    std::promise<void> cleaned;
    auto* work = new Blocking(open.get_future().share(), &cleaned);
    EXPECT_FALSE(work->executeWithTimeout(0.02, true));
    open.set_value();
    cleaned.get_future().wait();
}

} // namespace
} // namespace skyvane
