// How far a command has come, for a person at a terminal and for nobody else.
#include <gmock/gmock.h>

#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include "Tests/HostProgram/Program.hpp"

using namespace proupsells;

using namespace tests;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

// A terminal that a test looks at from behind.
class Terminal {
public:
    Terminal() : m_back(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
        if (m_back < 0 || grantpt(m_back) != 0 || unlockpt(m_back) != 0) return;
        m_name = ptsname(m_back);
        // It keeps what was written as long as somebody has it open.
        m_front = open(m_name.c_str(), O_RDWR | O_NOCTTY);
    }
    ~Terminal() {
        close(m_front);
        close(m_back);
    }
    Terminal(const Terminal&) = delete;

    const std::string& name() const { return m_name; }

    // All that was written so far. It comes through one after the other, and not at once.
    std::string shown() const {
        constexpr char end = '\x01';
        if (write(m_front, &end, 1) != 1) return "nothing can be written";
        std::string result;
        pollfd arrived{m_back, POLLIN, 0};
        constexpr int longest_ms = 60'000;
        while (!result.ends_with(end) && poll(&arrived, 1, longest_ms) > 0) {
            char bytes[4096];
            const ssize_t length = read(m_back, bytes, sizeof bytes);
            if (length <= 0) break;
            result.append(bytes, std::size_t(length));
        }
        if (result.ends_with(end)) result.pop_back();
        return result;
    }

private:
    int m_back;
    int m_front = -1;
    std::string m_name;
};

// What a gallery shows on a terminal of a kind.
std::string shownBy(const char* kind) {
    const Folder folder;
    const Terminal terminal;
    const Json matrix{{"screens", {"paywall"}},          {"locales", {"en"}},        {"sizes", {{320, 568}}},
                      {"textSizes", {"small", "large"}}, {"appearances", {"light"}}, {"scale", 1}};
    const std::string command = "TERM=" + std::string(kind) + " '" + builtProgram.string() + "' gallery --out '" +
                                (folder.path() / "out").string() + "' --matrix '" + folder.write("matrix.json", matrix).string() +
                                "' > /dev/null 2> " + terminal.name() + " < /dev/null";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return terminal.shown();
}

} // namespace

TEST(Progress, IsShownOnATerminalWithTheTimeThatIsLeftAndTakenAway) {
    EXPECT_THAT(shownBy("xterm"),
                AllOf(HasSubstr(" 0 %"), testing::ContainsRegex("████████████████░░░░░░░░░░░░░░░░ 50 %, [0-9]+:[0-9][0-9]"),
                      HasSubstr(" 100 %, 0:00 left"), EndsWith("\r\033[K")));
}

TEST(Progress, IsNotShownWhereALineCannotBeDrawnAgain) { EXPECT_THAT(shownBy("dumb"), IsEmpty()); }
