// Numbers are those of the kinds that the library tells apart: mobile and landline, service
// numbers, foreign ones, short ones, and what is no number at all.
#include "monkey/RandomWorld.hpp"

#include <array>
#include <cstdio>
#include <set>

#include <nlohmann/json.hpp>

namespace monkey {
namespace {

using Json = nlohmann::json;

std::string digits(Random &random, int count) {
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += static_cast<char>('0' + random.below(10));
    }
    return text;
}

std::string randomNumber(Random &random) {
    switch (random.below(8)) {
    case 0:
        return "0755" + std::string("0123") + digits(random, 4);
    case 1:
        return "021010" + digits(random, 5);
    case 2:
        return "400200" + digits(random, 4);
    case 3:
        return "+1415555" + digits(random, 4);
    default:
        return std::string("1") + "3578"[random.below(4)] + digits(random, 9);
    }
}

std::string randomText(Random &random) {
    static constexpr std::array<const char *, 10> kTexts = {
        "诈骗电话", "房产中介",
        "云雀速递", "Ye Olde Curry & Pizza House, 24 h",
        "快递",     "非常非常长的一个标签它比放它的地方还要宽得多",
        "a",        "😀🎉",
        "عربي",     " "};
    return random.oneOf(kTexts);
}

std::string randomDate(Random &random) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "2014-%02d-%02dT%02d:%02d:%02d+08:00",
                  random.between(5, 6), random.between(1, 12), random.between(0, 23),
                  random.between(0, 59), random.between(0, 59));
    return text.data();
}

Json cloudAnswer(Random &random, const std::string &number) {
    Json answer = {{"number", number}, {"delay", random.between(0, 30) / 10.0}};
    switch (random.below(5)) {
    case 0:
        answer["error"] = "the network connection was lost";
        break;
    case 1:
        answer["cancel"] = true;
        break;
    case 2:
        answer["answer"] = {
            {"hit", true}, {"Tag", randomText(random)}, {"type", 1}, {"source", "社区黄页"}};
        break;
    case 3:
        answer["answer"] = {{"hit", true},
                            {"Tag", randomText(random)},
                            {"type", 3},
                            {"partner",
                             {{"brand_type", "self"},
                              {"b_id", 5001},
                              {"b_n", randomText(random)},
                              {"b_icon", "logo_restaurant.png"},
                              {"source", "海角"},
                              {"ads", "第二杯半价"}}}};
        break;
    default:
        answer["answer"] = {{"hit", true},
                            {"Tag", randomText(random)},
                            {"type", 2},
                            {"Amount", random.between(1, 9999)}};
    }
    return answer;
}

/// Says of the number what its kind says; nothing of some.
void describe(Random &random, const std::string &number, Json &world) {
    const Json entry = {{"number", number}, {"label", randomText(random)}};
    const auto add = [&](const char *section, const Json &more) {
        Json all = entry;
        all.update(more);
        world[section].push_back(std::move(all));
    };
    switch (random.below(9)) {
    case 0:
        add("ownMarks", Json::object());
        break;
    case 1:
        world["brands"].push_back(
            {{"number", number}, {"name", randomText(random)}, {"logo", "logo_courier.png"}});
        break;
    case 2:
        add("partnerNumbers", {{"partner", 5001}});
        break;
    case 3:
        add("reviews", {{"service", "来自食评小站"}, {"rating", 4.5}});
        break;
    case 4:
    case 5:
        add("marks", {{"count", random.between(0, 5000)}});
        break;
    case 6:
        add("labels", Json::object());
        break;
    case 7:
        world["cloudAnswers"].push_back(cloudAnswer(random, number));
        break;
    default:
        break;  // its region alone
    }
}

Json contact(Random &random, int recordId, const std::string &number) {
    Json numbers = Json::array({{{"label", "手机"}, {"number", number}}});
    if (random.percent(40)) {
        numbers.push_back({{"label", "住宅"}, {"number", "0571" + digits(random, 8)}});
    }
    Json contact = {{"recordId", recordId}, {"name", randomText(random)}, {"numbers", numbers}};
    if (random.percent(30)) {
        contact["avatar"] = "avatar_woman_bob.png";
    } else if (random.percent(30)) {
        contact["wallpaper"] = "wallpaper_lake.png";
    }
    return contact;
}

Json recentCall(Random &random, const std::vector<std::string> &numbers) {
    Json call = {{"number", random.percent(90)   ? random.oneOf(numbers)
                            : random.percent(50) ? ""
                                                 : "luna@example.org"},
                 {"direction", random.percent(60) ? "incoming" : "outgoing"},
                 {"answered", random.percent(50)},
                 {"date", randomDate(random)}};
    if (random.percent(5)) {
        call["date"] = nullptr;
    }
    if (random.percent(10)) {
        call["label"] = "杭州";
    }
    return call;
}

}  // namespace

RandomWorld randomWorld(Random &random) {
    constexpr int kNumbers = 60;
    constexpr int kContacts = 8;
    constexpr int kCalls = 50;
    std::set<std::string> distinct;
    while (distinct.size() < kNumbers) {
        distinct.insert(randomNumber(random));
    }
    RandomWorld made;
    made.numbers.assign(distinct.begin(), distinct.end());
    Json world = {{"cloudDelay", 0.5},
                  {"downloadDelay", 0.5},
                  {"partners", Json::array({{{"id", 5001},
                                             {"name", "一碗山食堂"},
                                             {"icon", "logo_restaurant.png"},
                                             {"source", "一碗山"},
                                             {"ads", {"工作日午市套餐八折"}}}})}};
    for (int i = 0; i < kNumbers; ++i) {
        const std::string &number = made.numbers[static_cast<std::size_t>(i)];
        if (i < kContacts) {
            world["contacts"].push_back(contact(random, i + 1, number));
        } else {
            describe(random, number, world);
        }
    }
    for (int i = 0; i < kCalls; ++i) {
        world["recents"].push_back(recentCall(random, made.numbers));
    }
    made.json = world.dump(1);
    made.numbers.insert(made.numbers.end(), {"", "*#06#", "10086", "0", "luna@example.org"});
    return made;
}

std::string randomKnowledge(Random &random, const std::vector<std::string> &numbers) {
    Json piece = Json::object();
    if (random.percent(10)) {
        piece["preferences"] = {{"showNumberArea", random.percent(70)}};
        return piece.dump();
    }
    describe(random, random.oneOf(numbers), piece);
    return piece.dump();
}

}  // namespace monkey
