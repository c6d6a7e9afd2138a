// The server as its page and everybody else on the machine meet it, with real phones.
#include <algorithm>
#include <csignal>
#include <iterator>
#include <memory>

#include <gmock/gmock.h>

#include "companion/TemporaryFolder.hpp"
#include "serve/Server.hpp"
#include "serve/StepList.hpp"
#include "serve/Visit.hpp"

namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using test::Visit;
using test::waitUntil;
using testing::ElementsAre;
using testing::HasSubstr;
using Strings = std::vector<std::string>;

/// The phones' processes of a server, which are its children.
Strings phonesOf(const std::string &server) {
    std::istringstream children(
        test::readFile("/proc/" + server + "/task/" + server + "/children"));
    return {std::istream_iterator<std::string>(children), {}};
}

class ServeTest : public testing::Test {
  protected:
    ServeTest() {
        fs::create_directories(page_);
        test::writeFile(page_ / "index.html", "a page");
        test::writeFile(page_ / "phone.js", "a script");
        test::writeFile(folder_ / "secret.js", "no part of it");
        serve({PHONE_SIMULATOR});
    }
    void serve(const serve::House &house) {
        server_ = std::make_unique<serve::Server>(house, page_, folder_ / "visitors", 0);
    }
    unsigned port() const { return server_->port(); }
    std::string origin() const { return "http://127.0.0.1:" + std::to_string(port()); }
    static Strings phones() { return phonesOf(std::to_string(getpid())); }

    test::TemporaryFolder folder_;
    fs::path page_ = folder_ / "page";
    std::unique_ptr<serve::Server> server_;
};

TEST_F(ServeTest, AnswersItsOwnPageAlone) {
    const std::string ours = "localhost:" + std::to_string(port());
    const struct {
        test::Knock knock;
        unsigned status = 0;
    } rows[] = {
        {{"/"}, 200},
        {{"/phone.js", ours}, 200},
        {{"/index.html", "", "http://" + ours}, 200},
        {{"/secret.js"}, 404},
        {{"/../secret.js"}, 404},
        {{"/%2e%2e/secret.js"}, 404},
        {{"/phone/"}, 404},
        {{"/", "", "", "POST"}, 405},
        {{"/", "elsewhere.example"}, 403},
        {{"/", "elsewhere.example:" + std::to_string(port())}, 403},
        {{"/", "127.0.0.1"}, 403},
        {{"/", "", "http://elsewhere.example"}, 403},
        {{"/phone", "", origin()}, 101},
        {{"/phone", "", "http://elsewhere.example"}, 403},
        {{"/phone", "", "null"}, 403},
        {{"/phone", "", "https://" + ours}, 403},
        {{"/phone", "elsewhere.example", origin()}, 403},
    };
    for (const auto &[knock, status] : rows) {
        EXPECT_EQ(test::statusOf(port(), knock), status)
            << knock.method << ' ' << knock.path << ' ' << knock.host << ' ' << knock.origin;
    }
}

