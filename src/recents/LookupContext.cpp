// The call and the number that the recents screen is about.
#include "recents/LookupContext.hpp"

#include <utility>

namespace recents {
namespace {

// Plain handles that hold a reference each: an Owned here would ask for code at load.
constinit NSDate g_currentRecordDate;
constinit NSString g_phonePureNumber;

/// The copy comes first: `value` may be what the variable holds.
template <class T>
void keepCopy(T &variable, T value) {
    auto copy = objc::Owned<T>::adopt(objc::send<T()>(value, "copy"_sel));
    const auto old = objc::Owned<T>::adopt(std::exchange(variable, copy.leak()));
}

}  // namespace

objc::Owned<NSDate> currentRecordDate() { return objc::Owned<NSDate>::share(g_currentRecordDate); }
void setCurrentRecordDate(NSDate date) { keepCopy(g_currentRecordDate, date); }

objc::Owned<NSString> phonePureNumber() { return objc::Owned<NSString>::share(g_phonePureNumber); }
void setPhonePureNumber(NSString number) { keepCopy(g_phonePureNumber, number); }

}  // namespace recents
