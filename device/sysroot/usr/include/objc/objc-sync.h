// The re-entrant lock that belongs to an object. Both functions give 0 when they succeed.
#pragma once
#include <objc/objc.h>

#ifdef __cplusplus
extern "C" {
#endif

int objc_sync_enter(id object);
int objc_sync_exit(id object);

#ifdef __cplusplus
}
#endif