TEST_F(ServeTest, SaysWhatIsWrongAndGoesOn) {
    Visit visit(port());
    const std::pair<std::string, const char *> rows[] = {
        {"{[", "not JSON"},
        {"[1]", "lacks something"},
        {R"({"ask": "dance"})", "'dance'"},
        {R"({"ask": "step"})", "lacks something"},
        {R"({"ask": "step", "line": 5})", "lacks something"},
        {R"({"ask": "step", "line": "type 1\ntype 2"})", "one line"},
        {R"({"ask": "speed", "speed": -1})", "the speed"},
        {R"({"ask": "watch", "side": "both"})", "a side is"},
        {R"({"ask": "open", "ios": "9", "screen": "4", "sides": ["with"], "steps": []})", "'9'"},
        {R"({"ask": "open", "ios": "7.1", "screen": "4", "sides": [], "steps": []})", "one side"},
        {R"({"ask": "file", "name": "a.json", "text": ""})", "open one first"},
        {R"({"ask": "look", "more": )" + std::string(1000, '[') + std::string(1000, ']') + "}",
         "too deeply"},
        {R"({"ask": "step", "line": ")" + std::string(70000, '1') + "\"}", "longer than 65536"},
    };
    for (const auto &[message, why] : rows) {
        visit.say(message);
        EXPECT_THAT(visit.told("failed")["why"], HasSubstr(why)) << message.substr(0, 80);
    }
    visit.open("7.1", {"with"}, {"type 1", "jump"});
    EXPECT_THAT(visit.told("failed")["why"], HasSubstr("no step 'jump'"));
    visit.step("type 1");
    EXPECT_THAT(visit.told("refused")["why"], HasSubstr("no phone is open"));

    visit.open("7.1", {"with"});
    EXPECT_EQ(visit.told("opened")["width"], 640);
    const fs::path picture = folder_ / "picture.png";
    for (const auto &[line, why] : std::initializer_list<std::pair<std::string, const char *>>{
             {"jump", "no step 'jump'"},
             {"swipe 1", "another tab"},
             {"png " + picture.string(), "not from here"}}) {
        visit.step(line);
        const auto refused = visit.told("refused");
        EXPECT_EQ(refused["line"], line);
        EXPECT_THAT(refused["why"], HasSubstr(why));
    }
    EXPECT_FALSE(fs::exists(picture));
    visit.step("type 177");
    EXPECT_TRUE(visit.hasDone("type 177"));
}

TEST_F(ServeTest, PlaysTheSameAgain) {
    Visit visit(port());
    visit.open("7.1", {"without", "with"}, {"tab recents"});
    visit.told("opened");
    visit.settle();
    visit.step("press mark");  // which is the add-on's, and only an open row has it
    EXPECT_EQ(visit.told("refused")["line"], "press mark");
    for (const char *const line : {"swipe 4", "release", "press mark"}) {
        visit.step(line);
    }
    EXPECT_TRUE(visit.hasDone("press mark"));
    visit.step("down 160,400");
    for (int y = 380; y >= 300; y -= 20) {
        visit.step("move 160," + std::to_string(y));
        waitUntil([&, since = std::chrono::steady_clock::now()] {
            return std::chrono::steady_clock::now() - since > 12ms;
        });
    }
    visit.step("lift");  // the list runs on
    EXPECT_TRUE(visit.hasDone("lift"));
    visit.ask({{"ask", "speed"}, {"speed", 0}});
    visit.settle();
    const Visit::Pixels without = visit.screen("without");
    const Visit::Pixels with = visit.screen("with");
    EXPECT_FALSE(without == with);
    const Strings steps = visit.steps();
    visit.open("7.1", {"without", "with"}, steps);
    visit.told("opened");
    visit.settle();
    EXPECT_TRUE(visit.screen("without") == without);
    EXPECT_TRUE(visit.screen("with") == with);
}

TEST_F(ServeTest, TellsViewsAndWhatHappenedAndFindsThemByName) {
    Visit visit(port());
    visit.ask({{"ask", "watch"}, {"side", "with"}, {"views", true}, {"happenings", true}});
    visit.open("7.1", {"with"}, {"type 17700000061"});
    visit.told("opened");
    EXPECT_NE(visit.told("views").dump().find("\"诈骗电话\""), std::string::npos);
    visit.step("down 1,1 删除");  // by its name, from a place where it is not
    visit.step("lift");
    const auto happened = visit.told("happened");
    EXPECT_EQ(happened["line"], "lift");
    EXPECT_THAT(happened["happenings"].dump(), HasSubstr("-["));
    EXPECT_EQ(visit.told("views").dump().find("\"诈骗电话\""), std::string::npos);
}

