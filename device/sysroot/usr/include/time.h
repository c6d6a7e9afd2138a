// The device's <time.h> as far as the C++ library's <ctime> names it.
#pragma once
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef long time_t;
typedef unsigned long clock_t;

struct timespec {
    time_t tv_sec;
    long tv_nsec;
};

struct tm {
    int tm_sec;
    int tm_min;
    int tm_hour;
    int tm_mday;
    int tm_mon;
    int tm_year;
    int tm_wday;
    int tm_yday;
    int tm_isdst;
    long tm_gmtoff;
    char *tm_zone;
};

clock_t clock(void);
time_t time(time_t *now);
double difftime(time_t end, time_t start);
time_t mktime(struct tm *local);
struct tm *gmtime(const time_t *moment);
struct tm *localtime(const time_t *moment);
char *asctime(const struct tm *moment);
char *ctime(const time_t *moment);
size_t strftime(char *text, size_t size, const char *format, const struct tm *moment);
int timespec_get(struct timespec *now, int base);

#ifdef __cplusplus
}
#endif
