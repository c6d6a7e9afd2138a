// A companion library whose every answer a test sets and whose every question it can read back.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "companion/Numbers.hpp"
#include "platform/UIKit.hpp"

namespace test {

/// One local identity query as the companion received it.
struct IdentityQuery {
    std::string pureNumber;
    bool ignoreDiagnose, onlyLocal, hasDelegate;
    double retryPeriod;
    int displayType;
    bool operator==(const IdentityQuery &) const = default;
};

/// A text that may be nil.
using MaybeText = std::optional<std::string>;

/// What a ZQNumberIdentity says.
struct IdentityFacts {
    MaybeText number{}, label{}, source{};
    IdentityKind type{};
    int numOfMark = 0;
    float rating = 0;
    int cloudDataType = 0;
    MaybeText markText{};  // the characters of attriNumInfo
    MaybeText brandName{}, brandLogoPath{};
    bool operator==(const IdentityFacts &) const = default;
};
void PrintTo(const IdentityFacts &facts, std::ostream *out);
IdentityFacts factsOf(ZQNumberIdentity identity);

/// What a ZQPartnerItem says; of each advertisement its description.
struct PartnerFacts {
    int id = 0;
    MaybeText name{}, icon{}, source{};
    std::optional<std::vector<std::string>> ads{};
    MaybeText iconImagePath{};
    bool operator==(const PartnerFacts &) const = default;
};
void PrintTo(const PartnerFacts &facts, std::ostream *out);

struct CloudQuery {
    std::string pureNumber;
    id delegate;
};
/// A stored call as it was asked for; without a date it has none.
struct RecordQuery {
    std::string number;
    std::optional<double> seconds;
    bool operator==(const RecordQuery &) const = default;
};
struct WeiboFacts {
    int avatarType = 0, boundType = 0;
};
struct Observer {
    id object;
    SEL selector;
    std::string message;
};
struct PostedMessage {
    std::string name;
    objc::Owned<NSDictionary> userInfo;
};
struct PingBack {
    std::string event;
    bool immediately;
    bool operator==(const PingBack &) const = default;
};
struct Download {
    std::string location, path;
    bool operator==(const Download &) const = default;
};
struct RoundRect {
    id view;
    CGFloat cornerRadius, borderWidth;
    bool hasBorderColor, mask;
    bool operator==(const RoundRect &) const = default;
};

/// The process's one stub. Numbers are keyed by their digits; what has no entry has no answer
/// (nil).
struct StubCompanion {
    // Answers.
    double iosVersion = 7.1;
    bool isFourInch = true;
    bool showNumberArea = true;
    bool raises = false;        // every lookup raises
    std::string raisesAt;       // the one message, by its selector, that raises
    bool knowsNothing = false;  // all objects that are asked for are nil, the preference apart
    // Labels are short for identities that have nothing but a label.
    std::map<std::string, std::string> labels, areas, descriptions, mobiles;
    std::map<std::string, IdentityFacts> identities;
    std::map<std::string, std::string> rowTexts;        // by label
    std::map<std::string, std::vector<int>> histories;  // action types, by number as asked for
    std::map<int, PartnerFacts> partners;
    std::vector<std::string> contacts, blackList;
    std::map<std::string, objc::Owned<UIImage>> avatars;
    std::map<std::string, WeiboFacts> profiles;

    // Questions and deeds, oldest first.
    std::map<std::string, int> timesAsked;  // by selector
    std::vector<IdentityQuery> queries;
    std::vector<CloudQuery> cloudQueries;  // those that wait for their answer
    std::vector<IdentityFacts> storedIdentities;
    std::vector<PartnerFacts> storedPartners;
    std::vector<Download> downloads;
    std::vector<PingBack> pingBacks;
    std::vector<Observer> observers;
    std::vector<PostedMessage> posted;  // observers hear nothing until it is delivered
    std::vector<RoundRect> roundRects;
    std::vector<RecordQuery> recordQueries;
    int parsedNumbers = 0;
    std::function<void()> onInitializePreferences, onParse;

    /// Ends the oldest cloud query, with an answer or by calling it off; throws when none waits.
    void answerCloudQuery(NSDictionary answer, NSObject error = nullptr);
    void cancelCloudQuery();
    /// Tells the message's observers; returns how many there were.
    int deliver(NSString message, NSDictionary userInfo) const;

    static StubCompanion &current();
    /// Registers the companion's classes; once a process.
    static void registerClasses();
};

}  // namespace test
