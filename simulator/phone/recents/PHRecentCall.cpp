// Calls of the recents list: PHRecentCall of iOS 7 and CHRecentCall of iOS 8.
#include "phone/recents/PHRecentCall.hpp"

#include "phone/Parts.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

// The same object under the names that iOS 8 knows it by.
class CHRecentCall : public PHRecentCall {};

enum Status : int32_t { Answered = 1, Dialled = 2, Missed = 8 };

template <class T>
objc::Owned<PHRecentCall *> make() {
    return objc::make<T>().template as<PHRecentCall *>();
}

}  // namespace

void PHRecentCall::define() {
    using objc::member;
    using Self = PHRecentCall;
    sim::defined("PHRecentCall",
                 objc::ClassBuilder<Self>("PHRecentCall", "NSObject")
                     .method("date"_sel, member<&Self::date>)
                     .method("type"_sel, member<&Self::type>)
                     .method("destination"_sel, member<&Self::number>)
                     .method("addressBookRecord"_sel, member<&Self::addressBookRecord>)
                     .finish());
    sim::defined("CHRecentCall",
                 objc::ClassBuilder<CHRecentCall>("CHRecentCall", "NSObject")
                     .method("date"_sel, member<&Self::date>)
                     .method("callStatus"_sel, member<&Self::callStatus>)
                     .method("callerId"_sel, member<&Self::number>)
                     .method("addressBookRecordId"_sel, member<&Self::addressBookRecordId>)
                     .finish());
}

objc::Owned<NSObject> PHRecentCall::create(const RecentCallFacts &facts) {
    ContactBook &book = ContactBook::shared();
    if (!facts.name.empty() && !facts.number.empty() && book.owner(facts.number) == nullptr) {
        book.add({facts.name, {{facts.number, facts.label}}});
    }
    auto call =
        sim::Device::current().isAtLeast(8, 0) ? make<CHRecentCall>() : make<PHRecentCall>();
    call->facts_ = facts;
    if (facts.date) {
        call->date_ = objc::Owned<NSDate>::share(objc::send<NSDate(double)>(
            "NSDate"_cls, "dateWithTimeIntervalSince1970:"_sel, *facts.date));
    }
    if (!facts.number.empty()) {
        call->number_ = sim::string(facts.number).copy();
    }
    return std::move(call).as<NSObject>();
}

int32_t PHRecentCall::type() const {
    if (!facts_.incoming) {
        return Dialled;
    }
    return facts_.answered ? Answered : Missed;
}

NSString PHRecentCall::addressBookRecordId() const {
    const Contact *const known = contact();
    return known != nullptr ? sim::string(std::to_string(known->recordId)) : NSString();
}

const void *PHRecentCall::addressBookRecord() const {
    const Contact *const known = contact();
    if (known == nullptr) {
        return nullptr;
    }
    std::vector<id> values;
    std::vector<id> labels;
    for (const ContactNumber &entry : known->numbers) {
        values.push_back(sim::string(entry.number));
        labels.push_back(sim::string(entry.label));
    }
    const auto phones = makeRecord("ABMultiValueRecord", "initWithValues:labels:"_sel,
                                   sim::array(std::span<const id>(values)),
                                   sim::array(std::span<const id>(labels)));
    return makeRecord("ABPersonRecord", "initWithName:phones:"_sel, sim::string(known->name),
                      phones.get())
        .autorelease()
        .get();
}

}  // namespace phone
