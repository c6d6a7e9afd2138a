// Contacts of calls.
#include "phone/recents/CallContact.hpp"

#include "phone/contact/CNContact.hpp"
#include "phone/dialer/TypedNumber.hpp"
#include "phone/incall/CallList.hpp"
#include "uikit/Foundation.hpp"

namespace phone {
namespace {

NSArray numbersOf(const std::vector<ContactNumber> &numbers) {
    std::vector<objc::Owned<NSObject>> entries;
    for (const ContactNumber &entry : numbers) {
        if (!entry.number.empty() && entry.number.find('@') == std::string::npos) {
            entries.push_back(ABContactNumber::make(sim::string(entry.label),
                                                    sim::string(formattedNumber(entry.number))));
        }
    }
    return sim::array(entries);
}

}  // namespace

NSObject contactOf(const PHRecentCall &call) {
    if (const Contact *const known = call.contact()) {
        return CNContact::make(
                   {known->recordId, sim::string(known->name), {}, numbersOf(known->numbers)})
            .autorelease();
    }
    const RecentCallFacts &facts = call.facts();
    return CNContact::make({-1, sim::string(callerWith(facts.number).name),
                            sim::string(facts.label), numbersOf({{facts.number, "电话"}})})
        .autorelease();
}

}  // namespace phone
