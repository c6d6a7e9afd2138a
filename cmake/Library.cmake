# What the host's and the device's build of the library share: its version, its sources and what can
# be set about it. Included before project(), which takes the version from here.

set(ZQDIAL_VERSION 0.1.0)
# The date of the version. Everything in its package bears it, so that a commit gives one package.
set(ZQDIAL_VERSION_DATE 2026-11-23)

# Paths below src/. The bridge and the platform's texts stand apart, since the simulator defines its
# classes with them too.
set(ZQDIAL_BRIDGE_SOURCES
    objc/class_builder.cpp
    objc/owned.cpp
    platform/Foundation.cpp
    platform/format.cpp)
set(ZQDIAL_ADDON_SOURCES
    companion/ZQDialCloudQueryService.cpp
    companion/cloud_answer.cpp
    dialer/HintRow.cpp
    dialer/ZQDialNumberInputUIHook.cpp
    dialer/description.cpp
    dialer/hint.cpp
    dialer/older_hint.cpp
    dialer/replacements.cpp
    hook/ZQDialMain.cpp
    hook/installation.cpp
    incall/CallSlots.cpp
    incall/ZQDialWaitUIHook.cpp
    incall/added_views.cpp
    incall/contact_region.cpp
    incall/description.cpp
    incall/lcd_field.cpp
    incall/lcd_view.cpp
    incall/pictures.cpp
    incall/replacements.cpp
    platform/TextWidths.cpp
    recents/GroupButton.cpp
    recents/HeaderViews.cpp
    recents/RecentCall.cpp
    recents/RowTexts.cpp
    recents/ZQSystemCallHistoryClassHelper.cpp
    recents/ZQSystemCallHistoryViewHook.cpp
    recents/actions.cpp
    recents/address_book.cpp
    recents/cell.cpp
    recents/detail_header.cpp
    recents/history_description.cpp
    recents/lookup.cpp
    recents/lookup_context.cpp
    recents/replacements.cpp
    recents/swipe_menu.cpp)

set(ZQDIAL_SEARCH_HOST "" CACHE STRING "Host of the web search; empty: as in recents/actions.cpp")
if(ZQDIAL_SEARCH_HOST AND NOT ZQDIAL_SEARCH_HOST MATCHES "^[A-Za-z0-9.:-]+$")
    message(FATAL_ERROR "ZQDIAL_SEARCH_HOST is '${ZQDIAL_SEARCH_HOST}': give a host name, with a "
        "port if need be, such as 'search.example:8080'")
endif()
