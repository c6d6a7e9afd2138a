# What the tests consist of and how they are run, wherever they are built: here against the host's
# library, in device/ against the slices of the device's.
set(OUTSIDE_OPTIONS -std=c++20 -fobjc-exceptions -fconstant-string-class=NSConstantString
    -Wno-subobject-linkage)

# Each library beside the host, with its sources.
set(OUTSIDE_FRAMEWORKS
    UIKit:UIKit.mm:Controls.mm
    ZQCommon:Companion.mm:Numbers.mm
    substrate:Substrate.mm
    AddressBook:AddressBook.mm)

set(OUTSIDE_HOST
    Host.mm Checks.mm Load.mm Dialer.mm
    InCall.mm InCallFaults.mm
    Rows.mm Recents.mm RowFaults.mm Cache.mm Swipe.mm Editing.mm
    Contacts.mm Details.mm Header.mm HeaderFaults.mm OtherCode.mm
    Platform.mm ../../device/phonecheck/Comparison.cpp)

# Each run: its name, the system's version, the process's identifier and its state.
set(OUTSIDE_RUNS
    phone-application:7.0:com.apple.MobilePhone:on
    phone-application-7.1:7.1:com.apple.MobilePhone:on
    phone-application-8.0:8.0:com.apple.MobilePhone:on
    phone-application-without-parts:7.0:com.apple.MobilePhone:bare
    another-application:7.0:com.example.app:off)

# Whoever sends a message to an object that is gone ends the process.
set(OUTSIDE_ENVIRONMENT "NSZombieEnabled=YES;CRASH_ON_ZOMBIE=YES")
