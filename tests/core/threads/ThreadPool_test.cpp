#include "core/threads/ThreadPool.h"

#include <gtest/gtest.h>

#include <future>
#include <pthread.h>
#include <thread>

namespace skyvane {
namespace {

// Work that says when it runs and goes on when it is let.
struct Gate {
    std::promise<pthread_t> entered;
    std::promise<void> open;
    static void* pass(void* gate) {
        auto& self = *static_cast<Gate*>(gate);
        std::future<void> opened = self.open.get_future();
        self.entered.set_value(pthread_self());
        opened.wait();
        return nullptr;
    }
};

TEST(Threads, runWithTheStackTheyAskFor) {
    unsigned long handle = 0;
    size_t size = 0; // larger than a used stack that the system keeps for the next thread
    const ThreadFunction measure = [](void* result) -> void* {
        pthread_attr_t attributes;
        pthread_getattr_np(pthread_self(), &attributes);
        pthread_attr_getstacksize(&attributes, static_cast<size_t*>(result));
        pthread_attr_destroy(&attributes);
        return nullptr;
    };
    ASSERT_TRUE(createThread(handle, measure, &size, true, 32 << 20));
    pthread_join(handle, nullptr);
    EXPECT_EQ(size, 32u << 20);
    ASSERT_TRUE(createThread(handle, measure, &size, true, 1)) << "less than any thread needs";
    pthread_join(handle, nullptr);
}

TEST(ThreadPool, growsWhenAllAreBusyAndUsesThreadsAgain) {
    testing::internal::CaptureStdout();
    {
        ThreadPool pool(1);
        Gate first;
        Gate second;
        ASSERT_NE(pool.startThreadedFunction(Gate::pass, &first), nullptr);
        const pthread_t firstThread = first.entered.get_future().get();
        ASSERT_NE(pool.startThreadedFunction(Gate::pass, &second), nullptr);
        const pthread_t secondThread = second.entered.get_future().get();
        EXPECT_FALSE(pthread_equal(firstThread, secondThread));
        first.open.set_value();
        second.open.set_value();

        Gate third; // sooner or later one of the two is idle again
        do {
            third = Gate();
            ASSERT_NE(pool.startThreadedFunction(Gate::pass, &third), nullptr);
            const pthread_t thread = third.entered.get_future().get();
            third.open.set_value();
            if (pthread_equal(thread, firstThread) || pthread_equal(thread, secondThread))
                break;
        } while (true);
        std::this_thread::sleep_for(std::chrono::milliseconds(5)); // the last gate is left before it goes
    }
    const std::string told = testing::internal::GetCapturedStdout();
    EXPECT_EQ(told.find("reuse Thread\nnew Thread\n"), 0u) << told;
    EXPECT_NE(told.find("returnThread\n"), std::string::npos);
}

TEST(ThreadPool, leavesABusyThreadToItself) {
    testing::internal::CaptureStdout();
    auto gate = std::make_unique<Gate>();
    std::promise<void> done;
    std::pair<Gate*, std::promise<void>*> work{gate.get(), &done};
    {
        ThreadPool pool(0);
        pool.startThreadedFunction(
            [](void* argument) -> void* {
                auto* both = static_cast<std::pair<Gate*, std::promise<void>*>*>(argument);
                Gate::pass(both->first);
                both->second->set_value();
                return nullptr;
            },
            &work);
        gate->entered.get_future().wait();
    }
    gate->open.set_value();
    done.get_future().wait();
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "new Thread\n");
}

} // namespace
} // namespace skyvane
