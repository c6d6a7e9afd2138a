// Calls begin, change their status and end.
#include "phone/incall/CallList.hpp"

#include <algorithm>

#include "phone/dialer/ContactBook.hpp"
#include "phone/dialer/TypedNumber.hpp"
#include "uikit/Foundation.hpp"

namespace phone {
namespace {

int32_t recordIdOf(const std::string &number) {
    const Contact *const contact = ContactBook::shared().owner(number);
    return contact ? contact->recordId : -1;
}

/// What the telephony layer is told about a new call.
NSDictionary factsOf(NSString number, bool outgoing) {
    const auto boxed = [](int32_t value) {
        return objc::send<NSObject(int32_t)>("NSNumber"_cls, "numberWithInt:"_sel, value);
    };
    const id facts[] = {number ? number : ""_ns, boxed(outgoing ? 1 : 0),
                        boxed(recordIdOf(sim::utf8(number)))};
    const id keys[] = {"destinationID"_ns, "outgoing"_ns, "abUID"_ns};
    return objc::send<NSDictionary(NSArray, NSArray)>("NSDictionary"_cls,
                                                      "dictionaryWithObjects:forKeys:"_sel,
                                                      sim::array(facts), sim::array(keys));
}

void setStatus(id call, CallStatus status) {
    objc::send<void(CallStatus)>(call, "setStatus:"_sel, status);
}

}  // namespace

Caller callerWith(const std::string &number) {
    if (const auto match = ContactBook::shared().match(number)) {
        const Contact &contact = *ContactBook::shared().owner(number);
        // Nobody is shown twice.
        const bool isBehind = !contact.wallpaper.empty();
        return {match->name, match->label, isBehind ? std::filesystem::path() : contact.picture,
                contact.wallpaper};
    }
    if (number.empty()) {
        return {"未知号码"};
    }
    return {formattedNumber(number)};
}

TUTelephonyCall *CallList::object(size_t number) const {
    const bool exists = number >= 1 && number <= calls_.size();
    return exists ? sim::instance<TUTelephonyCall>(calls_[number - 1].object) : nullptr;
}

const ListedCall *CallList::find(CallStatus status) const {
    const auto found = std::ranges::find(calls_, status, &ListedCall::status);
    return found == calls_.end() ? nullptr : &*found;
}

std::vector<id> CallList::objects(CallStatus status) const {
    std::vector<id> found;
    for (const ListedCall &call : calls_) {
        if (call.status == status) {
            found.push_back(call.object);
        }
    }
    return found;
}

std::vector<id> CallList::lastHeld() const {
    const auto last =
        std::ranges::find(calls_.rbegin(), calls_.rend(), CallStatus::Held, &ListedCall::status);
    if (last == calls_.rend()) {
        return {};
    }
    return last->isMerged ? objects(CallStatus::Held) : std::vector<id>{last->object};
}

void CallList::begin(NSString number, bool outgoing) {
    const objc::AutoreleasePool pool;
    if (outgoing) {
        hold();
    }
    const id memory = objc::send<id()>(objc::classOf<TUTelephonyCall>(), "alloc"_sel);
    ListedCall call{.object = objc::Owned<NSObject>::adopt(objc::send<NSObject(NSObject)>(
                        memory, "initWithCall:"_sel, factsOf(number, outgoing))),
                    .caller = callerWith(sim::utf8(number))};
    const id object = call.object;
    calls_.push_back(std::move(call));
    setStatus(object, outgoing ? CallStatus::Dialing : CallStatus::Ringing);
}

void CallList::hold() const {
    for (const id call : objects(CallStatus::Active)) {
        setStatus(call, CallStatus::Held);
    }
}

void CallList::resume(const std::vector<id> &held) {
    for (const id call : held) {
        setStatus(call, CallStatus::Active);
    }
}

bool CallList::answer() const {
    const ListedCall *const ringing = find(CallStatus::Ringing);
    const ListedCall *const waiting = ringing ? ringing : find(CallStatus::Dialing);
    if (!waiting) {
        return false;
    }
    const id call = waiting->object;
    hold();
    setStatus(call, CallStatus::Active);
    return true;
}

bool CallList::swap() const {
    if (!canSwap()) {
        return false;
    }
    const std::vector<id> held = lastHeld();
    hold();
    resume(held);
    return true;
}

bool CallList::merge() {
    if (!canSwap()) {
        return false;
    }
    for (ListedCall &call : calls_) {
        call.isMerged =
            call.isMerged || call.status == CallStatus::Active || call.status == CallStatus::Held;
    }
    resume(objects(CallStatus::Held));
    return true;
}

bool CallList::end(size_t number) const {
    if (!object(number)) {
        return false;
    }
    endAll({calls_[number - 1].object});
    return true;
}

void CallList::endCurrent() const {
    for (const CallStatus status :
         {CallStatus::Ringing, CallStatus::Dialing, CallStatus::Active, CallStatus::Held}) {
        if (has(status)) {
            endAll(objects(status));
            return;
        }
    }
}

void CallList::endAll(const std::vector<id> &calls) const {
    for (const id call : calls) {
        setStatus(call, CallStatus::Disconnected);
    }
    const bool isBusy =
        has(CallStatus::Active) || has(CallStatus::Dialing) || has(CallStatus::Ringing);
    if (!isBusy) {
        resume(lastHeld());
    }
}

std::optional<ListedCall> CallList::statusChanged(id call, CallStatus status) {
    const auto known = std::ranges::find(
        calls_, call, [](const ListedCall &listed) { return listed.object.get().get(); });
    if (known == calls_.end()) {
        return std::nullopt;
    }
    if (status == CallStatus::Disconnected) {
        std::optional<ListedCall> ended = std::move(*known);
        calls_.erase(known);
        dissolveMerged();
        return ended;
    }
    known->status = status;
    if (status == CallStatus::Active && !known->answeredAt) {
        known->answeredAt = companion::SimulatedTime::shared().now();
    }
    return std::nullopt;
}

void CallList::dissolveMerged() {
    if (std::ranges::count(calls_, true, &ListedCall::isMerged) == 1) {
        std::ranges::find(calls_, true, &ListedCall::isMerged)->isMerged = false;
    }
}

}  // namespace phone
