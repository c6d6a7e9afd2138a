// The calls of the in-call screen, and what can be done with them. It owns the call objects: they
// are told their new status, and what that means for the list follows when they announce it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "companion/SimulatedTime.hpp"
#include "objc/Owned.hpp"
#include "phone/incall/TUTelephonyCall.hpp"

namespace phone {

/// Who is at the other end.
struct Caller {
    std::string name{};                 // the contact's, or the number as the telephone writes it
    std::string label{};                // of the contact's number; empty for anybody else
    std::filesystem::path picture{};    // small, beside the name; empty for none
    std::filesystem::path wallpaper{};  // large, behind the screen; empty for none
};

/// The person or number behind `number`; an empty one hides.
Caller callerWith(const std::string &number);

struct ListedCall {
    using Time = companion::SimulatedTime::Duration;

    objc::Owned<NSObject> object;
    Caller caller{};
    CallStatus status = CallStatus::None;
    bool isMerged = false;  // one of those that talk all together
    std::optional<Time> answeredAt{};
};

class CallList {
  public:
    size_t count() const { return calls_.size(); }
    const std::vector<ListedCall> &all() const { return calls_; }
    /// By its place, counted from 1; null when there is none.
    TUTelephonyCall *object(size_t number) const;
    bool has(CallStatus status) const { return find(status) != nullptr; }
    bool canSwap() const { return has(CallStatus::Active) && has(CallStatus::Held); }

    /// A new call, which begins by dialling or ringing.
    void begin(NSString number, bool outgoing);

    // These return whether it was possible; see InCallController.
    bool answer() const;
    bool swap() const;
    bool merge();
    bool end(size_t number) const;
    /// Ends what a person means who presses the red key: what rings, else what is being dialled or
    /// talked on, else what is held.
    void endCurrent() const;

    /// Takes over what a call announced. Calls of others are none of the list's business. Returns
    /// the call when it has ended; it is in the list no more.
    std::optional<ListedCall> statusChanged(id call, CallStatus status);

  private:
    const ListedCall *find(CallStatus status) const;
    std::vector<id> objects(CallStatus status) const;
    /// Those that are talked on next when a held call is: the latest, with all it is merged with.
    std::vector<id> lastHeld() const;
    void hold() const;
    static void resume(const std::vector<id> &held);
    void endAll(const std::vector<id> &calls) const;
    void dissolveMerged();

    std::vector<ListedCall> calls_;
};

}  // namespace phone
