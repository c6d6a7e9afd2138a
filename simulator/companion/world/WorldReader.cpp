// People, calls, partners and answers; the sections that describe numbers are next door.
#include "companion/world/WorldReader.hpp"

#include <set>

#include <nlohmann/json.hpp>

#include "companion/numbers/NumberText.hpp"
#include "companion/world/JsonFile.hpp"

namespace companion {

namespace {

constexpr std::int32_t kLowestPartnerId = 5001;  // smaller numbers are counts of marks
constexpr double kLongestDelay = 3600;
constexpr std::int32_t kHighestAction = 9;

void checkCloudAnswer(const JsonPlace &answer) {
    answer.expectObject({"hit", "Tag", "type", "Amount", "source", "partner"});
    answer["hit"].booleanOr(false);
    answer["Tag"].textOr("");
    answer["type"].integerOr(0, 0);
    answer["Amount"].integerOr(0, 0);
    answer["source"].textOr("");
    const JsonPlace partner = answer["partner"];
    if (!answer.has("partner")) {
        return;
    }
    partner.expectObject({"brand_type", "b_id", "b_n", "b_icon", "source", "ads", "rating"});
    partner["brand_type"].textOr("");
    partner["b_id"].integerOr(kLowestPartnerId, kLowestPartnerId);
    partner["b_n"].textOr("");
    partner["source"].textOr("");
    partner["rating"].realOr(0, 5, 0);
}

}  // namespace

Progress within(const Progress &whole, double from, double to) {
    if (!whole) {
        return {};
    }
    return [whole, from, to](double part) { whole(from + part * (to - from)); };
}

World World::read(const std::filesystem::path &file, const Progress &progress) {
    constexpr double kParsed = 0.6;  // checking is quicker than parsing
    const nlohmann::json document = readJsonFile(file, within(progress, 0, kParsed));
    const std::string name = file.string();
    return WorldReader(within(progress, kParsed, 1)).read(JsonPlace(document, name));
}

World World::readPiece(std::string_view json, const World &known) {
    const std::string name = "know";
    const nlohmann::json document = readJsonText(std::string(json), name);
    return WorldReader(known).read(JsonPlace(document, name));
}

std::size_t World::entries() const {
    return contacts.size() + identities.size() + partners.size() + blackList.size() +
           microblogs.size() + history.size() + storedCalls.size() + recents.size() +
           cloudAnswers.size() + regions.size();
}

WorldReader::WorldReader(const World &known) {
    world_.showNumberArea = known.showNumberArea;
    world_.cloudDelay = known.cloudDelay;
    world_.downloadDelay = known.downloadDelay;
    for (const Partner &partner : known.partners) {
        knownPartners_.emplace(partner.id, partner.name);
    }
}

void WorldReader::readSettings(const JsonPlace &root) {
    root["about"].textOr("");
    if (root.has("preferences")) {
        root["preferences"].expectObject({"showNumberArea"});
        world_.showNumberArea =
            root["preferences"]["showNumberArea"].booleanOr(world_.showNumberArea);
    }
    world_.cloudDelay = root["cloudDelay"].realOr(0, kLongestDelay, world_.cloudDelay);
    world_.downloadDelay = root["downloadDelay"].realOr(0, kLongestDelay, world_.downloadDelay);
}

World WorldReader::read(const JsonPlace &root) {
    root.expectObject({"about",      "preferences", "cloudDelay",  "downloadDelay",  "contacts",
                       "ownMarks",   "brands",      "partners",    "partnerNumbers", "reviews",
                       "marks",      "webSearches", "labels",      "foreign",        "blackList",
                       "microblogs", "history",     "storedCalls", "recents",        "cloudAnswers",
                       "regions",    "numbers"});
    entries_ = root.entries();
    readSettings(root);
    readContacts(root["contacts"]);
    readPartners(root["partners"]);
    readOwnMarks(root["ownMarks"]);
    readBrands(root["brands"]);
    readPartnerNumbers(root["partnerNumbers"]);
    readReviews(root["reviews"]);
    readMarks(root["marks"]);
    readWebSearches(root["webSearches"]);
    readLabels(root["labels"]);
    readForeign(root["foreign"]);
    readBlackList(root["blackList"]);
    readMicroblogs(root["microblogs"]);
    readCalls(root);
    readCloudAnswers(root["cloudAnswers"]);
    readRegions(root["regions"]);
    for (const JsonPlace &number : root["numbers"].items()) {
        world_.numbers.push_back(number.number());
    }
    return std::move(world_);
}

std::string WorldReader::pictureAt(const JsonPlace &place) {
    std::string name = place.pictureOrNone();
    if (!name.empty()) {
        world_.pictures.push_back({place.place(), name});
    }
    return name;
}

void WorldReader::readContacts(const JsonPlace &list) {
    std::set<std::int32_t> ids;
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"recordId", "name", "numbers", "avatar", "wallpaper"});
        Contact contact;
        contact.recordId = entry["recordId"].integer(0);
        if (!ids.insert(contact.recordId).second) {
            entry["recordId"].fail("a record id that no other contact has");
        }
        contact.name = entry["name"].nonEmptyText();
        contact.avatar = pictureAt(entry["avatar"]);
        contact.wallpaper = pictureAt(entry["wallpaper"]);
        for (const JsonPlace &number : entry["numbers"].items()) {
            number.expectObject({"label", "number"});
            static_cast<void>(number["number"].number());  // checked here, kept as written
            contact.numbers.push_back({number["label"].textOr(""), number["number"].text()});
        }
        if (contact.numbers.empty()) {
            entry["numbers"].fail("a list with one number at least");
        }
        world_.contacts.push_back(std::move(contact));
    }
}