TEST_F(ServeTest, OutlivesItsPhones) {
    Visit visit(port());
    Visit other(port());
    other.open("8.0", {"with"});
    other.told("opened");
    const Strings others = phones();
    visit.open("7.0", {"with"}, {"type 1380"});
    visit.told("opened");
    for (const std::string &phone : phones()) {
        if (std::ranges::find(others, phone) == others.end()) {
            kill(std::stoi(phone), SIGKILL);
        }
    }
    const auto died = visit.told("died");
    EXPECT_EQ(died["side"], "with");
    EXPECT_THAT(died["log"].dump(), HasSubstr("signal 9"));
    visit.open("7.0", {"with"}, {"type 1380"});
    EXPECT_FALSE(visit.told("opened").is_null());
    other.step("type 1");
    EXPECT_TRUE(other.hasDone("type 1"));
}

TEST_F(ServeTest, TakesWhatComesTooFast) {
    constexpr int kMoves = 10000;
    Visit visit(port());
    Visit other(port());
    visit.open("7.1", {"with"}, {"tab recents"});
    other.open("7.1", {"with"});
    visit.told("opened");
    other.told("opened");
    visit.step("down 160,500");
    for (int i = 0; i < kMoves; ++i) {
        visit.step("move 160," + std::to_string(500 - i % 300));
    }
    other.step("type 1");
    EXPECT_TRUE(other.hasDone("type 1"));
    visit.step("lift");
    EXPECT_TRUE(visit.hasDone("lift"));
    EXPECT_LT(visit.steps().size(), size_t{kMoves} / 4);
    for (int i = 0; i < kMoves; ++i) {
        visit.step("type 1");
    }
    EXPECT_THAT(visit.told("refused")["why"], HasSubstr("too much at once"));
    visit.settle();
    visit.step("tab keypad");
    EXPECT_TRUE(visit.hasDone("tab keypad"));
}

TEST_F(ServeTest, TakesFilesOrSaysTheirMistakes) {
    const std::string heading = "number,name,direction,time,answered\n";
    Visit visit(port());
    visit.open("7.1", {"without", "with"}, {"tab recents"});
    visit.told("opened");
    visit.settle();
    const Visit::Pixels before = visit.screen("with");
    const auto bring = [&](const std::string &name, const std::string &text) {
        visit.ask({{"ask", "file"}, {"name", name}, {"text", text}});
    };
    bring("my.csv", heading + "1,,in,yesterday,no\n");
    EXPECT_THAT(visit.told("mistakes")["lines"],
                ElementsAre(HasSubstr("phone-simulator: my.csv: 2 mistakes"),
                            HasSubstr("my.csv:2: direction"), HasSubstr("my.csv:2: time")));
    bring("/etc/my.json", "{");
    EXPECT_THAT(visit.told("mistakes")["lines"], ElementsAre(HasSubstr("/etc/my.json: line 1")));
    visit.settle();
    EXPECT_TRUE(visit.screen("with") == before);
    bring("my.csv", heading + "13800130011,,incoming,,no\n,Nobody,incoming,,no\n");
    EXPECT_THAT(visit.told("took")["lines"], ElementsAre(HasSubstr("my.csv:3: 'Nobody'")));
    visit.settle();
    EXPECT_FALSE(visit.screen("with") == before);
    bring("my.csv", "");
    visit.told("took");
    visit.settle();
    EXPECT_TRUE(visit.screen("with") == before);
}

TEST_F(ServeTest, SleepsWhenNobodyLooks) {
    serve({PHONE_SIMULATOR, {}, {}, 1s});
    Visit visit(port());
    visit.open("7.1", {"with"});
    visit.told("opened");
    EXPECT_EQ(phones().size(), 1U);
    EXPECT_FALSE(visit.told("asleep").is_null());
    EXPECT_TRUE(waitUntil([] { return phones().empty(); }));
}

