// Random programs of work run on the loop and on a slow but obvious model of it; both must keep the same diary.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "Platform/RunLoop/MainRunLoop.hpp"

using namespace proupsells;

namespace {

// What a program may do with time. Handles of timers count up from 0.
class Stage {
public:
    virtual ~Stage() = default;
    virtual double now_s() const = 0;
    virtual void schedule(double delay_s, std::function<void()> work) = 0;
    virtual void scheduleRepeating(double interval_s, std::function<void()> work) = 0;
    virtual void invalidate(std::size_t handle) = 0;
    virtual void requestUpdate(std::size_t client) = 0;
    std::function<void(std::size_t client)> runUpdate;
};

constexpr std::size_t clientCount = 3;
constexpr double end_s = 20;

class LoopStage : public Stage {
public:
    explicit LoopStage(std::shared_ptr<runloop::Clock> clock) : m_loop(std::move(clock)) {
        for (std::size_t i = 0; i < clientCount; ++i) m_clients.push_back(std::make_shared<Client>(*this, i));
    }
    double now_s() const override { return m_loop.now_s(); }
    void schedule(double delay_s, std::function<void()> work) override {
        m_timers.push_back(m_loop.schedule(delay_s, std::move(work)));
    }
    void scheduleRepeating(double interval_s, std::function<void()> work) override {
        m_timers.push_back(m_loop.scheduleRepeating(interval_s, std::move(work)));
    }
    void invalidate(std::size_t handle) override { m_timers[handle]->invalidate(); }
    void requestUpdate(std::size_t client) override { m_loop.requestUpdate(m_clients[client]); }
    runloop::MainRunLoop& loop() { return m_loop; }

private:
    struct Client : runloop::UpdateClient {
        Client(Stage& stage, std::size_t index) : m_stage(stage), m_index(index) {}
        void update() override { m_stage.runUpdate(m_index); }
        Stage& m_stage;
        std::size_t m_index;
    };
    runloop::MainRunLoop m_loop;
    std::vector<std::shared_ptr<Client>> m_clients;
    std::vector<std::shared_ptr<runloop::Timer>> m_timers;
};

// Looks through everything at every step.
class ModelStage : public Stage {
public:
    double now_s() const override { return m_now_s; }
    void schedule(double delay_s, std::function<void()> work) override { add(m_now_s + delay_s, 0, std::move(work)); }
    void scheduleRepeating(double interval_s, std::function<void()> work) override {
        add(m_now_s + interval_s, interval_s, std::move(work));
    }
    void invalidate(std::size_t handle) override { m_items[handle].isAlive = false; }
    void requestUpdate(std::size_t client) override {
        if (std::find(m_updates.begin(), m_updates.end(), client) == m_updates.end()) m_updates.push_back(client);
    }

    void run() {
        for (;;) {
            double next_s = end_s + 1;
            if (!m_updates.empty()) next_s = m_now_s;
            for (const Item& item : m_items)
                if (item.isAlive && item.isArmed) next_s = std::min(next_s, item.due_s);
            if (next_s > end_s) return;
            runTurn(next_s);
        }
    }

private:
    struct Item {
        double start_s, interval_s, due_s;
        std::size_t sequence;
        std::function<void()> work;
        bool isAlive = true, isArmed = true;
        int ticks = 1;
    };

    void add(double due_s, double interval_s, std::function<void()> work) {
        m_items.push_back({m_now_s, interval_s, due_s, m_sequence++, std::move(work)});
    }

    void runTurn(double moment_s) {
        m_now_s = moment_s;
        std::map<std::size_t, std::size_t> due; // handles by sequence number
        for (std::size_t handle = 0; handle < m_items.size(); ++handle)
            if (m_items[handle].isArmed && m_items[handle].due_s == moment_s) due[m_items[handle].sequence] = handle;
        std::vector<std::size_t> fired;
        for (const auto& [sequence, handle] : due) {
            if (!m_items[handle].isAlive) continue;
            m_items[handle].isArmed = false;
            fired.push_back(handle);
            const auto work = m_items[handle].work;
            work();
        }
        while (!m_updates.empty()) {
            const std::size_t client = m_updates.front();
            m_updates.erase(m_updates.begin());
            runUpdate(client);
        }
        for (const std::size_t handle : fired) {
            Item& item = m_items[handle];
            if (!item.isAlive || item.interval_s == 0) continue;
            item.due_s = item.start_s + ++item.ticks * item.interval_s;
            item.sequence = m_sequence++;
            item.isArmed = true;
        }
    }