void WorldReader::readPartners(const JsonPlace &list) {
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"id", "name", "icon", "source", "ads"});
        Partner partner;
        partner.id = entry["id"].integer(kLowestPartnerId);
        partner.name = entry["name"].nonEmptyText();
        if (!partnerNames_.try_emplace(partner.id, partner.name).second) {
            entry["id"].fail("an id that no other partner has");
        }
        partner.icon = pictureAt(entry["icon"]);
        partner.source = entry["source"].textOr("");
        nlohmann::json ads = nlohmann::json::array();
        for (const JsonPlace &ad : entry["ads"].items()) {
            ads.push_back(ad.nonEmptyText());
        }
        partner.ads = ads.dump();
        world_.partners.push_back(std::move(partner));
    }
}

void WorldReader::readBlackList(const JsonPlace &list) {
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "prefix"});
        if (entry.has("number") == entry.has("prefix")) {
            entry.fail("either a number or a prefix", entry.has("number") ? "both" : "neither");
        }
        if (entry.has("number")) {
            world_.blackList.push_back({entry["number"].number(), false});
            continue;
        }
        const std::string prefix = entry["prefix"].text();
        if (prefix.empty() || digitsOf(prefix) != prefix) {
            entry["prefix"].fail("the first digits of a pure number, as a text");
        }
        world_.blackList.push_back({prefix, true});
    }
}

void WorldReader::readMicroblogs(const JsonPlace &list) {
    std::set<std::string> numbers;
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "name", "content", "avatarType", "boundType", "avatar"});
        Microblog blog;
        blog.number = entry["number"].number();
        if (!numbers.insert(blog.number).second) {
            entry["number"].fail("a number that has no other microblog");
        }
        blog.name = entry["name"].nonEmptyText();
        blog.content = entry["content"].textOr("");
        blog.avatarKind = entry["avatarType"].integerOr(0, 0);
        blog.boundKind = entry["boundType"].integerOr(0, 0);
        blog.avatar = pictureAt(entry["avatar"]);
        world_.microblogs.push_back(std::move(blog));
    }
}

void WorldReader::readCalls(const JsonPlace &root) {
    for (const JsonPlace &entry : root["history"].items()) {
        entry.expectObject({"number", "actionType", "date"});
        world_.history.push_back({entry["number"].number(),
                                  entry["actionType"].integer(0, kHighestAction),
                                  entry["date"].date()});
    }
    for (const JsonPlace &entry : root["storedCalls"].items()) {
        entry.expectObject({"number", "date"});
        world_.storedCalls.push_back({entry["number"].number(), entry["date"].date()});
    }
    for (const JsonPlace &entry : root["recents"].items()) {
        entry.expectObject({"number", "name", "label", "direction", "answered", "date"});
        RecentCall call;
        call.number = entry["number"].textOr("");
        call.name = entry["name"].textOr("");
        call.label = entry["label"].textOr("");
        const std::string direction = entry["direction"].textOr("");
        if (direction != "incoming" && direction != "outgoing") {
            entry["direction"].fail("\"incoming\" or \"outgoing\"");
        }
        call.incoming = direction == "incoming";
        call.answered = entry["answered"].boolean();
        if (!entry["date"].isNull()) {
            call.date = entry["date"].date();
        }
        world_.recents.push_back(std::move(call));
    }
}

void WorldReader::readCloudAnswers(const JsonPlace &list) {
    std::set<std::string> numbers;
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "delay", "answer", "error", "cancel", "never"});
        CloudAnswer answer;
        answer.number = entry["number"].number();
        if (!numbers.insert(answer.number).second) {
            entry["number"].fail("a number that has no other cloud answer");
        }
        if (entry.has("delay")) {
            answer.delay = entry["delay"].real(0, kLongestDelay);
        }
        const bool cancel = entry["cancel"].booleanOr(false);
        const bool never = entry["never"].booleanOr(false);
        const int outcomes =
            int{entry.has("answer")} + int{entry.has("error")} + int{cancel} + int{never};
        if (outcomes != 1) {
            entry.fail("one of answer, error, cancel (true) and never (true)",
                       std::to_string(outcomes));
        }
        if (entry.has("answer")) {
            checkCloudAnswer(entry["answer"]);
            pictureAt(entry["answer"]["partner"]["b_icon"]);
            answer.text = entry["answer"].compactJson();
        } else if (entry.has("error")) {
            answer.outcome = CloudAnswer::Outcome::error;
            answer.text = entry["error"].nonEmptyText();
        } else {
            answer.outcome = cancel ? CloudAnswer::Outcome::cancel : CloudAnswer::Outcome::never;
        }
        world_.cloudAnswers.push_back(std::move(answer));
    }
}

void WorldReader::readRegions(const JsonPlace &list) {
    std::set<std::string> numbers;
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "region"});
        NumberRegion region{entry["number"].number(), entry["region"].text()};
        if (!numbers.insert(region.number).second) {
            entry["number"].fail("a number that has no other region");
        }
        world_.regions.push_back(std::move(region));
    }
}

}  // namespace companion
