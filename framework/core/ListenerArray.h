// A list of listeners that may be told on one thread while it changes on another.
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <juce_core/juce_core.h>

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace zembra
{

/** An array of listeners that aren't owned, told from the last entry to the first.

    call() takes no lock and allocates nothing, so the audio thread may tell its listeners while the
    message thread adds or removes some. Before each call the index is rechecked against the present
    count, so that a listener may remove itself or others from inside its callback.

    The list itself is an immutable array that add() and remove() replace as a whole. Who tells the
    list first takes one of a few places in a table and notes there which listener it is about to
    call (the "hazard pointers" of M. Michael, 2004). remove() replaces the array and then waits until
    no other thread is inside that listener: when it returns, the listener can be deleted. Arrays
    that went out of use are freed when nobody is telling the list.

    Since remove() may wait for a thread inside a listener, a listener never waits for a thread that
    removes listeners, which here means the message thread.
*/
template <typename ListenerClass>
class ListenerArray
{
public:
    ListenerArray() : entries (new Entries()) {}
    ~ListenerArray() { delete entries.load(); }

    /** Appends a listener; false if it is null or already in the list. [any thread but audio] */
    bool add (ListenerClass* listener)
    {
        const std::scoped_lock lock (writerMutex);
        const auto& present = *entries.load();

        if (listener == nullptr || contains (present, listener))
            return false;

        auto next = std::make_unique<Entries> (present);
        next->push_back (listener);
        publish (std::move (next));
        return true;
    }

    /** Removes a listener, and waits while another thread is inside it. [any thread but audio] */
    void remove (ListenerClass* listener)
    {
        {
            const std::scoped_lock lock (writerMutex);
            const auto& present = *entries.load();

            if (! contains (present, listener))
                return;

            auto next = std::make_unique<Entries> (present);
            std::erase (*next, listener);
            publish (std::move (next));
        }

        waitForOtherThreadsInside (listener);
    }

    /** The number of listeners at this moment. [message thread] */
    int size() const
    {
        const std::scoped_lock lock (writerMutex);
        return static_cast<int> (entries.load()->size());
    }

    /** Calls `function (listener&)` for each listener, the last added first. [any thread] */
    template <typename Function>
    void call (Function&& function)
    {
        const Visit visit (*this);

        for (auto index = entries.load()->size(); index > 0;)
        {
            index = std::min (index, entries.load()->size());

            if (index == 0)
                break;

            --index;

            if (auto* listener = visit.enter (index))
                function (*listener);

            visit.leave();
        }
    }

private:
    using Entries = std::vector<ListenerClass*>;

    struct Place
    {
        std::atomic<juce::Thread::ThreadID> thread{ nullptr };
        std::atomic<ListenerClass*> inside{ nullptr };
    };

    /** One round of telling the list: holds a place in the table of those who do. */
    class Visit
    {
    public:
        explicit Visit (ListenerArray& ownerToUse) : owner (ownerToUse), place (owner.takePlace())
        {
        }
        ~Visit() { place.thread.store (nullptr); }

        /** Notes the listener at an index as being called; null if the list changed meanwhile. */
        ListenerClass* enter (size_t index) const
        {
            for (;;)
            {
                auto* const seen = owner.entries.load();

                if (index >= seen->size())
                    return nullptr;

                auto* const listener = (*seen)[index];
                place.inside.store (listener);

                if (owner.entries.load() == seen)
                    return listener;
            }
        }

        void leave() const { place.inside.store (nullptr); }

    private:
        ListenerArray& owner;
        Place& place;
    };

    static bool contains (const Entries& list, const ListenerClass* listener)
    {
        return std::find (list.begin(), list.end(), listener) != list.end();
    }

    /** Finds a free place. There are more places than threads and nested calls can ever take at
        once; should they all be taken nevertheless, this spins until one is given back.
    */
    Place& takePlace()
    {
        const auto self = juce::Thread::getCurrentThreadId();

        for (;;)
            for (auto& place : places)
                if (juce::Thread::ThreadID none = nullptr;
                    place.thread.load (std::memory_order_relaxed) == nullptr
                    && place.thread.compare_exchange_strong (none, self))
                    return place;
    }

    void publish (std::unique_ptr<Entries> next)
    {
        retired.emplace_back (entries.exchange (next.release()));

        if (std::none_of (places.begin(), places.end(),
                          [] (const auto& place) { return place.thread.load() != nullptr; }))
            retired.clear();
    }

    void waitForOtherThreadsInside (const ListenerClass* listener) const
    {
        const auto self = juce::Thread::getCurrentThreadId();

        for (const auto& place : places)
            while (place.inside.load() == listener && place.thread.load() != self)
                std::this_thread::yield();
    }

    std::atomic<Entries*> entries;
    std::array<Place, 16> places;
    std::vector<std::unique_ptr<Entries>> retired;
    mutable std::mutex writerMutex;

    JUCE_DECLARE_NON_COPYABLE (ListenerArray)
};

} // namespace zembra
