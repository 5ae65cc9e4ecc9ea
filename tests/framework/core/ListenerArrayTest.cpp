// Lists of listeners: order, changes from inside a callback, and changes by another thread.
// SPDX-License-Identifier: GPL-3.0-or-later
#include "framework/core/ListenerArray.h"

#include <gtest/gtest.h>

#include <functional>
#include <latch>
#include <string>

namespace
{

/** Writes its name into a log when it is told, then does what the test wants. */
struct Recorder
{
    void tell (std::string& log)
    {
        log += name;

        if (reaction)
            reaction();
    }

    char name;
    std::function<void()> reaction;
};

using Recorders = zembra::ListenerArray<Recorder>;

struct ListenerArrayTest : testing::Test
{
    ListenerArrayTest()
    {
        for (auto* recorder : { &a, &b, &c })
            list.add (recorder);
    }

    std::string tell()
    {
        std::string log;
        list.call ([&] (Recorder& recorder) { recorder.tell (log); });
        return log;
    }

    Recorder a{ 'a', {} }, b{ 'b', {} }, c{ 'c', {} }, d{ 'd', {} };
    Recorders list;
};

TEST_F (ListenerArrayTest, TellsFromTheLastToTheFirst)
{
    EXPECT_EQ (tell(), "cba");
    EXPECT_EQ (Recorders().size(), 0);
}

TEST_F (ListenerArrayTest, HoldsEachListenerOnce)
{
    EXPECT_FALSE (list.add (&a));
    EXPECT_FALSE (list.add (nullptr));
    EXPECT_EQ (tell(), "cba");

    list.remove (&a);
    list.remove (&a);
    list.remove (&d);
    EXPECT_EQ (tell(), "cb");
    EXPECT_TRUE (list.add (&a));
    EXPECT_EQ (tell(), "acb");
}

TEST_F (ListenerArrayTest, TakesChangesFromInsideACallback)
{
    struct Case
    {
        const char* what;
        Recorder ListenerArrayTest::*who;
        std::function<void (ListenerArrayTest&)> reaction;
        const char* thisRound;
        const char* nextRound;
    };

    const Case cases[] = {
        { "removes itself, the last", &ListenerArrayTest::c, [] (auto& t) { t.list.remove (&t.c); },
          "cba", "ba" },
        { "removes itself, in the middle", &ListenerArrayTest::b,
          [] (auto& t) { t.list.remove (&t.b); }, "cba", "ca" },
        // The index is what counts: those above the removed one move down, and the caller of the
        // removal is told again. Nobody is left out, and the removed one isn't told.
        { "removes one still to be told", &ListenerArrayTest::c,
          [] (auto& t) { t.list.remove (&t.a); }, "ccb", "cb" },
        { "removes one already told", &ListenerArrayTest::b, [] (auto& t) { t.list.remove (&t.c); },
          "cba", "ba" },
        { "removes all", &ListenerArrayTest::b,
          [] (auto& t)
          {
              for (auto* recorder : { &t.a, &t.b, &t.c })
                  t.list.remove (recorder);
          },
          "cb", "" },
        { "adds one", &ListenerArrayTest::c, [] (auto& t) { t.list.add (&t.d); }, "cba", "dcba" },
    };

    for (const auto& test : cases)
    {
        SCOPED_TRACE (test.what);

        for (auto* recorder : { &a, &b, &c, &d })
            list.remove (recorder);

        for (auto* recorder : { &a, &b, &c })
            list.add (recorder);

        (this->*test.who).reaction = [&] { test.reaction (*this); };
        EXPECT_EQ (tell(), test.thisRound);
        (this->*test.who).reaction = nullptr;
        EXPECT_EQ (tell(), test.nextRound);
    }
}

TEST_F (ListenerArrayTest, MayBeToldFromInsideACallback)
{
    std::string inner;
    b.reaction = [&]
    {
        b.reaction = nullptr;
        list.remove (&c);
        inner = tell();
    };

    EXPECT_EQ (tell(), "cba");
    EXPECT_EQ (inner, "ba");
}

TEST_F (ListenerArrayTest, AListenerMayDeleteItselfInItsCallback)
{
    auto owned = std::make_unique<Recorder>();
    owned->name = 'x';
    owned->reaction = [&]
    {
        list.remove (owned.get());
        std::exchange (owned, nullptr)->name = 0;
    };
    list.add (owned.get());

    std::string log;
    list.call (
        [&] (Recorder& recorder)
        {
            // The reaction is copied: the recorder that holds it goes while it runs.
            const auto reaction = recorder.reaction;
            log += recorder.name;

            if (reaction)
                reaction();
        });
    EXPECT_EQ (log, "xcba");
    EXPECT_EQ (owned, nullptr);
}

TEST_F (ListenerArrayTest, RemovingWaitsForAnotherThreadInsideTheListener)
{
    std::latch inside (1);
    std::atomic<bool> finished{ false };
    b.reaction = [&]
    {
        inside.count_down();
        std::this_thread::sleep_for (std::chrono::milliseconds (50));
        finished = true;
    };

    std::thread teller ([this] { tell(); });
    inside.wait();
    list.remove (&b);
    EXPECT_TRUE (finished);
    teller.join();
}

TEST_F (ListenerArrayTest, RemovingDoesNotWaitForAnotherListener)
{
    std::latch inside (1), release (1);
    c.reaction = [&]
    {
        inside.count_down();
        release.wait();
    };

    std::thread teller ([this] { tell(); });
    inside.wait();
    list.remove (&a); // would hang here
    release.count_down();
    teller.join();
    EXPECT_EQ (list.size(), 2);
}

/** Says whether it is called after its end. */
struct Mortal
{
    ~Mortal() { alive = false; }

    std::atomic<bool> alive{ true };
    std::atomic<int> calls{ 0 };
};

TEST (ListenerArrayThreads, ListenersComeAndGoWhileOtherThreadsTell)
{
    zembra::ListenerArray<Mortal> list;
    Mortal resident;
    list.add (&resident);
    std::atomic<bool> stop{ false };
    std::atomic<int> callsOnTheDead{ 0 };

    const auto tell = [&]
    {
        while (! stop)
            list.call (
                [&] (Mortal& listener)
                {
                    if (! listener.alive)
                        ++callsOnTheDead;

                    ++listener.calls;
                });
    };

    const auto comeAndGo = [&]
    {
        for (int i = 0; i < 2000; ++i)
        {
            Mortal first;
            auto second = std::make_unique<Mortal>();
            list.add (&first);
            list.add (second.get());
            list.remove (&first);
            list.remove (second.get());
        }
    };

    std::thread tellers[] = { std::thread (tell), std::thread (tell) };
    std::thread guests[] = { std::thread (comeAndGo), std::thread (comeAndGo) };

    for (auto& guest : guests)
        guest.join();

    while (resident.calls == 0)
        std::this_thread::yield();

    stop = true;

    for (auto& teller : tellers)
        teller.join();

    EXPECT_EQ (callsOnTheDead, 0);
    EXPECT_EQ (list.size(), 1);
}

} // namespace
