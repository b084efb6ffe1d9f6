// A loop on a virtual clock and a diary of what ran when.
#pragma once

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "Platform/RunLoop/MainRunLoop.hpp"

namespace proupsells::tests {

// Runs a function as its update.
class FunctionClient final : public runloop::UpdateClient {
public:
    explicit FunctionClient(std::function<void()> function) : m_function(std::move(function)) {}
    void update() override { m_function(); }

private:
    std::function<void()> m_function;
};

class LoopFixture : public testing::Test {
protected:
    // "name@time".
    void note(const std::string& name) {
        std::ostringstream line;
        line << name << "@" << loop.now_s();
        diary.push_back(line.str());
    }
    std::function<void()> noting(std::string name) {
        return [this, name = std::move(name)] { note(name); };
    }
    std::shared_ptr<FunctionClient> client(std::string name) { return std::make_shared<FunctionClient>(noting(std::move(name))); }

    std::shared_ptr<runloop::VirtualClock> clock = std::make_shared<runloop::VirtualClock>();
    runloop::MainRunLoop loop{clock};
    std::vector<std::string> diary;
};

} // namespace proupsells::tests