    double m_now_s = 0;
    std::size_t m_sequence = 0;
    std::vector<Item> m_items;
    std::vector<std::size_t> m_updates;
};

// Acts at random, but the same way on every stage: what is drawn depends on the seed and on the acts so far only.
class Program {
public:
    Program(Stage& stage, unsigned seed) : m_stage(stage), m_random(seed) {
        m_stage.runUpdate = [this](std::size_t client) {
            note("update " + std::to_string(client));
            act(1);
        };
        act(6);
    }

    const std::vector<std::string>& diary() const { return m_diary; }

private:
    unsigned draw(unsigned count) { return m_random() % count; }
    void note(const std::string& what) { m_diary.push_back(what + " @ " + std::to_string(m_stage.now_s())); }

    std::function<void()> work() {
        return [this, handle = m_handles++] {
            note("timer " + std::to_string(handle));
            act(draw(3));
        };
    }

    void act(unsigned times) {
        static constexpr double delays_s[] = {0, 0, 0.5, 1, 1, 1.5, 5, 0.7};
        static constexpr double intervals_s[] = {0.5, 1, 1.5, 5, 0.7};
        for (; times > 0; --times) {
            switch (draw(5)) {
            case 0:
            case 1:
                if (m_handles < 150) m_stage.schedule(delays_s[draw(8)], work());
                break;
            case 2:
                if (m_handles < 12) m_stage.scheduleRepeating(intervals_s[draw(5)], work());
                break;
            case 3:
                if (m_handles > 0 && draw(3) == 0) m_stage.invalidate(draw(static_cast<unsigned>(m_handles)));
                break;
            case 4:
                // Rarely from an update, so that updates come to an end.
                if (draw(2) == 0) m_stage.requestUpdate(draw(clientCount));
                break;
            }
        }
    }

    Stage& m_stage;
    std::mt19937 m_random;
    std::size_t m_handles = 0;
    std::vector<std::string> m_diary;
};

std::vector<std::string> modelDiary(unsigned seed) {
    ModelStage stage;
    Program program(stage, seed);
    stage.run();
    return program.diary();
}

TEST(RandomSchedule, RunsLikeTheModelOnAVirtualClock) {
    std::size_t entries = 0;
    for (unsigned seed = 1; seed <= 300; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        LoopStage stage{std::make_shared<runloop::VirtualClock>()};
        Program program(stage, seed);

        stage.loop().runUntil(end_s);

        ASSERT_EQ(program.diary(), modelDiary(seed));
        entries += program.diary().size();
    }
    EXPECT_GT(entries, 10'000u);
}

TEST(RandomSchedule, RunsLikeTheModelInSmallSteps) {
    for (unsigned seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        LoopStage stage{std::make_shared<runloop::VirtualClock>()};
        Program program(stage, seed);

        for (double time_s = 0; time_s < end_s; time_s += 0.3) stage.loop().runUntil(time_s);
        stage.loop().runUntil(end_s);

        ASSERT_EQ(program.diary(), modelDiary(seed));
    }
}

// Moves by itself, as real time does, and is looked at later than work is due.
class LateClock : public runloop::Clock {
public:
    double now_s() const override { return m_now_s; }
    void moveTo(double time_s) { m_now_s = time_s; }

private:
    double m_now_s = 0;
};

TEST(RandomSchedule, RunsLikeTheModelOnAClockThatIsAlwaysLate) {
    for (unsigned seed = 1; seed <= 100; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        const auto clock = std::make_shared<LateClock>();
        LoopStage stage{clock};
        Program program(stage, seed);
        std::mt19937 random(seed);

        // Never as late as the shortest interval: that would be a stall, in which ticks are left out.
        for (double time_s = 0; time_s < end_s;) {
            stage.loop().runDueTurns();
            time_s = std::min(end_s, time_s + std::uniform_real_distribution<double>{0.01, 0.4}(random));
            clock->moveTo(time_s);
        }
        stage.loop().runDueTurns();

        ASSERT_EQ(program.diary(), modelDiary(seed));
    }
}

} // namespace
