// Message sending on the device. Each function is called only after a cast to the message's type.
#pragma once
#include <objc/objc.h>

#ifdef __cplusplus
extern "C" {
#endif

struct objc_super {
    id receiver;
    Class super_class; // the class at which the search for the method begins
};

void objc_msgSend(void);
void objc_msgSendSuper(void);
#ifdef __arm__ // for results that come back through memory; arm64 has one function for all
void objc_msgSend_stret(void);
void objc_msgSendSuper_stret(void);
#endif

#ifdef __cplusplus
}
#endif