TEST_F(ServeTest, HasRoomForSoMany) {
    std::deque<Visit> visits;
    for (size_t i = 0; i < serve::Server::kMostVisitors; ++i) {
        visits.emplace_back(port());
    }
    {
        Visit last(port());
        EXPECT_THAT(last.told("failed")["why"], HasSubstr("too many"));
        EXPECT_TRUE(waitUntil([&] { return last.isOver(); }));
    }
    visits.front().open("7.1", {"with"});
    visits.front().told("opened");
    visits.pop_front();  // as a browser that goes away
    EXPECT_TRUE(waitUntil([] { return phones().empty(); }));
    Visit next(port());
    next.say("?");
    EXPECT_THAT(next.told("failed")["why"], HasSubstr("not JSON"));
}

TEST_F(ServeTest, LeavesNothingBehind) {
    const fs::path temporary = folder_ / "temporary";
    fs::create_directories(temporary);
    // NOLINTNEXTLINE(clang-analyzer-optin.core.EnumCastOutOfRange): flags of C, each a bit
    constexpr auto kPipes = static_cast<GSubprocessFlags>(G_SUBPROCESS_FLAGS_STDOUT_PIPE |
                                                          G_SUBPROCESS_FLAGS_STDERR_PIPE);
    const serve::Object<GSubprocessLauncher> launcher(g_subprocess_launcher_new(kPipes));
    g_subprocess_launcher_setenv(launcher.get(), "TMPDIR", temporary.c_str(), 1);
    const auto start = [&](const std::string &port) {
        return serve::Object<GSubprocess>(g_subprocess_launcher_spawn(
            launcher.get(), nullptr, PHONE_SIMULATOR, "serve", "--port", port.c_str(), nullptr));
    };
    const serve::Object<GSubprocess> server = start("0");
    const serve::Object<GDataInputStream> out(
        g_data_input_stream_new(g_subprocess_get_stdout_pipe(server.get())));
    const std::unique_ptr<char, decltype(&g_free)> line(
        g_data_input_stream_read_line(out.get(), nullptr, nullptr, nullptr), &g_free);
    const std::string address = line.get();
    const std::string taken = address.substr(address.rfind(':') + 1, address.size() - 1);

    const serve::Object<GSubprocess> second = start(taken.substr(0, taken.find('/')));
    char *said = nullptr;
    g_subprocess_communicate_utf8(second.get(), nullptr, nullptr, nullptr, &said, nullptr);
    EXPECT_EQ(g_subprocess_get_exit_status(second.get()), 1);
    EXPECT_THAT(said, testing::MatchesRegex("phone-simulator: port [0-9]+ is in use; .*--port\n"));
    g_free(said);

    Visit visit(static_cast<unsigned>(std::stoul(taken)));
    visit.open("7.1", {"without", "with"});
    visit.told("opened");
    const Strings phones = phonesOf(g_subprocess_get_identifier(server.get()));
    EXPECT_EQ(phones.size(), 2U);
    g_subprocess_send_signal(server.get(), SIGINT);
    g_subprocess_wait(server.get(), nullptr, nullptr);
    EXPECT_EQ(g_subprocess_get_exit_status(server.get()), 0);
    for (const std::string &phone : phones) {
        EXPECT_FALSE(fs::exists("/proc/" + phone)) << phone;
    }
    EXPECT_TRUE(fs::is_empty(temporary));
}

TEST(StepList, JoinsWhatIsOne) {
    serve::StepList list;
    list.add(std::chrono::milliseconds(0));
    EXPECT_TRUE(list.empty());
    list.add(1500ms);
    list.add("wait 0.25");
    list.add("move 1,1");
    list.addMove("move 2,2");
    list.add(16ms);
    list.addMove("move 3,3");
    list.add("lift");
    list.addMove("move 4,4");
    list.add("wait 7200");
    list.add(1ms);
    list.add("wait forever");
    EXPECT_THAT(list.lines(), ElementsAre("wait 1.766", "move 3,3", "lift", "move 4,4", "wait 7200",
                                          "wait 0.001", "wait forever"));
}

}  // namespace
