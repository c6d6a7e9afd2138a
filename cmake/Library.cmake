# What the host's and the device's build of the library share: its version, its sources and what can
# be set about it. Included before project(), which takes the version from here.

set(ZQDIAL_VERSION 0.1.0)
# The date of the version. Everything in its package bears it, so that a commit gives one package.
set(ZQDIAL_VERSION_DATE 2026-11-23)

# Paths below src/. The bridge and the platform's texts stand apart, since the simulator defines its
# classes with them too.
set(ZQDIAL_BRIDGE_SOURCES
    objc/ClassBuilder.cpp
    objc/Ivar.cpp
    objc/Owned.cpp
    platform/Foundation.cpp
    platform/Format.cpp)
set(ZQDIAL_ADDON_SOURCES
    companion/CloudAnswer.cpp
    companion/ZQDialCloudQueryService.cpp
    dialer/Description.cpp
    dialer/Hint.cpp
    dialer/HintRow.cpp
    dialer/OlderHint.cpp
    dialer/Replacements.cpp
    dialer/ZQDialNumberInputUIHook.cpp
    hook/Installation.cpp
    hook/ZQDialMain.cpp
    incall/AddedViews.cpp
    incall/CallSlots.cpp
    incall/ContactRegion.cpp
    incall/Description.cpp
    incall/LcdField.cpp
    incall/LcdView.cpp
    incall/Pictures.cpp
    incall/Replacements.cpp
    incall/ZQDialWaitUIHook.cpp
    platform/TextWidths.cpp
    recents/Actions.cpp
    recents/AddressBook.cpp
    recents/Cell.cpp
    recents/DetailHeader.cpp
    recents/GroupButton.cpp
    recents/HeaderViews.cpp
    recents/HistoryDescription.cpp
    recents/Lookup.cpp
    recents/LookupContext.cpp
    recents/RecentCall.cpp
    recents/Replacements.cpp
    recents/RowTexts.cpp
    recents/SwipeMenu.cpp
    recents/ZQSystemCallHistoryClassHelper.cpp
    recents/ZQSystemCallHistoryViewHook.cpp)

set(ZQDIAL_SEARCH_HOST "" CACHE STRING "Host of the web search; empty: as in recents/Actions.cpp")
if(ZQDIAL_SEARCH_HOST AND NOT ZQDIAL_SEARCH_HOST MATCHES "^[A-Za-z0-9.:-]+$")
    message(FATAL_ERROR "ZQDIAL_SEARCH_HOST is '${ZQDIAL_SEARCH_HOST}': give a host name, with a "
        "port if need be, such as 'search.example:8080'")
endif()
